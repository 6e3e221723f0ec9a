/**
 * @file
 * Taking choices out.
 */

#include "ManagerTest.h"

namespace
{
class ProhibitTest : public ManagerTest
{
};

TEST_F(ProhibitTest, RemainingChoices_KeepTheirOrderAndTheirStartups)
{
    Take({{"d", "c", "b", "a"}, {"TypeAlpha", "", "TypeBeta", "TypeGamma"}, "d", "", ""});
    EXPECT_EQ(ProhibitAll({"b", "a", "x"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"d", "c"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha", ""}));
    EXPECT_EQ(ProhibitAll({"d"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"c"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{""}));
}

TEST_F(ProhibitTest, WhatIsNotOffered_RunsNoUpdateAndWritesNothing)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->ProhibitChoice("delta"), S_OK);
    EXPECT_EQ(ProhibitAll({}), S_OK);
    EXPECT_EQ(ProhibitAll({"Alpha", "", "alph"}), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{"prohibit [delta]", "prohibit []", "prohibit [, Alpha, alph]"}));
}

TEST_F(ProhibitTest, OfOne_IsAskedForByTheOperationOnSets)
{
    std::set<ORXUnicodeString> asked;
    TestManager::Hooks().prohibit = [&](const std::set<ORXUnicodeString>& iProhibited) {
        asked = iProhibited;
        return E_NOTIMPL;
    };
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), E_NOTIMPL);
    EXPECT_EQ(asked, (std::set<ORXUnicodeString>{"beta"}));
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
}

TEST_F(ProhibitTest, ChoiceThatStandsTwice_GoesTwice)
{
    Take({{"a", "b", "a"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "b", "", ""});
    EXPECT_EQ(m_manager->ProhibitChoice("a"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"b"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeBeta"}));
}

// ---- what becomes of value and default ------------------------------------------------------------------------------

TEST_F(ProhibitTest, OfAnotherChoice_OnlyNarrowsWhatIsOffered)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{"prohibit [beta]", "write Choice.1.choices = [alpha, gamma]",
                                   "advise Choice.1.choices = [alpha, gamma]", "done Choice.1.choices",
                                   "write Choice.1.Startups = [TypeAlpha, TypeGamma]",
                                   "advise Choice.1.Startups = [TypeAlpha, TypeGamma]", "done Choice.1.Startups",
                                   // Both writes are in a bracket: one update at its end, which changes nothing.
                                   "data TypeAlpha", "allow Choice.1.value = [alpha, gamma]", "complete false false"}));
    EXPECT_FALSE(HasCustomDefault(m_choice));
}

TEST_F(ProhibitTest, OfTheSetValue_UnsetsIt)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->ProhibitChoice("gamma"), S_OK);
    EXPECT_EQ(
        WritesAndSteps(calls.Take()),
        (Lines{"prohibit [gamma]", "write Choice.1.choices = [alpha, beta]",
               "write Choice.1.Startups = [TypeAlpha, TypeBeta]", "allow Choice.1.value = [alpha, beta]", "fix",
               "write Choice.1.value = alpha", "data TypeAlpha", "name TypeAlpha", "create TypeAlpha TypeAlphaInst",
               "write Choice.1.Data = TypeAlphaInst", "complete true true", "dispatch Choice.1",
               "write Choice.1/defaultManagement.value_isset = false", "complete false false"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "false");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_FALSE(HasCustomDefault(m_choice));
}

TEST_F(ProhibitTest, OfTheDefaultThatIsTheValue_MakesTheFirstRemainingChoiceBoth)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->ProhibitChoice("alpha"), S_OK);
    EXPECT_EQ(
        WritesAndSteps(calls.Take()),
        (Lines{"prohibit [alpha]", "write Choice.1.choices = [beta, gamma]",
               "write Choice.1.Startups = [TypeBeta, TypeGamma]", "allow Choice.1.value = [beta, gamma]",
               "write Choice.1/defaultManagement.value_isset = false", "write Choice.1.value = beta", "data TypeBeta",
               "name TypeBeta", "create TypeBeta TypeBetaInst", "write Choice.1.Data = TypeBetaInst",
               "complete true true", "dispatch Choice.1", "write Choice.1/defaultManagement.value_isset = false",
               "data TypeBeta", "complete false false", "fix", "complete false false"}));
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "false");
}

TEST_F(ProhibitTest, OfTheDefaultBesideASetValue_LeavesTheValue)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->ProhibitChoice("alpha"), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()), (Lines{"prohibit [alpha]", "write Choice.1.choices = [beta, gamma]",
                                                   "write Choice.1.Startups = [TypeBeta, TypeGamma]", "data TypeGamma",
                                                   "allow Choice.1.value = [beta, gamma]", "data TypeGamma",
                                                   "complete false false", "complete false false"}));
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
    EXPECT_EQ(ValueOf(m_choice, "value"), "gamma");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "true");
}

TEST_F(ProhibitTest, OfSetValueAndDefault_LeavesTheFirstRemainingChoice)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ProhibitAll({"gamma", "alpha"}), S_OK);
    EXPECT_EQ(
        WritesAndSteps(calls.Take()),
        (Lines{"prohibit [alpha, gamma]", "write Choice.1.choices = [beta]", "write Choice.1.Startups = [TypeBeta]",
               "allow Choice.1.value = [beta]",
               // The new default brings an update of its own, which repairs the value.
               "fix", "write Choice.1.value = beta", "data TypeBeta", "name TypeBeta", "create TypeBeta TypeBetaInst",
               "write Choice.1.Data = TypeBetaInst", "complete true true", "dispatch Choice.1",
               "write Choice.1/defaultManagement.value_isset = false", "complete false false",
               // The outer one still holds the value that it had read, and finds it not set any more.
               "fix", "complete false false"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "beta");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
}

TEST_F(ProhibitTest, OfEverything_SucceedsAndLeavesNothingToChoose)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ProhibitAll({"alpha", "beta", "gamma"}), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()),
              (Lines{"prohibit [alpha, beta, gamma]", "write Choice.1.choices = []", "write Choice.1.Startups = []"}));
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() > 0", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_EQ(AllowedOf(m_choice), (Lines{"alpha", "beta", "gamma"})) << "the update ends before they are written";
}

TEST_F(ProhibitTest, SubclassThatRepairsNothing_KeepsTheProhibitedValue)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    ChoiceRecorder steps;
    EXPECT_EQ(m_manager->ProhibitChoice("gamma"), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"allow Choice.1.value = [alpha, beta]", "fix"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "gamma");
}

// ---- without startups -----------------------------------------------------------------------------------------------

TEST_F(ProhibitTest, WithoutStartups_StillWritesThatThereAreNone)
{
    Take({{"a", "b", "c"}, {}, "a", "", ""});
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->ProhibitChoice("b"), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()),
              (Lines{"prohibit [b]", "write Choice.1.choices = [a, c]", "write Choice.1.Startups = []", "data",
                     "allow Choice.1.value = [a, c]", "complete false false"}));
}

// ---- what goes wrong on the way -------------------------------------------------------------------------------------

TEST_F(ProhibitTest, FailureOfTheUpdate_DoesNotShow)
{
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return E_NOTIMPL; };
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    EXPECT_EQ(Reported(), (Records{FailedCall("CompleteUpdate(wasValueChange, dataChange)",
                                              "VYRCfdChoiceInstanceAdp::Update", E_NOTIMPL)}));
}

TEST_F(ProhibitTest, FailureOfAWrite_IsNotNoticed)
{
    MakeFail("SetStringList", "choices");
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha", "TypeGamma"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ProhibitTest, InsideABracket_ClosesIt)
{
    // Brackets do not count: the end of the inner one is the end of the outer one.
    const VYRICfdConfigurable_var bracket = ConfigurableOf(m_choice);
    ASSERT_EQ(bracket->StartConfiguration(), S_OK);
    ChoiceRecorder steps;
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    EXPECT_EQ(steps.TakeSteps(),
              (Lines{"data TypeAlpha", "allow Choice.1.value = [alpha, gamma]", "complete false false"}));
    EXPECT_EQ(bracket->StartConfiguration(), S_OK) << "none is open";
}

TEST_F(ProhibitTest, WithoutABracket_UpdatesAtEachWrite)
{
    MakeCastFail("VYRICfdConfigurable");
    ChoiceRecorder steps;
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
    EXPECT_EQ(steps.TakeSteps(),
              (Lines{"data TypeAlpha", "allow Choice.1.value = [alpha, gamma]", "complete false false"}));
}
} // namespace
