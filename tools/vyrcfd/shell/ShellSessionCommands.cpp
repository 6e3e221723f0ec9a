/**
 * @file
 * Commands on the session: errors, save, help, quit.
 */

#include "Failure.h"
#include "Output.h"
#include "ShellCommands.h"
#include "Table.h"
#include "Wording.h"

namespace Tool
{
void ShellErrors(ShellSession& ioSession, const ShellArguments&)
{
    std::string text;
    for (const std::string& report : ioSession.ReportsSoFar())
        text += report + "\n";
    Print(text.empty() ? "No reports.\n" : text);
}

void ShellSave(ShellSession& ioSession, const ShellArguments& iArguments)
{
    if (!iArguments.empty() && iArguments[0].empty())
        throw Failure("\"\" names no file");
    Print("Saved " + OneLine(ioSession.Save(iArguments.empty() ? std::string() : iArguments[0])) + ".\n");
}

void ShellHelp(ShellSession&, const ShellArguments& iArguments)
{
    const ShellCommand* wanted = iArguments.empty() ? nullptr : FindShellCommand(iArguments[0]);
    if (!iArguments.empty() && wanted == nullptr)
        throw Failure("no command " + Quoted(iArguments[0]) + DidYouMean(iArguments[0], ShellCommandNames()));
    std::vector<std::vector<std::string>> rows;
    for (const ShellCommand& command : ShellCommands())
        if (wanted == nullptr || wanted == &command)
            rows.push_back({command.usage, command.help});
    Print(TableText(rows, {}));
}

void ShellQuit(ShellSession& ioSession, const ShellArguments&)
{
    ioSession.Leave();
}
} // namespace Tool
