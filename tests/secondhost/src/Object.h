#ifndef Object_H
#define Object_H

#include <vector>

#include "Component.h"
#include "ORXISpecAttrAccess.h"
#include "ORXISpecObject.h"
#include "Types.h"

namespace SecondHost
{
/// One value of any kind.
struct Value
{
    bool isSet = false;
    double number = 0.0;
    ORXUnicodeString text;
    ORXISpecObject_var object;
};

class Object;

class ObjectFacet final : public Facet<ORXISpecObject>
{
public:
    explicit ObjectFacet(Object& iObject);

    ORXUnicodeString GetName() override;
    ORXUnicodeString GetType() override;
    ORXBoolean IsSubTypeOf(const ORXUnicodeString& iType) override;
    ORXISpecObject* GetStartup() override { return nullptr; }
    ORXISpecObject* GetOwner() override;
    ORXBaseUnknown_var GetContainer() override { return NULL_var; }
    ORXISpecAttribute* AddAttribute(const ORXUnicodeString&, int, int) override { return nullptr; }

private:
    Object& m_object;
};

class AccessFacet final : public Facet<ORXISpecAttrAccess>
{
public:
    explicit AccessFacet(Object& iObject);

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
    HRESULT SetNumber(ORXISpecAttrKey* iKey, int iType, double iValue, int iIndex);
    /// The value that a read or write of this type addresses; null where there is none.
    Value* Find(ORXISpecAttrKey* iKey, int iType, int iIndex);
    /// The entries of a list; null for an attribute that is none.
    std::vector<Value>* List(ORXISpecAttrKey* iKey);

    Object& m_object;
};

/// An object is its attributes, each of which is a list of values; of a scalar there is one.
class Object final : public ORXBaseUnknown
{
public:
    Object(const Type& iType, const char* iName);
    ~Object() override;

    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    using ORXBaseUnknown::QueryInterface;

    /// Null for null and for what is no object of this host.
    static Object* Of(ORXISpecObject* iObject);
    /// The slot of the attribute; null for a key that the object does not carry.
    std::vector<Value>* SlotOf(ORXISpecAttrKey* iKey);

    const Type& type;
    const ORXUnicodeString name;
    Object* owner = nullptr;

private:
    std::vector<std::vector<Value>> m_slots;
    ObjectFacet m_object;
    AccessFacet m_access;
};
} // namespace SecondHost

#endif
