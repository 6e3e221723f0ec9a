#include "PathWalk.h"

#include <algorithm>
#include <set>

#include "KnownTypes.h"
#include "ORXISpecAttrKey.h"
#include "ORXSimBCInitializeServices.h"
#include "ORXTypeCode.h"
#include "PathNames.h"
#include "ScratchObjects.h"
#include "SourceItem.h"
#include "Suggestions.h"

namespace Tool
{
namespace
{
/// Longer paths lead in circles.
constexpr std::size_t MostNames = 100;

/// Choices within the data objects of Choices multiply; beyond this nothing is said of a path.
constexpr std::size_t MostTried = 500;

/// The names of a path up to the first empty one, where the cursor stops as well.
std::vector<std::string> NamesIn(const std::string& iPath)
{
    std::vector<std::string> names;
    ORXUnicodeString rest = UnicodeOf(iPath);
    while (!rest.IsEmpty() && names.size() <= MostNames)
    {
        ORXUnicodeString head;
        ORXUnicodeString tail;
        VYRCfdObjectAccess::SplitPath(rest, head, tail);
        if (head.IsEmpty())
            break;
        names.emplace_back(head.View());
        rest = tail;
    }
    return names;
}

bool HoldsObjects(int iType)
{
    return iType == tk_component || iType == tk_specobject;
}

PathEnd Open()
{
    return {PathEnd::Kind::Open};
}

PathEnd Nowhere(const PathEnd& iFrom, const std::string& iName, std::string iReason)
{
    PathEnd end{PathEnd::Kind::Nowhere, iFrom.access, iFrom.place};
    end.missteps.push_back(MisstepAt(iFrom.access, iFrom.place, iName, std::move(iReason)));
    return end;
}

/// What was found on the way to a place belongs to all ends that are reached from there.
PathEnd Behind(const PathEnd& iFrom, PathEnd iEnd)
{
    iEnd.missteps.insert(iEnd.missteps.begin(), iFrom.missteps.begin(), iFrom.missteps.end());
    return iEnd;
}

/// A choice with a startup that is no type has no data object, and that is told already.
bool HasStartup(const VYRCfdObjectAccess& iChoice, const std::string& iValue)
{
    const std::vector<std::string> choices = ChoicesOf(iChoice);
    const std::vector<std::string> startups = StartupsOf(iChoice);
    for (std::size_t i = 0; i < std::min(choices.size(), startups.size()); ++i)
        if (choices[i] == iValue)
            return !startups[i].empty();
    return false;
}

/// Where an object that does not come with its owner stands: its start-up is its type's.
ObjectPlace PlaceOfType(const VYRCfdObjectAccess& iObject)
{
    return {std::string(iObject.GetType().View())};
}
} // namespace

Misstep MisstepAt(const VYRCfdObjectAccess& iAccess, const ObjectPlace& iPlace, std::string iName, std::string iReason)
{
    return {std::move(iName), std::move(iReason), iPlace, NamesOn(iAccess)};
}

std::string MeantPath(const std::string& iPath, const Missteps& iMissteps)
{
    std::string path;
    auto step = iMissteps.begin();
    for (const std::string& name : NamesIn(iPath))
    {
        const bool isMeant = step != iMissteps.end() && step->name == name;
        path += (path.empty() ? "" : "/") + (isMeant ? step->meant : name);
        if (isMeant)
            ++step;
    }
    return path;
}

void PathWalk::Restrict(const VYRCfdObjectAccess& iChoice, const ConditionText& iParts)
{
    m_restricted = iChoice.Self();
    m_parts = iParts;
    m_condition = iParts.path + iParts.sign + iParts.value;
}

std::vector<PathEnd> PathWalk::Follow(const std::string& iPath) const
{
    std::vector<PathEnd> ends;
    m_tried = 0;
    const Names names = NamesIn(iPath);
    if (names.size() > MostNames)
        ends.push_back(Open());
    else
        Step({PathEnd::Kind::Object, m_start, m_place}, names, 0, ends);
    return ends;
}

void PathWalk::Step(const PathEnd& iFrom, const Names& iNames, std::size_t iNext, std::vector<PathEnd>& oEnds) const
{
    const bool leadsOn = iFrom.kind == PathEnd::Kind::Object || iFrom.kind == PathEnd::Kind::Attribute;
    const bool isLast = iNext == iNames.size();
    if (iFrom.kind == PathEnd::Kind::Unheld && !isLast)
        return oEnds.push_back(Behind(iFrom, Open()));
    if (!leadsOn || isLast)
        return oEnds.push_back(iFrom);
    if (iFrom.kind == PathEnd::Kind::Object && iNames[iNext] == "Data" && IsChoice(iFrom.access))
        return StepToData(iFrom, iNames, iNext + 1, oEnds);
    PathEnd next = Next(iFrom, iNames[iNext]);
    if (next.kind == PathEnd::Kind::Nowhere)
        StepAside(iFrom, std::move(next), iNames, iNext, oEnds);
    else
        Step(Behind(iFrom, std::move(next)), iNames, iNext + 1, oEnds);
}

/// Goes on with the name that was meant, if there is one.
void PathWalk::StepAside(const PathEnd& iFrom, PathEnd iNowhere, const Names& iNames, std::size_t iNext,
                         std::vector<PathEnd>& oEnds) const
{
    Misstep& step = iNowhere.missteps.back();
    step.meant = iFrom.kind == PathEnd::Kind::Object ? OnlySlip(step.name, step.known) : std::string();
    if (step.meant.empty())
        return oEnds.push_back(Behind(iFrom, std::move(iNowhere)));
    Names names = iNames;
    names[iNext] = step.meant;
    PathEnd from = iFrom;
    from.missteps.push_back(std::move(step));
    Step(from, names, iNext, oEnds);
}

PathEnd PathWalk::Next(const PathEnd& iFrom, const std::string& iName) const
{
    if (iFrom.kind == PathEnd::Kind::Attribute)
        return StepInList(iFrom, iName);
    PathEnd next = StepOnObject(iFrom, iName);
    next.optional = iFrom.optional.empty() && IsOptional(iFrom.access, iName) ? iName : iFrom.optional;
    return next;
}

void PathWalk::StepToData(const PathEnd& iFrom, const Names& iNames, std::size_t iNext,
                          std::vector<PathEnd>& oEnds) const
{
    if (ChoicesOf(iFrom.access).empty() || m_tried > MostTried)
        return oEnds.push_back(Behind(iFrom, Open()));
    std::vector<PathEnd> failed;
    std::vector<PathEnd> misspelt;
    for (const std::string& choice : Candidates(iFrom.access))
    {
        ++m_tried;
        Select(iFrom.access, choice);
        if (IsRestricted(iFrom.access) && !VYRCfdObjectCondition(m_start, UnicodeOf(m_condition)))
            continue;
        const VYRCfdObjectAccess data = iFrom.access.Get("Data");
        if (data.IsNull())
        {
            if (HasStartup(iFrom.access, choice))
                failed.push_back(Behind(iFrom, Open()));
            continue;
        }
        std::vector<PathEnd> ends;
        Step({PathEnd::Kind::Object, data, PlaceOfType(data), iFrom.optional, iFrom.missteps}, iNames, iNext, ends);
        for (PathEnd& end : ends)
            (end.kind == PathEnd::Kind::Nowhere            ? failed
             : end.missteps.size() > iFrom.missteps.size() ? misspelt
                                                           : oEnds)
                .push_back(std::move(end));
    }
    // A way on that some of the data objects have is one.
    // The name that is meant may lead on for several of them.
    if (oEnds.empty())
        for (PathEnd& end : misspelt)
            if (end.missteps.back().meant == misspelt.front().missteps.back().meant)
                oEnds.push_back(std::move(end));
    if (oEnds.empty() && !failed.empty())
        oEnds.push_back(failed.front());
    else if (oEnds.empty())
        oEnds.push_back(
            Behind(iFrom, Nowhere(iFrom, "Data",
                                  IsRestricted(iFrom.access) ? "No choice that meets the condition has a data object"
                                                             : "No choice has a data object")));
}

bool PathWalk::IsRestricted(const VYRCfdObjectAccess& iChoice) const
{
    return !!m_restricted && m_restricted->IsEqual(iChoice.Self().Pointer()) != 0;
}

std::vector<std::string> PathWalk::Candidates(const VYRCfdObjectAccess& iChoice) const
{
    const std::vector<std::string> choices = ChoicesOf(iChoice);
    const bool isRestricted = IsRestricted(iChoice);
    const bool isOffered = std::find(choices.begin(), choices.end(), m_parts.value) != choices.end();
    if (isRestricted && m_parts.comparison == VYRCfdConditionOperator::Equal)
        return isOffered ? std::vector<std::string>{m_parts.value} : std::vector<std::string>();
    const std::vector<std::string> startups = StartupsOf(iChoice);
    std::vector<std::string> candidates;
    std::set<std::string> seen;
    for (std::size_t i = 0; i < std::min(choices.size(), startups.size()); ++i)
        if (!startups[i].empty() && (isRestricted || seen.insert(startups[i]).second))
            candidates.push_back(choices[i]);
    return candidates;
}

PathEnd PathWalk::StepOnObject(const PathEnd& iFrom, const std::string& iName) const
{
    const ORXISpecAttrKey_var spKey = KeyOf(iFrom.access, iName);
    if (!spKey)
    {
        const std::vector<std::string> choices = ChoicesOf(iFrom.access);
        if (std::find(choices.begin(), choices.end(), iName) != choices.end())
            Select(iFrom.access, iName);
        const VYRCfdObjectAccess next = iFrom.access.Get(UnicodeOf(iName));
        if (!next.IsNull())
            return {PathEnd::Kind::Object, next, PlaceOfType(next)};
        // The cursor looks through this list, and a model may hold anything in it.
        if (!!KeyOf(iFrom.access, "SonsList") || HasStartup(iFrom.access, iName))
            return Open();
        return Nowhere(iFrom, iName, std::string(next.GetError().View()));
    }
    const VYRCfdObjectAccess next = iFrom.access.Get(UnicodeOf(iName));
    if (!HoldsObjects(spKey->GetType()))
        return {PathEnd::Kind::Attribute, next, iFrom.place};
    if (next.IsNull())
        return {PathEnd::Kind::Unheld};
    return {PathEnd::Kind::Object, next,
            spKey->GetType() == tk_component ? iFrom.place.Component(iName) : PlaceOfType(next)};
}

PathEnd PathWalk::StepInList(const PathEnd& iFrom, const std::string& iName)
{
    if (!iFrom.access.IsObjectList())
        return Nowhere(iFrom, iName, WhyNoFurther(iFrom.access, iName));
    VYRCfdObjectAccess entry = iFrom.access.Get(UnicodeOf(iName));
    if (entry.IsNull() && IsKnownType(iName))
    {
        const ORXISpecObject_var spOwner = iFrom.access.Self();
        ORXIContainer_var spContainer = spOwner->GetContainer();
        ORXISpecObject_var spEntry;
        ORXSimBCInitializeServices::CreateBasicComponent(UnicodeOf(iName), "Scratch", spContainer, spEntry);
        const ORXISpecAttrAccess_var spAccess = iFrom.access.Access();
        const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(iFrom.access.GetName()));
        spAccess->InsertAtPosition(spKey.Pointer(), spEntry, 1);
        entry = iFrom.access.Get(UnicodeOf(iName));
    }
    if (entry.IsNull())
        return Open();
    return {PathEnd::Kind::Object, entry, PlaceOfType(entry)};
}
} // namespace Tool
