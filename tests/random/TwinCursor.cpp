#include "TwinCursor.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace Twin
{
namespace
{
bool IsObjectList(const Place& iPlace)
{
    return HoldsObjects(iPlace.attribute->entry);
}

template <class T> bool Ordered(T iLeft, const std::string& iOperator, T iRight)
{
    if (iOperator == "==" || iOperator == "=")
        return iLeft == iRight;
    if (iOperator == "!=")
        return iLeft != iRight;
    if (iOperator == "<=")
        return iLeft <= iRight;
    if (iOperator == ">=")
        return iLeft >= iRight;
    return iOperator == "<" ? iLeft < iRight : iLeft > iRight;
}

template <class T> bool Extracted(const std::string& iText, T& oValue)
{
    std::istringstream stream(iText);
    stream.imbue(std::locale::classic());
    stream >> oValue;
    return !stream.fail() && !stream.bad();
}
} // namespace

Place Cursor::At(Object* iObject)
{
    Place place;
    place.object = iObject;
    if (iObject == nullptr)
        place.error = "Null initialization c";
    return place;
}

// ---- moves ----------------------------------------------------------------------------------------------------------

Place Cursor::Get(const Place& iPlace, const std::string& iName) const
{
    if (!iPlace.error.empty())
        return iPlace;
    if (iPlace.object == nullptr)
        return {nullptr, nullptr, "Null object"};
    if (iPlace.attribute != nullptr)
    {
        if (iPlace.attribute->kind == Kind::List && IsObjectList(iPlace))
            throw std::logic_error("the twin looks for no entries by name: " + iName);
        return {nullptr, nullptr,
                iPlace.attribute->kind == Kind::List ? iPlace.attribute->name + "Not a list of objects"
                                                     : "Get by name on a non-list"};
    }
    Attribute* attribute = Find(iPlace.object, iName);
    if (attribute != nullptr)
        return HoldsObjects(attribute->kind) ? At(attribute->object) : Place{iPlace.object, attribute, ""};
    // A Choice answers the name that is its value with its data.
    if (IsKindOf(*iPlace.object, "VYRCfdChoice") && Find(iPlace.object, "value")->value.AsString() == iName)
        return At(Find(iPlace.object, "Data")->object);
    return {nullptr, nullptr, "No attribute " + iName};
}

Place Cursor::GetByPath(const Place& iPlace, const std::string& iPath) const
{
    const std::size_t slash = iPath.find('/');
    const std::string head = iPath.substr(0, slash);
    const std::string tail = slash == std::string::npos ? "" : iPath.substr(slash + 1);
    if (head.empty() || !iPlace.error.empty())
        return iPlace;
    return tail.empty() ? Get(iPlace, head) : GetByPath(Get(iPlace, head), tail);
}

bool Cursor::HasParameter(const Place& iPlace)
{
    return iPlace.error.empty() && iPlace.attribute != nullptr && iPlace.attribute->kind != Kind::List &&
           !HoldsObjects(iPlace.attribute->kind);
}

// ---- conditions -----------------------------------------------------------------------------------------------------

/// A test of a place's kind. That of a real knows no missing attribute but a missing column.
bool Cursor::IsOfKind(const Place& iPlace, std::initializer_list<Kind> iKinds)
{
    const Kind first = *iKinds.begin();
    if (iPlace.attribute == nullptr)
        Report(first == Kind::Real ? "spTableColumn" : "_spKey");
    else if (!HasParameter(iPlace))
        Report("spParm");
    else
        return std::find(iKinds.begin(), iKinds.end(), iPlace.attribute->kind) != iKinds.end();
    return false;
}

bool Cursor::Compare(const Place& iPlace, const std::string& iOperator, const std::string& iRight)
{
    // A path that leads nowhere is a condition that does not hold, and nothing to report.
    if (!iPlace.error.empty())
        return false;
    if (IsOfKind(iPlace, {Kind::Real}))
    {
        double right = 0.0;
        return Extracted(iRight, right) && Ordered(iPlace.attribute->value.real, iOperator, right);
    }
    if (IsOfKind(iPlace, {Kind::Integer, Kind::Enumeration}))
    {
        int right = 0;
        return Extracted(iRight, right) && Ordered(iPlace.attribute->value.integer, iOperator, right);
    }
    if (IsOfKind(iPlace, {Kind::String}))
    {
        const bool isEqual = iPlace.attribute->value.AsString() == iRight;
        if (iOperator == "!=")
            return !isEqual;
        return isEqual && (iOperator == "==" || iOperator == "=");
    }
    return IsOfKind(iPlace, {Kind::Boolean}) && iPlace.attribute->value.integer != 0;
}

bool Cursor::Holds(const Place& iPlace, const std::string& iCondition)
{
    if (!iPlace.error.empty() || iPlace.object == nullptr)
        return false;
    if (iCondition.empty())
        return true;
    for (const char* text : {"==", "!=", "<=", ">=", "<", ">", "="})
    {
        const std::size_t found = iCondition.find(text);
        if (found == std::string::npos || found == 0)
            continue;
        const std::string right = iCondition.substr(found + std::string_view(text).size());
        return !right.empty() && Compare(GetByPath(iPlace, iCondition.substr(0, found)), text, right);
    }
    return false;
}

Place Cursor::ApplyCondition(const Place& iPlace, const std::string& iCondition)
{
    return Holds(iPlace, iCondition) ? iPlace : Place{nullptr, nullptr, "Condition not met"};
}

// ---- values ---------------------------------------------------------------------------------------------------------

HRESULT Cursor::SetString(const Place& iPlace, const std::string& iValue)
{
    if (!HasParameter(iPlace))
        return Fail("spParm");
    if (iPlace.attribute->kind == Kind::String)
        Valuate(*iPlace.object, *iPlace.attribute, Of(iValue));
    else if (iPlace.attribute->kind == Kind::Real)
        ValuateFromString(*iPlace.object, *iPlace.attribute, iValue);
    else
        return Fail("SetString on a non-string/real");
    return S_OK;
}

HRESULT Cursor::SetInteger(const Place& iPlace, int iValue)
{
    if (!HasParameter(iPlace))
        return Fail("spParm");
    if (!IsOfKind(iPlace, {Kind::Integer, Kind::Enumeration}))
        return Fail("IsInteger()");
    Valuate(*iPlace.object, *iPlace.attribute, Of(iValue));
    return S_OK;
}

HRESULT Cursor::SetDouble(const Place& iPlace, double iValue)
{
    if (iPlace.attribute == nullptr)
        return Fail(!iPlace.error.empty() ? iPlace.error : "spTableColumn");
    if (!HasParameter(iPlace))
        return Fail("spParm");
    if (iPlace.attribute->kind != Kind::Real)
        return Fail("!!spType && spType->IsaKindOf(\"Real\")");
    Valuate(*iPlace.object, *iPlace.attribute, Of(iValue));
    return S_OK;
}

HRESULT Cursor::SetBoolean(const Place& iPlace, bool iValue)
{
    if (!HasParameter(iPlace))
        return Fail("spParm");
    if (iPlace.attribute->kind != Kind::Boolean)
        return Fail("!!spType && spType->IsaBoolean()");
    Valuate(*iPlace.object, *iPlace.attribute, Of(iValue));
    return S_OK;
}

HRESULT Cursor::GetString(const Place& iPlace, std::string& oValue)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return Fail("_spKey");
    if (!HasParameter(iPlace))
        return Fail("spParm");
    oValue = iPlace.attribute->value.AsString();
    return S_OK;
}

HRESULT Cursor::GetPlainString(const Place& iPlace, std::string& oValue)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return Fail("_spKey");
    if (iPlace.attribute->kind != Kind::String)
        return Fail("Not a string");
    oValue = iPlace.attribute->value.text;
    return S_OK;
}

HRESULT Cursor::SetEntry(const Place& iPlace, const Value& iValue, int iIndex)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return Fail(iValue.kind == Kind::Real ? "spTableColumn" : "_spKey");
    if (iPlace.attribute->kind != Kind::List)
        return Fail("_spKey->GetType() == tk_list");
    if (iIndex <= 0)
        return Fail("index > 0");
    const Kind entry = iPlace.attribute->entry;
    if (iValue.kind == Kind::Integer && entry != Kind::Integer && entry != Kind::Enumeration)
        return Fail("(_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum)");
    if (iValue.kind != Kind::Integer && entry != iValue.kind)
        return Fail(iValue.kind == Kind::String ? "_spKey->GetListType() == tk_string"
                    : iValue.kind == Kind::Real ? "_spKey->GetListType() == tk_double"
                                                : "_spKey->GetListType() == tk_boolean");
    if (iIndex > static_cast<int>(iPlace.attribute->values.size()))
        return Fail("index <= size");
    const HRESULT status = Store(*iPlace.object, *iPlace.attribute, iValue, iIndex);
    return iValue.kind == Kind::String ? status : S_OK;
}

// ---- lists ----------------------------------------------------------------------------------------------------------

HRESULT Cursor::GetStrings(const Place& iPlace, Texts& oTexts)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return Fail("_spKey");
    const Attribute& attribute = *iPlace.attribute;
    if (attribute.kind == Kind::List && attribute.entry != Kind::String)
        return Fail("_spKey->GetListType() == tk_string");
    if (attribute.kind != Kind::List && attribute.kind != Kind::String)
        return Fail("_spKey->GetType() == tk_string");
    if (attribute.kind == Kind::String)
        oTexts.push_back(attribute.value.text);
    for (const Value& value : attribute.values)
        oTexts.push_back(value.text);
    return S_OK;
}

HRESULT Cursor::SetStrings(const Place& iPlace, const Texts& iTexts)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return Fail("_spKey");
    if (iPlace.attribute->kind != Kind::List)
        return Fail("_spKey->GetType() == tk_list");
    if (iPlace.attribute->entry != Kind::String)
        return Fail("_spKey->GetListType() == tk_string");
    SetTexts(*iPlace.object, *iPlace.attribute, iTexts);
    return S_OK;
}

HRESULT Cursor::SetList(const Place& iPlace, const std::vector<Object*>& iObjects)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return E_FAIL;
    Attribute& attribute = *iPlace.attribute;
    if (attribute.kind != Kind::List)
        return Fail("type == tk_list");
    if (!IsObjectList(iPlace))
        return Fail(ObjectListCheck);
    std::vector<Object*> mirror = attribute.objects;
    bool isChanged = false;
    for (std::size_t i = 0; i < iObjects.size(); ++i)
    {
        const int position = static_cast<int>(i) + 1;
        Object* wanted = iObjects[i];
        if (wanted == nullptr)
            return Fail("iObjects[i-1].Self()");
        bool isFound = false;
        for (std::size_t j = i; j < mirror.size(); ++j)
        {
            if (mirror[j] != wanted)
                continue;
            isFound = true;
            if (j == i)
                continue;
            isChanged = true;
            if (Move(*iPlace.object, attribute, wanted, position) < 0)
                return Fail("_spAttr->MoveInPosition(_spKey, (*pVals)[j], i)");
            mirror.erase(mirror.begin() + static_cast<std::ptrdiff_t>(j));
            mirror.insert(mirror.begin() + static_cast<std::ptrdiff_t>(i), wanted);
        }
        if (isFound)
            continue;
        isChanged = true;
        if (Insert(*iPlace.object, attribute, wanted, position) < 0)
            return Fail("_spAttr->InsertAtPosition(_spKey, spSpec, i)");
        mirror.insert(mirror.begin() + static_cast<std::ptrdiff_t>(i), wanted);
    }
    for (std::size_t i = mirror.size(); i > iObjects.size(); --i)
    {
        isChanged = true;
        RemovePosition(*iPlace.object, attribute, static_cast<int>(i));
    }
    return isChanged ? S_OK : S_FALSE;
}

HRESULT Cursor::SetObjectAt(const Place& iPlace, Object* iValue, int iIndex)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return E_FAIL;
    const Attribute& attribute = *iPlace.attribute;
    if (attribute.kind == Kind::List && !IsObjectList(iPlace))
        return Fail(ObjectListCheck);
    if (attribute.kind != Kind::List && !HoldsObjects(attribute.kind))
        return Fail("incorrect attr type");
    if (attribute.kind != Kind::List && iIndex != 0)
        return Fail("index == 0");
    if (SetObject(*iPlace.object, *iPlace.attribute, iValue, iIndex) < 0)
        return Fail("_spAttr->SetSpecObject(_spKey, iObject, index)");
    return S_OK;
}

HRESULT Cursor::Remove(const Place& iPlace, Object* iValue)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return E_FAIL;
    if (iValue == nullptr)
        return Fail("iObject");
    if (iPlace.attribute->kind != Kind::List)
        return Fail("type == tk_list");
    if (!IsObjectList(iPlace))
        return Fail(ObjectListCheck);
    const std::vector<Object*>& objects = iPlace.attribute->objects;
    for (std::size_t i = 0; i < objects.size(); ++i)
        if (objects[i] == iValue)
        {
            RemovePosition(*iPlace.object, *iPlace.attribute, static_cast<int>(i) + 1);
            return S_OK;
        }
    return S_FALSE;
}

HRESULT Cursor::RemoveEntry(const Place& iPlace, int iIndex)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return E_FAIL;
    if (iPlace.attribute->kind != Kind::List)
        return Fail("type == tk_list");
    if (!IsObjectList(iPlace))
        return Fail(ObjectListCheck);
    if (iIndex <= 0 || iIndex > static_cast<int>(iPlace.attribute->objects.size()))
        return Fail("index > 0 && index <= size");
    return RemovePosition(*iPlace.object, *iPlace.attribute, iIndex);
}

HRESULT Cursor::ClearList(const Place& iPlace)
{
    if (!iPlace.error.empty())
        return Fail(iPlace.error);
    if (iPlace.attribute == nullptr)
        return E_FAIL;
    if (iPlace.attribute->kind != Kind::List)
        return Fail("type == tk_list");
    return RemoveAll(*iPlace.object, *iPlace.attribute);
}
} // namespace Twin
