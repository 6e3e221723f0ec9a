#include "CheckRun.h"
#include "ConditionText.h"
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

/// The path without names that are empty.
std::string WithoutEmptyNames(std::string_view iPath)
{
    std::string path;
    for (const char one : iPath)
        if (one != '/' || (!path.empty() && path.back() != '/'))
            path += one;
    if (!path.empty() && path.back() == '/')
        path.pop_back();
    return path;
}

void CheckName(const SourceItem& iItem, CheckRun& ioRun)
{
    const std::string what = iItem.role == ItemRole::Values ? "a \"value\"" : "a \"default\"";
    const std::string_view path = iItem.Text("path");
    // What seems to be an item for a Choice is told already.
    const bool isTold = HasWrongKey(iItem.value) || !iItem.Text("Startups").empty();
    if (path.empty() && !isTold)
        ioRun.Add(FindingAt(iItem, "path", FindingKind::PathNowhere, Severity::Error,
                            what + " is for an attribute, but the item has no \"path\": the configuration fails here"));
    else if (path.find('/') != std::string_view::npos)
    {
        Finding finding =
            FindingAt(iItem, "path", FindingKind::PathNowhere, Severity::Error,
                      "the \"path\" of " + what + " is the name of one attribute and is not followed: " + Quoted(path) +
                          " is no name, and the configuration fails here; reach an object that "
                          "lies deeper by an item with \"config\"");
        if (std::string meant = WithoutEmptyNames(path); meant.find('/') == std::string::npos && !meant.empty())
        {
            finding.suggestion = meant;
            ioRun.meant.SetText(iItem, "path", std::move(meant));
        }
        ioRun.Add(std::move(finding));
    }
}

/// The cursor stops at an empty name, and says nothing.
void CheckNames(const SourceItem& iItem, const char* iKey, std::string_view iPath, CheckRun& ioRun)
{
    const std::size_t end = EndOfNames(iPath);
    if (end == iPath.size())
        return;
    const std::string reached = end == 0 ? "the object itself" : Quoted(iPath.substr(0, end));
    const bool isHarmless = end + 1 == iPath.size() && end != 0;
    Finding finding = isHarmless
                          ? FindingAt(iItem, iKey, FindingKind::PathNowhere, Severity::Note,
                                      "the \"/\" at the end of " + Quoted(iPath) + " says nothing, and is passed over")
                          : FindingAt(iItem, iKey, FindingKind::PathNowhere, Severity::Error,
                                      Quoted(iPath) + " has an empty name in it, at which it ends: it leads to " +
                                          reached + ", and what follows is passed over");
    const std::string meant = WithoutEmptyNames(iPath);
    // Of a condition the path is only a part.
    if (iKey == std::string_view("path"))
        finding.suggestion = meant;
    else if (!meant.empty())
        finding.message += "; " + Quoted(meant) + " has none";
    ioRun.Add(std::move(finding));
    if (meant.empty())
        return;
    std::string text(iItem.Text(iKey));
    ioRun.meant.SetText(iItem, iKey, text.replace(0, iPath.size(), meant));
}
/// Whether the item was meant to apply something that it does not name.
bool IsLostReference(const SourceItem& iItem)
{
    return iItem.role == ItemRole::Nothing && !iItem.value.Has("default") && !iItem.value.Has("value") &&
           !iItem.Text("path").empty();
}
} // namespace

std::size_t EndOfNames(std::string_view iPath)
{
    if (iPath.empty() || iPath.front() == '/')
        return 0;
    const std::size_t doubled = iPath.find("//");
    if (doubled != std::string_view::npos)
        return doubled;
    return iPath.back() == '/' ? iPath.size() - 1 : iPath.size();
}

void CheckPaths(CheckRun& ioRun)
{
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        for (const SourceItem& item : ItemsOf(configuration))
        {
            if ((SetsDefault(item.role) || item.role == ItemRole::Values) && HasReadablePath(item))
                CheckName(item, ioRun);
            else if (Refers(item.role) || IsLostReference(item))
                CheckNames(item, "path", item.Text("path"), ioRun);
            if (item.role == ItemRole::Conditional || IsLostReference(item))
                if (const auto parts = PartsOf(item.Text("condition")))
                    CheckNames(item, "condition", parts->path, ioRun);
        }
}
} // namespace Tool
