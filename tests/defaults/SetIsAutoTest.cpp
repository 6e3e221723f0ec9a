/**
 * @file
 * Switching the auto flag.
 */

#include "FlowTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class SetIsAutoTest : public FlowTest
{
};

TEST_F(SetIsAutoTest, FirstCall_MakesTheFlagAndLeavesTheAttribute_SecondResetsIt)
{
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");

    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(SetIsAutoTest, False_OnAnExistingFlag_LeavesTheAttribute)
{
    DefaultManagement()->SetIsAuto("iterations", ORXTrue);
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXFalse), S_OK);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "false");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
}

TEST_F(SetIsAutoTest, UsersWrite_LeavesTheAutoFlag)
{
    DefaultManagement()->SetIsAuto("iterations", ORXTrue);
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(SetIsAutoTest, NameThatIsNoAttribute_KeepsItsSetFlag_SinceTheGuardIsStillUp)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    management->SetIsAuto("missing", ORXFalse);
    management->SetIsSet("missing", ORXTrue);
    EXPECT_EQ(management->SetIsAuto("missing", ORXTrue), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("key", "VYRCfdDefaultManagementAdp::GetDefault")}));
    EXPECT_EQ(AutoFlagOf(m_solver, "missing"), "true");
    EXPECT_EQ(SetFlagOf(m_solver, "missing"), "true");
    // The guard comes down at the end.
    management->SetIsSet("missing", ORXFalse);
    EXPECT_EQ(SetFlagOf(m_solver, "missing"), "false");
}

TEST_F(SetIsAutoTest, FailedUnset_IsNotLookedAt)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    management->SetIsAuto("iterations", ORXFalse);
    Plant("GetValue", "iterations", "Solver.1");
    EXPECT_EQ(management->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("spVal", "VYRCfdDefaultManagementAdp::Unset")}));
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
    management->SetIsSet("iterations", ORXTrue);
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true") << "the guard is down";
}

TEST_F(SetIsAutoTest, Flag_OtherThanOne_IsTrue)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Write(m_solver, "iterations", "40");
    management->SetIsAuto("iterations", ORXFalse);
    EXPECT_EQ(management->SetIsAuto("iterations", 2), S_OK);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
}
} // namespace
