#ifndef SlotMaking_H
#define SlotMaking_H

#include <cstddef>

#include "FeatureKey.h"

namespace VYRStandalone
{
class FeatureObject;
class SlotBlock;

/// How slots are laid out and made in the memory of a block.
class SlotMaking
{
public:
    /// That of an optional attribute ends in a mark that says whether it has been added.
    static std::size_t BytesOf(const FeatureKey::Traits& iTraits) noexcept;
    /// Where the mark is, from the slot's own place.
    static std::size_t MarkOffset(const FeatureKey::Traits& iTraits) noexcept;

    /// An empty slot of the key's kind: unset, no object, no entries.
    static void Make(void* iPlace, FeatureObject& iObject, const FeatureKey& iKey, SlotBlock& iBlock);
};
} // namespace VYRStandalone

#endif
