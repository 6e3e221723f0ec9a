#include "FailureAnswer.h"

#include <sstream>

#include "Failure.h"
#include "Outcome.h"
#include "Output.h"

namespace Tool
{
void FailureAnswer::Tell(const std::string& iText, const std::vector<ReportRecord>& iReports) const
{
    PrintError(iText);
    for (const ReportRecord& report : iReports)
        PrintError(ReportLine(report));
    if (!m_isJson || HasAnswered())
        return;
    try
    {
        Answer(iText, iReports);
    }
    catch (const OutputFailure&)
    {
        // Standard error has it already, and there is nowhere else to say it.
    }
}

void FailureAnswer::Answer(const std::string& iText, const std::vector<ReportRecord>& iReports) const
{
    Outcome outcome;
    outcome.command = m_command;
    std::istringstream lines(iText);
    std::string first;
    std::getline(lines, first);
    outcome.failure = first;
    for (std::string line; std::getline(lines, line);)
        outcome.notes.push_back({"failure", line, {}, {}});
    outcome.reports = iReports;
    Print(OutcomeJson(outcome));
}
} // namespace Tool
