/**
 * @file
 * Feature objects: identity, types, owner, container, start-up, added attributes.
 */

#include <ostream>

#include "ContractTest.h"

namespace
{
using SpecObjects = ContractTest;

TEST_F(SpecObjects, TellNameAndTypes)
{
    const ORXISpecObject_var object = Make("ContractDerived", "D");
    EXPECT_EQ(Narrow(object->GetName()), "D");
    EXPECT_EQ(Narrow(object->GetType()), "ContractDerived");
    EXPECT_TRUE(object->IsSubTypeOf("ContractDerived"));
    EXPECT_TRUE(object->IsSubTypeOf("ContractPlain"));
    EXPECT_FALSE(object->IsSubTypeOf("ContractOther"));
    EXPECT_FALSE(object->IsSubTypeOf(""));
    EXPECT_FALSE(Make("ContractPlain", "P")->IsSubTypeOf("ContractDerived"));
}

TEST_F(SpecObjects, Name_IsKeptWhateverItHolds)
{
    for (const std::string& character : CharactersOfEveryPlane())
        EXPECT_EQ(Narrow(Make("ContractLeaf", character.c_str())->GetName()), character);
    EXPECT_TRUE(Make("ContractLeaf", "")->GetName().IsEmpty());
    const ORXISpecObject_var first = Make("ContractLeaf", "same");
    EXPECT_FALSE(Make("ContractLeaf", "same") == first) << "a name is no identity";
}

TEST_F(SpecObjects, FacetsAreOneObject)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXBaseUnknown_var root = ORXBaseUnknown_var::Cast(access);
    EXPECT_TRUE(root == object);
    EXPECT_EQ(root->GetImpl(0), object->GetImpl(0));
    EXPECT_EQ(ORXBaseUnknown_var::Cast(object).Pointer(), root.Pointer()) << "the root interface is one pointer";
    EXPECT_FALSE(object == Make("ContractPlain", "A"));
    EXPECT_TRUE(!ORXIContainer_var(object));
}

TEST_F(SpecObjects, GetOwner_IsNullAtTheTopAndANewReferenceBelow)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_EQ(object->GetOwner(), nullptr);
    const unsigned int before = CountOf(object);
    {
        const ORXISpecObject_var owner = OwnerOf(ObjectOf(object, "part"));
        EXPECT_EQ(owner.Pointer(), object.Pointer());
        EXPECT_EQ(CountOf(object), before + 1);
    }
    EXPECT_EQ(CountOf(object), before);
    EXPECT_TRUE(OwnerOf(ObjectOf(ObjectOf(object, "part"), "inner")) == ObjectOf(object, "part"));
}

TEST_F(SpecObjects, GetContainer_IsTheOwnersForAComponentAndNullOutsideEveryModel)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var inner = ObjectOf(ObjectOf(object, "part"), "inner");
    EXPECT_TRUE(object->GetContainer() == m_model.Container());
    EXPECT_TRUE(inner->GetContainer() == m_model.Container());
    EXPECT_FALSE(!ORXIContainer_var(inner->GetContainer()));
    EXPECT_TRUE(!HostUnderTest::MakeColumn()->GetContainer());
    const HostUnderTest::Model other;
    EXPECT_FALSE(other.Container() == object->GetContainer());
}

TEST_F(SpecObjects, ClosedModel_IsEmptyAndCanBeUsedOn)
{
    const ORXISpecObject_var held = Make("ContractPlain", "A");
    m_model.Close();
    EXPECT_EQ(TopLevel(), "");
    EXPECT_TRUE(!held->GetContainer());
    EXPECT_EQ(Narrow(held->GetName()), "A");
    Make("ContractPlain", "B");
    EXPECT_EQ(TopLevel(), "B");
}

TEST_F(SpecObjects, NewObjects_TakeValuesListsAndComponentsFromTheStartup)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
    EXPECT_EQ(TextOf(object, "mode"), "low");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(AccessOf(object)->GetListSize(KeyOf(object, "names")), 2);
    const ORXISpecObject_var part = ObjectOf(object, "part");
    EXPECT_EQ(Narrow(part->GetType()), "ContractPart");
    EXPECT_EQ(Narrow(part->GetName()), "part");
    EXPECT_TRUE(ORXISpecObject_var::Adopt(part->GetOwner()) == object);
    EXPECT_EQ(TextOf(ObjectOf(part, "inner"), "mark"), "7");
    EXPECT_TRUE(!ObjectOf(object, "loose"));
}

TEST_F(SpecObjects, NewObjects_ShareNothingWithEachOther)
{
    const ORXISpecObject_var first = Make("ContractPlain", "A");
    const ORXISpecObject_var second = Make("ContractPlain", "B");
    AccessOf(first)->SetDouble(KeyOf(first, "ratio"), 9.0);
    AccessOf(first)->SetString(KeyOf(first, "names"), "changed", 1);
    AccessOf(first)->RemoveAll(KeyOf(first, "reals"));
    ParmOf(ObjectOf(first, "part"), "size")->Valuate(9.0);
    EXPECT_EQ(TextOf(second, "ratio"), "0.5");
    EXPECT_EQ(Narrow(AccessOf(second)->GetString(KeyOf(second, "names"), 1)), "a");
    EXPECT_EQ(AccessOf(second)->GetListSize(KeyOf(second, "reals")), 2);
    EXPECT_EQ(TextOf(ObjectOf(second, "part"), "size"), "1");
    EXPECT_FALSE(ObjectOf(first, "part") == ObjectOf(second, "part"));
}

TEST_F(SpecObjects, Startups_AreInheritedAndOverlaidDownTheChain)
{
    const ORXISpecObject_var object = Make("ContractDerived", "D");
    EXPECT_EQ(TextOf(object, "ratio"), "0.75");
    EXPECT_EQ(TextOf(object, "count"), "3");
    EXPECT_EQ(TextOf(object, "extra"), "x");
    EXPECT_EQ(AccessOf(object)->GetListSize(KeyOf(object, "names")), 1);
    EXPECT_EQ(TextOf(ObjectOf(object, "part"), "size"), "2");
    EXPECT_EQ(TextOf(ObjectOf(ObjectOf(object, "part"), "inner"), "mark"), "8");
    // The base type's own start-up is as it was.
    EXPECT_EQ(TextOf(ObjectOf(Make("ContractPlain", "P"), "part"), "size"), "1");
}

TEST_F(SpecObjects, GetStartup_OfATopLevelObject_IsItsTypes)
{
    const ORXISpecObject_var first = Make("ContractDerived", "A");
    const ORXISpecObject_var startup = StartupOf(first);
    EXPECT_TRUE(startup == StartupOf(Make("ContractDerived", "B")));
    EXPECT_FALSE(startup == StartupOf(Make("ContractPlain", "C")));
    EXPECT_FALSE(startup == first);
    EXPECT_EQ(Narrow(startup->GetType()), "ContractDerived");
    EXPECT_EQ(TextOf(startup, "ratio"), "0.75");
    EXPECT_EQ(startup->GetStartup(), nullptr);
    EXPECT_EQ(startup->GetOwner(), nullptr);
    EXPECT_TRUE(!startup->GetContainer());
}

TEST_F(SpecObjects, GetStartup_OfAComponentThatCameWithItsOwner_IsTheMatchingOneOfTheOwners)
{
    const ORXISpecObject_var object = Make("ContractDerived", "D");
    const ORXISpecObject_var startup = StartupOf(ObjectOf(ObjectOf(object, "part"), "inner"));
    EXPECT_EQ(TextOf(startup, "mark"), "8");
    EXPECT_TRUE(startup == ObjectOf(ObjectOf(StartupOf(object), "part"), "inner"));
    EXPECT_EQ(startup->GetStartup(), nullptr);
    EXPECT_TRUE(OwnerOf(startup) == ObjectOf(StartupOf(object), "part"));
}

TEST_F(SpecObjects, GetStartup_OfAComponentThatWasPutThere_IsItsTypes)
{
    const ORXISpecObject_var object = Make("ContractDerived", "D");
    const ORXISpecObject_var part = Make("ContractPart", "P");
    const ORXISpecObject_var before = StartupOf(part);
    Set(object, "part", part);
    EXPECT_TRUE(StartupOf(part) == before);
    EXPECT_EQ(TextOf(StartupOf(part), "size"), "1");
}

TEST_F(SpecObjects, GetStartup_OfAComponentThatHasLostItsOwner_Stays)
{
    const ORXISpecObject_var object = Make("ContractDerived", "D");
    const ORXISpecObject_var part = ObjectOf(object, "part");
    const ORXISpecObject_var before = StartupOf(part);
    Set(object, "part", NULL_var);
    EXPECT_TRUE(StartupOf(part) == before);
    EXPECT_EQ(TextOf(before, "size"), "2");
}

TEST_F(SpecObjects, ChangesOfAStartup_ShowOnlyWhereItIsAskedAndInNewObjects)
{
    const ORXISpecObject_var object = Make("ContractOther", "A");
    const ORXISpecObject_var startup = StartupOf(object);
    const ORXIValue_var held = ParmOf(startup, "ratio")->GetValue();
    ParmOf(startup, "ratio")->Valuate(4.0);
    EXPECT_EQ(TextOf(startup, "ratio"), "4");
    EXPECT_EQ(TextOf(object, "ratio"), "(none)");
    EXPECT_EQ(held->IsValuated(), 0);
    EXPECT_EQ(TextOf(Make("ContractOther", "B"), "ratio"), "4");
    ParmOf(startup, "ratio")->ValuateFromValue(held);
    EXPECT_EQ(TextOf(startup, "ratio"), "(none)");
}

TEST_F(SpecObjects, Startups_AreImmortalAndCountNothing)
{
    const int before = HostUnderTest::LiveComponents();
    ORXISpecObject_var startup;
    ORXIValue_var value;
    {
        const HostUnderTest::Model model;
        startup = StartupOf(MakeIn(model, "ContractPlain", "A"));
        value = ParmOf(startup, "ratio")->GetValue();
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
    EXPECT_EQ(CountOf(startup), CountOf(ORXISpecObject_var(startup)));
    EXPECT_EQ(value->AsReal(), 0.5);
}

TEST_F(SpecObjects, AddAttribute_MakesItRealAtOnceWithoutAValue)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_TRUE(!KeyOf(object, "x"));
    Add(object, "x", tk_double);
    const ORXISpecAttrKey_var key = KeyOf(object, "x");
    ASSERT_FALSE(!key);
    EXPECT_TRUE(AccessOf(object)->HasAttribute(key));
    EXPECT_EQ(TextOf(object, "x"), "(none)");
    EXPECT_EQ(AccessOf(object)->GetDouble(key), 0.0);
    EXPECT_EQ(AccessOf(object)->SetDouble(key, 2.5), S_OK);
    EXPECT_EQ(AccessOf(object)->GetDouble(key), 2.5);
    EXPECT_TRUE(!KeyOf(Make("ContractPlain", "B"), "x")) << "it belongs to this object alone";
}

struct CodeOfAddition
{
    int code;
    bool isTaken;
};

class CodesOfAddition : public ContractTest, public testing::WithParamInterface<CodeOfAddition>
{
};

TEST_P(CodesOfAddition, OnlyScalarCodesAreTaken)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", GetParam().code, 0));
    EXPECT_EQ(!added, GetParam().isTaken ? 0 : 1);
    EXPECT_EQ(!KeyOf(object, "x"), GetParam().isTaken ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Keys, CodesOfAddition,
                         testing::Values(CodeOfAddition{tk_double, true}, CodeOfAddition{tk_boolean, true},
                                         CodeOfAddition{tk_string, true}, CodeOfAddition{tk_integer, true},
                                         CodeOfAddition{tk_specobject, true}, CodeOfAddition{tk_component, true},
                                         CodeOfAddition{tk_list, false}, CodeOfAddition{0, false},
                                         CodeOfAddition{99, false}));

TEST_F(SpecObjects, AddAttribute_GivesTheSameAgainAndRefusesAnotherKind)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 0));
    EXPECT_EQ(TextOf(object, "x"), "(none)");
    EXPECT_EQ(added->SetBoolean(ORXTrue), S_OK);
    const ORXISpecAttribute_var again = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 1));
    EXPECT_TRUE(again == added);
    EXPECT_EQ(TextOf(object, "x"), "true");
    EXPECT_EQ(object->AddAttribute("x", tk_double, 0), nullptr);
    EXPECT_EQ(object->AddAttribute("", tk_double, 0), nullptr);
    EXPECT_EQ(object->AddAttribute("ratio", tk_boolean, 0), nullptr);
}

TEST_F(SpecObjects, AddAttribute_OfADeclaredAttribute_GivesThatAttribute)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttribute_var declared = ORXISpecAttribute_var::Adopt(object->AddAttribute("on", tk_boolean, 0));
    ASSERT_FALSE(!declared);
    EXPECT_EQ(declared->SetBoolean(ORXTrue), S_OK);
    EXPECT_EQ(TextOf(object, "on"), "true");
    EXPECT_EQ(object->AddAttribute("on", tk_string, 0), nullptr);
    EXPECT_TRUE(ORXISpecAttribute_var::Adopt(object->AddAttribute("on", tk_boolean, 0)) == declared)
        << "one attribute is one component";
    const ORXISpecObject_var other = Make("ContractPlain", "B");
    EXPECT_FALSE(ORXISpecAttribute_var::Adopt(other->AddAttribute("on", tk_boolean, 0)) == declared);
}

TEST_F(SpecObjects, AddAttribute_GivesANewReference)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    {
        const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 0));
        EXPECT_EQ(CountOf(object), before + 1) << "it holds its object";
        const ORXISpecAttribute_var again = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 0));
        EXPECT_EQ(CountOf(object), before + 2);
    }
    EXPECT_EQ(CountOf(object), before);
    EXPECT_FALSE(!KeyOf(object, "x"));
}

TEST_F(SpecObjects, AddedAttributesOfObjects_OwnAndReferAsDeclaredOnesDo)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var target = Make("ContractLeaf", "T");
    Add(object, "owned", tk_component);
    Add(object, "referred", tk_specobject);
    EXPECT_EQ(Set(object, "referred", target), S_OK);
    EXPECT_TRUE(!OwnerOf(target));
    EXPECT_EQ(Set(object, "owned", target), S_OK);
    EXPECT_TRUE(OwnerOf(target) == object);
    EXPECT_EQ(TopLevel(), "A");
    EXPECT_TRUE(ObjectOf(object, "owned") == ObjectOf(object, "referred"));
}
} // namespace
