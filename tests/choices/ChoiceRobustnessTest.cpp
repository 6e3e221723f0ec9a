/**
 * @file
 * Listeners and subscribers that do what they should not: nothing breaks, and nothing stays behind.
 */

#include "BoundedStack.h"
#include "Culprit.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"

namespace
{
class ChoiceRobustnessTest : public ChoiceLeakTest
{
};

/// The value whose writing reaches a place: a choice, or none for the repair.
const char* ValueFor(Place iPlace)
{
    return iPlace == Place::RepairHook ? "omega" : "beta";
}

class ChoicePlaceTest : public ChoiceRobustnessTest, public testing::WithParamInterface<PlaceCase>
{
};

INSTANTIATE_TEST_SUITE_P(Places, ChoicePlaceTest, testing::ValuesIn(Places),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

// ---- who closes the model -------------------------------------------------------------------------------------------

TEST_P(ChoicePlaceTest, ModelClosed_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [this] { m_model.Close(); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    EXPECT_TRUE(m_model.Objects().empty());
    // It is still held, and works on outside every model.
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}

TEST_P(ChoicePlaceTest, ModelClosed_WithNobodyElseHoldingTheChoice)
{
    ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [this] { m_model.Close(); });
    const ORXICkeParm_var parameter = Cursor(choice)["value"].GetParm();
    // Only the writer's reference on the parameter is left, which is one on the object.
    choice = NULL_var;
    parameter->Valuate(ORXUnicodeString(ValueFor(GetParam().place)));
    EXPECT_TRUE(culprit.HasActed());
    EXPECT_TRUE(m_model.Objects().empty());
}

TEST_P(ChoicePlaceTest, OwnersModelClosed_InsideAChangeOfTheValue)
{
    Create("ChoiceTestOwner", "Owner.1");
    const ORXISpecObject_var choice = At(m_model.Find("Owner.1"), "model");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    const Culprit culprit(GetParam().place, choice, [this] { m_model.Close(); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(GetParam().place == Place::RepairHook ? "omega" : "gamma"), S_OK);
    EXPECT_TRUE(culprit.HasActed());
}

TEST_P(ChoicePlaceTest, ModelClosed_InsideAFreshConfiguration)
{
    const ORXISpecObject_var choice = Create("ChoiceTestHooked", "Choice.1");
    const Culprit culprit(GetParam().place, choice, [this] { m_model.Close(); });
    EXPECT_EQ(ChoiceOf(choice)->Configure(Texts({"alpha", "beta"}), Texts({"TypeAlpha", "TypeBeta"}), "beta", "Kind"),
              S_OK);
    EXPECT_TRUE(culprit.HasActed());
    // Data objects are made in the model: what has been made before its end goes with the next value.
    EXPECT_EQ(DataTypeOf(choice), "");
    EXPECT_EQ(ValueOf(choice, "value"), "beta");
    EXPECT_EQ(ValueOf(choice, "display"), "Kind");
}

// ---- who throws the data away ---------------------------------------------------------------------------------------

TEST_P(ChoicePlaceTest, DataThrownAway_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [&] { WriteObject(choice, "Data", NULL_var); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    // The next update makes good what is missing.
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), GetParam().place == Place::RepairHook ? "TypeAlpha" : "TypeBeta");
}

TEST_P(ChoicePlaceTest, DataReplacedByAForeignObject_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice,
                          [&] { WriteObject(choice, "Data", Create("TypeGamma", "Foreign.1")); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), GetParam().place == Place::RepairHook ? "TypeAlpha" : "TypeBeta");
}

// ---- who writes again -----------------------------------------------------------------------------------------------

TEST_P(ChoicePlaceTest, ValueWrittenAgain_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [&] { ChoiceOf(choice)->SetChoice("gamma"); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    if (GetParam().place == Place::RepairHook)
    {
        EXPECT_EQ(ValueOf(choice, "value"), "alpha") << "the outer run unsets what it has found set";
        EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
        return;
    }
    EXPECT_EQ(ValueOf(choice, "value"), "gamma");
    // An outer run goes on with the startup that it had read, so that a write before the data is made is overtaken.
    const bool isOvertaken = GetParam().place == Place::DataHook || GetParam().place == Place::NameHook;
    EXPECT_EQ(DataTypeOf(choice), isOvertaken ? "TypeBeta" : "TypeGamma");
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}

TEST_P(ChoicePlaceTest, ChoicesTakenAway_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [&] {
        WriteTexts(choice, "Startups", {});
        WriteTexts(choice, "choices", {});
    });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    // The write of the choices, and behind a repair the default that is written back.
    EXPECT_EQ(Reported(), Records(GetParam().place == Place::RepairHook ? 2 : 1,
                                  Assertion("choices.size() > 0", "VYRCfdChoiceInstanceAdp::Update")));
}

TEST_P(ChoicePlaceTest, BracketOpened_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [&] { ConfigurableOf(choice)->StartConfiguration(); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    EXPECT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_FALSE);
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(DataTypeOf(choice), GetParam().place == Place::RepairHook ? "TypeAlpha" : "TypeBeta");
}

TEST_P(ChoicePlaceTest, ConfiguredAnew_InsideAChangeOfTheValue)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(GetParam().place, choice, [&] {
        ChoiceOf(choice)->Configure(Texts({"one", "two"}), {}, "two", "");
    });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice(ValueFor(GetParam().place)), S_OK);
    EXPECT_TRUE(culprit.HasActed());
    // The new choices beside the old startups.
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(ValueOf(choice, "value"), "two");
    EXPECT_EQ(DataTypeOf(choice), "");
    EXPECT_EQ(AllowedOf(choice), (Lines{"one", "two"}));
}

// ---- data in use ----------------------------------------------------------------------------------------------------

TEST_F(ChoiceRobustnessTest, DataObjectThatIsHeld_OutlivesItsChoice)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const ORXISpecObject_var data = DataOf(choice);
    Write(data, "count", "7");
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(ValueOf(data, "count"), "7");
    EXPECT_TRUE(ORXISpecObject_var::Adopt(data->GetOwner()) == NULL_var);
}

TEST_F(ChoiceRobustnessTest, DataObjectOfAnotherValue_IsGone)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    const int before = VYRStandalone::LiveComponents();
    for (int i = 0; i < 10; ++i)
    {
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
    EXPECT_EQ(m_model.Objects().size(), 1U);
}

// ---- auto flags below a Values feature ------------------------------------------------------------------------------

class ChoiceAutoFlagTest : public ChoiceRobustnessTest
{
protected:
    /// Writes a companion of a sub-feature, as anybody may.
    static void WriteFlag(const ORXISpecObject_var& iSubFeature, const char* iName, bool iValue)
    {
        const ORXISpecAttribute_var flag =
            ORXISpecAttribute_var::Adopt(iSubFeature->AddAttribute(iName, tk_boolean, 1));
        ASSERT_FALSE(!flag);
        ASSERT_EQ(flag->SetBoolean(iValue ? ORXTrue : ORXFalse), S_OK);
    }
};

TEST_F(ChoiceAutoFlagTest, FlagOfTheChoicesValue_ReachesTheValuesFeatureAboveAndEnds)
{
    OnBoundedStack(256, [this] {
        const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
        const ORXISpecObject_var choice = At(owner, "model");
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
        VYRStandalone::CallRecorder calls;
        WriteFlag(At(choice, "defaultManagement"), "value_isauto", true);
        EXPECT_EQ(calls.Take(), (Lines{
                                    "add Owner.1/model/defaultManagement.value_isauto",
                                    "write Owner.1/model/defaultManagement.value_isauto = true",
                                    "advise Owner.1/model/defaultManagement.value_isauto = true",
                                    "add Owner.1/defaultManagement.value_isauto",
                                    "write Owner.1/defaultManagement.value_isauto = true",
                                    "advise Owner.1/defaultManagement.value_isauto = true",
                                    "done Owner.1/defaultManagement.value_isauto",
                                    "done Owner.1/model/defaultManagement.value_isauto",
                                }));
        EXPECT_EQ(AutoFlagOf(owner, "value"), "true");
        EXPECT_EQ(ValueOf(choice, "value"), "gamma") << "the Choice itself is not looked at";
        EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    });
}

TEST_F(ChoiceAutoFlagTest, FlagOfAnAttributeOfTheFeatureAbove_ResetsThatAttribute)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    Write(owner, "steps", "40");
    WriteFlag(At(owner, "model/defaultManagement"), "steps_isauto", false);
    EXPECT_EQ(ValueOf(owner, "steps"), "40");
    WriteFlag(At(owner, "model/defaultManagement"), "steps_isauto", true);
    EXPECT_EQ(ValueOf(owner, "steps"), "10");
    EXPECT_EQ(AutoFlagOf(owner, "steps"), "true");
}

TEST_F(ChoiceAutoFlagTest, ChoicesOwnDefaultManagement_ResetsTheValueAndReachesTheFeatureAbove)
{
    OnBoundedStack(256, [this] {
        const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
        const ORXISpecObject_var choice = At(owner, "model");
        ASSERT_EQ(DefaultManagementOf(choice)->SetIsAuto("value", ORXFalse), S_OK);
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
        EXPECT_EQ(DefaultManagementOf(choice)->SetIsAuto("value", ORXTrue), S_OK);
        EXPECT_EQ(ValueOf(choice, "value"), "beta");
        EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
        EXPECT_EQ(SetFlagOf(choice, "value"), "false");
        EXPECT_EQ(AutoFlagOf(owner, "value"), "true");
        // The feature above has no such attribute to put back on its default.
        EXPECT_EQ(Reported(), (Records{Assertion("key", "VYRCfdDefaultManagementAdp::GetDefault")}));
    });
}

TEST_F(ChoiceAutoFlagTest, ChoiceWithNothingAbove_KeepsItsFlag)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    WriteFlag(At(choice, "defaultManagement"), "value_isauto", true);
    EXPECT_EQ(AutoFlagOf(choice, "value"), "true");
    EXPECT_EQ(ValueOf(choice, "value"), "alpha");
}
} // namespace
