#include "TypedCheck.h"

#include <algorithm>
#include <map>
#include <utility>

#include "CatalogCheck.h"
#include "ConditionText.h"
#include "KnownTypes.h"
#include "MeantLists.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
bool IsPathNowhere(const TrialFinding& iOne)
{
    return iOne.finding.kind == FindingKind::PathNowhere && iOne.finding.key == "path" &&
           iOne.finding.severity != Severity::Note && !iOne.isMisspelt;
}

/// Where a configuration names little of what an object has, it is not its paths that are wrong, but that it is applied
/// there. @param iFewest paths that must lead nowhere @return whether that is so
bool BlameReference(const SourceItem& iOrigin, const SourceConfiguration& iConfiguration, const ObjectPlace& iPlace,
                    std::ptrdiff_t iFewest, TrialFindings& ioFindings)
{
    const std::vector<SourceItem> items = ItemsOf(iConfiguration);
    const auto wanted = std::count_if(items.begin(), items.end(), [](const SourceItem& iItem) {
        return iItem.role != ItemRole::Choice && !iItem.Text("path").empty();
    });
    const auto astray = std::count_if(ioFindings.begin(), ioFindings.end(), IsPathNowhere);
    if (astray < iFewest || astray * 3 < wanted * 2)
        return false;
    const auto first = std::find_if(ioFindings.begin(), ioFindings.end(), IsPathNowhere);
    Finding blamed = FindingAt(iOrigin, "config", FindingKind::PathNowhere, first->finding.severity,
                               Quoted(iConfiguration.name) + " is hardly meant for " + iPlace.Shown() + ": of " +
                                   Counted(static_cast<std::size_t>(wanted), "path") + " in it " +
                                   std::to_string(astray) + " lead nowhere there");
    for (const TrialFinding& one : ioFindings)
        if (IsPathNowhere(one))
            blamed.related.push_back({one.finding.file, one.finding.position.line});
    ioFindings.erase(std::remove_if(ioFindings.begin(), ioFindings.end(), IsPathNowhere), ioFindings.end());
    ioFindings.push_back({std::move(blamed)});
    return true;
}

constexpr std::string_view Denial = "not ";

bool IsDenied(const ConditionText& iParts)
{
    return iParts.path.starts_with(Denial);
}

/// That no word turns a condition round, with the one that holds where this one would not.
Finding DeniedCondition(const SourceItem& iItem, const ConditionText& iParts)
{
    static const std::map<std::string, std::string> opposites{{"==", "!="}, {"=", "!="}, {"!=", "=="}, {"<", ">="},
                                                              {">", "<="},  {"<=", ">"}, {">=", "<"}};
    Finding finding = FindingAt(iItem, "condition", FindingKind::OddCondition, Severity::Warning,
                                "\"not\" belongs to the path " + Quoted(iParts.path) +
                                    ", which leads nowhere: the condition never holds");
    finding.suggestion = Trimmed(iParts.path.substr(Denial.size())) + opposites.at(iParts.sign) + iParts.value;
    return finding;
}

/// Whether a startup says in a word or a sign that there is none.
bool MeansNothing(const std::string& iStartup)
{
    return Holds({"none", "None", "NONE", "null", "-"}, iStartup);
}
} // namespace

TypedCheck::TypedCheck(CheckRun& ioRun) : m_run(ioRun), m_guess(m_objects, ioRun.suggestions), m_overlap(ioRun.source)
{
}

void TypedCheck::Check(const CatalogSource& iCatalogs)
{
    CheckTypeNames();
    CheckCatalogStartups(iCatalogs, m_objects, m_run);
    for (const VYRStandalone::MeantConfiguration& meant : VYRStandalone::MeantConfigurations())
    {
        const auto other = m_run.meantByCatalogs.find(meant.configuration);
        Put(other != m_run.meantByCatalogs.end() ? other->second : meant.configuration,
            {nullptr, {meant.type}, false, false});
    }
    WorkOff();
    SpreadUnclear();
    // What files that are missing would lead to is not known.
    if (m_run.isWhole)
        GuessRest();
    ReportPresentData();
}

void TypedCheck::Put(std::string_view iConfiguration, Task iTask)
{
    iTask.configuration = m_run.source.Find(iConfiguration);
    if (iTask.configuration != nullptr && m_run.ambiguous.count(iConfiguration) == 0 &&
        m_known.emplace(iTask.configuration, iTask.place.type, iTask.place.path).second)
        m_tasks.push_back(std::move(iTask));
}

void TypedCheck::WorkOff()
{
    while (!m_tasks.empty())
    {
        const Task task = m_tasks.front();
        m_tasks.pop_front();
        const std::size_t tasks = m_tasks.size();
        TrialFindings findings = Try(task);
        const bool isBlamed = task.origin && BlameReference(*task.origin, *task.configuration, task.place,
                                                            task.isSupposed ? 1 : 2, findings);
        // Then this is not what was meant by what is misspelt.
        if (isBlamed && task.isSupposed)
            TakeBack(tasks);
        else
            Report(std::move(findings));
    }
}

/// Forgets all tasks but the first ones.
void TypedCheck::TakeBack(std::size_t iTasks)
{
    for (; m_tasks.size() > iTasks; m_tasks.pop_back())
    {
        const Task& task = m_tasks.back();
        m_run.unclear.insert(task.configuration->name);
        m_known.erase({task.configuration, task.place.type, task.place.path});
    }
}

/// Of what is applied only by configurations whose objects are not known, nothing is known either.
void TypedCheck::SpreadUnclear()
{
    std::vector<std::string> names(m_run.unclear.begin(), m_run.unclear.end());
    while (!names.empty())
    {
        const SourceConfiguration* const configuration = m_run.source.Find(names.back());
        names.pop_back();
        if (configuration == nullptr || !m_tried.insert(configuration).second)
            continue;
        for (const SourceItem& item : ItemsOf(*configuration))
            if (Refers(item.role))
                names.emplace_back(item.Text("config"));
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
        Put(iConfiguration.name, {nullptr, {types.front()}, true, false});
        WorkOff();
        return;
    }
    // Only what is wrong on each of them is wrong.
    TrialFindings common;
    m_followsReferences = false;
    for (const std::string& type : types)
    {
        TrialFindings found = Try({&iConfiguration, {type}, true, false});
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
    const Trial trial{m_objects.At(iTask.place), iTask.place, iTask.isGuessed, iTask.isConditional};
    if (!VYRIMpaDefaultManagementProtected_var(trial.object.Self()))
    {
        findings.push_back({FindingAt(*iTask.configuration, "name", FindingKind::PathNowhere, trial.Worst(),
                                      "the configuration is meant for " + iTask.place.Shown() +
                                          ", which has no default management and cannot be configured")});
        return findings;
    }
    TryItems(iTask, trial, findings);
    // They are the engine's own way to say what is found here.
    VYRStandalone::TakeReports();
    return findings;
}

void TypedCheck::TryItems(const Task& iTask, const Trial& iTrial, TrialFindings& oFindings)
{
    m_overlap = ConditionOverlap(m_run.source);
    m_presentData.Begin(iTrial);
    m_unoffered.clear();
    bool isSpoilt = false;
    bool isBroken = false;
    for (const SourceItem& item : ItemsOf(*iTask.configuration))
    {
        const std::size_t found = oFindings.size();
        if (item.role == ItemRole::Choice)
        {
            isSpoilt = TryChoice(item, iTrial, oFindings) || isSpoilt;
            isBroken = isBroken || IsBrokenChoice(item, oFindings.size() != found);
            TakeUnofferedDefault(item);
        }
        else if (Refers(item.role) && isBroken)
            m_run.unclear.emplace(item.Text("config"));
        else
            TryItem(item, iTrial, oFindings);
        m_presentData.Follow(item);
        isSpoilt = isSpoilt || (item.role == ItemRole::Values && IsChoice(iTrial.object));
    }
    if (isSpoilt)
        m_objects.Spoil(iTask.place.type);
}

void TypedCheck::TakeUnofferedDefault(const SourceItem& iItem)
{
    if (m_run.findings.Has(FindingAt(iItem, "default", FindingKind::DefaultNotInChoices, Severity::Error, {})))
        m_unoffered.emplace(iItem.Text("default"), std::string::npos);
}

/// Where a condition compares with a text that is told not to be offered, its finding goes into that one.
/// @param iFound findings in front of those of the condition
void TypedCheck::MergeUnoffered(const SourceItem& iItem, std::size_t iFound, TrialFindings& ioFindings)
{
    if (ioFindings.size() == iFound || ioFindings.back().unknown.empty())
        return;
    const auto [first, isFirst] = m_unoffered.try_emplace(ioFindings.back().unknown, ioFindings.size() - 1);
    if (isFirst)
        return;
    const Finding merged = std::move(ioFindings.back().finding);
    ioFindings.pop_back();
    if (first->second >= ioFindings.size())
        return;
    Finding& finding = ioFindings[first->second].finding;
    finding.message +=
        (finding.related.empty() ? "; it also stands in item " : ", item ") + std::to_string(iItem.number);
    finding.related.push_back({merged.file, merged.position.line});
}

/// Whether the Choice does not offer what the item means it to, so that nothing can be said of what depends on it.
bool TypedCheck::IsBrokenChoice(const SourceItem& iItem, bool iHasFailed) const
{
    const auto isTold = [&](FindingKind iKind, const char* iKey) {
        return m_run.findings.Has(FindingAt(iItem, iKey, iKind, Severity::Error, {}));
    };
    return iHasFailed || HasWrongKey(iItem.value) || isTold(FindingKind::UnequalLists, "Startups") ||
           isTold(FindingKind::UnequalLists, "choices") || Trimmed(iItem.Text("choices")).empty();
}

void TypedCheck::TryItem(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    if (SetsDefault(iItem.role))
        m_defaults.Check(iItem, iTrial, oFindings);
    else if (iItem.role == ItemRole::Values)
        TryValues(iItem, iTrial, oFindings);
    else if (Refers(iItem.role))
        TryReference(iItem, iTrial, oFindings);
    else if (iItem.value.Is(SourceValue::Kind::Object))
        TryPathAlone(iItem, iTrial, oFindings);
}

/// Of an item that does nothing, or not what is written, for a mistake that is told.
void TypedCheck::TryPathAlone(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    PathWalk walk(iTrial.object, iTrial.place);
    if (!iItem.Text("condition").empty())
        TryCondition(iItem, iTrial, walk, oFindings);
    const std::string path(iItem.Text("path"));
    for (const PathEnd& end : walk.Follow(path))
        AddMissteps(iItem, iTrial, "path", path, end.missteps, oFindings);
}

void TypedCheck::TryReference(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    PathWalk walk(iTrial.object, iTrial.place);
    const std::string path(iItem.Text("path"));
    const std::size_t found = oFindings.size();
    Guard guard = iItem.role == ItemRole::Conditional ? TryCondition(iItem, iTrial, walk, oFindings) : Guard::Clear;
    // Under which condition it is to be applied is not known. One that is empty is told already.
    if (HasWrongKey(iItem.value) || (iItem.role == ItemRole::Nested && iItem.value.Has("condition")))
        guard = guard == Guard::None ? guard : Guard::Odd;
    else if (m_presentData.Try(iItem, iTrial, oFindings))
        guard = Guard::Odd;
    // What such a path was to lead to is not known.
    if (EndOfNames(path) == path.size())
    {
        const bool follows = std::exchange(m_followsReferences, m_followsReferences && guard == Guard::Clear);
        for (const PathEnd& end : walk.Follow(path))
            TryTarget(iItem, iTrial, end, oFindings);
        m_followsReferences = follows;
    }
    const bool isClear = guard == Guard::Clear && EndOfNames(path) == path.size();
    const bool leadsNowhere = std::any_of(oFindings.begin() + static_cast<std::ptrdiff_t>(found), oFindings.end(),
                                          [](const TrialFinding& iOne) {
                                              return iOne.finding.kind == FindingKind::PathNowhere &&
                                                     iOne.finding.severity != Severity::Note && !iOne.isMisspelt;
                                          });
    if (!isClear || leadsNowhere)
        m_run.unclear.emplace(iItem.Text("config"));
}

/// Of two configurations for the same Choice one may choose before the other.
void TypedCheck::ReportPresentData()
{
    std::map<std::pair<std::string, std::string>, std::size_t> configurations;
    for (const auto& [configuration, type, path] : m_known)
        ++configurations[{type, path}];
    for (PresentData::Doubtful& doubtful : m_presentData.TakeDoubtful())
        if (configurations[{doubtful.place.type, doubtful.place.path}] == 1)
            Report({std::move(doubtful.finding)});
}

TypedCheck::Guard TypedCheck::TryCondition(const SourceItem& iItem, const Trial& iTrial, PathWalk& ioWalk,
                                           TrialFindings& oFindings)
{
    std::optional<ConditionText> parts = PartsOf(iItem.Text("condition"));
    if (!parts)
        return Guard::None;
    // Such a path is told already.
    if (parts->path.find_first_of("=!<>") != std::string::npos || Trimmed(parts->path) != parts->path ||
        EndOfNames(parts->path) != parts->path.size())
        return Guard::None;
    if (IsDenied(*parts))
    {
        oFindings.push_back({DeniedCondition(iItem, *parts)});
        return Guard::None;
    }
    const PathEnd end = ioWalk.Follow(parts->path).front();
    AddMissteps(iItem, iTrial, "condition", parts->path, end.missteps, oFindings);
    if (end.kind == PathEnd::Kind::Nowhere)
        return Guard::None;
    if (end.kind == PathEnd::Kind::Open)
        return Guard::Clear;
    if (!end.missteps.empty())
        parts->path = MeantPath(parts->path, end.missteps);
    if (!end.optional.empty())
        AddOptional(iItem, iTrial, "condition", Severity::Note, end.optional, "on any other the condition never holds",
                    oFindings);
    const std::size_t found = oFindings.size();
    const bool isMeant = CheckComparison(iItem, iTrial, *parts, end.access, oFindings);
    MergeUnoffered(iItem, found, oFindings);
    if (isMeant)
        m_overlap.Enter(iItem, iTrial, *parts, end.access, oFindings);
    const VYRCfdObjectAccess owner{end.access.Self()};
    if (end.kind != PathEnd::Kind::Attribute || end.access.GetName() != ORXUnicodeString("value") || !IsChoice(owner))
        return Guard::Clear;
    if (!isMeant)
        return Guard::Odd;
    ioWalk.Restrict(owner, *parts);
    return Guard::Clear;
}

void TypedCheck::TryTarget(const SourceItem& iItem, const Trial& iTrial, const PathEnd& iEnd, TrialFindings& oFindings)
{
    const std::string path(iItem.Text("path"));
    const bool isSupposed = !iEnd.missteps.empty();
    AddMissteps(iItem, iTrial, "path", path, iEnd.missteps, oFindings);
    if (iEnd.kind == PathEnd::Kind::Nowhere)
        return;
    if (!iEnd.optional.empty())
    {
        AddOptional(iItem, iTrial, "path", Severity::Note, iEnd.optional, "on any other nothing is applied", oFindings);
        oFindings.back().finding.isBehind = isSupposed;
    }
    const bool isObject = iEnd.kind == PathEnd::Kind::Object;
    const bool hasDefaults = isObject && !!VYRIMpaDefaultManagementProtected_var(iEnd.access.Self());
    // What comes of a circle is the circle's mistake.
    const bool isClosing = m_run.closing.count({&iItem.configuration, iItem.number}) != 0;
    if (hasDefaults && m_followsReferences && !isClosing)
        Put(iItem.Text("config"),
            {nullptr, iEnd.place, iTrial.isGuessed, iTrial.isConditional || iItem.role == ItemRole::Conditional, iItem,
             isSupposed || m_run.meant.HasOtherText(iItem.configuration, iItem.number, "config")});
    // Where what is misspelt leads to nothing of use, something else was meant.
    if (isSupposed)
        return;
    if (iEnd.kind == PathEnd::Kind::Attribute)
        oFindings.push_back({FindingAt(iItem, "path", FindingKind::PathNowhere, iTrial.Worst(),
                                       Quoted(path) + " leads to an attribute and to no object " + iTrial.Where() +
                                           ": the configuration would be applied to the object that has it")});
    else if (isObject && !hasDefaults)
        oFindings.push_back({FindingAt(iItem, "path", FindingKind::PathNowhere, iTrial.Worst(),
                                       Quoted(path) + " leads to an object that cannot be configured " +
                                           iTrial.Where() + ": a " + Quoted(iEnd.access.GetType().View()))});
}

void TypedCheck::CheckTypeNames()
{
    for (const SourceConfiguration& configuration : m_run.source.Configurations())
        for (const SourceItem& item : ItemsOf(configuration))
            if (item.role == ItemRole::Choice && item.value.Has("Startups"))
                CheckTypeNames(item);
}

void TypedCheck::CheckTypeNames(const SourceItem& iItem)
{
    const MeantLists lists = MeantListsOf(iItem);
    std::vector<std::string> startups = SplitTexts(lists.startups);
    bool isMisspelt = false;
    for (std::string& startup : startups)
    {
        if (startup.empty() || IsKnownType(startup))
            continue;
        if (MeansNothing(startup))
        {
            m_run.Add(FindingAt(iItem, lists.startupsKey, FindingKind::UnknownType, Severity::Error,
                                "the startup " + Quoted(startup) +
                                    " is no type of the catalogs; the entry of a choice without data is left empty"));
            startup.clear();
            isMisspelt = true;
            continue;
        }
        m_run.Add(FindingAt(iItem, lists.startupsKey, FindingKind::UnknownType, Severity::Error,
                            "the startup " + Quoted(startup) + " is no type of the catalogs"),
                  startup, KnownTypes());
        const std::string meant = m_run.suggestions.OnlySlipOf(startup, KnownTypes());
        isMisspelt = isMisspelt || !meant.empty();
        startup = meant.empty() ? startup : meant;
    }
    if (!isMisspelt || !lists.findings.empty())
        return;
    std::string text;
    for (const std::string& startup : startups)
        text += (text.empty() && &startup == &startups.front() ? "" : ", ") + startup;
    m_run.meant.SetText(iItem, "Startups", std::move(text));
}

void TypedCheck::Report(TrialFindings iFindings)
{
    for (TrialFinding& one : iFindings)
    {
        if (one.replaced)
            m_run.findings.Remove(*one.replaced);
        const Finding& finding = one.finding;
        one.finding.isBehind =
            finding.isBehind || (finding.configuration != nullptr &&
                                 m_run.meant.HasOtherText(*finding.configuration, finding.item, finding.key));
        if (m_run.findings.Has(one.finding))
            m_run.findings.Raise(one.finding);
        else
            m_run.Add(std::move(one.finding), one.unknown,
                      one.unknown.empty() ? std::vector<std::string>() : one.known);
    }
}
} // namespace Tool
