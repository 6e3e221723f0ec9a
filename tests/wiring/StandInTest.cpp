/**
 * @file
 * Failures that neither the host nor the module ever brings about by itself: a factory whose products are of another
 * type, no configurator, lists that cannot be taken apart. This program stands in for the functions that would be to
 * blame, and otherwise hands each call on.
 */

#include <dlfcn.h>

#include "ChoiceLeakTest.h"
#include "Configurations.h"
#include "ORXSimBCInitializeServices.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdUtilityMethods.h"

namespace
{
/// What the functions do instead of what they should.
struct StandIns
{
    /// The factory makes an object of the second type where it is asked for one of the first.
    ORXUnicodeString asked;
    ORXUnicodeString made;
    bool isWithoutConfigurator = false;
    /// The list, counted from 1, that cannot be taken apart; 0 for none.
    int badList = 0;
};

StandIns& Present()
{
    static StandIns present;
    return present;
}

template <class Function> Function* TheNext(const char* iSymbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, iSymbol));
}
} // namespace

HRESULT ORXSimBCInitializeServices::CreateBasicComponent(const ORXUnicodeString& iType, const ORXUnicodeString& iName,
                                                         ORXIContainer_var& ioContainer, ORXISpecObject_var& oObject)
{
    static auto* const next = TheNext<HRESULT(const ORXUnicodeString&, const ORXUnicodeString&, ORXIContainer_var&,
                                              ORXISpecObject_var&)>(
        "_ZN26ORXSimBCInitializeServices20CreateBasicComponentERK16ORXUnicodeStringS2_R9ORXHandleI13ORXIContainerERS3_"
        "I14ORXISpecObjectE");
    const bool isAnother = !Present().asked.IsEmpty() && iType == Present().asked;
    return next(isAnother ? Present().made : iType, iName, ioContainer, oObject);
}

VYRCfdConfigurator* VYRCfdConfigurator::GetConfigurator()
{
    static auto* const next = TheNext<VYRCfdConfigurator*()>("_ZN18VYRCfdConfigurator15GetConfiguratorEv");
    return Present().isWithoutConfigurator ? nullptr : next();
}

HRESULT VYRCfdUtilityMethods::ConvertStringToVector(ORXUnicodeString text, std::vector<ORXUnicodeString>& list,
                                                    ORXUnicodeString delimiter)
{
    static auto* const next = TheNext<HRESULT(ORXUnicodeString, std::vector<ORXUnicodeString>&, ORXUnicodeString)>(
        "_ZN20VYRCfdUtilityMethods21ConvertStringToVectorE16ORXUnicodeStringRSt6vectorIS0_SaIS0_EES0_");
    if (Present().badList > 0 && --Present().badList == 0)
        return E_NOTIMPL;
    return next(text, list, delimiter);
}

namespace
{
class StandInTest : public ChoiceLeakTest
{
protected:
    void SetUp() override
    {
        ChoiceLeakTest::SetUp();
        Present() = {};
    }

    void TearDown() override
    {
        Present() = {};
        ChoiceLeakTest::TearDown();
    }
};

// ---- products of another type ---------------------------------------------------------------------------------------

TEST_F(StandInTest, DataOfATypeThatIsNotTheStartup_IsReplacedAtEveryUpdate)
{
    Present().asked = "TypeAlpha";
    Present().made = "TypeGamma";
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
    const int alive = VYRStandalone::LiveComponents();
    for (int update = 0; update < 3; ++update)
    {
        const ORXISpecObject_var former = DataOf(choice);
        Write(former, "count", "9");
        ChoiceRecorder steps;
        EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
        EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeAlpha", "name TypeAlpha", "create TypeGamma TypeAlphaInst",
                                            "complete false true", "dispatch Choice.1"}));
        EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
        EXPECT_FALSE(DataOf(choice) == former);
        EXPECT_EQ(ValueOf(DataOf(choice), "count"), "4") << "what was set on the former object is lost";
        EXPECT_TRUE(!ORXISpecObject_var::Adopt(former->GetOwner()));
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), alive);
    EXPECT_EQ(m_model.Objects().size(), 1U);
}

TEST_F(StandInTest, DataOfTheTypeOfTheStartup_IsReplacedByNoUpdate)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const ORXISpecObject_var data = DataOf(choice);
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeAlpha", "complete false false"}));
    EXPECT_TRUE(DataOf(choice) == data);
}

// ---- no configurator ------------------------------------------------------------------------------------------------

TEST_F(StandInTest, UpdateWithoutAConfigurator_ReportsItWithValueDataAndDefaultDone)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Record report = Assertion("pConfigurator", "VYRCfdChoiceInstanceAdp::Update");
    Present().isWithoutConfigurator = true;
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(Reported(), (Records{report}));
    EXPECT_EQ(TestChoice::Of(choice).Update("gamma"), E_FAIL);
    // The update of the new default, and the outer one.
    EXPECT_EQ(Reported(), (Records{report, report}));
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeBeta", "name TypeBeta", "create TypeBeta TypeBetaInst",
                                        "data TypeBeta", "data TypeBeta"}));
    EXPECT_EQ(DataTypeOf(choice), "TypeBeta");
    EXPECT_EQ(DefaultOf(choice, "value"), "gamma");

    // The change of the value waits for an update that completes.
    Present().isWithoutConfigurator = false;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeBeta", "complete true false", "dispatch Choice.1"}));
}

// ---- lists of items -------------------------------------------------------------------------------------------------

TEST_F(StandInTest, ChoicesOfAnItemThatCannotBeTakenApart_StopTheWalk)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    Configurations configurations(
        {Configuration("main", R"([ { "choices": "a,b", "Startups": "TypeAlpha,TypeBeta", "default": "b" },
                                    { "path": "dataName", "default": "never" } ])")});
    const char* const calls[] = {"VYRCfdUtilityMethods::ConvertStringToVector(choicesString, choicesList)",
                                 "VYRCfdUtilityMethods::ConvertStringToVector(startupsString, startupsList)"};
    for (int list = 1; list <= 2; ++list)
    {
        Present().badList = list;
        EXPECT_EQ(configurations.Apply(choice, "main"), E_NOTIMPL);
        EXPECT_EQ(Reported(),
                  (Records{FailedCall(calls[list - 1], "VYRCfdConfigurator::ApplyConfiguration", E_NOTIMPL)}));
        EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
        EXPECT_EQ(ValueOf(choice, "dataName"), "(none)");
        EXPECT_EQ(RecordsOf(choice), Lines{});
    }
}

TEST_F(StandInTest, ValuesOfAnItemThatCannotBeTakenApart_StopTheWalk)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    Configurations configurations(
        {Configuration("main", R"([ { "path": "choices", "value": "a,b", "list": true } ])")});
    Present().badList = 1;
    EXPECT_EQ(configurations.Apply(choice, "main"), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("VYRCfdUtilityMethods::ConvertStringToVector(value, valuesList)",
                                              "VYRCfdConfigurator::ApplyConfiguration", E_NOTIMPL)}));
    EXPECT_EQ(TextsOf(choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
}
} // namespace
