/**
 * @file
 * Where answers and models go to, and what happens when they cannot get there.
 */

#include <csignal>

#include "ToolTest.h"

namespace
{
const std::vector<std::string> ApplyToItself{"apply",    "samples/models/externalFlow.model.json",
                                             "Solver.1", "externalFlow",
                                             "-o",       "samples/models/externalFlow.model.json"};

TEST_F(ToolTest, Answer_ThatCannotBeWritten_FailsTheJob)
{
    ToolSettings full{m_folder.Path()};
    full.outputFile = "/dev/full";
    for (const char* argument : {"list", "--help"})
        EXPECT_EQ(Outcome(Run({argument}, full)),
                  Outcome(1, "vyrcfd: standard output: cannot be written: No space left on device\n"));
}

/// Status of a process that a write into a broken pipe has ended.
constexpr int EndedByPipe = 128 + SIGPIPE;

TEST_F(ToolTest, Answer_IntoBrokenPipe_EndsQuietlyByTheSignal)
{
    ToolSettings broken{m_folder.Path()};
    broken.brokenPipe = true;
    for (const char* argument : {"list", "--help"})
        EXPECT_EQ(Outcome(Run({argument}, broken)), Outcome(EndedByPipe, ""));
}

TEST_F(ToolTest, Apply_ToAFullDevice_FailsAndShowsNothing)
{
    const ToolRun run = Run({"apply", External, "Solver.1", "externalFlow", "-o", "/dev/full"});
    EXPECT_EQ(Outcome(run), Outcome(1, "/dev/full: cannot be written: No space left on device\n"));
    EXPECT_EQ(run.output, "");
}

TEST_F(ToolTest, Apply_IntoBrokenPipe_HasSavedTheWholeModel)
{
    ToolSettings broken{m_folder.Path()};
    broken.brokenPipe = true;
    EXPECT_EQ(Run({"apply", External, "Solver.1", "externalFlow", "-o", "piped.model.json"}, broken).status,
              EndedByPipe);
    EXPECT_EQ(Run({"apply", External, "Solver.1", "externalFlow", "-o", "plain.model.json"}).status, 0);
    EXPECT_EQ(Read("piped.model.json"), Read("plain.model.json"));
    EXPECT_NE(Read("plain.model.json"), "");
}

TEST_F(ToolTest, Apply_OntoFullDisk_LeavesTheOldFileAndNothingBesides)
{
    ToolSettings settings{m_folder.Path()};
    settings.longestFile = 2048;
    const auto before = Files();
    const ToolRun run = Run(ApplyToItself, settings);
    EXPECT_EQ(Outcome(run), Outcome(1, std::string(External) + ": cannot be written: File too large\n"));
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(Files(), before);
}

bool IsColoured(const std::string& iText)
{
    return iText.find('\x1B') != std::string::npos;
}

TEST_F(ToolTest, Colour_IsForTerminalsOnly_AndNotWithNoColor)
{
    const std::vector<std::string> apply{"apply", External, "Solver.1", "externalFlow"};
    EXPECT_FALSE(IsColoured(Run(apply).output));
    ToolSettings terminal{m_folder.Path()};
    terminal.terminal = true;
    EXPECT_TRUE(IsColoured(Run(apply, terminal).output));
    terminal.environment["NO_COLOR"] = "";
    EXPECT_TRUE(IsColoured(Run(apply, terminal).output));
    terminal.environment["NO_COLOR"] = "1";
    const ToolRun plain = Run(apply, terminal);
    EXPECT_FALSE(IsColoured(plain.output));
    EXPECT_NE(plain.output, "");
}

TEST_F(ToolTest, Colour_IsNotForDumbTerminals)
{
    ToolSettings terminal{m_folder.Path()};
    terminal.terminal = true;
    terminal.environment["TERM"] = "dumb";
    const ToolRun plain = Run({"apply", External, "Solver.1", "externalFlow"}, terminal);
    EXPECT_FALSE(IsColoured(plain.output));
    EXPECT_NE(plain.output, "");
}

TEST_F(ToolTest, Traces_GoToStandardError)
{
    ToolSettings traced{m_folder.Path()};
    traced.environment["VYRCFDTRACES_ALL"] = "200";
    const std::vector<std::string> apply{"apply", External, "Solver.1", "externalFlow", "--json"};
    const ToolRun run = Run(apply, traced);
    EXPECT_EQ(run.output, Run(apply).output);
    EXPECT_NE(run.errors.find("VYRCfdConfigurator::ApplyConfiguration"), std::string::npos);
}
} // namespace
