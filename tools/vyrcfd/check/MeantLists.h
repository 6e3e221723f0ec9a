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

/// Whether entries of the one list seem to stand in the other.
/// @param iDefault what is chosen at first; empty for nothing
bool AreSwapped(const std::vector<std::string>& iChoices, const std::vector<std::string>& iStartups,
                std::string_view iDefault);

/// What is said of lists that are swapped.
extern const char SwappedText[];

/// The entries of "value", in the same way.
struct MeantEntries
{
    std::string text;
    std::vector<Finding> findings{};
};

MeantEntries MeantEntriesOf(const SourceItem& iItem);

/// The text between commas as a reader takes it: blanks at its ends do not count.
std::vector<std::string> WrittenEntries(std::string_view iText);

bool Holds(const std::vector<std::string>& iEntries, std::string_view iEntry);
} // namespace Tool

#endif
