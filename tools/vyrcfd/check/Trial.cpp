#include <algorithm>

#include "ItemTrial.h"
#include "MeantLists.h"
#include "ScratchObjects.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// A path whose names are parted by other signs, with slashes; empty where there is no sign behind a name that is
/// known.
std::string WithSlashes(const std::string& iPath, const Misstep& iMisstep)
{
    constexpr char Signs[] = ".\\:>";
    std::string names = iMisstep.name;
    const std::size_t end = names.find_first_of(Signs);
    const std::size_t at = iPath.find(iMisstep.name);
    if (end == std::string::npos || at == std::string::npos)
        return {};
    const std::string first = OnlySlip(names.substr(0, end), iMisstep.known);
    const std::string head = Holds(iMisstep.known, names.substr(0, end)) ? names.substr(0, end) : first;
    if (head.empty())
        return {};
    std::replace_if(
        names.begin(), names.end(),
        [&](char iSign) { return std::string_view(Signs).find(iSign) != std::string_view::npos; }, '/');
    return iPath.substr(0, at) + head + names.substr(end) + iPath.substr(at + iMisstep.name.size());
}
} // namespace

std::string Trial::Where() const
{
    return "on " + place.Shown() + (isGuessed ? ", the type that the configuration's paths were meant for" : "");
}

void AddMissteps(const SourceItem& iItem, const Trial& iTrial, const char* iKey, const std::string& iPath,
                 const Missteps& iMissteps, TrialFindings& oFindings)
{
    if (iMissteps.empty())
        return;
    const Misstep& first = iMissteps.front();
    std::string message = Quoted(iPath) + " leads nowhere " + iTrial.Where() + ": " + OneLine(first.reason);
    if (!(first.place == iTrial.place))
        message += " on " + first.place.Shown();
    for (auto next = iMissteps.begin() + 1; next != iMissteps.end(); ++next)
        message += "; behind it: " + OneLine(next->reason) + " on " + next->place.Shown();
    // What is there and leads nowhere all the same is not misspelt.
    const bool isThere = Holds(first.known, first.name);
    const bool isWholeMeant = iMissteps.size() > 1 && !iMissteps.back().meant.empty();
    oFindings.push_back({FindingAt(iItem, iKey, FindingKind::PathNowhere, iTrial.Worst(), std::move(message)),
                         isThere || isWholeMeant ? std::string() : first.name, first.known});
    if (isWholeMeant)
        oFindings.back().finding.suggestion = MeantPath(iPath, iMissteps);
    else if (const std::string meant = WithSlashes(iPath, first); !meant.empty())
    {
        oFindings.back().finding.suggestion = meant;
        oFindings.back().unknown.clear();
    }
    oFindings.back().isMisspelt = !first.meant.empty();
}

std::string AttributeMeant(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    std::string name(iItem.Text("path"));
    if (name.empty() || name.find('/') != std::string::npos)
        return {};
    if (!KeyOf(iTrial.object, name))
    {
        Misstep step = MisstepAt(iTrial.object, iTrial.place, name, "No attribute " + name);
        // What a Choice offers is no attribute.
        step.meant = OnlySlip(name, step.known);
        if (!step.meant.empty() && !KeyOf(iTrial.object, step.meant))
            step.meant.clear();
        AddMissteps(iItem, iTrial, "path", name, {step}, oFindings);
        name = step.meant;
    }
    if (!name.empty() && IsOptional(iTrial.object, name))
        AddOptional(iItem, iTrial, "path", Severity::Warning, name, "on any other the configuration fails here",
                    oFindings);
    return name;
}

void AddOptional(const SourceItem& iItem, const Trial& iTrial, const char* iKey, Severity iSeverity,
                 const std::string& iName, const std::string& iConsequence, TrialFindings& oFindings)
{
    oFindings.push_back({FindingAt(iItem, iKey, FindingKind::PathNowhere, iSeverity,
                                   Quoted(iName) + " is an optional attribute " + iTrial.Where() +
                                       ", which an object has only once it was added: " + iConsequence)});
}
} // namespace Tool
