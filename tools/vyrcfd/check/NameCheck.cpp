#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "CheckRun.h"
#include "ConfigurationKeys.h"
#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
namespace
{
std::vector<std::string> KnownNames(const ConfigurationSource& iSource)
{
    std::vector<std::string> names;
    for (const SourceConfiguration& configuration : iSource.Configurations())
        if (configuration.hiddenBy == nullptr && !configuration.name.empty())
            names.push_back(configuration.name);
    return names;
}

/// Whether an item has lost the name of the configuration that it is to apply.
bool HasLostReference(const SourceItem& iItem)
{
    const SourceValue& value = iItem.value;
    if (iItem.role != ItemRole::Nothing || !value.Is(SourceValue::Kind::Object))
        return iItem.role == ItemRole::Nothing;
    if (value.Has("config"))
        return true;
    const bool isForElse =
        value.Has("default") || value.Has("value") || value.Has("Startups") || value.Has("defaultAutoKey");
    return !isForElse && !HasWrongKey(value) && (!iItem.Text("path").empty() || !iItem.Text("condition").empty());
}

/// The name of a configuration that stands behind a misspelt key; null where there is none.
const SourceValue* MisspeltName(const SourceConfiguration& iConfiguration)
{
    if (iConfiguration.value->Has("name"))
        return nullptr;
    for (const SourceMember& member : iConfiguration.value->members)
        if (ConfigurationKeys().count(member.key) == 0 && member.value->Is(SourceValue::Kind::Text) &&
            Nearest(member.key, {"name", "config"}) == "name")
            return member.value;
    return nullptr;
}

class NameCheck
{
public:
    explicit NameCheck(CheckRun& ioRun)
        : m_run(ioRun), m_known(KnownNames(ioRun.source)), m_meant(VYRStandalone::MeantConfigurations())
    {
        m_run.knowsWanted = !m_meant.empty();
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
            if (const SourceValue* name = MisspeltName(configuration))
                m_misspelt.insert(name->text);
    }

    void Check()
    {
        for (const VYRStandalone::MeantConfiguration& meant : m_meant)
            CheckMeant(meant);
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
        {
            CheckReferences(configuration);
            TakeMentioned(configuration);
        }
        // Of names that are as near the one that nothing refers to is the more likely.
        const auto referred = std::stable_partition(m_known.begin(), m_known.end(),
                                                    [&](const std::string& iName) { return IsUnreferred(iName); });
        m_unreferred.assign(m_known.begin(), referred);
        for (Unknown& unknown : m_unknown)
            TakeForMisnamed(unknown);
        for (Unknown& unknown : m_unknown)
            if (m_misnamed.count(unknown.name) == 0)
                Resolve(unknown);
        TakeForDuplicate();
        TakeForNameless();
        TakeForUnused();
        for (Unknown& unknown : m_unknown)
            m_run.Add(std::move(unknown.finding));
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
            CheckName(configuration);
    }

private:
    /// A name that no configuration has, with all places that refer to it: that it is missing is one mistake.
    struct Unknown
    {
        std::string name;
        Finding finding;
        /// The items among these places.
        std::vector<SourceItem> items{};
        /// Without the names that there are.
        std::string message{};
    };

    void CheckMeant(const VYRStandalone::MeantConfiguration& iMeant)
    {
        m_run.wanted.insert(iMeant.configuration);
        if (m_run.source.Find(iMeant.configuration) != nullptr || !m_run.isWhole)
            return;
        Finding finding = FindingIn(iMeant.file, SourceFile(iMeant.file).PositionAt(iMeant.path),
                                    FindingKind::UnknownConfig, Severity::Error,
                                    "type " + Quoted(iMeant.type) + " is meant for a configuration " +
                                        Quoted(iMeant.configuration) + ", and there is none");
        finding.key = "configurations";
        AddUnknown(std::move(finding), iMeant.configuration, nullptr);
    }

    void CheckReferences(const SourceConfiguration& iConfiguration)
    {
        for (const SourceItem& item : ItemsOf(iConfiguration))
        {
            CheckStrangeKeys(item);
            m_run.hasLostReference = m_run.hasLostReference || HasLostReference(item);
            if (!Refers(item.role))
                continue;
            const std::string_view name = item.Text("config");
            if (m_run.source.Find(name) == nullptr)
                AddUnknown(FindingAt(item, "config", FindingKind::UnknownConfig, Severity::Error,
                                     "there is no configuration " + Quoted(name)),
                           name, &item);
            else if (name != iConfiguration.name)
                m_used.emplace(name);
            else
                ++m_ownReferences;
            // A definition that another one hides applies nothing as long as it has that name.
            if (iConfiguration.hiddenBy != nullptr)
                m_run.unclear.emplace(name);
        }
    }

    /// What items refer to that are not read, since something else stands in place of their array, is used, for what is
    /// not known.
    void TakeMentioned(const SourceConfiguration& iConfiguration)
    {
        const SourceMember* const items = iConfiguration.value->Find("config");
        if (items != nullptr && items->value->Is(SourceValue::Kind::Array))
            return;
        std::vector<const SourceValue*> open{iConfiguration.value};
        while (!open.empty())
        {
            const SourceValue& value = *open.back();
            open.pop_back();
            open.insert(open.end(), value.elements.begin(), value.elements.end());
            for (const SourceMember& member : value.members)
                open.push_back(member.value);
            if (&value != iConfiguration.value && m_run.source.Find(value.TextOf("config")) != nullptr)
                TakeAsUsed(std::string(value.TextOf("config")));
        }
    }

    /// A configuration that stands behind a misspelt key is used, for what is not known.
    void CheckStrangeKeys(const SourceItem& iItem)
    {
        for (const SourceMember& member : iItem.value.members)
            if (ItemKeys().count(member.key) == 0 && m_run.source.Find(member.value->text) != nullptr)
            {
                m_run.wanted.insert(member.value->text);
                m_run.unclear.insert(member.value->text);
            }
    }

    /// @param iItem null for what a catalog refers to
    void AddUnknown(Finding iFinding, std::string_view iName, const SourceItem* iItem)
    {
        if (!m_run.isWhole || m_misspelt.count(std::string(iName)) != 0)
            return;
        const auto [known, isNew] = m_unknownAt.try_emplace(std::string(iName), m_unknown.size());
        if (isNew)
            m_unknown.push_back({std::string(iName), std::move(iFinding)});
        else
            m_unknown[known->second].finding.related.push_back({iFinding.file, iFinding.position.line});
        if (iItem != nullptr)
            m_unknown[known->second].items.push_back(*iItem);
    }

    /// Where several places, or a catalog, agree on a name, and the one definition that has a slip of it is referred to
    /// by nothing, it is the definition that is misspelt.
    void TakeForMisnamed(Unknown& ioUnknown)
    {
        const std::size_t places = 1 + ioUnknown.finding.related.size();
        const bool isAgreed = places > 1 || ioUnknown.items.empty();
        const std::string written =
            isAgreed ? m_run.suggestions.OnlySlipOf(ioUnknown.name, m_unreferred) : std::string();
        const SourceConfiguration* const definition = written.empty() ? nullptr : m_run.source.Find(written);
        if (definition == nullptr || AppliedBy(ioUnknown, written))
            return;
        std::vector<RelatedPlace> related{{ioUnknown.finding.file, ioUnknown.finding.position.line}};
        related.insert(related.end(), ioUnknown.finding.related.begin(), ioUnknown.finding.related.end());
        Finding finding =
            FindingAt(*definition, "name", FindingKind::UnknownConfig, Severity::Error,
                      "there is no configuration " + Quoted(ioUnknown.name) + ", to which " + Shown(related) +
                          (places == 1 ? " refers" : " refer") + ", and nothing refers to " + Quoted(written));
        finding.related = std::move(related);
        finding.suggestion = ioUnknown.name;
        ioUnknown.finding = std::move(finding);
        m_misnamed.emplace(ioUnknown.name, written);
        std::erase(m_unreferred, written);
        std::replace(m_known.begin(), m_known.end(), written, ioUnknown.name);
        TakeAsMeant(ioUnknown, written);
    }

    /// Whether the configuration itself is among those that refer to the name.
    static bool AppliedBy(const Unknown& iUnknown, const std::string& iConfiguration)
    {
        return std::any_of(iUnknown.items.begin(), iUnknown.items.end(),
                           [&](const SourceItem& iItem) { return iItem.configuration.name == iConfiguration; });
    }

    void Resolve(Unknown& ioUnknown)
    {
        Finding& finding = ioUnknown.finding;
        if (!finding.related.empty())
            finding.message +=
                "; " + Shown(finding.related) + (finding.related.size() == 1 ? " refers" : " refer") + " to it as well";
        ioUnknown.message = finding.message;
        m_run.suggestions.Complete(finding, ioUnknown.name, m_known);
        // Nobody means a configuration to apply itself.
        const auto misnamed = m_misnamed.find(finding.suggestion);
        const std::string written = misnamed != m_misnamed.end() ? misnamed->second : finding.suggestion;
        if (!AppliedBy(ioUnknown, written) && !IsDoubtful(ioUnknown) && finding.suggestion == MeantBy(ioUnknown.name))
            TakeAsMeant(ioUnknown, written);
        else if (!written.empty())
            TakeAsUsed(written);
    }

    /// The name that must have been meant; empty where that is not known. Of several only one that nothing refers to.
    std::string MeantBy(const std::string& iName)
    {
        std::string unused = m_run.suggestions.OnlySlipOf(iName, m_unreferred);
        return unused.empty() ? m_run.suggestions.OnlySlipOf(iName, m_known) : unused;
    }

    /// From now on all that refers to it refers to what was meant.
    void TakeAsMeant(const Unknown& iUnknown, const std::string& iName)
    {
        for (const SourceItem& item : iUnknown.items)
        {
            m_run.meant.SetText(item, "config", iName);
            m_used.insert(iName);
        }
        if (m_run.wanted.count(iUnknown.name) == 0)
            return;
        m_run.meantByCatalogs.emplace(iUnknown.name, iName);
        m_run.wanted.insert(iName);
    }

    /// What was probably meant is used, for what is not known.
    void TakeAsUsed(const std::string& iName)
    {
        m_run.wanted.insert(iName);
        m_run.unclear.insert(iName);
    }

    /// Whether no known name is so near that it must be the one.
    static bool IsDoubtful(const Unknown& iOne)
    {
        // A definition is told to have that very name.
        if (iOne.finding.suggestion == iOne.name)
            return false;
        return iOne.finding.suggestion.empty() || !IsSingleSlip(iOne.name, iOne.finding.suggestion);
    }

    /// The only unknown name that fits; past the end for none or several.
    template <class Fits> std::vector<Unknown>::iterator OnlyUnknown(Fits iFits)
    {
        const auto found = std::find_if(m_unknown.begin(), m_unknown.end(), iFits);
        const bool isOnly = found != m_unknown.end() && std::none_of(found + 1, m_unknown.end(), iFits);
        return isOnly ? found : m_unknown.end();
    }

    /// A definition that bears the name of another one is probably the one that is missing elsewhere.
    void TakeForDuplicate()
    {
        const SourceConfiguration* duplicate = nullptr;
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
            if (configuration.hiddenBy != nullptr && !configuration.name.empty())
            {
                if (duplicate != nullptr)
                    return;
                duplicate = &configuration;
            }
        if (duplicate == nullptr)
            return;
        // A slip of the very name is a mistake of its own, and so is a name to which one fits that nothing refers to.
        const auto unknown = OnlyUnknown(IsDoubtful);
        if (unknown == m_unknown.end() || IsSlip(unknown->name, duplicate->name) || HasUnusedBeside(duplicate->name))
            return;
        m_missing = std::move(*unknown);
        m_run.ambiguous.insert(duplicate->name);
        TakeAsUsed(duplicate->name);
        m_unknown.erase(unknown);
    }

    /// The only definition without a name that can be read is probably the one that is missing.
    void TakeForNameless()
    {
        const auto unknown = OnlyUnknown(IsDoubtful);
        const auto& all = m_run.source.Configurations();
        const auto nameless = std::count_if(all.begin(), all.end(), [](const SourceConfiguration& iOne) {
            return iOne.name.empty() && iOne.value->Is(SourceValue::Kind::Object);
        });
        if (unknown != m_unknown.end() && nameless == 1)
            m_unknown.erase(unknown);
    }

    /// As many names that nothing has and nothing resembles as there are configurations that nothing refers to are
    /// probably meant for these. So are items that apply their own configuration.
    void TakeForUnused()
    {
        // Of more nobody could tell which belong together.
        constexpr std::size_t Most = 5;
        std::vector<std::string> unused;
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
            if (IsUnused(configuration) && unused.size() <= Most)
                unused.push_back(configuration.name);
        const auto unknown = std::count_if(m_unknown.begin(), m_unknown.end(), IsDoubtful);
        const bool isEven = unused.size() == static_cast<std::size_t>(unknown) + m_ownReferences;
        if (unused.empty() || unused.size() > Most || !isEven || !m_run.knowsWanted)
            return;
        const bool isOne = unused.size() == 1;
        std::string names;
        for (const std::string& name : unused)
            names += (names.empty() ? "" : ", ") + Quoted(name);
        for (Unknown& one : m_unknown)
            if (IsDoubtful(one))
            {
                one.finding.message = one.message + "; nothing refers to " + names;
                one.finding.suggestion = isOne ? unused.front() : "";
            }
        if (isOne && unknown == 0)
            m_run.meantInsteadOfItself = unused.front();
        for (const std::string& name : unused)
            TakeAsUsed(name);
    }

    bool IsUnreferred(const std::string& iName) const
    {
        return m_used.count(iName) == 0 && m_run.wanted.count(iName) == 0;
    }

    bool IsUnused(const SourceConfiguration& iConfiguration) const
    {
        return m_run.isWhole && iConfiguration.hiddenBy == nullptr && !iConfiguration.name.empty() &&
               IsUnreferred(iConfiguration.name);
    }

    bool HasUnusedBeside(const std::string& iName) const
    {
        const auto& all = m_run.source.Configurations();
        return std::any_of(all.begin(), all.end(),
                           [&](const SourceConfiguration& iOne) { return iOne.name != iName && IsUnused(iOne); });
    }

    /// "FILE:LINE and 2 others".
    static std::string Shown(const std::vector<RelatedPlace>& iPlaces)
    {
        const std::string first = iPlaces.front().file + ":" + std::to_string(iPlaces.front().line);
        return iPlaces.size() == 1 ? first : first + " and " + Counted(iPlaces.size() - 1, "other");
    }

    void CheckName(const SourceConfiguration& iConfiguration)
    {
        // What is no object, or has a name of the wrong kind or behind a misspelt key, is told already.
        const SourceMember* name = iConfiguration.value->Find("name");
        const bool isTold = !iConfiguration.value->Is(SourceValue::Kind::Object) ||
                            (name != nullptr && !name->value->Is(SourceValue::Kind::Text)) ||
                            MisspeltName(iConfiguration) != nullptr;
        if (isTold)
            return;
        if (iConfiguration.name.empty())
            m_run.Add(FindingAt(iConfiguration, "name", FindingKind::DoesNothing, Severity::Error,
                                std::string("the configuration ") +
                                    (name == nullptr ? "has no \"name\"" : "has an empty \"name\"") +
                                    ", so that no item can apply it"));
        else if (iConfiguration.hiddenBy != nullptr)
            AddDuplicate(iConfiguration);
        else if (IsUnused(iConfiguration))
            AddUnused(iConfiguration, "no other configuration refers to " + Quoted(iConfiguration.name), m_run);
    }

    void AddDuplicate(const SourceConfiguration& iConfiguration)
    {
        const RelatedPlace first = PlaceOf(*iConfiguration.hiddenBy);
        Finding finding =
            FindingAt(iConfiguration, "name", FindingKind::DuplicateName, Severity::Error,
                      "a configuration " + Quoted(iConfiguration.name) + " is defined already in " + first.file + ":" +
                          std::to_string(first.line) + ", and that one holds in place of this one");
        finding.related.push_back(first);
        if (m_missing)
        {
            const Finding& missing = m_missing->finding;
            std::vector<RelatedPlace> places{{missing.file, missing.position.line}};
            places.insert(places.end(), missing.related.begin(), missing.related.end());
            finding.message += "; there is none called " + Quoted(m_missing->name) + ", to which " + Shown(places) +
                               (places.size() == 1 ? " refers" : " refer") +
                               ", and one of the two may be meant to be it";
            finding.suggestion = m_missing->name;
            finding.related.insert(finding.related.end(), places.begin(), places.end());
        }
        m_run.Add(std::move(finding));
    }

    CheckRun& m_run;
    std::vector<std::string> m_known;
    /// Those of them that nothing refers to.
    std::vector<std::string> m_unreferred;
    std::vector<VYRStandalone::MeantConfiguration> m_meant;
    std::unordered_set<std::string> m_used;
    /// Items that apply the configuration in which they stand.
    std::size_t m_ownReferences = 0;
    /// Names that stand behind misspelt keys.
    std::unordered_set<std::string> m_misspelt;
    /// Names that were meant by those of definitions, with these.
    std::unordered_map<std::string, std::string> m_misnamed;
    std::vector<Unknown> m_unknown;
    /// By name.
    std::unordered_map<std::string, std::size_t> m_unknownAt;
    /// The one that the only definition under a name that is taken was probably meant to have.
    std::optional<Unknown> m_missing;
};
} // namespace

/// As long as no catalog tells what is applied from outside, nothing can be held against it.
void AddUnused(const SourceConfiguration& iConfiguration, const std::string& iWhy, CheckRun& ioRun)
{
    if (ioRun.hasLostReference)
        return;
    const Severity severity = ioRun.knowsWanted ? Severity::Warning : Severity::Note;
    const char* const catalogs = ioRun.knowsWanted ? ", and no type of the catalogs lists it under \"configurations\""
                                                   : ", and no catalog says what is applied by itself";
    Finding finding = FindingAt(iConfiguration, "name", FindingKind::UnusedConfig, severity, iWhy + catalogs);
    if (ioRun.hasCatalogs)
        ioRun.Add(std::move(finding));
    else
        ioRun.unused.push_back(std::move(finding));
}

void AddUnusedWithoutCatalogs(CheckRun& ioRun)
{
    if (ioRun.unused.empty())
        return;
    Finding finding = ioRun.unused.front();
    for (auto other = ioRun.unused.begin() + 1; other != ioRun.unused.end(); ++other)
        finding.related.push_back({other->file, other->position.line});
    if (!finding.related.empty())
        finding.message += "; the same holds for " + Counted(finding.related.size(), "other configuration");
    ioRun.Add(std::move(finding));
}

void CheckNames(CheckRun& ioRun)
{
    NameCheck(ioRun).Check();
}
} // namespace Tool
