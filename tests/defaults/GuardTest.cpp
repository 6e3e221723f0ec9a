/**
 * @file
 * The guard that stays up after a failed write of an auto flag, and what takes it back. Nothing restores it on the way
 * out of the failed call.
 */

#include "ChannelSwap.h"
#include "FlowTest.h"
#include "VYRCfdTraceManager.h"
#include "VYRStandaloneInstruments.h"

namespace
{
/// Starts with the guard up: the write of the auto flag of "relaxation" has failed.
class GuardTest : public FlowTest
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        ASSERT_EQ(DefaultManagement()->SetIsAuto("relaxation", ORXFalse), S_OK);
        ASSERT_EQ(DefaultManagement()->SetIsSet("iterations", ORXFalse), S_OK);
        Plant("SetBoolean", "relaxation_isauto", "Solver.1/defaultManagement", E_NOTIMPL);
        ASSERT_EQ(DefaultManagement()->SetIsAuto("relaxation", ORXTrue), E_NOTIMPL);
        ASSERT_EQ(Reported(), (Records{FailedCall("spAttr->SetBoolean(spKey, iIsAuto)",
                                                  "VYRCfdDefaultManagementAdp::SetIsAuto", E_NOTIMPL)}));
        VYRStandalone::ClearFaults();
    }

    /// Whether a user's write still marks an attribute as set.
    bool IsMarking()
    {
        DefaultManagement()->SetIsSet("iterations", ORXTrue);
        return SetFlagOf(m_solver, "iterations") == "true";
    }
};

TEST_F(GuardTest, FailedWrite_LeavesFlagAndValue)
{
    EXPECT_EQ(AutoFlagOf(m_solver, "relaxation"), "false");
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.7");
}

TEST_F(GuardTest, SetIsSetAndSetIsAuto_SucceedAndDoNothing)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->SetIsSet("iterations", ORXTrue), S_OK);
    EXPECT_EQ(DefaultManagement()->SetIsSet("title", ORXTrue), S_OK);
    EXPECT_EQ(DefaultManagement()->SetIsAuto("relaxation", ORXTrue), S_OK);
    EXPECT_EQ(DefaultManagement()->SetIsAuto("title", ORXTrue), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(GuardTest, SetIsSetAndSetIsAuto_LookAtTheGuardBeforeTheName)
{
    EXPECT_EQ(DefaultManagement()->SetIsSet("", ORXTrue), S_OK);
    EXPECT_EQ(DefaultManagement()->SetIsAuto("", ORXTrue), S_OK);
}

TEST_F(GuardTest, SetIsSetAndSetIsAuto_EnterNoScopeAndKeepTheErrorStatus)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    ChannelSwap features(VYRCfdTraceManager::_Features);
    VYRStandalone::SetErrorStatus(3);
    management->SetIsSet("iterations", ORXTrue);
    management->SetIsAuto("iterations", ORXTrue);
    EXPECT_EQ(features.Take(), Lines{});
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 3);
}

TEST_F(GuardTest, UsersWrite_MarksNothing)
{
    VYRStandalone::CallRecorder calls;
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(calls.Take(), (Lines{
                                "write Solver.1.iterations = 40",
                                "advise Solver.1.iterations = 40",
                                "done Solver.1.iterations",
                            }));
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(GuardTest, WriteOfAnAutoFlagOnTheSubFeature_LeavesTheAttribute)
{
    Write(m_solver, "relaxation", "0.25");
    Write(SubFeature(), "relaxation_isauto", "true");
    EXPECT_EQ(AutoFlagOf(m_solver, "relaxation"), "true");
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.25");
}

TEST_F(GuardTest, EverythingThatFindsNoParameter_LeavesItUp)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    unsigned char flag = 7;
    ORXICkeInst_var value;
    ORXUnicodeString text("7");
    management->IsSet("iterations", flag);
    management->HasAuto("iterations", flag);
    management->GetIsAuto("iterations", flag);
    management->GetDefault("iterations", value);
    management->SetCustomDefault("iterations", value);
    management->HasCustomDefault("iterations", flag);
    management->RemoveCustomDefault("iterations");
    management->RemoveAllCustomDefaults();
    management->SetIsAuto("iterations", ORXTrue);
    management->SetIsSet("iterations", ORXTrue);
    management->Unset("");
    EXPECT_FALSE(IsMarking());

    management->Unset("missing");
    management->Unset("monitors");
    management->SetCustomDefault("missing", text);
    Reported();
    EXPECT_FALSE(IsMarking());
}

TEST_F(GuardTest, Unset_ThatFindsNoParameter_LeavesTheFlagToo)
{
    EXPECT_EQ(DefaultManagement()->Unset("missing"), S_OK);
    Reported();
    EXPECT_EQ(SetFlagOf(m_solver, "missing"), "absent");
}

TEST_F(GuardTest, Unset_ThatFindsAParameter_TakesItBack)
{
    EXPECT_EQ(DefaultManagement()->Unset("title"), S_OK);
    EXPECT_EQ(SetFlagOf(m_solver, "title"), "false") << "the flag is cleared with the guard down";
    EXPECT_TRUE(IsMarking());
}

TEST_F(GuardTest, CustomDefaultOfAnAttributeThatIsNotSet_TakesItBackByItsUnset)
{
    ORXUnicodeString text("jet");
    EXPECT_EQ(DefaultManagement()->SetCustomDefault("title", text), S_OK);
    EXPECT_TRUE(IsMarking());
}

TEST_F(GuardTest, WriteThatTakesAValueAway_TakesItBackByItsUnset)
{
    TakeAway(m_solver, "title");
    EXPECT_EQ(ValueOf(m_solver, "title"), "flow");
    EXPECT_TRUE(IsMarking());
}

TEST_F(GuardTest, NewExtension_StartsWithoutIt)
{
    m_model.DropExtensions();
    EXPECT_TRUE(IsMarking());
}

TEST_F(GuardTest, OtherObjects_HaveTheirOwn)
{
    const ORXISpecObject_var zone = At(m_solver, "zone");
    Write(zone, "layers", "4");
    EXPECT_EQ(SetFlagOf(zone, "layers"), "true");
}
} // namespace
