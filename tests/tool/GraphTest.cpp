/**
 * @file
 * vyrcfd graph. Whole answers stand in the goldens.
 */

#include <algorithm>
#include <cstdlib>

#include "SmallTest.h"

namespace
{
/// The installation's files hold nothing but what a test writes.
class GraphTest : public ToolTest
{
protected:
    GraphTest()
    {
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path(Configurations)))
            Write(Configurations + entry.path().filename().string(), "{}");
    }

    void Define(const std::string& iText) const
    {
        Write(std::string(Configurations) + "meshFYEConfig.json", "{\"configurations\": [" + iText + "]}");
    }

    /// The lines that tell of boxes and of the lines between them.
    std::vector<std::string> Graph(std::vector<std::string> iArguments) const
    {
        iArguments.insert(iArguments.begin(), "graph");
        const ToolRun run = Run(iArguments);
        EXPECT_EQ(Outcome(run), Outcome(0, ""));
        std::vector<std::string> lines;
        for (std::size_t at = 0; at < run.output.size();)
        {
            const std::size_t end = run.output.find('\n', at);
            std::string line = run.output.substr(at, end - at);
            line.erase(0, line.find_first_not_of(' '));
            if (line.size() > 1 && line[0] == 'c' && std::isdigit(line[1]) != 0)
                lines.push_back(line);
            at = end + 1;
        }
        return lines;
    }
};

using Lines = std::vector<std::string>;

/// What begins in the first box.
const std::string Blue = R"(, color="0.599 0.70 0.60", fontcolor="0.599 0.70 0.50"];)";

/// A configuration that applies itself, one of its own file, and some of another file.
struct Hub
{
    explicit Hub(std::size_t iOthers)
    {
        for (std::size_t i = 1; i <= iOthers; ++i)
        {
            items += R"(, {"config": "t)" + std::to_string(i) + R"("})";
            others += (i == 1 ? "" : ",") + (R"({"name": "t)" + std::to_string(i) + R"("})");
        }
    }

    std::string items = R"({"config": "near"}, {"config": "hub"}, {"config": "lost"})";
    std::string others;
};

TEST_F(GraphTest, ManyReferencesIntoAnotherFile_BeginInItsBox)
{
    for (const std::size_t others : {8U, 9U})
    {
        const Hub hub(others);
        Define(R"({"name": "hub", "config": [)" + hub.items + R"(]}, {"name": "near"})");
        Write(std::string(Configurations) + "conditionsConfig_Flow.json",
              R"({"configurations": [)" + hub.others + "]}");
        std::map<std::string, int> begins;
        std::string guest;
        for (const std::string& line : Graph({}))
        {
            if (line.find("->") != std::string::npos)
                ++begins[line.substr(0, line.find(' '))];
            if (line.find("style=\"rounded,dashed\"") != std::string::npos)
                guest += line;
        }
        const std::string home = "c" + std::to_string(others + 1);
        if (others == 8)
        {
            EXPECT_EQ(begins, (std::map<std::string, int>{{home, 11}}));
            EXPECT_EQ(guest, "");
            continue;
        }
        EXPECT_EQ(begins, (std::map<std::string, int>{{home, 3}, {home + "_1", 9}}));
        EXPECT_EQ(guest, home + R"(_1 [label="hub", tooltip="stands in meshFYEConfig.json", style="rounded,dashed", )" +
                             R"(color="0.278 0.70 0.60", fontcolor="0.278 0.70 0.50"];)");
    }
}

TEST_F(GraphTest, References_StandWithTheirConditions)
{
    Define(R"({"name": "a", "config": [{"config": "b", "path": "p"}, {"config": "b", "condition": "x==\"1\""},
                                       {"config": "b", "condition": "y<2", "path": "q"}]},
              {"name": "b"})");
    EXPECT_EQ(Graph({}), (Lines{R"(c1 [label="a", tooltip="meshFYEConfig.json:1, 3 items"];)",
                                R"(c2 [label="b", tooltip="meshFYEConfig.json:3, 0 items"];)",
                                R"(c1 -> c2 [edgetooltip="item 1, on p")" + Blue,
                                R"(c1 -> c2 [edgetooltip="item 2, on the object itself, if x==\"1\"\nitem 3, on q, )"
                                R"(if y<2", style=dashed, label="x==\"1\"\ny<2", labeltooltip="item 2, on the )"
                                R"(object itself, if x==\"1\"\nitem 3, on q, if y<2")" +
                                    Blue}));
}

TEST_F(GraphTest, ConfigurationsWithoutReferences_StandOnlyWithAll)
{
    Define(R"({"name": "alone"}, {"name": "a", "config": [{"config": "b"}]}, {"name": "b"})");
    EXPECT_EQ(Graph({}).size(), 3U);
    const Lines all = Graph({"--all"});
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all.front(), R"(c1 [label="alone", tooltip="meshFYEConfig.json:1, 0 items"];)");
}

TEST_F(GraphTest, FromAConfiguration_StandsWhatCanBeReached)
{
    Define(
        R"({"name": "top", "config": [{"config": "a"}]}, {"name": "a", "config": [{"config": "b"}]}, {"name": "b"})");
    EXPECT_EQ(Graph({"a"}), (Lines{R"(c1 [label="a", tooltip="meshFYEConfig.json:1, 1 item"];)",
                                   R"(c2 [label="b", tooltip="meshFYEConfig.json:1, 0 items"];)",
                                   R"(c1 -> c2 [edgetooltip="item 1, on the object itself")" + Blue}));
    EXPECT_EQ(Graph({"b"}).size(), 1U);
}

TEST_F(GraphTest, CirclesAndNamesWithoutConfiguration_AreRed)
{
    Define(
        R"({"name": "a", "config": [{"config": "b"}]}, {"name": "b", "config": [{"config": "a"}, {"config": "c"}]})");
    EXPECT_EQ(Graph({}), (Lines{R"(c1 [label="a", tooltip="meshFYEConfig.json:1, 1 item"];)",
                                R"(c2 [label="b", tooltip="meshFYEConfig.json:1, 2 items"];)",
                                R"(c3 [label="c", tooltip="no configuration has this name", color=red, fontcolor=red, )"
                                R"(style=dashed];)",
                                R"(c1 -> c2 [edgetooltip="item 1, on the object itself", color=red, fontcolor=red];)",
                                R"(c2 -> c1 [edgetooltip="item 1, on the object itself", color=red, fontcolor=red];)",
                                R"(c2 -> c3 [edgetooltip="item 2, on the object itself")" + Blue}));
}

TEST_F(GraphTest, LettersThatMeanSomethingToDot_AreThoseOfTheName)
{
    Define(
        R"({"name": "a\"\\N&lt;\n", "config": [{"config": "b"}]}, {"name": "b"}, {"name": "", "config": [{"config": "b"}]})");
    const Lines lines = Graph({});
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], R"(c1 [label="a\"\\N&amp;lt;", tooltip="meshFYEConfig.json:1, 1 item"];)");
    EXPECT_EQ(lines[2], R"x(c3 [label="(no name)", tooltip="meshFYEConfig.json:1, 1 item"];)x");
}

TEST_F(GraphTest, HiddenDefinitions_AreLeftOut)
{
    Define(R"({"name": "a"}, {"name": "a", "config": [{"config": "b"}]}, {"name": "b"})");
    EXPECT_EQ(Graph({}), Lines());
}

TEST_F(ToolTest, Graph_OfTheSample_HasNothingRed_AndABoxAFile)
{
    const std::string dot = Run({"graph"}).output;
    EXPECT_EQ(dot.find("color=red"), std::string::npos);
    std::size_t boxes = 0;
    for (std::size_t at = 0; (at = dot.find("subgraph cluster", at)) != std::string::npos; ++at)
        ++boxes;
    EXPECT_GT(boxes, 10U);
    EXPECT_LE(boxes, 16U);
}

TEST_F(ToolTest, Graph_WithoutGraphviz_SaysWhatIsMissing_AndWritesNothing)
{
    ToolSettings bare{m_folder.Path()};
    bare.environment["PATH"] = m_folder.Path();
    const auto before = Files();
    const std::string errors = "vyrcfd: no SVG without the program dot of Graphviz: it is not in the folders of PATH; "
                               "without --svg the graph comes as DOT\n";
    EXPECT_EQ(Outcome(Run({"graph", "--svg"}, bare)), Outcome(1, errors));
    EXPECT_EQ(Outcome(Run({"graph", "-o", "picture.svg"}, bare)), Outcome(1, errors));
    EXPECT_EQ(Outcome(Run({"graph", "-o", "picture.dot"}, bare)), Outcome(0, ""));
    EXPECT_EQ(Read("picture.dot"), Run({"graph"}).output);
    std::filesystem::remove(m_folder.Path("picture.dot"));
    EXPECT_EQ(Files(), before);
}

/// A program that stands in for Graphviz: what matters is that it is given the graph, and what becomes of its answer.
class FakeDot : public ToolTest
{
protected:
    ToolSettings With(const std::string& iScript) const
    {
        Write("bin/dot", "#!/bin/sh\n" + iScript);
        namespace fs = std::filesystem;
        fs::permissions(m_folder.Path("bin/dot"), fs::perms::owner_all);
        ToolSettings settings{m_folder.Path()};
        settings.environment["PATH"] = m_folder.Path("bin") + ":" + std::getenv("PATH");
        return settings;
    }
};

TEST_F(FakeDot, Svg_IsWhatDotMakesOfTheGraph)
{
    const ToolSettings settings = With("echo \"drawn with $*\"; cat\n");
    const std::string drawn = "drawn with -Tsvg\n" + Run({"graph"}).output;
    EXPECT_EQ(Run({"graph", "--svg"}, settings).output, drawn);
    EXPECT_EQ(Run({"graph", "-o", "picture.svg"}, settings).output, "");
    EXPECT_EQ(Read("picture.svg"), drawn);
}

TEST_F(FakeDot, Failure_OfDot_FailsTheJob)
{
    const ToolRun run =
        Run({"graph", "--svg"}, With("cat > /dev/null; echo half; echo \"dot is out of order\" >&2; exit 3\n"));
    EXPECT_EQ(Outcome(run), Outcome(1, "dot is out of order\nvyrcfd: no SVG without the program dot of Graphviz: it "
                                       "ended with status 3; without --svg the graph comes as DOT\n"));
    EXPECT_EQ(run.output, "");
}

struct WrongGraph
{
    const char* name;
    std::vector<std::string> arguments;
    int status;
    std::string errors;
};

void PrintTo(const WrongGraph& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class WrongGraphs : public SmallTest, public testing::WithParamInterface<WrongGraph>
{
};

TEST_P(WrongGraphs, AreTold)
{
    std::vector<std::string> arguments = GetParam().arguments;
    arguments.insert(arguments.begin(), "graph");
    const ToolRun run = Run(arguments);
    EXPECT_EQ(Outcome(run), Outcome(GetParam().status, GetParam().errors));
    const bool isJson = std::find(arguments.begin(), arguments.end(), "--json") != arguments.end();
    EXPECT_EQ(run.output.substr(0, 44), isJson ? R"({"command": "graph", "status": "failed", "va)" : "");
}

const WrongGraph WrongGraphCases[] = {
    {"UnknownConfiguration",
     {"cavty"},
     1,
     "vyrcfd: no configuration \"cavty\"; did you mean \"cavity\"?; see vyrcfd list\n"},
    {"OtherPicture",
     {"-o", "picture.png"},
     2,
     "vyrcfd: --output: \"picture.png\" must end in .svg, .dot or .gv; see vyrcfd graph --help\n"},
    {"PartOfAll", {"cavity", "--all"}, 2, "vyrcfd: CONFIG excludes --all; see vyrcfd graph --help\n"},
    {"JsonInAFile",
     {"--json", "-o", "graph.dot"},
     2,
     "vyrcfd: --json: is an answer on standard output, and excludes --svg and --output; see vyrcfd graph --help\n"},
    {"MissingFolder", {"-o", "none/graph.dot"}, 1, "none/graph.dot: cannot be written: No such file or directory\n"},
};
INSTANTIATE_TEST_SUITE_P(Graph, WrongGraphs, testing::ValuesIn(WrongGraphCases),
                         [](const auto& iInfo) { return iInfo.param.name; });
} // namespace
