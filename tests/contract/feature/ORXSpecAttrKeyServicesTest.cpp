/**
 * @file
 * Records of generated attribute keys.
 */

#include "ORXSpecAttrKeyServices.h"
#include "ContractTest.h"

namespace
{
using KeyServices = ContractTest;

TEST_F(KeyServices, Get_FindsTheDeclaredKeyThroughAnyObjectOfTheType)
{
    ORXSpecAttrKeyServices record{"Contract", "ContractPlain", "ratio", nullptr};
    const ORXISpecObject_var other = Make("ContractOther", "O");
    EXPECT_EQ(record.Get(AccessOf(other)), nullptr);
    EXPECT_EQ(record.Get(nullptr), nullptr);
    EXPECT_EQ(record.key, nullptr);
    const ORXISpecObject_var derived = Make("ContractDerived", "D");
    EXPECT_EQ(record.Get(AccessOf(derived)), KeyOf(derived, "ratio").Pointer());
    EXPECT_EQ(record.key, KeyOf(derived, "ratio").Pointer());
    // A key that is kept is not given for an object of a foreign type.
    EXPECT_EQ(record.Get(AccessOf(other)), nullptr);
    EXPECT_EQ(record.Get(nullptr), nullptr);
}

TEST_F(KeyServices, Get_KnowsOnlyWhatTheTypeDeclares)
{
    const ORXISpecObject_var derived = Make("ContractDerived", "D");
    Add(derived, "added", tk_boolean);
    ORXSpecAttrKeyServices ofDerived{"Contract", "ContractPlain", "extra", nullptr};
    ORXSpecAttrKeyServices ofObject{"Contract", "ContractDerived", "added", nullptr};
    ORXSpecAttrKeyServices ofNoType{"Contract", "NoType", "ratio", nullptr};
    EXPECT_EQ(ofDerived.Get(AccessOf(derived)), nullptr);
    EXPECT_EQ(ofObject.Get(AccessOf(derived)), nullptr);
    EXPECT_EQ(ofNoType.Get(AccessOf(derived)), nullptr);
}

TEST_F(KeyServices, Get_WithAKeptKey_StillAsksForTheTypeOfTheRecord)
{
    ORXSpecAttrKeyServices record{"Contract", "ContractDerived", "ratio", nullptr};
    const ORXISpecObject_var derived = Make("ContractDerived", "D");
    const ORXISpecObject_var base = Make("ContractPlain", "B");
    EXPECT_EQ(record.Get(AccessOf(derived)), KeyOf(derived, "ratio").Pointer());
    // The base type has the very key, but is no type of the record.
    EXPECT_EQ(record.Get(AccessOf(base)), nullptr);
}

TEST_F(KeyServices, Get_FindsInheritedAttributesOfTheRecordsType)
{
    ORXSpecAttrKeyServices record{"Contract", "ContractDerived", "ratio", nullptr};
    const ORXISpecObject_var derived = Make("ContractDerived", "D");
    ORXISpecAttrKey* const key = record.Get(AccessOf(derived));
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->IsEqual(KeyOf(derived, "ratio")), 1);
    EXPECT_EQ(record.Get(AccessOf(derived)), key) << "the second time the kept one";
}

TEST_F(KeyServices, Get_GivesABorrowedKeyThatOutlivesTheModel)
{
    ORXSpecAttrKeyServices record{"Contract", "ContractPlain", "count", nullptr};
    {
        const HostUnderTest::Model model;
        const ORXISpecAttrAccess_var access = MakeIn(model, "ContractPlain", "A");
        for (int i = 0; i < 1000; ++i)
            ASSERT_NE(record.Get(access), nullptr);
    }
    const ORXISpecObject_var object = Make("ContractPlain", "B");
    EXPECT_EQ(record.key->GetType(), tk_integer);
    EXPECT_EQ(AccessOf(object)->GetInteger(record.Get(AccessOf(object))), 3);
}

TEST_F(KeyServices, Get_OfAnOptionalAttribute_FindsItsKeyBeforeItIsAdded)
{
    ORXSpecAttrKeyServices record{"Contract", "ContractOptional", "oreal", nullptr};
    const ORXISpecAttrAccess_var access = Make("ContractOptional", "O");
    ORXISpecAttrKey* const key = record.Get(access);
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(access->HasAttribute(key), ORXFalse);
}
} // namespace
