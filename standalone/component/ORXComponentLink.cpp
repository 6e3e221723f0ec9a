#include "ORXComponentLink.h"

constinit thread_local ORXComponentLink::Pending* ORXComponentLink::s_pending = nullptr;

ORXComponentLink::Pending::Pending(ORXBaseUnknown& iRoot) noexcept : m_root(&iRoot), m_outer(s_pending)
{
    s_pending = this;
}

ORXComponentLink::Pending::~Pending()
{
    // Usually the link was taken, and then this record stands no longer.
    if (s_pending == this)
        s_pending = m_outer;
}

std::uintptr_t ORXComponentLink::TakePending(const ORXBaseUnknown* iComponent) noexcept
{
    const Pending& pending = *s_pending;
    const std::byte* const begin = reinterpret_cast<const std::byte*>(iComponent);
    if (pending.m_begin == nullptr || begin < pending.m_begin || begin >= pending.m_begin + pending.m_size)
        return OneReference;
    // What the extension's constructor makes is none of this link's business.
    s_pending = pending.m_outer;
    return reinterpret_cast<std::uintptr_t>(pending.m_root);
}

void ORXComponentLink::NotePending(const void* iMemory, std::size_t iSize) noexcept
{
    Pending& pending = *s_pending;
    if (pending.m_begin != nullptr)
        return;
    pending.m_begin = static_cast<const std::byte*>(iMemory);
    pending.m_size = iSize;
}
