#include "Suggestions.h"

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
} // namespace

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
