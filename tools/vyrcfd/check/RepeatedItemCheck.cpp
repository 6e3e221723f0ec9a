#include <algorithm>
#include <unordered_map>

#include "CheckRun.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// The same for items that differ in nothing but the order of their keys.
std::string SortedText(const SourceValue& iItem)
{
    std::vector<std::string> members;
    for (const SourceMember& member : iItem.members)
        members.push_back(Quoted(member.key) + (member.value->isTrue ? ":true:" : ":") +
                          std::to_string(static_cast<int>(member.value->kind)) + Quoted(member.value->text));
    std::sort(members.begin(), members.end());
    std::string text;
    for (const std::string& member : members)
        text += member + ",";
    return text;
}

void CheckRepeated(const SourceConfiguration& iConfiguration, CheckRun& ioRun)
{
    std::unordered_map<std::string, SourceItem> known;
    for (const SourceItem& item : ItemsOf(iConfiguration))
    {
        // That such an item does nothing is told of each.
        if (item.role == ItemRole::Nothing || item.role == ItemRole::ValueWithoutList || HasWrongKey(item.value))
            continue;
        // As they are written: what is misspelt was hardly meant to be the same.
        const SourceValue& written = *ioRun.meant.Definitions()[iConfiguration.number].items[item.number - 1];
        const auto [first, isFirst] = known.try_emplace(SortedText(written), item);
        if (isFirst)
            continue;
        Finding finding = FindingAt(item, {}, FindingKind::DuplicateEntry, Severity::Warning,
                                    "the item is the same as item " + std::to_string(first->second.number) +
                                        ", and does nothing that that one has not done");
        const Finding place = FindingAt(first->second, {}, FindingKind::DuplicateEntry, Severity::Warning, {});
        finding.related.push_back({place.file, place.position.line});
        ioRun.Add(std::move(finding));
    }
}
} // namespace

void CheckRepeatedItems(CheckRun& ioRun)
{
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        CheckRepeated(configuration, ioRun);
}
} // namespace Tool
