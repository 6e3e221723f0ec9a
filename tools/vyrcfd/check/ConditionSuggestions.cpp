#include "ConditionSuggestions.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "ConditionText.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using ConditionPlace = std::tuple<std::string, int, int>;

/// The condition that a finding suggests in place of the whole; nothing where it suggests none, or a name in it.
std::optional<ConditionText> WholeSuggestion(const Finding& iFinding)
{
    const bool isOfText = iFinding.kind == FindingKind::OddCondition || iFinding.kind == FindingKind::BadCondition;
    return isOfText ? PartsOf(iFinding.suggestion) : std::nullopt;
}

/// The path with a name in place of the first that is so much like it.
std::string WithName(const std::string& iPath, const std::string& iName)
{
    for (std::size_t at = 0; at <= iPath.size();)
    {
        const std::size_t end = std::min(iPath.find('/', at), iPath.size());
        const std::string written = iPath.substr(at, end - at);
        if (written != iName && !Nearest(written, {iName}).empty())
            return iPath.substr(0, at) + iName + iPath.substr(end);
        at = end + 1;
    }
    return iPath;
}

/// Puts what a later finding suggests where it belongs: a whole condition, a whole path, a name of the path, or a
/// value.
void Take(const Finding& iFinding, ConditionText& ioCondition)
{
    const std::string& suggestion = iFinding.suggestion;
    if (suggestion.empty())
        return;
    if (std::optional<ConditionText> whole = WholeSuggestion(iFinding))
        ioCondition = std::move(*whole);
    else if (iFinding.kind == FindingKind::PathNowhere)
        ioCondition.path =
            suggestion.find('/') != std::string::npos ? suggestion : WithName(ioCondition.path, suggestion);
    else if (iFinding.kind == FindingKind::OddCondition && !Nearest(ioCondition.value, {suggestion}).empty())
        ioCondition.value = suggestion;
}
} // namespace

void CompleteConditions(FindingList& ioFindings)
{
    const std::vector<Finding>& all = ioFindings.All();
    std::multimap<ConditionPlace, std::size_t> places;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].key == "condition")
            places.emplace(ConditionPlace(all[i].file, all[i].position.line, all[i].position.column), i);
    for (const auto& [place, number] : places)
    {
        std::optional<ConditionText> condition = WholeSuggestion(all[number]);
        if (!condition)
            continue;
        const auto [begin, end] = places.equal_range(place);
        for (auto other = begin; other != end; ++other)
            if (other->second > number)
                Take(all[other->second], *condition);
        ioFindings.SetSuggestion(number, condition->path + condition->sign + condition->value);
    }
}
} // namespace Tool
