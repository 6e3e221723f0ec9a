#ifndef Failure_H
#define Failure_H

/**
 * @file
 * How a command gives up.
 */

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Reports.h"

namespace Tool
{
/// The job failed. `what()` is what standard error gets: one line, and a line for each report of the error service.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The module has reported why.
class ReportedFailure : public Failure
{
public:
    /// @param iText one line or several, to which a line for each report is added
    ReportedFailure(const std::string& iText, std::vector<ReportRecord> iReports)
        : Failure(WithLines(iText, iReports)), m_text(iText), m_reports(std::move(iReports))
    {
    }

    /// Without the reports.
    const std::string& Text() const noexcept { return m_text; }
    const std::vector<ReportRecord>& Reports() const noexcept { return m_reports; }

private:
    static std::string WithLines(std::string iText, const std::vector<ReportRecord>& iReports)
    {
        for (const ReportRecord& report : iReports)
            iText += "\n" + ReportLine(report);
        return iText;
    }

    std::string m_text;
    std::vector<ReportRecord> m_reports;
};

/// Standard output takes no more, so that there is no point in going on.
class OutputFailure : public Failure
{
public:
    using Failure::Failure;
};

/// The pipe that standard output is has lost its reader, who has seen enough.
class BrokenPipe : public OutputFailure
{
public:
    using OutputFailure::OutputFailure;
};
} // namespace Tool

#endif
