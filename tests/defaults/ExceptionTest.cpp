/**
 * @file
 * Exceptions out of listeners while default management writes: they pass to the caller, and the guard comes down. With
 * the guard up, nothing would be marked as set any more.
 */

#include <ostream>

#include "ActingListener.h"
#include "FlowTest.h"

namespace
{
struct Thrown
{
};

/// An operation about "relaxation", which is 0.7 by default, and the write in the middle of it whose listener throws.
struct Throwing
{
    const char* name;
    /// Whether the user has written 0.25 before.
    bool isWritten;
    /// Whether there is an auto flag before, which is false.
    bool hasAuto;
    /// The listener sits on the solver, or on its sub-feature.
    bool isOnSolver;
    void (*call)(const ORXISpecObject_var& iSolver);
    /// The value, its default and its flags afterwards.
    std::string value;
    std::string defaultValue;
    std::string isSet;
    std::string isAuto;
};

void PrintTo(const Throwing& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

void UnsetIt(const ORXISpecObject_var& iSolver)
{
    DefaultManagementOf(iSolver)->Unset("relaxation");
}

void TakeItAway(const ORXISpecObject_var& iSolver)
{
    TakeAway(iSolver, "relaxation");
}

void MakeItAuto(const ORXISpecObject_var& iSolver)
{
    DefaultManagementOf(iSolver)->SetIsAuto("relaxation", ORXTrue);
}

void GiveItADefault(const ORXISpecObject_var& iSolver)
{
    ORXUnicodeString text("0.5");
    DefaultManagementOf(iSolver)->SetCustomDefault("relaxation", text);
}

const Throwing throwing[] = {
    // The flag is cleared behind the write, and so stays.
    {"Unset", true, false, true, &UnsetIt, "0.7", "0.7", "true", "absent"},
    {"ValueTakenAway", true, false, true, &TakeItAway, "0.7", "0.7", "true", "absent"},
    {"SetIsAuto_ThatMakesTheFlag", true, false, false, &MakeItAuto, "0.25", "0.7", "true", "true"},
    {"SetIsAuto_AtTheWriteOfTheFlag", true, true, false, &MakeItAuto, "0.25", "0.7", "true", "true"},
    {"SetIsAuto_AtTheWriteOfTheValue", true, true, true, &MakeItAuto, "0.7", "0.7", "true", "true"},
    {"SetCustomDefault", false, false, true, &GiveItADefault, "0.5", "0.5", "false", "absent"},
};

class ExceptionTest : public FlowTest, public testing::WithParamInterface<Throwing>
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        if (GetParam().isWritten)
            Write(m_solver, "relaxation", "0.25");
        if (GetParam().hasAuto)
            DefaultManagement()->SetIsAuto("relaxation", ORXFalse);
        const char* const attribute = GetParam().isOnSolver ? "relaxation" : "relaxation_isauto";
        Listen(GetParam().isOnSolver ? m_solver : SubFeature(),
               [this, attribute](const ORXUnicodeString& iName, const ORXIValue_var&) {
                   if (m_isThrowing && iName == attribute)
                       throw Thrown();
               });
    }

    bool m_isThrowing = true;
};

TEST_P(ExceptionTest, PassesToTheCallerAndLeavesWhatWasWritten)
{
    EXPECT_THROW(GetParam().call(m_solver), Thrown);
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), GetParam().value);
    EXPECT_EQ(DefaultOf(m_solver, "relaxation"), GetParam().defaultValue);
    EXPECT_EQ(SetFlagOf(m_solver, "relaxation"), GetParam().isSet);
    EXPECT_EQ(AutoFlagOf(m_solver, "relaxation"), GetParam().isAuto);
}

TEST_P(ExceptionTest, LeavesTheGuardDown)
{
    EXPECT_THROW(GetParam().call(m_solver), Thrown);
    m_isThrowing = false;
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_P(ExceptionTest, OperationWithoutIt_WorksAsEver)
{
    EXPECT_THROW(GetParam().call(m_solver), Thrown);
    m_isThrowing = false;
    // An auto flag that is there by now resets the value.
    GetParam().call(m_solver);
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), GetParam().defaultValue);
    EXPECT_EQ(SetFlagOf(m_solver, "relaxation"), "false");
}

INSTANTIATE_TEST_SUITE_P(Operations, ExceptionTest, testing::ValuesIn(throwing),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
