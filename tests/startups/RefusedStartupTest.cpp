/**
 * @file
 * Startups of which the host makes nothing. They are a line on the debug channel and no failure.
 */

#include "ChannelSwap.h"
#include "StartupTest.h"
#include "VYRFeaIndentedTraceManager.h"
#include "VYRFeaTraceManager.h"

namespace
{
class RefusedStartupTest : public StartupTest
{
protected:
    /// An indent of two steps, as the channel prints it.
    static std::string Indent() { return "    "; }
};

TEST_F(RefusedStartupTest, IsALineOnTheDebugChannelAfterAnIndentAndWithoutALineEnd)
{
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    UpdateTo("NoSuchType");
    EXPECT_EQ(debug.Take(), (Lines{Indent(), "BAD STARTUP: NoSuchType"}));
}

TEST_F(RefusedStartupTest, LineTakesTheStartupAsItStands)
{
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    UpdateTo("50%d off");
    EXPECT_EQ(debug.Take(), (Lines{Indent(), "BAD STARTUP: 50%d off"}));
}

TEST_F(RefusedStartupTest, OnASilentChannel_PrintsNothing)
{
    ORXTrace* const original = VYRFeaTraceManager::_Debug;
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    ORXTrace* const active = VYRFeaTraceManager::_Debug;
    for (ORXTrace* silent : {original, static_cast<ORXTrace*>(nullptr)})
    {
        ASSERT_TRUE(silent == nullptr || !silent->IsActive());
        VYRFeaTraceManager::_Debug = silent;
        EXPECT_EQ(UpdateTo("NoSuchType"), (Outcome{S_OK, true}));
        EXPECT_EQ(debug.Take(), Lines{});
    }
    VYRFeaTraceManager::_Debug = active;
}

TEST_F(RefusedStartupTest, RaisesNoErrorAndResetsTheStatus)
{
    GiveData("TypeAlpha");
    VYRStandalone::SetErrorStatus(3);
    EXPECT_EQ(UpdateTo("NoSuchType"), (Outcome{S_OK, true}));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    EXPECT_EQ(Reported(), Records{});
}

TEST_F(RefusedStartupTest, LeavesTheChoiceWithoutData_AlthoughTheFormerObjectStoodWell)
{
    const ORXISpecObject_var former = GiveData("TypeAlpha");
    UpdateTo("NoSuchType");
    EXPECT_EQ(DataTypeOf(m_choice), "");
    EXPECT_TRUE(!ORXISpecObject_var::Adopt(former->GetOwner()));
}

TEST_F(RefusedStartupTest, IsTriedAgainAtEachCall)
{
    ChoiceRecorder steps;
    for (int call = 0; call < 2; ++call)
    {
        EXPECT_EQ(UpdateTo("NoSuchType"), (Outcome{S_OK, true}));
        EXPECT_EQ(steps.TakeSteps(), (Lines{"name NoSuchType", "create NoSuchType NoSuchTypeInst"})) << call;
    }
}

TEST_F(RefusedStartupTest, ThatTheHostTakesLater_GetsItsObject)
{
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    MakeFail("CreateBasicComponent", "TypeAlpha", E_FAIL, 1, 1);
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(DataTypeOf(m_choice), "");
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_EQ(debug.Take(), (Lines{Indent(), "BAD STARTUP: TypeAlpha"}));
}

TEST_F(RefusedStartupTest, OfAChoiceOutsideOfEveryModel)
{
    // There is no container in which the object could be made.
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    m_model.Close();
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(DataTypeOf(m_choice), "");
    EXPECT_EQ(debug.Take(), (Lines{Indent(), "BAD STARTUP: TypeAlpha"}));
}

/// Whether an object stood there before.
class NothingMadeTest : public RefusedStartupTest, public testing::WithParamInterface<bool>
{
};

TEST_P(NothingMadeTest, CreationThatSucceedsWithoutAnObject_IsTheSameWithoutTheLine)
{
    if (GetParam())
        GiveData("TypeAlpha");
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    MakeFail("CreateBasicComponent", "TypeBeta", S_OK);
    ChoiceRecorder steps;
    EXPECT_EQ(UpdateTo("TypeBeta"), (Outcome{S_OK, true}));
    Lines expected{"name TypeBeta", "create TypeBeta TypeBetaInst"};
    if (GetParam())
        expected.push_back("take Choice.1.Data = Former");
    EXPECT_EQ(steps.TakeSteps(), expected);
    EXPECT_EQ(DataTypeOf(m_choice), "");
    EXPECT_EQ(debug.Take(), Lines{});
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

INSTANTIATE_TEST_SUITE_P(WithAFormerObject, NothingMadeTest, testing::Bool());
} // namespace
