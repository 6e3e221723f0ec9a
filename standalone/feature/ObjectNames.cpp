#include "ObjectNames.h"

#include "FeatureObject.h"

namespace VYRStandalone
{
HRESULT AliasFacet::QueryInterface(const IID& iInterface, void** oInterface)
{
    return m_object.QueryInterface(iInterface, oInterface);
}

unsigned int AliasFacet::AddRef()
{
    return m_object.AddRef();
}

unsigned int AliasFacet::Release()
{
    return m_object.DropReference();
}

ORXBaseUnknown* AliasFacet::GetImpl(int iKind) const
{
    return m_object.GetImpl(iKind);
}

HRESULT IdentifierFacet::QueryInterface(const IID& iInterface, void** oInterface)
{
    return m_object.QueryInterface(iInterface, oInterface);
}

unsigned int IdentifierFacet::AddRef()
{
    return m_object.AddRef();
}

unsigned int IdentifierFacet::Release()
{
    return m_object.DropReference();
}

ORXBaseUnknown* IdentifierFacet::GetImpl(int iKind) const
{
    return m_object.GetImpl(iKind);
}
} // namespace VYRStandalone
