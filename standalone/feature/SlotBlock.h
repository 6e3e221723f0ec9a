#ifndef SlotBlock_H
#define SlotBlock_H

#include <cstddef>
#include <memory>

namespace VYRStandalone
{
class FeatureObject;

/**
 * Memory for slots. It is held by the object that the slots belong to, and by every value inside it that somebody
 * still holds when the object dies.
 */
class SlotBlock
{
public:
    /// With one holder, the object that the slots belong to. Alignment is that of the allocator.
    static SlotBlock* Make(std::size_t iBytes, FeatureObject& iOwner);

    /// For the slots, which end before it does; the block may outlive it.
    FeatureObject& Owner() const noexcept { return m_owner; }

    void Hold() noexcept { ++m_holders; }
    void Drop() noexcept;

    struct Dropper
    {
        void operator()(SlotBlock* iBlock) const noexcept { iBlock->Drop(); }
    };
    using Holder = std::unique_ptr<SlotBlock, Dropper>;

    void* At(std::size_t iOffset) noexcept { return reinterpret_cast<std::byte*>(this) + Header + iOffset; }

private:
    explicit SlotBlock(FeatureObject& iOwner) noexcept : m_owner(iOwner) {}

    static constexpr std::size_t Header = alignof(std::max_align_t);

    FeatureObject& m_owner;
    unsigned m_holders = 1;
};
} // namespace VYRStandalone

#endif
