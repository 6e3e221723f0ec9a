/**
 * @file
 * Start-ups: inherited, overlaid, with the components inside; what objects take from them.
 */

#include "HostTypes.h"

namespace
{
class Startups : public HostTest
{
protected:
    static ORXISpecObject_var StartupOf(const ORXISpecObject_var& iObject)
    {
        return ORXISpecObject_var::Adopt(iObject->GetStartup());
    }
};

TEST_F(Startups, ObjectsTakeValuesListsAndComponents)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
    EXPECT_EQ(TextOf(object, "mode"), "low");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(AccessOf(object)->GetListSize(KeyOf(object, "names")), 2);
    const ORXISpecObject_var part = ObjectOf(object, "part");
    EXPECT_EQ(Narrow(part->GetType()), "HostPart");
    EXPECT_EQ(Narrow(part->GetName()), "part");
    EXPECT_TRUE(ORXISpecObject_var::Adopt(part->GetOwner()) == object);
    EXPECT_EQ(TextOf(ObjectOf(part, "inner"), "mark"), "7");
    EXPECT_TRUE(!ObjectOf(object, "loose"));
}

TEST_F(Startups, AreInheritedAndOverlaidDownTheChain)
{
    const ORXISpecObject_var object = Make("HostDerived", "D");
    EXPECT_EQ(TextOf(object, "ratio"), "0.75");
    EXPECT_EQ(TextOf(object, "count"), "3");
    EXPECT_EQ(TextOf(object, "extra"), "x");
    EXPECT_EQ(AccessOf(object)->GetListSize(KeyOf(object, "names")), 1);
    EXPECT_EQ(TextOf(ObjectOf(object, "part"), "size"), "2");
    EXPECT_EQ(TextOf(ObjectOf(ObjectOf(object, "part"), "inner"), "mark"), "8");
    // The base type's own start-up is as it was.
    EXPECT_EQ(TextOf(ObjectOf(Make("HostPlain", "P"), "part"), "size"), "1");
}

TEST_F(Startups, OfATopLevelObject_IsItsTypes)
{
    const ORXISpecObject_var first = Make("HostDerived", "A");
    const ORXISpecObject_var startup = StartupOf(first);
    EXPECT_TRUE(startup == StartupOf(Make("HostDerived", "B")));
    EXPECT_FALSE(startup == StartupOf(Make("HostPlain", "C")));
    EXPECT_EQ(Narrow(startup->GetType()), "HostDerived");
    EXPECT_EQ(VYRStandalone::PathOf(startup), "[HostDerived]");
    EXPECT_EQ(TextOf(startup, "ratio"), "0.75");
    EXPECT_TRUE(!StartupOf(startup));
    EXPECT_EQ(startup->GetOwner(), nullptr);
    EXPECT_TRUE(!startup->GetContainer());
}

TEST_F(Startups, OfAComponentThatCameWithItsOwner_IsTheMatchingOneOfTheOwners)
{
    const ORXISpecObject_var object = Make("HostDerived", "D");
    const ORXISpecObject_var inner = ObjectOf(ObjectOf(object, "part"), "inner");
    const ORXISpecObject_var startup = StartupOf(inner);
    EXPECT_EQ(VYRStandalone::PathOf(startup), "[HostDerived]/part/inner");
    EXPECT_EQ(TextOf(startup, "mark"), "8");
    EXPECT_TRUE(startup == ObjectOf(ObjectOf(StartupOf(object), "part"), "inner"));
    EXPECT_TRUE(!StartupOf(startup));
    EXPECT_TRUE(ORXISpecObject_var::Adopt(startup->GetOwner()) == ObjectOf(StartupOf(object), "part"));
}

TEST_F(Startups, OfAComponentThatWasPutThere_IsItsTypes)
{
    const ORXISpecObject_var object = Make("HostDerived", "D");
    const ORXISpecObject_var part = Make("HostPart", "P");
    Set(object, "part", part);
    EXPECT_EQ(VYRStandalone::PathOf(StartupOf(part)), "[HostPart]");
    EXPECT_EQ(TextOf(part, "size"), "1");
}

TEST_F(Startups, LaterChanges_ShowOnlyWhereTheStartupIsAsked)
{
    const ORXISpecObject_var object = Make("HostOther", "A");
    const ORXISpecObject_var startup = StartupOf(object);
    const ORXIValue_var held = ParmOf(startup, "ratio")->GetValue();
    ParmOf(startup, "ratio")->Valuate(4.0);
    EXPECT_EQ(TextOf(startup, "ratio"), "4");
    EXPECT_EQ(TextOf(object, "ratio"), "(none)");
    EXPECT_EQ(held->IsValuated(), 0);
    EXPECT_EQ(TextOf(Make("HostOther", "B"), "ratio"), "4");
    ParmOf(startup, "ratio")->ValuateFromValue(held);
    EXPECT_EQ(TextOf(startup, "ratio"), "(none)");
}

TEST_F(Startups, TakeNoObjectsAndNoAdditions)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecObject_var startup = StartupOf(object);
    EXPECT_EQ(Set(startup, "ref", object), E_FAIL);
    EXPECT_EQ(Set(startup, "part", NULL_var), E_FAIL);
    EXPECT_EQ(Insert(startup, "refs", object, 1), E_FAIL);
    EXPECT_EQ(startup->AddAttribute("x", tk_boolean, 0), nullptr);
    EXPECT_EQ(Set(object, "loose", startup), E_FAIL);
    EXPECT_EQ(Set(object, "ref", startup), S_OK);
}

TEST_F(Startups, AreImmortalAndCountNothing)
{
    const int before = VYRStandalone::LiveComponents();
    ORXISpecObject_var startup;
    ORXIValue_var value;
    {
        VYRStandalone::Model model;
        startup = StartupOf(model.Create("HostPlain", "A"));
        value = ParmOf(startup, "ratio")->GetValue();
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
    EXPECT_EQ(CountOf(startup), CountOf(ORXISpecObject_var(startup)));
    EXPECT_EQ(value->AsReal(), 0.5);
}

TEST_F(Startups, OfTheBuiltInTypes)
{
    const ORXISpecObject_var choice = Make("VYRCfdChoice", "C");
    EXPECT_EQ(TextOf(choice, "value"), "(none)");
    EXPECT_EQ(AccessOf(choice)->GetListSize(KeyOf(choice, "choices")), 0);
    EXPECT_TRUE(!ObjectOf(choice, "Data"));
    EXPECT_EQ(Narrow(ObjectOf(choice, "defaultManagement")->GetType()), "VYRCfdDefaultManagement");
    EXPECT_EQ(KeyOf(ObjectOf(choice, "defaultManagement"), "configuration")->GetListType(), tk_specobject);
    EXPECT_EQ(Narrow(ObjectOf(Make("VYRCfdValues", "V"), "defaultManagement")->GetType()), "VYRCfdDefaultManagement");
    const ORXISpecObject_var item = Make("VYRCfdConfigItem", "I");
    for (const char* name : {"type", "path", "default", "defaultAutoKey", "condition", "config"})
    {
        EXPECT_EQ(TextOf(item, name), "(none)") << name;
        EXPECT_TRUE(AccessOf(item)->GetString(KeyOf(item, name)).IsEmpty()) << name;
    }
}
} // namespace
