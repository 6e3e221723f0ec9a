#include "TypedCheck.h"

#include <algorithm>

#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
TypedCheck::TypedCheck(CheckRun& ioRun) : m_run(ioRun), m_guess(m_objects) {}

void TypedCheck::Check()
{
    CheckTypeNames();
    for (const VYRStandalone::MeantConfiguration& meant : VYRStandalone::MeantConfigurations())
        Put(meant.configuration, {meant.type}, false);
    WorkOff();
    GuessRest();
}

void TypedCheck::Put(std::string_view iConfiguration, const ObjectPlace& iPlace, bool iIsGuessed)
{
    const SourceConfiguration* configuration = m_run.source.Find(iConfiguration);
    if (configuration != nullptr && m_known.emplace(configuration, iPlace.type, iPlace.path).second)
        m_tasks.push_back({configuration, iPlace, iIsGuessed});
}

void TypedCheck::WorkOff()
{
    while (!m_tasks.empty())
    {
        const Task task = m_tasks.front();
        m_tasks.pop_front();
        Report(Try(task));
    }
}

/// Those that nothing left refers to come first, since their paths say what the others are for.
void TypedCheck::GuessRest()
{
    std::vector<const SourceConfiguration*> rest;
    std::unordered_set<std::string_view> referred;
    for (const SourceConfiguration& configuration : m_run.source.Configurations())
        if (configuration.hiddenBy == nullptr && m_tried.count(&configuration) == 0)
        {
            rest.push_back(&configuration);
            for (const SourceItem& item : ItemsOf(configuration))
                if (Refers(item.role) && item.Text("config") != configuration.name)
                    referred.insert(item.Text("config"));
        }
    std::stable_partition(rest.begin(), rest.end(),
                          [&](const SourceConfiguration* iOne) { return referred.count(iOne->name) == 0; });
    for (const SourceConfiguration* configuration : rest)
        if (m_tried.count(configuration) == 0)
            Guess(*configuration);
}

void TypedCheck::Guess(const SourceConfiguration& iConfiguration)
{
    const std::vector<std::string> types = m_guess.TypesFor(iConfiguration);
    if (types.empty())
    {
        m_tried.insert(&iConfiguration);
        return;
    }
    if (types.size() == 1)
    {
        Put(iConfiguration.name, {types.front()}, true);
        WorkOff();
        return;
    }
    // Only what is wrong on each of them is wrong.
    TrialFindings common;
    m_followsReferences = false;
    for (const std::string& type : types)
    {
        TrialFindings found = Try({&iConfiguration, {type}, true});
        if (type == types.front())
        {
            common = std::move(found);
            continue;
        }
        FindingList here;
        for (const TrialFinding& one : found)
            here.Add(one.finding);
        common.erase(std::remove_if(common.begin(), common.end(),
                                    [&](const TrialFinding& iOne) { return !here.Has(iOne.finding); }),
                     common.end());
    }
    m_followsReferences = true;
    Report(std::move(common));
}

TrialFindings TypedCheck::Try(const Task& iTask)
{
    m_tried.insert(iTask.configuration);
    TrialFindings findings;
    const Trial trial{m_objects.At(iTask.place), iTask.place, iTask.isGuessed};
    if (!VYRIMpaDefaultManagementProtected_var(trial.object.Self()))
    {
        findings.push_back({FindingAt(*iTask.configuration, "name", FindingKind::PathNowhere, trial.Worst(),
                                      "the configuration is meant for " + iTask.place.Shown() +
                                          ", which has no default management and cannot be configured")});
        return findings;
    }
    bool isSpoilt = false;
    for (const SourceItem& item : ItemsOf(*iTask.configuration))
    {
        if (item.role == ItemRole::Choice)
            isSpoilt = TryChoice(item, trial, findings) || isSpoilt;
        else
            TryItem(item, trial, findings);
        isSpoilt = isSpoilt || (item.role == ItemRole::Values && IsChoice(trial.object));
    }
    if (isSpoilt)
        m_objects.Spoil(iTask.place.type);
    // They are the engine's own way to say what is found here.
    VYRStandalone::TakeReports();
    return findings;
}

void TypedCheck::TryItem(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    if (SetsDefault(iItem.role))
        m_defaults.Check(iItem, iTrial, oFindings);
    else if (iItem.role == ItemRole::Values)
        TryValues(iItem, iTrial, oFindings);
    else if (Refers(iItem.role))
        TryReference(iItem, iTrial, oFindings);
}

void TypedCheck::TryReference(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    PathWalk walk(iTrial.object, iTrial.place);
    if (iItem.role == ItemRole::Conditional && !TryCondition(iItem, iTrial, walk, oFindings))
        return;
    const std::string path(iItem.Text("path"));
    for (const PathEnd& end : walk.Follow(path))
        TryTarget(iItem, iTrial, end, oFindings);
}

bool TypedCheck::TryCondition(const SourceItem& iItem, const Trial& iTrial, PathWalk& ioWalk, TrialFindings& oFindings)
{
    const std::string text(iItem.Text("condition"));
    const std::optional<ConditionText> parts = PartsOf(text);
    if (!parts)
        return false;
    // Such a path is told already.
    if (parts->path.find_first_of("=!<>") != std::string::npos || Trimmed(parts->path) != parts->path)
        return true;
    const PathEnd end = ioWalk.Follow(parts->path).front();
    if (end.kind == PathEnd::Kind::Nowhere)
    {
        AddNowhere(iItem, iTrial, "condition", parts->path, end, oFindings);
        return false;
    }
    if (end.kind == PathEnd::Kind::Open)
        return true;
    CheckComparison(iItem, iTrial, *parts, end.access, oFindings);
    const VYRCfdObjectAccess owner{end.access.Self()};
    if (end.kind == PathEnd::Kind::Attribute && end.access.GetName() == ORXUnicodeString("value") && IsChoice(owner))
        ioWalk.Restrict(owner, *parts, text);
    return true;
}

void TypedCheck::TryTarget(const SourceItem& iItem, const Trial& iTrial, const PathEnd& iEnd, TrialFindings& oFindings)
{
    const std::string path(iItem.Text("path"));
    if (iEnd.kind == PathEnd::Kind::Nowhere)
        AddNowhere(iItem, iTrial, "path", path, iEnd, oFindings);
    else if (iEnd.kind == PathEnd::Kind::Attribute)
        oFindings.push_back({FindingAt(iItem, "path", FindingKind::PathNowhere, iTrial.Worst(),
                                       Quoted(path) + " leads to an attribute and to no object " + iTrial.Where() +
                                           ": the configuration would be applied to the object that has it")});
    else if (iEnd.kind == PathEnd::Kind::Object && !VYRIMpaDefaultManagementProtected_var(iEnd.access.Self()))
        oFindings.push_back({FindingAt(iItem, "path", FindingKind::PathNowhere, iTrial.Worst(),
                                       Quoted(path) + " leads to an object that cannot be configured " +
                                           iTrial.Where() + ": a " + Quoted(iEnd.access.GetType().View()))});
    else if (iEnd.kind == PathEnd::Kind::Object && m_followsReferences)
        Put(iItem.Text("config"), iEnd.place, iTrial.isGuessed);
}

void TypedCheck::CheckTypeNames()
{
    const std::vector<std::string> types = VYRStandalone::TypeNames();
    const std::unordered_set<std::string> known(types.begin(), types.end());
    for (const SourceConfiguration& configuration : m_run.source.Configurations())
        for (const SourceItem& item : ItemsOf(configuration))
        {
            if (item.role != ItemRole::Choice)
                continue;
            for (const std::string& startup : SplitTexts(item.Text("Startups")))
                if (!startup.empty() && known.count(startup) == 0)
                    m_run.Add(FindingAt(item, "Startups", FindingKind::UnknownType, Severity::Error,
                                        "the startup " + Quoted(startup) + " is no type of the catalogs"),
                              startup, types);
        }
}

void TypedCheck::Report(TrialFindings iFindings)
{
    for (TrialFinding& one : iFindings)
        if (!m_run.findings.Has(one.finding))
            m_run.Add(std::move(one.finding), one.unknown,
                      one.unknown.empty() ? std::vector<std::string>() : one.known);
}
} // namespace Tool
