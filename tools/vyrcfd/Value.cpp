#include "Value.h"

#include <charconv>
#include <cmath>

#include "Wording.h"

namespace Tool
{
namespace
{
std::string Decimal(double iValue, std::chars_format iFormat)
{
    char text[64];
    const std::to_chars_result end = std::to_chars(text, text + sizeof(text), iValue, iFormat);
    return {text, end.ptr};
}

/// The shortest decimal that reads back the same, with an exponent only where the digits alone would be hard to read.
std::string Decimal(double iValue)
{
    constexpr double Small = 1e-4;
    constexpr double Large = 1e15;
    const double size = std::abs(iValue);
    const bool isReadable = size == 0.0 || (size >= Small && size < Large);
    return Decimal(iValue, isReadable ? std::chars_format::fixed : std::chars_format::scientific);
}
} // namespace

Value Value::Of(bool iValue)
{
    Value value(Kind::Boolean);
    value.m_boolean = iValue;
    return value;
}

Value Value::Of(int iValue)
{
    Value value(Kind::Integer);
    value.m_integer = iValue;
    return value;
}

Value Value::Of(double iValue)
{
    Value value(Kind::Real);
    value.m_real = iValue;
    return value;
}

Value Value::String(std::string iText)
{
    Value value(Kind::String);
    value.m_text = std::move(iText);
    return value;
}

Value Value::Word(std::string iText)
{
    Value value(Kind::Word);
    value.m_text = std::move(iText);
    return value;
}

Value Value::List(std::vector<Value> iEntries)
{
    Value value(Kind::List);
    value.m_entries = std::move(iEntries);
    return value;
}

Value Value::Column(const std::vector<double>& iRows)
{
    Value value(Kind::Column);
    for (const double row : iRows)
        value.m_entries.push_back(Of(row));
    return value;
}

std::string Value::ShownEntries() const
{
    std::string text;
    for (const Value& entry : m_entries)
        text += (text.empty() ? "" : ", ") + entry.Shown();
    return "[" + text + "]";
}

std::string Value::Shown() const
{
    switch (m_kind)
    {
    case Kind::Unset:
        return "(unset)";
    case Kind::Empty:
        return "(empty)";
    case Kind::Boolean:
        return m_boolean ? "true" : "false";
    case Kind::Integer:
        return std::to_string(m_integer);
    case Kind::Real:
        return Decimal(m_real);
    case Kind::String:
        return Quoted(m_text);
    case Kind::Word:
        return OneLine(m_text);
    case Kind::Column:
        return "column " + ShownEntries();
    case Kind::List:
        break;
    }
    return ShownEntries();
}

void Value::Write(JsonWriter& oWriter) const
{
    switch (m_kind)
    {
    case Kind::Unset:
    case Kind::Empty:
        oWriter.Null();
        return;
    case Kind::Boolean:
        oWriter.Bool(m_boolean);
        return;
    case Kind::Integer:
        oWriter.Int(m_integer);
        return;
    case Kind::Real:
        oWriter.Double(m_real);
        return;
    case Kind::String:
    case Kind::Word:
        WriteText(oWriter, m_text);
        return;
    case Kind::List:
    case Kind::Column:
        break;
    }
    if (m_kind == Kind::Column)
    {
        oWriter.StartObject();
        oWriter.Key("column");
    }
    // Entries on one line, unlike the objects of a document.
    oWriter.SetFormatOptions(rapidjson::kFormatSingleLineArray);
    oWriter.StartArray();
    for (const Value& entry : m_entries)
        entry.Write(oWriter);
    oWriter.EndArray();
    oWriter.SetFormatOptions(rapidjson::kFormatDefault);
    if (m_kind == Kind::Column)
        oWriter.EndObject();
}

bool operator==(const Value& iLeft, const Value& iRight)
{
    return iLeft.m_kind == iRight.m_kind && iLeft.m_boolean == iRight.m_boolean &&
           iLeft.m_integer == iRight.m_integer && iLeft.m_real == iRight.m_real && iLeft.m_text == iRight.m_text &&
           iLeft.m_entries == iRight.m_entries;
}
} // namespace Tool
