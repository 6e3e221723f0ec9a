/**
 * @file
 * What an update does and what it sets off, in its order: hooks, creations, allowed values and notifications, compared
 * whole.
 */

#include "ChoiceTest.h"

namespace
{
class ChoiceSequencesTest : public ChoiceTest
{
};

const Lines TypeNames = {"TypeAlpha", "TypeBeta", "TypeGamma"};

/// What a data object that is made anew shows.
Lines Making(const std::string& iType)
{
    return {"data " + iType, "name " + iType, "create " + iType + " " + iType + "Inst"};
}

Lines Joined(std::initializer_list<Lines> iParts)
{
    Lines joined;
    for (const Lines& part : iParts)
        joined.insert(joined.end(), part.begin(), part.end());
    return joined;
}

/// A Choice of the hooked type that declares nothing, not even a value.
ORXISpecObject_var Configured(const ORXISpecObject_var& iChoice, const char* iDefault)
{
    EXPECT_EQ(ChoiceOf(iChoice)->Configure(Texts({"alpha", "beta", "gamma"}), Texts(TypeNames), iDefault, ""), S_OK);
    return iChoice;
}

// ---- updates --------------------------------------------------------------------------------------------------------

TEST_F(ChoiceSequencesTest, FirstUpdate_MakesTheDataAndPublishesTheChoices)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.Take(), (Lines{"data TypeAlpha", "name TypeAlpha", "create TypeAlpha TypeAlphaInst",
                                      "write Choice.1.Data = TypeAlphaInst", "advise Choice.1.Data = TypeAlphaInst",
                                      "done Choice.1.Data", "allow Choice.1.value = [alpha, beta, gamma]",
                                      "complete false true", "dispatch Choice.1"}))
        << "no flag and no custom default: the value is left to the type";
}

TEST_F(ChoiceSequencesTest, UpdateOfWhatIsUpToDate_CompletesAndNothingElse)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.Take(), (Lines{"data TypeAlpha", "complete false false"}));
}

TEST_F(ChoiceSequencesTest, NewDefaultOfAChoiceThatIsNotSet_RunsTwiceInside)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Joined({{"data TypeAlpha"},
                                            // Within the write of the default into the value.
                                            Making("TypeBeta"),
                                            {"complete true true", "dispatch Choice.1"},
                                            // Told by default management that the default has changed.
                                            {"data TypeBeta", "complete false false"},
                                            // The outer run goes on with what it had read.
                                            {"complete false false"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

TEST_F(ChoiceSequencesTest, NewDefaultOfAChoiceThatIsNotSet_InAllItsCalls)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK);
    EXPECT_EQ(recorder.Take(), (Lines{
                                   "data TypeAlpha",
                                   "add Choice.1/defaultManagement.value_isset",
                                   "write Choice.1/defaultManagement.value_isset = false",
                                   "advise Choice.1/defaultManagement.value_isset = false",
                                   "done Choice.1/defaultManagement.value_isset",
                                   "write Choice.1.value = beta",
                                   "advise Choice.1.value = beta",
                                   "data TypeBeta",
                                   "name TypeBeta",
                                   "create TypeBeta TypeBetaInst",
                                   "write Choice.1.Data = TypeBetaInst",
                                   "advise Choice.1.Data = TypeBetaInst",
                                   "done Choice.1.Data",
                                   "complete true true",
                                   "dispatch Choice.1",
                                   "done Choice.1.value",
                                   "write Choice.1/defaultManagement.value_isset = false",
                                   "advise Choice.1/defaultManagement.value_isset = false",
                                   "done Choice.1/defaultManagement.value_isset",
                                   "data TypeBeta",
                                   "complete false false",
                                   "complete false false",
                               }));
}

TEST_F(ChoiceSequencesTest, NewDefaultOfAChoiceThatIsSet_LeavesTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data TypeGamma", "data TypeGamma", "complete false false", "complete false false"}));
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
}

// ---- a user's write -------------------------------------------------------------------------------------------------

TEST_F(ChoiceSequencesTest, SetChoice_MarksThenUpdatesThenTells)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(recorder.Take(), (Lines{
                                   "write Choice.1.value = beta",
                                   "advise Choice.1.value = beta",
                                   "add Choice.1/defaultManagement.value_isset",
                                   "write Choice.1/defaultManagement.value_isset = true",
                                   "advise Choice.1/defaultManagement.value_isset = true",
                                   "done Choice.1/defaultManagement.value_isset",
                                   "data TypeBeta",
                                   "name TypeBeta",
                                   "create TypeBeta TypeBetaInst",
                                   "write Choice.1.Data = TypeBetaInst",
                                   "advise Choice.1.Data = TypeBetaInst",
                                   "done Choice.1.Data",
                                   "complete true true",
                                   "dispatch Choice.1",
                                   "done Choice.1.value",
                               }));
}

TEST_F(ChoiceSequencesTest, SameValueWrittenAgain_IsAChangeOfTheValueAndNotOfTheData)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const ORXISpecObject_var data = DataOf(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data TypeAlpha", "complete true false", "dispatch Choice.1"}));
    EXPECT_TRUE(DataOf(choice) == data);
}

TEST_F(ChoiceSequencesTest, ValueTakenAway_ComesBackAsTheDefaultInAnInnerRun)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ChoiceRecorder recorder;
    TakeAway(choice, "value");
    EXPECT_EQ(recorder.TakeSteps(), Joined({Making("TypeAlpha"),
                                            {"complete true true", "dispatch Choice.1"},
                                            {"data TypeAlpha", "complete false false"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

// ---- values that are no choice --------------------------------------------------------------------------------------

TEST_F(ChoiceSequencesTest, ValueOutsideTheListThatIsSet_IsUnsetInAnInnerRun)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(
        recorder.TakeSteps(),
        Joined({{"fix"}, Making("TypeAlpha"), {"complete true true", "dispatch Choice.1"}, {"complete false false"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

TEST_F(ChoiceSequencesTest, ValueOutsideTheListThatIsNotSet_StaysWhenTheDefaultIsAChoice)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "omega", "", ""});
    KeepDefault(choice, "beta");
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"allow Choice.1.value = [alpha, beta]", "fix", "complete false false"}));
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceSequencesTest, ValueAndDefaultOutsideTheList_GiveWayToTheFirstChoice)
{
    const ORXISpecObject_var choice = Make({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "omega", "", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Joined({{"allow Choice.1.value = [alpha, beta]"},
                                            Making("TypeAlpha"),
                                            {"complete true true", "dispatch Choice.1"},
                                            {"data TypeAlpha", "complete false false"},
                                            // The outer run still holds the value that it read.
                                            {"fix", "complete false false"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
}

TEST_F(ChoiceSequencesTest, ValueThatIsToStayInvalid_EndsTheRunThere)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"fix"}));
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"fix"}));
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(ChoiceSequencesTest, ChangeOfAValueThatStaysInvalid_ShowsInTheNextRunThatCompletes)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    ChoiceRecorder recorder;
    WriteTexts(choice, "choices", {"alpha", "omega"});
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data", "allow Choice.1.value = [alpha, omega]", "complete true false", "dispatch Choice.1"}));
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data", "complete false false"}));
}

// ---- configurations -------------------------------------------------------------------------------------------------

TEST_F(ChoiceSequencesTest, FreshConfiguration_UpdatesAfterEachOfItsWrites)
{
    const ORXISpecObject_var choice = Create("ChoiceTestHooked", "Choice.1");
    ChoiceRecorder recorder;
    Configured(choice, "beta");
    EXPECT_EQ(recorder.TakeSteps(),
              Joined({
                  // The choices alone: no default, so that the first becomes it, and the value follows.
                  {"allow Choice.1.value = [alpha, beta, gamma]", "data", "complete true false", "dispatch Choice.1",
                   "data", "complete false false", "fix", "complete false false"},
                  // The startups.
                  Making("TypeAlpha"),
                  {"complete false true", "dispatch Choice.1"},
                  // The update with the default that was given.
                  {"data TypeAlpha"},
                  Making("TypeBeta"),
                  {"complete true true", "dispatch Choice.1", "data TypeBeta", "complete false false",
                   "complete false false"},
              }));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

TEST_F(ChoiceSequencesTest, FreshConfigurationInABracket_UpdatesOnceAndForgetsTheDefault)
{
    const ORXISpecObject_var choice = Create("ChoiceTestHooked", "Choice.1");
    const VYRICfdConfigurable_var configurable = ConfigurableOf(choice);
    ASSERT_EQ(configurable->StartConfiguration(), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha", "beta", "gamma"}), Texts(TypeNames), "beta", ""), S_FALSE);
    EXPECT_EQ(recorder.Take(),
              (Lines{"write Choice.1.choices = [alpha, beta, gamma]", "advise Choice.1.choices = [alpha, beta, gamma]",
                     "done Choice.1.choices", "write Choice.1.Startups = [TypeAlpha, TypeBeta, TypeGamma]",
                     "advise Choice.1.Startups = [TypeAlpha, TypeBeta, TypeGamma]", "done Choice.1.Startups"}));
    EXPECT_EQ(configurable->CompleteConfiguration(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Joined({{"allow Choice.1.value = [alpha, beta, gamma]"},
                                            Making("TypeAlpha"),
                                            {"complete true true", "dispatch Choice.1"},
                                            {"data TypeAlpha", "complete false false"},
                                            {"fix", "complete false false"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
}

TEST_F(ChoiceSequencesTest, ConfigurationInAnotherOrder_MakesTheDataOfTheOldPlaceOnTheWay)
{
    const ORXISpecObject_var choice = Configured(Create("ChoiceTestHooked", "Choice.1"), "beta");
    const ORXISpecObject_var data = DataOf(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"gamma", "alpha", "beta"}),
                                          Texts({"TypeGamma", "TypeAlpha", "TypeBeta"}), "", ""),
              S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              Joined({
                  // The new choices beside the old startups.
                  Making("TypeGamma"),
                  {"allow Choice.1.value = [gamma, alpha, beta]", "complete false true", "dispatch Choice.1"},
                  Making("TypeBeta"),
                  {"complete false true", "dispatch Choice.1"},
                  {"data TypeBeta", "complete false false"},
              }));
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_FALSE(DataOf(choice) == data) << "what was set on the former object is lost";
}

TEST_F(ChoiceSequencesTest, ConfigurationInAnotherOrderInABracket_KeepsTheData)
{
    const ORXISpecObject_var choice = Configured(Create("ChoiceTestHooked", "Choice.1"), "beta");
    const ORXISpecObject_var data = DataOf(choice);
    ChoiceRecorder recorder;
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"gamma", "alpha", "beta"}),
                                          Texts({"TypeGamma", "TypeAlpha", "TypeBeta"}), "gamma", ""),
              S_FALSE);
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data TypeBeta", "allow Choice.1.value = [gamma, alpha, beta]", "complete false false"}));
    EXPECT_TRUE(DataOf(choice) == data);
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
}

// ---- choices that stand twice ---------------------------------------------------------------------------------------

TEST_F(ChoiceSequencesTest, ChoiceThatStandsTwice_MakesTheDataOfEachPlaceAtEveryUpdate)
{
    const ORXISpecObject_var choice =
        Make({{"alpha", "beta", "alpha"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "alpha", "", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              Joined({Making("TypeAlpha"),
                      Making("TypeGamma"),
                      {"allow Choice.1.value = [alpha, beta, alpha]", "complete false true", "dispatch Choice.1"}}));
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma") << "the last place prevails";
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              Joined({Making("TypeAlpha"), Making("TypeGamma"), {"complete false true", "dispatch Choice.1"}}));
}

TEST_F(ChoiceSequencesTest, ChoiceThatStandsTwiceWithoutStartups_IsAskedForNoDataTwice)
{
    const ORXISpecObject_var choice = Make({{"alpha", "alpha"}, {}, "alpha", "", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data", "data", "allow Choice.1.value = [alpha, alpha]", "complete false false"}));
}

// ---- hooks that write and hooks that fail ---------------------------------------------------------------------------

TEST_F(ChoiceSequencesTest, HookThatWritesTheValueOnce_RunsOnceInsideAndBothTell)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().complete = [](TestChoice& ioSelf, bool, bool) {
        TestChoice::Hooks().complete = {};
        return ioSelf.SetChoice("gamma");
    };
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Joined({Making("TypeBeta"),
                                            {"complete true true"},
                                            Making("TypeGamma"),
                                            {"complete true true", "dispatch Choice.1"},
                                            {"dispatch Choice.1"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}

TEST_F(ChoiceSequencesTest, HookOfTheRepairThatWritesAChoice_IsFollowedByTheUnset)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().fix = [](TestChoice& ioSelf) {
        ioSelf.SetChoice("beta");
        return true;
    };
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Joined({{"fix"},
                                            Making("TypeBeta"),
                                            {"complete true true", "dispatch Choice.1"},
                                            // The flag was read before the hook.
                                            Making("TypeAlpha"),
                                            {"complete true true", "dispatch Choice.1"},
                                            {"complete false false"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}

TEST_F(ChoiceSequencesTest, HookOfTheRepairThatWritesAndKeeps_LeavesItsValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().fix = [](TestChoice& ioSelf) {
        ioSelf.SetChoice("beta");
        return false;
    };
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Joined({{"fix"}, Making("TypeBeta"), {"complete true true", "dispatch Choice.1"}}));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
}

TEST_F(ChoiceSequencesTest, FailingCompletion_SendsNothingAndForgetsTheChange)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return E_FAIL; };
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK) << "the update's status is dropped";
    EXPECT_EQ(recorder.TakeSteps(), Joined({Making("TypeBeta"), {"complete true true"}}));
    EXPECT_EQ(Reported(),
              (Records{FailedCall("CompleteUpdate(wasValueChange, dataChange)", "VYRCfdChoiceInstanceAdp::Update")}));
    TestChoice::Hooks().complete = {};
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data TypeBeta", "complete false false"}));
}

TEST_F(ChoiceSequencesTest, FailingDataOfTheSecondPlace_LeavesTheFirstDoneAndTheOldAllowedValues)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "", ""});
    const VYRICfdConfigurable_var configurable = ConfigurableOf(choice);
    ASSERT_EQ(configurable->StartConfiguration(), S_OK);
    ASSERT_EQ(ChoiceOf(choice)->Configure(Texts({"beta", "alpha", "beta"}),
                                          Texts({"TypeGamma", "TypeAlpha", "TypeBeta"}), "", ""),
              S_FALSE);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    TestChoice::Hooks().data = [](TestChoice& ioSelf, const ORXUnicodeString& iStartup, bool& oDataChange) {
        return iStartup == "TypeBeta" ? E_FAIL : ioSelf.BaseUpdateDataForStartup(iStartup, oDataChange);
    };
    ChoiceRecorder recorder;
    EXPECT_EQ(configurable->CompleteConfiguration(), E_FAIL);
    EXPECT_EQ(Reported(),
              (Records{FailedCall("UpdateDataForStartup(startup, dataChange)", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(recorder.TakeSteps(), Joined({Making("TypeGamma"), {"data TypeBeta"}}));
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
    EXPECT_EQ(AllowedOf(choice), (Lines{"alpha", "beta"}));

    // The change of the value waits for a run that completes.
    TestChoice::Hooks().data = {};
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              Joined({{"data TypeGamma"},
                      Making("TypeBeta"),
                      {"allow Choice.1.value = [beta, alpha, beta]", "complete true true", "dispatch Choice.1"}}));
}
} // namespace
