/**
 * @file
 * Commands on the session: errors, undo, save, help, quit.
 */

#include <sstream>

#include "Failure.h"
#include "Outcome.h"
#include "Paragraphs.h"
#include "ShellCommands.h"
#include "Table.h"
#include "TerminalWidth.h"
#include "Wording.h"

namespace Tool
{
namespace
{
std::string CommandsText()
{
    std::vector<std::vector<std::string>> rows;
    for (const ShellCommand& command : ShellCommands())
        rows.push_back({command.usage, command.help});
    const std::string table = TableText(rows, {});
    // Narrower, a second column has no room.
    constexpr std::size_t Narrowest = 60;
    const std::size_t width = TerminalWidth();
    if (width < Narrowest)
        return table;
    std::istringstream lines(table);
    std::string text;
    for (std::string line; std::getline(lines, line);)
        text += WrappedLine(line, width);
    return text;
}

std::string CommandText(const ShellCommand& iCommand)
{
    std::string text = std::string(iCommand.usage) + "\n    " + iCommand.help + "\n";
    std::istringstream more(iCommand.more);
    for (std::string line; std::getline(more, line);)
        text += "    " + line + "\n";
    return text + "Example: " + iCommand.example + "\n";
}

void WriteCommand(JsonWriter& oWriter, const ShellCommand& iCommand)
{
    oWriter.StartObject();
    WriteMember(oWriter, "usage", iCommand.usage);
    WriteMember(oWriter, "help", iCommand.help);
    WriteMember(oWriter, "example", iCommand.example);
    oWriter.EndObject();
}
} // namespace

void ShellErrors(ShellSession& ioSession, const ShellArguments&)
{
    const std::vector<ReportRecord>& reports = ioSession.Reports().ReportsSoFar();
    std::string text;
    for (const ReportRecord& report : reports)
        text += ReportLine(report) + "\n";
    ioSession.Say(MakeAnswer(text.empty() ? "No reports.\n" : text, [&](JsonWriter& oWriter) {
        oWriter.StartArray();
        for (const ReportRecord& report : reports)
            WriteReport(oWriter, report);
        oWriter.EndArray();
    }));
}

void ShellUndo(ShellSession& ioSession, const ShellArguments&)
{
    ioSession.Undo();
}

void ShellSave(ShellSession& ioSession, const ShellArguments& iArguments)
{
    if (!iArguments.empty() && iArguments[0].empty())
        throw Failure("\"\" names no file");
    if (!iArguments.empty() && iArguments[0] == "-")
        throw Failure("- is no file: standard output has the answers; a file of that name is ./-");
    const std::string file = OneLine(ioSession.Save(iArguments.empty() ? std::string() : iArguments[0]));
    ioSession.Say(MakeAnswer("Saved " + file + ".\n", [&](JsonWriter& oWriter) { WriteText(oWriter, file); }));
}

void ShellHelp(ShellSession& ioSession, const ShellArguments& iArguments)
{
    if (iArguments.empty())
    {
        ioSession.Say(MakeAnswer(CommandsText(), [](JsonWriter& oWriter) {
            oWriter.StartArray();
            for (const ShellCommand& command : ShellCommands())
                WriteCommand(oWriter, command);
            oWriter.EndArray();
        }));
        return;
    }
    const ShellCommand* const command = FindShellCommand(iArguments[0]);
    if (command == nullptr)
        throw NoShellCommand(iArguments[0]);
    ioSession.Say(MakeAnswer(CommandText(*command), [&](JsonWriter& oWriter) { WriteCommand(oWriter, *command); }));
}

void ShellQuit(ShellSession& ioSession, const ShellArguments&)
{
    ioSession.Leave();
}
} // namespace Tool
