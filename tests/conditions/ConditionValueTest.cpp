/**
 * @file
 * Conditions as values: how they are made, copied, assigned and compared.
 */

#include <type_traits>

#include "ConditionFixture.h"
#include "VYRStandaloneInstruments.h"

namespace
{
static_assert(std::has_virtual_destructor_v<VYRCfdObjectCondition>);

class ConditionValueTest : public ConditionFixture
{
protected:
    void SetUp() override
    {
        ConditionFixture::SetUp();
        m_other = Create("ConditionFixtureObject", "Other");
        Write("integer", "5");
    }

    ORXISpecObject_var m_other;
};

TEST_F(ConditionValueTest, DefaultMade_HasFailed)
{
    const VYRCfdObjectCondition condition;
    EXPECT_TRUE(condition.IsNull());
    EXPECT_TRUE(condition.HasError());
    EXPECT_EQ(condition.GetError(), ORXUnicodeString("Null initialization"));
    EXPECT_TRUE(condition.Self() == NULL_var);
    EXPECT_TRUE(condition.Access() == NULL_var);
    EXPECT_FALSE(condition);
}

TEST_F(ConditionValueTest, MadeOfATextAlone_HasFailedWithIt_AndDoesNotParse)
{
    const VYRCfdObjectCondition condition(ORXUnicodeString("integer==5"));
    EXPECT_TRUE(condition.IsNull());
    EXPECT_EQ(condition.GetError(), ORXUnicodeString("integer==5"));
    EXPECT_FALSE(condition);
}

TEST_F(ConditionValueTest, MadeOfAnEmptyErrorText_HasNoErrorAndStillDoesNotHold)
{
    const VYRCfdObjectCondition condition{ORXUnicodeString()};
    EXPECT_TRUE(condition.IsNull());
    EXPECT_FALSE(condition.HasError());
    EXPECT_FALSE(condition);
}

TEST_F(ConditionValueTest, MadeOnANullCursor_HasTheErrorOfItsText)
{
    const ORXISpecAttrKey_var foreignKey = ORXISpecAttrKey_var::Adopt(AccessOf(m_object)->GetAttrKey("integer"));
    const VYRCfdObjectAccess nulls[] = {
        VYRCfdObjectAccess(),
        VYRCfdObjectAccess("an error"),
        VYRCfdObjectAccess(ORXUnicodeString()),
        // An attribute that the object does not carry.
        Object()["component"].Get(foreignKey.Pointer(), 0),
    };
    for (const VYRCfdObjectAccess& null : nulls)
    {
        ASSERT_TRUE(null.IsNull());
        const VYRCfdObjectCondition withoutText(null, "");
        EXPECT_TRUE(withoutText.IsNull());
        EXPECT_EQ(withoutText.GetError(), ORXUnicodeString("Null initialization"));
        EXPECT_FALSE(withoutText);

        for (const char* text : {"integer==5", "no comparison"})
        {
            const VYRCfdObjectCondition condition(null, text);
            EXPECT_EQ(condition.GetError(), ORXUnicodeString("Bad condition: ") + text);
            EXPECT_FALSE(condition) << text;
        }
    }
}

TEST_F(ConditionValueTest, SelfAndAccess_AreTheObjectOfTheCursor)
{
    const unsigned int references = VYRStandalone::ReferenceCount(m_object);
    {
        const VYRCfdObjectCondition condition(Object().Get("integer", 0), "/==5");
        EXPECT_FALSE(condition.IsNull());
        EXPECT_TRUE(condition.Self() == m_object);
        EXPECT_TRUE(condition.Access() == m_object);
        EXPECT_TRUE(condition);
    }
    EXPECT_EQ(VYRStandalone::ReferenceCount(m_object), references);
}

TEST_F(ConditionValueTest, ACopy_CarriesCursorTextAndError_ButNothingThatWasParsed)
{
    const VYRCfdObjectCondition condition(Object(), "integer==5");
    ASSERT_TRUE(condition);
    const VYRCfdObjectCondition copy(condition);
    EXPECT_TRUE(copy.Self() == m_object);
    EXPECT_EQ(copy.GetError(), ORXUnicodeString());
    EXPECT_TRUE(copy == condition);
    EXPECT_FALSE(copy != condition) << "the texts are equal too";
    // Without a path it looks at the object itself.
    EXPECT_FALSE(copy);
    EXPECT_EQ(Reported().size(), 4U);

    const VYRCfdObjectCondition bad(Object(), "integer");
    EXPECT_EQ(VYRCfdObjectCondition(bad).GetError(), ORXUnicodeString("Bad condition: integer"));
}

TEST_F(ConditionValueTest, ACopyOfNoCondition_Holds)
{
    const VYRCfdObjectCondition condition(Object(), "");
    EXPECT_TRUE(VYRCfdObjectCondition(condition));
}

TEST_F(ConditionValueTest, Assignment_CarriesWhatWasParsed)
{
    Write("real", "2.5");
    Write("string", "x");
    for (const char* text : {"integer>=5", "real<2.75", "string==x"})
    {
        VYRCfdObjectCondition assigned;
        assigned = VYRCfdObjectCondition(Object(), text);
        EXPECT_FALSE(assigned.HasError()) << text;
        EXPECT_TRUE(assigned) << text;
        EXPECT_TRUE(assigned.Self() == m_object) << text;

        VYRCfdObjectCondition& self = assigned;
        assigned = self;
        EXPECT_TRUE(assigned) << text << ", assigned to itself";
    }
}

TEST_F(ConditionValueTest, Assignment_AlsoTakesAnErrorOverAndAway)
{
    VYRCfdObjectCondition condition(Object(), "integer==5");
    EXPECT_EQ(&(condition = VYRCfdObjectCondition("an error")), &condition);
    EXPECT_EQ(condition.GetError(), ORXUnicodeString("an error"));
    EXPECT_TRUE(condition.IsNull());
    EXPECT_FALSE(condition);
    condition = VYRCfdObjectCondition(Object(), "integer==5");
    EXPECT_FALSE(condition.HasError());
    EXPECT_TRUE(condition);
}

TEST_F(ConditionValueTest, EqualAndUnequal_AreNotEachOthersNegation)
{
    const VYRCfdObjectCondition base(Object(), "integer==5");
    const VYRCfdObjectCondition same(Object(), "integer==5");
    const VYRCfdObjectCondition otherText(Object(), "integer==6");
    const VYRCfdObjectCondition otherCursor(Cursor(m_other), "integer==5");
    const VYRCfdObjectCondition otherBoth(Cursor(m_other), "integer==6");
    const VYRCfdObjectCondition otherAttribute(Object().Get("integer", 0), "/==5");

    EXPECT_TRUE(base == same);
    EXPECT_FALSE(base != same);
    EXPECT_TRUE(base == otherText) << "the cursors are equal";
    EXPECT_TRUE(base != otherText) << "the texts differ";
    EXPECT_TRUE(base == otherCursor) << "the texts are equal";
    EXPECT_TRUE(base != otherCursor) << "the cursors differ";
    EXPECT_FALSE(base == otherBoth);
    EXPECT_TRUE(base != otherBoth);
    EXPECT_FALSE(base == otherAttribute);
    EXPECT_TRUE(base != otherAttribute);
}

TEST_F(ConditionValueTest, Equality_DoesNotLookAtErrors)
{
    EXPECT_TRUE(VYRCfdObjectCondition("an error") == VYRCfdObjectCondition("another"));
    EXPECT_FALSE(VYRCfdObjectCondition("an error") != VYRCfdObjectCondition("another"));
    EXPECT_TRUE(VYRCfdObjectCondition() == VYRCfdObjectCondition(VYRCfdObjectAccess("an error"), ""));
}
} // namespace
