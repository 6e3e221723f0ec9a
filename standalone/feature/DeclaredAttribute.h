#ifndef DeclaredAttribute_H
#define DeclaredAttribute_H

#include "FeatureObject.h"
#include "ORXISpecAttribute.h"

namespace VYRStandalone
{
/// What `AddAttribute` gives for an attribute that the object's type declares already. It holds the object.
class DeclaredAttribute final : public ORXISpecAttribute
{
public:
    /// New reference.
    DeclaredAttribute(FeatureObject& iObject, FeatureKey& iKey)
        : m_object(ORXISpecObject_var::Share(&iObject)), m_access(iObject.Access()), m_key(iKey)
    {
    }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        if (!(iInterface == IID_ORXISpecAttribute))
            return ORXBaseUnknown::QueryInterface(iInterface, oInterface);
        AddRef();
        *oInterface = this;
        return S_OK;
    }

    /// Made at each request: object and key decide.
    int IsEqual(const ORXBaseUnknown* iOther) const override
    {
        const DeclaredAttribute* const other = dynamic_cast<const DeclaredAttribute*>(iOther);
        return other != nullptr && other->m_object == m_object && &other->m_key == &m_key ? 1 : 0;
    }

    HRESULT SetBoolean(ORXBoolean iValue, int iIndex) override { return m_access.SetBoolean(&m_key, iValue, iIndex); }

private:
    ORXISpecObject_var m_object;
    AttributeAccess& m_access;
    FeatureKey& m_key;
};
} // namespace VYRStandalone

#endif
