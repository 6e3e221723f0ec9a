/**
 * @file
 * Data objects on the way of a whole update: what the value of a Choice brings and takes away.
 */

#include "ChannelSwap.h"
#include "StartupTest.h"
#include "VYRFeaTraceManager.h"

namespace
{
class StartupUpdateTest : public ChoiceTest
{
};

TEST_F(StartupUpdateTest, FreshChoice_HasItsDataAfterItsFirstUpdate)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    EXPECT_EQ(DataTypeOf(choice), "");
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(),
              (Lines{"data TypeAlpha", "name TypeAlpha", "create TypeAlpha TypeAlphaInst",
                     "allow Choice.1.value = [alpha, beta, gamma]", "complete false true", "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
}

TEST_F(StartupUpdateTest, EveryChoice_BringsItsOwnData)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    for (const auto& [value, type] : {std::pair{"beta", "TypeBeta"}, {"gamma", "TypeGamma"}, {"alpha", "TypeAlpha"}})
    {
        EXPECT_EQ(ChoiceOf(choice)->SetChoice(value), S_OK);
        EXPECT_EQ(DataTypeOf(choice), type);
        EXPECT_TRUE(At(choice, value) == DataOf(choice)) << "the value leads to the data";
    }
}

TEST_F(StartupUpdateTest, ChoicesOfOneStartup_ShareTheDataObject)
{
    const ORXISpecObject_var choice = MakeUpdated({{"low", "high"}, {"TypeAlpha", "TypeAlpha"}, "low", "", ""});
    const ORXISpecObject_var data = DataOf(choice);
    Write(data, "size", "7.5");
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("high"), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeAlpha", "complete true false", "dispatch Choice.1"}));
    EXPECT_TRUE(DataOf(choice) == data);
    EXPECT_EQ(ValueOf(data, "size"), "7.5");
}

TEST_F(StartupUpdateTest, ChoiceWithAnEmptyStartup_HasNoData)
{
    const ORXISpecObject_var choice = MakeUpdated({{"off", "on"}, {"", "TypeAlpha"}, "on", "", ""});
    ASSERT_EQ(DataTypeOf(choice), "TypeAlpha");
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("off"), S_OK);
    EXPECT_EQ(steps.TakeSteps(),
              (Lines{"data", "take Choice.1.Data = TypeAlphaInst", "complete true true", "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(StartupUpdateTest, ChoiceWithoutStartups_LosesDataThatIsLeftOver)
{
    const ORXISpecObject_var choice = Make({{"a", "b"}, {}, "a", "", ""});
    ASSERT_EQ(WriteObject(choice, "Data", Create("TypeAlpha", "Former")), S_OK);
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data", "take Choice.1.Data = Former", "allow Choice.1.value = [a, b]",
                                        "complete false true", "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(choice), "");
}

TEST_F(StartupUpdateTest, RefusedStartup_FailsNoUpdateAndIsToldAsAChangeEachTime)
{
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    const ORXISpecObject_var choice = Make({{"alpha", "bad"}, {"TypeAlpha", "NoSuchType"}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->Update(), S_OK);
    debug.Take();
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("bad"), S_OK);
    EXPECT_EQ(steps.TakeSteps(),
              (Lines{"data NoSuchType", "name NoSuchType", "create NoSuchType NoSuchTypeInst",
                     "take Choice.1.Data = TypeAlphaInst", "complete true true", "dispatch Choice.1"}));
    EXPECT_EQ(debug.Take(), (Lines{"    ", "BAD STARTUP: NoSuchType", "    ", "Value Change: bad\n"}));
    EXPECT_EQ(DataTypeOf(choice), "");

    // A later update with the same value tries again.
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data NoSuchType", "name NoSuchType", "create NoSuchType NoSuchTypeInst",
                                        "complete false true", "dispatch Choice.1"}));
    EXPECT_EQ(debug.Take(), (Lines{"    ", "BAD STARTUP: NoSuchType", "    ", "Value Change: bad\n"}));
}

TEST_F(StartupUpdateTest, ObjectThatCannotBeAttached_FailsTheUpdate)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    MakeFail("SetSpecObject", "Data");
    EXPECT_EQ(ChoiceOf(choice)->Update(), E_FAIL);
    EXPECT_EQ(
        Reported(),
        (Records{FailedCall("spAttrAccess->SetSpecObject(VYRCFDBASE(Choice, Data)(spAttrAccess), spSubCompSpecObj)",
                            UpdateData),
                 FailedCall("UpdateDataForStartup(startup, dataChange)", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(AllowedOf(choice), Lines{}) << "what would have been offered is not written any more";
}

TEST_F(StartupUpdateTest, ChoiceInsideAnOwner_TakesTheStartupsThatTheOwnersTypeDeclares)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    const ORXISpecObject_var model = At(owner, "model");
    EXPECT_EQ(ChoiceOf(model)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(model), "TypeBeta");
    EXPECT_EQ(ChoiceOf(model)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(DataTypeOf(model), "TypeGamma");
    EXPECT_TRUE(At(owner, "model/gamma") == DataOf(model));
}
} // namespace
