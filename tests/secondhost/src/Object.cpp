#include "Object.h"

#include <algorithm>

#include "SecondHost.h"

namespace SecondHost
{
namespace
{
bool HoldsObjects(int iType)
{
    return iType == tk_component || iType == tk_specobject;
}
} // namespace

ORXISpecObject_var Make(const char* iType, const char* iName)
{
    const Type* const type = FindType(iType);
    if (type == nullptr)
        return NULL_var;
    const ORXISpecObject_var object = ORXBaseUnknown_var::Adopt(new Object(*type, iName));
    const ORXISpecAttrAccess_var access = object;
    for (Key* const key : type->keys)
        if (!key->Part().empty())
            access->SetSpecObject(key, Make(key->Part().c_str(), key->Part().c_str()));
    return object;
}

Object::Object(const Type& iType, const char* iName)
    : type(iType), name(iName), m_slots(iType.keys.size()), m_object(*this), m_access(*this)
{
    for (Key* const key : iType.keys)
        m_slots[key->Slot()].resize(key->GetType() == tk_list ? 0 : 1);
}

Object::~Object()
{
    for (const std::vector<Value>& slot : m_slots)
        for (const Value& value : slot)
            if (Object* const part = Of(value.object); part != nullptr && part->owner == this)
                part->owner = nullptr;
}

HRESULT Object::QueryInterface(const IID& iInterface, void** oInterface)
{
    if (iInterface == IID_ORXISpecObject)
        *oInterface = static_cast<ORXISpecObject*>(&m_object);
    else if (iInterface == IID_ORXISpecAttrAccess)
        *oInterface = static_cast<ORXISpecAttrAccess*>(&m_access);
    else
        return ORXBaseUnknown::QueryInterface(iInterface, oInterface);
    AddRef();
    return S_OK;
}

Object* Object::Of(ORXISpecObject* iObject)
{
    return iObject != nullptr ? dynamic_cast<Object*>(iObject->GetImpl(0)) : nullptr;
}

std::vector<Value>* Object::SlotOf(ORXISpecAttrKey* iKey)
{
    const auto found = std::find(type.keys.begin(), type.keys.end(), iKey);
    return found != type.keys.end() ? &m_slots[(*found)->Slot()] : nullptr;
}

ObjectFacet::ObjectFacet(Object& iObject) : Facet(iObject), m_object(iObject) {}

ORXUnicodeString ObjectFacet::GetName()
{
    return m_object.name;
}

ORXUnicodeString ObjectFacet::GetType()
{
    return m_object.type.name.c_str();
}

ORXBoolean ObjectFacet::IsSubTypeOf(const ORXUnicodeString& iType)
{
    for (const Type* type = &m_object.type; type != nullptr; type = type->base)
        if (iType == type->name.c_str())
            return ORXTrue;
    return ORXFalse;
}

ORXISpecObject* ObjectFacet::GetOwner()
{
    return m_object.owner != nullptr ? ORXISpecObject_var::Cast(m_object.owner).GiveUp() : nullptr;
}

AccessFacet::AccessFacet(Object& iObject) : Facet(iObject), m_object(iObject) {}

std::vector<Value>* AccessFacet::List(ORXISpecAttrKey* iKey)
{
    return iKey != nullptr && iKey->GetType() == tk_list ? m_object.SlotOf(iKey) : nullptr;
}

Value* AccessFacet::Find(ORXISpecAttrKey* iKey, int iType, int iIndex)
{
    std::vector<Value>* const slot = m_object.SlotOf(iKey);
    if (slot == nullptr)
        return nullptr;
    const bool isList = iKey->GetType() == tk_list;
    const int type = isList ? iKey->GetListType() : iKey->GetType();
    const int size = static_cast<int>(slot->size());
    const bool isIndex = isList ? iIndex >= 1 && iIndex <= size : iIndex == 0;
    const bool isType = type == iType || (HoldsObjects(type) && HoldsObjects(iType));
    return isIndex && isType ? &(*slot)[static_cast<std::size_t>(isList ? iIndex - 1 : 0)] : nullptr;
}

ORXISpecAttrKey* AccessFacet::GetAttrKey(const char* iName)
{
    for (Key* const key : m_object.type.keys)
        if (key->Name() == iName)
        {
            key->AddRef();
            return key;
        }
    return nullptr;
}

ORXBoolean AccessFacet::HasAttribute(ORXISpecAttrKey* iKey)
{
    return m_object.SlotOf(iKey) != nullptr ? ORXTrue : ORXFalse;
}

HRESULT AccessFacet::SetNumber(ORXISpecAttrKey* iKey, int iType, double iValue, int iIndex)
{
    Value* const value = Find(iKey, iType, iIndex);
    if (value == nullptr)
        return E_FAIL;
    value->isSet = true;
    value->number = iValue;
    return S_OK;
}

HRESULT AccessFacet::SetDouble(ORXISpecAttrKey* iKey, double iValue, int iIndex)
{
    return SetNumber(iKey, tk_double, iValue, iIndex);
}

HRESULT AccessFacet::SetInteger(ORXISpecAttrKey* iKey, int iValue, int iIndex)
{
    return SetNumber(iKey, tk_integer, iValue, iIndex);
}

HRESULT AccessFacet::SetBoolean(ORXISpecAttrKey* iKey, ORXBoolean iValue, int iIndex)
{
    return SetNumber(iKey, tk_boolean, iValue != ORXFalse ? 1.0 : 0.0, iIndex);
}

HRESULT AccessFacet::SetString(ORXISpecAttrKey* iKey, const ORXUnicodeString& iValue, int iIndex)
{
    Value* const value = Find(iKey, tk_string, iIndex);
    if (value == nullptr)
        return E_FAIL;
    value->isSet = true;
    value->text = iValue;
    return S_OK;
}

HRESULT AccessFacet::SetSpecObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex, int)
{
    Value* const value = Find(iKey, tk_specobject, iIndex);
    if (value == nullptr)
        return E_FAIL;
    if (iKey->GetType() == tk_component || iKey->GetListType() == tk_component)
    {
        if (Object* const before = Object::Of(value->object); before != nullptr)
            before->owner = nullptr;
        if (Object* const now = Object::Of(iObject); now != nullptr)
            now->owner = &m_object;
    }
    value->isSet = !!iObject;
    value->object = iObject;
    return S_OK;
}

double AccessFacet::GetDouble(ORXISpecAttrKey* iKey, int iIndex)
{
    const Value* const value = Find(iKey, tk_double, iIndex);
    return value != nullptr ? value->number : 0.0;
}

int AccessFacet::GetInteger(ORXISpecAttrKey* iKey, int iIndex)
{
    const Value* const value = Find(iKey, tk_integer, iIndex);
    return value != nullptr ? static_cast<int>(value->number) : 0;
}

ORXBoolean AccessFacet::GetBoolean(ORXISpecAttrKey* iKey, int iIndex)
{
    const Value* const value = Find(iKey, tk_boolean, iIndex);
    return value != nullptr && value->number != 0.0 ? ORXTrue : ORXFalse;
}

ORXUnicodeString AccessFacet::GetString(ORXISpecAttrKey* iKey, int iIndex)
{
    const Value* const value = Find(iKey, tk_string, iIndex);
    return value != nullptr ? value->text : ORXUnicodeString();
}

ORXISpecObject* AccessFacet::GetSpecObject(ORXISpecAttrKey* iKey, int iIndex)
{
    const Value* const value = Find(iKey, tk_specobject, iIndex);
    return value != nullptr ? ORXISpecObject_var(value->object).GiveUp() : nullptr;
}

HRESULT AccessFacet::SetStringList(ORXISpecAttrKey* iKey, const ORXListValORXUnicodeString& iValues)
{
    std::vector<Value>* const list = List(iKey);
    if (list == nullptr || iKey->GetListType() != tk_string)
        return E_FAIL;
    list->assign(static_cast<std::size_t>(iValues.Size()), Value());
    for (int position = 1; position <= iValues.Size(); ++position)
        SetString(iKey, iValues[position], position);
    return S_OK;
}

int AccessFacet::GetListSize(ORXISpecAttrKey* iKey)
{
    const std::vector<Value>* const list = List(iKey);
    return list != nullptr ? static_cast<int>(list->size()) : 0;
}

HRESULT AccessFacet::RemovePosition(ORXISpecAttrKey* iKey, int iIndex)
{
    if (iIndex < 1 || iIndex > GetListSize(iKey))
        return E_FAIL;
    if (HoldsObjects(iKey->GetListType()))
        SetSpecObject(iKey, NULL_var, iIndex, 0);
    List(iKey)->erase(List(iKey)->begin() + (iIndex - 1));
    return S_OK;
}

HRESULT AccessFacet::RemoveAll(ORXISpecAttrKey* iKey)
{
    if (List(iKey) == nullptr)
        return E_FAIL;
    while (GetListSize(iKey) > 0)
        RemovePosition(iKey, GetListSize(iKey));
    return S_OK;
}

void AccessFacet::RemoveObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject)
{
    if (const Value* const value = Find(iKey, tk_specobject, 0); value != nullptr && value->object == iObject)
        SetSpecObject(iKey, NULL_var, 0, 0);
    for (int position = 1; position <= GetListSize(iKey); ++position)
        if (ORXISpecObject_var::Adopt(GetSpecObject(iKey, position)) == iObject)
        {
            RemovePosition(iKey, position);
            return;
        }
}

HRESULT AccessFacet::MoveInPosition(ORXISpecAttrKey*, const ORXISpecObject_var&, int)
{
    NotOffered("ORXISpecAttrAccess::MoveInPosition");
}

ORXListValORXBaseUnknown_var* AccessFacet::ListObjects(ORXISpecAttrKey* iKey, int)
{
    auto* const objects = new ORXListValORXBaseUnknown_var;
    for (int position = 1; position <= GetListSize(iKey); ++position)
        objects->Append(ORXISpecObject_var::Adopt(GetSpecObject(iKey, position)));
    return objects;
}

HRESULT AccessFacet::InsertAtPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex)
{
    std::vector<Value>* const list = List(iKey);
    if (list == nullptr || !HoldsObjects(iKey->GetListType()) || iIndex < 1 || iIndex > GetListSize(iKey) + 1)
        return E_FAIL;
    list->insert(list->begin() + (iIndex - 1), Value());
    return SetSpecObject(iKey, iObject, iIndex, 0);
}
} // namespace SecondHost
