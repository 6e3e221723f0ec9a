#include "Suggestions.h"

#include <algorithm>

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

/// Names that differ in their digits alone are different names.
bool IsMereSlip(std::string_view iUnknown, std::string_view iKnown)
{
    const std::size_t longer = std::max(iUnknown.size(), iKnown.size());
    return longer - std::min(iUnknown.size(), iKnown.size()) <= std::max<std::size_t>(1, iUnknown.size() / 6) &&
           IsSlip(iUnknown, iKnown) && WithoutDigits(iUnknown) != WithoutDigits(iKnown);
}
} // namespace

std::string Suggestions::OnlySlipOf(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    if (iKnown.size() > m_comparisonsLeft)
        return {};
    m_comparisonsLeft -= iKnown.size();
    return OnlySlip(iUnknown, iKnown);
}

std::string OnlySlip(std::string_view iUnknown, const std::vector<std::string>& iKnown)
{
    const std::string nearest = Nearest(iUnknown, iKnown);
    if (nearest.empty() || !IsMereSlip(iUnknown, nearest))
        return {};
    const auto isAnother = [&](const std::string& iOne) { return iOne != nearest && IsMereSlip(iUnknown, iOne); };
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
