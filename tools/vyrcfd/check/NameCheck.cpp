#include <unordered_set>

#include "CheckRun.h"
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

/// The value at a path such as "/types/0/name" of a catalog, which was read before.
SourcePosition PositionIn(const SourceFile& iFile, const std::string& iPath)
{
    const SourceValue* value = &iFile.Root();
    for (std::size_t at = 1; at < iPath.size();)
    {
        const std::size_t end = std::min(iPath.find('/', at), iPath.size());
        const std::string step = iPath.substr(at, end - at);
        if (value->Is(SourceValue::Kind::Array))
            value = value->elements.at(static_cast<std::size_t>(std::stoul(step)));
        else if (const SourceMember* member = value->Find(step))
            value = member->value;
        at = end + 1;
    }
    return value->position;
}

class NameCheck
{
public:
    explicit NameCheck(CheckRun& ioRun)
        : m_run(ioRun), m_known(KnownNames(ioRun.source)), m_meant(VYRStandalone::MeantConfigurations())
    {
    }

    void Check()
    {
        for (const VYRStandalone::MeantConfiguration& meant : m_meant)
            CheckMeant(meant);
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
            CheckReferences(configuration);
        for (const SourceConfiguration& configuration : m_run.source.Configurations())
            CheckName(configuration);
    }

private:
    void CheckMeant(const VYRStandalone::MeantConfiguration& iMeant)
    {
        m_used.insert(iMeant.configuration);
        if (m_run.source.Find(iMeant.configuration) != nullptr)
            return;
        Finding finding{FindingKind::UnknownConfig,
                        Severity::Error,
                        OneLine(iMeant.file),
                        PositionIn(SourceFile(iMeant.file), iMeant.path),
                        nullptr,
                        0,
                        "configurations",
                        "type " + Quoted(iMeant.type) + " is meant for a configuration " +
                            Quoted(iMeant.configuration) + ", and there is none",
                        {},
                        {}};
        m_run.Add(std::move(finding), iMeant.configuration, m_known);
    }

    void CheckReferences(const SourceConfiguration& iConfiguration)
    {
        for (const SourceItem& item : ItemsOf(iConfiguration))
        {
            if (!Refers(item.role))
                continue;
            const std::string_view name = item.Text("config");
            if (m_run.source.Find(name) == nullptr)
                m_run.Add(FindingAt(item, "config", FindingKind::UnknownConfig, Severity::Error,
                                    "there is no configuration " + Quoted(name)),
                          name, m_known);
            else if (name != iConfiguration.name && iConfiguration.hiddenBy == nullptr)
                m_used.emplace(name);
        }
    }

    void CheckName(const SourceConfiguration& iConfiguration)
    {
        // What is no object, or has a name of the wrong kind, is told already.
        const SourceMember* name = iConfiguration.value->Find("name");
        const bool isTold = !iConfiguration.value->Is(SourceValue::Kind::Object) ||
                            (name != nullptr && !name->value->Is(SourceValue::Kind::Text));
        if (isTold)
            return;
        if (iConfiguration.name.empty())
            m_run.Add(FindingAt(iConfiguration, "name", FindingKind::DoesNothing, Severity::Error,
                                std::string("the configuration ") +
                                    (name == nullptr ? "has no \"name\"" : "has an empty \"name\"") +
                                    ", so that no item can apply it"));
        else if (iConfiguration.hiddenBy != nullptr)
            AddDuplicate(iConfiguration);
        else if (m_used.count(iConfiguration.name) == 0)
            AddUnused(iConfiguration);
    }

    void AddDuplicate(const SourceConfiguration& iConfiguration)
    {
        const RelatedPlace first = PlaceOf(*iConfiguration.hiddenBy);
        Finding finding =
            FindingAt(iConfiguration, "name", FindingKind::DuplicateName, Severity::Error,
                      "a configuration " + Quoted(iConfiguration.name) + " is defined already in " + first.file + ":" +
                          std::to_string(first.line) + ", and that one holds in place of this one");
        finding.related.push_back(first);
        m_run.Add(std::move(finding));
    }

    /// As long as no catalog tells what is applied from outside, nothing can be held against it.
    void AddUnused(const SourceConfiguration& iConfiguration)
    {
        const std::string message = "no other configuration refers to " + Quoted(iConfiguration.name);
        m_run.Add(FindingAt(
            iConfiguration, "name", FindingKind::UnusedConfig, m_meant.empty() ? Severity::Note : Severity::Warning,
            message + (m_meant.empty() ? ", and no catalog says what is applied by itself"
                                       : ", and no type of the catalogs lists it under \"configurations\"")));
    }

    CheckRun& m_run;
    std::vector<std::string> m_known;
    std::vector<VYRStandalone::MeantConfiguration> m_meant;
    std::unordered_set<std::string> m_used;
};
} // namespace

void CheckNames(CheckRun& ioRun)
{
    NameCheck(ioRun).Check();
}
} // namespace Tool
