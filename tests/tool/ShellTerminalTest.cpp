/**
 * @file
 * The shell at a terminal: prompts, errors that end nothing, the warning before changes are lost, history, completion.
 */

#include <sstream>

#include "ShellTest.h"

namespace
{
bool Contains(const std::string& iText, const std::string& iPart)
{
    return iText.find(iPart) != std::string::npos;
}

std::size_t Count(const std::string& iText, const std::string& iPart)
{
    std::size_t count = 0;
    for (std::size_t at = iText.find(iPart); at != std::string::npos; at = iText.find(iPart, at + 1))
        ++count;
    return count;
}

const char Warning[] = "warning: there are unsaved changes; save them, or leave once more to lose them\n";

TEST_F(ShellTest, Terminal_ShowsPromptsAndAnswers)
{
    const ToolRun run = Session(Small, {"get Case.1/relaxation\r", "\r", "# nothing\r", "quit\r"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "\"help\" lists the commands, \"quit\" leaves.\n"
                          "vyrcfd> get Case.1/relaxation\n"
                          "0.5\n"
                          "vyrcfd> \n"
                          "vyrcfd> # nothing\n"
                          "vyrcfd> quit\n");
}

TEST_F(ShellTest, Terminal_WrapsTheListOfCommandsToItsWidth_WithTheirHelpBesideThem)
{
    constexpr std::size_t Columns = 72;
    ToolSettings settings;
    settings.typed = {"help\r"};
    settings.environment = {{"TERM", "dumb"}, {"NO_COLOR", "1"}, {"VYRCFD_HISTORY", ""}};
    settings.columns = Columns;
    const ToolRun run = SessionWith(Small, settings);
    EXPECT_TRUE(Contains(run.output, "\nset PATH VALUE                gives an attribute a value; an enumeration\n"
                                     "                              takes its text, an object attribute a path\n"))
        << run.output;
    std::istringstream lines(run.output);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), Columns) << line;
}

TEST_F(ShellTest, Terminal_GoesOnAfterAFailure_AndTellsNoLine)
{
    const ToolRun run = Session(Small, {"get nothing\r", "apply Mesh cavity\r", "get Case.1/relaxation\r", "errors\r"});
    EXPECT_EQ(Outcome(run),
              Outcome(0,
                      "no top-level object \"nothing\"; there are \"ConfigItem\", \"Case.1\", \"Mesh\" and \"list\"\n"
                      "\"Mesh\" has no default management, and cannot be configured\n"
                      "assertion: spDefMgmt != NULL_var in VYRCfdConfigurator::ApplyConfiguration, status "
                      "0x80004005\n"));
    EXPECT_TRUE(Contains(run.output, "\n0.5\n"));
    EXPECT_TRUE(Contains(run.output, "\nassertion: spDefMgmt != NULL_var"));
}

TEST_F(ShellTest, Terminal_WarnsOnceOfUnsavedChanges)
{
    const auto before = Files();
    const std::string change = "set Case.1/relaxation 0.1\r";
    EXPECT_EQ(Outcome(Session(Small, {change, "quit\r", "get Case.1/relaxation\r", "quit\r"})), Outcome(0, Warning));
    // Ctrl-D, twice.
    EXPECT_EQ(Outcome(Session(Small, {change})), Outcome(0, Warning));
    // What was changed after the warning is not known to be lost.
    EXPECT_EQ(Outcome(Session(Small, {change, "quit\r", "set Case.1/relaxation 0.2\r", "exit\r", "exit\r"})),
              Outcome(0, std::string(Warning) + Warning));
    EXPECT_EQ(Files(), before);
}

TEST_F(ShellTest, Terminal_DoesNotWarnOfWhatIsSavedOrUndone)
{
    EXPECT_EQ(Outcome(Session(Small, {"set Mesh/cells 5\r", "set Mesh/cells 4096\r", "quit\r"})), Outcome(0, ""));
    EXPECT_EQ(Outcome(Session(Small, {"set Case.1/relaxation 0.1\r", "save\r", "quit\r"})), Outcome(0, ""));
    EXPECT_EQ(Script(Small, "get Case.1/relaxation\n").output, "0.1\n");
}

TEST_F(ShellTest, Terminal_HasAHistory)
{
    // Ctrl-P brings the line before.
    const ToolRun run = Session(Small, {"get Case.1/relaxation\r", "\x10\r"});
    EXPECT_EQ(Count(run.output, "\n0.5\n"), 2U) << run.output;
}

ToolSettings WithHistory(const std::map<std::string, std::string>& iVariables, std::vector<std::string> iTyped)
{
    ToolSettings settings;
    settings.typed = std::move(iTyped);
    settings.environment = iVariables;
    settings.environment.insert({{"TERM", "dumb"}, {"NO_COLOR", "1"}});
    return settings;
}

TEST_F(ShellTest, History_IsKeptFromOneSessionToTheNext)
{
    const std::map<std::string, std::string> variables{{"VYRCFD_HISTORY", m_folder.Path("kept/history")}};
    const std::string get = "get Case.1/relaxation\r";
    EXPECT_EQ(Outcome(SessionWith(Small, WithHistory(variables, {get, get, "# note\r"}))), Outcome(0, ""));
    EXPECT_EQ(Read("kept/history"), "get Case.1/relaxation\n# note\n");
    // Two lines up.
    const ToolRun again = SessionWith(Small, WithHistory(variables, {"\x10\x10\r"}));
    EXPECT_TRUE(Contains(again.output, "\n0.5\n")) << again.output;
    EXPECT_EQ(Read("kept/history"), "get Case.1/relaxation\n# note\nget Case.1/relaxation\n");
}

TEST_F(ShellTest, History_StandsInTheUsersFolderForState)
{
    SessionWith(Small, WithHistory({{"XDG_STATE_HOME", m_folder.Path("state")}}, {"ls\r"}));
    EXPECT_EQ(Read("state/vyrcfd/history"), "ls\n");
    SessionWith(Small, WithHistory({{"XDG_STATE_HOME", ""}, {"HOME", m_folder.Path("home")}}, {"errors\r"}));
    EXPECT_EQ(Read("home/.local/state/vyrcfd/history"), "errors\n");
}

TEST_F(ShellTest, History_KeepsTheLastThousandLines)
{
    std::string lines;
    for (int line = 1; line <= 1005; ++line)
        lines += "# " + std::to_string(line) + "\n";
    Write("history", lines);
    SessionWith(Small, WithHistory({{"VYRCFD_HISTORY", m_folder.Path("history")}}, {"\r"}));
    EXPECT_EQ(Read("history"), lines.substr(lines.find("# 6\n")));
}

TEST_F(ShellTest, History_ThatCannotBeKept_IsNoReasonToComplain)
{
    const auto before = Files();
    for (const char* file : {"", "/dev/null/history", "/dev/full", "/proc/history"})
    {
        const ToolRun run =
            SessionWith(Small, WithHistory({{"VYRCFD_HISTORY", file}}, {"get Case.1/relaxation\r", "\x10\r"}));
        EXPECT_EQ(Outcome(run), Outcome(0, "")) << file;
        EXPECT_EQ(Count(run.output, "\n0.5\n"), 2U) << file << run.output;
    }
    EXPECT_EQ(Files(), before);
}

struct CompletedLine
{
    const char* name;
    /// With a tabulator at the end of what is to be completed.
    std::string typed;
    /// The line that comes of it, as its answer shows.
    std::string answer;
};

void PrintTo(const CompletedLine& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class CompletedLines : public ShellTest, public testing::WithParamInterface<CompletedLine>
{
};

TEST_P(CompletedLines, AreTheCommandsThatTheyMean)
{
    const ToolRun run = Session(Flow, {GetParam().typed + "\r", "\x04", "\x04"});
    EXPECT_TRUE(Contains(run.output + run.errors, GetParam().answer)) << run.output << run.errors;
}

const CompletedLine Completed[] = {
    {"Command", "rec\tFlow.1", "\nNo records.\n"},
    {"Object", "ls Flow.\tspeed", "\n    speed  real  10"},
    {"ObjectInQuotationMarks", "ls \"Flow 2\tspeed\"", "Flow 2  Flow\n    speed  real  10"},
    {"Attribute", "get Flow.1/sp\t", "\n10\n"},
    {"Deeper", "get Flow.1/turb\tDa\tint\t", "\n0.1\n"},
    {"ThroughTheChoice", "get Flow.1/turbulence/kOmega/int\t", "\n0.1\n"},
    {"Choice", "choose Flow.1/turbulence sp\t", "    + SpalartModel\n"},
    {"SecondChoice", "prohibit Flow.1/turbulence spalart lam\t", "-> [\"kOmega\"]"},
    {"DeclaredChoice", "allow Flow.1/solver conj\t", "-> [\"direct\", \"conjugate gradient\", \"gmres\"]"},
    {"Configuration", "apply Flow.1/solver directl\t", "    + record value: default \"direct\"\n"},
    {"Word", "reset Flow.1/solver k\t", "-> [\"direct\", \"conjugate gradient\", \"gmres\"]"},
    {"HelpTopic", "help unse\t", "unset PATH\n    puts"},
    {"Type", "new TurbulenceCh\tT", "T  TurbulenceChoice  new"},
    {"ValueOfAChoice", "set Flow.1/turbulence/value spal\t", "    value: \"kOmega\" -> \"spalart\"\n"},
    {"ValueOfAnObjectAttribute", "set Flow.1/energy/Data Flow.1/turbulence/Da\t",
     "Data: (empty) -> Flow.1/energy/Data"},
    {"PathOfAChoiceEndsTheWord", "choose Flow.1/turb\tspalart", "    + SpalartModel\n"},
    {"PathOfAnObjectAlone", "apply Flow.1/so\t directl\t", "    + record value: default \"direct\"\n"},
    {"PathThatIsExplained", "explain Flow.1/sp\t", "Flow.1/speed  real\n"},
    {"File", "save fl\t", "Saved flow.model.json."},
};
INSTANTIATE_TEST_SUITE_P(Terminal, CompletedLines, testing::ValuesIn(Completed),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(ShellTest, Completion_OffersValuesOfWhichThereAreFew)
{
    const ToolRun run =
        Session(Small, {"insert Case.1/order sec\t1\r", "set Case.1/steady fa\t\r", "default Case.1/scheme up\t\r"});
    EXPECT_TRUE(Contains(run.output, "order: [second, first] -> [second, second, first]")) << run.output;
    EXPECT_TRUE(Contains(run.output, "steady: (unset) -> false")) << run.output;
    EXPECT_TRUE(Contains(run.output, "default Case.1/scheme upwind")) << run.output;
}

TEST_F(ShellTest, Completion_ListsWhatIsPossible_AndChangesNothing)
{
    const ToolRun run = Session(Flow, {"get Flow.1/s\t\t\x15quit\r"});
    // The bell, and no warning.
    EXPECT_EQ(Outcome(run), Outcome(0, "\a"));
    EXPECT_TRUE(Contains(run.output, "Flow.1/solver")) << run.output;
    EXPECT_TRUE(Contains(run.output, "Flow.1/speed")) << run.output;
}

TEST_F(ShellTest, Completion_OffersObjectsAlone_WhereOneIsConfigured)
{
    for (const char* command : {"apply", "records", "choose"})
    {
        const ToolRun run = Session(Flow, {std::string(command) + " Flow.1/\t\t\x15quit\r"});
        EXPECT_TRUE(Contains(run.output, "Flow.1/solver")) << run.output;
        EXPECT_TRUE(Contains(run.output, "Flow.1/turbulence")) << run.output;
        EXPECT_FALSE(Contains(run.output, "Flow.1/speed")) << run.output;
    }
}
} // namespace
