#include "Wording.h"

#include <algorithm>
#include <numeric>

namespace
{
constexpr std::size_t LongestQuote = 80;

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

/// Empty when nothing is like the text. A misspelling changes few letters: one in three at most.
std::string_view MostLike(std::string_view iText, const std::vector<std::string>& iKnown)
{
    std::string_view best;
    std::size_t bestDistance = std::max<std::size_t>(1, iText.size() / 3) + 1;
    if (iText.size() > LongestQuote)
        return best;
    for (const std::string& known : iKnown)
    {
        const std::size_t distance = EditDistance(iText, known);
        if (distance < bestDistance)
        {
            best = known;
            bestDistance = distance;
        }
    }
    return best;
}
} // namespace

namespace VYRStandalone
{
std::string Shortened(std::string_view iText)
{
    if (iText.size() <= LongestQuote)
        return std::string(iText);
    // Not in the middle of a character.
    std::size_t end = LongestQuote;
    while (end > 0 && (static_cast<unsigned char>(iText[end]) & 0xC0U) == 0x80U)
        --end;
    return std::string(iText.substr(0, end)) + "...";
}

std::string Quoted(std::string_view iText)
{
    return '"' + Shortened(iText) + '"';
}

std::string QuotedList(const std::vector<std::string>& iTexts)
{
    std::string list;
    for (const std::string& text : iTexts)
        list += (list.empty() ? "" : ", ") + Quoted(text);
    return list;
}

std::string InsteadOf(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    if (const std::string_view like = MostLike(iUnknown, iKnown); !like.empty())
        return "; did you mean " + Quoted(like) + "?";
    return iKnown.empty() ? "; there are none" : "; there are " + QuotedList(iKnown);
}
} // namespace VYRStandalone
