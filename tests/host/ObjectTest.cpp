/**
 * @file
 * Objects: identity, owners and containers, references, names, and the end of a model.
 */

#include <memory>

#include "HostTypes.h"
#include "ORXIAlias.h"
#include "ORXSimBCInitializeServices.h"
#include "VYRIFldIdentifier.h"

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

class Objects : public HostTest
{
protected:
    static ORXISpecObject_var OwnerOf(const ORXISpecObject_var& iObject)
    {
        return ORXISpecObject_var::Adopt(iObject->GetOwner());
    }
    static std::string PathOf(const ORXISpecObject_var& iObject) { return VYRStandalone::PathOf(iObject); }
    bool IsInModel(const ORXISpecObject_var& iObject) const
    {
        return iObject->GetContainer() == m_model.Container() && iObject->GetContainer() != NULL_var;
    }
};

TEST_F(Objects, TellNameAndTypes)
{
    const ORXISpecObject_var object = Make("HostDerived", "D");
    EXPECT_EQ(Narrow(object->GetName()), "D");
    EXPECT_EQ(Narrow(object->GetType()), "HostDerived");
    EXPECT_TRUE(object->IsSubTypeOf("HostDerived"));
    EXPECT_TRUE(object->IsSubTypeOf("HostPlain"));
    EXPECT_FALSE(object->IsSubTypeOf("HostOther"));
    EXPECT_FALSE(object->IsSubTypeOf(""));
    EXPECT_FALSE(Make("HostPlain", "P")->IsSubTypeOf("HostDerived"));
}

TEST_F(Objects, GainingAnOwner_LeavesTheContainersListButNotTheModel)
{
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    const ORXISpecObject_var part = Make("HostLeaf", "P");
    EXPECT_EQ(TopLevel(), "O P");
    EXPECT_EQ(Set(owner, "loose", part), S_OK);
    EXPECT_EQ(TopLevel(), "O");
    EXPECT_TRUE(OwnerOf(part) == owner);
    EXPECT_TRUE(IsInModel(part));
    EXPECT_EQ(PathOf(part), "O/loose");
}

TEST_F(Objects, LosingTheOwner_LeavesTheModel)
{
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    const ORXISpecObject_var part = Make("HostLeaf", "P");
    Set(owner, "loose", part);
    EXPECT_EQ(Set(owner, "loose", NULL_var), S_OK);
    EXPECT_TRUE(!OwnerOf(part));
    EXPECT_TRUE(!part->GetContainer());
    EXPECT_EQ(TopLevel(), "O");
    EXPECT_EQ(CountOf(part), 1u);
}

TEST_F(Objects, ReplacedComponent_LosesItsOwnerAndDiesUnlessHeld)
{
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    const ORXISpecObject_var former = ObjectOf(owner, "part");
    const int before = VYRStandalone::LiveComponents();
    EXPECT_EQ(Set(owner, "part", Make("HostPart", "New")), S_OK);
    // The new one came with a component of its own.
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 2);
    EXPECT_TRUE(!OwnerOf(former));
    EXPECT_EQ(PathOf(former), "part");
}

TEST_F(Objects, MovingToAnotherOwner_LeavesTheFormerOne)
{
    const ORXISpecObject_var first = Make("HostPlain", "A");
    const ORXISpecObject_var second = Make("HostPlain", "B");
    const ORXISpecObject_var part = Make("HostLeaf", "P");
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
    EXPECT_EQ(PathOf(part), "A/loose");
    EXPECT_EQ(CountOf(part), 2u);
}

TEST_F(Objects, UnderItselfOrItsComponents_IsRefused)
{
    const ORXISpecObject_var owner = Make("HostPlain", "A");
    const ORXISpecObject_var middle = Make("HostPlain", "B");
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

TEST_F(Objects, NotTheHosts_AreRefused)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecObject_var foreign = ORXISpecObject_var::Adopt(new ForeignObject);
    EXPECT_EQ(Set(object, "ref", foreign), E_FAIL);
    EXPECT_EQ(Set(object, "loose", foreign), E_FAIL);
    EXPECT_EQ(Insert(object, "refs", foreign, 1), E_FAIL);
    EXPECT_TRUE(!ObjectOf(object, "ref"));
}

TEST_F(Objects, References_HoldAndLeaveTheirTargetWhereItIs)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecObject_var target = Make("HostLeaf", "T");
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

TEST_F(Objects, ScalarObjectAttribute_HasIndexZeroOnly)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    EXPECT_EQ(Set(object, "ref", object, 1), E_FAIL);
    EXPECT_TRUE(!ObjectOf(object, "ref"));
    EXPECT_TRUE(!ObjectOf(object, "part", 1));
}

TEST_F(Objects, ReferencesInARing_DieWithTheModel)
{
    const int before = VYRStandalone::LiveComponents();
    {
        VYRStandalone::Model model;
        const ORXISpecObject_var first = model.Create("HostPlain", "A");
        const ORXISpecObject_var second = model.Create("HostPlain", "B");
        Set(first, "ref", second);
        Set(second, "ref", first);
        Insert(second, "refs", second, 1);
        Set(ObjectOf(first, "part"), "inner", model.Create("HostPlain", "C"));
        Set(ObjectOf(ObjectOf(first, "part"), "inner"), "ref", first);
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(Objects, HeldBeyondTheModel_LiveOnWithoutReferencesAndWithTheirComponents)
{
    ORXISpecObject_var held;
    {
        VYRStandalone::Model model;
        held = model.Create("HostPlain", "A");
        Set(held, "ref", model.Create("HostPlain", "B"));
        Insert(held, "refs", held, 1);
    }
    EXPECT_TRUE(!ObjectOf(held, "ref"));
    EXPECT_EQ(NamesOf(held, "refs"), "");
    EXPECT_TRUE(!held->GetContainer());
    EXPECT_EQ(TextOf(ObjectOf(held, "part"), "size"), "1");
    EXPECT_EQ(CountOf(held), 1u);
}

TEST_F(Objects, ClosedModel_IsEmptyAndCanBeUsedOn)
{
    Make("HostPlain", "A");
    m_model.Close();
    EXPECT_EQ(TopLevel(), "");
    Make("HostPlain", "B");
    EXPECT_EQ(TopLevel(), "B");
}

TEST_F(Objects, ComponentHeldBeyondItsOwner_HasNoOwner)
{
    ORXISpecObject_var part;
    {
        VYRStandalone::Model model;
        part = ObjectOf(model.Create("HostPlain", "A"), "part");
    }
    EXPECT_TRUE(!OwnerOf(part));
    EXPECT_TRUE(!part->GetContainer());
    EXPECT_EQ(TextOf(ObjectOf(part, "inner"), "mark"), "7");
}

TEST_F(Objects, AliasAndIdentifier_AreOfferedOnlyWhenGiven)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    EXPECT_TRUE(!ORXIAlias_var(object));
    EXPECT_TRUE(!VYRIFldIdentifier_var(object));
    VYRStandalone::SetAlias(object, "Main");
    VYRStandalone::SetIdentifier(object, "S-1");
    EXPECT_EQ(Narrow(ORXIAlias_var(object)->GetAlias()), "Main");
    ORXUnicodeString identifier;
    VYRIFldIdentifier_var(object)->GetIdentifier(identifier);
    EXPECT_EQ(Narrow(identifier), "S-1");
    EXPECT_TRUE(ORXIAlias_var(object) == object);
    EXPECT_TRUE(ORXISpecObject_var(VYRIFldIdentifier_var(object)) == object);
    EXPECT_EQ(CountOf(object), 2u);
    VYRStandalone::SetAlias(object, "");
    VYRStandalone::SetIdentifier(object, "");
    EXPECT_TRUE(!ORXIAlias_var(object));
    EXPECT_TRUE(!VYRIFldIdentifier_var(object));
}

TEST_F(Objects, ListMembers_FiltersByTypeAndDerivedTypes)
{
    Make("HostPlain", "A");
    Make("HostLeaf", "B");
    Make("HostDerived", "C");
    const auto names = [&](const char* iType) {
        const std::unique_ptr<ORXListValORXBaseUnknown_var> list(m_model.Container()->ListMembers(iType));
        std::string text;
        for (int position = 1; position <= list->Size(); ++position)
            text += Narrow(ORXISpecObject_var((*list)[position])->GetName());
        return text;
    };
    EXPECT_EQ(names(""), "ABC");
    EXPECT_EQ(names("HostPlain"), "AC");
    EXPECT_EQ(names("HostDerived"), "C");
    EXPECT_EQ(names("NoType"), "");
}

TEST_F(Objects, CreateBasicComponent_AppendsToTheContainer)
{
    Make("HostPlain", "A");
    ORXIContainer_var container = m_model.Container();
    ORXISpecObject_var made;
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("HostLeaf", "L", container, made), S_OK);
    EXPECT_EQ(TextOf(made, "mark"), "7");
    EXPECT_TRUE(IsInModel(made));
    EXPECT_EQ(TopLevel(), "A L");
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("NoType", "N", container, made), E_FAIL);
    EXPECT_TRUE(!made);
    ORXIContainer_var null;
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("HostLeaf", "N", null, made), E_FAIL);
    EXPECT_EQ(TopLevel(), "A L");
}
} // namespace
