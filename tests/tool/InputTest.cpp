/**
 * @file
 * What can be read in place of a file, and what is refused: pipes, devices, what is too large or not there.
 */

#include <sys/stat.h>

#include "ToolTest.h"

namespace
{
using InputArguments = std::vector<std::string>;

constexpr char NamedPipe[] = "is a named pipe, not a file; /dev/stdin takes what comes through one, as in \"vyrcfd "
                             "show /dev/stdin < PIPE\"";
constexpr char PipedCatalog[] = "samples/catalogs/FlowCommon.catalog.json";

class InputTest : public ToolTest
{
protected:
    ToolRun RunOnPipe(const InputArguments& iArguments, const std::string& iText) const
    {
        ToolSettings settings;
        settings.input = iText;
        settings.pipedInput = true;
        return Run(iArguments, settings);
    }

    /// A file of that many bytes without any room on the disk.
    void WriteHoles(const std::string& iName, std::uintmax_t iSize) const
    {
        Write(iName, "");
        std::filesystem::resize_file(m_folder.Path(iName), iSize);
    }
};

TEST_F(InputTest, Model_ThroughAPipe_IsReadLikeAFileByEveryCommand)
{
    AddSmallModel();
    const std::string text = Read("small.model.json");
    for (const InputArguments& rest : {InputArguments{"show", ""}, {"explain", "", "Case.1/monitors"}, {"purge", ""}})
    {
        InputArguments onFile = rest;
        InputArguments onPipe = rest;
        onFile[1] = "small.model.json";
        onPipe[1] = "/dev/stdin";
        const ToolRun fromFile = Run(onFile);
        // Its catalog is found beside the file only.
        onPipe.insert(onPipe.end(), {"--catalog", "Small.catalog.json"});
        const ToolRun fromPipe = RunOnPipe(onPipe, text);
        EXPECT_EQ(Outcome(fromFile), Outcome(0, "")) << rest.front();
        EXPECT_EQ(Outcome(fromPipe), Outcome(0, "")) << rest.front();
        std::string expected = fromFile.output;
        for (std::size_t at = 0; (at = expected.find("small.model.json")) != std::string::npos;)
            expected.replace(at, std::string("small.model.json").size(), "/dev/stdin");
        EXPECT_EQ(fromPipe.output, expected) << rest.front();
    }
}

TEST_F(InputTest, Catalog_ThroughAPipe_IsCheckedAgainst)
{
    const ToolRun run = RunOnPipe({"check", "/dev/stdin"}, Read(PipedCatalog));
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
}

TEST_F(InputTest, Mistake_InAModelThroughAPipe_HasItsPlace)
{
    EXPECT_EQ(Outcome(RunOnPipe({"show", "/dev/stdin"}, "{\"model\": 1,\n}")),
              Outcome(1, "/dev/stdin:1:12: nothing follows this comma but \"}\"; take the comma out\n"));
    EXPECT_EQ(Outcome(RunOnPipe({"show", "/dev/stdin"}, "{\"model\": 1, \"catalogs\": [],\n \"objects\": {}}")),
              Outcome(1, "/dev/stdin:2:13: /objects: must be an array, not an object\n"));
}

TEST_F(InputTest, Pipe_TakesNothingThatIsSaved)
{
    const std::string text = Read(External);
    EXPECT_EQ(Outcome(RunOnPipe({"purge", "/dev/stdin", "--yes"}, text)),
              Outcome(1, "/dev/stdin: is a pipe, which nothing is saved to; --output names a file\n"));
    const auto refused = Outcome(1, "/dev/stdin: is a pipe, which nothing is saved to; --output names a file\n");
    const InputArguments apply = {"apply", "/dev/stdin", "Solver.1", "externalFlow", "-o", "/dev/stdin"};
    EXPECT_EQ(Outcome(RunOnPipe(apply, text)), refused);
    InputArguments onFile = apply;
    onFile[1] = External;
    EXPECT_EQ(Outcome(RunOnPipe(onFile, "nothing is read of it")), refused);
    EXPECT_EQ(Outcome(RunOnPipe({"purge", "/dev/stdin", "--yes", "-o", "/dev/stdin"}, text)), refused);
    InputArguments toOutput = apply;
    toOutput.back() = "/dev/stdout";
    const ToolRun written = RunOnPipe(toOutput, text);
    EXPECT_EQ(Outcome(written), Outcome(0, ""));
    EXPECT_EQ(written.output.substr(0, 14), "{\n  \"model\": 1");
    Write("script", "save\n");
    EXPECT_EQ(Outcome(RunOnPipe({"shell", "/dev/stdin", "-f", "script"}, text)),
              Outcome(1, "script:1: /dev/stdin: is a pipe, which nothing is saved to; save FILE names a file\n"));
}

TEST_F(InputTest, NamedPipe_IsRefused_AndNotWaitedFor)
{
    ASSERT_EQ(mkfifo(m_folder.Path("pipe").c_str(), 0600), 0);
    for (const InputArguments& arguments :
         {InputArguments{"show", "pipe"}, {"list", "--catalog", "pipe"}, {"explain", "pipe", "Solver.1/mesh"}})
        EXPECT_EQ(Outcome(Run(arguments)), Outcome(1, std::string("pipe: ") + NamedPipe + "\n")) << arguments.front();
    const std::string output = Run({"check", "pipe"}).output;
    EXPECT_EQ(output.substr(0, output.find(';')), "pipe:1:1: error: is a named pipe, not a file");
}

TEST_F(InputTest, EmptyName_IsNoFile)
{
    for (const InputArguments& arguments : {InputArguments{"show", ""}, {"check", ""}, {"list", "--catalog", ""}})
        EXPECT_EQ(Outcome(Run(arguments)), Outcome(1, "\"\" names no file\n")) << arguments.front();
}

TEST_F(InputTest, Device_IsRefused)
{
    for (const char* device : {"/dev/zero", "/dev/null"})
    {
        EXPECT_EQ(Outcome(Run({"show", device})), Outcome(1, std::string(device) + ": is a device, not a file\n"));
        EXPECT_EQ(Outcome(Run({"list", "--catalog", device})),
                  Outcome(1, std::string(device) + ": is a device, not a file\n"));
    }
}

TEST_F(InputTest, Device_IsNoScript_ButAnEmptyOne)
{
    EXPECT_EQ(Outcome(Run({"shell", External, "-f", "/dev/zero"})), Outcome(1, "/dev/zero: is a device, not a file\n"));
    EXPECT_EQ(Outcome(Run({"shell", External, "-f", "/dev/null"})), Outcome(0, ""));
}

TEST_F(InputTest, ScriptOfOneEndlessLine_IsRefused)
{
    Write("script", "help\n");
    std::filesystem::resize_file(m_folder.Path("script"), (std::uintmax_t{16} << 20U) + 6);
    EXPECT_EQ(Outcome(Run({"shell", External, "-f", "script"})),
              Outcome(1, "script:2: the line is too long: one has at most 16 MB\n"));
}

TEST_F(InputTest, CommandOfAnyLength_IsShownInPart)
{
    Write("script", std::string(1'000'000, 'x') + "\n");
    EXPECT_EQ(Outcome(Run({"shell", External, "-f", "script"})),
              Outcome(1, "script:1: no command \"" + std::string(100, 'x') + "...\"\n"));
    Write("script", "help " + std::string(1'000'000, 'x') + "\n");
    EXPECT_EQ(Outcome(Run({"shell", External, "-f", "script"})),
              Outcome(1, "script:1: no command \"" + std::string(100, 'x') + "...\"\n"));
}

TEST_F(InputTest, TooLargeFile_IsRefused_BeforeItIsRead)
{
    constexpr std::uintmax_t Megabyte = 1U << 20U;
    WriteHoles("large.json", 2048 * Megabyte + 1);
    EXPECT_EQ(Outcome(Run({"show", "large.json"})),
              Outcome(1, "large.json: is too large: a model or a catalog has at most 2 GB\n"));
    EXPECT_EQ(Outcome(Run({"list", "--catalog", "large.json"})),
              Outcome(1, "large.json: is too large: a model or a catalog has at most 2 GB\n"));
    const std::string file = std::string(Configurations) + "meshFYEConfig.json";
    WriteHoles(file, 512 * Megabyte + 1);
    EXPECT_EQ(Outcome(Run({"list"})), Outcome(1, file + ": is too large: the engine reads no file above 512 MB\n"));
}

TEST_F(InputTest, CatalogThatIsMissing_FailsEveryCommand)
{
    for (const InputArguments& one :
         {InputArguments{"list"}, {"describe", "wall"}, {"graph", "wall"}, {"show", External}, {"purge", External}})
    {
        InputArguments arguments = one;
        arguments.insert(arguments.end(), {"--catalog", "none.json"});
        const ToolRun run = Run(arguments);
        EXPECT_EQ(Outcome(run), Outcome(1, "none.json: cannot be opened: No such file or directory\n"));
        EXPECT_EQ(run.output, "") << one.front();
    }
}

TEST_F(InputTest, Interface_HasNoJson)
{
    const ToolRun run = Run({"--json", "interface", "bash"});
    EXPECT_EQ(Outcome(run), Outcome(2, "vyrcfd: --json: what interface prints is for shells and for man, and never "
                                       "JSON; see vyrcfd interface --help\n"));
    EXPECT_EQ(run.output.substr(0, 46), R"({"command": "interface", "status": "failed", ")");
}

TEST_F(InputTest, Files_WithLineEndsOfWindowsOrWithoutTheLast_AndNamesOfAnyLetters_AreRead)
{
    const std::string text = Read(External);
    std::string windows;
    for (const char byte : text)
        windows += byte == '\n' ? std::string("\r\n") : std::string(1, byte);
    const std::string name = "samples/models/W\xC3\xA4rme \xE2\x86\x92 1.model.json";
    const std::string expected = Run({"show", External}).output;
    for (const std::string& variant : {windows, text.substr(0, text.find_last_not_of('\n') + 1)})
    {
        Write(name, variant);
        const ToolRun run = Run({"show", name});
        EXPECT_EQ(Outcome(run), Outcome(0, ""));
        EXPECT_EQ(run.output, expected);
    }
    Write(name, windows.substr(0, windows.size() / 2) + "\n,");
    EXPECT_EQ(Run({"show", name}).errors.rfind(name + ":", 0), 0U);
}
} // namespace
