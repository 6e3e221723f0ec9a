#include "SlotMaking.h"

#include <new>

#include "AttributeParm.h"
#include "Slots.h"

namespace VYRStandalone
{
namespace
{
ListEntries EmptyList(const KnowledgeType* iType)
{
    if (iType == nullptr)
        return std::vector<FeatureObject*>();
    switch (iType->Kind())
    {
    case ValueKind::Real:
        return std::vector<double>();
    case ValueKind::String:
        return std::vector<ORXUnicodeString>();
    default:
        return std::vector<int>();
    }
}

constexpr std::size_t Rounded(std::size_t iBytes) noexcept
{
    constexpr std::size_t alignment = alignof(std::max_align_t);
    return (iBytes + alignment - 1) / alignment * alignment;
}
} // namespace

std::size_t SlotMaking::BytesOf(const FeatureKey::Traits& iTraits) noexcept
{
    return MarkOffset(iTraits) + (iTraits.isOptional ? Rounded(sizeof(bool)) : 0);
}

std::size_t SlotMaking::MarkOffset(const FeatureKey::Traits& iTraits) noexcept
{
    if (iTraits.type == tk_list)
        return Rounded(sizeof(ListSlot));
    return Rounded(iTraits.knowledge != nullptr ? sizeof(AttributeParm) : sizeof(ObjectSlot));
}

void SlotMaking::Make(void* iPlace, FeatureObject& iObject, const FeatureKey& iKey, SlotBlock& iBlock)
{
    if (iKey.IsOptional())
        ::new (static_cast<std::byte*>(iPlace) + MarkOffset(iKey.Kind())) bool(false);
    switch (iKey.Slot())
    {
    case SlotKind::Value:
        ::new (iPlace) AttributeParm(iObject, iKey, iBlock);
        break;
    case SlotKind::Object:
        ::new (iPlace) ObjectSlot;
        break;
    case SlotKind::List:
        ::new (iPlace) ListSlot{EmptyList(iKey.Knowledge())};
        break;
    }
}
} // namespace VYRStandalone
