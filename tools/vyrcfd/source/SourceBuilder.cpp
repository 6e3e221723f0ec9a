#include "SourceBuilder.h"

#include <cstdint>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace Tool
{
namespace
{
/// Turns offsets into a text, which only grow, into lines and columns.
class PositionCounter
{
public:
    explicit PositionCounter(std::string_view iText) : m_text(iText) {}

    SourcePosition PositionAt(std::size_t iOffset)
    {
        for (; m_offset < iOffset; ++m_offset)
        {
            const auto byte = static_cast<unsigned char>(m_text[m_offset]);
            if (byte == '\n')
                m_position = {m_position.line + 1, 1};
            else if ((byte & 0xC0U) != 0x80U)
                ++m_position.column;
        }
        return m_position;
    }

private:
    std::string_view m_text;
    std::size_t m_offset = 0;
    SourcePosition m_position;
};

/**
 * Takes the events of the parser. An event comes when the parser has read its token, or is about to: so a token begins
 * at the first byte behind the last one that parts no tokens.
 */
class Builder
{
public:
    Builder(std::string_view iText, const rapidjson::MemoryStream& iStream, std::deque<SourceValue>& oValues)
        : m_text(iText), m_stream(iStream), m_positions(iText), m_values(oValues)
    {
    }

    bool Null()
    {
        Add(SourceValue::Kind::Null);
        return EndToken();
    }
    bool Bool(bool iValue)
    {
        Add(SourceValue::Kind::Boolean).isTrue = iValue;
        return EndToken();
    }
    bool RawNumber(const char* iText, rapidjson::SizeType iLength, bool /*iCopy*/)
    {
        Add(SourceValue::Kind::Number).text.assign(iText, iLength);
        return EndToken();
    }
    bool String(const char* iText, rapidjson::SizeType iLength, bool /*iCopy*/)
    {
        Add(SourceValue::Kind::Text).text.assign(iText, iLength);
        return EndToken();
    }
    bool Key(const char* iText, rapidjson::SizeType iLength, bool /*iCopy*/)
    {
        m_open.back()->members.push_back({std::string(iText, iLength), Begin(), nullptr});
        return EndToken();
    }
    bool StartObject() { return Open(SourceValue::Kind::Object); }
    bool StartArray() { return Open(SourceValue::Kind::Array); }
    bool EndObject(rapidjson::SizeType /*iMembers*/) { return Close(); }
    bool EndArray(rapidjson::SizeType /*iElements*/) { return Close(); }

    // Numbers come as they are written.
    bool Int(int /*iValue*/) { return false; }
    bool Uint(unsigned /*iValue*/) { return false; }
    bool Int64(std::int64_t /*iValue*/) { return false; }
    bool Uint64(std::uint64_t /*iValue*/) { return false; }
    bool Double(double /*iValue*/) { return false; }

private:
    SourcePosition Begin()
    {
        m_offset = m_text.find_first_not_of(" \t\r\n,:", m_offset);
        return m_positions.PositionAt(m_offset);
    }

    bool EndToken()
    {
        m_offset = m_stream.Tell();
        return true;
    }

    bool EndBracket()
    {
        ++m_offset;
        return true;
    }

    SourceValue& Add(SourceValue::Kind iKind)
    {
        SourceValue& value = m_values.emplace_back();
        value.kind = iKind;
        value.position = Begin();
        if (!m_open.empty() && m_open.back()->Is(SourceValue::Kind::Array))
            m_open.back()->elements.push_back(&value);
        else if (!m_open.empty())
            m_open.back()->members.back().value = &value;
        return value;
    }

    bool Open(SourceValue::Kind iKind)
    {
        m_open.push_back(&Add(iKind));
        return EndBracket();
    }

    bool Close()
    {
        Begin();
        m_open.pop_back();
        return EndBracket();
    }

    std::string_view m_text;
    const rapidjson::MemoryStream& m_stream;
    PositionCounter m_positions;
    std::deque<SourceValue>& m_values;
    /// Arrays and objects that are being read, each inside the one before.
    std::vector<SourceValue*> m_open;
    std::size_t m_offset = 0;
};
} // namespace

bool BuildSource(std::string_view iText, std::deque<SourceValue>& oValues)
{
    constexpr unsigned Flags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag;
    rapidjson::MemoryStream stream(iText.empty() ? "" : iText.data(), iText.size());
    Builder builder(iText, stream, oValues);
    rapidjson::Reader reader;
    return !reader.Parse<Flags>(stream, builder).IsError();
}
} // namespace Tool
