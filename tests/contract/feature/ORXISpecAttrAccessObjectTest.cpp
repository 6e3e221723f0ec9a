/**
 * @file
 * Attributes of objects: components, which are owned, and references, which are not.
 */

#include "ContractTest.h"

namespace
{
/// An object that is not the host's.
class ForeignObject : public ORXISpecObject
{
public:
    ORXUnicodeString GetName() override { return "foreign"; }
    ORXUnicodeString GetType() override { return "Foreign"; }
    ORXBoolean IsSubTypeOf(const ORXUnicodeString&) override { return ORXFalse; }
    ORXISpecObject* GetStartup() override { return nullptr; }
    ORXISpecObject* GetOwner() override { return nullptr; }
    ORXBaseUnknown_var GetContainer() override { return {}; }
    ORXISpecAttribute* AddAttribute(const ORXUnicodeString&, int, int) override { return nullptr; }
};

class ObjectAttributes : public ContractTest
{
protected:
    bool IsInModel(const ORXISpecObject_var& iObject) const
    {
        return iObject->GetContainer() == m_model.Container() && iObject->GetContainer() != NULL_var;
    }
};

TEST_F(ObjectAttributes, GainingAnOwner_LeavesTheContainersListButNotTheModel)
{
    const ORXISpecObject_var owner = Make("ContractPlain", "O");
    const ORXISpecObject_var part = Make("ContractLeaf", "P");
    EXPECT_EQ(TopLevel(), "O P");
    EXPECT_EQ(Set(owner, "loose", part), S_OK);
    EXPECT_EQ(TopLevel(), "O");
    EXPECT_TRUE(OwnerOf(part) == owner);
    EXPECT_TRUE(IsInModel(part));
    EXPECT_TRUE(ObjectOf(owner, "loose") == part);
    EXPECT_EQ(CountOf(part), 2u) << "by its owner and by this test";
}

TEST_F(ObjectAttributes, LosingTheOwner_LeavesTheModel)
{
    const ORXISpecObject_var owner = Make("ContractPlain", "O");
    const ORXISpecObject_var part = Make("ContractLeaf", "P");
    Set(owner, "loose", part);
    EXPECT_EQ(Set(owner, "loose", NULL_var), S_OK);
    EXPECT_TRUE(!OwnerOf(part));
    EXPECT_TRUE(!part->GetContainer());
    EXPECT_EQ(TopLevel(), "O");
    EXPECT_EQ(CountOf(part), 1u);
}

TEST_F(ObjectAttributes, ReplacedComponent_LosesItsOwnerAndDiesUnlessHeld)
{
    const ORXISpecObject_var owner = Make("ContractPlain", "O");
    const int before = HostUnderTest::LiveComponents();
    EXPECT_EQ(Set(owner, "part", Make("ContractPart", "New")), S_OK);
    EXPECT_EQ(HostUnderTest::LiveComponents(), before) << "the former one has gone with its component";
    const ORXISpecObject_var held = ObjectOf(owner, "part");
    EXPECT_EQ(Set(owner, "part", Make("ContractPart", "Newer")), S_OK);
    EXPECT_TRUE(!OwnerOf(held));
    EXPECT_EQ(Narrow(ObjectOf(owner, "part")->GetName()), "Newer");
    EXPECT_TRUE(OwnerOf(ObjectOf(held, "inner")) == held);
}

TEST_F(ObjectAttributes, MovingToAnotherOwner_LeavesTheFormerOne)
{
    const ORXISpecObject_var first = Make("ContractPlain", "A");
    const ORXISpecObject_var second = Make("ContractPlain", "B");
    const ORXISpecObject_var part = Make("ContractLeaf", "P");
    Insert(first, "parts", part, 1);
    Insert(first, "parts", part, 2);
    EXPECT_EQ(Set(second, "loose", part), S_OK);
    EXPECT_EQ(NamesOf(first, "parts"), "");
    EXPECT_TRUE(OwnerOf(part) == second);
    EXPECT_EQ(Insert(first, "parts", part, 1), S_OK);
    EXPECT_TRUE(!ObjectOf(second, "loose"));
    EXPECT_TRUE(OwnerOf(part) == first);
    // From one attribute of an owner to another.
    EXPECT_EQ(Set(first, "loose", part), S_OK);
    EXPECT_EQ(NamesOf(first, "parts"), "");
    EXPECT_TRUE(ObjectOf(first, "loose") == part);
    EXPECT_EQ(CountOf(part), 2u);
}

TEST_F(ObjectAttributes, UnderItselfOrItsComponents_IsRefused)
{
    const ORXISpecObject_var owner = Make("ContractPlain", "A");
    const ORXISpecObject_var middle = Make("ContractPlain", "B");
    Set(owner, "loose", middle);
    EXPECT_EQ(Set(owner, "loose", owner), E_FAIL);
    EXPECT_EQ(Set(middle, "loose", owner), E_FAIL);
    EXPECT_EQ(Insert(middle, "parts", owner, 1), E_FAIL);
    EXPECT_EQ(NamesOf(middle, "parts"), "");
    EXPECT_TRUE(ObjectOf(owner, "loose") == middle);
    EXPECT_EQ(TopLevel(), "A");
    // Referring upward is no owning.
    EXPECT_EQ(Set(middle, "ref", owner), S_OK);
    EXPECT_EQ(Set(middle, "ref", NULL_var), S_OK);
}

TEST_F(ObjectAttributes, NotTheHosts_AreRefused)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var foreign = ORXISpecObject_var::Adopt(new ForeignObject);
    EXPECT_EQ(Set(object, "ref", foreign), E_FAIL);
    EXPECT_EQ(Set(object, "loose", foreign), E_FAIL);
    EXPECT_EQ(Insert(object, "refs", foreign, 1), E_FAIL);
    EXPECT_TRUE(!ObjectOf(object, "ref"));
}

TEST_F(ObjectAttributes, References_HoldAndLeaveTheirTargetWhereItIs)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var target = Make("ContractLeaf", "T");
    EXPECT_EQ(Set(object, "ref", target), S_OK);
    EXPECT_EQ(TopLevel(), "A T");
    EXPECT_TRUE(!OwnerOf(target));
    EXPECT_EQ(CountOf(target), 3u);
    AccessOf(object)->RemoveObject(KeyOf(object, "ref"), object);
    EXPECT_TRUE(ObjectOf(object, "ref") == target);
    AccessOf(object)->RemoveObject(KeyOf(object, "ref"), target);
    EXPECT_TRUE(!ObjectOf(object, "ref"));
    EXPECT_EQ(CountOf(target), 2u);
}

TEST_F(ObjectAttributes, Reference_MayNameTheObjectItselfAndOneOfAnotherModel)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_EQ(Set(object, "ref", object), S_OK);
    EXPECT_TRUE(ObjectOf(object, "ref") == object);
    const HostUnderTest::Model model;
    EXPECT_EQ(Set(object, "ref", MakeIn(model, "ContractLeaf", "B")), S_OK);
    EXPECT_EQ(Narrow(ObjectOf(object, "ref")->GetName()), "B");
}

TEST_F(ObjectAttributes, ScalarObjectAttribute_HasIndexZeroOnly)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_EQ(Set(object, "ref", object, 1), E_FAIL);
    EXPECT_TRUE(!ObjectOf(object, "ref"));
    EXPECT_TRUE(!ObjectOf(object, "part", 1));
}

TEST_F(ObjectAttributes, OfOneKind_ReadAsNothingAsAnother)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const char* name : {"part", "ref", "refs"})
    {
        EXPECT_EQ(AccessOf(object)->GetDouble(KeyOf(object, name)), 0.0) << name;
        EXPECT_EQ(AccessOf(object)->GetInteger(KeyOf(object, name)), 0) << name;
        EXPECT_TRUE(AccessOf(object)->GetString(KeyOf(object, name)).IsEmpty()) << name;
        EXPECT_EQ(AccessOf(object)->SetString(KeyOf(object, name), "x"), E_FAIL) << name;
    }
    EXPECT_EQ(Set(object, "title", object), E_FAIL);
    EXPECT_TRUE(!ObjectOf(object, "title"));
}

TEST_F(ObjectAttributes, RemoveObject_TakesOutOnlyWhatStandsThere)
{
    const ORXISpecObject_var owner = Make("ContractPlain", "A");
    const ORXISpecObject_var part = Make("ContractLeaf", "P");
    Set(owner, "loose", part);
    AccessOf(owner)->RemoveObject(KeyOf(owner, "loose"), owner);
    AccessOf(owner)->RemoveObject(KeyOf(owner, "loose"), NULL_var);
    AccessOf(owner)->RemoveObject(KeyOf(owner, "title"), part);
    EXPECT_TRUE(ObjectOf(owner, "loose") == part);
    AccessOf(owner)->RemoveObject(KeyOf(owner, "loose"), part);
    EXPECT_TRUE(!ObjectOf(owner, "loose"));
    EXPECT_TRUE(!OwnerOf(part));
    AccessOf(owner)->RemoveObject(KeyOf(owner, "loose"), part);
    EXPECT_EQ(CountOf(part), 1u);
}

TEST_F(ObjectAttributes, ReferencesInARing_DieWithTheModel)
{
    const int before = HostUnderTest::LiveComponents();
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var first = MakeIn(model, "ContractPlain", "A");
        const ORXISpecObject_var second = MakeIn(model, "ContractPlain", "B");
        Set(first, "ref", second);
        Set(second, "ref", first);
        Insert(second, "refs", second, 1);
        Set(ObjectOf(first, "part"), "inner", MakeIn(model, "ContractPlain", "C"));
        Set(ObjectOf(ObjectOf(first, "part"), "inner"), "ref", first);
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}

TEST_F(ObjectAttributes, HeldBeyondTheModel_LiveOnWithoutReferencesAndWithTheirComponents)
{
    ORXISpecObject_var held;
    {
        const HostUnderTest::Model model;
        held = MakeIn(model, "ContractPlain", "A");
        Set(held, "ref", MakeIn(model, "ContractPlain", "B"));
        Insert(held, "refs", held, 1);
    }
    EXPECT_TRUE(!ObjectOf(held, "ref"));
    EXPECT_EQ(NamesOf(held, "refs"), "");
    EXPECT_TRUE(!held->GetContainer());
    EXPECT_EQ(TextOf(ObjectOf(held, "part"), "size"), "1");
    EXPECT_EQ(CountOf(held), 1u);
}

TEST_F(ObjectAttributes, ComponentHeldBeyondItsOwner_HasNoOwner)
{
    ORXISpecObject_var part;
    {
        const HostUnderTest::Model model;
        part = ObjectOf(MakeIn(model, "ContractPlain", "A"), "part");
    }
    EXPECT_TRUE(!OwnerOf(part));
    EXPECT_TRUE(!part->GetContainer());
    EXPECT_EQ(TextOf(ObjectOf(part, "inner"), "mark"), "7");
}
} // namespace
