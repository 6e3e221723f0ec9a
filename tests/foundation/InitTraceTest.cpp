/**
 * @file
 * Setting up one channel.
 */

#include <cstdlib>
#include <deque>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TraceCapture.h"
#include "TraceNames.h"

namespace
{
/// The set-up of a channel is there for derived holders.
class Holder : public VYRCfdTraceManager
{
public:
    using VYRCfdTraceManager::InitTrace;
};

/// A variable of the environment for the length of a test; null means unset.
class Variable
{
public:
    Variable(const char* iName, const char* iValue) : m_name(iName)
    {
        if (const char* const before = std::getenv(iName))
            m_before.assign(1, before);
        if (iValue != nullptr)
            setenv(iName, iValue, 1);
        else
            unsetenv(iName);
    }
    ~Variable()
    {
        if (m_before.empty())
            unsetenv(m_name);
        else
            setenv(m_name, m_before.front().c_str(), 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* m_name;
    std::vector<std::string> m_before;
};

/// Channels and controls live until the process ends; they stay reachable here.
struct Made
{
    ORXTrace* trace = nullptr;
    ORXTraControle* control = nullptr;
};

Made& Make(const char* iName, const char* iDescription = "of a test")
{
    static auto& all = *new std::deque<Made>;
    Made& made = all.emplace_back();
    Holder::InitTrace(iName, iDescription, made.trace, made.control);
    return made;
}

struct ValueCase
{
    const char* channel;
    const char* global;
    bool isActive;
    int level;
};

constexpr ValueCase ValueCases[] = {
    {nullptr, nullptr, false, 1024},
    {"", nullptr, false, 1024},
    {nullptr, "", false, 1024},
    {"", "", false, 1024},
    // The channel's own variable wins.
    {"25", "50", true, 125},
    {nullptr, "50", true, 150},
    {"", "50", true, 150},
    {"25", "", true, 125},
    {"abc", "50", true, 1024},
    {"xFILE7", "50", true, 1024},
    // What is no number, or outside, means everything.
    {"abc", nullptr, true, 1024},
    {nullptr, "abc", true, 1024},
    {"-1", nullptr, true, 1024},
    {"0", nullptr, true, 1024},
    {"1", nullptr, true, 1024},
    {"2", nullptr, true, 2},
    {"3", nullptr, true, 103},
    {"4", nullptr, true, 104},
    {"25", nullptr, true, 125},
    {"101", nullptr, true, 201},
    {"102", nullptr, true, 202},
    {"103", nullptr, true, 103},
    {"104", nullptr, true, 104},
    {"202", nullptr, true, 202},
    {"1023", nullptr, true, 1023},
    {"1024", nullptr, true, 1024},
    {"1025", nullptr, true, 1024},
    {"99999999999", nullptr, true, 1024},
    {nullptr, "2", true, 2},
    {nullptr, "102", true, 202},
    {nullptr, "1025", true, 1024},
    // The number at the head counts.
    {" 25", nullptr, true, 125},
    {"25abc", nullptr, true, 125},
    // One character in front of "FILE" is cut off with "FIL"; what is left begins with "E" and is no number.
    {"xFILE7", nullptr, true, 1024},
    {"1FILE", nullptr, true, 1024},
    {"2FILE30", nullptr, true, 1024},
    // Anywhere else "FILE" is text as any other.
    {"FILE7", nullptr, true, 1024},
    {"30FILE", nullptr, true, 130},
    {"2file", nullptr, true, 2},
    {nullptr, "30FILE", true, 130},
    {nullptr, "2FILE30", true, 2},
};

TEST(InitTrace, Values_GiveModeAndMaximum)
{
    for (const ValueCase& row : ValueCases)
    {
        SCOPED_TRACE(std::string(row.channel != nullptr ? row.channel : "(unset)") + ", all " +
                     (row.global != nullptr ? row.global : "(unset)"));
        const Variable channel("VYRCFDTRACES_PROBE", row.channel);
        const Variable global("VYRCFDTRACES_ALL", row.global);
        const Made& made = Make("PROBE");
        ASSERT_NE(made.trace, nullptr);
        ASSERT_NE(made.control, nullptr);
        EXPECT_EQ(made.trace->IsActive(), row.isActive);
        EXPECT_EQ(made.control->TraGetLevelMax(), row.level);
        EXPECT_STREQ(made.trace->File(), "STDOUT") << "no value selects a file";
    }
}

TEST(InitTrace, Channel_BearsItsNameWithAPrefixAndItsDescription)
{
    const Made& made = Make("PROBE2", "a description");
    EXPECT_STREQ(made.trace->Name(), "CFD_PROBE2");
    EXPECT_STREQ(made.trace->Description(), "a description");
}

TEST(InitTrace, ANameOfEightCharacters_IsTheLongest)
{
    EXPECT_STREQ(Make("ABCDEFGH").trace->Name(), "CFD_ABCDEFGH");
    EXPECT_STREQ(Make("").trace->Name(), "CFD_");
}

TEST(InitTrace, ALongerName_LeavesThePointersAsTheyWere)
{
    const Variable global("VYRCFDTRACES_ALL", "50");
    const Made& made = Make("PROBE3");
    ORXTrace* trace = made.trace;
    ORXTraControle* control = made.control;
    for (const char* name : {"ABCDEFGHI", "FEATURES2", "a name that is much too long"})
    {
        Holder::InitTrace(name, "of a test", trace, control);
        EXPECT_EQ(trace, made.trace);
        EXPECT_EQ(control, made.control);
        ORXTrace* noTrace = nullptr;
        ORXTraControle* noControl = nullptr;
        Holder::InitTrace(name, "of a test", noTrace, noControl);
        EXPECT_EQ(noTrace, nullptr);
        EXPECT_EQ(noControl, nullptr);
    }
    EXPECT_EQ(ORXTraControle("CFD_ABCDEFGHI").TraGetLevelMax(), 0) << "no channel was made";
}

TEST(InitTrace, TheControl_IsThatOfItsOwnChannel)
{
    const Variable left("VYRCFDTRACES_LEFT", "10");
    const Variable right("VYRCFDTRACES_RIGHT", "20");
    const Made& first = Make("LEFT");
    const Made& second = Make("RIGHT");
    EXPECT_EQ(first.control->TraGetLevelMax(), 110);
    EXPECT_EQ(second.control->TraGetLevelMax(), 120);
}

TEST(InitTrace, AnActiveChannel_PrintsWhateverTheLevel)
{
    const Variable channel("VYRCFDTRACES_PROBE4", "2");
    TraceCapture traces;
    Make("PROBE4").trace->TraPrint(140, "%s\n", "a line");
    EXPECT_EQ(traces.Take(), (std::vector<std::string>{"a line\n"}));
}

// In a process of its own, since it sets the module's channels up anew.
TEST(InitTraceDeathTest, Initialize_AnswersOneAndReadsTheEnvironmentAnew)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            setenv("VYRCFDTRACES_SIM", "30", 1);
            ORXTrace* const before = VYRCfdTraceManager::_Sim;
            const bool isRight = VYRCfdTraceManager::Initialize() == 1 && VYRCfdTraceManager::_Sim != before &&
                                 VYRCfdTraceManager::_Sim->IsActive() &&
                                 VYRCfdTraceManager::_ControlSim->TraGetLevelMax() == 130;
            std::_Exit(isRight ? 17 : 1);
        },
        testing::ExitedWithCode(17), "");
}
} // namespace
