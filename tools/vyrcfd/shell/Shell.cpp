#include "Shell.h"

#include "Failure.h"
#include "Outcome.h"
#include "Output.h"
#include "Progress.h"
#include "ShellCommands.h"
#include "ShellWords.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// @return why it has failed
std::optional<std::string> RunWords(ShellSession& ioSession, const std::vector<std::string>& iWords)
{
    try
    {
        RunShellCommand(ioSession, iWords);
    }
    catch (const Failure& failure)
    {
        return failure.what();
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        return error.what();
    }
    catch (const std::logic_error& fatal)
    {
        // Where the application would have ended.
        return OneLine(iWords.front()) + " failed, fatally: " + OneLine(fatal.what());
    }
    return std::nullopt;
}

/// Runs what stands on a line. @return nothing where nothing stands there
std::optional<Outcome> RunLine(ShellSession& ioSession, const std::string& iLine)
{
    Outcome outcome;
    outcome.command = iLine;
    ioSession.Begin(iLine);
    try
    {
        const std::vector<std::string> words = SplitWords(iLine);
        if (words.empty())
            return std::nullopt;
        outcome.command = JoinWords(words);
        ioSession.Begin(outcome.command);
        const Progress progress(OneLine(outcome.command));
        outcome.failure = RunWords(ioSession, words);
    }
    catch (const Failure& noWords)
    {
        outcome.failure = noWords.what();
    }
    outcome.answer = ioSession.Said();
    outcome.notes = ioSession.Reports().TakeNotes();
    outcome.reports = ioSession.Reports().TakeReports();
    return outcome;
}

/// What a failure says, with its place and what was reported, one line each.
std::string FailureText(const std::string& iPlace, const Outcome& iOutcome)
{
    std::string text = (iPlace.empty() ? "" : iPlace + ": ") + *iOutcome.failure;
    for (const ReportRecord& report : iOutcome.reports)
        text += "\n" + ReportLine(report);
    return text;
}

/// Prints an answer, with its failure on a terminal. @throws OutputFailure
void Tell(const Outcome& iOutcome, const LineSource& iLines, const ShellSettings& iSettings)
{
    if (iSettings.isJson)
    {
        Print(OutcomeJson(iOutcome));
        return;
    }
    Print(iOutcome.answer.text);
    if (!iOutcome.failure)
        for (const ReportRecord& report : iOutcome.reports)
            PrintError("note: " + ReportLine(report));
    else if (iLines.IsTerminal())
        PrintError(FailureText({}, iOutcome));
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

/// Tells of a failure in a script. @throws Failure where that is the script's end
void TellPlace(const Outcome& iOutcome, const LineSource& iLines, const ShellSettings& iSettings)
{
    const std::string text = FailureText(iLines.Place(), iOutcome);
    if (!iSettings.keepsGoing)
        throw Failure(text);
    PrintError(text);
}
} // namespace

void RunShell(ShellSession& ioSession, LineSource& ioLines, const ShellSettings& iSettings)
{
    if (iSettings.isJson)
        ioSession.Reports().KeepQuiet();
    std::size_t failed = 0;
    do
    {
        const std::optional<std::string> line = ioLines.Next();
        if (!line)
            ioSession.Leave();
        const std::optional<Outcome> outcome = line ? RunLine(ioSession, *line) : std::nullopt;
        if (!outcome)
            continue;
        Tell(*outcome, ioLines, iSettings);
        if (!outcome->failure || ioLines.IsTerminal())
            continue;
        TellPlace(*outcome, ioLines, iSettings);
        ++failed;
    } while (!ioSession.IsLeaving() || !MayLeave(ioSession, ioLines));
    if (failed != 0)
        throw Failure(ioLines.Name() + ": " + Counted(failed, "command") + " failed");
}
} // namespace Tool
