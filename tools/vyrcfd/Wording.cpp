#include "Wording.h"

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <set>

namespace Tool
{
namespace
{
unsigned char ByteAt(std::string_view iText, std::size_t iAt)
{
    return static_cast<unsigned char>(iText[iAt]);
}

bool Continues(std::string_view iText, std::size_t iAt)
{
    return iAt < iText.size() && (ByteAt(iText, iAt) & 0xC0U) == 0x80U;
}

/// Bytes of the character at a position, 0 when there is none in UTF-8.
std::size_t CharacterLength(std::string_view iText, std::size_t iAt)
{
    const unsigned char first = ByteAt(iText, iAt);
    if (first < 0x80)
        return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if (!Continues(iText, iAt + i))
            return 0;
    // Encoded longer than needed, half a surrogate pair, or beyond the last code point.
    const unsigned char second = ByteAt(iText, iAt + 1);
    const bool isWrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                         (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return isWrong ? 0 : length;
}

std::string EscapedByte(unsigned char iByte)
{
    switch (iByte)
    {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    char text[8];
    std::snprintf(text, sizeof(text), "\\x%02X", static_cast<unsigned>(iByte));
    return text;
}

std::string Escaped(std::string_view iText, bool iInQuotes)
{
    std::string escaped;
    for (std::size_t at = 0; at < iText.size();)
    {
        const std::size_t length = CharacterLength(iText, at);
        const unsigned char first = ByteAt(iText, at);
        if (length == 0 || first < 0x20 || first == 0x7F)
            escaped += EscapedByte(first);
        else if (iInQuotes && (first == '"' || first == '\\'))
            escaped += {'\\', iText[at]};
        else
            escaped += iText.substr(at, length);
        at += std::max<std::size_t>(length, 1);
    }
    return escaped;
}

/// For letters of ASCII.
bool EqualsIgnoringCase(std::string_view iLeft, std::string_view iRight)
{
    const auto lower = [](char iByte) { return iByte >= 'A' && iByte <= 'Z' ? static_cast<char>(iByte + 32) : iByte; };
    return iLeft.size() == iRight.size() &&
           std::equal(iLeft.begin(), iLeft.end(), iRight.begin(),
                      [&](char iOne, char iOther) { return lower(iOne) == lower(iOther); });
}

/// Letters to insert, take out or replace, or neighbours to swap, to come from one text to the other.
std::size_t EditDistance(std::string_view iLeft, std::string_view iRight)
{
    // Distances between beginnings of the texts: of the left one in this row, the one before, and the one before that.
    std::vector<std::size_t> row(iRight.size() + 1);
    std::vector<std::size_t> before(row.size());
    std::vector<std::size_t> twoBefore(row.size());
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= iLeft.size(); ++i)
    {
        twoBefore.swap(before);
        before.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= iRight.size(); ++j)
        {
            const std::size_t replaced = before[j - 1] + (iLeft[i - 1] == iRight[j - 1] ? 0 : 1);
            row[j] = std::min({replaced, row[j - 1] + 1, before[j] + 1});
            if (i > 1 && j > 1 && iLeft[i - 1] == iRight[j - 2] && iLeft[i - 2] == iRight[j - 1])
                row[j] = std::min(row[j], twoBefore[j - 2] + 1);
        }
    }
    return row.back();
}
} // namespace

std::string OneLine(std::string_view iText)
{
    const std::size_t last = iText.find_last_not_of(" \t\r\n");
    return Escaped(last == std::string_view::npos ? std::string_view() : iText.substr(0, last + 1), false);
}

std::string Quoted(std::string_view iText)
{
    return '"' + Escaped(iText, true) + '"';
}

std::string Shortened(std::string iText, std::size_t iLongest)
{
    if (iText.size() <= iLongest)
        return iText;
    std::size_t end = iLongest;
    while (end > 0 && Continues(iText, end))
        --end;
    iText.replace(end, std::string::npos, "...");
    return iText;
}

std::size_t Characters(std::string_view iText)
{
    return static_cast<std::size_t>(std::count_if(
        iText.begin(), iText.end(), [](char iByte) { return (static_cast<unsigned char>(iByte) & 0xC0U) != 0x80U; }));
}

bool IsUtf8(std::string_view iText)
{
    for (std::size_t at = 0; at < iText.size();)
    {
        const std::size_t length = CharacterLength(iText, at);
        if (length == 0)
            return false;
        at += length;
    }
    return true;
}

std::string Counted(std::size_t iNumber, const std::string& iSingular)
{
    return std::to_string(iNumber) + " " + iSingular + (iNumber == 1 ? "" : "s");
}

std::string Nearest(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    // Longer than any name, it is no misspelling, and comparing would take its time.
    constexpr std::size_t LongestName = 200;
    if (iUnknown.size() > LongestName)
        return {};
    const auto sameButForCase = [&](const std::string& iKnownOne) { return EqualsIgnoringCase(iUnknown, iKnownOne); };
    const auto same = std::find_if(iKnown.begin(), iKnown.end(), sameButForCase);
    if (same != iKnown.end())
        return *same;
    const std::string* best = nullptr;
    // Half of the letters wrong is no misspelling either.
    std::size_t bestDistance = std::max<std::size_t>(2, (iUnknown.size() + 1) / 2);
    for (const std::string& known : iKnown)
    {
        const std::size_t length = std::max(known.size(), iUnknown.size());
        if (length - std::min(known.size(), iUnknown.size()) >= bestDistance)
            continue;
        const std::size_t distance = EditDistance(iUnknown, known);
        // Not one letter is the same.
        if (distance == length)
            continue;
        if (distance < bestDistance)
        {
            best = &known;
            bestDistance = distance;
        }
    }
    if (best != nullptr)
        return *best;
    // A word that was cut short, if only one begins with it.
    constexpr std::size_t ShortestWord = 3;
    const auto beginsAlike = [&](const std::string& iKnownOne) {
        return iUnknown.size() >= ShortestWord && std::string_view(iKnownOne).substr(0, iUnknown.size()) == iUnknown;
    };
    const auto longer = std::find_if(iKnown.begin(), iKnown.end(), beginsAlike);
    const bool isOnly = longer != iKnown.end() && std::none_of(longer + 1, iKnown.end(), beginsAlike);
    return isOnly ? *longer : std::string();
}

bool IsSlip(std::string_view iUnknown, std::string_view iKnown)
{
    return EqualsIgnoringCase(iUnknown, iKnown) ||
           EditDistance(iUnknown, iKnown) <= std::max<std::size_t>(1, iUnknown.size() / 6);
}

std::string DidYouMean(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    const std::string nearest = Nearest(iUnknown, iKnown);
    return nearest.empty() ? nearest : "; did you mean " + Quoted(nearest) + "?";
}

std::string ThereAre(const std::vector<std::string>& iKnown)
{
    constexpr std::size_t MostNamed = 12;
    std::set<std::string_view> seen;
    std::vector<std::string_view> names;
    for (const std::string& known : iKnown)
        if (seen.insert(known).second)
            names.push_back(known);
    std::string list;
    for (std::size_t i = 0; i < std::min(names.size(), MostNamed); ++i)
    {
        const bool isLast = i > 0 && i + 1 == names.size();
        list += (i == 0 ? "" : isLast ? " and " : ", ") + Quoted(names[i]);
    }
    if (names.size() > MostNamed)
        list += " and " + std::to_string(names.size() - MostNamed) + " more";
    return names.empty() ? list : std::string("; there ") + (names.size() == 1 ? "is " : "are ") + list;
}

std::string DidYouMeanOneOf(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    const std::string meant = DidYouMean(iUnknown, iKnown);
    return meant.empty() ? ThereAre(iKnown) : meant;
}
} // namespace Tool
