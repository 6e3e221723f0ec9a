#include "FindingText.h"

#include "JsonWriter.h"
#include "Output.h"
#include "Wording.h"

namespace Tool
{
namespace
{
std::string LineOf(const Finding& iFinding, const Colours& iColours)
{
    const std::string severity = std::string(NameOf(iFinding.severity)) + ":";
    std::string line = iFinding.file + ":" + std::to_string(iFinding.position.line) + ":" +
                       std::to_string(iFinding.position.column) + ": ";
    line += iFinding.severity == Severity::Error ? iColours.Removed(severity) : iColours.Heading(severity);
    std::string place;
    if (iFinding.configuration != nullptr && !iFinding.configuration->name.empty())
        place = " " + Quoted(iFinding.configuration->name);
    if (iFinding.item != 0)
        place += (place.empty() ? " item " : ", item ") + std::to_string(iFinding.item);
    line += place + (place.empty() ? " " : ": ") + iFinding.message;
    if (!iFinding.suggestion.empty())
        line += "; did you mean " + Quoted(iFinding.suggestion) + "?";
    return line + " [" + NameOf(iFinding.kind) + "]\n";
}

void WriteTextOrNull(JsonWriter& oWriter, const char* iKey, const std::string& iText)
{
    WriteKey(oWriter, iKey);
    if (iText.empty())
        oWriter.Null();
    else
        WriteText(oWriter, iText);
}

void WriteNumber(JsonWriter& oWriter, const char* iKey, int iNumber)
{
    WriteKey(oWriter, iKey);
    oWriter.Int(iNumber);
}

void WriteFinding(JsonWriter& oWriter, const Finding& iFinding)
{
    oWriter.StartObject();
    WriteMember(oWriter, "kind", NameOf(iFinding.kind));
    WriteMember(oWriter, "severity", NameOf(iFinding.severity));
    WriteMember(oWriter, "file", iFinding.file);
    WriteNumber(oWriter, "line", iFinding.position.line);
    WriteNumber(oWriter, "column", iFinding.position.column);
    WriteKey(oWriter, "configuration");
    if (iFinding.configuration != nullptr)
        WriteText(oWriter, iFinding.configuration->name);
    else
        oWriter.Null();
    WriteKey(oWriter, "item");
    if (iFinding.item != 0)
        oWriter.Uint64(iFinding.item);
    else
        oWriter.Null();
    WriteTextOrNull(oWriter, "key", iFinding.key);
    WriteMember(oWriter, "message", iFinding.message);
    WriteTextOrNull(oWriter, "suggestion", iFinding.suggestion);
    WriteKey(oWriter, "related");
    oWriter.StartArray();
    for (const RelatedPlace& place : iFinding.related)
    {
        oWriter.StartObject();
        WriteMember(oWriter, "file", place.file);
        WriteNumber(oWriter, "line", place.line);
        oWriter.EndObject();
    }
    oWriter.EndArray();
    oWriter.EndObject();
}
} // namespace

std::string FindingsText(const std::vector<Finding>& iFindings)
{
    const Colours colours;
    std::string text;
    for (const Finding& finding : iFindings)
        text += LineOf(finding, colours);
    return text;
}

std::string FindingsJson(const std::vector<Finding>& iFindings)
{
    return JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteKey(oWriter, "findings");
        oWriter.StartArray();
        for (const Finding& finding : iFindings)
            WriteFinding(oWriter, finding);
        oWriter.EndArray();
        oWriter.EndObject();
    });
}
} // namespace Tool
