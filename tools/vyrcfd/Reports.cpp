#include "Reports.h"

#include <cstdint>
#include <cstdio>

#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
const char* KindText(VYRStandalone::Report::Kind iKind)
{
    switch (iKind)
    {
    case VYRStandalone::Report::Kind::Assertion:
        return "assertion";
    case VYRStandalone::Report::Kind::FailedCall:
        return "failed call";
    case VYRStandalone::Report::Kind::Error:
        break;
    }
    return "error";
}

std::string StatusText(HRESULT iStatus)
{
    char text[16];
    std::snprintf(text, sizeof(text), "0x%08X", static_cast<unsigned>(static_cast<std::uint32_t>(iStatus)));
    return text;
}
} // namespace

std::vector<ReportRecord> TakeReportRecords()
{
    std::vector<ReportRecord> records;
    for (const VYRStandalone::Report& report : VYRStandalone::TakeReports())
        records.push_back({KindText(report.kind), report.text, report.function, StatusText(report.status)});
    return records;
}

std::string ReportLine(const ReportRecord& iReport)
{
    return iReport.kind + ": " + OneLine(iReport.text) + " in " + OneLine(iReport.function) + ", status " +
           iReport.status;
}

std::vector<std::string> TakeReportLines()
{
    std::vector<std::string> lines;
    for (const ReportRecord& report : TakeReportRecords())
        lines.push_back(ReportLine(report));
    return lines;
}
} // namespace Tool
