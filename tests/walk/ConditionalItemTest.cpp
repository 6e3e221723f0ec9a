/**
 * @file
 * Items that apply a further configuration when a condition holds, and record it either way.
 */

#include <ostream>

#include "ChannelSwap.h"
#include "VYRCfdTraceManager.h"
#include "VYRStandaloneInstruments.h"
#include "WalkTest.h"

namespace
{
struct Conditional
{
    const char* name;
    const char* path;
    const char* condition;
    const char* config;
    /// What the nested configuration would change: the zone's temperature, or the solver's iterations.
    std::string temperature;
    std::string iterations;
};

void PrintTo(const Conditional& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ConditionalItemTest : public WalkTest, public testing::WithParamInterface<Conditional>
{
};

TEST_P(ConditionalItemTest, Item_IsRecordedWhetherOrNotItHolds)
{
    const Conditional& row = GetParam();
    Install({Configuration("main", R"([ { "path": ")" + std::string(row.path) + R"(", "condition": ")" + row.condition +
                                       R"(", "config": ")" + row.config + R"(", "type": "not recorded" } ])"),
             Configuration("hot", R"([ { "path": "temperature", "default": "900" } ])"),
             Configuration("short", R"([ { "path": "iterations", "default": "7" } ])")});
    ChannelSwap debug(VYRCfdTraceManager::_Debug);
    EXPECT_EQ(Apply(m_solver, "main"), S_OK);
    EXPECT_EQ(ValueOf(At(m_solver, "zone"), "temperature"), row.temperature);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), row.iterations);
    EXPECT_EQ(RecordsOf(m_solver),
              (Lines{std::string("path=") + row.path + " condition=" + row.condition + " config=" + row.config}));
    // In silence also where there is no target, unlike an item without a condition.
    EXPECT_EQ(debug.Take(), Lines{});
}

const Conditional conditionals[] = {
    {"Holds", "zone", "iterations=500", "hot", "900", "500"},
    {"Fails", "zone", "iterations=499", "hot", "300", "500"},
    {"HoldsWithoutTarget", "nowhere", "iterations=500", "hot", "300", "500"},
    {"FailsWithoutTarget", "nowhere", "iterations=499", "hot", "300", "500"},
    {"HoldsOnTheObjectItself", "", "steady=true", "short", "300", "7"},
    {"FailsOnTheObjectItself", "", "title!=flow", "short", "300", "500"},
    {"CannotBeParsed", "zone", "iterations", "hot", "300", "500"},
    {"NamesNothing", "zone", "missing=1", "hot", "300", "500"},
    {"LooksDeeper", "zone", "zone/layers>2", "hot", "900", "500"},
    {"UnknownConfigurationWhereItFails", "zone", "iterations=499", "unknown", "300", "500"},
};

INSTANTIATE_TEST_SUITE_P(Conditions, ConditionalItemTest, testing::ValuesIn(conditionals),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

class ConditionalFailureTest : public WalkTest
{
};

TEST_F(ConditionalFailureTest, NestedFailure_DoesNotStopTheWalk)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "zone", "condition": "iterations=500", "config": "unknown" },
                              { "path": "iterations", "default": "7" } ])"),
              S_OK);
    EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)", Walk)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(RecordsOf(m_solver),
              (Lines{"path=zone condition=iterations=500 config=unknown", "type= path=iterations default=7"}));
}

TEST_F(ConditionalFailureTest, Condition_SeesWhatEarlierItemsDid)
{
    Install({Configuration("main", R"([ { "path": "iterations", "default": "7" },
                                        { "path": "zone", "condition": "iterations=7", "config": "hot" } ])"),
             Configuration("hot", R"([ { "path": "temperature", "default": "900" } ])")});
    EXPECT_EQ(Apply(m_solver, "main"), S_OK);
    EXPECT_EQ(ValueOf(At(m_solver, "zone"), "temperature"), "900");
}

TEST_F(ConditionalFailureTest, Condition_IsEvaluatedBeforeTheRecordIsWritten)
{
    // The record is written although the condition could not be read, and nothing of the record comes before.
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ApplyItems(R"([ { "path": "zone", "condition": "iterations=499", "config": "hot" } ])"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "create VYRCfdConfigItem ConfigItem",
                                "write ConfigItem.path = zone",
                                "write ConfigItem.condition = iterations=499",
                                "write ConfigItem.config = hot",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                            }));
}
} // namespace
