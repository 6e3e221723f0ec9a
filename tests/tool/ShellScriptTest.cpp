/**
 * @file
 * The shell as a script's reader: lines and words, where it stops, and what becomes of changes.
 */

#include "ShellTest.h"

namespace
{
TEST_F(ShellTest, Script_PassesOverCommentsAndEmptyLines)
{
    const ToolRun run = Script(Small, "# a comment\n"
                                      "\n"
                                      "   \t # another\n"
                                      "get Case.1/relaxation # a third\n"
                                      "  get\tCase.1/iterations\t\n"
                                      "get Case.1/note#not\n");
    // In the middle of a word it is a character like others.
    EXPECT_EQ(Outcome(run), Outcome(1, "stdin:6: \"Case.1/note#not\" leads nowhere: No attribute note#not\n"));
    EXPECT_EQ(run.output, "0.5\n500\n");
}

TEST_F(ShellTest, Script_TakesWordsInQuotationMarks)
{
    const ToolRun run = Script(Small, "set Case.1/title \"a  b # c\"\n"
                                      "set \"Case.1/title\" \"say \\\"a\\\\b\\\" \\n\"\n"
                                      "set Case.1/title in\"ner mar\"ks\n"
                                      "set Case.1/title \"\"\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "Case.1  Case\n    title: (unset) -> \"a  b # c\", now set\n"
                          "Case.1  Case\n    title: \"a  b # c\" -> \"say \\\"a\\\\b\\\" \\\\n\"\n"
                          "Case.1  Case\n    title: \"say \\\"a\\\\b\\\" \\\\n\" -> \"inner marks\"\n"
                          "Case.1  Case\n    title: \"inner marks\" -> \"\"\n");
}

TEST_F(ShellTest, Script_MayHaveOtherLineEnds_AMark_AndNoneAtTheEnd)
{
    const ToolRun run = Script(Small, "\xEF\xBB\xBFget Case.1/relaxation\r\nget Case.1/iterations");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "0.5\n500\n");
}

TEST_F(ShellTest, Script_RefusesAnOpenQuotationMark_AndWhatIsNoUtf8)
{
    EXPECT_EQ(Outcome(Script(Small, "\nset Case.1/title \"open\n")),
              Outcome(1, "stdin:2: a quotation mark is missing at the end\n"));
    EXPECT_EQ(Outcome(Script(Small, "set Case.1/title \xE4\n")), Outcome(1, "stdin:1: the line is no UTF-8\n"));
}

TEST_F(ShellTest, Script_OfNothing_IsASuccess)
{
    const ToolRun run = Script(Small, "");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "");
}

TEST_F(ShellTest, Script_StopsAtTheFirstFailure_AndSavesNothingMore)
{
    const auto before = Files();
    const ToolRun run = Script(Small, "set Case.1/relaxation 0.1\n"
                                      "set Case.1/relaxation half\n"
                                      "set Case.1/relaxation 0.2\n"
                                      "save\n");
    EXPECT_EQ(Outcome(run), Outcome(1, "stdin:2: \"Case.1/relaxation\": \"half\" is no real\n"));
    EXPECT_EQ(run.output, "Case.1  Case\n    relaxation: 0.5 -> 0.1\n");
    EXPECT_EQ(Files(), before);
}

TEST_F(ShellTest, Script_KeepsWhatItHasSavedBeforeAFailure)
{
    EXPECT_EQ(Script(Small, "set Case.1/relaxation 0.1\nsave\nset Case.1/relaxation 0.2\nget nothing\n").status, 1);
    EXPECT_EQ(Script(Small, "get Case.1/relaxation\n").output, "0.1\n");
}

TEST_F(ShellTest, Script_LosesUnsavedChanges_WithoutAWord)
{
    const auto before = Files();
    EXPECT_EQ(Outcome(Script(Small, "set Case.1/relaxation 0.1\nquit\n")), Outcome(0, ""));
    EXPECT_EQ(Files(), before);
}

TEST_F(ShellTest, Save_ReplacesTheModelsFile_AndNothingElse)
{
    auto expected = Files();
    const ToolRun run = Script(Flow, "choose Flow.1/turbulence spalart\nset Flow.1/turbulence/Data/ratio 5\nsave\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_NE(run.output.find("Saved flow.model.json.\n"), std::string::npos);
    auto now = Files();
    EXPECT_NE(now[Flow], expected[Flow]);
    expected[Flow] = now[Flow];
    EXPECT_EQ(now, expected);
    EXPECT_EQ(Run({"show", Flow, "Flow.1/turbulence/spalart/ratio"}).output,
              "Flow.1/turbulence/Data  SpalartModel  name \"SpalartModelInst\"\n    ratio  real  5  set  default 3 "
              "(start-up)\n");
}

TEST_F(ShellTest, Save_IntoAnotherFile_LeavesTheModelsOwn)
{
    auto expected = Files();
    EXPECT_EQ(Script(Flow, "save \"my copy.model.json\"\n").output, "Saved my copy.model.json.\n");
    auto now = Files();
    EXPECT_EQ(now.size(), expected.size() + 1);
    now.erase("my copy.model.json");
    EXPECT_EQ(now, expected);
    EXPECT_EQ(Run({"show", "my copy.model.json"}).output, Run({"show", Flow}).output);
}

TEST_F(ShellTest, Save_OntoFullDisk_LeavesTheOldFile)
{
    const auto before = Files();
    ToolSettings settings;
    settings.input = "save\n";
    settings.longestFile = 1024;
    EXPECT_EQ(Outcome(Run({"shell", Flow}, settings)),
              Outcome(1, "stdin:1: flow.model.json: cannot be written: File too large\n"));
    EXPECT_EQ(Files(), before);
}

TEST_F(ShellTest, Answer_ThatCannotBeWritten_EndsTheSession)
{
    ToolSettings settings;
    settings.input = "get Case.1/relaxation\nset Case.1/relaxation 0.1\nsave\n";
    settings.outputFile = "/dev/full";
    const auto before = Files();
    EXPECT_EQ(Outcome(Run({"shell", Small}, settings)),
              Outcome(1, "vyrcfd: standard output: cannot be written: No space left on device\n"));
    EXPECT_EQ(Files(), before);
}

TEST_F(ShellTest, Model_ThatCannotBeLoaded_FailsTheJob)
{
    EXPECT_EQ(Outcome(Script("nothing.model.json", "ls\n")),
              Outcome(1, "nothing.model.json: cannot be opened: No such file or directory\n"));
}

TEST_F(ShellTest, ConfigurationFiles_AreReadWhenOneIsApplied)
{
    Write(std::string(Configurations) + "solverConfig_Flow.json", "[]");
    const ToolRun run = Script(Small, "get Case.1/relaxation\napply Case.1 cavity\n");
    EXPECT_EQ(Outcome(run), Outcome(1, "stdin:2: samples/reffiles/VYRCfdApp/solverConfig_Flow.json: must be an object, "
                                       "not an array\n"));
    EXPECT_EQ(run.output, "0.5\n");
}

TEST_F(ShellTest, Json_IsRefused_AsWrongUse)
{
    const std::string told = "vyrcfd: --json: the shell does not answer in JSON; see vyrcfd shell --help\n";
    EXPECT_EQ(Outcome(Run({"shell", Small, "--json"})), Outcome(2, told));
    EXPECT_EQ(Outcome(Run({"--json", "shell", Small})), Outcome(2, told));
}
} // namespace
