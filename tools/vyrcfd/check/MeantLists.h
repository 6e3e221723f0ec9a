#ifndef MeantLists_H
#define MeantLists_H

/**
 * @file
 * The comma lists of an item as their writer has probably meant them, so that one mistake in them is not followed by
 * others that are none.
 */

#include <string>
#include <string_view>
#include <vector>

#include "Finding.h"

namespace Tool
{
/// The two lists of an item with "choices".
struct MeantLists
{
    /// With commas between the entries.
    /// @{
    std::string choices;
    std::string startups;
    /// @}
    bool hasStartups = false;
    /// Under which each of them stands.
    /// @{
    const char* choicesKey = "choices";
    const char* startupsKey = "Startups";
    /// @}
    /// What stands in the file in another way.
    std::vector<Finding> findings{};
};

MeantLists MeantListsOf(const SourceItem& iItem);

/// The same for the entries of "value".
struct MeantEntries
{
    std::string text;
    std::vector<Finding> findings{};
};

MeantEntries MeantEntriesOf(const SourceItem& iItem);

/// The text between commas as a reader takes it: blanks at its ends do not count.
std::vector<std::string> WrittenEntries(std::string_view iText);
} // namespace Tool

#endif
