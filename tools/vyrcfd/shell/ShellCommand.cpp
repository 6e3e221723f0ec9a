#include <memory>
#include <unistd.h>

#include "Command.h"
#include "Output.h"
#include "ScriptLines.h"
#include "Shell.h"
#include "ShellCommands.h"
#include "ShellCompletion.h"
#include "Table.h"

namespace Tool
{
namespace
{
void OpenShell(const CommonOptions& iOptions, const std::string& iFile)
{
    ShellSession session{Installation(iOptions), iFile};
    if (isatty(STDIN_FILENO) == 0)
    {
        ScriptLines script;
        RunShell(session, script);
        return;
    }
    ShellCompletion completion(session);
    TerminalLines terminal([&](std::string_view iLine, std::size_t iStart, const std::string& iWord) {
        return completion.Of(iLine, iStart, iWord);
    });
    Print("\"help\" lists the commands, \"quit\" leaves.\n");
    RunShell(session, terminal);
}

std::string CommandTable()
{
    std::vector<std::vector<std::string>> rows;
    for (const ShellCommand& command : ShellCommands())
        rows.push_back({command.usage, command.help});
    return TableText(rows, "  ");
}
} // namespace

void AddShellCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand(
        "shell", "Works on a model by commands, from a terminal or as a script from standard input");
    const auto model = std::make_shared<std::string>();
    command->add_option("MODEL", *model, "Model file (*.model.json)")->required();
    AddCommonOptions(*command, ioOptions);
    // Not offered, but understood where it stands, so that it can be refused by name.
    command->get_option("--json")->group("");
    command->footer(
        "Commands, one a line:\n" + CommandTable() +
        "\nA word in double quotes may hold blanks; inside, \\\" is a quotation mark and \\\\ a backslash. Where a "
        "word "
        "would begin, # begins a comment. What a command changes in the model is shown as apply shows it; nothing is "
        "written but by save."
        "\n\nIn a script the first command that fails ends the session with exit status 1, and what was not saved is "
        "lost; standard error tells its line, and below it what the module has reported. On a terminal the session "
        "goes on. Reports of a command that succeeds are notes.\n\n" +
        std::string(ObjectPathHelp) +
        " The path of an attribute ends in the attribute's name."
        "\n\nExample:\n    echo 'get Solver.1/iterations' | vyrcfd shell wing.model.json");
    command->callback([&ioOptions, &oJob, model] {
        if (ioOptions.json)
            throw CLI::ValidationError("--json", "the shell does not answer in JSON");
        oJob = [&ioOptions, model] { OpenShell(ioOptions, *model); };
    });
}
} // namespace Tool
