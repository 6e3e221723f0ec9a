/**
 * @file
 * Configurations that lead back to themselves, on a stack that would not hold them without the limit.
 */

#include "BoundedStack.h"
#include "VYRStandaloneInstruments.h"
#include "WalkTest.h"

namespace
{
/// Half of what a thread has by default; 512 nested applications take a fraction of it.
constexpr std::size_t Stack = 4096;

class NestingLimitTest : public WalkTest
{
protected:
    /// Applies on a bounded stack. @return what was reported
    Records ApplyBounded(const char* iName, long iStatus = S_OK)
    {
        Records reports;
        OnBoundedStack(Stack, [&] {
            EXPECT_EQ(Apply(m_solver, iName), iStatus);
            reports = Reported();
        });
        return reports;
    }
};

Record TooDeep(const std::string& iName)
{
    return Error("Configuration nesting too deep: " + iName, Walk);
}

TEST_F(NestingLimitTest, ConfigurationThatAppliesItself_EndsWithOneError)
{
    Install({Configuration("loop", R"([ { "config": "loop" } ])")});
    EXPECT_EQ(ApplyBounded("loop"), (Records{TooDeep("loop")}));
}

TEST_F(NestingLimitTest, Error_KeepsAPercentInTheName)
{
    Install({Configuration("50%s", R"([ { "config": "50%s" } ])")});
    EXPECT_EQ(ApplyBounded("50%s"), (Records{TooDeep("50%s")}));
}

TEST_F(NestingLimitTest, ConfigurationsThatApplyEachOther_NameTheOneThatIsTooDeep)
{
    Install({Configuration("odd", R"([ { "config": "even" } ])"), Configuration("even", R"([ { "config": "odd" } ])")});
    // The 513th application is the one too many.
    EXPECT_EQ(ApplyBounded("odd"), (Records{TooDeep("odd")}));
    EXPECT_EQ(ApplyBounded("even"), (Records{TooDeep("even")}));
}

TEST_F(NestingLimitTest, CycleThroughTwoBranches_EndsQuicklyWithOneError)
{
    Install({Configuration("loop",
                           R"([ { "config": "loop" }, { "config": "loop" }, { "path": "zone", "config": "loop" } ])")});
    EXPECT_EQ(ApplyBounded("loop"), (Records{TooDeep("loop")}));
}

TEST_F(NestingLimitTest, CycleThroughTwoConditions_RecordsOnEachLevelAndEndsWithOneError)
{
    Install({Configuration("loop", R"([ { "config": "loop", "condition": "steady=true" },
                                        { "config": "loop", "condition": "steady=true" } ])")});
    EXPECT_EQ(ApplyBounded("loop"), (Records{TooDeep("loop")}));
    EXPECT_EQ(RecordsOf(m_solver),
              (Lines{"path= condition=steady=true config=loop", "path= condition=steady=true config=loop"}));
    EXPECT_EQ(RecordsIn(m_model), 1024);
}

/// Each applies the next one twice: the last would be applied some 10^12 times.
TEST_F(NestingLimitTest, ConfigurationsThatMultiply_EndWithOneErrorAndLeaveTheNextRunAlone)
{
    std::vector<std::string> texts;
    for (int i = 0; i < 40; ++i)
    {
        const std::string next = "\"double" + std::to_string(i + 1) + "\"";
        texts.push_back(Configuration("double" + std::to_string(i),
                                      "[ { \"config\": " + next + " }, { \"config\": " + next + " } ]"));
    }
    texts.push_back(Configuration("double40", R"([ { "path": "monitors", "value": "lift", "list": true } ])"));
    Install(texts);
    // The 100001st application in the order of the walk.
    EXPECT_EQ(ApplyBounded("double0"), (Records{Error("Too many nested configurations: double37", Walk)}));
    EXPECT_EQ(ApplyBounded("double30"), Records{});
}

TEST_F(NestingLimitTest, OwnItemsOfACycle_AreStillApplied)
{
    Install(
        {Configuration("loop", R"([ { "config": "loop" }, { "path": "monitors", "value": "lift", "list": true } ])")});
    EXPECT_EQ(ApplyBounded("loop"), (Records{TooDeep("loop")}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"lift"}));
}

TEST_F(NestingLimitTest, OnceTheLimitIsMet_NothingNestsAnyMoreUntilTheOutermostApplicationEnds)
{
    Install({Configuration("main", R"([ { "config": "loop" }, { "config": "leaf" } ])"),
             Configuration("loop", R"([ { "config": "loop" } ])"),
             Configuration("leaf", R"([ { "path": "monitors", "value": "lift", "list": true } ])")});
    EXPECT_EQ(ApplyBounded("main"), (Records{TooDeep("loop")}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"mass"}));
    EXPECT_EQ(ApplyBounded("leaf"), Records{});
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"lift"}));
}

TEST_F(NestingLimitTest, SecondRunOnTheSameThread_ReportsAgain)
{
    Install({Configuration("loop", R"([ { "config": "loop" } ])")});
    OnBoundedStack(Stack, [&] {
        for (int run = 0; run < 2; ++run)
        {
            EXPECT_EQ(Apply(m_solver, "loop"), S_OK);
            EXPECT_EQ(Reported(), (Records{TooDeep("loop")}));
        }
    });
}

/// Configurations "1" to `iDepth`, each applying the next; the last fills a list.
std::vector<std::string> Chain(int iDepth)
{
    std::vector<std::string> configurations;
    for (int i = 1; i < iDepth; ++i)
        configurations.push_back(
            Configuration(std::to_string(i), R"([ { "config": ")" + std::to_string(i + 1) + R"(" } ])"));
    configurations.push_back(
        Configuration(std::to_string(iDepth), R"([ { "path": "monitors", "value": "lift", "list": true } ])"));
    return configurations;
}

TEST_F(NestingLimitTest, NestingOf512_IsFine)
{
    Install(Chain(512));
    EXPECT_EQ(ApplyBounded("1"), Records{});
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"lift"}));
}

TEST_F(NestingLimitTest, NestingOf513_IsTooDeep)
{
    Install(Chain(513));
    EXPECT_EQ(ApplyBounded("1"), (Records{TooDeep("513")}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"mass"}));
}

TEST_F(NestingLimitTest, LimitComesBeforeEverythingElse)
{
    std::vector<std::string> configurations = Chain(512);
    configurations.back() = Configuration("512", R"([ { "config": "unknown" } ])");
    Install(configurations);
    EXPECT_EQ(ApplyBounded("1"), (Records{TooDeep("unknown")}));
}

TEST_F(NestingLimitTest, ManyApplicationsBesideEachOther_AreNotNesting)
{
    std::string items;
    for (int i = 0; i < 2000; ++i)
        items += std::string(i == 0 ? "" : ",") + R"({ "config": "leaf" })";
    Install({Configuration("wide", "[" + items + "]"),
             Configuration("leaf", R"([ { "path": "title", "value": "skipped" } ])")});
    EXPECT_EQ(ApplyBounded("wide"), Records{});
}
} // namespace
