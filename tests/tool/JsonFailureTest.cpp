/**
 * @file
 * What standard output gets under --json from a command that fails: one object, as of the shell's commands.
 */

#include <regex>
#include <set>

#include "ToolTest.h"

namespace
{
struct FailedCommand
{
    const char* command;
    std::vector<std::string> arguments;
    int status;
    /// Of the only report, as a text of JSON holds it.
    const char* text;
};

void PrintTo(const FailedCommand& iOne, std::ostream* oStream)
{
    *oStream << iOne.command;
}

const FailedCommand Commands[] = {
    {"apply", {"nothing.json", "Solver.1", "wall"}, 1, "nothing.json: cannot be opened: No such file or directory"},
    {"show", {"nothing.json"}, 1, "nothing.json: cannot be opened: No such file or directory"},
    {"explain", {"nothing.json", "Solver.1/mesh"}, 1, "nothing.json: cannot be opened: No such file or directory"},
    {"list", {"--installation", "nowhere"}, 1, "nowhere: is no folder, so there is no installation"},
    {"check", {"--installation", "nowhere"}, 1, "nowhere: is no folder, so there is no installation"},
    {"describe", {"wlal"}, 1, R"(vyrcfd: no configuration \"wlal\"; did you mean \"wall\"?; see vyrcfd list)"},
    {"graph", {"wlal"}, 1, R"(vyrcfd: no configuration \"wlal\"; did you mean \"wall\"?; see vyrcfd list)"},
    {"purge", {"nothing.json"}, 1, "nothing.json: cannot be opened: No such file or directory"},
    {"shell", {"nothing.json", "-f", "/dev/null"}, 1, "nothing.json: cannot be opened: No such file or directory"},
};

std::string Answer(const std::string& iCommand, const std::string& iText)
{
    return R"({"command": ")" + iCommand + R"(", "status": "failed", "value": null, "reports": [{"kind": "failure", )" +
           R"("text": ")" + iText + R"(", "function": null, "status": null}]})" + "\n";
}

class FailedCommands : public ToolTest, public testing::WithParamInterface<FailedCommand>
{
protected:
    ToolRun RunIt(const std::vector<std::string>& iFurther) const
    {
        std::vector<std::string> arguments{GetParam().command};
        arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
        arguments.insert(arguments.end(), iFurther.begin(), iFurther.end());
        return Run(arguments);
    }
};

TEST_P(FailedCommands, AnswerOneObjectInJson_AndNothingOtherwise)
{
    const ToolRun asJson = RunIt({"--json"});
    EXPECT_EQ(asJson.output, Answer(GetParam().command, GetParam().text));
    EXPECT_EQ(asJson.status, GetParam().status);
    const ToolRun asText = RunIt({});
    EXPECT_EQ(asText.output, "");
    EXPECT_EQ(Outcome(asJson), Outcome(asText));
}

TEST_P(FailedCommands, ThatAreCalledWrong_DoSoAsWell)
{
    const ToolRun run = RunIt({"--json", "--strange"});
    const std::string text = "vyrcfd: The following argument was not expected: --strange; see vyrcfd " +
                             std::string(GetParam().command) + " --help";
    EXPECT_EQ(run.output, Answer(GetParam().command, text));
    EXPECT_EQ(Outcome(run), Outcome(2, text + "\n"));
}

INSTANTIATE_TEST_SUITE_P(Json, FailedCommands, testing::ValuesIn(Commands),
                         [](const auto& iInfo) { return std::string(iInfo.param.command); });

TEST_F(ToolTest, JsonFailures_AreTriedOfAllCommands)
{
    std::set<std::string> tried;
    for (const FailedCommand& one : Commands)
        tried.insert(one.command);
    const std::string help = Run({"--help"}).output;
    std::set<std::string> offered;
    const std::regex command(R"(\n  ([a-z]+) )");
    const std::string list = help.substr(0, help.find("\nOptions:"));
    for (std::sregex_iterator match(list.begin(), list.end(), command); match != std::sregex_iterator(); ++match)
        offered.insert((*match)[1]);
    EXPECT_EQ(tried, offered);
}

TEST_F(ToolTest, JsonFailure_OfNoCommand_HasNoName)
{
    const ToolRun run = Run({"lsit", "--json"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, Answer("", R"(vyrcfd: no command \"lsit\"; did you mean \"list\"?; see vyrcfd --help)"));
}

TEST_F(ToolTest, JsonFailure_OfApply_HoldsTheReportsOfTheModule)
{
    const ToolRun run = Run({"apply", External, "Mesh.1", "externalFlow", "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        run.output,
        R"-({"command": "apply", "status": "failed", "value": null, "reports": [{"kind": "failure", "text": )-"
        R"-("samples/models/externalFlow.model.json: \"externalFlow\" failed on \"Mesh.1\"", "function": null, )-"
        R"-("status": null}, {"kind": "failure", "text": "\"externalFlow\", item 1, fails: )-"
        R"-(samples/reffiles/VYRCfdApp/SolverConfigurations.json:6:9", "function": null, "status": null}, )-"
        R"-({"kind": "assertion", "text": "spParm", "function": "VYRCfdDefaultManagementAdp::SetCustomDefault", )-"
        R"-("status": "0x80004005"}, {"kind": "failed call", "text": "spDefMgmt->SetCustomDefault(path, )-"
        R"-(defaultValue)", "function": "VYRCfdConfigurator::ApplyConfiguration", "status": "0x80004005"}]})-"
        "\n");
}

TEST_F(ToolTest, JsonFailure_BehindAnAnswer_AddsNothing)
{
    Write(std::string(Configurations) + "meshFYEConfig.json", R"({"wrong": 1})");
    const ToolRun run = Run({"check", "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output.find("\"reports\""), std::string::npos);
    EXPECT_EQ(run.output.substr(0, 16), "{\n  \"findings\": ");
}
} // namespace
