#ifndef ManipulatorTable_H
#define ManipulatorTable_H

#include <memory>
#include <vector>

#include "ORXICkeManipulator.h"

namespace VYRStandalone
{
class AttributeParm;
class FeatureKey;

/// The manipulators of an object's attributes. Few attributes ever have one, so none has a place for it in its slot.
class ManipulatorTable
{
public:
    /// Replaces the one that the attribute has.
    ORXICkeManipulator_var Make(const AttributeParm& iParm);
    /// Null for none.
    ORXICkeManipulator_var Find(const FeatureKey& iKey) const;
    /// The attribute is no more. Who still holds its manipulator has one of no attribute.
    void Drop(const FeatureKey& iKey) noexcept;

private:
    struct Entry
    {
        const FeatureKey* key;
        ORXICkeManipulator_var manipulator;
    };

    Entry* EntryOf(const FeatureKey& iKey) const noexcept;

    /// Null until the first is made.
    std::unique_ptr<std::vector<Entry>> m_entries;
};
} // namespace VYRStandalone

#endif
