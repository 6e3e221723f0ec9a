/**
 * @file
 * The command line itself: wrong use, help, and where the installation comes from.
 */

#include "ToolTest.h"

namespace
{
struct WrongUse
{
    const char* name;
    std::vector<std::string> arguments;
    /// What the line tells, in words of our own or of the command-line library.
    std::string told;
    std::string help;
};

void PrintTo(const WrongUse& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class WrongUses : public ToolTest, public testing::WithParamInterface<WrongUse>
{
};

TEST_P(WrongUses, AreToldInOneLine_WithStatusTwo)
{
    const ToolRun run = RunTool(GetParam().arguments, {m_folder.Path()});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    const std::string start = "vyrcfd: ";
    const std::string end = "; see " + GetParam().help + " --help\n";
    ASSERT_GT(run.errors.size(), start.size() + end.size()) << run.errors;
    EXPECT_EQ(run.errors.find('\n'), run.errors.size() - 1) << run.errors;
    EXPECT_EQ(run.errors.substr(0, start.size()), start);
    EXPECT_EQ(run.errors.substr(run.errors.size() - end.size()), end);
    EXPECT_NE(run.errors.find(GetParam().told), std::string::npos) << run.errors;
}

const WrongUse WrongUseCases[] = {
    {"NoCommand", {}, "no command", "vyrcfd"},
    {"CommandLikeAnother", {"aply", "a"}, "no command \"aply\"; did you mean \"apply\"?", "vyrcfd"},
    {"CommandLikeNone", {"\n"}, "no command \"\\n\";", "vyrcfd"},
    {"NoModel", {"show"}, "MODEL", "vyrcfd show"},
    {"NoConfiguration", {"apply", "a", "b"}, "CONFIG", "vyrcfd apply"},
    {"TooManyArguments", {"show", "a", "b", "excess"}, "excess", "vyrcfd show"},
    {"UnknownOption", {"list", "--jsom"}, "--jsom", "vyrcfd list"},
    {"UnknownOptionAlone", {"--jsom"}, "no command \"--jsom\"", "vyrcfd"},
    {"OptionWithoutValue", {"list", "--catalog"}, "--catalog", "vyrcfd list"},
    {"OutputOfShow", {"show", "a", "-o", "b"}, "-o", "vyrcfd show"},
    {"ShellWithoutModel", {"shell"}, "MODEL", "vyrcfd shell"},
    {"InterfaceOfAnUnknownShell",
     {"interface", "tcsh"},
     "WHAT: tcsh not in {man,bash,zsh,fish,complete}",
     "vyrcfd interface"},
    {"OutputWithoutName", {"apply", "a", "b", "c", "-o", ""}, "names no file", "vyrcfd apply"},
};
INSTANTIATE_TEST_SUITE_P(Usage, WrongUses, testing::ValuesIn(WrongUseCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

class Help : public ToolTest, public testing::WithParamInterface<std::vector<std::string>>
{
};

TEST_P(Help, NamesWhatTheCommandTakes)
{
    std::vector<std::string> arguments = GetParam();
    const std::string command = arguments.empty() ? "COMMAND" : arguments.front();
    arguments.emplace_back("--help");
    const ToolRun run = RunTool(arguments, {m_folder.Path()});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    for (const std::string& text :
         {"Usage: vyrcfd " + (command == "COMMAND" ? "[OPTION...] " + command : command),
          std::string("--installation DIR"), std::string("--catalog FILE"), std::string("--json")})
        EXPECT_NE(run.output.find(text), std::string::npos) << text << "\n" << run.output;
}

INSTANTIATE_TEST_SUITE_P(Usage, Help,
                         testing::Values(std::vector<std::string>{}, std::vector<std::string>{"apply"},
                                         std::vector<std::string>{"show"}, std::vector<std::string>{"list"},
                                         std::vector<std::string>{"explain"}, std::vector<std::string>{"describe"},
                                         std::vector<std::string>{"graph"}, std::vector<std::string>{"purge"}));

TEST_F(ToolTest, HelpOfTheShell_TellsItsCommands)
{
    const ToolRun run = RunTool({"shell", "--help"}, {m_folder.Path()});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    for (const char* text : {"MODEL", "--installation DIR", "--catalog FILE", "--file FILE", "--keep-going", "--json",
                             "  set PATH VALUE ", "  exit "})
        EXPECT_NE(run.output.find(text), std::string::npos) << text << "\n" << run.output;
}

/// The first line of `list` tells which installation it has read.
std::string FirstLine(const ToolRun& iRun)
{
    return iRun.output.substr(0, iRun.output.find('\n'));
}

constexpr char FirstFile[] = "/reffiles/VYRCfdApp/SolverConfigurations.json";

TEST_F(ToolTest, Installation_ComesFromOption_ThenVariable_ThenSample)
{
    std::filesystem::copy(m_folder.Path("samples"), m_folder.Path("other"), std::filesystem::copy_options::recursive);
    ToolSettings settings{m_folder.Path()};
    EXPECT_EQ(FirstLine(RunTool({"list"}, settings)), std::string(VYR_SAMPLES_DIR) + FirstFile);
    settings.environment["ORXInstallPath"] = "";
    EXPECT_EQ(FirstLine(RunTool({"list"}, settings)), std::string(VYR_SAMPLES_DIR) + FirstFile);
    settings.environment["ORXInstallPath"] = "other";
    EXPECT_EQ(FirstLine(RunTool({"list"}, settings)), std::string("other") + FirstFile);
    EXPECT_EQ(FirstLine(RunTool({"list", "--installation", "samples"}, settings)), std::string("samples") + FirstFile);
}

TEST_F(ToolTest, Options_BeforeAndBehindTheCommand_AddUp)
{
    AddSmallModel();
    Write("Other.catalog.json",
          R"({"catalog": "Other", "uses": ["Small"], "types": [{"name": "OtherMesh", "base": "Mesh"}]})");
    Write("elsewhere/other.model.json",
          R"({"model": 1, "catalogs": ["Small", "Other"], "objects": [{"type": "OtherMesh", "name": "M"}]})");
    EXPECT_EQ(Outcome(Run({"--catalog", "Small.catalog.json", "show", "--catalog", "Other.catalog.json",
                           "elsewhere/other.model.json"})),
              Outcome(0, ""));
    // Without them the catalogs are found neither beside the model nor in the installation.
    EXPECT_EQ(Run({"show", "elsewhere/other.model.json"}).status, 1);
}
} // namespace
