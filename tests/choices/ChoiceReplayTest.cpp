/**
 * @file
 * The configurations that a Choice has recorded for its data object, and applies again.
 */

#include <ostream>

#include "ActingListener.h"
#include "ReplayFixture.h"
#include "VYRCfdConfigurator.h"

namespace
{
constexpr const char* ReadRecord = "VYRCfdObjectAccess::GetPlainString";

class ChoiceReplayTest : public ReplayFixture
{
protected:
    void SetUp() override
    {
        ReplayFixture::SetUp();
        Declare(R"({ "catalog": "ChoiceReplayTest", "types": [
            { "name": "ReplayNumberedRecord", "attributes": [ { "name": "path", "kind": "integer", "default": 1 } ] },
            { "name": "ReplayPathRecord", "attributes": [ { "name": "path", "kind": "string", "default": "Data" } ] },
            { "name": "ReplayBareRecord" } ] })");
    }

    /// Puts an object behind the records of a Choice.
    static void AddEntry(const ORXISpecObject_var& iChoice, const ORXISpecObject_var& iEntry)
    {
        const ORXISpecAttrAccess_var access = At(iChoice, "defaultManagement");
        const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("configuration"));
        ASSERT_EQ(access->InsertAtPosition(key, iEntry, access->GetListSize(key) + 1), S_OK);
    }
};

/// The custom default of count in a data object as it shows in its value.
std::string CountOf(const ORXISpecObject_var& iChoice)
{
    return ValueOf(DataOf(iChoice), "count");
}

// ---- which records --------------------------------------------------------------------------------------------------

struct PathCase
{
    const char* name;
    /// Null leaves the record without a path.
    const char* path;
    bool isApplied;
};

void PrintTo(const PathCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

const PathCase pathCases[] = {
    {"Data", "Data", true},
    {"LowerCase", "data", false},
    {"UpperCase", "DATA", false},
    {"Longer", "DataX", false},
    {"Shorter", "Dat", false},
    {"TrailingSlash", "Data/", false},
    {"LeadingSlash", "/Data", false},
    {"LeadingBlank", " Data", false},
    {"TrailingBlank", "Data ", false},
    {"Below", "Data/count", false},
    {"Value", "alpha", false},
    {"Empty", "", false},
    {"None", nullptr, false},
    {"OtherAttribute", "defaultManagement", false},
};

class ChoiceReplayPathTest : public ReplayFixture, public testing::WithParamInterface<PathCase>
{
};

TEST_P(ChoiceReplayPathTest, Record_IsAppliedForTheDataAlone)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    AddConfigRecord(choice, GetParam().path, nullptr, "makeForty");
    const Lines applied = Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); });
    EXPECT_EQ(applied, GetParam().isApplied ? (Lines{"makeForty"}) : Lines{});
    EXPECT_EQ(CountOf(choice), GetParam().isApplied ? "40" : "2");
}

INSTANTIATE_TEST_SUITE_P(Paths, ChoiceReplayPathTest, testing::ValuesIn(pathCases),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

struct ConditionCase
{
    const char* name;
    const char* condition;
    bool isApplied;
};

void PrintTo(const ConditionCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

// The Choice's value is "alpha", its display text "Shown".
const ConditionCase conditionCases[] = {
    {"None", nullptr, true},
    {"Empty", "", true},
    {"Value", "value==alpha", true},
    {"OtherValue", "value==beta", false},
    {"NotOtherValue", "value!=beta", true},
    {"OtherAttribute", "display==Shown", true},
    {"BelowTheData", "Data/label==a", true},
    {"BelowTheDataElsewise", "Data/label==b", false},
    {"ByTheValue", "alpha/count==2", true},
    {"UnknownAttribute", "unknown==1", false},
    {"NoComparison", "value", false},
    {"NothingToCompareWith", "value==", false},
};

class ChoiceReplayConditionTest : public ReplayFixture, public testing::WithParamInterface<ConditionCase>
{
};

TEST_P(ChoiceReplayConditionTest, Record_IsAppliedWhenItsConditionHoldsOnTheChoice)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "Shown", ""});
    AddConfigRecord(choice, "Data", GetParam().condition, "makeForty");
    const Lines applied = Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); });
    EXPECT_EQ(applied, GetParam().isApplied ? (Lines{"makeForty"}) : Lines{});
    EXPECT_EQ(CountOf(choice), GetParam().isApplied ? "40" : "2");
}

INSTANTIATE_TEST_SUITE_P(Conditions, ChoiceReplayConditionTest, testing::ValuesIn(conditionCases),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

// ---- when -----------------------------------------------------------------------------------------------------------

TEST_F(ChoiceReplayTest, Record_IsAppliedInEveryRun)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{"makeForty"}))
            << "also where the data has not changed";
}

TEST_F(ChoiceReplayTest, Record_IsAppliedInInnerRunsAndInTheOuter)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "", ""});
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK); }),
              (Lines{"makeForty", "makeForty", "makeForty"}));
    EXPECT_EQ(CountOf(choice), "40");
}

TEST_F(ChoiceReplayTest, Record_ReachesTheNewObjectOfANewValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(CountOf(choice), "2");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(CountOf(choice), "40");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(CountOf(choice), "40");
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}

TEST_F(ChoiceReplayTest, Record_LeavesWhatIsSetOnTheData)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    Write(DataOf(choice), "count", "7");
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(CountOf(choice), "7");
    EXPECT_EQ(DefaultOf(DataOf(choice), "count"), "40");
}

TEST_F(ChoiceReplayTest, ConditionThatComesToHold_IsFollowed)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", "value==beta", "makeForty");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(CountOf(choice), "2");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(CountOf(choice), "40");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(CountOf(choice), "2");
}

TEST_F(ChoiceReplayTest, Records_AreAppliedInTheirOrderAndTheLastStands)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    AddConfigRecord(choice, "display", nullptr, "makeLabel");
    AddConfigRecord(choice, "Data", "value==alpha", "makeFifty");
    AddConfigRecord(choice, "Data", "value==beta", "makeForty");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{"makeForty", "makeFifty"}));
    EXPECT_EQ(CountOf(choice), "50");
    EXPECT_EQ(RecordsOf(DataOf(choice)), (Lines{"type=integer path=count default=50"}));
}

TEST_F(ChoiceReplayTest, Records_AreAppliedBetweenTheRepairAndTheHook)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    Lines counts;
    TestChoice::Hooks().fix = [&](TestChoice&) {
        counts.push_back("fix " + CountOf(choice));
        return true;
    };
    TestChoice::Hooks().complete = [&](TestChoice&, bool, bool) {
        counts.push_back("complete " + DataTypeOf(choice) + " " + CountOf(choice));
        return S_OK;
    };
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(counts, (Lines{"fix 2", "complete TypeAlpha 40", "complete TypeAlpha 40"}));
}

TEST_F(ChoiceReplayTest, ValueThatIsToStayInvalid_AppliesNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK); }), Lines{});
    EXPECT_EQ(CountOf(choice), "2");
}

TEST_F(ChoiceReplayTest, OpenBracket_AppliesNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK); }), Lines{});
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK); }), (Lines{"makeForty"}));
}

TEST_F(ChoiceReplayTest, ChoiceWithoutData_AppliesNothing)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), Lines{});
}

TEST_F(ChoiceReplayTest, ListenersAreTold_OfDataThatHasItsConfiguration)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    std::string count;
    const VYRStandalone::Subscription subscription(choice, [&](ORXNotification&) { count = CountOf(choice); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(count, "40");
}

// ---- records that a configuration has left --------------------------------------------------------------------------

TEST_F(ChoiceReplayTest, ConditionalConfiguration_IsRecordedOnceAndAppliedAgain)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(choice, "recordAll"), S_OK);
    EXPECT_EQ(RecordsOf(choice), (Lines{"path=Data condition=value==beta config=makeForty",
                                        "path=Data condition=value==alpha config=makeLabel"}));
    EXPECT_EQ(ValueOf(DataOf(choice), "label"), "made");
    EXPECT_EQ(CountOf(choice), "2");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(ValueOf(DataOf(choice), "label"), "b");
    EXPECT_EQ(CountOf(choice), "40");
    EXPECT_EQ(RecordsOf(choice).size(), 2U) << "applying again records on the data object alone";
}

// ---- applications that fail -----------------------------------------------------------------------------------------

TEST_F(ChoiceReplayTest, UnknownConfiguration_IsReportedAndStopsNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeUnknown");
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)",
                                              "VYRCfdConfigurator::ApplyConfiguration")}));
    EXPECT_EQ(CountOf(choice), "40");
    EXPECT_EQ(Only(recorder.Take(), {"complete", "dispatch"}), (Lines{"complete true true", "dispatch Choice.1"}));
}

TEST_F(ChoiceReplayTest, RecordWithoutConfiguration_IsAnUnknownOne)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, nullptr);
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{""}));
    EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)",
                                              "VYRCfdConfigurator::ApplyConfiguration")}));
}

TEST_F(ChoiceReplayTest, FailingConfiguration_StopsNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    AddConfigRecord(choice, "Data", nullptr, "makeWrong");
    AddConfigRecord(choice, "Data", nullptr, "makeNone");
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey->GetType() == tk_list", "VYRCfdObjectAccess::SetStrings"),
                                   FailedCall("specAccess[path].SetStrings(valuesList)",
                                              "VYRCfdConfigurator::ApplyConfiguration")}));
    EXPECT_EQ(CountOf(choice), "40");
}

// ---- entries that are no records ------------------------------------------------------------------------------------

TEST_F(ChoiceReplayTest, EmptyEntry_IsPassedOver)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    // A custom default, so that nobody looks for a recorded one.
    KeepDefault(choice, "alpha");
    AddEntry(choice, NULL_var);
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", ReadRecord)}));
    EXPECT_EQ(CountOf(choice), "40");
}

TEST_F(ChoiceReplayTest, EntryWithoutPath_IsPassedOver)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    KeepDefault(choice, "alpha");
    AddEntry(choice, Create("ReplayBareRecord", "Record.1"));
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{"makeForty"}));
    EXPECT_EQ(Reported(), (Records{Error("No attribute path", ReadRecord)}));
    EXPECT_EQ(CountOf(choice), "40");
}

TEST_F(ChoiceReplayTest, EntryWhosePathIsNoText_IsPassedOver)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    KeepDefault(choice, "alpha");
    AddEntry(choice, Create("ReplayNumberedRecord", "Record.1"));
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{"makeForty"}));
    EXPECT_EQ(Reported(), (Records{Error("Not a string", ReadRecord)}));
}

TEST_F(ChoiceReplayTest, EntryOfAPathAlone_IsAnUnconditionalApplicationOfNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    KeepDefault(choice, "alpha");
    AddEntry(choice, Create("ReplayPathRecord", "Record.1"));
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{""}));
    EXPECT_EQ(Reported(),
              (Records{Error("No attribute condition", ReadRecord), Error("No attribute config", ReadRecord),
                       FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)",
                                  "VYRCfdConfigurator::ApplyConfiguration")}));
}

TEST_F(ChoiceReplayTest, TableColumnAmongTheRecords_IsPassedOver)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    KeepDefault(choice, "alpha");
    AddEntry(choice, VYRStandalone::MakeTableColumn());
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{"makeForty"}));
    EXPECT_EQ(Reported(), (Records{Error("No attribute path", ReadRecord)}));
}

TEST_F(ChoiceReplayTest, ListThatCannotBeListed_IsEmpty)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    KeepDefault(choice, "alpha");
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    Plant("ListObjects", "configuration", "Choice.1/defaultManagement");
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), Lines{});
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

TEST_F(ChoiceReplayTest, RecordThatIsTakenOutByAnApplication_IsAppliedAllTheSame)
{
    // The entries are read before the first is applied.
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    KeepDefault(choice, "alpha");
    AddConfigRecord(choice, "Data", nullptr, "makeForty");
    AddConfigRecord(choice, "Data", nullptr, "makeLabel");
    Listen(DataOf(choice), [&](const ORXUnicodeString& iName, const ORXIValue_var&) {
        if (iName == "count")
            Cursor(At(choice, "defaultManagement"))["configuration"].RemoveAll();
    });
    EXPECT_EQ(Applied([&] { EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK); }), (Lines{"makeForty", "makeLabel"}));
    EXPECT_EQ(RecordsOf(choice), Lines{});
    EXPECT_EQ(ValueOf(DataOf(choice), "label"), "made");
}
} // namespace
