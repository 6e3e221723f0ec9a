#ifndef ORXComponentLink_H
#define ORXComponentLink_H

#include <cstddef>
#include <cstdint>

#include "ORXBaseUnknown.h"

/**
 * How the stand-alone host looks into the one word of state that every `ORXBaseUnknown` carries.
 *
 * An extension instance has to be linked before its constructor runs. So while the host has one made, `Pending` stands
 * for this thread: the allocation that follows notes its range, and the first `ORXBaseUnknown` that is constructed in
 * that range takes the link instead of a count of its own.
 */
class ORXComponentLink
{
public:
    class Pending
    {
    public:
        explicit Pending(ORXBaseUnknown& iRoot) noexcept;
        ~Pending();
        Pending(const Pending&) = delete;
        Pending& operator=(const Pending&) = delete;

    private:
        friend class ORXComponentLink;

        ORXBaseUnknown* m_root;
        const std::byte* m_begin = nullptr;
        std::size_t m_size = 0;
        Pending* m_outer;
    };

    static std::uintptr_t InitialState(const ORXBaseUnknown* iComponent) noexcept
    {
        return s_pending == nullptr ? OneReference : TakePending(iComponent);
    }
    static void NoteAllocation(const void* iMemory, std::size_t iSize) noexcept
    {
        if (s_pending != nullptr)
            NotePending(iMemory, iSize);
    }

    static bool IsLinked(const ORXBaseUnknown& iComponent) noexcept
    {
        return (iComponent.m_state & ORXBaseUnknown::StateKind) == 0;
    }
    /// Of a linked component.
    static ORXBaseUnknown* Root(const ORXBaseUnknown& iComponent) noexcept
    {
        return reinterpret_cast<ORXBaseUnknown*>(iComponent.m_state);
    }
    /// Of a component that counts itself.
    static unsigned int Count(const ORXBaseUnknown& iComponent) noexcept
    {
        return static_cast<unsigned int>(iComponent.m_state >> 1);
    }
    static void Link(ORXBaseUnknown& ioComponent, ORXBaseUnknown& iRoot) noexcept
    {
        ioComponent.m_state = reinterpret_cast<std::uintptr_t>(&iRoot);
    }

    /// Handles count the component there from now on; its `AddRef` and `Release` must do the same, and more with the
    /// last reference only. Null for a component that is not counted.
    static void CountAt(ORXBaseUnknown& ioComponent, unsigned int* iPlace) noexcept
    {
        ioComponent.m_state = reinterpret_cast<std::uintptr_t>(iPlace) | ORXBaseUnknown::CountedElsewhere;
    }

    static constexpr std::uintptr_t OneReference = 3;

private:
    static std::uintptr_t TakePending(const ORXBaseUnknown* iComponent) noexcept;
    static void NotePending(const void* iMemory, std::size_t iSize) noexcept;

    /// Null but while an extension is being made. Of the cheapest model, since every construction reads it.
    [[gnu::tls_model("initial-exec")]] static constinit thread_local Pending* s_pending;
};

#endif
