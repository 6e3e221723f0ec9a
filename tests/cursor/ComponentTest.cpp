/**
 * @file
 * A cursor on a component that gives attribute access and is no feature object.
 */

#include "AccessOnly.h"
#include "CursorTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class Components : public CursorTest
{
protected:
    void SetUp() override
    {
        CursorTest::SetUp();
        m_component = ORXBaseUnknown_var::Adopt(new AccessOnly);
    }

    ORXBaseUnknown_var m_component;
};

TEST_F(Components, WithAttributeAccess_CanBeStoodAt)
{
    const VYRCfdObjectAccess cursor(m_component);
    EXPECT_FALSE(cursor.IsNull());
    EXPECT_FALSE(cursor.HasError());
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(cursor.Self(), m_component));
    EXPECT_TRUE(cursor == VYRCfdObjectAccess(m_component));
    EXPECT_TRUE(cursor != Part());
}

TEST_F(Components, ThatAreNoFeatureObjects_HaveNoTypeNoNameAndNoIdentifier)
{
    const VYRCfdObjectAccess cursor(m_component);
    EXPECT_EQ(cursor.GetType(), ORXUnicodeString());
    EXPECT_EQ(cursor.GetName(), ORXUnicodeString());
    EXPECT_EQ(cursor.GetID(), ORXUnicodeString());
    EXPECT_FALSE(cursor.IsSubTypeOf(""));
    EXPECT_FALSE(cursor.IsSubTypeOf("CursorPart"));
}

// At the top of the model the answer is another one.
TEST_F(Components, ThatAreNoFeatureObjects_HaveNoParent)
{
    EXPECT_TRUE(IsError(VYRCfdObjectAccess(m_component).GetParent(), "Null object"));
}

TEST_F(Components, ThatAreNoFeatureObjects_AreNoChoice)
{
    EXPECT_TRUE(IsError(VYRCfdObjectAccess(m_component)["x"], "No attribute x"));
}

TEST_F(Components, AtAForeignAttribute_HaveItsNameAndCountAsNull)
{
    const VYRCfdObjectAccess cursor = VYRCfdObjectAccess(m_component).Get(KeyOf(m_part, "title").Pointer(), 0);
    EXPECT_TRUE(cursor.IsNull());
    EXPECT_FALSE(cursor.HasError());
    EXPECT_EQ(cursor.GetName(), ORXUnicodeString("title"));
    EXPECT_TRUE(!cursor.GetParm());
    EXPECT_FALSE(cursor.GetParent().HasError());
}

TEST_F(Components, ReadAsReals_AreNoColumn)
{
    double value = 4.5;
    EXPECT_EQ(VYRCfdObjectAccess(m_component).GetDouble(value), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spTableColumn", In("GetDouble"))}));
    EXPECT_FALSE(VYRCfdObjectAccess(m_component).IsDouble());
    EXPECT_EQ(Reported(), (Records{Assertion("spTableColumn", In("IsDouble"))}));
}

TEST_F(Components, AreHeldOnceByACursor)
{
    const unsigned int before = VYRStandalone::ReferenceCount(m_component);
    {
        const VYRCfdObjectAccess cursor(m_component);
        EXPECT_EQ(VYRStandalone::ReferenceCount(m_component), before + 1);
        cursor["x"];
        cursor.GetParent();
        EXPECT_EQ(VYRStandalone::ReferenceCount(m_component), before + 1);
    }
    EXPECT_EQ(VYRStandalone::ReferenceCount(m_component), before);
}
} // namespace
