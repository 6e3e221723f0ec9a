#ifndef ORXBaseUnknown_H
#define ORXBaseUnknown_H

/**
 * @file
 * The root of all interfaces and of all classes that implement or extend components. Run-time seam for the virtual
 * operations; link-time seam for their default implementations, which belong to the host.
 */

#include <cstddef>
#include <cstdint>
#include <new>

#include "IUnknown.h"
#include "ORXHandle.h"
#include "ORXInterfaceIds.h"

class ORXMetaClass;
class ORXBaseUnknown;

using ORXBaseUnknown_var = ORXHandle<ORXBaseUnknown>;

/**
 * A component, or one facet of it.
 *
 * One component that is reached through several interfaces is one object: identity is told by `IsEqual`, never by
 * comparing pointers.
 *
 * A class that derives from here and overrides nothing is a component of its own: it starts with one reference, which
 * belongs to whoever made it, and is deleted with its last. An instance that the component model makes for an
 * extension class is *linked* to the object that it extends before its constructor runs; from then on its counting,
 * casting and identity are those of that object, and the object deletes it at its own end. A class that is to be
 * linked has exactly one `ORXBaseUnknown` among its bases, as its first.
 */
class ORXHostExport ORXBaseUnknown : public IUnknown
{
public:
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;

    /// Automation is not offered by this host: the four operations answer E_NOTIMPL.
    /// @{
    virtual HRESULT GetTypeInfoCount(unsigned int* oCount);
    virtual HRESULT GetTypeInfo(unsigned int iIndex, unsigned int iLocale, void** oInfo);
    virtual HRESULT GetIDsOfNames(const IID& iReserved, const char** iNames, unsigned int iCount, unsigned int iLocale,
                                  int* oIdentifiers);
    virtual HRESULT Invoke(int iIdentifier, const IID& iReserved, unsigned int iLocale, void* ioArguments);
    /// @}

    /// As `QueryInterface` by identifier, the interface given by its class name.
    virtual HRESULT QueryInterface(const char* iInterfaceName, void** oInterface);

    virtual ~ORXBaseUnknown();

    /// Meta class of this class; borrowed, valid until the process ends. Null for a class that has none.
    virtual ORXMetaClass* GetMetaObject() const;

    /// Class name, as the meta class holds it; "ORXBaseUnknown" for a class without one.
    virtual const char* IsA() const;

    /// Nonzero when the class or one of its bases bears the name.
    virtual int IsAKindOf(const char* iClassName) const;

    /**
     * With 0 gives the root of the component: the same pointer for every facet, linked extension and tie of one
     * object. Borrowed, valid until the component dies. Any other argument gives null.
     */
    virtual ORXBaseUnknown* GetImpl(int iKind) const;

    /// Zero for every component that is alive.
    virtual int IsNull() const;

    /// Nonzero when both denote one component, also through different interfaces. Null is never equal.
    virtual int IsEqual(const ORXBaseUnknown* iOther) const;

    /// Asks the component to change to another implementation. No component of this application does: E_NOTIMPL.
    virtual HRESULT ChangeComponentState(int iState, int iFlags, const void* iContext);

    /**
     * As `AddRef` and `Release`, for handles: without a virtual call where the host counts the component in a place
     * that it has told, or not at all. The last reference always goes by `Release`.
     */
    /// @{
    void CountIn() noexcept
    {
        if (!IsCountedElsewhere())
            AddRef();
        else if (unsigned int* const count = PlaceOfCount())
            ++*count;
    }
    void CountOut()
    {
        unsigned int* const count = IsCountedElsewhere() ? PlaceOfCount() : nullptr;
        if (count != nullptr && *count > 1)
            --*count;
        else if (count != nullptr || !IsCountedElsewhere())
            Release();
    }
    /// @}

    static const IID& ClassId() noexcept { return IID_ORXBaseUnknown; }

    /// Instances and ties are allocated here, so that the component model can link what is being constructed.
    static void* operator new(std::size_t iSize);
    /// Null where there is no memory.
    static void* operator new(std::size_t iSize, const std::nothrow_t& iNothrow) noexcept;
    /// Memory of an instance whose constructor has thrown.
    static void operator delete(void* iMemory, const std::nothrow_t& iNothrow) noexcept;
    /// Memory of an instance that is deleted.
    static void operator delete(void* iMemory, std::size_t iSize) noexcept;

    ORXBaseUnknown(const ORXBaseUnknown&) = delete;
    ORXBaseUnknown& operator=(const ORXBaseUnknown&) = delete;

protected:
    ORXBaseUnknown() noexcept;

private:
    friend class ORXComponentLink;

    static constexpr std::uintptr_t StateKind = 3;
    static constexpr std::uintptr_t CountedElsewhere = 2;

    bool IsCountedElsewhere() const noexcept { return (m_state & StateKind) == CountedElsewhere; }
    /// Null for a component that is not counted.
    unsigned int* PlaceOfCount() const noexcept { return reinterpret_cast<unsigned int*>(m_state & ~StateKind); }

    /// A count of its own, shifted left with bit 0 set; the linked object's root; or, with bit 1 set and bit 0 not, the
    /// place of its count. One word, since every value and every parameter carries it.
    std::uintptr_t m_state;
};

#endif
