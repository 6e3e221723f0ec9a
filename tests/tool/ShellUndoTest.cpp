/**
 * @file
 * Taking back what the shell's commands have done.
 */

#include "ShellTest.h"

namespace
{
struct UndoneCommand
{
    const char* name;
    const char* model;
    std::string command;
    /// What has to be done before.
    std::string before;
};

void PrintTo(const UndoneCommand& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class UndoneCommands : public ShellTest, public testing::WithParamInterface<UndoneCommand>
{
};

TEST_P(UndoneCommands, LeaveTheModelAsItWas)
{
    const UndoneCommand& one = GetParam();
    Write("script.txt", one.before + "save before.model.json\n" + one.command +
                            "\nsave changed.model.json\nundo\nsave after.model.json\n");
    const ToolRun run = Run({"shell", one.model, "-f", "script.txt"});
    ASSERT_EQ(run.status, 0) << run.errors;
    EXPECT_NE(Read("changed.model.json"), Read("before.model.json"));
    EXPECT_EQ(Read("after.model.json"), Read("before.model.json"));
    EXPECT_NE(run.output.find("\nUndone: " + one.command + "\n"), std::string::npos) << run.output;
}


const UndoneCommand Commands[] = {
    {"Set", Small, "set Case.1/relaxation 0.25", ""},
    {"SetOfText", Small, "set Case.1/title \"a \\\"b\\\" # c\"", ""},
    {"SetOfUnset", Small, "set Case.1/steady true", ""},
    {"SetOfReference", Small, "set Case.1/backup list", ""},
    {"SetOfComponent", Small, "set Case.1/spare Mesh", ""},
    {"SetOfAChoice", Flow, "set Flow.1/turbulence/value spalart", ""},
    {"Unset", Small, "unset Case.1/relaxation", ""},
    {"UnsetOfAChoice", Flow, "unset Flow.1/turbulence/value", ""},
    {"Default", Small, "default Case.1/iterations 70", ""},
    {"Auto", Small, "auto Case.1/author on", ""},
    {"AutoOff", Small, "auto Case.1/note off", ""},
    {"Apply", Flow, "apply \"Flow 2/turbulence\" bySpalart", ""},
    {"ApplyOfRecords", Flow, "apply \"Flow 3/solver\" directly", "apply \"Flow 3/solver\" directly\n"},
    {"Choose", Flow, "choose \"Flow 2/solver\" direct", ""},
    {"Prohibit", Flow, "prohibit Flow.1/turbulence kOmega spalart", ""},
    {"Allow", Flow, "allow Flow.1/solver \"conjugate gradient\"", ""},
    {"AllowWithStartups", Flow, "allow Flow.1/turbulence spalart", "prohibit Flow.1/turbulence spalart\n"},
    {"Reset", Flow, "reset Flow.1/solver", ""},
    {"ResetKeep", Flow, "reset Flow.1/solver keep", ""},
    {"New", Small, "new Case", ""},
    {"Insert", Small, "insert Case.1/monitors lift 2", ""},
    {"InsertOfNumber", Small, "insert Case.1/weights 3 1", ""},
    {"InsertOfObject", Small, "insert Case.1/probes Mesh 2", ""},
    {"DeleteOfObject", Small, "delete Mesh", ""},
    {"DeleteOfTopObjectWithReferences", Small, "delete Case.1", "set list/backup Case.1/probe\n"},
    {"DeleteOfPart", Small, "delete Case.1/probe", ""},
    {"DeleteOfEntry", Small, "delete Case.1/probes 3", ""},
    {"DeleteOfReference", Small, "delete Case.1/mesh", ""},
};
INSTANTIATE_TEST_SUITE_P(Shell, UndoneCommands, testing::ValuesIn(Commands),
                         [](const auto& iInfo) { return iInfo.param.name; });

constexpr char DefaultsNote[] = "note: custom defaults are now those that the records give\n";

TEST_F(ShellTest, Undo_ShowsWhatItChanges_AndSaysWhatBecomesOfCustomDefaults)
{
    ToolRun run = Script(Small, "default Case.1/tolerance 0.5\ndefault Case.1/tolerance\nundo\n"
                                "default Case.1/tolerance\n");
    EXPECT_EQ(Outcome(run), Outcome(0, DefaultsNote));
    EXPECT_EQ(run.output, "Case.1  Case\n    tolerance: 1e-08 -> 0.5\n"
                          "0.5 (custom default)\n"
                          "Undone: default Case.1/tolerance 0.5\n"
                          "Case.1  Case\n    tolerance: 0.5 -> 1e-08\n"
                          "1e-08 (record)\n");
}

TEST_F(ShellTest, Undo_TakesBackADefaultThatHasChangedNothingElse)
{
    // The attribute is set, so that its default shows nowhere.
    const ToolRun run = Script(Small, "default Case.1/relaxation 0.1\nundo\ndefault Case.1/relaxation\n");
    EXPECT_EQ(Outcome(run), Outcome(0, DefaultsNote));
    EXPECT_EQ(run.output, "Undone: default Case.1/relaxation 0.1\n0.7 (start-up)\n");
}

TEST_F(ShellTest, Undo_GoesBackStepByStep_OverWhatHasChangedNothing)
{
    const ToolRun run = Script(Small, "set Case.1/relaxation 0.1\nget Case.1/title\nset Case.1/relaxation 0.1\n"
                                      "new Probe P\ninsert Case.1/probes P\nsave other.model.json\nundo\nundo\nundo\n"
                                      "save back.model.json\n");
    EXPECT_EQ(Outcome(run), Outcome(0, std::string(DefaultsNote) + DefaultsNote + DefaultsNote));
    EXPECT_NE(run.output.find("Undone: insert Case.1/probes P\n"), std::string::npos);
    EXPECT_NE(run.output.find("Undone: new Probe P\n"), std::string::npos);
    EXPECT_NE(run.output.find("Undone: set Case.1/relaxation 0.1\nCase.1  Case\n    relaxation: 0.1 -> 0.5\n"),
              std::string::npos);
    Script(Small, "save plain.model.json\n");
    EXPECT_EQ(Read("back.model.json"), Read("plain.model.json"));
}

TEST_F(ShellTest, Undo_OfACommandThatFailedInTheMiddle_TakesBackWhatItHadDone)
{
    Write("script.txt", "save before.model.json\napply Case.1 breaksOff\nsave half.model.json\nundo\n"
                        "save after.model.json\n");
    const ToolRun run = Run({"shell", Small, "-f", "script.txt", "--keep-going"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(Read("half.model.json"), Read("before.model.json"));
    EXPECT_EQ(Read("after.model.json"), Read("before.model.json"));
}

TEST_F(ShellTest, Undo_KnowsTheLastHundredChanges)
{
    std::string script;
    for (int value = 1; value <= 101; ++value)
        script += "set Case.1/iterations " + std::to_string(value) + "\n";
    for (int step = 1; step <= 100; ++step)
        script += "undo\n";
    const ToolRun run = Script(Small, script + "get Case.1/iterations\nundo\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.output.find("\n1\n"), std::string::npos);
    EXPECT_NE(run.errors.find("\nstdin:203: what was done before is not known any more\n"), std::string::npos)
        << run.errors;
}

TEST_F(ShellTest, Undo_MayBeFollowedByOtherChanges)
{
    const ToolRun run =
        Script(Flow, "choose Flow.1/turbulence spalart\nundo\nset Flow.1/turbulence/kOmega/intensity 1\n"
                     "undo\nundo\n");
    EXPECT_EQ(Outcome(run), Outcome(1, std::string(DefaultsNote) + DefaultsNote + "stdin:5: nothing to undo\n"));
}
} // namespace
