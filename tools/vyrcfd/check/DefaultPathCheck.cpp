#include <map>

#include "CheckRun.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Whether the path is missing, empty or a text: everything but a wrong kind, which is told already.
bool HasReadablePath(const SourceItem& iItem)
{
    const SourceMember* path = iItem.value.Find("path");
    return path == nullptr || path->value->Is(SourceValue::Kind::Text);
}

void CheckPath(const SourceItem& iItem, CheckRun& ioRun)
{
    const std::string what = iItem.role == ItemRole::Values ? "a \"value\"" : "a \"default\"";
    const std::string_view path = iItem.Text("path");
    if (path.empty() && !HasWrongKey(iItem.value))
        ioRun.Add(FindingAt(iItem, "path", FindingKind::PathNowhere, Severity::Error,
                            what + " is for an attribute, but the item has no \"path\": the configuration fails here"));
    else if (path.find('/') != std::string_view::npos)
        ioRun.Add(FindingAt(iItem, "path", FindingKind::PathNowhere, Severity::Error,
                            "the \"path\" of " + what +
                                " is the name of one attribute and is not followed: " + Quoted(path) +
                                " is no name, and the configuration fails here; reach an object that "
                                "lies deeper by an item with \"config\""));
}

/// Of two records for one attribute the engine finds the first when it has to read them again.
class RecordedDefaults
{
public:
    explicit RecordedDefaults(CheckRun& ioRun) : m_run(ioRun) {}

    void Enter(const SourceItem& iItem)
    {
        const std::string_view text = iItem.Text("default");
        const bool isChoice = iItem.role == ItemRole::Choice && iItem.Text("path").empty();
        if (text.empty() || (!isChoice && !SetsDefault(iItem.role)))
            return;
        const std::string_view path = isChoice ? std::string_view("value") : iItem.Text("path");
        const auto [first, isFirst] = m_first.try_emplace(path, &iItem);
        if (isFirst || first->second->Text("default") == text)
            return;
        const Finding place =
            FindingAt(*first->second, "default", FindingKind::DefaultReopensDifferently, Severity::Warning, {});
        Finding finding = FindingAt(iItem, "default", FindingKind::DefaultReopensDifferently, Severity::Warning,
                                    "item " + std::to_string(first->second->number) + " gives " + Quoted(path) +
                                        " the default " + Quoted(first->second->Text("default")) +
                                        ": this one holds until the model is closed, that one when it is opened again");
        finding.related.push_back({place.file, place.position.line});
        m_run.Add(std::move(finding));
    }

private:
    CheckRun& m_run;
    std::map<std::string_view, const SourceItem*> m_first;
};
} // namespace

void CheckDefaultPaths(CheckRun& ioRun)
{
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
    {
        const std::vector<SourceItem> items = ItemsOf(configuration);
        RecordedDefaults defaults(ioRun);
        for (const SourceItem& item : items)
        {
            if ((SetsDefault(item.role) || item.role == ItemRole::Values) && HasReadablePath(item))
                CheckPath(item, ioRun);
            defaults.Enter(item);
        }
    }
}
} // namespace Tool
