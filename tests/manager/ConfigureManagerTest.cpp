/**
 * @file
 * Restricting a Choice to some of its declared choices.
 */

#include <ostream>

#include "ManagerTest.h"

namespace
{
class ConfigureManagerTest : public ManagerTest
{
};

TEST_F(ConfigureManagerTest, Subset_KeepsTheGivenOrderAndPairsEachChoiceWithItsDeclaredStartup)
{
    EXPECT_EQ(Configure({"gamma", "alpha"}, "gamma", "Two"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"gamma", "alpha"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeGamma", "TypeAlpha"}));
    EXPECT_EQ(ValueOf(m_choice, "display"), "Two");
    EXPECT_EQ(ValueOf(m_choice, "value"), "gamma");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeGamma");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "gamma");
    EXPECT_EQ(AllowedOf(m_choice), (Lines{"gamma", "alpha"}));
    // The lists are written one after the other, and the update in between sees them unequal.
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ConfigureManagerTest, Subset_InAllItsSteps)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Configure({"gamma", "alpha"}, "alpha", "Two"), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()),
              (Lines{"manage [gamma, alpha] alpha Two", "write Choice.1.choices = [gamma, alpha]",
                     // No bracket is open, so this update runs, and fails over the lists.
                     "write Choice.1.Startups = [TypeGamma, TypeAlpha]", "data TypeAlpha",
                     "allow Choice.1.value = [gamma, alpha]", "complete false false", "write Choice.1.display = Two",
                     // The update with the default, which becomes the custom default and is written into the value.
                     "data TypeAlpha", "write Choice.1/defaultManagement.value_isset = false",
                     "write Choice.1.value = alpha", "data TypeAlpha", "complete true false", "dispatch Choice.1",
                     "write Choice.1/defaultManagement.value_isset = false", "data TypeAlpha", "complete false false",
                     "complete false false"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ConfigureManagerTest, OtherOrder_PassesThroughTheDataOfTheOldStartup)
{
    // The lists stay equally long, so the update between their writes sees the new choices beside the old startups.
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Configure({"gamma", "beta", "alpha"}, "beta"), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()), (Lines{"manage [gamma, beta, alpha] beta",
                                                   "write Choice.1.choices = [gamma, beta, alpha]",
                                                   "data TypeGamma",
                                                   "name TypeGamma",
                                                   "create TypeGamma TypeGammaInst",
                                                   "write Choice.1.Data = TypeGammaInst",
                                                   "allow Choice.1.value = [gamma, beta, alpha]",
                                                   "complete false true",
                                                   "dispatch Choice.1",
                                                   "write Choice.1.Startups = [TypeGamma, TypeBeta, TypeAlpha]",
                                                   "data TypeAlpha",
                                                   "name TypeAlpha",
                                                   "create TypeAlpha TypeAlphaInst",
                                                   "write Choice.1.Data = TypeAlphaInst",
                                                   "complete false true",
                                                   "dispatch Choice.1",
                                                   "data TypeAlpha",
                                                   "write Choice.1/defaultManagement.value_isset = false",
                                                   "write Choice.1.value = beta",
                                                   "data TypeBeta",
                                                   "name TypeBeta",
                                                   "create TypeBeta TypeBetaInst",
                                                   "write Choice.1.Data = TypeBetaInst",
                                                   "complete true true",
                                                   "dispatch Choice.1",
                                                   "write Choice.1/defaultManagement.value_isset = false",
                                                   "data TypeBeta",
                                                   "complete false false",
                                                   "complete false false"}));
}

TEST_F(ConfigureManagerTest, WhatWasTakenOut_CanBeConfiguredAgain)
{
    ASSERT_EQ(Configure({"beta"}, "beta"), S_OK);
    EXPECT_EQ(Configure({"gamma", "beta", "alpha"}, "gamma"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"gamma", "beta", "alpha"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeGamma", "TypeBeta", "TypeAlpha"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "gamma");
    EXPECT_EQ(Reported(), (Records{UnequalLists(), UnequalLists()}));
}

TEST_F(ConfigureManagerTest, SetValueThatIsTakenOut_FallsBackToTheDefault)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(Configure({"alpha", "beta"}, "beta"), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "false");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeBeta");
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ConfigureManagerTest, WithoutDeclaredStartups_ClearsThoseOfTheFeature)
{
    Take({{"a", "b"}, {}, "a", "", ""});
    WriteTexts(m_choice, "Startups", {"TypeAlpha", "TypeBeta"});
    ASSERT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_EQ(Configure({"a", "b"}, "b"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "Startups"), Lines{});
    EXPECT_EQ(DataTypeOf(m_choice), "");
    EXPECT_EQ(ValueOf(m_choice, "value"), "b");
}

TEST_F(ConfigureManagerTest, WithoutADisplayText_LeavesTheOldOne)
{
    EXPECT_EQ(Configure({"alpha", "beta", "gamma"}, "beta", ""), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "display"), "Three");
}

TEST_F(ConfigureManagerTest, ChoiceGivenTwice_StandsTwice)
{
    EXPECT_EQ(Configure({"beta", "alpha", "beta"}, "beta"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"beta", "alpha", "beta"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeBeta", "TypeAlpha", "TypeBeta"}));
}

TEST_F(ConfigureManagerTest, ChoiceDeclaredTwice_GetsTheStartupOfItsFirstPlace)
{
    Take({{"a", "b", "a"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "b", "", ""});
    EXPECT_EQ(Configure({"a"}, "a"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

struct Refused
{
    const char* name;
    Lines choices;
    const char* defaultChoice;
    Record report;
};

void PrintTo(const Refused& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class RefusedConfigurationTest : public ManagerTest, public testing::WithParamInterface<Refused>
{
};

TEST_P(RefusedConfigurationTest, WritesNothing)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Configure(GetParam().choices, GetParam().defaultChoice, "Other"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{GetParam().report}));
    EXPECT_EQ(Only(calls.Take(), {"write", "allow", "data", "complete"}), Lines{});
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(ValueOf(m_choice, "display"), "Three");
}

const Refused refused[] = {
    {"NoChoice", {}, "alpha", Assertion("iChoices.size() > 0", Manage)},
    {"Undeclared", {"delta"}, "delta", Error("Invalid choice delta", Manage)},
    {"UndeclaredBehindTheDefault", {"alpha", "delta"}, "alpha", Error("Invalid choice delta", Manage)},
    {"FirstOfTwoUndeclared", {"alpha", "delta", "epsilon"}, "alpha", Error("Invalid choice delta", Manage)},
    {"UndeclaredAndNoDefault", {"alpha", "delta"}, "gamma", Error("Invalid choice delta", Manage)},
    {"OtherCase", {"Alpha"}, "Alpha", Error("Invalid choice Alpha", Manage)},
    {"EmptyChoice", {"alpha", ""}, "alpha", Error("Invalid choice ", Manage)},
    {"PercentSign", {"50%d"}, "50%d", Error("Invalid choice 50%d", Manage)},
    {"DefaultOutside", {"alpha", "beta"}, "gamma", Assertion("defaultFound", Manage)},
    {"EmptyDefault", {"alpha", "beta"}, "", Assertion("defaultFound", Manage)},
};

INSTANTIATE_TEST_SUITE_P(Configurations, RefusedConfigurationTest, testing::ValuesIn(refused),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ConfigureManagerTest, EmptyTextThatIsDeclared_IsAChoiceAndADefaultLikeAnyOther)
{
    Take({{"", "on"}, {}, "on", "", ""});
    EXPECT_EQ(Configure({"", "on"}, ""), S_OK);
    // As the empty default of the update it means none, so the declared one stays.
    EXPECT_EQ(DefaultOf(m_choice, "value"), "on");
    EXPECT_FALSE(HasCustomDefault(m_choice));
}

TEST_F(ConfigureManagerTest, Answer_IsThatOfTheChoice)
{
    ASSERT_EQ(ConfigurableOf(m_choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(Configure({"gamma", "alpha"}, "gamma"), S_FALSE) << "a bracket holds the update back";
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"gamma", "alpha"}));
    EXPECT_FALSE(HasCustomDefault(m_choice)) << "and forgets the default";
}

TEST_F(ConfigureManagerTest, FailureOfTheChoice_IsReportedByTheChoiceAlone)
{
    MakeCastFail("ORXISpecAttrAccess");
    EXPECT_EQ(Configure({"gamma", "alpha"}, "gamma"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::SetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].SetStrings(iChoices)",
                                              "VYRCfdChoiceInstanceAdp::Configure")}));
}

TEST_F(ConfigureManagerTest, DeclarationThatCannotBeRead_IsAnEmptyOne)
{
    MakeCastFail("ORXISpecAttrAccess", StartupPath());
    EXPECT_EQ(Configure({"alpha"}, "alpha"), E_FAIL);
    const Record unread = Error("Null initialization c", "VYRCfdObjectAccess::GetStrings");
    EXPECT_EQ(Reported(), (Records{unread, unread, Error("Invalid choice alpha", Manage)}));
}
} // namespace
