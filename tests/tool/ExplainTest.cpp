/**
 * @file
 * vyrcfd explain. What an answer looks like stands in the goldens.
 */

#include <sstream>

#include "Sanitized.h"
#include "SmallTest.h"

namespace
{
std::vector<std::string> LinesOf(const std::string& iText)
{
    std::vector<std::string> lines;
    std::istringstream stream(iText);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// What stands behind a label, or behind the mark of the rung that counts; "" where there is no such line.
std::string BehindLabel(const std::string& iText, const std::string& iStart)
{
    constexpr std::size_t Width = 20;
    for (const std::string& line : LinesOf(iText))
        if (line.compare(0, iStart.size(), iStart) == 0 && line.size() > Width)
            return line.substr(Width);
    return {};
}

TEST_F(SmallTest, Explain_ChangesNothing)
{
    const auto before = Files();
    EXPECT_EQ(Outcome(Run({"explain", Small, "Case.1/tolerance"})), Outcome(0, ""));
    EXPECT_EQ(Outcome(Run({"explain", Flow, "Flow.1/turbulence/value", "--json"})), Outcome(0, ""));
    EXPECT_EQ(Files(), before);
}

TEST_F(SmallTest, Explain_TellsEveryItemThatLeavesSuchARecord_AndOnlyThose)
{
    Write(std::string(Configurations) + "measurementsConfig.json",
          R"({"configurations": [
            {"name": "same", "config": [{},
              {"path": "tolerance", "default": "1e-8", "defaultAutoKey": "fromMesh"}]},
            {"name": "other", "config": [
              {"path": "tolerance", "default": "1e-9"},
              {"path": "tolerance", "default": "1e-8", "value": "a"},
              {"path": "iterations", "default": "1e-8"}]},
            {"name": "same", "config": [{"path": "tolerance", "default": "1e-8"}]}]})");
    std::vector<std::string> items;
    for (const std::string& line : LinesOf(Run({"explain", Small, "Case.1/tolerance"}).output))
        if (line.find(", item ") != std::string::npos)
            items.push_back(line.substr(line.find_first_not_of(' ')));
    const std::string folder = Configurations;
    EXPECT_EQ(items, (std::vector<std::string>{"cavity, item 6  " + folder + "conditionsConfig_Flow.json:11:9",
                                               "same, item 2  " + folder + "measurementsConfig.json:3:15"}));
}

TEST_F(ToolTest, Explain_OfAnOptionalAttribute_SaysThatItIs)
{
    const std::string text = Run({"explain", External, "Solver.1/remark"}).output;
    EXPECT_EQ(LinesOf(text).front(), "Solver.1/remark  string, optional");
    EXPECT_EQ(BehindLabel(text, "    start-up"), "none: the attribute is optional, and was added to this object");
    EXPECT_NE(text.find("declared by FlowSolver in the catalog FlowCommon  samples/catalogs/"), std::string::npos);
}

TEST_F(SmallTest, Explain_OfARecordThatNoItemLeavesAnyMore_SaysSo)
{
    Write(std::string(Configurations) + "conditionsConfig_Flow.json", "{}");
    EXPECT_NE(Run({"explain", Small, "Case.1/tolerance"})
                  .output.find("no item of the configurations leaves such a "
                               "record now\n"),
              std::string::npos);
}

/// A Case with records, in their order.
std::string ModelWithRecords(const std::vector<std::string>& iRecords)
{
    std::string references;
    std::string objects;
    for (std::size_t i = 0; i < iRecords.size(); ++i)
    {
        const std::string id = std::to_string(i + 1);
        references += std::string(i == 0 ? "" : ", ") + R"({"ref": )" + id + "}";
        objects += R"(, {"type": "VYRCfdConfigItem", "name": "ConfigItem", "id": )" + id + R"(, "values": )" +
                   iRecords[i] + "}";
    }
    return R"({"model": 1, "catalogs": ["Small"], "objects": [{"type": "Case", "name": "C", "values": )"
           R"({"defaultManagement": {"values": {"configuration": [)" +
           references + "]}}}}" + objects + "]}";
}

struct Rung
{
    const char* name;
    std::vector<std::string> records;
    const char* attribute;
    /// Label and value of the rung that counts; empty for none.
    const char* counts;
    const char* afterUnset;
};

void PrintTo(const Rung& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Rungs : public SmallTest, public testing::WithParamInterface<Rung>
{
};

TEST_P(Rungs, CountAsDefaultManagementTakesThem)
{
    Write("records.model.json", ModelWithRecords(GetParam().records));
    const ToolRun run = Run({"explain", "records.model.json", std::string("C/") + GetParam().attribute});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    std::string counts;
    for (const std::string& line : LinesOf(run.output))
        if (line.compare(0, 4, "  > ") == 0)
            counts += line.substr(4);
    EXPECT_EQ(counts, GetParam().counts);
    EXPECT_EQ(BehindLabel(run.output, "    after unset"), GetParam().afterUnset);
}

const Rung RungCases[] = {
    {"StartupWithoutRecords", {}, "iterations", "start-up        500  ([Case])", "500, by the start-up"},
    {"StartupWithoutValue", {}, "title", "start-up        (unset)  ([Case])", "(unset), by the start-up"},
    {"FirstOfTwoRecords",
     {R"({"path": "iterations", "default": "7"})", R"({"path": "iterations", "default": "8"})"},
     "iterations",
     "record          7  (1. iterations: default \"7\")",
     "7, by the record"},
    {"RecordsOfOthersPassedOver",
     {R"({"path": "iterations/value", "default": "7"})", R"({"path": "iterations", "default": "8"})"},
     "iterations",
     "record          8  (2. iterations: default \"8\")",
     "8, by the record"},
    {"TextThatIsNoNumber",
     {R"({"path": "iterations", "default": "many"})"},
     "iterations",
     "record          (unset)  (1. iterations: default \"many\")",
     "(unset), by the record"},
    {"NumberInFrontOfAUnit",
     {R"({"path": "relaxation", "default": "0.25 m"})"},
     "relaxation",
     "record          0.25  (1. relaxation: default \"0.25 m\")",
     "0.25, by the record"},
    {"BooleanThatRecordsCannotGive",
     {R"({"path": "steady", "default": "false"})"},
     "steady",
     "record          (unset)  (1. steady: default \"false\")",
     "(unset), by the record"},
    {"ConditionalRecordOfThePath",
     {R"({"path": "iterations", "condition": "steady==true", "config": "cavity"})"},
     "iterations",
     "record          (unset)  (1. iterations: configuration \"cavity\", on condition \"steady==true\")",
     "(unset), by the record"},
    {"NoLadderForLists", {}, "weights", "", "[1, 0.25], as before: it has no default"},
};
INSTANTIATE_TEST_SUITE_P(Explain, Rungs, testing::ValuesIn(RungCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

struct Misled
{
    const char* name;
    std::vector<std::string> arguments;
    std::string errors;
};

void PrintTo(const Misled& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class MisledExplanations : public SmallTest, public testing::WithParamInterface<Misled>
{
};

TEST_P(MisledExplanations, FailWithTheReason)
{
    std::vector<std::string> arguments = GetParam().arguments;
    arguments.insert(arguments.begin(), "explain");
    const ToolRun run = Run(arguments);
    EXPECT_EQ(Outcome(run), Outcome(1, GetParam().errors));
    EXPECT_EQ(run.output, "");
}

const Misled MisledCases[] = {
    {"Object", {"small.model.json", "Case.1"}, "small.model.json: \"Case.1\" is an object, no attribute\n"},
    {"Nowhere",
     {"small.model.json", "Case.2/title"},
     "small.model.json: no top-level object \"Case.2\"; did you mean \"Case.1\"?\n"},
    {"DefaultManagement",
     {"small.model.json", "Case.1/defaultManagement"},
     "small.model.json: \"Case.1/defaultManagement\" holds the flags and the records of attributes, and has no default "
     "of its own\n"},
    {"NoModel", {"none.model.json", "a/b"}, "none.model.json: cannot be opened: No such file or directory\n"},
};
INSTANTIATE_TEST_SUITE_P(Explain, MisledExplanations, testing::ValuesIn(MisledCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

/// Paths of the attributes of an object, each on a line of `show` with a kind behind its name.
std::vector<std::string> AttributePaths(const std::string& iShown)
{
    // Objects stand at depths of four blanks, their attributes four deeper.
    std::vector<std::string> owners;
    std::vector<std::string> paths;
    for (const std::string& line : LinesOf(iShown))
    {
        const std::size_t depth = line.find_first_not_of(' ') / 4;
        const std::size_t start = depth * 4;
        const std::size_t end = line.find("  ", start);
        if (end == std::string::npos)
            continue;
        const std::string name = line.substr(start, end - start);
        const std::string rest = line.substr(line.find_first_not_of(' ', end));
        const std::string word = rest.substr(0, rest.find_first_of(" \n"));
        const bool isScalar =
            word == "real" || word == "integer" || word == "boolean" || word == "enumeration" || word == "string";
        if (isScalar && depth == owners.size())
        {
            std::string path;
            for (const std::string& owner : owners)
                path += owner + "/";
            paths.push_back(path + name);
        }
        else if (word.find_first_of("[\"=>") == std::string::npos && std::isupper(word.front()) != 0)
        {
            owners.resize(std::min(owners.size(), depth));
            owners.push_back(name);
        }
    }
    return paths;
}

struct Sample
{
    const char* name;
    const char* model;
    const char* object;
    const char* configuration;
};

class SampleLadders : public ToolTest, public testing::WithParamInterface<Sample>
{
};

/// Two processes for each attribute, so every so many of them; the models have far more than are asked for.
TEST_P(SampleLadders, PointAtWhatUnsetTakes)
{
    constexpr std::size_t Stride = IsSanitized ? 40 : 4;
    const std::string model = "configured.model.json";
    ASSERT_EQ(Run({"apply", GetParam().model, GetParam().object, GetParam().configuration, "-o", model}).status, 0);
    const std::vector<std::string> paths = AttributePaths(Run({"show", model, GetParam().object}).output);
    ASSERT_GT(paths.size(), 100U);
    std::size_t records = 0;
    for (std::size_t i = 0; i < paths.size(); i += Stride)
    {
        SCOPED_TRACE(paths[i]);
        ToolSettings settings{m_folder.Path()};
        settings.input = "unset \"" + paths[i] + "\"\nget \"" + paths[i] + "\"\n";
        const ToolRun engine = Run({"shell", model}, settings);
        ASSERT_EQ(engine.status, 0) << engine.errors;
        const std::string taken = LinesOf(engine.output).back();
        const ToolRun run = Run({"explain", model, paths[i]});
        ASSERT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(BehindLabel(run.output, "    after unset").substr(0, taken.size()), taken);
        EXPECT_EQ(BehindLabel(run.output, "  > ").substr(0, taken.size() + 3), taken + "  (") << run.output;
        records += run.output.find("  > record ") != std::string::npos ? 1 : 0;
    }
    // Both rungs have been tried.
    EXPECT_GT(records, IsSanitized ? 0U : 3U);
}

const Sample Samples[] = {
    {"External", "samples/models/externalFlow.model.json", "Solver.1", "externalFlow"},
    {"Internal", "samples/models/internalFlow.model.json", "Solver.1", "internalFlow"},
};
INSTANTIATE_TEST_SUITE_P(Explain, SampleLadders, testing::ValuesIn(Samples),
                         [](const auto& iInfo) { return iInfo.param.name; });

struct Given
{
    const char* name;
    const char* path;
    std::vector<std::string> lines;
};

class StartupPlaces : public ToolTest, public testing::WithParamInterface<Given>
{
};

/// Two types, one of which holds a part of the other, and a type that is derived from it.
constexpr char LayeredCatalog[] = R"({"catalog": "Layered", "uses": ["VYRCfdBase"], "types": [
  {"name": "Part", "base": "VYRCfdValues", "attributes": [
    {"name": "size", "kind": "integer", "default": 1},
    {"name": "name", "kind": "string"}]},
  {"name": "Whole", "base": "VYRCfdValues", "attributes": [
    {"name": "part", "kind": "component", "type": "Part"},
    {"name": "weight", "kind": "integer", "default": 5}],
   "startup": {"part":
    {"size": 2}}},
  {"name": "Derived", "base": "Whole", "startup": {
    "weight": 6}}]})";

TEST_P(StartupPlaces, AreThoseThatGiveTheValue)
{
    Write("Layered.catalog.json", LayeredCatalog);
    Write("layered.model.json", R"({"model": 1, "catalogs": ["Layered"], "objects": [
        {"type": "Part", "name": "P"}, {"type": "Whole", "name": "W"}, {"type": "Derived", "name": "D"}]})");
    const ToolRun run = Run({"explain", "layered.model.json", GetParam().path});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    std::vector<std::string> lines;
    for (const std::string& line : LinesOf(run.output))
        if (line.find("start-up  ") != std::string::npos || line.find("catalog") != std::string::npos)
            lines.push_back(line.substr(line.find_first_not_of(" >")));
    EXPECT_EQ(lines, GetParam().lines);
}

const Given GivenCases[] = {
    {"Declared",
     "P/size",
     {"start-up        1  ([Part])", "declared by Part in the catalog Layered  Layered.catalog.json:3:5",
      "value given by Part in the catalog Layered  Layered.catalog.json:3:52"}},
    {"NotGiven",
     "P/name",
     {"start-up        (unset)  ([Part])", "declared by Part in the catalog Layered  Layered.catalog.json:4:5"}},
    {"GivenByTheOwner",
     "W/part/size",
     {"start-up        2  ([Whole]/part)", "declared by Part in the catalog Layered  Layered.catalog.json:3:5",
      "value given by Whole in the catalog Layered  Layered.catalog.json:9:14"}},
    {"GivenByTheOwnersBase",
     "D/part/size",
     {"start-up        2  ([Derived]/part)", "declared by Part in the catalog Layered  Layered.catalog.json:3:5",
      "value given by Whole in the catalog Layered  Layered.catalog.json:9:14"}},
    {"GivenByTheDerivedType",
     "D/weight",
     {"start-up        6  ([Derived])", "declared by Whole in the catalog Layered  Layered.catalog.json:7:5",
      "value given by Derived in the catalog Layered  Layered.catalog.json:11:15"}},
};
INSTANTIATE_TEST_SUITE_P(Explain, StartupPlaces, testing::ValuesIn(GivenCases),
                         [](const auto& iInfo) { return iInfo.param.name; });
} // namespace
