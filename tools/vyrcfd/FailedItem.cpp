#include "FailedItem.h"

#include <algorithm>

#include "VYRCfdConfigurator.h"
#include "VYRCfdObjectAccess.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
class Replay
{
public:
    explicit Replay(const ConfigurationSource& iSource) : m_source(iSource) {}

    std::vector<FailedItem> failed;

    void Run(const ORXISpecObject_var& iObject, std::string_view iConfiguration)
    {
        const SourceConfiguration* const configuration = m_source.Find(iConfiguration);
        const bool isCircle = std::find(m_path.begin(), m_path.end(), configuration) != m_path.end();
        if (configuration == nullptr || isCircle || !VYRIMpaDefaultManagementProtected_var(iObject))
            return;
        m_path.push_back(configuration);
        const std::vector<SourceItem> items = ItemsOf(*configuration);
        const auto end =
            std::find_if(items.begin(), items.end(), [&](const SourceItem& iItem) { return !Works(iItem, iObject); });
        if (end != items.end())
            failed.push_back({*end, "fails"});
        m_path.pop_back();
    }

private:
    bool Works(const SourceItem& iItem, const ORXISpecObject_var& iObject)
    {
        try
        {
            return Do(iItem, iObject);
        }
        catch (const std::logic_error&)
        {
            // Where the application would have ended.
            return false;
        }
    }

    bool Do(const SourceItem& iItem, const ORXISpecObject_var& iObject)
    {
        const VYRCfdObjectAccess access{ORXBaseUnknown_var(iObject)};
        switch (iItem.role)
        {
        case ItemRole::Choice:
            return SetUpChoice(iItem, iObject);
        case ItemRole::Values:
            return access[UnicodeOf(iItem.Text("path"))].SetStrings(SplitList(iItem.Text("value"))) >= 0;
        case ItemRole::AutomaticDefault:
        case ItemRole::CustomDefault:
            return SetDefault(iItem, iObject);
        case ItemRole::Nested:
            Apply(iItem, access.GetByPath(UnicodeOf(iItem.Text("path"))));
            return true;
        case ItemRole::Conditional:
            Apply(iItem,
                  access.ApplyCondition(UnicodeOf(iItem.Text("condition"))).GetByPath(UnicodeOf(iItem.Text("path"))));
            return true;
        case ItemRole::ValueWithoutList:
        case ItemRole::Nothing:
            break;
        }
        return true;
    }

    static bool SetDefault(const SourceItem& iItem, const VYRIMpaDefaultManagementProtected_var& iManagement)
    {
        const ORXUnicodeString path = UnicodeOf(iItem.Text("path"));
        ORXUnicodeString text = UnicodeOf(iItem.Text("default"));
        const bool isAuto = iItem.role == ItemRole::AutomaticDefault;
        return (!isAuto || iManagement->SetIsAuto(path, ORXTrue) >= 0) &&
               iManagement->SetCustomDefault(path, text) >= 0;
    }

    static bool SetUpChoice(const SourceItem& iItem, const ORXISpecObject_var& iObject)
    {
        const std::vector<ORXUnicodeString> choices = SplitList(iItem.Text("choices"));
        const std::vector<ORXUnicodeString> startups =
            iItem.value.Has("Startups") ? SplitList(iItem.Text("Startups")) : std::vector<ORXUnicodeString>();
        const ORXUnicodeString chosen = UnicodeOf(iItem.Text("default"));
        const ORXUnicodeString display = UnicodeOf(iItem.Text("display"));
        const VYRICfdChoiceMgr_var spManager = iObject;
        const VYRICfdChoice_var spChoice = iObject;
        if (startups.empty() && !!spManager)
            return spManager->ConfigureChoiceMgr(choices, chosen, display) >= 0;
        return !!spChoice && spChoice->Configure(choices, startups, chosen, display) >= 0;
    }

    static bool IsOfTooMany(const VYRStandalone::Report& iReport)
    {
        return iReport.text.find("Too many nested configurations") != std::string::npos;
    }

    /// Asks the engine whether there is anything to look for.
    void Apply(const SourceItem& iItem, const VYRCfdObjectAccess& iTarget)
    {
        const ORXISpecObject_var spTarget = iTarget.Self();
        const std::string_view name = iItem.Text("config");
        if (!spTarget && iItem.role == ItemRole::Conditional)
            return;
        VYRStandalone::TakeReports();
        VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(spTarget, UnicodeOf(name));
        const std::vector<VYRStandalone::Report> reports = VYRStandalone::TakeReports();
        if (reports.empty())
            return;
        // Configurations that multiply are not gone through: that would take as long as the engine refuses to take.
        const std::size_t before = failed.size();
        if (!!spTarget && std::none_of(reports.begin(), reports.end(), IsOfTooMany))
            Run(spTarget, name);
        if (failed.size() != before)
            return;
        failed.push_back({iItem, WhyNot(name, spTarget)});
    }

    /// Why the configuration does not work there, where none of its items is to blame.
    std::string WhyNot(std::string_view iConfiguration, const ORXISpecObject_var& iTarget) const
    {
        const SourceConfiguration* const configuration = m_source.Find(iConfiguration);
        if (configuration == nullptr)
            return "finds no configuration " + Quoted(iConfiguration);
        const std::string applied = Quoted(iConfiguration);
        if (!iTarget)
            return "finds no object to apply " + applied + " to";
        if (!VYRIMpaDefaultManagementProtected_var(iTarget))
            return "applies " + applied + " to an object that cannot be configured";
        if (std::find(m_path.begin(), m_path.end(), configuration) != m_path.end())
            return "applies " + applied + ", by which it is applied itself";
        return "applies " + applied + ", which has failed";
    }

    const ConfigurationSource& m_source;
    /// What is being gone through, each applied by the one in front of it.
    std::vector<const SourceConfiguration*> m_path;
};
} // namespace

std::string FailedItem::Shown() const
{
    return Quoted(item.configuration.name) + ", item " + std::to_string(item.number) + ", " + why + ": " +
           OneLine(item.configuration.file->Path()) + ":" + std::to_string(item.value.position.line) + ":" +
           std::to_string(item.value.position.column);
}

std::vector<FailedItem> FailedItems(const ORXISpecObject_var& iObject, const std::string& iConfiguration,
                                    const ConfigurationSource& iSource)
{
    Replay replay(iSource);
    replay.Run(iObject, iConfiguration);
    VYRStandalone::TakeReports();
    return replay.failed;
}
} // namespace Tool
