#include "StrictJson.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <simdjson.h>

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

/// Whether a number that a double cannot hold is too large for it, and not too small. The number is valid JSON and not
/// 0.
bool IsTooLarge(std::string_view iNumber)
{
    const std::size_t mark = std::min(iNumber.find_first_of("eE"), iNumber.size());
    const std::string_view mantissa = iNumber.substr(0, mark);
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    std::string_view digits = iNumber.substr(std::min(mark + 1, iNumber.size()));
    const bool isNegative = !digits.empty() && digits.front() == '-';
    if (!digits.empty() && digits.front() == '+')
        digits.remove_prefix(1);
    std::int64_t exponent = 0;
    const std::errc error = std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec;
    if (error == std::errc::result_out_of_range)
        return !isNegative;
    return point - first + exponent > 0;
}

/// Builds a document as deep as is allowed, and reads the numbers itself: the parser's own reading of reals is not
/// always the nearest one, and at the edges infinite or no number at all.
class DocumentBuilder
{
public:
    explicit DocumentBuilder(rapidjson::Document& oDocument) : m_document(oDocument) {}

    bool Null() { return m_document.Null(); }
    bool Bool(bool iValue) { return m_document.Bool(iValue); }
    bool Int(int iValue) { return m_document.Int(iValue); }
    bool Uint(unsigned iValue) { return m_document.Uint(iValue); }
    bool Int64(std::int64_t iValue) { return m_document.Int64(iValue); }
    bool Uint64(std::uint64_t iValue) { return m_document.Uint64(iValue); }
    bool Double(double iValue) { return m_document.Double(iValue); }
    bool String(const char* iText, rapidjson::SizeType iLength, bool iCopy)
    {
        return m_document.String(iText, iLength, iCopy);
    }
    bool Key(const char* iText, rapidjson::SizeType iLength, bool iCopy)
    {
        return m_document.Key(iText, iLength, iCopy);
    }
    bool StartObject() { return Enter() && m_document.StartObject(); }
    bool EndObject(rapidjson::SizeType iMembers) { return Leave() && m_document.EndObject(iMembers); }
    bool StartArray() { return Enter() && m_document.StartArray(); }
    bool EndArray(rapidjson::SizeType iElements) { return Leave() && m_document.EndArray(iElements); }

    /// False, which ends the parsing, only for a number that a double cannot hold.
    bool RawNumber(const char* iText, rapidjson::SizeType iLength, bool /*iCopy*/)
    {
        const std::string_view number(iText, iLength);
        const char* const end = iText + iLength;
        if (number.find_first_of(".eE") == std::string_view::npos)
        {
            std::int64_t whole = 0;
            if (std::from_chars(iText, end, whole).ec == std::errc())
                return m_document.Int64(whole);
            std::uint64_t large = 0;
            if (number.front() != '-' && std::from_chars(iText, end, large).ec == std::errc())
                return m_document.Uint64(large);
        }
        double real = 0.0;
        const bool isHeld = std::from_chars(iText, end, real).ec == std::errc() && std::isfinite(real);
        if (!isHeld && IsTooLarge(number))
            return false;
        return m_document.Double(isHeld ? real : number.front() == '-' ? -0.0 : 0.0);
    }

    bool IsTooDeep() const { return m_depth > StrictJson::DeepestNesting; }

private:
    bool Enter()
    {
        ++m_depth;
        return !IsTooDeep();
    }

    bool Leave()
    {
        --m_depth;
        return true;
    }

    rapidjson::Document& m_document;
    int m_depth = 0;
};

/// What is said where the builder, and not the parser, ends the parsing.
std::string RefusalOf(const DocumentBuilder& iBuilder)
{
    if (iBuilder.IsTooDeep())
        return "Arrays and objects stand inside each other more than " + std::to_string(StrictJson::DeepestNesting) +
               " deep.";
    return rapidjson::GetParseError_En(rapidjson::kParseErrorNumberTooBig);
}

/**
 * Reads in a copy of the text that the document keeps, where texts are unescaped in place. What is UTF-8 is seen
 * beforehand, and not again for each character. A text that it does not take may be valid all the same.
 */
bool ParseInPlace(std::string_view iText, rapidjson::Document& oDocument)
{
    constexpr unsigned Flags =
        rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseInsituFlag;
    if (!simdjson::validate_utf8(iText.data(), iText.size()))
        return false;
    auto* const copy = static_cast<char*>(oDocument.GetAllocator().Malloc(iText.size() + 1));
    if (copy == nullptr)
        return false;
    *std::copy(iText.begin(), iText.end(), copy) = '\0'; // ends the text
    bool isValid = false;
    const auto generate = [&](rapidjson::Document& oBuilt) {
        rapidjson::InsituStringStream stream(copy);
        DocumentBuilder builder(oBuilt);
        isValid = !rapidjson::Reader().Parse<Flags>(stream, builder).IsError();
        return isValid;
    };
    oDocument.Populate(generate);
    return isValid;
}

/// Reads with the error, and where it stands.
std::optional<StrictJson::SyntaxError> ParseThoroughly(std::string_view iText, rapidjson::Document& oDocument)
{
    constexpr unsigned Flags =
        rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
    rapidjson::ParseResult result;
    std::string refusal;
    const auto generate = [&](rapidjson::Document& oBuilt) {
        // Without an encoded stream around it, which skips each byte of a byte order mark also where it stands alone.
        rapidjson::MemoryStream stream(iText.empty() ? "" : iText.data(), iText.size());
        DocumentBuilder builder(oBuilt);
        rapidjson::Reader reader;
        result = reader.Parse<Flags>(stream, builder);
        if (result.Code() == rapidjson::kParseErrorTermination)
            refusal = RefusalOf(builder);
        return !result.IsError();
    };
    oDocument.Populate(generate);
    if (result.IsError())
        return ErrorAt(iText, result.Offset(),
                       refusal.empty() ? rapidjson::GetParseError_En(result.Code()) : std::move(refusal));
    return std::nullopt;
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

    if (!ParseInPlace(iText, oDocument))
        if (auto error = ParseThoroughly(iText, oDocument))
            return error;
    if (const std::size_t half = FindLoneSurrogate(iText); half != std::string_view::npos)
        return ErrorAt(iText, half, "The surrogate pair in string is invalid.");
    return std::nullopt;
}
} // namespace StrictJson
