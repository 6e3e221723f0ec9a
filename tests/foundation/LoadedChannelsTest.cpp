/**
 * @file
 * The nine channels as the load of the library sets them up, each setting of the environment in a process of its own.
 * The variable VYR_TRACE_SETTING names the setting; the rest of the environment is held to agree with it.
 */

#include <cstdlib>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "TraceNames.h"

namespace
{
struct Expected
{
    bool isActive;
    int level;
};

struct Setting
{
    const char* name;
    /// Variables, without their prefix.
    std::map<std::string, std::string> variables;
    /// What all channels show, but those that are listed.
    Expected others;
    std::map<std::string, Expected> channels;
};

constexpr Expected Silent{false, 1024};
constexpr Expected All{true, 1024};

const Setting Settings[] = {
    {"", {}, Silent, {}},
    {"features_25_all_50", {{"FEATURES", "25"}, {"ALL", "50"}}, {true, 150}, {{"FEATURES", {true, 125}}}},
    {"all_50", {{"ALL", "50"}}, {true, 150}, {}},
    {"all_abc", {{"ALL", "abc"}}, All, {}},
    {"abc", {{"FEATURES", "abc"}}, Silent, {{"FEATURES", All}}},
    {"zero", {{"FEATURES", "0"}}, Silent, {{"FEATURES", All}}},
    {"one", {{"FEATURES", "1"}}, Silent, {{"FEATURES", All}}},
    {"two", {{"FEATURES", "2"}}, Silent, {{"FEATURES", {true, 2}}}},
    {"three", {{"FEATURES", "3"}}, Silent, {{"FEATURES", {true, 103}}}},
    {"highest_added", {{"FEATURES", "102"}}, Silent, {{"FEATURES", {true, 202}}}},
    {"lowest_kept", {{"FEATURES", "103"}}, Silent, {{"FEATURES", {true, 103}}}},
    {"highest_kept", {{"FEATURES", "1024"}}, Silent, {{"FEATURES", All}}},
    {"too_high", {{"FEATURES", "1025"}}, Silent, {{"FEATURES", All}}},
    {"file_at_one", {{"FEATURES", "xFILE7"}}, Silent, {{"FEATURES", All}}},
    {"file_at_zero", {{"FEATURES", "FILE7"}}, Silent, {{"FEATURES", All}}},
    {"empty_features_all_50", {{"FEATURES", ""}, {"ALL", "50"}}, {true, 150}, {}},
    {"each_its_own",
     {{"DEBUG", "10"},
      {"FEATURES", "11"},
      {"SIM", "12"},
      {"VALIDITY", "13"},
      {"JS", "14"},
      {"DECORATE", "15"},
      {"JSON", "16"},
      {"UI", "17"},
      {"TEST", "18"}},
     Silent,
     {{"DEBUG", {true, 110}},
      {"FEATURES", {true, 111}},
      {"SIM", {true, 112}},
      {"VALIDITY", {true, 113}},
      {"JS", {true, 114}},
      {"DECORATE", {true, 115}},
      {"JSON", {true, 116}},
      {"UI", {true, 117}},
      {"TEST", {true, 118}}}},
};

class LoadedChannels : public testing::Test
{
protected:
    void SetUp() override
    {
        const char* const name = std::getenv("VYR_TRACE_SETTING");
        const std::string wanted = name != nullptr ? name : "";
        for (const Setting& setting : Settings)
            if (wanted == setting.name)
                m_setting = &setting;
        ASSERT_NE(m_setting, nullptr) << "no setting is called " << wanted;

        for (const char* variable :
             {"DEBUG", "FEATURES", "SIM", "VALIDITY", "JS", "DECORATE", "JSON", "UI", "TEST", "ALL"})
        {
            const auto found = m_setting->variables.find(variable);
            const std::string value = found != m_setting->variables.end() ? found->second : "";
            if (wanted.empty() && TraceVariable(variable) != value)
                GTEST_SKIP() << "the environment switches traces on";
            ASSERT_EQ(TraceVariable(variable), value) << variable;
        }
    }

    Expected Of(const Channel& iChannel) const
    {
        const auto found = m_setting->channels.find(iChannel.name);
        return found != m_setting->channels.end() ? found->second : m_setting->others;
    }

    const Setting* m_setting = nullptr;
};

TEST_F(LoadedChannels, AreActiveWithTheirMaximum)
{
    for (const Channel& channel : Channels)
    {
        ASSERT_NE(channel.trace, nullptr) << channel.name;
        ASSERT_NE(channel.control, nullptr) << channel.name;
        EXPECT_EQ(channel.trace->IsActive(), Of(channel).isActive) << channel.name;
        EXPECT_EQ(channel.control->TraGetLevelMax(), Of(channel).level) << channel.name;
    }
}

TEST_F(LoadedChannels, BearTheirNamesAndPrintOnTheStandardOutput)
{
    for (const Channel& channel : Channels)
    {
        EXPECT_EQ(channel.trace->Name(), std::string("CFD_") + channel.name);
        EXPECT_STREQ(channel.trace->Description(), channel.description);
        EXPECT_STREQ(channel.trace->File(), "STDOUT");
    }
}

TEST_F(LoadedChannels, NullTrace_StaysNull)
{
    EXPECT_EQ(VYRCfdTraceManager::_NullTrace, nullptr);
}

TEST_F(LoadedChannels, AVariableThatIsSetLater_HasNoEffect)
{
    setenv("VYRCFDTRACES_UI", "42", 1);
    for (const Channel& channel : Channels)
    {
        EXPECT_EQ(channel.trace->IsActive(), Of(channel).isActive) << channel.name;
        EXPECT_EQ(channel.control->TraGetLevelMax(), Of(channel).level) << channel.name;
    }
    const auto found = m_setting->variables.find("UI");
    if (found != m_setting->variables.end())
        setenv("VYRCFDTRACES_UI", found->second.c_str(), 1);
    else
        unsetenv("VYRCFDTRACES_UI");
}
} // namespace
