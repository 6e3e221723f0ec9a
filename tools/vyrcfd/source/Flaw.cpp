#include "Flaw.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>

#include "Wording.h"

namespace Tool
{
namespace
{
constexpr std::string_view Digits = "0123456789";
constexpr std::string_view HexDigits = "0123456789abcdefABCDEF";
/// What is longer than a line is not repeated.
constexpr std::size_t LongestShown = 60;

unsigned char FlawByte(std::string_view iText, std::size_t iAt)
{
    return iAt < iText.size() ? static_cast<unsigned char>(iText[iAt]) : static_cast<unsigned char>(0);
}

bool BeginsAt(std::string_view iText, std::size_t iAt, std::string_view iWith)
{
    return iText.substr(std::min(iAt, iText.size()), iWith.size()) == iWith;
}

/// Letters, digits and what stands between them in names and numbers.
bool IsOfWord(unsigned char iByte)
{
    const bool isLetter = (iByte >= 'a' && iByte <= 'z') || (iByte >= 'A' && iByte <= 'Z');
    const bool isDigit = iByte >= '0' && iByte <= '9';
    return isLetter || isDigit || iByte >= 0x80 ||
           std::string_view("_-+.%$").find(static_cast<char>(iByte)) != std::string_view::npos;
}

std::string_view WordAt(std::string_view iText, std::size_t iBegin)
{
    std::size_t end = iBegin;
    while (end < iText.size() && IsOfWord(FlawByte(iText, end)))
        ++end;
    return iText.substr(iBegin, end - iBegin);
}

std::string LowerCase(std::string_view iText)
{
    std::string lower(iText);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char iByte) { return iByte >= 'A' && iByte <= 'Z' ? static_cast<char>(iByte + 32) : iByte; });
    return lower;
}

std::size_t DigitsFrom(std::string_view iNumber, std::size_t iAt)
{
    return std::min(iNumber.find_first_not_of(Digits, iAt), iNumber.size());
}

/// How much of a text is a number of JSON; 0 for nothing.
std::size_t NumberLength(std::string_view iText)
{
    const std::size_t begin = BeginsAt(iText, 0, "-") ? 1 : 0;
    std::size_t end = BeginsAt(iText, begin, "0") ? begin + 1 : DigitsFrom(iText, begin);
    if (end == begin)
        return 0;
    if (BeginsAt(iText, end, ".") && DigitsFrom(iText, end + 1) > end + 1)
        end = DigitsFrom(iText, end + 1);
    if (!BeginsAt(iText, end, "e") && !BeginsAt(iText, end, "E"))
        return end;
    const std::size_t sign = BeginsAt(iText, end + 1, "+") || BeginsAt(iText, end + 1, "-") ? 1 : 0;
    const std::size_t exponent = end + 1 + sign;
    return DigitsFrom(iText, std::min(exponent, iText.size())) > exponent ? DigitsFrom(iText, exponent) : end;
}

bool IsNumber(std::string_view iText)
{
    return !iText.empty() && NumberLength(iText) == iText.size();
}

std::string FromHex(std::string_view iDigits)
{
    std::uint64_t value = 0;
    const char* const end = iDigits.data() + iDigits.size();
    const std::from_chars_result read = std::from_chars(iDigits.data(), end, value, 16);
    return read.ec == std::errc() && read.ptr == end ? std::to_string(value) : std::string();
}

/// As JSON has the number that other languages write so; empty where it is none.
std::string MeantNumber(std::string_view iWord)
{
    if (iWord.find_first_of(Digits) == std::string_view::npos)
        return {};
    // Which other languages part digits by.
    std::string digits(iWord);
    std::erase(digits, '_');
    const bool isNegative = BeginsAt(digits, 0, "-");
    std::string_view rest = std::string_view(digits).substr(isNegative || BeginsAt(digits, 0, "+") ? 1 : 0);
    std::string meant = isNegative ? "-" : "";
    if (BeginsAt(rest, 0, "0x") || BeginsAt(rest, 0, "0X"))
    {
        const std::string whole = FromHex(rest.substr(2));
        return whole.empty() ? whole : meant + whole;
    }
    while (rest.size() > 1 && rest.front() == '0' && Digits.find(rest[1]) != std::string_view::npos)
        rest.remove_prefix(1);
    meant += BeginsAt(rest, 0, ".") ? "0" : "";
    meant += rest;
    const std::size_t point = meant.find('.');
    if (point != std::string::npos && DigitsFrom(meant, point + 1) == point + 1)
        meant.erase(point, 1);
    return IsNumber(meant) ? meant : std::string();
}

bool IsNoFiniteNumber(std::string_view iWord)
{
    const std::string word = LowerCase(iWord.substr(!iWord.empty() && (iWord[0] == '-' || iWord[0] == '+') ? 1 : 0));
    return word == "nan" || word == "inf" || word == "infinity";
}

std::string NumberFlaw(std::string_view iWord)
{
    const std::string shown = Quoted(iWord);
    if (IsNoFiniteNumber(iWord))
        return "JSON has no " + shown + ", but finite numbers only";
    if (const std::string meant = MeantNumber(iWord); !meant.empty())
        return shown + " is no number of JSON; write " + meant;
    const std::size_t length = NumberLength(iWord);
    const std::string_view unit = iWord.substr(length);
    if (length > 0 && unit.find_first_of(".+-") == std::string_view::npos && unit != "e" && unit != "E")
        return shown + " is no number; a value with a unit is a text, in quotation marks: " + shown;
    return shown + " is no number; one is written as 2, -0.5 or 1.5e-3";
}

std::string WordFlaw(std::string_view iWord, std::string_view iWhat)
{
    struct Meant
    {
        std::string_view word;
        std::string_view value;
    };
    static constexpr std::array<Meant, 10> meant{{{"true", "true"},
                                                  {"yes", "true"},
                                                  {"on", "true"},
                                                  {"false", "false"},
                                                  {"no", "false"},
                                                  {"off", "false"},
                                                  {"null", "null"},
                                                  {"none", "null"},
                                                  {"nil", "null"},
                                                  {"undefined", "null"}}};
    const std::string word = LowerCase(iWord);
    const auto isIt = [&](const Meant& iOne) { return iOne.word == word; };
    const auto found = std::find_if(meant.begin(), meant.end(), isIt);
    if (iWhat == "text" && IsNoFiniteNumber(iWord))
        return NumberFlaw(iWord);
    if (iWhat == "text" && found != meant.end())
        return "in JSON " + Quoted(iWord) + " is written " + std::string(found->value);
    return "a " + std::string(iWhat) +
           " stands in quotation marks: " + (iWord.size() > LongestShown ? "\"...\"" : Quoted(iWord));
}

/// A character that looks like another, or like none.
struct Lookalike
{
    std::string_view bytes;
    std::string_view name;
};

const Lookalike* LookalikeAt(std::string_view iText, std::size_t iAt)
{
    static constexpr std::array<Lookalike, 16> lookalikes{{{"\xE2\x80\x98", "quotation mark"},
                                                           {"\xE2\x80\x99", "quotation mark"},
                                                           {"\xE2\x80\x9A", "quotation mark"},
                                                           {"\xE2\x80\x9C", "quotation mark"},
                                                           {"\xE2\x80\x9D", "quotation mark"},
                                                           {"\xE2\x80\x9E", "quotation mark"},
                                                           {"\xC2\xAB", "quotation mark"},
                                                           {"\xC2\xBB", "quotation mark"},
                                                           {"\xC2\xB4", "quotation mark"},
                                                           {"`", "quotation mark"},
                                                           {"'", "quotation mark"},
                                                           {"\xC2\xA0", "blank"},
                                                           {"\xE2\x80\xAF", "blank"},
                                                           {"\xE2\x80\x8B", "blank"},
                                                           {"\xE3\x80\x80", "blank"},
                                                           {"\xEF\xBB\xBF", "blank"}}};
    const auto isIt = [&](const Lookalike& iOne) { return BeginsAt(iText, iAt, iOne.bytes); };
    const auto found = std::find_if(lookalikes.begin(), lookalikes.end(), isIt);
    return found != lookalikes.end() ? &*found : nullptr;
}

/// What stands between marks that are none of JSON, as it would be right; empty where no mark ends it on its line.
std::string InRightMarks(std::string_view iText, std::size_t iBegin)
{
    const std::size_t content = iBegin + LookalikeAt(iText, iBegin)->bytes.size();
    const std::size_t lineEnd = std::min(iText.find_first_of("\r\n", content), iText.size());
    for (std::size_t at = content; at < lineEnd && at - content <= LongestShown; ++at)
    {
        const Lookalike* mark = LookalikeAt(iText, at);
        if (mark != nullptr && mark->name == "quotation mark")
            return Quoted(iText.substr(content, at - content));
    }
    return {};
}

Flaw WrongMark(std::string_view iText, std::size_t iBegin, std::string_view iWhat)
{
    const std::string right = InRightMarks(iText, iBegin);
    return {iBegin, "a " + std::string(iWhat) + " stands in straight, double quotation marks" +
                        (right.empty() ? right : ": " + right)};
}

std::string CodePoint(unsigned iCode)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "\\u%04X", iCode);
    return text.data();
}

Flaw ControlFlaw(std::string_view iText, std::size_t iBegin, std::size_t iAt)
{
    const unsigned char byte = FlawByte(iText, iAt);
    if (byte == '\n' || byte == '\r')
        return {iAt, "the text at " + ShownPlace(iText, iBegin) +
                         " does not end on its line: its closing quotation mark is missing, or a line break in it is "
                         "to be written \\n"};
    if (byte == '\t')
        return {iAt, "a tabulator inside a text is written \\t"};
    return {iAt, "a control character inside a text is written as an escape, this one " + CodePoint(byte)};
}

/// Code of an escape \uXXXX; nothing where four digits do not follow.
std::optional<unsigned> EscapedCode(std::string_view iText, std::size_t iAt)
{
    const std::string_view digits = iText.substr(std::min(iAt + 2, iText.size()), 4);
    if (!BeginsAt(iText, iAt, "\\u") || digits.size() < 4 ||
        digits.find_first_not_of(HexDigits) != std::string_view::npos)
        return std::nullopt;
    unsigned code = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    return code;
}

/// The escape at an offset.
ScannedPart ScanEscape(std::string_view iText, std::size_t iAt)
{
    const unsigned char letter = FlawByte(iText, iAt + 1);
    if (letter != 'u')
    {
        if (std::string_view("\"\\/bfnrt").find(static_cast<char>(letter)) != std::string_view::npos)
            return {iAt + 2, std::nullopt};
        return {iAt, Flaw{iAt, "a backslash itself is written \\\\; otherwise behind a backslash stands one of \" / b "
                               "f n r t, or u and four digits"}};
    }
    const std::optional<unsigned> code = EscapedCode(iText, iAt);
    if (!code)
        return {iAt, Flaw{iAt, "behind \\u stand four hexadecimal digits, as in \\u00E4; a backslash itself is written "
                               "\\\\"}};
    if (*code < 0xD800 || *code > 0xDFFF)
        return {iAt + 6, std::nullopt};
    const std::optional<unsigned> second = EscapedCode(iText, iAt + 6);
    if (*code <= 0xDBFF && second && *second >= 0xDC00 && *second <= 0xDFFF)
        return {iAt + 12, std::nullopt};
    return {iAt,
            Flaw{iAt, CodePoint(*code) + " is half of a pair of escapes, and the other half is not beside it; such "
                                         "a character can also be written as it is"}};
}

std::size_t LengthFrom(unsigned char iFirst)
{
    return iFirst >= 0xF0 ? 4 : iFirst >= 0xE0 ? 3 : iFirst >= 0x80 ? 2 : 1;
}

Flaw EncodingFlaw(std::string_view iText, std::size_t iAt)
{
    std::array<char, 8> byte{};
    std::snprintf(byte.data(), byte.size(), "0x%02X", static_cast<unsigned>(FlawByte(iText, iAt)));
    return {iAt, "the byte " + std::string(byte.data()) +
                     " is no UTF-8: the file is saved in another encoding, or damaged; save it as UTF-8"};
}
} // namespace

SourcePosition PositionIn(std::string_view iText, std::size_t iOffset)
{
    const std::string_view before = iText.substr(0, iOffset);
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0: the first line
    return {static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1,
            static_cast<int>(Characters(before.substr(lineStart))) + 1};
}

std::string ShownPlace(std::string_view iText, std::size_t iOffset)
{
    const SourcePosition position = PositionIn(iText, iOffset);
    return std::to_string(position.line) + ":" + std::to_string(position.column);
}

ScannedPart ScanText(std::string_view iText, std::size_t iBegin)
{
    std::size_t at = iBegin + 1;
    while (at < iText.size() && iText[at] != '"')
    {
        const unsigned char byte = FlawByte(iText, at);
        if (byte < 0x20)
            return {at, ControlFlaw(iText, iBegin, at)};
        if (byte == '\\')
        {
            ScannedPart escape = ScanEscape(iText, at);
            if (escape.flaw)
                return escape;
            at = escape.end;
            continue;
        }
        const std::size_t length = LengthFrom(byte);
        if (length > 1 && !IsUtf8(iText.substr(at, length)))
            return {at, EncodingFlaw(iText, at)};
        at += length;
    }
    if (at >= iText.size())
        return {at, Flaw{iText.size(), "the document ends inside the text at " + ShownPlace(iText, iBegin) +
                                           ": its closing quotation mark is missing"}};
    return {at + 1, std::nullopt};
}

ScannedPart ScanNumber(std::string_view iText, std::size_t iBegin)
{
    const std::string_view word = WordAt(iText, iBegin);
    if (IsNumber(word))
        return {iBegin + word.size(), std::nullopt};
    return {iBegin, Flaw{iBegin, NumberFlaw(word.substr(0, LongestShown))}};
}

ScannedPart ScanWord(std::string_view iText, std::size_t iBegin)
{
    const std::string_view word = WordAt(iText, iBegin);
    if (word == "true" || word == "false" || word == "null")
        return {iBegin + word.size(), std::nullopt};
    return {iBegin, StrangeBeginning(iText, iBegin, "text")};
}

Flaw StrangeBeginning(std::string_view iText, std::size_t iBegin, std::string_view iWhat)
{
    const Lookalike* lookalike = LookalikeAt(iText, iBegin);
    if (lookalike != nullptr && lookalike->name == "quotation mark")
        return WrongMark(iText, iBegin, iWhat);
    if (lookalike != nullptr)
        return {iBegin, "what looks like a blank here is another character, which has no place outside texts; write a "
                        "blank"};
    if (FlawByte(iText, iBegin) >= 0x80 && !IsUtf8(iText.substr(iBegin, LengthFrom(FlawByte(iText, iBegin)))))
        return EncodingFlaw(iText, iBegin);
    const std::string_view word = WordAt(iText, iBegin);
    const bool isNumber = std::string_view("+-.").find(iText[iBegin]) != std::string_view::npos;
    if (isNumber && iWhat == "text")
        return {iBegin, NumberFlaw(word.substr(0, LongestShown))};
    if (!word.empty())
        return {iBegin, WordFlaw(word, iWhat)};
    return {iBegin, Quoted(iText.substr(iBegin, 1)) + " has no place here; a " +
                        (iWhat == "key" ? "key in quotation marks" : "value") + " is wanted"};
}

bool IsComment(std::string_view iText, std::size_t iBegin)
{
    return BeginsAt(iText, iBegin, "//") || BeginsAt(iText, iBegin, "/*") || BeginsAt(iText, iBegin, "#");
}
} // namespace Tool
