/**
 * @file
 * vyrcfd show: which objects a path leads to, and that showing changes nothing. What an object looks like stands in the
 * goldens.
 */

#include "SmallTest.h"

namespace
{
/// The paths of the objects of an answer, in their order.
std::vector<std::string> Paths(const ToolRun& iRun)
{
    constexpr char Key[] = "\"path\": \"";
    // An object's own path stands deeper than the attribute of that name of a record.
    const std::string start = std::string("\n      ") + Key;
    std::vector<std::string> paths;
    for (std::size_t at = iRun.output.find(start); at != std::string::npos; at = iRun.output.find(start, at + 1))
    {
        const std::size_t begin = at + start.size();
        paths.push_back(iRun.output.substr(begin, iRun.output.find('"', begin) - begin));
    }
    return paths;
}

TEST_F(SmallTest, Show_ChangesNoFile)
{
    const auto before = Files();
    EXPECT_EQ(Outcome(Run({"show", Small})), Outcome(0, ""));
    EXPECT_EQ(Outcome(Run({"show", Small, "Case.1", "--json"})), Outcome(0, ""));
    EXPECT_EQ(Files(), before);
}

TEST_F(SmallTest, Show_OfReals_NeedsNoExponentWhereTheDigitsCanBeRead)
{
    const std::map<std::string, std::string> shown{
        {"2e5", "200000"}, {"-1.5e14", "-150000000000000"}, {"0.0001", "0.0001"}, {"0.0", "0"},
        {"1e-5", "1e-05"}, {"101325.5", "101325.5"},        {"1e15", "1e+15"},    {"0.1", "0.1"}};
    for (const auto& [written, expected] : shown)
    {
        std::string model = ReadData("small.model.json");
        const std::string old = "\"relaxation\": 0.5,";
        Write(Small, model.replace(model.find(old), old.size(), "\"relaxation\": " + written + ","));
        const std::string text = Run({"show", Small, "Case.1/relaxation"}).output;
        EXPECT_NE(text.find("relaxation  real  " + expected + "  set"), std::string::npos) << text;
    }
}

TEST_F(SmallTest, Show_GivesEachObjectOnce_RecordsWithTheirObject)
{
    const std::vector<std::string> expected{"Case.1",
                                            "Case.1/defaultManagement",
                                            "Case.1/defaultManagement/configuration/1",
                                            "Case.1/defaultManagement/configuration/2",
                                            "Case.1/probe",
                                            "Case.1/probes/Probe.1",
                                            "Case.1/probes/Outlet",
                                            "Mesh",
                                            "5",
                                            "list",
                                            "list/probe"};
    EXPECT_EQ(Paths(Run({"show", Small, "--json"})), expected);
}

/// Asking for a default makes a custom one of a record; the second question must not be taken for the first.
TEST_F(ToolTest, Show_OfAChoiceWithARecord_TellsTheRecordAsTheSourceOfItsValueEverywhere)
{
    const std::string saved = "applied.model.json";
    ASSERT_EQ(Outcome(Run({"apply", External, "Solver.1", "externalFlow", "-o", saved})), Outcome(0, ""));
    for (const char* const path : {"Solver.1/turbulence/model", "Solver.1"})
    {
        const std::string text = Run({"show", saved, path}).output;
        EXPECT_NE(text.find("(record)"), std::string::npos) << text;
        EXPECT_EQ(text.find("custom default"), std::string::npos) << text;
        const std::string json = Run({"show", saved, path, "--json"}).output;
        EXPECT_NE(json.find("\"source\": \"record\""), std::string::npos) << json;
        EXPECT_EQ(json.find("custom default"), std::string::npos) << json;
    }
}

struct Lead
{
    const char* name;
    const char* path;
    std::vector<std::string> paths;
};

void PrintTo(const Lead& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Leads : public SmallTest, public testing::WithParamInterface<Lead>
{
};

TEST_P(Leads, ShowThePlaceInTheModel)
{
    const ToolRun run = Run({"show", Small, GetParam().path, "--json"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(Paths(run), GetParam().paths);
}

const std::vector<std::string> MeshOnly{"Mesh"};
const Lead LeadCases[] = {
    {"Alias", "Cavity/probe", {"Case.1/probe"}},
    {"Type", "Mesh", MeshOnly},
    {"Position", "4", MeshOnly},
    {"Reference", "Case.1/mesh", MeshOnly},
    // Named like a command.
    {"CommandName", "list/probe", {"list/probe"}},
    {"EmptySegment", "list/probe//field", {"list/probe"}},
    {"Record", "Case.1/defaultManagement/configuration/2", {"Case.1/defaultManagement/configuration/2"}},
    {"RecordByType", "ConfigItem", {"Case.1/defaultManagement/configuration/1"}},
    {"DefaultManagement", "Case.1/defaultManagement", {"Case.1/defaultManagement"}},
    {"Attribute", "Case.1/relaxation", {"Case.1"}},
    {"List", "Case.1/probes", {"Case.1", "Case.1/probes/Probe.1", "Case.1/probes/Outlet"}},
};
INSTANTIATE_TEST_SUITE_P(Show, Leads, testing::ValuesIn(LeadCases), [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(SmallTest, Show_OfAnAttribute_ShowsIt)
{
    EXPECT_EQ(Run({"show", Small, "Case.1/relaxation"}).output,
              "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
              "    relaxation  real  0.5  set  default 0.7 (start-up)\n");
    EXPECT_EQ(Run({"show", Small, "Case.1/tolerance"}).output,
              "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
              "    tolerance  real  1e-08    default 1e-08 (record)\n");
}

TEST_F(ToolTest, Show_EachPathLeadsBackToItsObject)
{
    const std::vector<std::string> paths = Paths(Run({"show", External, "--json"}));
    ASSERT_GT(paths.size(), 30U);
    for (const std::string& path : paths)
        EXPECT_EQ(Paths(Run({"show", External, path, "--json"})).at(0), path);
}

/// A model file may hold anything there, and the engine takes it until the value changes.
TEST_F(SmallTest, Show_OfAChoice_TellsOfADataObjectThatItsValueDoesNotBring)
{
    const std::string remark = "choices  (the data object is not what the selected one brings)\n";
    const std::string model = ReadData("flow.model.json");
    const std::string type = "\"KOmegaModel\",";
    const auto shown = [&](const std::string& iText) {
        Write(Flow, iText);
        return Run({"show", Flow, "Flow 3/turbulence"}).output;
    };
    std::string other = model;
    other.replace(other.rfind(type), type.size(), "\"WallLaw\",");
    EXPECT_EQ(shown(model).find(remark), std::string::npos);
    EXPECT_NE(shown(other).find(remark), std::string::npos);
}

TEST_F(SmallTest, Show_OfAnEmptyModel_SaysSo)
{
    Write("empty.model.json", R"({"model": 1, "catalogs": [], "objects": []})");
    EXPECT_EQ(Run({"show", "empty.model.json"}).output, "No objects.\n");
    EXPECT_EQ(Run({"show", "empty.model.json", "--json"}).output, "{\n  \"objects\": []\n}\n");
}
} // namespace
