/**
 * @file
 * What an update reports, and what it does not look at.
 */

#include <ostream>

#include "ChoiceTest.h"

namespace
{
class ChoiceUpdateChecksTest : public ChoiceTest
{
protected:
    /// A value that waits inside a bracket, which a run that completes would show.
    ORXISpecObject_var MakeChanged(const ChoiceDeclaration& iDeclaration, const char* iValue)
    {
        const ORXISpecObject_var choice = Make(iDeclaration);
        EXPECT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
        EXPECT_EQ(ChoiceOf(choice)->SetChoice(iValue), S_OK);
        return choice;
    }
};

/// Fails one call only.
void PlantCall(const char* iOperation, const char* iSubject, int iCall)
{
    VYRStandalone::Fault fault;
    fault.operation = iOperation;
    fault.subject = iSubject;
    fault.object = "Choice.1";
    fault.call = iCall;
    VYRStandalone::PlantFault(fault);
}

// ---- brackets -------------------------------------------------------------------------------------------------------

TEST_F(ChoiceUpdateChecksTest, InsideABracket_CallsNoHostOperation)
{
    const ORXISpecObject_var choice = MakeChanged(ThreeChoices(), "beta");
    TestChoice& instance = TestChoice::Of(choice);
    {
        ChoiceRecorder recorder;
        MakeFail("", "");
        VYRStandalone::SetErrorStatus(3);
        EXPECT_EQ(instance.Update(""), S_FALSE);
        EXPECT_EQ(instance.Update("gamma"), S_FALSE);
        EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
        EXPECT_EQ(recorder.Take(), Lines{});
        EXPECT_EQ(VYRStandalone::ErrorStatus(), 0) << "that alone is done";
    }
    VYRStandalone::ClearFaults();
    EXPECT_EQ(AllowedOf(choice), (Lines{"(no manipulator)"}));
    EXPECT_FALSE(HasCustomDefault(choice));
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.CompleteConfiguration(), S_OK);
    EXPECT_EQ(recorder.TakeSteps().back(), "dispatch Choice.1") << "the change of the value was kept";
}

TEST_F(ChoiceUpdateChecksTest, ChoiceInterface_InsideABracket_AnswersThatNothingWasDone)
{
    const ORXISpecObject_var choice = MakeChanged(ThreeChoices(), "beta");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_FALSE);
    EXPECT_EQ(DataTypeOf(choice), "");
}

// ---- the lists ------------------------------------------------------------------------------------------------------

struct Lists
{
    const char* name;
    Lines choices;
    Lines startups;
    const char* text;
};

void PrintTo(const Lists& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

const Lists badLists[] = {
    {"NoChoices", {}, {}, "choices.size() > 0"},
    {"NoChoicesWithStartups", {}, {"TypeAlpha"}, "choices.size() == startups.size()"},
    {"FewerStartups", {"alpha", "beta"}, {"TypeAlpha"}, "choices.size() == startups.size()"},
    {"MoreStartups", {"alpha"}, {"TypeAlpha", "TypeBeta"}, "choices.size() == startups.size()"},
};

class ChoiceBadListsTest : public ChoiceTest, public testing::WithParamInterface<Lists>
{
};

TEST_P(ChoiceBadListsTest, Update_ReportsTheListsAndChangesNothing)
{
    const ORXISpecObject_var choice = Make({GetParam().choices, GetParam().startups, "alpha", "", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), E_FAIL);
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), E_FAIL);
    const Record report = Assertion(GetParam().text, Update);
    EXPECT_EQ(Reported(), (Records{report, report}));
    EXPECT_EQ(recorder.Take(), Lines{});
    EXPECT_EQ(AllowedOf(choice), (Lines{"(no manipulator)"}));
    EXPECT_FALSE(HasCustomDefault(choice));
}

TEST_P(ChoiceBadListsTest, ChangeOfTheValue_WaitsForAnUpdateThatCompletes)
{
    const ORXISpecObject_var choice = Make({GetParam().choices, GetParam().startups, "alpha", "", ""});
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion(GetParam().text, Update)}));
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    WriteTexts(choice, "choices", {"alpha"});
    WriteTexts(choice, "Startups", {});
    ChoiceRecorder recorder;
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data", "allow Choice.1.value = [alpha]", "complete true false", "dispatch Choice.1"}));
}

INSTANTIATE_TEST_SUITE_P(Lists, ChoiceBadListsTest, testing::ValuesIn(badLists),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

// ---- reads that fail ------------------------------------------------------------------------------------------------

TEST_F(ChoiceUpdateChecksTest, ValueThatCannotBeRead_IsReported)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("GetParm", "value", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update("beta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, value)].GetString(value)", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceUpdateChecksTest, WithoutAttributeAccess_TheValueIsWhatIsReported)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("QueryInterface", "ORXISpecAttrAccess", 1);
    EXPECT_EQ(instance.Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, value)].GetString(value)", Update)}));
}

TEST_F(ChoiceUpdateChecksTest, WithoutDefaultManagement_ReportsIt)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("QueryInterface", "VYRIMpaDefaultManagementProtected", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefMgmt", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
    EXPECT_EQ(AllowedOf(choice), (Lines{"(no manipulator)"}));
}

TEST_F(ChoiceUpdateChecksTest, DefaultThatCannotBeFound_IsReported)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("GetStartup", "", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("parentSU", "VYRCfdDefaultManagementAdp::GetDefault"),
                                   FailedCall("spDefMgmt->GetDefault(\"value\", spDefVal)", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
    EXPECT_EQ(AllowedOf(choice), (Lines{"(no manipulator)"}));
}

TEST_F(ChoiceUpdateChecksTest, DefaultOfNoValue_IsReported)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    ORXICkeInst_var none;
    ASSERT_EQ(DefaultManagementOf(choice)->SetCustomDefault("value", none), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefVal", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceUpdateChecksTest, GivenDefault_StandsForThatOfDefaultManagement)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    ORXICkeInst_var none;
    ASSERT_EQ(DefaultManagementOf(choice)->SetCustomDefault("value", none), S_OK);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefVal", Update)}));
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK) << "nobody asks for the null one";
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
}

TEST_F(ChoiceUpdateChecksTest, WithoutParameter_ReportsIt)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    // The first is the read of the value.
    PlantCall("GetParm", "value", 2);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceUpdateChecksTest, WithoutManipulator_ReportsIt)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("CreateManipulator", "value", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("manip", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceUpdateChecksTest, ManipulatorThatCannotBeFound_IsMadeAnewAndFilled)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("GetManipulator", "value", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update(""), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data TypeAlpha", "allow Choice.1.value = [alpha, beta, gamma]", "complete false false"}));
    EXPECT_EQ(AllowedOf(choice), (Lines{"alpha", "beta", "gamma"}));
}

// ---- hooks ----------------------------------------------------------------------------------------------------------

TEST_F(ChoiceUpdateChecksTest, FailingData_IsReportedWithItsStatus)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    constexpr HRESULT refused = static_cast<HRESULT>(0x80040123U);
    TestChoice::Hooks().data = [](TestChoice&, const ORXUnicodeString&, bool& oDataChange) {
        oDataChange = true;
        return refused;
    };
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), refused);
    EXPECT_EQ(Reported(), (Records{FailedCall("UpdateDataForStartup(startup, dataChange)", Update, refused)}));
    EXPECT_EQ(recorder.Take(), (Lines{"data TypeAlpha"}));
    EXPECT_EQ(AllowedOf(choice), Lines{}) << "a manipulator stands, and is not filled";
}

TEST_F(ChoiceUpdateChecksTest, FailingCompletion_IsReportedWithItsStatus)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    constexpr HRESULT refused = static_cast<HRESULT>(0x80040123U);
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return refused; };
    const NotificationCounter notifications(choice);
    EXPECT_EQ(ChoiceOf(choice)->Update(), refused);
    EXPECT_EQ(Reported(), (Records{FailedCall("CompleteUpdate(wasValueChange, dataChange)", Update, refused)}));
    EXPECT_EQ(notifications.Count(), 0);
    EXPECT_EQ(AllowedOf(choice), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(ChoiceUpdateChecksTest, HooksThatAnswerThatNothingWasDone_AreNoFailures)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice::Hooks().data = [](TestChoice&, const ORXUnicodeString&, bool& oDataChange) {
        oDataChange = true;
        return S_FALSE;
    };
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return S_FALSE; };
    const NotificationCounter notifications(choice);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(notifications.Count(), 1);
}

// ---- the second look at default management --------------------------------------------------------------------------

TEST_F(ChoiceUpdateChecksTest, DefaultManagementThatIsGoneAtTheRepair_IsReportedOnceMore)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {}, "omega", "", ""});
    KeepDefault(choice, "beta");
    TestChoice& instance = TestChoice::Of(choice);
    PlantCall("QueryInterface", "VYRIMpaDefaultManagementProtected", 2);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefMgmt", Update)}));
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"allow Choice.1.value = [alpha, beta]"}))
        << "neither repaired nor completed";
}

TEST_F(ChoiceUpdateChecksTest, DefaultManagementThatIsGoneAtTheRepair_LeavesTheNewDefault)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "beta", "", ""});
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    // The outer run's first look, both looks of the run that the new default sets off, the outer run's second look.
    PlantCall("QueryInterface", "VYRIMpaDefaultManagementProtected", 4);
    EXPECT_EQ(TestChoice::Of(choice).Update("alpha"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefMgmt", Update)}));
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
}

// ---- what is not looked at ------------------------------------------------------------------------------------------

TEST_F(ChoiceUpdateChecksTest, FailingWriteOfTheAllowedValues_StopsNothing)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    MakeFail("SetAllowedValues", "value");
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(recorder.TakeSteps().back(), "dispatch Choice.1");
    EXPECT_EQ(AllowedOf(choice), Lines{});
}

TEST_F(ChoiceUpdateChecksTest, AllowedValuesThatCannotBeRead_AreWritten)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    PlantCall("GetAllowedValues", "value", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data TypeAlpha", "allow Choice.1.value = [alpha, beta, gamma]", "complete false false"}));
}

TEST_F(ChoiceUpdateChecksTest, DefaultThatCannotBeKept_StopsNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    MakeFail("GetVolatileFactory", "", E_FAIL, 1, 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("spParmFactory", "VYRCfdDefaultManagementAdp::SetCustomDefault"),
                                   FailedCall("VYRCfdDefaultManagementAdp::SetCustomDefault(iAttrName, iValue)",
                                              "VYRECfdChoiceDefaultManagement::SetCustomDefault")}));
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data TypeAlpha", "complete false false"}));
    EXPECT_FALSE(HasCustomDefault(choice));
}

TEST_F(ChoiceUpdateChecksTest, FlagThatCannotBeRead_LeavesTheInvalidValue)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {}, "omega", "", ""});
    KeepDefault(choice, "beta");
    Plant("AddAttribute", "value_isset");
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("pAttr", "VYRCfdDefaultManagementAdp::IsSet")}));
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"allow Choice.1.value = [alpha, beta]", "fix", "complete false false"}));
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
}

TEST_F(ChoiceUpdateChecksTest, DefaultThatCannotBeWrittenBack_StopsNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    Plant("ValuateFromValue", "value");
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"fix", "complete true false", "dispatch Choice.1"}));
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

TEST_F(ChoiceUpdateChecksTest, RecordsThatCannotBeRead_StopNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    PlantCall("GetSpecObject", "defaultManagement", 1);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::List")}));
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data TypeAlpha", "complete false false"}));
}
} // namespace
