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

std::vector<std::string> TakeReportLines()
{
    std::vector<std::string> lines;
    for (const VYRStandalone::Report& report : VYRStandalone::TakeReports())
        lines.push_back(std::string(KindText(report.kind)) + ": " + OneLine(report.text) + " in " +
                        OneLine(report.function) + ", status " + StatusText(report.status));
    return lines;
}
} // namespace Tool
