#include "AttributeAccess.h"

#include <algorithm>
#include <memory>

#include "FeatureObject.h"
#include "Instruments.h"
#include "ObjectValue.h"
#include "RecordLines.h"

namespace VYRStandalone
{
namespace
{
using Objects = std::vector<FeatureObject*>;

/// Asked at the head of every operation: records a call that may change the model, and tells of a planted fault.
template <class Line>
bool IsStopped(const char* iOperation, ORXISpecAttrKey* iKey, const FeatureObject& iObject, HRESULT& oStatus,
               const Line& iLine)
{
    if (Instruments::IsRecording())
        Instruments::Record(iLine(Instruments::NameOf(iKey)));
    return Instruments::Fails(iOperation, iKey, &iObject, oStatus);
}

bool IsOfKind(const FeatureKey* iKey, ValueKind iKind)
{
    return iKey != nullptr && iKey->Knowledge() != nullptr && iKey->Knowledge()->Kind() == iKind;
}

bool IsNumbered(const FeatureKey* iKey)
{
    return IsOfKind(iKey, ValueKind::Integer) || IsOfKind(iKey, ValueKind::Enumeration);
}

std::size_t SizeOf(const ListEntries& iEntries)
{
    return std::visit([](const auto& iList) { return iList.size(); }, iEntries);
}

bool IsWithin(int iIndex, std::size_t iSize)
{
    return iIndex >= 1 && static_cast<std::size_t>(iIndex) <= iSize;
}

/// Of a list, or null for a position out of range.
template <class Entry> Entry* EntryAt(ListEntries& ioEntries, int iIndex)
{
    std::vector<Entry>& list = std::get<std::vector<Entry>>(ioEntries);
    return IsWithin(iIndex, list.size()) ? &list[static_cast<std::size_t>(iIndex) - 1] : nullptr;
}

std::string TextList(const ORXListValORXUnicodeString& iValues)
{
    std::string text = "[";
    for (int position = 1; position <= iValues.Size(); ++position)
        text += (position > 1 ? ", " : "") + std::string(iValues[position].View());
    return text + ']';
}
} // namespace

HRESULT AttributeAccess::QueryInterface(const IID& iInterface, void** oInterface)
{
    return m_object.QueryInterface(iInterface, oInterface);
}

unsigned int AttributeAccess::AddRef()
{
    return m_object.AddRef();
}

unsigned int AttributeAccess::Release()
{
    return m_object.DropReference();
}

ORXBaseUnknown* AttributeAccess::GetImpl(int iKind) const
{
    return m_object.GetImpl(iKind);
}

int AttributeAccess::IsEqual(const ORXBaseUnknown* iOther) const
{
    return m_object.IsEqual(iOther);
}

ORXISpecAttrKey* AttributeAccess::GetAttrKey(const char* iName)
{
    const std::string_view name = iName != nullptr ? iName : "";
    if (Instruments::Active() && Instruments::Fails("GetAttrKey", name, &m_object))
        return nullptr;
    FeatureKey* const key = m_object.FindKey(name);
    if (key != nullptr)
        key->AddRef();
    return key;
}

ORXBoolean AttributeAccess::HasAttribute(ORXISpecAttrKey* iKey)
{
    if (Instruments::Active() && Instruments::Fails("HasAttribute", iKey, &m_object))
        return ORXFalse;
    return m_object.Carried(iKey) != nullptr ? ORXTrue : ORXFalse;
}

HRESULT AttributeAccess::SetDouble(ORXISpecAttrKey* iKey, double iValue, int iIndex)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("SetDouble", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Write(m_object, iName, iIndex, RecordLines::Text(iValue));
        }))
        return planted;
    const FeatureKey* const key = m_object.Carried(iKey);
    return IsOfKind(key, ValueKind::Real) ? SetEntry(*key, iValue, iIndex) : E_FAIL;
}

HRESULT AttributeAccess::SetInteger(ORXISpecAttrKey* iKey, int iValue, int iIndex)
{
    const FeatureKey* const key = m_object.Carried(iKey);
    const KnowledgeType& type = IsNumbered(key) ? *key->Knowledge() : *KnowledgeType::Integer();
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("SetInteger", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Write(m_object, iName, iIndex, RecordLines::Text(type, iValue));
        }))
        return planted;
    // An enumeration refuses a number that no text has.
    Scalar stored;
    if (!IsNumbered(key) || !type.FromInteger(iValue, stored))
        return E_FAIL;
    return SetEntry(*key, iValue, iIndex);
}

HRESULT AttributeAccess::SetBoolean(ORXISpecAttrKey* iKey, ORXBoolean iValue, int iIndex)
{
    const bool value = iValue != ORXFalse;
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("SetBoolean", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Write(m_object, iName, iIndex, RecordLines::Text(value));
        }))
        return planted;
    const FeatureKey* const key = m_object.Carried(iKey);
    return IsOfKind(key, ValueKind::Boolean) ? SetEntry(*key, value, iIndex) : E_FAIL;
}

HRESULT AttributeAccess::SetString(ORXISpecAttrKey* iKey, const ORXUnicodeString& iValue, int iIndex)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("SetString", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Write(m_object, iName, iIndex, std::string(iValue.View()));
        }))
        return planted;
    const FeatureKey* const key = m_object.Carried(iKey);
    return IsOfKind(key, ValueKind::String) ? SetEntry(*key, iValue, iIndex) : E_FAIL;
}

template <class Value> HRESULT AttributeAccess::SetEntry(const FeatureKey& iKey, const Value& iValue, int iIndex)
{
    // Lists keep booleans as integers.
    using Entry = std::conditional_t<std::is_same_v<Value, bool>, int, Value>;
    if (iKey.Slot() == SlotKind::Value)
    {
        if (iIndex != 0)
            return E_FAIL;
        m_object.Parm(iKey).Write(Scalar(iValue));
        return S_OK;
    }
    Entry* const entry = EntryAt<Entry>(m_object.List(iKey).entries, iIndex);
    if (entry == nullptr)
        return E_FAIL;
    *entry = iValue;
    m_object.Tell(iKey, ObjectValue::OfList());
    return S_OK;
}

template <class Value> std::optional<Value> AttributeAccess::ReadEntry(const FeatureKey& iKey, int iIndex) const
{
    using Entry = std::conditional_t<std::is_same_v<Value, bool>, int, Value>;
    if (iKey.Slot() == SlotKind::Value)
    {
        const Value* const value = iIndex == 0 ? std::get_if<Value>(&m_object.Value(iKey)) : nullptr;
        return value != nullptr ? std::optional<Value>(*value) : std::nullopt;
    }
    const Entry* const entry = EntryAt<Entry>(m_object.List(iKey).entries, iIndex);
    return entry != nullptr ? std::optional<Value>(*entry) : std::nullopt;
}

double AttributeAccess::GetDouble(ORXISpecAttrKey* iKey, int iIndex)
{
    const FeatureKey* const key = m_object.Carried(iKey);
    return IsOfKind(key, ValueKind::Real) ? ReadEntry<double>(*key, iIndex).value_or(0.0) : 0.0;
}

int AttributeAccess::GetInteger(ORXISpecAttrKey* iKey, int iIndex)
{
    const FeatureKey* const key = m_object.Carried(iKey);
    return IsNumbered(key) ? ReadEntry<int>(*key, iIndex).value_or(0) : 0;
}

ORXBoolean AttributeAccess::GetBoolean(ORXISpecAttrKey* iKey, int iIndex)
{
    const FeatureKey* const key = m_object.Carried(iKey);
    return IsOfKind(key, ValueKind::Boolean) && ReadEntry<bool>(*key, iIndex).value_or(false) ? ORXTrue : ORXFalse;
}

ORXUnicodeString AttributeAccess::GetString(ORXISpecAttrKey* iKey, int iIndex)
{
    const FeatureKey* const key = m_object.Carried(iKey);
    if (!IsOfKind(key, ValueKind::String))
        return {};
    return ReadEntry<ORXUnicodeString>(*key, iIndex).value_or(ORXUnicodeString());
}

HRESULT AttributeAccess::SetStringList(ORXISpecAttrKey* iKey, const ORXListValORXUnicodeString& iValues)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("SetStringList", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Write(m_object, iName, 0, TextList(iValues));
        }))
        return planted;
    const FeatureKey* const key = m_object.Carried(iKey);
    if (!IsOfKind(key, ValueKind::String) || key->Slot() != SlotKind::List)
        return E_FAIL;
    std::vector<ORXUnicodeString> entries;
    entries.reserve(static_cast<std::size_t>(iValues.Size()));
    for (int position = 1; position <= iValues.Size(); ++position)
        entries.push_back(iValues[position]);
    m_object.List(*key).entries = std::move(entries);
    m_object.Tell(*key, ObjectValue::OfList());
    return S_OK;
}

int AttributeAccess::GetListSize(ORXISpecAttrKey* iKey)
{
    const FeatureKey* const key = m_object.Carried(iKey);
    if (key == nullptr || key->Slot() != SlotKind::List)
        return 0;
    return static_cast<int>(SizeOf(m_object.Entries(*key)));
}

HRESULT AttributeAccess::RemovePosition(ORXISpecAttrKey* iKey, int iIndex)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("RemovePosition", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Call("remove", m_object, iName, iIndex);
        }))
        return planted;
    const FeatureKey* const key = m_object.Carried(iKey);
    if (key == nullptr || key->Slot() != SlotKind::List)
        return E_FAIL;
    ListEntries& entries = m_object.List(*key).entries;
    if (!IsWithin(iIndex, SizeOf(entries)))
        return E_FAIL;
    ORXISpecObject_var gone;
    if (key->IsListOfObjects())
    {
        m_object.List(*key).SettleBorrowers();
        gone = GiveUp(*key, *EntryAt<FeatureObject*>(entries, iIndex));
    }
    std::visit([&](auto& ioList) { ioList.erase(ioList.begin() + (iIndex - 1)); }, entries);
    m_object.Tell(*key, ObjectValue::OfList());
    return S_OK;
}

HRESULT AttributeAccess::RemoveAll(ORXISpecAttrKey* iKey)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("RemoveAll", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Call("clear", m_object, iName, 0);
        }))
        return planted;
    const FeatureKey* const key = m_object.Carried(iKey);
    if (key == nullptr || key->Slot() != SlotKind::List)
        return E_FAIL;
    // Taking away where there is nothing tells nobody.
    if (SizeOf(m_object.Entries(*key)) == 0)
        return S_OK;
    if (key->IsListOfObjects())
        m_object.StoreObjects(*key, {});
    else
        std::visit([](auto& ioList) { ioList.clear(); }, m_object.List(*key).entries);
    m_object.Tell(*key, ObjectValue::OfList());
    return S_OK;
}

ORXISpecObject* AttributeAccess::GetSpecObject(ORXISpecAttrKey* iKey, int iIndex)
{
    if (Instruments::Active() && Instruments::Fails("GetSpecObject", iKey, &m_object))
        return nullptr;
    const FeatureKey* const key = m_object.Carried(iKey);
    if (key == nullptr || key->Knowledge() != nullptr)
        return nullptr;
    FeatureObject* const* place = nullptr;
    if (key->Slot() == SlotKind::Object)
        place = iIndex == 0 ? &m_object.ObjectAt(*key).object : nullptr;
    else
        place = EntryAt<FeatureObject*>(m_object.List(*key).entries, iIndex);
    if (place == nullptr || *place == nullptr)
        return nullptr;
    (*place)->AddReference();
    return *place;
}

HRESULT AttributeAccess::SetSpecObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex, int)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("SetSpecObject", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Write(m_object, iName, iIndex, RecordLines::Text(iObject.Pointer()));
        }))
        return planted;
    const FeatureKey* const key = ObjectKey(iKey, iObject.Pointer());
    if (key == nullptr)
        return E_FAIL;
    FeatureObject* const object = FeatureObject::Of(iObject.Pointer());
    if (key->Slot() == SlotKind::List)
        return SetObjectEntry(*key, object, iIndex);
    return iIndex == 0 ? SetScalarObject(*key, object) : E_FAIL;
}

HRESULT AttributeAccess::SetScalarObject(const FeatureKey& iKey, FeatureObject* iObject)
{
    const ORXISpecObject_var former = ORXISpecObject_var::Share(m_object.Object(iKey));
    if (!former && iObject == nullptr)
        return S_OK;
    m_object.StoreObject(iKey, iObject);
    m_object.Tell(iKey, ObjectValue::OfObject(iObject != nullptr));
    return S_OK;
}

HRESULT AttributeAccess::SetObjectEntry(const FeatureKey& iKey, FeatureObject* iObject, int iIndex)
{
    if (!IsWithin(iIndex, SizeOf(m_object.Entries(iKey))))
        return E_FAIL;
    if (iObject == nullptr && *EntryAt<FeatureObject*>(m_object.List(iKey).entries, iIndex) == nullptr)
        return S_OK;
    Take(iKey, iObject);
    m_object.List(iKey).SettleBorrowers();
    FeatureObject*& entry = *EntryAt<FeatureObject*>(m_object.List(iKey).entries, iIndex);
    const ORXISpecObject_var former = GiveUp(iKey, std::exchange(entry, iObject));
    m_object.Tell(iKey, ObjectValue::OfList());
    return S_OK;
}

HRESULT AttributeAccess::InsertAtPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("InsertAtPosition", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Call("insert", m_object, iName, iIndex, RecordLines::Text(iObject.Pointer()));
        }))
        return planted;
    const FeatureKey* const key = ObjectKey(iKey, iObject.Pointer());
    if (key == nullptr || key->Slot() != SlotKind::List || !IsWithin(iIndex, SizeOf(m_object.Entries(*key)) + 1))
        return E_FAIL;
    FeatureObject* const object = FeatureObject::Of(iObject.Pointer());
    Objects& objects = std::get<Objects>(m_object.List(*key).entries);
    // Room before the object is taken: what fails here has done nothing.
    if (objects.size() == objects.capacity())
        objects.reserve(2 * objects.size() + 1);
    Take(*key, object);
    objects.insert(objects.begin() + (iIndex - 1), object);
    m_object.Tell(*key, ObjectValue::OfList());
    return S_OK;
}

HRESULT AttributeAccess::MoveInPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("MoveInPosition", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Call("move", m_object, iName, iIndex, RecordLines::Text(iObject.Pointer()));
        }))
        return planted;
    const FeatureKey* const key = ObjectKey(iKey, iObject.Pointer());
    if (key == nullptr || key->Slot() != SlotKind::List || !IsWithin(iIndex, SizeOf(m_object.Entries(*key))))
        return E_FAIL;
    Objects& objects = std::get<Objects>(m_object.List(*key).entries);
    FeatureObject* const object = FeatureObject::Of(iObject.Pointer());
    const Objects::iterator target = objects.begin() + (iIndex - 1);
    // What stands at the position already is passed over, as far as it goes.
    const Objects::iterator behind =
        std::find_if(target, objects.end(), [object](const FeatureObject* iEntry) { return iEntry != object; });
    Objects::iterator found = std::find(behind, objects.end(), object);
    if (found != objects.end())
        std::rotate(target, found, found + 1);
    else if (behind == target)
    {
        found = std::find(objects.begin(), target, object);
        if (found == target)
            return E_FAIL;
        std::rotate(found, found + 1, target + 1);
    }
    m_object.Tell(*key, ObjectValue::OfList());
    return S_OK;
}

void AttributeAccess::RemoveObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && IsStopped("RemoveObject", iKey, m_object, planted, [&](const std::string& iName) {
            return RecordLines::Call("take", m_object, iName, 0, RecordLines::Text(iObject.Pointer()));
        }))
        return;
    const FeatureKey* const key = ObjectKey(iKey, iObject.Pointer());
    FeatureObject* const object = FeatureObject::Of(iObject.Pointer());
    if (key == nullptr || object == nullptr)
        return;
    if (key->Slot() == SlotKind::Object)
    {
        if (m_object.Object(*key) == object)
            SetScalarObject(*key, nullptr);
        return;
    }
    Objects& objects = std::get<Objects>(m_object.List(*key).entries);
    const Objects::iterator found = std::find(objects.begin(), objects.end(), object);
    if (found == objects.end())
        return;
    m_object.List(*key).SettleBorrowers();
    objects.erase(found);
    const ORXISpecObject_var gone = GiveUp(*key, object);
    m_object.Tell(*key, ObjectValue::OfList());
}

ORXListValORXBaseUnknown_var* AttributeAccess::ListObjects(ORXISpecAttrKey* iKey, int)
{
    if (Instruments::Active() && Instruments::Fails("ListObjects", iKey, &m_object))
        return nullptr;
    auto list = std::make_unique<ORXListValORXBaseUnknown_var>();
    const FeatureKey* const key = m_object.Carried(iKey);
    if (key == nullptr || !key->IsListOfObjects())
        return list.release();
    const Objects& objects = std::get<Objects>(m_object.Entries(*key));
    // A start-up, whose slots all threads share, has none.
    if (!m_object.IsPrototype())
        list->Borrow(m_object.List(*key).borrowers, objects);
    return list.release();
}

const FeatureKey* AttributeAccess::ObjectKey(ORXISpecAttrKey* iKey, ORXISpecObject* iObject) const
{
    const FeatureKey* const key = m_object.Carried(iKey);
    // What start-ups hold is fixed: they live for ever, and are shared between threads.
    if (key == nullptr || key->Knowledge() != nullptr || m_object.IsPrototype())
        return nullptr;
    if (iObject == nullptr)
        return key;
    const FeatureObject* const object = FeatureObject::Of(iObject);
    if (object == nullptr)
        return nullptr;
    // An owner must not come to stand under itself, nor a start-up under an owner.
    return key->Owns() && (object->IsPrototype() || object->IsOrOwns(m_object)) ? nullptr : key;
}

void AttributeAccess::Take(const FeatureKey& iKey, FeatureObject* iObject)
{
    if (iObject == nullptr)
        return;
    iObject->AddReference();
    if (iKey.Owns())
        m_object.Gained(*iObject, iKey);
}

ORXISpecObject_var AttributeAccess::GiveUp(const FeatureKey& iKey, FeatureObject* iObject)
{
    if (iObject != nullptr && iKey.Owns())
        m_object.Lost(*iObject);
    return ORXISpecObject_var::Adopt(iObject);
}
} // namespace VYRStandalone
