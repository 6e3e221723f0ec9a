#ifndef Snapshot_H
#define Snapshot_H

/**
 * @file
 * What a model holds at one moment. Taking it changes nothing: flags are read where they are kept, since asking default
 * management for one would make it.
 */

#include <optional>
#include <string>
#include <vector>

#include "ORXISpecObject.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneModel.h"
#include "Value.h"

namespace Tool
{
struct AttributeSnapshot
{
    VYRStandalone::AttributeInfo info;
    Value value;
    /// Nothing for an attribute of an object without default management.
    std::optional<bool> set;
    /// Nothing where there is no such flag.
    std::optional<bool> automatic;

    /// Such as "real" or "list of string".
    std::string KindText() const;
    /// Such as "real" or "list".
    const char* KindName() const;
};

/// An entry of the list of records of an object.
struct RecordSnapshot
{
    /// Null for an empty entry.
    ORXISpecObject_var object;
    std::string path;
    std::string type;
    /// The six texts, as attributes; empty for an entry that is no record.
    std::vector<AttributeSnapshot> attributes;

    /// A text of the record, "" where it has none.
    std::string Text(const std::string& iAttribute) const;
    /// For a reader: `caseName: default "Wing"`.
    std::string Shown() const;
};

struct ObjectSnapshot
{
    ORXISpecObject_var object;
    /// Leads to the object from the model, as a path on the command line does.
    std::string path;
    /// The end of the path behind the object that owns this one.
    std::string label;
    std::string type;
    std::string name;
    std::string alias;
    std::string identifier;
    /// Number of owners in the snapshot.
    int depth = 0;
    /// All but default management.
    std::vector<AttributeSnapshot> attributes;
    /// What default management holds beside the flags of the attributes and the records.
    std::vector<AttributeSnapshot> otherFlags;
    std::vector<RecordSnapshot> records;
};

/// Owners stand in front of what they own. Records stand with their objects, and only those that no object refers to
/// stand among the objects.
using Snapshot = std::vector<ObjectSnapshot>;

/// Everything in the model.
Snapshot TakeSnapshot(const VYRStandalone::Model& iModel);

/**
 * An object and what it owns. @param iAttribute where not empty, that attribute alone, and what it owns
 * @param iPath path of an object that stands at no place in the model
 */
Snapshot TakeSnapshot(const VYRStandalone::Model& iModel, const ORXISpecObject_var& iObject, const std::string& iPath,
                      const std::string& iAttribute = {});
} // namespace Tool

#endif
