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
    EXPECT_EQ(Outcome(run),
              Outcome(1, "stdin:6: \"Case.1/note#not\" leads nowhere: No attribute note#not; there are \"title\", "
                         "\"note\", \"author\", \"relaxation\", \"tolerance\", \"iterations\", \"scheme\", \"steady\", "
                         "\"monitors\", \"weights\", \"order\", \"probe\" and 5 more\n"));
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
    EXPECT_EQ(Outcome(run), Outcome(1, "stdin:2: samples/reffiles/VYRCfdApp/solverConfig_Flow.json:1:1: a "
                                       "configuration file must be an object, not an array\n"));
    EXPECT_EQ(run.output, "0.5\n");
}

TEST_F(ShellTest, ScriptFile_IsRunInPlaceOfStandardInput_AndNamedWithItsLine)
{
    Write("script.txt", "get Case.1/relaxation\n\nget Case.1/nothing\nget Case.1/iterations\n");
    ToolSettings settings;
    settings.input = "get Case.1/iterations\n";
    const ToolRun run = Run({"shell", Small, "-f", "script.txt"}, settings);
    EXPECT_EQ(Outcome(run),
              Outcome(1, "script.txt:3: \"Case.1/nothing\" leads nowhere: No attribute nothing; there are \"title\", "
                         "\"note\", \"author\", \"relaxation\", \"tolerance\", \"iterations\", \"scheme\", \"steady\", "
                         "\"monitors\", \"weights\", \"order\", \"probe\" and 5 more\n"));
    EXPECT_EQ(run.output, "0.5\n");
}

TEST_F(ShellTest, ScriptFile_ThatCannotBeRead_FailsTheJob)
{
    EXPECT_EQ(Outcome(Run({"shell", Small, "-f", "nothing.txt"})),
              Outcome(1, "nothing.txt: cannot be opened: No such file or directory\n"));
    EXPECT_EQ(Outcome(Run({"shell", Small, "--file", "samples"})),
              Outcome(1, "samples: cannot be read: Is a directory\n"));
    EXPECT_EQ(Outcome(Run({"shell", Small, "-f", ""})),
              Outcome(2, "vyrcfd: --file: names no file; see vyrcfd shell --help\n"));
}

TEST_F(ShellTest, KeepGoing_GoesOnBehindFailures_AndCountsThem)
{
    Write("script.txt", "get nothing\n"
                        "set Case.1/relaxation 0.1\n"
                        "apply Mesh cavity\n"
                        "unheardOf\n"
                        "set Case.1/title \"open\n"
                        "save\n");
    const ToolRun run = Run({"shell", Small, "-f", "script.txt", "--keep-going"});
    EXPECT_EQ(Outcome(run),
              Outcome(1, "script.txt:1: no top-level object \"nothing\"; there are \"ConfigItem\", \"Case.1\", "
                         "\"Mesh\" and \"list\"\n"
                         "script.txt:3: \"Mesh\" has no default management, and cannot be configured\n"
                         "assertion: spDefMgmt != NULL_var in VYRCfdConfigurator::ApplyConfiguration, status "
                         "0x80004005\n"
                         "script.txt:4: no command \"unheardOf\"\n"
                         "script.txt:5: a quotation mark is missing at the end\n"
                         "script.txt: 4 commands failed\n"));
    EXPECT_EQ(run.output, "Case.1  Case\n    relaxation: 0.5 -> 0.1\nSaved small.model.json.\n");
    EXPECT_EQ(Script(Small, "get Case.1/relaxation\n").output, "0.1\n");
}

TEST_F(ShellTest, KeepGoing_WithoutFailures_IsASuccess)
{
    ToolSettings settings;
    settings.input = "get Case.1/relaxation\nquit\nget nothing\n";
    EXPECT_EQ(Outcome(Run({"shell", Small, "--keep-going"}, settings)), Outcome(0, ""));
}

TEST_F(ShellTest, Change_AfterWhichTheModelCouldNotBeSaved_IsPutBack)
{
    // The data object that the reference leads to would be replaced.
    Write("script.txt", "new Case C\nset C/backup Flow.1/turbulence/Data\nsave before.model.json\n"
                        "choose Flow.1/turbulence spalart\nsave after.model.json\n");
    const ToolRun run = Run({"shell", Flow, "-f", "script.txt", "--keep-going"});
    EXPECT_EQ(Outcome(run),
              Outcome(1, "note: custom defaults are now those that the records give\n"
                         "script.txt:4: nothing has changed, since the model could not have been saved any more: "
                         "model: /objects/3/values/backup: refers to \"KOmegaModelInst\", which is not in the model\n"
                         "script.txt: 1 command failed\n"));
    EXPECT_EQ(Read("after.model.json"), Read("before.model.json"));
}
} // namespace
