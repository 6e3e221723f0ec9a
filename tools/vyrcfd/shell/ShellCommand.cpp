#include <memory>
#include <optional>
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
struct ShellOptions
{
    std::string model;
    /// Empty for standard input.
    std::string script;
    bool keepsGoing = false;
};

void TalkAtTerminal(ShellSession& ioSession, const ShellSettings& iSettings)
{
    ShellCompletion completion(ioSession);
    TerminalLines terminal([&](std::string_view iLine, std::size_t iStart, const std::string& iWord) {
        return completion.Of(iLine, iStart, iWord);
    });
    if (!iSettings.isJson)
        Print("\"help\" lists the commands, \"quit\" leaves.\n");
    RunShell(ioSession, terminal, iSettings);
}

void OpenShell(const CommonOptions& iCommon, const ShellOptions& iOptions)
{
    const ShellSettings settings{iCommon.json, iOptions.keepsGoing};
    // First of all, since loading may take its time.
    std::optional<ScriptLines> script;
    if (!iOptions.script.empty())
        script.emplace(iOptions.script);
    else if (isatty(STDIN_FILENO) == 0)
        script.emplace();
    ShellSession session{Installation(iCommon), iOptions.model};
    if (script)
        RunShell(session, *script, settings);
    else
        TalkAtTerminal(session, settings);
}

std::string CommandTable()
{
    std::vector<std::vector<std::string>> rows;
    for (const ShellCommand& command : ShellCommands())
        rows.push_back({command.usage, command.help});
    return TableText(rows, "  ");
}
std::string ShellFooter()
{
    return "Commands, one a line; \"help COMMAND\" tells more of one:\n" + CommandTable() +
           "\nA word in double quotes may hold blanks; inside, \\\" is a quotation mark and \\\\ a backslash. Where a "
           "word would begin, # begins a comment. What a command changes in the model is shown as apply shows it; "
           "nothing is written but by save.\n\n"
           "In a script the first command that fails ends the session with exit status 1, and what was not saved is "
           "lost; standard error tells its file and line, and below it what the module has reported. With "
           "--keep-going the script goes on, and the exit status is 1 in the end. On a terminal the session always "
           "goes on. Reports of a command that succeeds are notes.\n\n"
           "On a terminal a tabulator completes words, and lines that were typed are kept in the file that the "
           "variable VYRCFD_HISTORY names, otherwise in vyrcfd/history in the folder of the variable XDG_STATE_HOME "
           "or in ~/.local/state; where VYRCFD_HISTORY is empty, nowhere. "
           "Ctrl-C clears the line; a command that runs goes on to its end, and another Ctrl-C ends the session.\n\n"
           "With --json each command is answered by one line: {\"command\", \"status\", \"value\", \"reports\"}. "
           "\"status\" is \"ok\" or \"failed\". \"value\" is what the command answers: a number, true or false, a "
           "text, a list, the path of an object, null for what is unset or empty; of a command that changes the "
           "model the list of changed objects, as of apply --json. \"reports\" are {\"kind\", \"text\", "
           "\"function\", \"status\"}: why the command has failed (\"failure\"), what the shell has to say "
           "(\"note\", \"warning\"), and what the module has reported (\"assertion\", \"error\", \"failed call\"), "
           "with the function and its 32-bit status in hexadecimal, which are null for the others.\n\n" +
           std::string(ObjectPathHelp) +
           "\nThe path of an attribute ends in the attribute's name."
           "\n\nExample:\n    echo 'get Solver.1/iterations' | vyrcfd shell wing.model.json";
}
} // namespace

void AddShellCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand(
        "shell", "Works on a model by commands, from a terminal or as a script from standard input or a file");
    const auto options = std::make_shared<ShellOptions>();
    command->add_option("MODEL", options->model, "Model file (*.model.json)")->required();
    command->add_option("-f,--file", options->script, "Script to run in place of standard input")
        ->type_name("FILE")
        ->check([](const std::string& iFile) { return iFile.empty() ? "names no file" : std::string(); }, "");
    command->add_flag("--keep-going", options->keepsGoing, "Go on behind a command of a script that has failed");
    AddCommonOptions(*command, ioOptions);
    command->footer(ShellFooter());
    command->callback(
        [&ioOptions, &oJob, options] { oJob = [&ioOptions, options] { OpenShell(ioOptions, *options); }; });
}
} // namespace Tool
