/**
 * @file
 * Keys: what they tell, when two are equal, and how long they live.
 */

#include "ContractTest.h"

namespace
{
using AttrKeys = ContractTest;

struct DeclaredKind
{
    const char* name;
    int type;
    int listType;
};

class DeclaredKinds : public ContractTest, public testing::WithParamInterface<DeclaredKind>
{
};

TEST_P(DeclaredKinds, KeyTellsNameAndCodes)
{
    const ORXISpecAttrKey_var key = KeyOf(Make("ContractPlain", "A"), GetParam().name);
    EXPECT_EQ(Narrow(key->GetName()), GetParam().name);
    EXPECT_EQ(key->GetType(), GetParam().type);
    EXPECT_EQ(key->GetListType(), GetParam().listType);
}

INSTANTIATE_TEST_SUITE_P(Keys, DeclaredKinds,
                         testing::Values(DeclaredKind{"ratio", 7, 0}, DeclaredKind{"on", 8, 0},
                                         DeclaredKind{"mode", 17, 0}, DeclaredKind{"title", 18, 0},
                                         DeclaredKind{"ref", 23, 0}, DeclaredKind{"part", 26, 0},
                                         DeclaredKind{"count", 28, 0}, DeclaredKind{"reals", 25, 7},
                                         DeclaredKind{"flags", 25, 8}, DeclaredKind{"modes", 25, 17},
                                         DeclaredKind{"names", 25, 18}, DeclaredKind{"refs", 25, 23},
                                         DeclaredKind{"parts", 25, 26}, DeclaredKind{"counts", 25, 28}));

TEST_F(AttrKeys, AreFoundAgain)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrKey_var key = KeyOf(object, "ratio");
    EXPECT_EQ(key->IsEqual(KeyOf(object, "ratio")), 1);
    EXPECT_EQ(key->IsEqual(KeyOf(Make("ContractPlain", "B"), "ratio")), 1);
    EXPECT_EQ(key->IsEqual(KeyOf(object, "count")), 0);
    EXPECT_EQ(key->IsEqual(nullptr), 0);
    EXPECT_EQ(key->IsEqual(object.Pointer()), 0);
}

TEST_F(AttrKeys, OfferTheirInterfaceOnly)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    Add(object, "own", tk_double);
    for (const char* name : {"ratio", "own"})
    {
        const ORXISpecAttrKey_var key = KeyOf(object, name);
        EXPECT_TRUE(ORXISpecAttrKey_var::Cast(key) == key) << name;
        EXPECT_TRUE(ORXBaseUnknown_var::Cast(key) == key) << name;
        EXPECT_TRUE(!ORXISpecObject_var::Cast(key)) << name;
    }
}

TEST_F(AttrKeys, OfDeclaredAttributes_AreNotCountedAndOutliveEveryModel)
{
    ORXISpecAttrKey* borrowed = nullptr;
    {
        const HostUnderTest::Model model;
        const int before = HostUnderTest::LiveComponents();
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "A");
        const int withObject = HostUnderTest::LiveComponents();
        EXPECT_GT(withObject, before);
        borrowed = AccessOf(object)->GetAttrKey("ratio");
        EXPECT_EQ(HostUnderTest::LiveComponents(), withObject);
        borrowed->Release();
    }
    EXPECT_EQ(Narrow(borrowed->GetName()), "ratio");
    EXPECT_EQ(borrowed->IsEqual(KeyOf(Make("ContractPlain", "B"), "ratio")), 1);
}

TEST_F(AttrKeys, OfAddedAttributes_OutliveTheirObject)
{
    ORXISpecAttrKey_var key;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "A");
        Add(object, "late", tk_double);
        key = KeyOf(object, "late");
    }
    EXPECT_EQ(Narrow(key->GetName()), "late");
    EXPECT_EQ(key->GetType(), tk_double);
    const ORXISpecObject_var other = Make("ContractPlain", "B");
    EXPECT_FALSE(AccessOf(other)->HasAttribute(key));
    Add(other, "late", tk_double);
    EXPECT_EQ(AccessOf(other)->SetDouble(key, 2.0), S_OK);
    EXPECT_EQ(TextOf(other, "late"), "2");
}

TEST_F(AttrKeys, OfAddedAttributes_AreEqualByNameAndType)
{
    const ORXISpecObject_var first = Make("ContractPlain", "A");
    const ORXISpecObject_var second = Make("ContractOther", "B");
    for (const ORXISpecObject_var& object : {first, second})
        Add(object, "same", tk_integer);
    Add(first, "other", tk_integer);
    Add(second, "another", tk_boolean);
    const ORXISpecAttrKey_var key = KeyOf(first, "same");
    EXPECT_EQ(key->IsEqual(KeyOf(second, "same")), 1) << "also on objects of different types";
    EXPECT_EQ(key->IsEqual(KeyOf(first, "other")), 0);
    EXPECT_EQ(key->IsEqual(KeyOf(second, "another")), 0);
    EXPECT_EQ(key->IsEqual(nullptr), 0);
    EXPECT_EQ(Narrow(key->GetName()), "same");
    EXPECT_EQ(key->GetType(), tk_integer);
    EXPECT_EQ(key->GetListType(), 0);
}

TEST_F(AttrKeys, OfAddedAttribute_IsNotThatOfADeclaredOneOfItsNameAndType)
{
    const ORXISpecObject_var plain = Make("ContractPlain", "A");
    const ORXISpecObject_var leaf = Make("ContractLeaf", "B");
    Add(leaf, "ratio", tk_double);
    EXPECT_EQ(KeyOf(leaf, "ratio")->IsEqual(KeyOf(plain, "ratio")), 0);
    EXPECT_EQ(KeyOf(plain, "ratio")->IsEqual(KeyOf(leaf, "ratio")), 0);
    EXPECT_FALSE(AccessOf(leaf)->HasAttribute(KeyOf(plain, "ratio")));
    EXPECT_FALSE(AccessOf(plain)->HasAttribute(KeyOf(leaf, "ratio")));
}
} // namespace
