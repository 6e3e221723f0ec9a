/**
 * @file
 * What an application looks at before its first item, and in which order.
 */

#include "ChannelSwap.h"
#include "VYRCfdTraceManager.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneServices.h"
#include "WalkTest.h"

namespace
{
class OpeningTest : public WalkTest
{
protected:
    void SetUp() override
    {
        WalkTest::SetUp();
        Install({Configuration("values", R"([ { "path": "monitors", "value": "lift", "list": true } ])"),
                 Configuration("empty", "[]")});
    }
};

TEST_F(OpeningTest, Apply_OnAKnownConfiguration_ReturnsOk)
{
    EXPECT_EQ(Apply(m_solver, "values"), S_OK);
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"lift"}));
}

TEST_F(OpeningTest, Apply_WithoutAnInstallation_ReportsTheLoad)
{
    VYRStandalone::SetOfficialVariable("ORXInstallPath", "/nowhere");
    EXPECT_EQ(Apply(m_solver, "values"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Missing config file test.json\n", "VYRCfdConfigurator::LoadConfigs"),
                                   FailedCall("LoadConfigs()", Walk)}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"mass"}));
}

TEST_F(OpeningTest, Apply_OnAnUnknownNameAndANullObject_ReportsTheName)
{
    EXPECT_EQ(Apply(NULL_var, "unknown"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)", Walk)}));
}

TEST_F(OpeningTest, Apply_OfNamesInAnotherCase_IsUnknown)
{
    EXPECT_EQ(Apply(m_solver, "Values"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)", Walk)}));
}

TEST_F(OpeningTest, Apply_OfAnEmptyConfigurationToNull_ReturnsFalseAndReportsNothing)
{
    EXPECT_EQ(Apply(NULL_var, "empty"), S_FALSE);
}

TEST_F(OpeningTest, Apply_OfAnEmptyConfiguration_LeavesTheRecordsAlone)
{
    AddRecord(m_model, m_solver, "iterations", "7");
    EXPECT_EQ(Apply(m_solver, "empty"), S_FALSE);
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"path=iterations default=7"}));
}

TEST_F(OpeningTest, Apply_ToNull_ReportsTheObject)
{
    EXPECT_EQ(Apply(NULL_var, "values"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("ispObject != NULL_var", Walk)}));
}

TEST_F(OpeningTest, Apply_ToWhatIsNoFeature_ReportsTheCast)
{
    EXPECT_EQ(Apply(m_model.Container(), "values"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spSpec", Walk)}));
}

TEST_F(OpeningTest, Apply_ToAFeatureWithoutDefaultManagement_ReportsIt)
{
    EXPECT_EQ(Apply(Create("FlowTestMaterial", "Air"), "values"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefMgmt != NULL_var", Walk)}));
}

TEST_F(OpeningTest, Apply_ToAnObjectOutsideEveryModel_ReportsTheContainer)
{
    m_model.Close();
    EXPECT_EQ(Apply(m_solver, "values"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spCont", Walk)}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"mass"}));
}

TEST_F(OpeningTest, Apply_ResetsTheErrorStatus)
{
    VYRStandalone::SetErrorStatus(3);
    EXPECT_EQ(Apply(NULL_var, "empty"), S_FALSE);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
}

TEST_F(OpeningTest, Apply_WithTheDecorationChannelActive_PrintsTheName)
{
    ChannelSwap decorate(VYRCfdTraceManager::_Decorate);
    EXPECT_EQ(Apply(m_solver, "values"), S_OK);
    EXPECT_EQ(decorate.Take(), (Lines{"Applying config: values\n"}));
    // Printed once the files are there, and before it is known whether the name is.
    EXPECT_EQ(Apply(NULL_var, "100%"), E_FAIL);
    EXPECT_EQ(decorate.Take(), (Lines{"Applying config: 100%\n"}));
    Reported();
}

TEST_F(OpeningTest, Apply_WhoseLoadFails_PrintsNothing)
{
    ChannelSwap decorate(VYRCfdTraceManager::_Decorate);
    VYRStandalone::SetOfficialVariable("ORXInstallPath", "/nowhere");
    EXPECT_EQ(Apply(m_solver, "values"), E_FAIL);
    EXPECT_EQ(decorate.Take(), Lines{});
    Reported();
}

TEST_F(OpeningTest, Apply_EntersAt15_AndLoadsOnce)
{
    ChannelSwap features(VYRCfdTraceManager::_Features);
    EXPECT_EQ(Apply(m_solver, "values"), S_OK);
    EXPECT_EQ(Entered(features.Take(), "VYRCfdConfigurator"),
              (Lines{"VYRCfdConfigurator::ApplyConfiguration [15]", "VYRCfdConfigurator::LoadConfigs [10]",
                     "VYRCfdConfigurator::GetConfigurationObject [20]"}));
    EXPECT_EQ(Apply(m_solver, "values"), S_OK);
    EXPECT_EQ(
        Entered(features.Take(), "VYRCfdConfigurator"),
        (Lines{"VYRCfdConfigurator::ApplyConfiguration [15]", "VYRCfdConfigurator::GetConfigurationObject [20]"}));
}

TEST_F(OpeningTest, Apply_OnAFailedOpening_CallsNothingThatChangesTheModel)
{
    VYRStandalone::CallRecorder calls;
    Apply(NULL_var, "values");
    Apply(m_solver, "unknown");
    Apply(m_solver, "empty");
    EXPECT_EQ(calls.Take(), Lines{});
    Reported();
}
} // namespace
