#include "StrictJson.h"

#include <algorithm>
#include <cstdlib>

#include <rapidjson/error/en.h>

namespace
{
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

StrictJson::SyntaxError ErrorAt(std::string_view iText, std::size_t iOffset, std::string iMessage)
{
    const std::string_view before = iText.substr(0, iOffset);
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0: the first line
    const std::string_view line = before.substr(lineStart);
    const auto isFirstByte = [](char iByte) { return (static_cast<unsigned char>(iByte) & 0xC0U) != 0x80U; };
    return {static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1,
            static_cast<int>(std::count_if(line.begin(), line.end(), isFirstByte)) + 1, std::move(iMessage)};
}

unsigned HexAt(std::string_view iText, std::size_t iOffset)
{
    return static_cast<unsigned>(std::strtoul(std::string(iText.substr(iOffset, 4)).c_str(), nullptr, 16));
}

/**
 * Offset of an escaped low surrogate that no high one precedes, npos if there is none. The parser lets it through, and
 * what came out would be no UTF-8. The text is valid otherwise, so that every backslash begins an escape.
 */
std::size_t FindLoneSurrogate(std::string_view iText)
{
    constexpr std::size_t Escape = 2;
    constexpr std::size_t UnicodeEscape = 6;
    std::size_t at = iText.find('\\');
    while (at != std::string_view::npos)
    {
        std::size_t length = Escape;
        if (iText[at + 1] == 'u')
        {
            const unsigned unit = HexAt(iText, at + Escape);
            if (unit >= 0xDC00U && unit <= 0xDFFFU)
                return at;
            length = unit >= 0xD800U && unit <= 0xDBFFU ? 2 * UnicodeEscape : UnicodeEscape;
        }
        at = iText.find('\\', at + length);
    }
    return at;
}
} // namespace

namespace StrictJson
{
std::optional<SyntaxError> Parse(std::string_view iText, rapidjson::Document& oDocument)
{
    if (iText.substr(0, ByteOrderMark.size()) == ByteOrderMark)
        return ErrorAt(iText, 0, "A byte order mark has no place in JSON.");
    // A zero ends the parser's input, and would hide what stands behind it.
    if (const std::size_t zero = iText.find('\0'); zero != std::string_view::npos)
        return ErrorAt(iText, zero, "A zero byte has no place in JSON.");

    constexpr unsigned Flags =
        rapidjson::kParseFullPrecisionFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
    oDocument.Parse<Flags>(iText.empty() ? "" : iText.data(), iText.size());
    if (oDocument.HasParseError())
        return ErrorAt(iText, oDocument.GetErrorOffset(), rapidjson::GetParseError_En(oDocument.GetParseError()));
    if (const std::size_t half = FindLoneSurrogate(iText); half != std::string_view::npos)
        return ErrorAt(iText, half, "The surrogate pair in string is invalid.");
    return std::nullopt;
}
} // namespace StrictJson
