/**
 * @file
 * vyrcfd apply. What an answer looks like stands in the goldens.
 */

#include "SmallTest.h"

namespace
{
TEST_F(SmallTest, Apply_WithoutOutput_WritesNothing)
{
    const auto before = Files();
    EXPECT_EQ(Run({"apply", Small, "Case.1", "cavity"}).status, 0);
    EXPECT_EQ(Files(), before);
}

TEST_F(SmallTest, Apply_PrintsReportsOfNestedFailures_AsNotes_AndSucceeds)
{
    EXPECT_EQ(Outcome(Run({"apply", Small, "Case.1", "cavity"})),
              Outcome(0, "note: assertion: spDefMgmt != NULL_var in VYRCfdConfigurator::ApplyConfiguration, status "
                         "0x80004005\n"
                         "note: assertion: ispObject != NULL_var in VYRCfdConfigurator::ApplyConfiguration, status "
                         "0x80004005\n"
                         "note: \"cavity\", item 8, applies \"watchfulProbe\" to an object that cannot be configured: "
                         "samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:13:9\n"
                         "note: \"cavity\", item 9, finds no object to apply \"watchfulProbe\" to: "
                         "samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:14:9\n"));
}

TEST_F(SmallTest, Apply_OfNoItems_SaysThatNothingWasDone_AndSucceeds)
{
    const ToolRun run = Run({"apply", Small, "Mesh", "nothing"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "Nothing done: \"nothing\" has no items.\n");
    EXPECT_NE(Run({"apply", Small, "Mesh", "nothing", "--json"}).output.find("\"done\": false"), std::string::npos);
}

TEST_F(SmallTest, Apply_ToTheModelItself_IsThereWhenItIsLoadedAgain)
{
    const ToolRun applied = Run({"apply", Small, "Case.1", "cavity", "-o", Small});
    ASSERT_EQ(applied.status, 0) << applied.errors;
    EXPECT_EQ(Run({"show", Small, "Case.1/title"}).output,
              "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
              "    title  string  \"Cavity flow\"    default \"Cavity flow\" (record)\n");
    EXPECT_EQ(Run({"show", Small, "Case.1/monitors"}).output,
              "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
              "    monitors  list of string  [\"lift\", \"moment\"]  set\n");
    EXPECT_EQ(Run({"show", Small, "Case.1/iterations"}).output,
              "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
              "    iterations  integer  250  auto  default 250 (record)\n");
}

TEST_F(SmallTest, Apply_Twice_MakesTheRecordsAnew_AndChangesNothingElse)
{
    ASSERT_EQ(Run({"apply", Small, "Case.1/probe", "watchfulProbe", "-o", Small}).status, 0);
    const ToolRun again = Run({"apply", Small, "Case.1/probe", "watchfulProbe"});
    EXPECT_EQ(again.output, "Case.1/probe  Probe\n"
                            "    1 record made anew as before\n"
                            "\"watchfulProbe\" on Case.1/probe: 0 attributes changed, 1 record made, 1 record left "
                            "that nothing refers to.\n");
}

TEST_F(SmallTest, Apply_SavesOnlyWhatTheModuleHasMade)
{
    // Looking for changes must not make the flags that asking for them would make.
    ASSERT_EQ(Run({"apply", Small, "Case.1", "nothing", "-o", "same.model.json"}).status, 0);
    ASSERT_EQ(Run({"apply", "same.model.json", "Case.1", "nothing", "-o", "again.model.json"}).status, 0);
    EXPECT_EQ(Read("same.model.json"), Read("again.model.json"));
    EXPECT_EQ(Read("same.model.json").find("author_isset"), std::string::npos);
    EXPECT_EQ(Run({"show", "same.model.json", "--json"}).output, Run({"show", Small, "--json"}).output);
}

struct FailedRun
{
    const char* name;
    const char* object;
    const char* configuration;
    std::string errors;
};

void PrintTo(const FailedRun& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class FailedRuns : public SmallTest, public testing::WithParamInterface<FailedRun>
{
};

TEST_P(FailedRuns, TellWhatTheErrorServiceHolds_AndWriteNothing)
{
    const auto before = Files();
    const ToolRun run = Run({"apply", Small, GetParam().object, GetParam().configuration, "-o", Small});
    EXPECT_EQ(Outcome(run), Outcome(1, GetParam().errors));
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(Files(), before);
}

const FailedRun FailedRunCases[] = {
    {"InTheMiddle", "Case.1", "breaksOff",
     "small.model.json: \"breaksOff\" failed on \"Case.1\"\n"
     "\"breaksOff\", item 2, fails: samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:23:9\n"
     "error: No attribute unheardOf in VYRCfdObjectAccess::SetStrings, status 0x80004005\n"
     "failed call: specAccess[path].SetStrings(valuesList) in VYRCfdConfigurator::ApplyConfiguration, status "
     "0x80004005\n"},
    {"ChoiceItemOnNoChoice", "Case.1", "choosing",
     "small.model.json: \"choosing\" failed on \"Case.1\"\n"
     "\"choosing\", item 1, fails: samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:26:38\n"
     "assertion: spChoice in VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n"},
    {"EmptyEntryOnTheWay", "Case.1", "intoGap",
     "small.model.json: \"intoGap\" failed on \"Case.1\", fatally: unexpected null pointer\n"
     "\"intoGap\", item 1, fails: samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:50:37\n"},
};
INSTANTIATE_TEST_SUITE_P(Apply, FailedRuns, testing::ValuesIn(FailedRunCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(SmallTest, Apply_ToAMarkedType_GoesThroughItsManager)
{
    // A Choice without manager takes choices that its type does not declare.
    EXPECT_EQ(Outcome(Run({"apply", Flow, "Flow.1/energy", "undeclared"})), Outcome(0, ""));
    EXPECT_EQ(Outcome(Run({"apply", Flow, "Flow.1/solver", "undeclared"})),
              Outcome(1, "flow.model.json: \"undeclared\" failed on \"Flow.1/solver\"\n"
                         "\"undeclared\", item 1, fails: "
                         "samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:48:40\n"
                         "error: Invalid choice multigrid in VYRCfdChoiceMgrAdp::ConfigureChoiceMgr, status "
                         "0x80004005\n"
                         "failed call: spChoiceMgr->ConfigureChoiceMgr(choicesList, defaultValue, display) in "
                         "VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n"));
}

TEST_F(SmallTest, Apply_OfACircle_EndsWithOneReport_AndTheItem)
{
    const ToolRun run = Run({"apply", Small, "list", "circle"});
    EXPECT_EQ(Outcome(run), Outcome(0, "note: error: Configuration nesting too deep: circle in "
                                       "VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n"
                                       "note: \"circle\", item 1, applies \"circle\", by which it is applied itself: "
                                       "samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:51:36\n"));
}

TEST_F(SmallTest, Apply_TellsTheItemThatFails_InNestedConfigurationsToo)
{
    Write(std::string(Configurations) + "measurementsConfig.json",
          R"({"configurations": [
            {"name": "outer", "config": [
              {"path": "", "config": "inner"},
              {"path": "title", "type": "string", "default": "Outer"}]},
            {"name": "inner", "config": [
              {"path": "iterations", "default": "3"},
              {"path": "probe", "config": "innermost", "condition": "iterations==3"},
              {"path": "titel", "default": "Inner"}]},
            {"name": "innermost", "config": [{"path": "feild", "default": "nothing"}]}]})");
    const std::string spParm = "note: assertion: spParm in VYRCfdDefaultManagementAdp::SetCustomDefault, status "
                               "0x80004005\n"
                               "note: failed call: spDefMgmt->SetCustomDefault(path, defaultValue) in "
                               "VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n";
    EXPECT_EQ(Outcome(Run({"apply", Small, "Case.1", "outer"})),
              Outcome(0, spParm + spParm +
                             "note: \"innermost\", item 1, fails: "
                             "samples/reffiles/VYRCfdApp/measurementsConfig.json:9:46\n"
                             "note: \"inner\", item 3, fails: "
                             "samples/reffiles/VYRCfdApp/measurementsConfig.json:8:15\n"));
}

TEST_F(SmallTest, Apply_SaysWhereItHasSaved)
{
    const std::string saved = Run({"apply", Small, "Case.1/probe", "watchfulProbe", "-o", "new.model.json"}).output;
    EXPECT_EQ(saved.substr(saved.rfind("Saved", saved.size())), "Saved to new.model.json.\n");
    EXPECT_EQ(Run({"apply", Small, "Case.1/probe", "watchfulProbe"}).output.find("Saved"), std::string::npos);
    EXPECT_EQ(Run({"apply", Small, "Mesh", "nothing", "-o", "same.model.json"}).output,
              "Nothing done: \"nothing\" has no items.\nSaved to same.model.json.\n");
}

TEST_F(ToolTest, Apply_OfTheSample_ReachesWhatTheConfigurationNames)
{
    ASSERT_EQ(Outcome(Run({"apply", External, "Wing solver", "externalFlow", "-o", External})), Outcome(0, ""));
    // Set by the user, and left alone.
    EXPECT_NE(Run({"show", External, "Solver.1/iterations"}).output.find(" 4000  set  default 2500 (record)\n"),
              std::string::npos);
    EXPECT_NE(Run({"show", External, "Solver.1/caseName"}).output.find("\"External aerodynamics\"    default"),
              std::string::npos);
}
} // namespace
