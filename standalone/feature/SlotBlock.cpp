#include "SlotBlock.h"

#include <new>

namespace VYRStandalone
{
SlotBlock* SlotBlock::Make(std::size_t iBytes)
{
    return ::new (::operator new(Header + iBytes)) SlotBlock;
}

void SlotBlock::Drop() noexcept
{
    if (--m_holders == 0)
        ::operator delete(this);
}
} // namespace VYRStandalone
