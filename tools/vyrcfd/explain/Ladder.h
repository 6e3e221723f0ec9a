#ifndef Ladder_H
#define Ladder_H

/**
 * @file
 * The ladder of defaults of an attribute: what default management would take, rung by rung.
 */

#include <optional>
#include <string>
#include <vector>

#include "Defaults.h"
#include "Difference.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/// A record that gives a default to the attribute.
struct RecordRung
{
    /// In the object's list, from 1.
    std::size_t position = 0;
    RecordSnapshot record;
    /// What default management reads from it; unset where it cannot.
    Value value;
};

/// The start-up, which every object has but one whose type does not declare the attribute.
struct PrototypeRung
{
    /// Such as "[Flow]/solver": a part that came with its owner has its owner's.
    std::string path;
    Value value;
    /// The types whose start-ups hold it, the innermost first, each with the names that lead to the attribute from
    /// there.
    struct Level
    {
        std::string type;
        std::vector<std::string> names;
    };
    std::vector<Level> levels;
};

/// What an `unset` would do.
struct Unsetting
{
    AttributeSnapshot attribute;
    Snapshot before;
    Snapshot after;
    /// Everything that it changes, beside the attribute too; refers to the snapshots, also when they are moved.
    Difference difference;
};

struct Ladder
{
    /// The top rung, which counts wherever there is one.
    std::optional<Value> customDefault;
    /// Those that give a default, in their order: without a custom default the first one counts.
    std::vector<RecordRung> records;
    std::optional<PrototypeRung> prototype;
    /// What default management takes, and from where.
    AttributeDefault byDefault;
    /// Whether it found anything, be it a start-up without value.
    bool isFound = false;
};

/// Whether the object has default management: without it nothing is set, unset or has a default.
bool IsManaged(const ORXISpecObject_var& iObject);

/**
 * Asks default management, on copies of the model, so that nothing is left behind in it. Custom defaults live in memory
 * only, so that copies have none but the one that is given.
 * @param iPath leads to an attribute of an object with default management
 * @param iCustomDefault what the attribute has in the model
 * @throws Failure where default management ends fatally, as on an empty entry among the records
 */
Ladder LadderOf(const VYRStandalone::Model& iModel, const std::string& iPath,
                const std::optional<Value>& iCustomDefault);

/// Likewise.
Unsetting TryUnset(const VYRStandalone::Model& iModel, const std::string& iPath,
                   const std::optional<Value>& iCustomDefault);
} // namespace Tool

#endif
