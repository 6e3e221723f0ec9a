/**
 * @file
 * Returning to the declared choices.
 */

#include "ManagerTest.h"

namespace
{
class ResetTest : public ManagerTest
{
};

TEST_F(ResetTest, ToTheDeclaredDefault_BringsListsDefaultAndDisplayTextBack)
{
    ASSERT_EQ(Configure({"gamma", "beta"}, "beta", "Two"), S_OK);
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha", "TypeBeta", "TypeGamma"}));
    EXPECT_EQ(ValueOf(m_choice, "display"), "Three");
    EXPECT_TRUE(HasCustomDefault(m_choice)) << "the declared default has become the custom one";
    EXPECT_EQ(DefaultOf(m_choice, "value"), "alpha");
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_EQ(AllowedOf(m_choice), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ResetTest, KeepingTheValue_MakesThePresentValueTheCustomDefault)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    ASSERT_EQ(m_manager->ProhibitChoice("alpha"), S_OK);
    EXPECT_EQ(m_manager->Reset(ORXTrue), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_TRUE(HasCustomDefault(m_choice));
    EXPECT_EQ(DefaultOf(m_choice, "value"), "gamma");
    EXPECT_EQ(ValueOf(m_choice, "value"), "gamma");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "true") << "the value itself is not touched";
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ResetTest, SetValueThatIsDeclared_StaysAlsoWhereItIsNotToBeKept)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "gamma");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "true");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeGamma");
}

TEST_F(ResetTest, ValueThatIsNotSet_FollowsTheDefault)
{
    ASSERT_EQ(m_manager->ProhibitChoice("alpha"), S_OK);
    ASSERT_EQ(ValueOf(m_choice, "value"), "beta");
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ResetTest, ValueThatIsNotSetAndKept_Stays)
{
    ASSERT_EQ(m_manager->ProhibitChoice("alpha"), S_OK);
    EXPECT_EQ(m_manager->Reset(ORXTrue), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "beta");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ResetTest, SetValueThatIsNotDeclared_FallsBack)
{
    ASSERT_EQ(ChoiceOf(m_choice)->Configure(Texts({"x", "y", "z"}), Texts({"", "", ""}), "x", ""), S_OK);
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("z"), S_OK);
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "false");
}

TEST_F(ResetTest, KeptValueThatIsNotDeclared_GivesWayToTheFirstChoiceWithoutAWord)
{
    ASSERT_EQ(ChoiceOf(m_choice)->Configure(Texts({"x", "y", "z"}), Texts({"", "", ""}), "y", ""), S_OK);
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("z"), S_OK);
    EXPECT_EQ(m_manager->Reset(ORXTrue), S_OK);
    EXPECT_EQ(DefaultOf(m_choice, "value"), "alpha");
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
}

TEST_F(ResetTest, AnyNonzero_KeepsTheValue)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(m_manager->Reset(2), S_OK);
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
}

TEST_F(ResetTest, EmptyDeclaredDisplayText_LeavesThatOfTheFeature)
{
    Take({{"alpha", "beta", "gamma"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "alpha", "", ""});
    Write(m_choice, "display", "Mine");
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "display"), "Mine");
}

TEST_F(ResetTest, WithoutADeclaredValue_HandsOnNoDefault)
{
    Take({{"alpha", "beta"}, {}, std::nullopt, "", ""});
    // Its first update has made the first choice the custom default.
    ASSERT_EQ(ValueOf(m_choice, "value"), "alpha");
    KeepDefault(m_choice, "beta");
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta") << "the custom default stands";
}

TEST_F(ResetTest, InAllItsSteps)
{
    ASSERT_EQ(m_manager->ProhibitChoice("gamma"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(
        WritesAndSteps(calls.Take()),
        (Lines{"write Choice.1.choices = [alpha, beta, gamma]",
               "write Choice.1.Startups = [TypeAlpha, TypeBeta, TypeGamma]", "data TypeAlpha",
               "allow Choice.1.value = [alpha, beta, gamma]", "complete false false", "write Choice.1.display = Three",
               "data TypeAlpha", "write Choice.1/defaultManagement.value_isset = false", "write Choice.1.value = alpha",
               "data TypeAlpha", "complete true false", "dispatch Choice.1",
               "write Choice.1/defaultManagement.value_isset = false", "data TypeAlpha", "complete false false",
               "complete false false"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(ResetTest, InsideABracket_AnswersThatItIsHeldBack)
{
    ASSERT_EQ(ConfigurableOf(m_choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(m_manager->Reset(ORXTrue), S_FALSE);
    EXPECT_FALSE(HasCustomDefault(m_choice));
}

TEST_F(ResetTest, FailureOfTheChoice_IsReportedByTheChoiceAlone)
{
    MakeCastFail("ORXISpecAttrAccess");
    EXPECT_EQ(m_manager->Reset(ORXFalse), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::SetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].SetStrings(iChoices)",
                                              "VYRCfdChoiceInstanceAdp::Configure")}));
}

TEST_F(ResetTest, WithoutDefaultManagement_IsRefused)
{
    MakeCastFail("VYRIMpaDefaultManagementProtected");
    EXPECT_EQ(m_manager->Reset(ORXFalse), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spDefMgmt != NULL_var", ResetChoices)}));
}

TEST_F(ResetTest, ValueAndDisplayTextThatCannotBeRead_StopNothing)
{
    Plant("GetParm", "value", StartupPath().c_str());
    Plant("GetParm", "display", StartupPath().c_str());
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    const Record unread = Assertion("spParm", "VYRCfdObjectAccess::GetString");
    EXPECT_EQ(Reported(), (Records{unread, unread}));
    EXPECT_FALSE(HasCustomDefault(m_choice)) << "an empty default is none";
}

TEST_F(ResetTest, LengthsOfTheDeclaredLists_AreComparedAfterTheReads)
{
    m_choice = Make({{"alpha", "beta"}, {"TypeAlpha"}, "alpha", "", ""});
    m_manager = ManagerOf(m_choice);
    Plant("GetParm", "value", StartupPath().c_str());
    Plant("GetParm", "display", StartupPath().c_str());
    EXPECT_EQ(m_manager->Reset(ORXFalse), E_FAIL);
    const Record unread = Assertion("spParm", "VYRCfdObjectAccess::GetString");
    EXPECT_EQ(Reported(),
              (Records{unread, unread, Assertion("startupChoices.size() == startupStartups.size()", ResetChoices)}));
}
} // namespace
