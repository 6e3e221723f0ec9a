#ifndef Outcome_H
#define Outcome_H

/**
 * @file
 * What has become of a command of the shell.
 */

#include <optional>
#include <string>
#include <vector>

#include "Answer.h"
#include "Reports.h"

namespace Tool
{
struct Outcome
{
    /// The words of the command; those of a line that has no words in order, as they were typed.
    std::string command;
    /// Also of a command that has failed in the middle.
    Answer answer;
    /// Why it has failed; nothing for a success.
    std::optional<std::string> failure;
    /// What the shell itself has had to say, then what the error service holds.
    std::vector<ReportRecord> notes;
    std::vector<ReportRecord> reports;
};

/// {"kind", "text", "function", "status"}; null for what a report does not have.
void WriteReport(JsonWriter& oWriter, const ReportRecord& iReport);

/// On one line: {"command", "status", "value", "reports"}.
std::string OutcomeJson(const Outcome& iOutcome);
} // namespace Tool

#endif
