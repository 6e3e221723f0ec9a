#include "ShellReports.h"

#include <utility>

#include "Output.h"

namespace Tool
{
std::vector<ReportRecord> ShellReports::TakeNotes()
{
    return std::exchange(m_notes, {});
}

std::vector<ReportRecord> ShellReports::TakeReports()
{
    std::vector<ReportRecord> records = TakeReportRecords();
    m_soFar.insert(m_soFar.end(), records.begin(), records.end());
    return records;
}

void ShellReports::Say(const char* iKind, const std::string& iText)
{
    if (!m_isQuiet)
        PrintError(std::string(iKind) + ": " + iText);
    m_notes.push_back({iKind, iText, {}, {}});
}
} // namespace Tool
