#ifndef Difference_H
#define Difference_H

/**
 * @file
 * What has changed in a model from one moment to another.
 */

#include "Snapshot.h"

namespace Tool
{
/// An attribute whose value or flags have changed. A side is null where the object did not carry the attribute then.
struct AttributeChange
{
    const AttributeSnapshot* before;
    const AttributeSnapshot* after;
};

struct ObjectChange
{
    /// The object as it is now; as it was, if it is gone.
    const ObjectSnapshot* object = nullptr;
    bool isNew = false;
    bool isGone = false;
    /// The object that stood at this place before, where there was one; then the object is not new.
    const ObjectSnapshot* replaced = nullptr;
    /// What differs from before, also from an object of the same type that this one has replaced. Otherwise all that a
    /// new object holds, that one that is gone has held, or both, of one whose type has changed.
    std::vector<AttributeChange> attributes;
    std::vector<const RecordSnapshot*> newRecords;
    std::vector<const RecordSnapshot*> goneRecords;
    /// How many records stand in the place of others that said the same.
    std::size_t remadeRecords = 0;

    /// Whether the attributes tell of objects that come or go, not of what has changed on one.
    bool IsOfAnother() const;
    bool IsEmpty() const;
};

/// Refers to the snapshots, which must outlive it.
struct Difference
{
    /// In the order of the later snapshot, then what is gone.
    std::vector<ObjectChange> objects;
    /// By how many records that no object refers to there are more.
    int unreferencedRecords = 0;

    /// On objects that were there before.
    std::size_t ChangedAttributes() const;
    std::size_t NewRecords() const;
};

Difference Compare(const Snapshot& iBefore, const Snapshot& iAfter);
} // namespace Tool

#endif
