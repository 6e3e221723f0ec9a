#ifndef Reports_H
#define Reports_H

/**
 * @file
 * What the error service holds, as records and as lines for standard error.
 */

#include <string>
#include <vector>

namespace Tool
{
/// One report. What no error service has reported has neither function nor status.
struct ReportRecord
{
    /// "assertion", "error" or "failed call"; or what the tool itself calls it.
    std::string kind;
    std::string text;
    /// Qualified name of the function that has reported.
    std::string function;
    /// Such as "0x80004005".
    std::string status;
};

/// Takes the reports, oldest first.
std::vector<ReportRecord> TakeReportRecords();

/// One line: `failed call: Load(iName) in VYRCfdThing::Do, status 0x80004005`.
std::string ReportLine(const ReportRecord& iReport);

/// Takes the reports, oldest first, one line each.
std::vector<std::string> TakeReportLines();
} // namespace Tool

#endif
