/**
 * @file
 * Configuring a Choice, and the brackets that hold updates back.
 */

#include "ChoiceTest.h"
#include "VYRCfdConfigurableTransaction.h"

namespace
{
constexpr const char* Configure = "VYRCfdChoiceInstanceAdp::Configure";

class ChoiceConfigureTest : public ChoiceTest
{
};

// ---- what is written ------------------------------------------------------------------------------------------------

TEST_F(ChoiceConfigureTest, Configure_SetsListsDisplayAndDefault)
{
    const ORXISpecObject_var choice = Create("ChoiceTestChoice", "Choice.1");
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha", "beta"}), Texts({"TypeAlpha", "TypeBeta"}), "beta", "Kind"),
              S_OK);
    EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"alpha", "beta"}));
    EXPECT_EQ(TextsOf(choice, "Startups"), (Lines{"TypeAlpha", "TypeBeta"}));
    EXPECT_EQ(ValueOf(choice, "display"), "Kind");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(AllowedOf(choice), (Lines{"alpha", "beta"}));
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

TEST_F(ChoiceConfigureTest, Configure_WithoutStartups_ClearsThoseOfEarlierAndTheData)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(DataTypeOf(choice), "TypeAlpha");
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha", "beta", "gamma"}), {}, "", ""), S_OK);
    EXPECT_EQ(TextsOf(choice, "Startups"), Lines{});
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceConfigureTest, ShortConfigure_IsTheOneWithoutStartups)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"gamma", "beta", "alpha"}), "beta", "Kind"), S_OK);
    EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"gamma", "beta", "alpha"}));
    EXPECT_EQ(TextsOf(choice, "Startups"), Lines{});
    EXPECT_EQ(ValueOf(choice, "display"), "Kind");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(ChoiceConfigureTest, ShortConfigure_AnswersWhatTheUpdateAnswers)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha"}, {}, "alpha", "", ""});
    EXPECT_EQ(ChoiceOf(choice)->Configure({}, "", ""), E_FAIL);
    const Record report = Assertion("choices.size() > 0", Update);
    EXPECT_EQ(Reported(), (Records{report, report, report})) << "after each of the writes, and at the end";
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha"}), "", ""), S_FALSE);
}

TEST_F(ChoiceConfigureTest, EmptyDisplay_KeepsTheFormer)
{
    const ORXISpecObject_var choice = Make({{"alpha"}, {}, "alpha", "Former", ""});
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha"}), "", ""), S_OK);
    EXPECT_EQ(ValueOf(choice, "display"), "Former");
    for (const std::string& line : Only(recorder.Take(), {"write"}))
        EXPECT_EQ(line.find(".display"), std::string::npos) << line;
}

TEST_F(ChoiceConfigureTest, EmptyDefault_KeepsTheFormer)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "beta", "", ""});
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha", "beta", "gamma"}), "", ""), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_FALSE(HasCustomDefault(choice));
}

TEST_F(ChoiceConfigureTest, Default_LeavesAValueThatIsSet)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha", "beta", "gamma"}), "beta", ""), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
}

TEST_F(ChoiceConfigureTest, DefaultOutsideTheChoices_GivesWayToTheFirst)
{
    const ORXISpecObject_var choice = Create("ChoiceTestChoice", "Choice.1");
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"beta", "alpha"}), "omega", ""), S_OK);
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
}

TEST_F(ChoiceConfigureTest, SetValueThatIsNoChoiceAnyMore_BecomesTheFirstOfTheNewListOnTheWay)
{
    // The default that is given comes only with the last update: by then the value has followed another one.
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"gamma", "delta"}), "delta", ""), S_OK);
    EXPECT_EQ(Only(recorder.Take(), {"write"}), (Lines{
                                                    "write Choice.1.choices = [gamma, delta]",
                                                    "write Choice.1.value = gamma",
                                                    "write Choice.1/defaultManagement.value_isset = false",
                                                    "write Choice.1.Startups = []",
                                                    "write Choice.1.value = delta",
                                                    "write Choice.1/defaultManagement.value_isset = false",
                                                }));
    EXPECT_EQ(ValueOf(choice, "value"), "delta");
    EXPECT_EQ(SetFlagOf(choice, "value"), "false");
}

// ---- lengths --------------------------------------------------------------------------------------------------------

TEST_F(ChoiceConfigureTest, OtherNumberOfStartups_IsReportedAndNothingIsWritten)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChoiceRecorder recorder;
    const VYRICfdChoice_var interface = ChoiceOf(choice);
    EXPECT_EQ(interface->Configure(Texts({"a", "b", "c"}), Texts({"TypeAlpha", "TypeBeta"}), "b", "Kind"), E_FAIL);
    EXPECT_EQ(interface->Configure(Texts({"a"}), Texts({"TypeAlpha", "TypeBeta"}), "a", "Kind"), E_FAIL);
    EXPECT_EQ(interface->Configure({}, Texts({"TypeAlpha"}), "", ""), E_FAIL);
    const Record report = Assertion("iStartups.size() == 0 || iStartups.size() == iChoices.size()", Configure);
    EXPECT_EQ(Reported(), (Records{report, report, report}));
    EXPECT_EQ(recorder.Take(), Lines{});
    EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
}

TEST_F(ChoiceConfigureTest, OtherNumberOfChoices_IsReportedOnTheWayAndSetStraightAtTheEnd)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"beta", "alpha"}), Texts({"TypeBeta", "TypeAlpha"}), "beta", ""),
              S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", Update)}));
    EXPECT_EQ(AllowedOf(choice), (Lines{"beta", "alpha"}));
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
}

TEST_F(ChoiceConfigureTest, OtherNumberOfChoicesInABracket_IsNotReported)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    {
        const VYRCfdConfigurableTransaction bracket(ConfigurableOf(choice));
        EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"beta", "alpha"}), Texts({"TypeBeta", "TypeAlpha"}), "beta", ""),
                  S_FALSE);
        EXPECT_EQ(AllowedOf(choice), (Lines{"alpha", "beta", "gamma"}));
    }
    EXPECT_EQ(AllowedOf(choice), (Lines{"beta", "alpha"}));
    EXPECT_EQ(ValueOf(choice, "value"), "alpha") << "the default is forgotten";
    EXPECT_EQ(DefaultOf(choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

// ---- writes that fail -----------------------------------------------------------------------------------------------

TEST_F(ChoiceConfigureTest, WithoutAttributeAccess_TheChoicesAreWhatIsReported)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    TestChoice& instance = TestChoice::Of(choice);
    Plant("QueryInterface", "ORXISpecAttrAccess", "Choice.1");
    ChoiceRecorder recorder;
    EXPECT_EQ(instance.Configure(Texts({"alpha"}), {}, "", "Kind"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::SetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].SetStrings(iChoices)", Configure)}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceConfigureTest, DisplayThatCannotBeWritten_IsReportedAndTheListsStay)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "beta", "Former", ""});
    Plant("GetParm", "display", "Choice.1");
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"gamma", "beta"}), "gamma", "Kind"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::SetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, display)].SetString(iDisplay)", Configure)}));
    EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"gamma", "beta"}));
    EXPECT_EQ(AllowedOf(choice), (Lines{"gamma", "beta"})) << "the write's own update has run";
    EXPECT_EQ(ValueOf(choice, "display"), "Former");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta") << "the last update has not";
}

TEST_F(ChoiceConfigureTest, DisplayIsWrittenLast)
{
    const ORXISpecObject_var choice = Make({{"alpha"}, {}, "alpha", "Former", ""});
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"beta"}), Texts({"TypeBeta"}), "", "Kind"), S_FALSE);
    EXPECT_EQ(Only(recorder.Take(), {"write"}),
              (Lines{"write Choice.1.choices = [beta]", "write Choice.1.Startups = [TypeBeta]",
                     "write Choice.1.display = Kind"}));
}

TEST_F(ChoiceConfigureTest, ListThatTheHostRefuses_IsNotNoticed)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "beta", "", ""});
    Plant("SetStringList", "choices");
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"gamma"}), "", ""), S_OK);
    EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"alpha", "beta"}));
}

// ---- brackets -------------------------------------------------------------------------------------------------------

TEST_F(ChoiceConfigureTest, CompleteConfiguration_WithoutABracket_IsAnUpdate)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    ChoiceRecorder recorder;
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(),
              (Lines{"data TypeAlpha", "name TypeAlpha", "create TypeAlpha TypeAlphaInst",
                     "allow Choice.1.value = [alpha, beta, gamma]", "complete false true", "dispatch Choice.1"}));
}

TEST_F(ChoiceConfigureTest, CompleteConfiguration_AnswersWhatTheUpdateAnswers)
{
    const ORXISpecObject_var choice = Make({{}, {}, "alpha", "", ""});
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() > 0", Update)}));
    constexpr HRESULT refused = static_cast<HRESULT>(0x80040123U);
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return refused; };
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    WriteTexts(choice, "choices", {"alpha"});
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), refused);
    EXPECT_EQ(Reported(), (Records{FailedCall("CompleteUpdate(wasValueChange, dataChange)", Update, refused)}));
}

TEST_F(ChoiceConfigureTest, CompleteConfiguration_WhoseUpdateFails_HasClosedTheBracket)
{
    const ORXISpecObject_var choice = Make({{}, {}, "alpha", "", ""});
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), E_FAIL);
    EXPECT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() > 0", Update)}));
}

TEST_F(ChoiceConfigureTest, OneCompletion_ClosesABracketThatWasOpenedTwice)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const VYRICfdConfigurable_var configurable = ConfigurableOf(choice);
    ASSERT_EQ(configurable->StartConfiguration(), S_OK);
    ASSERT_EQ(configurable->StartConfiguration(), S_FALSE);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(configurable->CompleteConfiguration(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma") << "no bracket is left";
}

TEST_F(ChoiceConfigureTest, InnerTransaction_ClosesTheOuterOneToo)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const VYRCfdConfigurableTransaction outer(ConfigurableOf(choice));
    {
        const VYRCfdConfigurableTransaction inner(ConfigurableOf(choice));
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
        EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    }
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}

TEST_F(ChoiceConfigureTest, ValueWrittenInABracket_IsToldByTheUpdateThatClosesIt)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const NotificationCounter notifications(choice);
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    ChoiceRecorder recorder;
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), Lines{});
    EXPECT_EQ(SetFlagOf(choice, "value"), "true") << "the flag does not wait";
    EXPECT_EQ(notifications.Count(), 0);
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(recorder.TakeSteps(), (Lines{"data TypeAlpha", "complete true false", "dispatch Choice.1"}));
    EXPECT_EQ(notifications.Count(), 1);
}

TEST_F(ChoiceConfigureTest, InvalidValueWrittenInABracket_IsRepairedAtItsEnd)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("delta"), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "delta");
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}

TEST_F(ChoiceConfigureTest, ValueWrittenBeforeItsChoices_IsSafeInABracket)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    {
        const VYRCfdConfigurableTransaction bracket(ConfigurableOf(choice));
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("delta"), S_OK);
        WriteTexts(choice, "choices", {"delta", "alpha"});
        WriteTexts(choice, "Startups", {"TypeGamma", "TypeAlpha"});
    }
    EXPECT_EQ(ValueOf(choice, "value"), "delta");
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}

TEST_F(ChoiceConfigureTest, CustomDefaultInABracket_IsKeptAndItsValueWritten)
{
    // Default management does not know of the bracket: the value follows at once, the data at the end.
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    ORXUnicodeString text = "beta";
    EXPECT_EQ(DefaultManagementOf(choice)->SetCustomDefault("value", text), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(DefaultOf(choice, "value"), "beta");
}
} // namespace
