#include "Outcome.h"

#include "Wording.h"

namespace Tool
{
namespace
{
void WriteOrNull(JsonWriter& oWriter, const char* iKey, const std::string& iText)
{
    WriteKey(oWriter, iKey);
    if (iText.empty())
        oWriter.Null();
    else
        WriteText(oWriter, iText);
}

/// A text of JSON holds no line ends but those between its parts, and behind each of these blanks.
std::string OnOneLine(const std::string& iJson)
{
    std::string line;
    for (std::size_t at = 0; at < iJson.size(); ++at)
    {
        if (iJson[at] != '\n')
        {
            line += iJson[at];
            continue;
        }
        while (at + 1 < iJson.size() && iJson[at + 1] == ' ')
            ++at;
        if (!line.empty() && line.back() == ',')
            line += ' ';
    }
    return line;
}
} // namespace

void WriteReport(JsonWriter& oWriter, const ReportRecord& iReport)
{
    oWriter.StartObject();
    WriteMember(oWriter, "kind", iReport.kind);
    WriteMember(oWriter, "text", OneLine(iReport.text));
    WriteOrNull(oWriter, "function", iReport.function);
    WriteOrNull(oWriter, "status", iReport.status);
    oWriter.EndObject();
}

std::string OutcomeJson(const Outcome& iOutcome)
{
    const std::string text = JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteMember(oWriter, "command", OneLine(iOutcome.command));
        WriteMember(oWriter, "status", iOutcome.failure ? "failed" : "ok");
        WriteKey(oWriter, "value");
        oWriter.RawValue(iOutcome.answer.json.data(), iOutcome.answer.json.size(), rapidjson::kObjectType);
        WriteKey(oWriter, "reports");
        oWriter.StartArray();
        if (iOutcome.failure)
            WriteReport(oWriter, {"failure", *iOutcome.failure, {}, {}});
        for (const auto* records : {&iOutcome.notes, &iOutcome.reports})
            for (const ReportRecord& report : *records)
                WriteReport(oWriter, report);
        oWriter.EndArray();
        oWriter.EndObject();
    });
    return OnOneLine(text) + "\n";
}
} // namespace Tool
