/**
 * @file
 * What sets the default management of a Choice apart: a new default is followed by an update.
 */

#include "ChoiceTest.h"
#include "EnteredScopes.h"

namespace
{
constexpr const char* Function = "VYRECfdChoiceDefaultManagement::SetCustomDefault";
constexpr const char* BaseFunction = "VYRCfdDefaultManagementAdp::SetCustomDefault";
constexpr const char* BaseCall = "VYRCfdDefaultManagementAdp::SetCustomDefault(iAttrName, iValue)";

/// "Choice.1" is an updated Choice whose hooks show.
class ChoiceDefaultTest : public ChoiceTest
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        m_choice = MakeUpdated(ThreeChoices());
    }

    HRESULT SetDefault(const char* iName, const char* iValue)
    {
        ORXUnicodeString value(iValue);
        return DefaultManagementOf(m_choice)->SetCustomDefault(iName, value);
    }

    ORXISpecObject_var m_choice;
};

TEST_F(ChoiceDefaultTest, TextForm_StoresTheDefaultAndUpdates)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(SetDefault("value", "beta"), S_OK);
    EXPECT_EQ(Only(calls.Take(), {"write", "data", "create", "complete", "dispatch"}),
              (Lines{"write Choice.1/defaultManagement.value_isset = false", "write Choice.1.value = beta",
                     "data TypeBeta", "create TypeBeta TypeBetaInst", "write Choice.1.Data = TypeBetaInst",
                     "complete true true", "dispatch Choice.1", "write Choice.1/defaultManagement.value_isset = false",
                     // The update of the default itself.
                     "data TypeBeta", "complete false false"}));
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
}

TEST_F(ChoiceDefaultTest, TextFormOfAValueThatIsSet_UpdatesAllTheSame)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("gamma"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(SetDefault("value", "beta"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{"data TypeGamma", "complete false false"}));
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
}

TEST_F(ChoiceDefaultTest, TextFormForAnyAttribute_Updates)
{
    for (const char* name : {"display", "dataName"})
    {
        ChoiceRecorder steps;
        EXPECT_EQ(SetDefault(name, "text"), S_OK);
        EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeAlpha", "complete false false"})) << name;
        EXPECT_EQ(ValueOf(m_choice, name), "text") << name;
    }
}

TEST_F(ChoiceDefaultTest, ValueForm_StartsNoUpdate)
{
    VYRStandalone::CallRecorder calls;
    KeepDefault(m_choice, "beta");
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
}

TEST_F(ChoiceDefaultTest, StatusOfTheUpdate_IsNotLookedAt)
{
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return E_NOTIMPL; };
    EXPECT_EQ(SetDefault("display", "text"), S_OK);
    EXPECT_EQ(Reported(), (Records{FailedCall("CompleteUpdate(wasValueChange, dataChange)",
                                              "VYRCfdChoiceInstanceAdp::Update", E_NOTIMPL)}));
}

TEST_F(ChoiceDefaultTest, UpdateThatABracketHoldsBack_IsNoFailure)
{
    ASSERT_EQ(ConfigurableOf(m_choice)->StartConfiguration(), S_OK);
    ChoiceRecorder steps;
    EXPECT_EQ(SetDefault("value", "beta"), S_OK);
    EXPECT_EQ(steps.TakeSteps(), Lines{});
    EXPECT_EQ(ValueOf(m_choice, "value"), "beta") << "the value that is not set follows at once";
    EXPECT_EQ(ConfigurableOf(m_choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(DataTypeOf(m_choice), "TypeBeta");
}

TEST_F(ChoiceDefaultTest, FeatureThatIsNoChoice_FailsAfterTheDefaultWasStored)
{
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("alpha"), S_OK);
    MakeFail("QueryInterface", "VYRICfdChoice");
    ChoiceRecorder steps;
    EXPECT_EQ(SetDefault("value", "beta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spChoice", Function)}));
    EXPECT_EQ(steps.TakeSteps(), Lines{});
    EXPECT_TRUE(HasCustomDefault(m_choice));
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
}

TEST_F(ChoiceDefaultTest, FailureOfTheBase_IsReportedWithItsQualifiedCall)
{
    ChoiceRecorder steps;
    EXPECT_EQ(SetDefault("missing", "beta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", BaseFunction), FailedCall(BaseCall, Function)}));
    EXPECT_EQ(steps.TakeSteps(), Lines{}) << "no update";
}

TEST_F(ChoiceDefaultTest, EmptyName_FailsWithTheReportOfThisClassAlone)
{
    EXPECT_EQ(SetDefault("", "beta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{FailedCall(BaseCall, Function)}));
}

TEST_F(ChoiceDefaultTest, EmptyNameOfTheValueForm_FailsWithoutAReport)
{
    ORXICkeInst_var value;
    EXPECT_EQ(DefaultManagementOf(m_choice)->SetCustomDefault("", value), E_FAIL);
}

TEST_F(ChoiceDefaultTest, WithoutTheSubFeature_FailsByTheFlagsAfterTheDefaultWasStored)
{
    const ORXISpecObject_var bare = Make(ThreeChoices(), "Bare.1");
    ASSERT_EQ(WriteObject(bare, "defaultManagement", NULL_var), S_OK);
    m_choice = bare;
    EXPECT_EQ(SetDefault("value", "beta"), E_FAIL);
    EXPECT_EQ(Reported(),
              (Records{Assertion("spAttr", "VYRCfdDefaultManagementAdp::IsSet"),
                       FailedCall("IsSet(iAttrName, isSet)", BaseFunction), FailedCall(BaseCall, Function)}));
    EXPECT_TRUE(HasCustomDefault(m_choice));
}

TEST_F(ChoiceDefaultTest, Scope)
{
    VYRStandalone::SetErrorStatus(3);
    const Lines scopes = EnteredScopes(20, [this] { SetDefault("", "beta"); });
    EXPECT_EQ(scopes, (Lines{std::string("> ") + Function + " [20]", std::string("  > ") + BaseFunction + " [20]"}));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    EXPECT_EQ(Reported(), (Records{FailedCall(BaseCall, Function)}));
}
} // namespace
