/**
 * @file
 * The shell's answers for machines: one line of JSON a command.
 */

#include "ShellTest.h"

namespace
{
std::string Line(const std::string& iCommand, const std::string& iValue, const std::string& iReports = "",
                 const std::string& iStatus = "ok")
{
    return "{\"command\": \"" + iCommand + "\", \"status\": \"" + iStatus + "\", \"value\": " + iValue +
           ", \"reports\": [" + iReports + "]}\n";
}

std::string Said(const std::string& iKind, const std::string& iText)
{
    return "{\"kind\": \"" + iKind + "\", \"text\": \"" + iText + "\", \"function\": null, \"status\": null}";
}

class ShellJsonTest : public ShellTest
{
protected:
    ToolRun Json(const std::string& iModel, const std::string& iScript, bool iKeepsGoing = false) const
    {
        ToolSettings settings;
        settings.input = iScript;
        std::vector<std::string> arguments{"shell", iModel, "--json"};
        if (iKeepsGoing)
            arguments.emplace_back("--keep-going");
        return Run(arguments, settings);
    }
};

TEST_F(ShellJsonTest, Values_AreOfTheirOwnKind)
{
    const ToolRun run =
        Json(Small, "# nothing\n\nget Case.1/relaxation\nget Case.1/iterations\nget Case.1/note\nget Case.1/title\n"
                    "get Case.1/scheme\nget Case.1/monitors\nget Case.1/weights\nget Case.1/mesh\nget Case.1/backup\n"
                    "get Case.1/spare\nget Case.1/defaultManagement/relaxation_isset\nget   \"list/probes\"  # none\n"
                    "get Case.1/watched\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, Line("get Case.1/relaxation", "0.5") + Line("get Case.1/iterations", "500") +
                              Line("get Case.1/note", "\"\"") + Line("get Case.1/title", "null") +
                              Line("get Case.1/scheme", "\"central\"") +
                              Line("get Case.1/monitors", "[\"lift\", \"drag \\\"total\\\"\"]") +
                              Line("get Case.1/weights", "[1.0, 0.25]") + Line("get Case.1/mesh", "\"Mesh\"") +
                              Line("get Case.1/backup", "null") + Line("get Case.1/spare", "{\"column\": [1.5, 2.5]}") +
                              Line("get Case.1/defaultManagement/relaxation_isset", "true") +
                              Line("get list/probes", "[]") + Line("get Case.1/watched", "[\"Mesh\", null]"));
}

TEST_F(ShellJsonTest, Questions_AreAnsweredInTheirKind)
{
    const ToolRun run = Json(Small, "isset Case.1/relaxation\nauto Case.1/note\nauto Case.1/author\n"
                                    "default Case.1/tolerance\ndefault Case.1/title\ntest Case.1 iterations>600\n"
                                    "errors\nrecords Case.1\nls list/probes\nls Mesh\nquit\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    const std::string record =
        "{\"type\": \"real\", \"path\": \"tolerance\", \"default\": \"1e-8\", \"defaultAutoKey\": null, "
        "\"condition\": null, \"config\": null}, {\"type\": null, \"path\": \"probe\", \"default\": null, "
        "\"defaultAutoKey\": null, \"condition\": \"iterations>100\", \"config\": \"watchfulProbe\"}";
    EXPECT_EQ(
        run.output,
        Line("isset Case.1/relaxation", "true") + Line("auto Case.1/note", "true") +
            Line("auto Case.1/author", "null") + Line("default Case.1/tolerance", "1e-8") +
            Line("default Case.1/title", "null") + Line("test Case.1 iterations>600", "false") + Line("errors", "[]") +
            Line("records Case.1", "[" + record + "]") +
            Line("ls list/probes",
                 "{\"path\": \"list\", \"type\": \"Case\", \"name\": \"list\", \"alias\": null, \"identifier\": null, "
                 "\"attributes\": {\"probes\": {\"kind\": \"list\", \"value\": [], \"set\": false, \"auto\": null, "
                 "\"default\": null, \"source\": \"none\"}}, \"parts\": []}") +
            Line("ls Mesh",
                 "{\"path\": \"Mesh\", \"type\": \"Mesh\", \"name\": \"Mesh/fine\", \"alias\": null, \"identifier\": "
                 "null, \"attributes\": {\"cells\": {\"kind\": \"integer\", \"value\": 4096, \"set\": null, \"auto\": "
                 "null, \"default\": null, \"source\": \"none\"}}, \"parts\": []}") +
            Line("quit", "null"));
}

TEST_F(ShellJsonTest, Changes_AreListedAsApplyListsThem)
{
    const ToolRun run = Json(Small, "set Mesh/cells 5\nundo\nset Mesh/cells 4096\nsave copy.model.json\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    const auto change = [](const char* iBefore, const char* iAfter) {
        return std::string("[{\"path\": \"Mesh\", \"type\": \"Mesh\", \"change\": \"changed\", \"attributes\": "
                           "{\"cells\": {\"kind\": \"integer\", \"before\": {\"value\": ") +
               iBefore + ", \"set\": null, \"auto\": null}, \"after\": {\"value\": " + iAfter +
               ", \"set\": null, \"auto\": null}}}, \"newRecords\": [], \"goneRecords\": [], \"remadeRecords\": 0}]";
    };
    EXPECT_EQ(run.output, Line("set Mesh/cells 5", change("4096", "5")) +
                              Line("undo", change("5", "4096"),
                                   Said("note", "custom defaults are now those that the records give")) +
                              Line("set Mesh/cells 4096", "[]") + Line("save copy.model.json", "\"copy.model.json\""));
}

TEST_F(ShellJsonTest, Reports_StandWithTheirCommand)
{
    const ToolRun run = Json(Flow, "prohibit Flow.1/solver nothing direct gmres\nerrors\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    const std::string assertion = "{\"kind\": \"assertion\", \"text\": \"choices.size() > 0\", \"function\": "
                                  "\"VYRCfdChoiceInstanceAdp::Update\", \"status\": \"0x80004005\"}";
    const std::string first = run.output.substr(0, run.output.find('\n') + 1);
    const std::string reports =
        "\"reports\": [" + Said("note", "\\\"nothing\\\" is not offered, and passed over") + ", " + assertion + "]}\n";
    ASSERT_GE(first.size(), reports.size());
    EXPECT_EQ(first.substr(first.size() - reports.size()), reports);
    EXPECT_EQ(run.output.substr(first.size()), Line("errors", "[" + assertion + "]"));
}

TEST_F(ShellJsonTest, Explanations_AreThoseOfTheCommand_WithTheCustomDefault)
{
    const ToolRun run = Json(Small, "default Case.1/relaxation 0.1\nexplain Case.1/relaxation\n");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    const std::string place = "{\"catalog\": \"Small\", \"type\": \"Case\", \"file\": \"Small.catalog.json\", "
                              "\"line\": 26, \"column\": ";
    EXPECT_EQ(run.output,
              Line("default Case.1/relaxation 0.1", "[]") +
                  Line("explain Case.1/relaxation",
                       "{\"path\": \"Case.1/relaxation\", \"object\": \"Case.1\", \"attribute\": \"relaxation\", "
                       "\"kind\": \"real\", \"optional\": false, \"value\": 0.5, \"set\": true, \"auto\": null, "
                       "\"source\": \"set\", \"ladder\": {\"customDefault\": 0.1, \"records\": [], \"prototype\": "
                       "{\"path\": \"[Case]\", \"value\": 0.7, \"declaredBy\": \"Case\", \"declarations\": [" +
                           place + "9}], \"values\": [" + place +
                           "60}]}}, \"winner\": \"custom default\", \"afterUnset\": {\"value\": 0.1, \"set\": "
                           "false, \"auto\": null}}"));
}

TEST_F(ShellJsonTest, Failures_AreAnsweredToo_AndNamedOnStandardErrorWithTheirPlace)
{
    const std::string script = "apply Mesh cavity\nget \"open\nget Case.1/relaxation\n";
    const std::string why = "\\\"Mesh\\\" has no default management, and cannot be configured";
    const std::string assertion = "{\"kind\": \"assertion\", \"text\": \"spDefMgmt != NULL_var\", \"function\": "
                                  "\"VYRCfdConfigurator::ApplyConfiguration\", \"status\": \"0x80004005\"}";
    const std::string told =
        "stdin:1: \"Mesh\" has no default management, and cannot be configured\n"
        "assertion: spDefMgmt != NULL_var in VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n";
    const std::string answer = Line("apply Mesh cavity", "null", Said("failure", why) + ", " + assertion, "failed");
    const ToolRun stopped = Json(Small, script);
    EXPECT_EQ(Outcome(stopped), Outcome(1, told));
    EXPECT_EQ(stopped.output, answer);
    const ToolRun run = Json(Small, script, true);
    EXPECT_EQ(Outcome(run),
              Outcome(1, told + "stdin:2: a quotation mark is missing at the end\nstdin: 2 commands failed\n"));
    EXPECT_EQ(run.output,
              answer +
                  Line("get \\\"open", "null", Said("failure", "a quotation mark is missing at the end"), "failed") +
                  Line("get Case.1/relaxation", "0.5"));
}

TEST_F(ShellJsonTest, Terminal_AnswersInJsonToo)
{
    ToolSettings settings;
    settings.typed = {"get Case.1/relaxation\r", "get nothing\r"};
    settings.environment = {{"TERM", "dumb"}, {"VYRCFD_HISTORY", ""}};
    ToolRun run = Run({"shell", Small, "--json"}, settings);
    std::erase(run.output, '\r');
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "vyrcfd> get Case.1/relaxation\n" + Line("get Case.1/relaxation", "0.5") +
                              "vyrcfd> get nothing\n" +
                              Line("get nothing", "null",
                                   Said("failure", "no top-level object \\\"nothing\\\"; there are \\\"ConfigItem\\\", "
                                                   "\\\"Case.1\\\", \\\"Mesh\\\" and \\\"list\\\""),
                                   "failed") +
                              "vyrcfd> \n");
}
} // namespace
