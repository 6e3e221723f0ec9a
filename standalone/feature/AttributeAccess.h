#ifndef AttributeAccess_H
#define AttributeAccess_H

#include <optional>
#include <typeinfo>

#include "ORXISpecAttrAccess.h"

namespace VYRStandalone
{
class FeatureKey;
class FeatureObject;

/// The attribute operations of an object: a facet that is part of it.
class AttributeAccess final : public ORXISpecAttrAccess
{
public:
    explicit AttributeAccess(FeatureObject& iObject) : m_object(iObject) {}

    /// The object behind an interface pointer; null for null and for an access that is not the host's.
    static FeatureObject* ObjectOf(ORXISpecAttrAccess* iAccess) noexcept
    {
        // The class is seen in this library alone, so there is one description of it.
        const bool isOwn = iAccess != nullptr && &typeid(*iAccess) == &typeid(AttributeAccess);
        return isOwn ? &static_cast<AttributeAccess*>(iAccess)->m_object : nullptr;
    }

    FeatureObject& Object() const noexcept { return m_object; }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXBaseUnknown* GetImpl(int iKind) const override;
    int IsEqual(const ORXBaseUnknown* iOther) const override;

    ORXISpecAttrKey* GetAttrKey(const char* iName) override;
    ORXBoolean HasAttribute(ORXISpecAttrKey* iKey) override;
    HRESULT SetDouble(ORXISpecAttrKey* iKey, double iValue, int iIndex) override;
    HRESULT SetInteger(ORXISpecAttrKey* iKey, int iValue, int iIndex) override;
    HRESULT SetBoolean(ORXISpecAttrKey* iKey, ORXBoolean iValue, int iIndex) override;
    HRESULT SetString(ORXISpecAttrKey* iKey, const ORXUnicodeString& iValue, int iIndex) override;
    HRESULT SetSpecObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex, int iMode) override;
    double GetDouble(ORXISpecAttrKey* iKey, int iIndex) override;
    int GetInteger(ORXISpecAttrKey* iKey, int iIndex) override;
    ORXBoolean GetBoolean(ORXISpecAttrKey* iKey, int iIndex) override;
    ORXUnicodeString GetString(ORXISpecAttrKey* iKey, int iIndex) override;
    ORXISpecObject* GetSpecObject(ORXISpecAttrKey* iKey, int iIndex) override;
    HRESULT SetStringList(ORXISpecAttrKey* iKey, const ORXListValORXUnicodeString& iValues) override;
    int GetListSize(ORXISpecAttrKey* iKey) override;
    HRESULT RemovePosition(ORXISpecAttrKey* iKey, int iIndex) override;
    HRESULT RemoveAll(ORXISpecAttrKey* iKey) override;
    void RemoveObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject) override;
    HRESULT MoveInPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex) override;
    ORXListValORXBaseUnknown_var* ListObjects(ORXISpecAttrKey* iKey, int iMode) override;
    HRESULT InsertAtPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex) override;

private:
    template <class Value> HRESULT SetEntry(const FeatureKey& iKey, const Value& iValue, int iIndex);
    /// Nothing when it is unset or out of range.
    template <class Value> std::optional<Value> ReadEntry(const FeatureKey& iKey, int iIndex) const;
    HRESULT SetScalarObject(const FeatureKey& iKey, FeatureObject* iObject);
    HRESULT SetObjectEntry(const FeatureKey& iKey, FeatureObject* iObject, int iIndex);

    /// The key of an object attribute, or list of objects, that may take the object (or null); null if not.
    const FeatureKey* ObjectKey(ORXISpecAttrKey* iKey, ORXISpecObject* iObject) const;
    /// Adds the reference of an entry that is about to hold the object, and ownership where the attribute owns.
    void Take(const FeatureKey& iKey, FeatureObject* iObject);
    /// The reverse, for an entry that does not hold the object any more. The reference goes to the caller, so that
    /// the object dies only after the listeners have been told.
    ORXISpecObject_var GiveUp(const FeatureKey& iKey, FeatureObject* iObject);

    FeatureObject& m_object;
};
} // namespace VYRStandalone

#endif
