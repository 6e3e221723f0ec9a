/**
 * @file
 * How data objects are named.
 */

#include <ostream>

#include "StartupTest.h"

namespace
{
constexpr const char* GetInstanceName = "VYRCfdChoiceInstanceAdp::GetInstanceName";
constexpr const char* ReadCall = "iObjectAccess[VYRCFDBASE(Choice, dataName)].GetString(instanceName)";
constexpr const char* NameCall = "GetInstanceName(access, iStartup, instanceName)";

struct Naming
{
    const char* name;
    /// Null leaves `dataName` without a value.
    const char* dataName;
    const char* startup;
    const char* instance;
};

void PrintTo(const Naming& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class NamingTest : public StartupTest, public testing::WithParamInterface<Naming>
{
protected:
    void SetUp() override
    {
        StartupTest::SetUp();
        if (GetParam().dataName != nullptr)
            Write(m_choice, "dataName", GetParam().dataName);
    }
};

TEST_P(NamingTest, DataObject_BearsTheName)
{
    UpdateTo(GetParam().startup);
    ASSERT_FALSE(!DataOf(m_choice));
    EXPECT_EQ(DataOf(m_choice)->GetName(), ORXUnicodeString(GetParam().instance));
}

TEST_P(NamingTest, GetInstanceName_GivesTheName)
{
    ORXUnicodeString name("former");
    VYRStandalone::SetErrorStatus(3);
    EXPECT_EQ(TestChoice::Of(m_choice).BaseGetInstanceName(Cursor(m_choice), GetParam().startup, name), S_OK);
    EXPECT_EQ(name, ORXUnicodeString(GetParam().instance));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
}

const Naming namings[] = {
    {"WithoutADataName", nullptr, "TypeAlpha", "TypeAlphaInst"},
    {"EmptyDataName", "", "TypeBeta", "TypeBetaInst"},
    {"DataName", "Pump", "TypeAlpha", "Pump"},
    {"DataNameForAnotherStartup", "Pump", "TypeBeta", "Pump"},
    {"BlankDataName", " ", "TypeAlpha", " "},
    {"DataNameOfTheStartup", "TypeAlpha", "TypeAlpha", "TypeAlpha"},
};

INSTANTIATE_TEST_SUITE_P(Names, NamingTest, testing::ValuesIn(namings),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

class InstanceNameTest : public StartupTest
{
};

TEST_F(InstanceNameTest, NobodyLooksForUniqueness)
{
    UpdateTo("TypeAlpha");
    const ORXISpecObject_var first = m_choice;
    m_choice = Create("ChoiceTestHooked", "Choice.2");
    UpdateTo("TypeAlpha");
    EXPECT_EQ(DataOf(first)->GetName(), DataOf(m_choice)->GetName());
}

TEST_F(InstanceNameTest, OfAnObjectThatStays_StaysWhenTheDataNameChanges)
{
    UpdateTo("TypeAlpha");
    Write(m_choice, "dataName", "Pump");
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, false}));
    EXPECT_EQ(DataOf(m_choice)->GetName(), ORXUnicodeString("TypeAlphaInst"));
}

TEST_F(InstanceNameTest, IsReadFromTheCursorThatIsGiven)
{
    const ORXISpecObject_var other = Create("ChoiceTestHooked", "Choice.2");
    Write(other, "dataName", "Fan");
    ORXUnicodeString name;
    EXPECT_EQ(TestChoice::Of(m_choice).BaseGetInstanceName(Cursor(other), "TypeAlpha", name), S_OK);
    EXPECT_EQ(name, ORXUnicodeString("Fan"));
}

TEST_F(InstanceNameTest, WithADataNameThatCannotBeRead_FailsAndLeavesTheName)
{
    MakeFail("GetParm", "dataName");
    ORXUnicodeString name("former");
    EXPECT_EQ(TestChoice::Of(m_choice).BaseGetInstanceName(Cursor(m_choice), "TypeAlpha", name), E_FAIL);
    EXPECT_EQ(name, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(),
              (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"), FailedCall(ReadCall, GetInstanceName)}));
}

TEST_F(InstanceNameTest, ThatCannotBeFound_FailsTheUpdateOfTheDataBeforeAnythingIsMade)
{
    const ORXISpecObject_var former = GiveData("TypeAlpha");
    MakeFail("GetParm", "dataName");
    ChoiceRecorder steps;
    EXPECT_EQ(UpdateTo("TypeBeta"), (Outcome{E_FAIL, true}));
    EXPECT_EQ(steps.TakeSteps(), (Lines{"name TypeBeta"}));
    EXPECT_TRUE(DataOf(m_choice) == former);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                                   FailedCall(ReadCall, GetInstanceName), FailedCall(NameCall, UpdateData)}));
}

TEST_F(InstanceNameTest, OfASubclass_IsAskedForThroughItsOwnOperation)
{
    TestChoice::Hooks().name = [](TestChoice&, const ORXUnicodeString& iStartup, ORXUnicodeString& oName) {
        EXPECT_EQ(oName, ORXUnicodeString("")) << "the operation begins with an empty name";
        oName = ORXUnicodeString("Own ") + iStartup;
        return S_FALSE;
    };
    Write(m_choice, "dataName", "Pump");
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(DataOf(m_choice)->GetName(), ORXUnicodeString("Own TypeAlpha"));
}

TEST_F(InstanceNameTest, OfASubclass_MayBeEmpty)
{
    TestChoice::Hooks().name = [](TestChoice&, const ORXUnicodeString&, ORXUnicodeString&) { return S_OK; };
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(DataOf(m_choice)->GetName(), ORXUnicodeString(""));
}

TEST_F(InstanceNameTest, OfASubclassThatFails_ShowsItsStatusInTheReport)
{
    const ORXISpecObject_var former = GiveData("TypeAlpha");
    TestChoice::Hooks().name = [](TestChoice&, const ORXUnicodeString&, ORXUnicodeString& oName) {
        oName = "too late";
        return E_NOTIMPL;
    };
    EXPECT_EQ(UpdateTo("TypeBeta"), (Outcome{E_NOTIMPL, true}));
    EXPECT_TRUE(DataOf(m_choice) == former);
    EXPECT_EQ(Reported(), (Records{FailedCall(NameCall, UpdateData, E_NOTIMPL)}));
}

TEST_F(InstanceNameTest, IsAskedForOnlyWhereAnObjectIsToBeMade)
{
    GiveData("TypeAlpha");
    ChoiceRecorder steps;
    UpdateTo("TypeAlpha");
    UpdateTo("");
    UpdateTo("");
    EXPECT_EQ(steps.TakeSteps(), (Lines{"take Choice.1.Data = Former"}));
}
} // namespace
