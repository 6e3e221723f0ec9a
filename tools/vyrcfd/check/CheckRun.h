#ifndef CheckRun_H
#define CheckRun_H

/**
 * @file
 * The checks that need no catalog. Each looks at one kind of mistake, and adds what it finds.
 */

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "FindingList.h"
#include "MeantSource.h"
#include "Suggestions.h"

namespace Tool
{
/// What all checks of one run share.
struct CheckRun
{
    explicit CheckRun(MeantSource& ioMeant) : meant(ioMeant), source(ioMeant.Source()) {}

    MeantSource& meant;
    /// What was meant.
    const ConfigurationSource& source;
    FindingList findings{};
    Suggestions suggestions{};
    /// False while files or catalogs are missing: what they would hold may be referred to, and may refer to the rest.
    bool isWhole = true;

    /// Configurations whose objects are not known, since a mistake stands where the way to them is told. What they are
    /// for is not guessed then: it would be found wrong for that mistake alone.
    std::set<std::string, std::less<>> unclear{};

    /// Names with two definitions of which one was probably meant to have another, and it is not known which: nothing
    /// is said of what would follow from that.
    std::set<std::string, std::less<>> ambiguous{};

    /// What the only item that applies its own configuration was probably meant to apply; empty where nobody knows.
    std::string meantInsteadOfItself{};
    /// Items by which configurations lead back to themselves, each as its configuration and number.
    std::set<std::pair<const SourceConfiguration*, std::size_t>> closing{};

    /// The configurations that catalogs mean by misspelt names.
    std::map<std::string, std::string, std::less<>> meantByCatalogs{};

    /// Configurations that are applied from outside: a catalog says that they are for a type, or a reference that is
    /// misspelt means them.
    std::set<std::string, std::less<>> wanted{};
    /// Whether any catalog says what is applied by itself.
    bool knowsWanted = false;
    /// Whether there is any catalog at all. Where there is none, what nothing refers to is told of once, of all of them
    /// together: which of them are applied by themselves is not known.
    bool hasCatalogs = true;
    std::vector<Finding> unused{};
    /// Whether an item has lost the name of the configuration that it would apply, which may be any.
    bool hasLostReference = false;

    void Add(Finding iFinding) { findings.Add(std::move(iFinding)); }
    /// The same, with what was probably meant. @return that; empty where nothing is like it
    std::string Add(Finding iFinding, std::string_view iUnknown, const std::vector<std::string>& iKnown)
    {
        suggestions.Complete(iFinding, iUnknown, iKnown);
        std::string suggestion = iFinding.suggestion;
        findings.Add(std::move(iFinding));
        return suggestion;
    }
};

/// Files that fail the engine's load, that it passes over, and that have nothing in them.
void CheckFiles(const Installation& iInstallation, const ConfigurationSource& iWritten, CheckRun& ioRun);

/// Keys that nothing reads, that stand twice, or whose value is of the wrong kind, everywhere in the files.
void CheckKeys(const ConfigurationSource& iWritten, CheckRun& ioRun);

/// Items that do nothing, and keys that an item passes over in favour of others.
void CheckRoles(CheckRun& ioRun);

/// The words for the types of attributes with a default.
const std::vector<std::string>& TypeWords();

/// Configurations without a name, with a name that is taken, that nothing refers to, and references to none. A
/// configuration that a catalog lists as meant for a type is referred to.
void CheckNames(CheckRun& ioRun);

/// Configurations that apply themselves in the end. One finding for each group that hangs together, and another where
/// nothing applies the group, for which the names must have been checked.
void CheckCycles(CheckRun& ioRun);

/// Conditions that are none, and such as compare something else than they seem to, as far as the text shows.
void CheckConditionTexts(CheckRun& ioRun);

/// Items that stand twice in a configuration.
void CheckRepeatedItems(CheckRun& ioRun);

/// Comma lists: their lengths, their entries, and a default that is none of its choices.
void CheckLists(CheckRun& ioRun);

/// Paths with an empty name in them, and those of defaults and values, which the engine takes for the name of one
/// attribute.
void CheckPaths(CheckRun& ioRun);

/// Adds that nothing applies a configuration.
void AddUnused(const SourceConfiguration& iConfiguration, const std::string& iWhy, CheckRun& ioRun);

/// Adds the one finding for all that nothing applies where there are no catalogs.
void AddUnusedWithoutCatalogs(CheckRun& ioRun);

/// How much of a path the cursor follows: it stops, without an error, at the first name that is empty.
std::size_t EndOfNames(std::string_view iPath);

/// Defaults of the same attribute in one configuration. Of such as are good by themselves, so that all other checks of
/// defaults come before.
void CheckRepeatedDefaults(CheckRun& ioRun);

/// Whether an item has a key that is unknown or of the wrong kind, and it is not known what was meant. That says then
/// why the item does not do what it seems to.
bool HasWrongKey(const SourceValue& iItem);
} // namespace Tool

#endif
