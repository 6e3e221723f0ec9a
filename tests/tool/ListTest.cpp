/**
 * @file
 * vyrcfd list.
 */

#include "ToolTest.h"

namespace
{
const std::vector<std::string> FileNames{"SolverConfigurations.json",       "conditionsConfig_Flow.json",
                                         "conditionsConfig_Energy.json",    "conditionsConfig_Turbulence.json",
                                         "conditionsConfig_Species.json",   "conditionsConfig_Phase.json",
                                         "solverConfig_Flow.json",          "solverConfig_Energy.json",
                                         "solverConfig_Turbulence.json",    "solverConfig_MultiSpecies.json",
                                         "measurementsConfig.json",         "solverConfig_Radiation.json",
                                         "conditionsConfig_Radiation.json", "conditionsConfig_ECooling.json",
                                         "solverConfig_MultiPhase.json",    "meshFYEConfig.json"};

class ListTest : public ToolTest
{
protected:
    /// Nothing is configured but what a test writes.
    ListTest()
    {
        for (const std::string& name : FileNames)
            Write(Configurations + name, "{}");
    }
};

TEST_F(ListTest, Definitions_StandWithTheirFiles_InTheOrderOfTheFiles)
{
    Write(std::string(Configurations) + "conditionsConfig_Flow.json",
          R"({"configurations": [{"name": "inlet", "config": [{}]}, {"name": "far\tfield"},
              {"name": ""}]})");
    Write(std::string(Configurations) + "meshFYEConfig.json",
          R"({"configurations": [{"name": "mesh", "config": [{}, {"path": "a"}]}, {"name": "inlet", "config": []}]})");
    Write(std::string(Configurations) + "solverConfig_Flow.json",
          R"({"configurations": [{"name": "mesh", "config": []}, {"name": "mesh"}]})");
    const std::string folder = Configurations;
    std::string expected;
    for (const std::string& name : FileNames)
    {
        expected += folder + name + "\n";
        if (name == "conditionsConfig_Flow.json")
            expected += "    inlet       1 item, line 1\n"
                        "    far\\tfield  0 items, line 1\n"
                        "    \"\"          0 items, line 2\n";
        if (name == "solverConfig_Flow.json")
            expected += "    mesh        0 items, line 1\n"
                        "    mesh        0 items, line 1  without effect: defined in " +
                        folder + "solverConfig_Flow.json, line 1\n";
        if (name == "meshFYEConfig.json")
            expected += "    mesh        2 items, line 1  without effect: defined in " + folder +
                        "solverConfig_Flow.json, line 1\n" +
                        "    inlet       0 items, line 1  without effect: defined in " + folder +
                        "conditionsConfig_Flow.json, line 1\n";
    }
    const ToolRun run = Run({"list"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, expected);
}

TEST_F(ListTest, Json_HasOneEntryADefinition)
{
    Write(std::string(Configurations) + "measurementsConfig.json",
          R"({"configurations": [{"name": "lift", "config": [{}]},
              {"name": "lift"}]})");
    const ToolRun run = Run({"list", "--json"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, R"({
  "configurations": [
    {
      "name": "lift",
      "file": "samples/reffiles/VYRCfdApp/measurementsConfig.json",
      "line": 1,
      "column": 30,
      "items": 1,
      "hiddenBy": null,
      "hiddenByLine": null
    },
    {
      "name": "lift",
      "file": "samples/reffiles/VYRCfdApp/measurementsConfig.json",
      "line": 2,
      "column": 24,
      "items": 0,
      "hiddenBy": "samples/reffiles/VYRCfdApp/measurementsConfig.json",
      "hiddenByLine": 1
    }
  ]
}
)");
}

TEST_F(ListTest, SlopeVariable_TakesTheOtherFirstFile)
{
    Write(std::string(Configurations) + "SolverConfigurations_dxSlope.json",
          R"({"configurations": [{"name": "bySlope", "config": []}]})");
    EXPECT_EQ(Run({"list"}).output.find("bySlope"), std::string::npos);
    ToolSettings settings{m_folder.Path()};
    // Its existence counts, not its value.
    settings.environment["VYRCfd_USE_DxSLOPE_CONVG_CRIT"] = "";
    EXPECT_EQ(Run({"list"}, settings).output.substr(0, 69),
              "samples/reffiles/VYRCfdApp/SolverConfigurations_dxSlope.json\n    bySl");
}

TEST_F(ToolTest, List_NamesWhatApplyFinds)
{
    const std::string names = Run({"list"}).output;
    for (const char* name : {"externalFlow", "wallFunction", "refinementZone"})
        EXPECT_NE(names.find(std::string("\n    ") + name + " "), std::string::npos) << name;
}
} // namespace
