#include "SourceItem.h"

#include "VYRCfdUtilityMethods.h"

namespace Tool
{
ItemRole RoleOf(const SourceValue& iItem)
{
    if (iItem.Has("choices"))
        return ItemRole::Choice;
    if (!iItem.TextOf("value").empty())
        return iItem.IsTrueAt("list") ? ItemRole::Values : ItemRole::ValueWithoutList;
    if (!iItem.TextOf("default").empty())
        return iItem.TextOf("defaultAutoKey").empty() ? ItemRole::CustomDefault : ItemRole::AutomaticDefault;
    if (iItem.TextOf("config").empty())
        return ItemRole::Nothing;
    return iItem.TextOf("condition").empty() ? ItemRole::Nested : ItemRole::Conditional;
}

std::vector<SourceItem> ItemsOf(const SourceConfiguration& iConfiguration)
{
    std::vector<SourceItem> items;
    items.reserve(iConfiguration.items.size());
    for (const SourceValue* value : iConfiguration.items)
        items.push_back({iConfiguration, items.size() + 1, *value, RoleOf(*value)});
    return items;
}

std::vector<ORXUnicodeString> SplitList(std::string_view iText)
{
    std::vector<ORXUnicodeString> entries;
    VYRCfdUtilityMethods::ConvertStringToVector(UnicodeOf(iText), entries);
    return entries;
}

std::vector<std::string> SplitTexts(std::string_view iText)
{
    std::vector<std::string> entries;
    for (const ORXUnicodeString& entry : SplitList(iText))
        entries.emplace_back(entry.View());
    return entries;
}

ORXUnicodeString UnicodeOf(std::string_view iText)
{
    return ORXUnicodeString(iText.data(), iText.size());
}
} // namespace Tool
