#ifndef ShellReports_H
#define ShellReports_H

/**
 * @file
 * What there is to say beside the answers of a session's commands.
 */

#include <string>
#include <vector>

#include "Reports.h"

namespace Tool
{
/// Notes and warnings of the shell's own, and what the error service reports.
class ShellReports
{
public:
    /// Notes and warnings are only kept; otherwise they are also printed as they come, on standard error.
    void KeepQuiet() noexcept { m_isQuiet = true; }

    void Note(const std::string& iText) { Say("note", iText); }
    void Warn(const std::string& iText) { Say("warning", iText); }

    /// The notes and warnings since this was called last.
    std::vector<ReportRecord> TakeNotes();
    /// What the error service has reported since this was called last.
    std::vector<ReportRecord> TakeReports();
    /// What it has reported in the whole session, as far as it was taken.
    const std::vector<ReportRecord>& ReportsSoFar() const noexcept { return m_soFar; }

private:
    void Say(const char* iKind, const std::string& iText);

    std::vector<ReportRecord> m_notes;
    std::vector<ReportRecord> m_soFar;
    bool m_isQuiet = false;
};
} // namespace Tool

#endif
