#ifndef ORXHandle_H
#define ORXHandle_H

/**
 * @file
 * The counted handle, one template for all interfaces. A value class: what copying a cursor costs is decided here.
 */

#include <type_traits>
#include <utility>

#include "IUnknown.h"

class ORXBaseUnknown;

/// The null handle, for initialising, assigning and comparing: `spObject != NULL_var`.
struct ORXNullVar
{
};
/// The one value of its type.
inline constexpr ORXNullVar NULL_var{};

/**
 * The host's fatal reaction to a call through a null handle. Does not return. Link-time seam: the stand-alone host
 * throws, the module never catches.
 */
[[noreturn]] ORXHostExport void ORXThrowErrorNullVar();

/**
 * True when both denote one component, or both are null; with one null argument it is the null test. Link-time seam.
 */
ORXHostExport bool ORXSameComponent(IUnknown* iLeft, IUnknown* iRight) noexcept;

/**
 * Holds one counted pointer to an interface, or null.
 *
 * - Constructing or assigning from a handle of another interface is a cast: the component is asked for the interface,
 *   and the handle is null when the source is null (then nothing is asked) or does not offer it. Where the source's
 *   interface derives from this one, nothing has to be asked.
 * - A raw pointer gets in by one of two named functions: `Adopt` takes over a new reference, `Share` adds its own.
 * - Assignment stores the new pointer before the old one is released, since a release may run code that looks at this
 *   very handle.
 */
template <class Interface> class ORXHandle
{
public:
    constexpr ORXHandle() noexcept = default;
    /// Null.
    constexpr ORXHandle(ORXNullVar) noexcept {}

    /// Copies and adds a reference.
    ORXHandle(const ORXHandle& iOther) noexcept : m_pointer(iOther.m_pointer) { AddReference(); }

    /// Takes the reference; the source is null afterwards.
    ORXHandle(ORXHandle&& ioOther) noexcept : m_pointer(std::exchange(ioOther.m_pointer, nullptr)) {}

    /// Takes the reference of a handle whose interface derives from this one; the source is null afterwards.
    template <class Other>
    requires(!std::is_same_v<Other, Interface> && std::is_base_of_v<Interface, Other>)
        ORXHandle(ORXHandle<Other>&& ioOther)
    noexcept : m_pointer(ioOther.GiveUp()) {}

    /// The cast. The handle holds a reference of its own.
    template <class Other>
    requires(!std::is_same_v<Other, Interface>) ORXHandle(const ORXHandle<Other>& iOther)
    {
        if constexpr (std::is_base_of_v<Interface, Other>)
        {
            m_pointer = iOther.Pointer();
            AddReference();
        }
        else if (iOther.Pointer() != nullptr)
            m_pointer = Ask(iOther.Pointer());
    }

    ~ORXHandle()
    {
        if (m_pointer == nullptr)
            return;
        if constexpr (std::is_base_of_v<ORXBaseUnknown, Interface>)
            m_pointer->CountOut();
        else
            m_pointer->Release();
    }

    /// One assignment for copy, move and cast: the argument holds what is to be released.
    ORXHandle& operator=(ORXHandle iOther) noexcept
    {
        std::swap(m_pointer, iOther.m_pointer);
        return *this;
    }

    /// Takes over a new reference; adds none.
    [[nodiscard]] static ORXHandle Adopt(Interface* iNewReference) noexcept
    {
        ORXHandle handle;
        handle.m_pointer = iNewReference;
        return handle;
    }

    /// Shares a borrowed pointer: adds a reference of its own.
    [[nodiscard]] static ORXHandle Share(Interface* iBorrowed) noexcept
    {
        ORXHandle handle;
        handle.m_pointer = iBorrowed;
        handle.AddReference();
        return handle;
    }

    /// The cast from a borrowed pointer of any kind; null gives a null handle.
    [[nodiscard]] static ORXHandle Cast(IUnknown* iBorrowed)
    {
        ORXHandle handle;
        if (iBorrowed != nullptr)
            handle.m_pointer = Ask(iBorrowed);
        return handle;
    }

    /// The cast in place; the old value is released after the new one is stored.
    void __CastTo(IUnknown* iBorrowed) { *this = Cast(iBorrowed); }

    /// Nonzero when null.
    int operator!() const noexcept { return m_pointer == nullptr ? 1 : 0; }
    /// The contrary of the null test.
    explicit operator bool() const noexcept { return m_pointer != nullptr; }

    /// On a null handle calls `ThrowErrorNullVar`, which does not return.
    Interface* operator->() const
    {
        if (m_pointer == nullptr)
            ThrowErrorNullVar();
        return m_pointer;
    }

    /// Borrowed, valid as long as this handle holds it; null is possible.
    /// @{
    operator Interface*() const noexcept { return m_pointer; }
    Interface* Pointer() const noexcept { return m_pointer; }
    /// @}

    /// Borrowed no more: the reference is the caller's.
    [[nodiscard]] Interface* GiveUp() noexcept { return std::exchange(m_pointer, nullptr); }

    /// See `ORXThrowErrorNullVar`.
    [[noreturn]] static void ThrowErrorNullVar() { ORXThrowErrorNullVar(); }

    /// See `ORXSameComponent`.
    static bool equal_to(IUnknown* iLeft, IUnknown* iRight) noexcept { return ORXSameComponent(iLeft, iRight); }

private:
    void AddReference() const noexcept
    {
        if (m_pointer == nullptr)
            return;
        if constexpr (std::is_base_of_v<ORXBaseUnknown, Interface>)
            m_pointer->CountIn();
        else
            m_pointer->AddRef();
    }

    static Interface* Ask(IUnknown* iComponent)
    {
        void* answer = nullptr;
        iComponent->QueryInterface(Interface::ClassId(), &answer);
        return static_cast<Interface*>(answer);
    }

    Interface* m_pointer = nullptr;
};

/// Identity of components, also across interfaces.
template <class Left, class Right>
bool operator==(const ORXHandle<Left>& iLeft, const ORXHandle<Right>& iRight) noexcept
{
    return ORXSameComponent(iLeft.Pointer(), iRight.Pointer());
}

/// The contrary of `operator==`.
template <class Left, class Right>
bool operator!=(const ORXHandle<Left>& iLeft, const ORXHandle<Right>& iRight) noexcept
{
    return !(iLeft == iRight);
}

/// The null test.
template <class Interface> bool operator==(const ORXHandle<Interface>& iLeft, ORXNullVar) noexcept
{
    return iLeft.Pointer() == nullptr;
}

/// The contrary of the null test.
template <class Interface> bool operator!=(const ORXHandle<Interface>& iLeft, ORXNullVar) noexcept
{
    return iLeft.Pointer() != nullptr;
}

#endif
