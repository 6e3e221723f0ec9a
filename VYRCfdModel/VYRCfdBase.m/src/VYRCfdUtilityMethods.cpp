#include "VYRCfdUtilityMethods.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <sstream>
#include <string_view>

#include "ORXUuid.h"

namespace
{
/// Splits the text and hands every token to `iAppend`. The next token starts one character behind the hit, whatever the
/// delimiter's length.
template <class Append>
void Split(const ORXUnicodeString& iText, const ORXUnicodeString& iDelimiter, const Append& iAppend)
{
    // A position in a text that is not all ASCII is found by counting from its start. In pieces the way there is short.
    constexpr int PieceLength = 1024;
    const int length = iText.GetLengthInChar();
    // A longer delimiter might stand across the end of a piece.
    const int step = iDelimiter.GetLengthInChar() == 1 ? PieceLength : std::max(length, 1);

    ORXUnicodeString token;
    const auto appendToken = [&] {
        token.ReplaceAll(" ", "");
        iAppend(token);
        token = "";
    };
    for (int base = 0; base < length; base += step)
    {
        const ORXUnicodeString piece = iText.SubString(base, step);
        const int pieceLength = piece.GetLengthInChar();
        int start = 0;
        for (int position = piece.FindPosition(iDelimiter, start); position >= 0;
             position = piece.FindPosition(iDelimiter, start))
        {
            token.Append(piece.SubString(start, position - start));
            appendToken();
            start = position + 1;
        }
        token.Append(piece.SubString(start, pieceLength - start));
    }
    appendToken();
}

// Numbers are read as a stream with the classic locale extracts them: as far as they go, the decimal point is "."
// whatever the user's locale is, and a text that is no number gives 0. Making a stream costs many times what reading
// does, so it is left to texts that are hardly ever met.

bool IsDigit(char iCharacter)
{
    return iCharacter >= '0' && iCharacter <= '9';
}

bool IsSign(char iCharacter)
{
    return iCharacter == '+' || iCharacter == '-';
}

/// The text up to its first zero, without leading white space.
std::string_view NumberText(const ORXUnicodeString& iText)
{
    std::string_view text(iText.CastToCharPtr());
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    return text;
}

HRESULT ExtractByStream(std::string_view iText, double& oNumber)
{
    std::istringstream stream{std::string(iText)};
    stream.imbue(std::locale::classic());
    stream >> oNumber;
    return stream.fail() ? E_FAIL : S_OK;
}

HRESULT Extract(const ORXUnicodeString& iText, double& oNumber)
{
    const std::string_view text = NumberText(iText);
    // Where there is nothing to extract from, the number stays.
    if (text.empty())
        return E_FAIL;
    const std::string_view digits = text.substr(IsSign(text[0]) ? 1 : 0);
    if (digits.empty() || !(IsDigit(digits[0]) || digits[0] == '.'))
    {
        oNumber = 0.0;
        return E_FAIL;
    }
    const char* const end = text.data() + text.size();
    double number = 0.0;
    const std::from_chars_result read = std::from_chars(text[0] == '+' ? digits.data() : text.data(), end, number);
    // The stream takes an exponent that has no digits for a part of the number, and then for a mistake.
    const bool isCutShort = read.ptr != end && (*read.ptr == 'e' || *read.ptr == 'E');
    // What is too small may have become zero: only a zero that stands there is certain.
    const std::size_t telling = number == 0.0 ? digits.find_first_not_of("0.") : std::string_view::npos;
    const bool isTooSmall = telling != std::string_view::npos && IsDigit(digits[telling]);
    if (read.ec != std::errc() || isCutShort || isTooSmall || !std::isfinite(number))
        return ExtractByStream(text, oNumber);
    oNumber = number;
    return S_OK;
}

HRESULT Extract(const ORXUnicodeString& iText, int& oNumber)
{
    const std::string_view text = NumberText(iText);
    if (text.empty())
        return E_FAIL;
    const bool isNegative = text[0] == '-';
    const std::string_view digits = text.substr(IsSign(text[0]) ? 1 : 0);
    // A second sign is none.
    if (digits.empty() || !IsDigit(digits[0]))
    {
        oNumber = 0;
        return E_FAIL;
    }
    int number = 0;
    const std::from_chars_result read =
        std::from_chars(isNegative ? text.data() : digits.data(), text.data() + text.size(), number);
    if (read.ec == std::errc())
    {
        oNumber = number;
        return S_OK;
    }
    // Out of range gives the number that is nearest.
    oNumber = isNegative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return E_FAIL;
}

unsigned int BigEndianWord(const unsigned char* iBytes)
{
    return (static_cast<unsigned int>(iBytes[0]) << 24) | (static_cast<unsigned int>(iBytes[1]) << 16) |
           (static_cast<unsigned int>(iBytes[2]) << 8) | static_cast<unsigned int>(iBytes[3]);
}

/// The components of a path; what stands behind the last "/" is one only if it is not empty.
std::vector<ORXUnicodeString> Components(const ORXUnicodeString& iPath)
{
    std::vector<ORXUnicodeString> components;
    int start = 0;
    int position = iPath.FindPosition("/", start);
    while (position >= 0)
    {
        components.push_back(iPath.SubString(start, position - start));
        start = position + 1;
        position = iPath.FindPosition("/", start);
    }
    const ORXUnicodeString rest = iPath.SubString(start, iPath.GetLengthInChar() - start);
    if (!rest.IsEmpty())
        components.push_back(rest);
    return components;
}
} // namespace

HRESULT VYRCfdUtilityMethods::ConvertStringToList(ORXUnicodeString text, ORXListValORXUnicodeString& list,
                                                  ORXUnicodeString delimiter)
{
    Split(text, delimiter, [&list](const ORXUnicodeString& iToken) { list.Append(iToken); });
    return S_OK;
}

HRESULT VYRCfdUtilityMethods::ConvertStringToVector(ORXUnicodeString text, std::vector<ORXUnicodeString>& list,
                                                    ORXUnicodeString delimiter)
{
    Split(text, delimiter, [&list](const ORXUnicodeString& iToken) { list.push_back(iToken); });
    return S_OK;
}

HRESULT VYRCfdUtilityMethods::ConvertToBoolean(const ORXUnicodeString& text, bool& value, VYRCfdBooleanConvertType type)
{
    ORXUnicodeString lower = text;
    lower.ToLower();

    for (const char* word : {"t", "y", "true", "yes", "on", "1"})
        if (lower == word)
        {
            value = true;
            return S_OK;
        }
    for (const char* word : {"f", "n", "false", "no", "off", "0"})
        if (lower == word)
        {
            value = false;
            return S_OK;
        }

    if (!lower.IsEmpty() || (type != VYRCfdEmptyIsTrue && type != VYRCfdEmptyIsFalse))
        return E_FAIL;
    value = type == VYRCfdEmptyIsTrue;
    return S_OK;
}

HRESULT VYRCfdUtilityMethods::ConvertToDouble(const ORXUnicodeString& text, double& value)
{
    return Extract(text, value);
}

HRESULT VYRCfdUtilityMethods::ConvertToInteger(const ORXUnicodeString& text, int& value)
{
    return Extract(text, value);
}

ORXUnicodeString VYRCfdUtilityMethods::GenerateUUID()
{
    unsigned char bytes[16];
    const ORXUuid identifier;
    identifier.get(bytes);

    // The last two words stand swapped, and none is padded: identifiers that were given out before look so.
    char text[36];
    std::snprintf(text, sizeof(text), "%x_%x_%x_%x", BigEndianWord(bytes), BigEndianWord(bytes + 4),
                  BigEndianWord(bytes + 12), BigEndianWord(bytes + 8));
    return ORXUnicodeString(text);
}

HRESULT VYRCfdUtilityMethods::NormalizePath(const ORXUnicodeString& path, ORXUnicodeString& normalized)
{
    const std::vector<ORXUnicodeString> components = Components(path);
    normalized = "";

    std::vector<ORXUnicodeString> kept;
    kept.reserve(components.size());
    for (const ORXUnicodeString& component : components)
    {
        if (component == "." || component.IsEmpty())
            continue;
        if (component == "..")
        {
            if (kept.empty())
                return E_FAIL;
            kept.pop_back();
        }
        else
            kept.push_back(component);
    }

    for (std::size_t at = 0; at < kept.size(); ++at)
    {
        if (at > 0)
            normalized.Append("/");
        normalized.Append(kept[at]);
    }
    return S_OK;
}

HRESULT VYRCfdUtilityMethods::SplitAttr(ORXUnicodeString path, ORXUnicodeString& head, ORXUnicodeString& tail)
{
    const int position = path.SearchSubString("/", 0, 1);
    if (position < 0)
    {
        head = path;
        return S_OK;
    }
    head = path.SubString(0, position);
    const int behind = position + 1;
    if (behind < path.GetLengthInChar())
        tail = path.SubString(behind, path.GetLengthInChar() - behind);
    return S_OK;
}
