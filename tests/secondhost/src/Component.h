#ifndef Component_H
#define Component_H

#include "ORXBaseUnknown.h"

namespace SecondHost
{
/// A component with one interface.
template <class Interface> class Component : public Interface
{
public:
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        if (!(iInterface == Interface::ClassId()))
            return ORXBaseUnknown::QueryInterface(iInterface, oInterface);
        *oInterface = static_cast<Interface*>(this);
        this->AddRef();
        return S_OK;
    }
    using Interface::QueryInterface;
};

/// One interface of a component that has several. It counts, casts and is compared as its root.
template <class Interface> class Facet : public Interface
{
public:
    explicit Facet(ORXBaseUnknown& iRoot) : m_root(iRoot) {}

    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        return m_root.QueryInterface(iInterface, oInterface);
    }
    using Interface::QueryInterface;
    unsigned int AddRef() override { return m_root.AddRef(); }
    unsigned int Release() override { return m_root.Release(); }
    ORXBaseUnknown* GetImpl(int iKind) const override { return m_root.GetImpl(iKind); }

private:
    ORXBaseUnknown& m_root;
};

/// Throws: the operation needs something that this host does not have.
[[noreturn]] void NotOffered(const char* iWhat);
} // namespace SecondHost

#endif
