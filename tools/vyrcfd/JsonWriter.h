#ifndef JsonWriter_H
#define JsonWriter_H

/**
 * @file
 * The answers for machines: JSON, two blanks a level.
 */

#include <optional>
#include <string>
#include <string_view>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

namespace Tool
{
using JsonWriter = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

inline void WriteText(JsonWriter& oWriter, std::string_view iText)
{
    oWriter.String(iText.data(), static_cast<rapidjson::SizeType>(iText.size()));
}

inline void WriteKey(JsonWriter& oWriter, std::string_view iKey)
{
    oWriter.Key(iKey.data(), static_cast<rapidjson::SizeType>(iKey.size()));
}

/// A text under a key.
inline void WriteMember(JsonWriter& oWriter, std::string_view iKey, std::string_view iText)
{
    WriteKey(oWriter, iKey);
    WriteText(oWriter, iText);
}

/// A flag under a key; null where there is none.
inline void WriteFlag(JsonWriter& oWriter, std::string_view iKey, const std::optional<bool>& iFlag)
{
    WriteKey(oWriter, iKey);
    if (iFlag)
        oWriter.Bool(*iFlag);
    else
        oWriter.Null();
}

/// Lets a function write one value, and gives the text with a line end.
template <class Write> std::string JsonText(Write iWrite)
{
    rapidjson::StringBuffer buffer;
    JsonWriter writer(buffer);
    writer.SetIndent(' ', 2);
    iWrite(writer);
    return std::string(buffer.GetString(), buffer.GetSize()) + "\n";
}
} // namespace Tool

#endif
