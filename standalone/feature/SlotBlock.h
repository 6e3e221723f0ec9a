#ifndef SlotBlock_H
#define SlotBlock_H

#include <cstddef>
#include <memory>

namespace VYRStandalone
{
/**
 * Memory for slots. It is held by the object that the slots belong to, and by every value inside it that somebody
 * still holds when the object dies.
 */
class SlotBlock
{
public:
    /// With one holder. Alignment is that of the allocator.
    static SlotBlock* Make(std::size_t iBytes);

    void Hold() noexcept { ++m_holders; }
    void Drop() noexcept;

    struct Dropper
    {
        void operator()(SlotBlock* iBlock) const noexcept { iBlock->Drop(); }
    };
    using Holder = std::unique_ptr<SlotBlock, Dropper>;

    void* At(std::size_t iOffset) noexcept { return reinterpret_cast<std::byte*>(this) + Header + iOffset; }

private:
    SlotBlock() = default;

    static constexpr std::size_t Header = alignof(std::max_align_t);

    unsigned m_holders = 1;
};
} // namespace VYRStandalone

#endif
