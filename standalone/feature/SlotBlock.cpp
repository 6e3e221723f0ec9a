#include "SlotBlock.h"

#include <new>

namespace VYRStandalone
{
SlotBlock* SlotBlock::Make(std::size_t iBytes, FeatureObject& iOwner)
{
    static_assert(sizeof(SlotBlock) <= Header);
    return ::new (::operator new(Header + iBytes)) SlotBlock(iOwner);
}

void SlotBlock::Drop() noexcept
{
    if (--m_holders == 0)
        ::operator delete(this);
}
} // namespace VYRStandalone
