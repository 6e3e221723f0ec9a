#ifndef CheckRun_H
#define CheckRun_H

/**
 * @file
 * The checks that need no catalog. Each looks at one kind of mistake, and adds what it finds.
 */

#include "ConfigurationSource.h"
#include "FindingList.h"
#include "Suggestions.h"

namespace Tool
{
/// What all checks of one run share.
struct CheckRun
{
    const ConfigurationSource& source;
    FindingList findings{};
    Suggestions suggestions{};

    void Add(Finding iFinding) { findings.Add(std::move(iFinding)); }
    /// The same, with what was probably meant.
    void Add(Finding iFinding, std::string_view iUnknown, const std::vector<std::string>& iKnown)
    {
        suggestions.Complete(iFinding, iUnknown, iKnown);
        findings.Add(std::move(iFinding));
    }
};

/// Keys that nothing reads, that stand twice, or whose value is of the wrong kind, everywhere in the files.
void CheckKeys(CheckRun& ioRun);

/// Items that do nothing, and keys that an item passes over in favour of others.
void CheckRoles(CheckRun& ioRun);

/// Configurations without a name, with a name that is taken, that nothing refers to, and references to none. A
/// configuration that a catalog lists as meant for a type is referred to.
void CheckNames(CheckRun& ioRun);

/// Configurations that apply themselves in the end. One finding for each group that hangs together.
void CheckCycles(CheckRun& ioRun);

/// Conditions that are none, and such as compare something else than they seem to, as far as the text shows.
void CheckConditionTexts(CheckRun& ioRun);

/// Comma lists: their lengths, their entries, and a default that is none of its choices.
void CheckLists(CheckRun& ioRun);

/// Paths of defaults and values that the engine takes for the name of one attribute, and defaults of the same attribute
/// in one configuration.
void CheckDefaultPaths(CheckRun& ioRun);

/// Whether an item has a key that is unknown or of the wrong kind, which then says why the item does not do what it
/// seems to.
bool HasWrongKey(const SourceValue& iItem);
} // namespace Tool

#endif
