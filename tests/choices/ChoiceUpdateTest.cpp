/**
 * @file
 * What an update makes of values, defaults and lists.
 */

#include <ostream>

#include "ChoiceTest.h"

namespace
{
class ChoiceUpdateTest : public ChoiceTest
{
};

// ---- allowed values -------------------------------------------------------------------------------------------------

struct AllowedCase
{
    const char* name;
    Lines choices;
    /// Whether the allowed values are written, from [alpha, beta, gamma].
    bool isWritten;
};

void PrintTo(const AllowedCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

const AllowedCase allowedCases[] = {
    {"SameOrder", {"alpha", "beta", "gamma"}, false},      {"OtherOrder", {"beta", "alpha", "gamma"}, true},
    {"LastTwoSwapped", {"alpha", "gamma", "beta"}, true},  {"Fewer", {"alpha", "beta"}, true},
    {"More", {"alpha", "beta", "gamma", "delta"}, true},   {"LastOneDiffers", {"alpha", "beta", "Gamma"}, true},
    {"FirstOneDiffers", {"Alpha", "beta", "gamma"}, true},
};

class ChoiceAllowedValuesTest : public ChoiceTest, public testing::WithParamInterface<AllowedCase>
{
};

TEST_P(ChoiceAllowedValuesTest, AreWrittenWhenTheListsDiffer)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta", "gamma"}, {}, "beta", "", ""});
    ChoiceRecorder recorder;
    WriteTexts(choice, "choices", GetParam().choices);
    EXPECT_EQ(Only(recorder.Take(), {"allow"}).size(), GetParam().isWritten ? 1U : 0U);
    EXPECT_EQ(AllowedOf(choice), GetParam().choices);
}

INSTANTIATE_TEST_SUITE_P(Lists, ChoiceAllowedValuesTest, testing::ValuesIn(allowedCases),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

// ---- the default ----------------------------------------------------------------------------------------------------

TEST_F(ChoiceUpdateTest, DeclaredDefaultThatIsAChoice_IsNotMadeACustomOne)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_FALSE(HasCustomDefault(choice));
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
}

TEST_F(ChoiceUpdateTest, DefaultThatIsNoChoice_GivesWayToTheFirstChoice)
{
    const ORXISpecObject_var choice = Make({{"beta", "alpha"}, {"TypeBeta", "TypeAlpha"}, "omega", "", ""});
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_TRUE(HasCustomDefault(choice));
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
}

TEST_F(ChoiceUpdateTest, GivenDefaultThatIsNoChoice_IsThrownAwayWithoutAReport)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "beta", "", ""});
    EXPECT_EQ(TestChoice::Of(choice).Update("omega"), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha") << "the first choice, and not the former default";
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(ChoiceUpdateTest, GivenDefaultThatIsTheDefaultAlready_BecomesACustomOne)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(TestChoice::Of(choice).Update("alpha"), S_OK);
    EXPECT_TRUE(HasCustomDefault(choice));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}

TEST_F(ChoiceUpdateTest, DefaultThatStandsOnlyInAnotherCase_IsNoChoice)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(TestChoice::Of(choice).Update("Beta"), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
}

TEST_F(ChoiceUpdateTest, StartUpWithoutValue_MakesTheFirstChoiceTheCustomDefault)
{
    const ORXISpecObject_var choice = Make({{"beta", "alpha"}, {"TypeBeta", "TypeAlpha"}, std::nullopt, "", ""});
    EXPECT_EQ(DefaultOf(choice, "value"), "(none)");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
}

TEST_F(ChoiceUpdateTest, StartUpWithoutValue_LeavesAValueThatIsSet)
{
    const ORXISpecObject_var choice = Make({{"beta", "alpha"}, {"TypeBeta", "TypeAlpha"}, std::nullopt, "", ""});
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(ChoiceUpdateTest, EmptyChoice_IsTheDefaultOfAStartUpWithoutValue)
{
    const ORXISpecObject_var choice = Make({{"alpha", ""}, {"TypeAlpha", "TypeBeta"}, std::nullopt, "", ""});
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_FALSE(HasCustomDefault(choice));
    EXPECT_EQ(ValueOf(choice, "value"), "(none)") << "no value reads as the empty text";
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
}

TEST_F(ChoiceUpdateTest, CustomDefault_ComesBeforeTheDeclaredOne)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ORXUnicodeString text = "gamma";
    EXPECT_EQ(DefaultManagementOf(choice)->SetCustomDefault("value", text), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    TakeAway(choice, "value");
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}

TEST_F(ChoiceUpdateTest, CustomDefaultThatIsNoChoice_GivesWayToTheFirstChoice)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "beta", "", ""});
    ORXUnicodeString text = "omega";
    EXPECT_EQ(DefaultManagementOf(choice)->SetCustomDefault("value", text), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(ChoiceUpdateTest, CustomDefaultOfAChoiceThatIsSet_RunsAnUpdateAllTheSame)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ChoiceRecorder recorder;
    ORXUnicodeString text = "gamma";
    EXPECT_EQ(DefaultManagementOf(choice)->SetCustomDefault("value", text), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data TypeBeta", "complete false false"}));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
}

TEST_F(ChoiceUpdateTest, DefaultOfARecord_CountsAsTheDefault)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    AddRecord(m_model, choice, "value", "gamma");
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "gamma");
    EXPECT_EQ(ValueOf(choice, "value"), "alpha") << "it is a choice, so that nothing is written";
}

TEST_F(ChoiceUpdateTest, CustomDefault_IsKeptWhenEveryHandleHasGone)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(TestChoice::Of(choice).Update("gamma"), S_OK);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(DefaultManagementOf(choice)->Unset("value"), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
}

// ---- values ---------------------------------------------------------------------------------------------------------

struct InvalidCase
{
    const char* name;
    const char* value;
};

void PrintTo(const InvalidCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

const InvalidCase invalidCases[] = {
    {"Other", "omega"},  {"OtherCase", "Alpha"},      {"Empty", ""},
    {"Blank", " alpha"}, {"BeginsAlike", "alphabet"}, {"CommaList", "alpha,beta"},
};

class ChoiceInvalidValueTest : public ChoiceTest, public testing::WithParamInterface<InvalidCase>
{
};

TEST_P(ChoiceInvalidValueTest, ThatIsSet_BecomesTheDefault)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "beta", "", ""});
    const NotificationCounter notifications(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(GetParam().value), S_OK);
    EXPECT_EQ(Only(recorder.Take(), {"fix", "complete"}),
              (Lines{"fix", "complete true false", "complete false false"}));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
    EXPECT_EQ(notifications.Count(), 1);
}

TEST_P(ChoiceInvalidValueTest, ThatIsToStay_Stays)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "beta", "", ""});
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    const NotificationCounter notifications(choice);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(GetParam().value), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), GetParam().value);
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(notifications.Count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Values, ChoiceInvalidValueTest, testing::ValuesIn(invalidCases),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ChoiceUpdateTest, InvalidValueThatIsNotSet_StaysWhenTheDefaultIsAChoice)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "omega", "", ""});
    KeepDefault(choice, "beta");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false") << "asking makes the flag";
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceUpdateTest, InvalidValueWithAnInvalidDefault_IsTheFirstChoiceBeforeTheRepairIsAsked)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {}, "omega", "", ""});
    std::string atRepair;
    TestChoice::Hooks().fix = [&](TestChoice&) {
        atRepair = ValueOf(choice, "value");
        return false;
    };
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(atRepair, "alpha");
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}

TEST_F(ChoiceUpdateTest, ChoiceThatIsTakenOut_FallsBackToTheDefault)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta", "gamma"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    WriteTexts(choice, "choices", {"beta", "alpha"});
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
    EXPECT_EQ(AllowedOf(choice), (Lines{"beta", "alpha"}));
}

TEST_F(ChoiceUpdateTest, ChoiceAndDefaultThatAreTakenOut_FallBackToTheFirst)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta", "gamma"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    WriteTexts(choice, "choices", {"beta", "delta"});
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
}

// ---- data -----------------------------------------------------------------------------------------------------------

TEST_F(ChoiceUpdateTest, ChoiceWithoutStartups_LosesTheDataOfEarlier)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(DataTypeOf(choice), "TypeAlpha");
    ChoiceRecorder recorder;
    WriteTexts(choice, "Startups", {});
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data", "take Choice.1.Data = TypeAlphaInst", "complete false true", "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceUpdateTest, ValueOutsideAListWithoutStartups_KeepsTheDataOfEarlier)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    ChoiceRecorder recorder;
    WriteTexts(choice, "Startups", {});
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"fix"})) << "no entry matches, so that nobody looks at the data";
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(ChoiceUpdateTest, EmptyStartupAmongOthers_IsAChoiceWithoutData)
{
    const ORXISpecObject_var choice = MakeUpdated({{"none", "alpha"}, {"", "TypeAlpha"}, "none", "", ""});
    EXPECT_EQ(DataTypeOf(choice), "");
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("none"), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceUpdateTest, DataThatWasTakenAway_ComesBackWithTheNextUpdate)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(WriteObject(choice, "Data", NULL_var), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "") << "taking it away starts no update";
    const NotificationCounter notifications(choice);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    EXPECT_EQ(notifications.Count(), 1) << "the data changed, and the value did not";
}
} // namespace
