/**
 * @file
 * What stops the making of a data object, what is reported of it, and what stays.
 */

#include <algorithm>

#include "ChannelSwap.h"
#include "EnteredScopes.h"
#include "StartupTest.h"

namespace
{
constexpr const char* SetCall = "spAttrAccess->SetSpecObject(VYRCFDBASE(Choice, Data)(spAttrAccess), spSubCompSpecObj)";

class StartupFailureTest : public StartupTest
{
protected:
    /// Makes every cast of the Choice to an interface fail.
    static void MakeCastFail(const char* iInterface)
    {
        VYRStandalone::Fault fault;
        fault.operation = "QueryInterface";
        fault.subject = iInterface;
        fault.object = "Choice.1";
        fault.times = 0;
        VYRStandalone::PlantFault(fault);
    }

    int NumberOf(const char* iType) const
    {
        const std::vector<ORXISpecObject_var> objects = m_model.Objects();
        return static_cast<int>(std::count_if(objects.begin(), objects.end(), [&](const ORXISpecObject_var& iObject) {
            return iObject->GetType() == ORXUnicodeString(iType);
        }));
    }
};

TEST_F(StartupFailureTest, WithoutAttributeAccess_ReportsItAndTouchesNothing)
{
    TestChoice& choice = TestChoice::Of(m_choice);
    MakeCastFail("ORXISpecAttrAccess");
    for (const char* startup : {"TypeAlpha", ""})
    {
        bool dataChange = false;
        EXPECT_EQ(choice.BaseUpdateDataForStartup(startup, dataChange), E_FAIL);
        EXPECT_FALSE(dataChange);
        EXPECT_EQ(Reported(), (Records{Assertion("spAttrAccess", UpdateData)}));
    }
}

TEST_F(StartupFailureTest, WithoutTheFeatureItself_ReportsItAfterTheNameWasFound)
{
    const ORXISpecObject_var former = GiveData("TypeAlpha");
    TestChoice& choice = TestChoice::Of(m_choice);
    MakeCastFail("ORXISpecObject");
    bool dataChange = false;
    ChoiceRecorder steps;
    EXPECT_EQ(choice.BaseUpdateDataForStartup("TypeBeta", dataChange), E_FAIL);
    EXPECT_TRUE(dataChange);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"name TypeBeta"}));
    EXPECT_EQ(Reported(), (Records{Assertion("spSpecObj", UpdateData)}));
    VYRStandalone::ClearFaults();
    EXPECT_TRUE(DataOf(m_choice) == former);
}

TEST_F(StartupFailureTest, ObjectThatCannotBeAttached_StaysInTheModelByItself)
{
    const ORXISpecObject_var former = GiveData("TypeAlpha");
    const int before = VYRStandalone::LiveComponents();
    MakeFail("SetSpecObject", "Data");
    EXPECT_EQ(UpdateTo("TypeBeta"), (Outcome{E_FAIL, true}));
    EXPECT_EQ(Reported(), (Records{FailedCall(SetCall, UpdateData)}));
    EXPECT_TRUE(DataOf(m_choice) == former) << "the former object stands where it stood";
    EXPECT_EQ(NumberOf("TypeBeta"), 1);
    const ORXISpecObject_var orphan = m_model.Find("TypeBetaInst");
    ASSERT_FALSE(!orphan);
    EXPECT_TRUE(!ORXISpecObject_var::Adopt(orphan->GetOwner()));
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 2) << "the object and its default management";
}

TEST_F(StartupFailureTest, StatusOfTheHost_IsTheStatusOfTheReport)
{
    MakeFail("SetSpecObject", "Data", E_NOTIMPL);
    EXPECT_EQ(UpdateTo("TypeBeta"), (Outcome{E_NOTIMPL, true}));
    EXPECT_EQ(Reported(), (Records{FailedCall(SetCall, UpdateData, E_NOTIMPL)}));
}

TEST_F(StartupFailureTest, ObjectsThatCannotBeAttached_AreMadeAnewEachTime)
{
    MakeFail("SetSpecObject", "Data");
    UpdateTo("TypeBeta");
    UpdateTo("TypeBeta");
    EXPECT_EQ(Reported(), (Records{FailedCall(SetCall, UpdateData), FailedCall(SetCall, UpdateData)}));
    EXPECT_EQ(NumberOf("TypeBeta"), 2);
}

TEST_F(StartupFailureTest, RemovalThatTheHostRefuses_IsNotNoticed)
{
    const ORXISpecObject_var former = GiveData("TypeAlpha");
    MakeFail("RemoveObject", "Data");
    EXPECT_EQ(UpdateTo(""), (Outcome{S_OK, true}));
    EXPECT_EQ(UpdateTo("NoSuchType"), (Outcome{S_OK, true}));
    EXPECT_TRUE(DataOf(m_choice) == former);
}

TEST_F(StartupFailureTest, Scopes)
{
    EXPECT_EQ(EnteredScopes(20, [this] { UpdateTo("TypeAlpha"); }).front(), std::string("> ") + UpdateData + " [20]");
    const Lines named = EnteredScopes(30, [this] {
        ORXUnicodeString name;
        TestChoice::Of(m_choice).BaseGetInstanceName(Cursor(m_choice), "TypeAlpha", name);
    });
    EXPECT_EQ(std::count(named.begin(), named.end(), "> VYRCfdChoiceInstanceAdp::GetInstanceName [30]"), 1);
}
} // namespace
