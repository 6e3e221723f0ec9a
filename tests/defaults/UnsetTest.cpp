/**
 * @file
 * Putting an attribute back on its default.
 */

#include "FlowTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class UnsetTest : public FlowTest
{
};

TEST_F(UnsetTest, Unset_OfASetAttribute_GivesTheDefaultBackAndClearsTheFlag)
{
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(DefaultManagement()->Unset("iterations"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(UnsetTest, Unset_OfAFreshAttribute_WritesTheDefaultAndMakesTheFlag)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->Unset("iterations"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "write Solver.1.iterations = 500",
                                "advise Solver.1.iterations = 500",
                                "done Solver.1.iterations",
                                "add Solver.1/defaultManagement.iterations_isset",
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                            }));
}

TEST_F(UnsetTest, Unset_UsesRecordsAndCustomDefaults)
{
    AddRecord(m_model, m_solver, "iterations", "40");
    EXPECT_EQ(DefaultManagement()->Unset("iterations"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    ORXICkeInst_var value;
    ASSERT_EQ(DefaultManagement()->GetDefault("relaxation", value), S_OK);
    Write(m_solver, "relaxation", "0.1");
    ASSERT_EQ(DefaultManagement()->SetCustomDefault("relaxation", value), S_OK);
    EXPECT_EQ(DefaultManagement()->Unset("relaxation"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.7");
}

TEST_F(UnsetTest, Unset_LeavesTheAutoFlagAlone)
{
    DefaultManagement()->SetIsAuto("iterations", ORXTrue);
    DefaultManagement()->Unset("iterations");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(UnsetTest, Unset_OfANameThatIsNoAttribute_StillClearsTheFlag)
{
    EXPECT_EQ(DefaultManagement()->Unset("missing"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("key", "VYRCfdDefaultManagementAdp::GetDefault")}));
    EXPECT_EQ(SetFlagOf(m_solver, "missing"), "false") << "made, if need be";

    DefaultManagement()->SetIsSet("missing", ORXTrue);
    EXPECT_EQ(DefaultManagement()->Unset("missing"), S_OK);
    Reported();
    EXPECT_EQ(SetFlagOf(m_solver, "missing"), "false");
}

TEST_F(UnsetTest, Unset_OfAList_ClearsTheFlagAndLeavesTheEntries)
{
    DefaultManagement()->SetIsSet("monitors", ORXTrue);
    EXPECT_EQ(DefaultManagement()->Unset("monitors"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("defaultParm", "VYRCfdDefaultManagementAdp::GetDefault")}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"mass"}));
    EXPECT_EQ(SetFlagOf(m_solver, "monitors"), "false");
}

TEST_F(UnsetTest, Unset_WithoutADefault_LeavesTheValueAndClearsTheFlag)
{
    Write(m_solver, "iterations", "40");
    Plant("GetStartup", "", "Solver.1");
    EXPECT_EQ(DefaultManagement()->Unset("iterations"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("parentSU", "VYRCfdDefaultManagementAdp::GetDefault")}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(UnsetTest, Unset_OfAnEmptiedAttribute_RestoresIt)
{
    // Emptied while the default had no value, so that nothing came back at once.
    ORXUnicodeString text("abc");
    DefaultManagement()->SetCustomDefault("iterations", text);
    ASSERT_EQ(ValueOf(m_solver, "iterations"), "(none)");
    DefaultManagement()->RemoveCustomDefault("iterations");
    EXPECT_EQ(DefaultManagement()->Unset("iterations"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
}

TEST_F(UnsetTest, Unset_WithoutACurrentValueObject_IsReportedBeforeAnythingIsWritten)
{
    Write(m_solver, "iterations", "40");
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant("GetValue", "iterations", "Solver.1");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(management->Unset("iterations"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spVal", "VYRCfdDefaultManagementAdp::Unset")}));
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
    // The guard was not up yet: writes still mark.
    DefaultManagement()->SetIsSet("iterations", ORXFalse);
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(UnsetTest, Unset_DoesNotLookAtTheStatusOfTheFlag)
{
    Write(m_solver, "iterations", "40");
    Plant("SetBoolean", "iterations_isset");
    EXPECT_EQ(DefaultManagement()->Unset("iterations"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
}
} // namespace
