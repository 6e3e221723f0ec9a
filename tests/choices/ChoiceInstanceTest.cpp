/**
 * @file
 * The small operations of a Choice: its reads, its write, the opening of a bracket.
 */

#include "ChoiceTest.h"

namespace
{
class ChoiceInstanceTest : public ChoiceTest
{
};

// ---- the module's own class -----------------------------------------------------------------------------------------

TEST_F(ChoiceInstanceTest, OwnClass_UpdatesAndLetsAValueBeRepaired)
{
    const ORXISpecObject_var choice = Create("ChoiceTestThree", "Choice.1");
    const NotificationCounter notifications(choice);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    EXPECT_EQ(AllowedOf(choice), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(notifications.Count(), 2);

    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    EXPECT_EQ(notifications.Count(), 3) << "of the inner run alone";
}

TEST_F(ChoiceInstanceTest, BaseHooks_RepairAndAnswerNothingElse)
{
    TestChoice& instance = TestChoice::Of(Make(ThreeChoices()));
    ChoiceRecorder recorder;
    EXPECT_TRUE(instance.BaseFixInvalidChoice());
    EXPECT_EQ(instance.BaseCompleteUpdate(true, true), S_OK);
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceInstanceTest, FreshChoice_HasNoDataUntilItsFirstUpdate)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(choice), "");
    EXPECT_EQ(AllowedOf(choice), (Lines{"(no manipulator)"}));
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

// ---- brackets -------------------------------------------------------------------------------------------------------

TEST_F(ChoiceInstanceTest, StartConfiguration_OnAnOpenBracket_AnswersThatNothingWasDone)
{
    const VYRICfdConfigurable_var choice = ConfigurableOf(Make(ThreeChoices()));
    EXPECT_EQ(choice->StartConfiguration(), S_OK);
    EXPECT_EQ(choice->StartConfiguration(), S_FALSE);
    EXPECT_EQ(choice->StartConfiguration(), S_FALSE);
}

TEST_F(ChoiceInstanceTest, StartConfiguration_AfterTheBracketWasClosed_OpensAgain)
{
    const VYRICfdConfigurable_var choice = ConfigurableOf(Make(ThreeChoices()));
    EXPECT_EQ(choice->StartConfiguration(), S_OK);
    EXPECT_EQ(choice->CompleteConfiguration(), S_OK);
    EXPECT_EQ(choice->StartConfiguration(), S_OK);
}

// ---- the value ------------------------------------------------------------------------------------------------------

TEST_F(ChoiceInstanceTest, SetChoice_OutsideTheChoices_Succeeds)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(""), S_OK);
}

TEST_F(ChoiceInstanceTest, SetChoice_WritesUnchecked)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "omega");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(""), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "") << "an empty text is a value";
}

TEST_F(ChoiceInstanceTest, SetChoice_WhenTheUpdateFails_SucceedsAllTheSame)
{
    const ORXISpecObject_var choice = Make({{}, {}, "alpha", "", ""});
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() > 0", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
}

TEST_F(ChoiceInstanceTest, SetChoice_WithoutParameter_ReportsTheCall)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    Plant("GetParm", "value", "Choice.1");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::SetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, value)].SetString(iChoice)",
                                              "VYRCfdChoiceInstanceAdp::SetChoice")}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}

TEST_F(ChoiceInstanceTest, GetChoice_ReadsTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ORXUnicodeString value = "former";
    EXPECT_EQ(ChoiceOf(choice)->GetChoice(value), S_OK);
    EXPECT_EQ(value, ORXUnicodeString("alpha"));
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->GetChoice(value), S_OK);
    EXPECT_EQ(value, ORXUnicodeString("beta"));
}

TEST_F(ChoiceInstanceTest, GetChoice_OfAChoiceWithoutValue_IsEmpty)
{
    ORXUnicodeString value = "former";
    EXPECT_EQ(ChoiceOf(Create("ChoiceTestChoice", "Choice.1"))->GetChoice(value), S_OK);
    EXPECT_EQ(value, ORXUnicodeString());
}

TEST_F(ChoiceInstanceTest, GetChoice_WithoutParameter_ReportsTheCallAndLeavesTheArgument)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    Plant("GetParm", "value", "Choice.1");
    ORXUnicodeString value = "former";
    EXPECT_EQ(ChoiceOf(choice)->GetChoice(value), E_FAIL);
    EXPECT_EQ(value, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, value)].GetString(choice)",
                                              "VYRCfdChoiceInstanceAdp::GetChoice")}));
}

// ---- display --------------------------------------------------------------------------------------------------------

TEST_F(ChoiceInstanceTest, GetDefaultDisplay_ReadsTheDisplayText)
{
    ORXUnicodeString display = "former";
    EXPECT_EQ(ChoiceOf(Create("ChoiceTestThree", "Choice.1"))->GetDefaultDisplay(display), S_OK);
    EXPECT_EQ(display, ORXUnicodeString("Three"));
    EXPECT_EQ(ChoiceOf(Create("ChoiceTestChoice", "Choice.2"))->GetDefaultDisplay(display), S_OK);
    EXPECT_EQ(display, ORXUnicodeString());
}

TEST_F(ChoiceInstanceTest, GetDefaultDisplay_WithoutParameter_ReportsTheCallAndLeavesTheArgument)
{
    const ORXISpecObject_var choice = Create("ChoiceTestThree", "Choice.1");
    Plant("GetParm", "display", "Choice.1");
    ORXUnicodeString display = "former";
    EXPECT_EQ(ChoiceOf(choice)->GetDefaultDisplay(display), E_FAIL);
    EXPECT_EQ(display, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, display)].GetString(defaultDisplay)",
                                              "VYRCfdChoiceInstanceAdp::GetDefaultDisplay")}));
}

// ---- the list of choices --------------------------------------------------------------------------------------------

TEST_F(ChoiceInstanceTest, GetListOfChoices_AppendsInTheirOrder)
{
    const ORXISpecObject_var choice = Make({{"gamma", "alpha", "alpha"}, {}, "alpha", "", ""});
    std::vector<ORXUnicodeString> choices = Texts({"former"});
    EXPECT_EQ(ChoiceOf(choice)->GetListOfChoices(choices), S_OK);
    EXPECT_EQ(choices, Texts({"former", "gamma", "alpha", "alpha"}));
}

TEST_F(ChoiceInstanceTest, GetListOfChoices_OfAnEmptyList_AddsNothing)
{
    std::vector<ORXUnicodeString> choices = Texts({"former"});
    EXPECT_EQ(ChoiceOf(Create("ChoiceTestChoice", "Choice.1"))->GetListOfChoices(choices), S_OK);
    EXPECT_EQ(choices, Texts({"former"}));
}

TEST_F(ChoiceInstanceTest, GetListOfChoices_WithoutAttributeAccess_ReportsTheCallAndLeavesTheArgument)
{
    const VYRICfdChoice_var choice = ChoiceOf(Make(ThreeChoices()));
    Plant("QueryInterface", "ORXISpecAttrAccess", "Choice.1");
    std::vector<ORXUnicodeString> choices = Texts({"former"});
    EXPECT_EQ(choice->GetListOfChoices(choices), E_FAIL);
    EXPECT_EQ(choices, Texts({"former"}));
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::GetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].GetStrings(oListChoices)",
                                              "VYRCfdChoiceInstanceAdp::GetListOfChoices")}));
}

TEST_F(ChoiceInstanceTest, GetListOfChoicesNLS_TouchesNothing)
{
    const VYRICfdChoice_var choice = ChoiceOf(MakeUpdated(ThreeChoices()));
    std::vector<ORXUnicodeString> choices = Texts({"former"});
    VYRStandalone::SetErrorStatus(3);
    // Every host operation would fail, and count.
    MakeFail("", "");
    EXPECT_EQ(choice->GetListOfChoicesNLS(choices), E_NOTIMPL);
    EXPECT_EQ(static_cast<unsigned int>(E_NOTIMPL), 0x80004001U);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
    EXPECT_EQ(choices, Texts({"former"}));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 3);
}

// ---- below an owner -------------------------------------------------------------------------------------------------

TEST_F(ChoiceInstanceTest, ChoiceOfAnOwner_FollowsWhatTheOwnersTypeDeclaresForIt)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    const ORXISpecObject_var choice = At(owner, "model");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_FALSE(HasCustomDefault(choice));
    EXPECT_EQ(VYRStandalone::PathOf(DataOf(choice)), "Owner.1/model/Data");
}

TEST_F(ChoiceInstanceTest, SetChoice_BelowAnOwner_ChangesTheChoiceAndNotTheOwner)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    const ORXISpecObject_var choice = At(owner, "model");
    ASSERT_EQ(ChoiceOf(choice)->Update(), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(recorder.Take(), (Lines{
                                   "write Owner.1/model.value = gamma",
                                   "advise Owner.1/model.value = gamma",
                                   "add Owner.1/model/defaultManagement.value_isset",
                                   "write Owner.1/model/defaultManagement.value_isset = true",
                                   "advise Owner.1/model/defaultManagement.value_isset = true",
                                   "done Owner.1/model/defaultManagement.value_isset",
                                   "data TypeGamma",
                                   "name TypeGamma",
                                   "create TypeGamma TypeGammaInst",
                                   "write Owner.1/model.Data = TypeGammaInst",
                                   "advise Owner.1/model.Data = TypeGammaInst",
                                   "done Owner.1/model.Data",
                                   "complete true true",
                                   "dispatch Owner.1/model",
                                   "done Owner.1/model.value",
                               }));
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    EXPECT_EQ(SetFlagOf(owner, "model"), "absent");
    EXPECT_EQ(SetFlagOf(owner, "value"), "absent");
    EXPECT_EQ(m_model.Objects().size(), 1U) << "the data object is nobody's but the Choice's";
}

TEST_F(ChoiceInstanceTest, TwoChoicesOfOneOwner_KeepToThemselves)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    ASSERT_EQ(ChoiceOf(At(owner, "model"))->SetChoice("alpha"), S_OK);
    ASSERT_EQ(ChoiceOf(At(owner, "kind"))->SetChoice("two"), S_OK);
    EXPECT_EQ(ValueOf(At(owner, "model"), "value"), "alpha");
    EXPECT_EQ(ValueOf(At(owner, "kind"), "value"), "two");
    EXPECT_EQ(DataTypeOf(At(owner, "model")), "TypeAlpha");
    EXPECT_EQ(DataTypeOf(At(owner, "kind")), "");
    EXPECT_EQ(DefaultOf(At(owner, "kind"), "value"), "one");
}
} // namespace
