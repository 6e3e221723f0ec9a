#include <map>

#include "CheckRun.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Of two records for one attribute the engine finds the first when it has to read them again.
class RecordedDefaults
{
public:
    explicit RecordedDefaults(CheckRun& ioRun) : m_run(ioRun) {}

    void Enter(const SourceItem& iItem)
    {
        const std::string_view text = iItem.Text("default");
        const bool isChoice = iItem.role == ItemRole::Choice && iItem.Text("path").empty();
        if (text.empty() || (!isChoice && !SetsDefault(iItem.role)) || IsToldToBeWrong(iItem))
            return;
        const std::string_view path = isChoice ? std::string_view("value") : iItem.Text("path");
        const auto [first, isFirst] = m_first.try_emplace(path, iItem);
        if (isFirst || first->second.Text("default") == text)
            return;
        const Finding place =
            FindingAt(first->second, "default", FindingKind::DefaultReopensDifferently, Severity::Warning, {});
        Finding finding = FindingAt(iItem, "default", FindingKind::DefaultReopensDifferently, Severity::Warning,
                                    "item " + std::to_string(first->second.number) + " gives " + Quoted(path) +
                                        " the default " + Quoted(first->second.Text("default")) +
                                        ": this one holds until the model is closed, that one when it is opened again");
        finding.related.push_back({place.file, place.position.line});
        m_run.Add(std::move(finding));
    }

private:
    /// What is no default of its attribute is neither that now nor when the model is opened again.
    bool IsToldToBeWrong(const SourceItem& iItem) const
    {
        if (m_run.findings.All().empty())
            return false;
        const auto isTold = [&](const char* iKey, FindingKind iKind) {
            return m_run.findings.Has(FindingAt(iItem, iKey, iKind, Severity::Error, {}));
        };
        return isTold("default", FindingKind::DefaultInvalid) || isTold("default", FindingKind::DefaultNotInChoices) ||
               isTold("path", FindingKind::PathNowhere);
    }

    CheckRun& m_run;
    std::map<std::string_view, SourceItem> m_first;
};
} // namespace

void CheckRepeatedDefaults(CheckRun& ioRun)
{
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
    {
        RecordedDefaults defaults(ioRun);
        for (const SourceItem& item : ItemsOf(configuration))
            defaults.Enter(item);
    }
}
} // namespace Tool
