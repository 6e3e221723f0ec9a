/**
 * @file
 * What a Choice does when it is told that one of its attributes has changed.
 */

#include <ostream>

#include "ActingListener.h"
#include "ChoiceTest.h"

namespace
{
/// Tells a listener's turn by a line.
void RecordTold(const ORXISpecObject_var& iChoice)
{
    Listen(iChoice, [](const ORXUnicodeString& iName, const ORXIValue_var&) {
        VYRStandalone::RecordLine(std::string("told ") + iName.CastToCharPtr());
    });
}

enum class Value
{
    Valuated,
    Unset,
    Null
};

/// A value as the host hands it over, or none at all.
ORXIValue_var Make(Value iKind, const ORXISpecObject_var& iChoice)
{
    switch (iKind)
    {
    case Value::Valuated:
    {
        const ORXISpecAttrAccess_var access = AccessOf(iChoice);
        return ORXCke_GetParm(access, ORXISpecAttrKey_var::Adopt(access->GetAttrKey("value")), 1)->GetValue();
    }
    case Value::Unset:
        return UnsetValue(iChoice, "value");
    case Value::Null:
        break;
    }
    return NULL_var;
}

struct AdviseCase
{
    const char* test;
    const char* name;
    Value value;
    /// Hooks, and the listeners' turn.
    Lines lines;
    std::string flag;
};

void PrintTo(const AdviseCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.test;
}

// The Choice is up to date and holds "beta", which is set; its default is "alpha".
const AdviseCase adviseCases[] = {
    {"Choices", "choices", Value::Valuated, {"data", "complete false false", "told choices"}, "true"},
    {"ChoicesUnset", "choices", Value::Unset, {"data", "complete false false", "told choices"}, "true"},
    {"ChoicesNull", "choices", Value::Null, {"data", "complete false false", "told choices"}, "true"},
    {"Startups", "Startups", Value::Valuated, {"data", "complete false false", "told Startups"}, "true"},
    {"StartupsUnset", "Startups", Value::Unset, {"data", "complete false false", "told Startups"}, "true"},
    {"StartupsNull", "Startups", Value::Null, {"data", "complete false false", "told Startups"}, "true"},
    {"Value", "value", Value::Valuated, {"data", "complete true false", "told value"}, "true"},
    // The default is written back, within which the whole of it runs once more.
    {"ValueUnset",
     "value",
     Value::Unset,
     {"data", "complete true false", "told value", "data", "complete false false", "told value"},
     "false"},
    {"ValueNull", "value", Value::Null, {"data", "complete true false", "told value"}, "true"},
    {"Data", "Data", Value::Valuated, {"told Data"}, "true"},
    {"DataUnset", "Data", Value::Unset, {"told Data"}, "true"},
    {"DataNull", "Data", Value::Null, {"told Data"}, "true"},
    {"DataName", "dataName", Value::Valuated, {"told dataName"}, "true"},
    {"DataNameUnset", "dataName", Value::Unset, {"told dataName"}, "true"},
    {"DataNameNull", "dataName", Value::Null, {"told dataName"}, "true"},
    {"Display", "display", Value::Valuated, {"told display"}, "true"},
    {"DefaultManagement", "defaultManagement", Value::Valuated, {"told defaultManagement"}, "true"},
    {"OtherCase", "Value", Value::Unset, {"told Value"}, "true"},
    {"OtherCaseOfChoices", "Choices", Value::Valuated, {"told Choices"}, "true"},
    {"OtherCaseOfStartups", "startups", Value::Valuated, {"told startups"}, "true"},
    {"BeginsAlike", "values", Value::Unset, {"told values"}, "true"},
    {"Empty", "", Value::Null, {"told "}, "true"},
    {"Unknown", "unknown", Value::Null, {"told unknown"}, "true"},
};

class ChoiceAdviseCasesTest : public ChoiceTest, public testing::WithParamInterface<AdviseCase>
{
};

TEST_P(ChoiceAdviseCasesTest, Change_UpdatesOrNotAndIsPassedOnLast)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    const ORXIInstance_var instance = choice;
    const ORXIValue_var value = ::Make(GetParam().value, choice);
    RecordTold(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance->AdviseAttributeChanged(GetParam().name, value), S_OK);
    EXPECT_EQ(Only(recorder.Take(), {"data", "fix", "complete", "told"}), GetParam().lines);
    EXPECT_EQ(SetFlagOf(choice, "value"), GetParam().flag);
    EXPECT_EQ(ValueOf(choice, "value"), GetParam().flag == "true" ? "beta" : "alpha");
}

TEST_P(ChoiceAdviseCasesTest, ChangeInABracket_UpdatesNothingAndIsPassedOn)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    const ORXIInstance_var instance = choice;
    const ORXIValue_var value = ::Make(GetParam().value, choice);
    RecordTold(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(instance->AdviseAttributeChanged(GetParam().name, value), S_OK);
    Lines told;
    for (const std::string& line : GetParam().lines)
        if (line.starts_with("told"))
            told.push_back(line);
    EXPECT_EQ(Only(recorder.Take(), {"data", "fix", "complete", "told"}), told);
    EXPECT_EQ(SetFlagOf(choice, "value"), GetParam().flag) << "the flag does not wait";

    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    const bool isValue = std::string(GetParam().name) == "value";
    EXPECT_EQ(recorder.TakeSteps(), isValue ? (Lines{"data", "complete true false", "dispatch Choice.1"})
                                            : (Lines{"data", "complete false false"}));
}

INSTANTIATE_TEST_SUITE_P(Names, ChoiceAdviseCasesTest, testing::ValuesIn(adviseCases),
                         [](const auto& iInfo) { return std::string(iInfo.param.test); });

class ChoiceAdviseTest : public ChoiceTest
{
};

TEST_F(ChoiceAdviseTest, ValueOfAChoiceThatWasNotSet_IsMarked)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    EXPECT_EQ(SetFlagOf(choice, "value"), "absent");
    EXPECT_EQ(ORXIInstance_var(choice)->AdviseAttributeChanged("value", ::Make(Value::Null, choice)), S_OK);
    EXPECT_EQ(SetFlagOf(choice, "value"), "true") << "no value at all counts as one";
}

TEST_F(ChoiceAdviseTest, OtherAttributes_AreNotMarked)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    Write(choice, "dataName", "Mine");
    Write(choice, "display", "Shown");
    WriteTexts(choice, "choices", {"alpha", "beta", "gamma"});
    WriteTexts(choice, "Startups", {"TypeAlpha", "TypeBeta", "TypeGamma"});
    for (const char* name : {"value", "dataName", "display", "choices", "Startups", "Data"})
        EXPECT_EQ(SetFlagOf(choice, name), "absent") << name;
}

TEST_F(ChoiceAdviseTest, WrittenDataName_NamesNothingThatStands)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChoiceRecorder recorder;
    Write(choice, "dataName", "Mine");
    EXPECT_EQ(recorder.TakeSteps(), Lines{});
    EXPECT_STREQ(DataOf(choice)->GetName().CastToCharPtr(), "TypeAlphaInst");
}

TEST_F(ChoiceAdviseTest, WrittenChoices_RunAnUpdate)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ChoiceRecorder recorder;
    WriteTexts(choice, "choices", {"alpha", "beta", "gamma"});
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data", "allow Choice.1.value = [alpha, beta, gamma]", "complete false false"}));
}

TEST_F(ChoiceAdviseTest, FailingUpdate_IsNoFailureOfTheNotification)
{
    const ORXISpecObject_var choice = Make({{}, {}, "alpha", "", ""});
    const ORXIInstance_var instance = choice;
    RecordTold(choice);
    ChoiceRecorder recorder;
    for (const char* name : {"choices", "Startups", "value"})
    {
        EXPECT_EQ(instance->AdviseAttributeChanged(name, NULL_var), S_OK) << name;
        EXPECT_EQ(Reported(), (Records{Assertion("choices.size() > 0", Update)})) << name;
    }
    EXPECT_EQ(Only(recorder.Take(), {"told"}), (Lines{"told choices", "told Startups", "told value"}));
}

TEST_F(ChoiceAdviseTest, FailingFlag_IsNoFailureOfTheNotification)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    Plant("AddAttribute", "value_isset");
    ChoiceRecorder recorder;
    EXPECT_EQ(ORXIInstance_var(choice)->AdviseAttributeChanged("value", ::Make(Value::Valuated, choice)), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("pAttr", "VYRCfdDefaultManagementAdp::SetIsSet")}));
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data", "complete true false", "dispatch Choice.1"}));
}

TEST_F(ChoiceAdviseTest, WithoutDefaultManagement_NothingIsMarkedAndTheUpdateRuns)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    const ORXIInstance_var instance = choice;
    // Once: the update has a look of its own.
    Plant("QueryInterface", "VYRIMpaDefaultManagementProtected", "Choice.1");
    ChoiceRecorder recorder;
    EXPECT_EQ(instance->AdviseAttributeChanged("value", NULL_var), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(SetFlagOf(choice, "value"), "absent");
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data", "complete true false", "dispatch Choice.1"}));
}

TEST_F(ChoiceAdviseTest, WithoutDefaultManagement_AnUnsetValueStaysAway)
{
    const ORXISpecObject_var choice = MakeUpdated({{"", "beta"}, {}, "beta", "", ""});
    Plant("QueryInterface", "VYRIMpaDefaultManagementProtected", "Choice.1");
    TakeAway(choice, "value");
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(ValueOf(choice, "value"), "(none)");
    EXPECT_EQ(SetFlagOf(choice, "value"), "absent");
}

TEST_F(ChoiceAdviseTest, DefaultThatDefaultManagementWrites_IsNotMarked)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ASSERT_EQ(SetFlagOf(choice, "value"), "true");
    ChoiceRecorder recorder;
    EXPECT_EQ(DefaultManagementOf(choice)->Unset("value"), S_OK);
    EXPECT_EQ(Only(recorder.Take(), {"write"}),
              (Lines{"write Choice.1.value = alpha", "write Choice.1.Data = TypeAlphaInst",
                     "write Choice.1/defaultManagement.value_isset = false"}));
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

TEST_F(ChoiceAdviseTest, ListenersOfAWrite_AreToldWhenTheUpdateIsDone)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    RecordTold(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(Only(recorder.Take(), {"complete", "dispatch", "told"}),
              (Lines{"told Data", "complete true true", "dispatch Choice.1", "told value"}));
}
} // namespace
