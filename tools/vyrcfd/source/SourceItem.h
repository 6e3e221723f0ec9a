#ifndef SourceItem_H
#define SourceItem_H

/**
 * @file
 * Items of configurations, as the engine takes them.
 */

#include <string>
#include <string_view>
#include <vector>

#include "ConfigurationSource.h"
#include "ORXUnicodeString.h"

namespace Tool
{
/// What the engine makes of an item: the first that fits, in this order.
enum class ItemRole
{
    /// The key "choices" is there.
    Choice,
    /// A "value" and a true "list".
    Values,
    /// A "value" without a true "list": nothing, whatever else the item holds.
    ValueWithoutList,
    /// A "default" and a "defaultAutoKey".
    AutomaticDefault,
    /// A "default".
    CustomDefault,
    /// No "config": nothing.
    Nothing,
    /// A "config" without "condition".
    Nested,
    /// A "config" with a "condition".
    Conditional
};

ItemRole RoleOf(const SourceValue& iItem);

/// Whether the item applies another configuration.
inline bool Refers(ItemRole iRole) noexcept
{
    return iRole == ItemRole::Nested || iRole == ItemRole::Conditional;
}

inline bool SetsDefault(ItemRole iRole) noexcept
{
    return iRole == ItemRole::AutomaticDefault || iRole == ItemRole::CustomDefault;
}

/// An item with its place. What it refers to belongs to the ConfigurationSource.
struct SourceItem
{
    const SourceConfiguration& configuration;
    /// From 1.
    std::size_t number;
    const SourceValue& value;
    ItemRole role;

    std::string_view Text(std::string_view iKey) const noexcept { return value.TextOf(iKey); }
};

/// The items of a configuration, in their order.
std::vector<SourceItem> ItemsOf(const SourceConfiguration& iConfiguration);

/// The entries of a comma list, as the engine splits it: without any blanks.
std::vector<ORXUnicodeString> SplitList(std::string_view iText);
std::vector<std::string> SplitTexts(std::string_view iText);

ORXUnicodeString UnicodeOf(std::string_view iText);
} // namespace Tool

#endif
