/**
 * @file
 * Data objects that take steps of their own: one before they have a place, one after.
 */

#include "EntityInit.h"
#include "StartupTest.h"

namespace
{
class EntityInitTest : public StartupTest
{
protected:
    void SetUp() override
    {
        StartupTest::SetUp();
        EntityInit::Register();
    }
};

TEST_F(EntityInitTest, Init_ComesBeforeTheObjectHasAnOwnerAndPostInitAfter)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(UpdateTo("StartupTestEntity"), (Outcome{S_OK, true}));
    EXPECT_EQ(calls.Take(),
              (Lines{"name StartupTestEntity", "create StartupTestEntity StartupTestEntityInst",
                     "init StartupTestEntityInst", "write Choice.1.Data = StartupTestEntityInst",
                     "advise Choice.1.Data = StartupTestEntityInst", "done Choice.1.Data", "postinit Choice.1/Data"}));
}

TEST_F(EntityInitTest, OfADerivedType_TakesTheSameSteps)
{
    GiveData("TypeAlpha");
    VYRStandalone::CallRecorder calls;
    UpdateTo("StartupTestDerivedEntity");
    EXPECT_EQ(Only(calls.Take(), {"init", "write", "postinit"}),
              (Lines{"init StartupTestDerivedEntityInst", "write Choice.1.Data = StartupTestDerivedEntityInst",
                     "postinit Choice.1/Data"}));
}

TEST_F(EntityInitTest, StepsThatFail_StopNobody)
{
    EntityInit::Steps().answer = E_FAIL;
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(UpdateTo("StartupTestEntity"), (Outcome{S_OK, true}));
    EXPECT_EQ(Only(calls.Take(), {"init", "postinit"}),
              (Lines{"init StartupTestEntityInst", "postinit Choice.1/Data"}));
    EXPECT_EQ(DataTypeOf(m_choice), "StartupTestEntity");
}

TEST_F(EntityInitTest, ObjectThatStays_TakesNoStepAgain)
{
    UpdateTo("StartupTestEntity");
    VYRStandalone::CallRecorder calls;
    UpdateTo("StartupTestEntity");
    UpdateTo("");
    EXPECT_EQ(Only(calls.Take(), {"init", "postinit"}), Lines{});
}

TEST_F(EntityInitTest, ObjectThatDoesNotOfferTheSteps_IsAttachedAllTheSame)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(Only(calls.Take(), {"init", "postinit"}), Lines{});
    EXPECT_TRUE(!ORXISamAnalysisEntityInit_var(DataOf(m_choice)));
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
}

TEST_F(EntityInitTest, ObjectThatCannotBeAttached_IsNotTakenFurther)
{
    MakeFail("SetSpecObject", "Data");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(UpdateTo("StartupTestEntity"), (Outcome{E_FAIL, true}));
    EXPECT_EQ(Only(calls.Take(), {"init", "postinit"}), (Lines{"init StartupTestEntityInst"}));
    EXPECT_EQ(
        Reported(),
        (Records{FailedCall("spAttrAccess->SetSpecObject(VYRCFDBASE(Choice, Data)(spAttrAccess), spSubCompSpecObj)",
                            UpdateData)}));
}
} // namespace
