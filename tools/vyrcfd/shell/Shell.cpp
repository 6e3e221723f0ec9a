#include "Shell.h"

#include "Failure.h"
#include "Output.h"
#include "ShellCommands.h"
#include "ShellWords.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Runs what stands on a line, if anything. @throws Failure
void RunLine(ShellSession& ioSession, const std::string& iLine)
{
    const std::vector<std::string> words = SplitWords(iLine);
    if (words.empty())
        return;
    try
    {
        RunShellCommand(ioSession, words);
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        throw Failure(error.what());
    }
    catch (const std::logic_error& fatal)
    {
        // Where the application would have ended.
        throw Failure(OneLine(words.front()) + " failed, fatally: " + OneLine(fatal.what()));
    }
}

/// What a failure says, with its place and what was reported, one line each.
std::string FailureText(const std::string& iPlace, const Failure& iFailure, const std::vector<std::string>& iReports)
{
    std::string text = (iPlace.empty() ? "" : iPlace + ": ") + iFailure.what();
    for (const std::string& report : iReports)
        text += "\n" + report;
    return text;
}

/// @throws Failure in a script
void RunAndTell(ShellSession& ioSession, const LineSource& iLines, const std::string& iLine)
{
    try
    {
        RunLine(ioSession, iLine);
        for (const std::string& report : ioSession.TakeReports())
            PrintError("note: " + report);
    }
    catch (const OutputFailure&)
    {
        throw;
    }
    catch (const Failure& failure)
    {
        const std::string text = FailureText(iLines.Place(), failure, ioSession.TakeReports());
        if (!iLines.IsTerminal())
            throw Failure(text);
        PrintError(text);
    }
}

/// Whether the session may end. Who sits at a terminal is warned of what would be lost, once.
bool MayLeave(ShellSession& ioSession, const LineSource& iLines)
{
    if (!iLines.IsTerminal() || !ioSession.MustWarn())
        return true;
    PrintError("warning: there are unsaved changes; save them, or leave once more to lose them");
    ioSession.Stay();
    return false;
}
} // namespace

void RunShell(ShellSession& ioSession, LineSource& ioLines)
{
    while (true)
    {
        const std::optional<std::string> line = ioLines.Next();
        if (line)
            RunAndTell(ioSession, ioLines, *line);
        else
            ioSession.Leave();
        if (ioSession.IsLeaving() && MayLeave(ioSession, ioLines))
            return;
    }
}
} // namespace Tool
