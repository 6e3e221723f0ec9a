#include "Suggestions.h"

#include <algorithm>
#include <utility>

#include "Wording.h"

namespace Tool
{
namespace
{
/// More are no help.
constexpr std::size_t MostListed = 12;

std::string Listed(const std::vector<std::string>& iKnown)
{
    std::string list;
    for (std::size_t i = 0; i < iKnown.size() && i < MostListed; ++i)
        list += (list.empty() ? "" : ", ") + Quoted(iKnown[i]);
    return iKnown.size() > MostListed ? list + " and " + std::to_string(iKnown.size() - MostListed) + " more" : list;
}

std::string WithoutDigits(std::string_view iText)
{
    std::string text(iText);
    std::erase_if(text, [](char iOne) { return iOne >= '0' && iOne <= '9'; });
    return text;
}

/// What is left of two texts without what they begin and end with alike.
std::pair<std::string_view, std::string_view> Differing(std::string_view iLeft, std::string_view iRight)
{
    const auto begin = std::mismatch(iLeft.begin(), iLeft.end(), iRight.begin(), iRight.end());
    iLeft.remove_prefix(static_cast<std::size_t>(begin.first - iLeft.begin()));
    iRight.remove_prefix(static_cast<std::size_t>(begin.second - iRight.begin()));
    const auto end = std::mismatch(iLeft.rbegin(), iLeft.rend(), iRight.rbegin(), iRight.rend());
    iLeft.remove_suffix(static_cast<std::size_t>(end.first - iLeft.rbegin()));
    iRight.remove_suffix(static_cast<std::size_t>(end.second - iRight.rbegin()));
    return {iLeft, iRight};
}

std::string InSmallLetters(std::string_view iText)
{
    std::string text(iText);
    for (char& one : text)
        if (one >= 'A' && one <= 'Z')
            one = static_cast<char>(one + ('a' - 'A'));
    return text;
}
} // namespace

std::string Suggestions::OnlySlipOf(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    if (iKnown.size() > m_comparisonsLeft)
        return {};
    m_comparisonsLeft -= iKnown.size();
    return OnlySlip(iUnknown, iKnown);
}

bool IsSingleSlip(std::string_view iUnknown, std::string_view iKnown)
{
    const auto [left, right] = Differing(iUnknown, iKnown);
    const bool isSwapped = left.size() == 2 && right.size() == 2 && left[0] == right[1] && left[1] == right[0];
    const bool isNear = isSwapped || std::max(left.size(), right.size()) <= 1 ||
                        (left.size() == right.size() && InSmallLetters(left) == InSmallLetters(right));
    return isNear && WithoutDigits(iUnknown) != WithoutDigits(iKnown);
}

std::string OnlySlip(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    const std::string nearest = Nearest(iUnknown, iKnown);
    if (nearest.empty() || !IsSingleSlip(iUnknown, nearest))
        return {};
    const auto isAnother = [&](const std::string& iOne) { return iOne != nearest && IsSingleSlip(iUnknown, iOne); };
    return std::any_of(iKnown.begin(), iKnown.end(), isAnother) ? std::string() : nearest;
}

void Suggestions::Complete(Finding& ioFinding, std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    if (iKnown.empty() || iKnown.size() > m_comparisonsLeft)
        return;
    m_comparisonsLeft -= iKnown.size();
    ioFinding.suggestion = Nearest(iUnknown, iKnown);
    // Choices are few, and the one that is alike need not be the one that is meant.
    if (ioFinding.suggestion.empty() || ioFinding.kind == FindingKind::DefaultNotInChoices)
        ioFinding.message += "; there " + std::string(iKnown.size() == 1 ? "is " : "are ") + Listed(iKnown);
}
} // namespace Tool
