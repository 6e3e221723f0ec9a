/**
 * @file
 * Default management whose sub-feature is of a type that has no records. Nothing in this program asks for the key of
 * the records on any other object.
 */

#include "FlowTest.h"
#include "StandingAdapter.h"

namespace
{
class ForeignKeyTest : public FlowTest
{
};

TEST_F(ForeignKeyTest, isConfigured_OnASubFeatureOfAForeignType_ReportsTheList)
{
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(m_solver, Cursor(m_solver)));
    ORXICkeInst_var value;
    EXPECT_EQ(adapter->isConfigured("iterations", value), ORXFalse);
    EXPECT_EQ(TextOf(value), "(null)");
    EXPECT_EQ(Reported(),
              (Records{Error("Null key", "VYRCfdObjectAccess::List"),
                       FailedCall("dmAccess[VYRCFDBASE(DefaultManagement, configuration)].List(configItemsList)",
                                  "VYRCfdDefaultManagementAdp::isConfigured")}));
}

TEST_F(ForeignKeyTest, GetDefault_GoesOnToTheStartUp)
{
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(m_solver, Cursor(m_solver)));
    ORXICkeInst_var value;
    EXPECT_EQ(adapter->GetDefault("iterations", value), S_OK);
    EXPECT_EQ(TextOf(value), "500");
    EXPECT_EQ(Reported().size(), 2U);
}
} // namespace
