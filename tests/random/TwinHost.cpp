#include "TwinHost.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace Twin
{
namespace
{
std::string Trimmed(const std::string& iText)
{
    const std::size_t first = iText.find_first_not_of(' ');
    return first == std::string::npos ? "" : iText.substr(first, iText.find_last_not_of(' ') - first + 1);
}

/// What a unit is in the SI unit of a quantity; 0 for none of it.
double Factor(const std::string& iUnit, const std::string& iOfQuantity)
{
    struct Unit
    {
        const char* name;
        const char* quantity;
        double factor;
    };
    static constexpr Unit units[] = {{"m", "m", 1.0}, {"mm", "m", 0.001}, {"km", "m", 1000.0}, {"K", "K", 1.0}};
    for (const Unit& unit : units)
        if (iUnit == unit.name && iOfQuantity == unit.quantity)
            return unit.factor;
    return 0.0;
}

std::optional<double> ReadReal(const std::string& iText, const std::string& iUnit)
{
    char* end = nullptr;
    const double number = std::strtod(iText.c_str(), &end);
    if (end == iText.c_str() || !std::isfinite(number))
        return std::nullopt;
    const std::string unit = Trimmed(end);
    if (unit.empty())
        return number;
    const double factor = Factor(unit, iUnit);
    return factor != 0.0 ? std::optional<double>(number * factor) : std::nullopt;
}

std::optional<bool> ReadBoolean(std::string iText)
{
    for (char& letter : iText)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    if (iText == "true" || iText == "1")
        return true;
    if (iText == "false" || iText == "0")
        return false;
    return std::nullopt;
}

Value Unset(Kind iKind, const std::string& iUnit)
{
    Value value;
    value.kind = iKind;
    value.unit = iUnit;
    return value;
}

Value EnumerationAt(const Texts& iTexts, int iNumber)
{
    Value value = Unset(Kind::Enumeration, "");
    if (iNumber < 1 || iNumber > static_cast<int>(iTexts.size()))
        return value;
    value.isThere = true;
    value.integer = iNumber;
    value.text = iTexts[static_cast<std::size_t>(iNumber - 1)];
    return value;
}

/// A text as a value of the attribute's kind; not there when it cannot be read.
Value Read(const Attribute& iAttribute, const std::string& iText)
{
    Value value = Unset(iAttribute.kind, iAttribute.unit);
    if (iAttribute.kind == Kind::String)
        return Of(iText);
    if (iAttribute.kind == Kind::Real)
    {
        const std::optional<double> number = ReadReal(iText, iAttribute.unit);
        value.isThere = number.has_value();
        value.real = number.value_or(0.0);
    }
    else if (iAttribute.kind == Kind::Integer)
    {
        const std::optional<int> number = ScannedInteger(iText);
        value.isThere = number.has_value();
        value.integer = number.value_or(0);
    }
    else if (iAttribute.kind == Kind::Boolean)
    {
        const std::optional<bool> flag = ReadBoolean(iText);
        value.isThere = flag.has_value();
        value.integer = flag.value_or(false) ? 1 : 0;
    }
    else
        for (std::size_t i = 0; i < iAttribute.texts.size(); ++i)
            if (iAttribute.texts[i] == iText)
                value = EnumerationAt(iAttribute.texts, static_cast<int>(i + 1));
    return value;
}

/// A value as one of the attribute's kind; not there when it is of the wrong kind. Texts are read only where the
/// parameter is given a text: a string value that is copied is a string.
Value Converted(const Attribute& iAttribute, const Value& iGiven)
{
    Value value = Unset(iAttribute.kind, iAttribute.unit);
    if (iAttribute.kind == Kind::Real && (iGiven.kind == Kind::Real || iGiven.kind == Kind::Integer))
    {
        if (!iGiven.unit.empty() && !iAttribute.unit.empty() && iGiven.unit != iAttribute.unit)
            return value;
        value.isThere = true;
        value.real = iGiven.kind == Kind::Real ? iGiven.real : iGiven.integer;
    }
    else if (iAttribute.kind == Kind::Enumeration)
    {
        if (iGiven.kind == Kind::Integer)
            return EnumerationAt(iAttribute.texts, iGiven.integer);
        if (iGiven.kind == Kind::Enumeration)
            return Read(iAttribute, iGiven.text);
    }
    else if (iAttribute.kind == iGiven.kind)
        return iGiven;
    return value;
}

std::string TextOf(const Object* iObject)
{
    return iObject == nullptr ? "(null)" : iObject->name;
}

/// A position as it stands on a line of a call.
std::string At(int iIndex)
{
    return iIndex == 0 ? "" : "[" + std::to_string(iIndex) + "]";
}

std::string NewValueOf(const Attribute& iAttribute)
{
    if (iAttribute.kind != Kind::List)
    {
        if (HoldsObjects(iAttribute.kind))
            return iAttribute.object == nullptr ? "(none)" : iAttribute.object->name;
        return iAttribute.value.isThere ? iAttribute.value.AsString() : "(none)";
    }
    std::string text;
    const char* separator = "";
    for (const Value& value : iAttribute.values)
    {
        text += separator + value.AsString();
        separator = ", ";
    }
    for (const Object* object : iAttribute.objects)
    {
        text += separator + TextOf(object);
        separator = ", ";
    }
    return "[" + text + "]";
}

int SizeOf(const Attribute& iAttribute)
{
    return static_cast<int>(HoldsObjects(iAttribute.entry) ? iAttribute.objects.size() : iAttribute.values.size());
}
} // namespace

// ---- objects --------------------------------------------------------------------------------------------------------

Object* Host::Create(const std::string& iType, const std::string& iName)
{
    const auto found = m_types.find(iType);
    if (found == m_types.end())
        return nullptr;
    Object* made = Copy(*found->second.startup, nullptr, iName, true);
    m_top.push_back(made);
    return made;
}

Object* Host::Copy(const Object& iFrom, Object* iOwner, const std::string& iPlace, bool iIsObject)
{
    m_objects.push_back(std::make_unique<Object>());
    Object* made = m_objects.back().get();
    made->number = static_cast<int>(m_objects.size());
    made->type = iFrom.type;
    made->name = iPlace;
    made->owner = iOwner;
    made->place = iOwner != nullptr ? iPlace : "";
    made->startup = iIsObject ? &iFrom : nullptr;
    made->attributes = iFrom.attributes;
    for (auto& [name, attribute] : made->attributes)
        if (attribute.object != nullptr)
            attribute.object = Copy(*attribute.object, made, name, iIsObject);
    if (iIsObject)
        Touch(*made);
    return made;
}

bool Host::IsInModel(const Object& iObject) const
{
    const Object* root = &iObject;
    while (root->owner != nullptr)
        root = root->owner;
    return std::find(m_top.begin(), m_top.end(), root) != m_top.end();
}

bool Host::IsKindOf(const Object& iObject, const std::string& iType) const
{
    for (std::string type = iObject.type; !type.empty(); type = m_types.at(type).base)
        if (type == iType)
            return true;
    return false;
}

std::string Host::PathOf(const Object& iObject)
{
    return iObject.owner != nullptr ? PathOf(*iObject.owner) + "/" + iObject.place : iObject.name;
}

Attribute* Host::Find(Object* iObject, const std::string& iName)
{
    const auto found = iObject->attributes.find(iName);
    return found == iObject->attributes.end() ? nullptr : &found->second;
}

const Attribute* Host::Find(const Object* iObject, const std::string& iName)
{
    return Find(const_cast<Object*>(iObject), iName);
}

bool Host::RefersToStrays() const
{
    for (const auto& object : m_objects)
    {
        if (!IsInModel(*object))
            continue;
        for (const auto& [name, attribute] : object->attributes)
        {
            if (attribute.object != nullptr && !IsInModel(*attribute.object))
                return true;
            for (const Object* entry : attribute.objects)
                if (entry != nullptr && !IsInModel(*entry))
                    return true;
        }
    }
    return false;
}

bool Host::IsLiving(const Object& iObject) const
{
    const auto index = static_cast<std::size_t>(iObject.number);
    return index >= m_living.size() || m_living[index];
}

void Host::Bury()
{
    if (!m_hasLetGo)
        return;
    m_hasLetGo = false;
    m_living.assign(m_objects.size() + 1, false);
    std::vector<const Object*> open;
    const auto hold = [&](const Object* iObject) {
        if (iObject == nullptr || m_living[static_cast<std::size_t>(iObject->number)])
            return;
        m_living[static_cast<std::size_t>(iObject->number)] = true;
        open.push_back(iObject);
    };
    for (const Object* object : m_top)
        hold(object);
    while (!open.empty())
    {
        const Object* object = open.back();
        open.pop_back();
        hold(object->defaults.flags);
        for (const auto& [name, attribute] : object->attributes)
        {
            hold(attribute.object);
            for (const Object* entry : attribute.objects)
                hold(entry);
        }
    }
    for (const auto& object : m_objects)
        if (object->owner != nullptr && object->startup != nullptr && IsLiving(*object) && !IsLiving(*object->owner))
        {
            object->owner = nullptr;
            object->place.clear();
        }
}

void Host::DropExtensions()
{
    m_hasLetGo = true;
    for (const auto& object : m_objects)
    {
        if (!IsInModel(*object))
            continue;
        object->defaults = {};
        object->isInConfiguration = false;
        object->wasValueChange = false;
    }
}

void Host::Reload()
{
    DropExtensions();
    for (const auto& object : m_objects)
        for (auto& [name, attribute] : object->attributes)
            attribute.allowed.reset();
    for (Object* object : m_top)
        Relate(*object, m_types.at(object->type).startup.get());
}

void Host::Relate(Object& ioObject, const Object* iStartup)
{
    ioObject.startup = iStartup;
    for (auto& [name, attribute] : ioObject.attributes)
    {
        if (attribute.kind == Kind::Component && attribute.object != nullptr)
        {
            const Attribute* declared = Find(iStartup, name);
            const Object* part = declared != nullptr ? declared->object : nullptr;
            const bool came = part != nullptr && part->type == attribute.object->type;
            Relate(*attribute.object, came ? part : m_types.at(attribute.object->type).startup.get());
        }
        if (attribute.kind == Kind::List && attribute.entry == Kind::Component)
            for (Object* entry : attribute.objects)
                if (entry != nullptr)
                    Relate(*entry, m_types.at(entry->type).startup.get());
    }
}

// ---- values ---------------------------------------------------------------------------------------------------------

void Host::Told(Object& ioObject, const Attribute& iAttribute)
{
    Touch(ioObject);
    if (!Listens(ioObject))
        return;
    const std::string name = iAttribute.name;
    const bool isThere = iAttribute.kind == Kind::List ||
                         (HoldsObjects(iAttribute.kind) ? iAttribute.object != nullptr : iAttribute.value.isThere);
    const bool isTrue = iAttribute.kind == Kind::Boolean && iAttribute.value.integer != 0;
    Line("advise " + PathOf(ioObject) + "." + name + " = " + NewValueOf(iAttribute));
    Advise(ioObject, name, isThere, isTrue);
    Line("done " + PathOf(ioObject) + "." + name);
}

void Host::Write(Object& ioObject, Attribute& ioAttribute, const Value& iValue)
{
    ioAttribute.value = iValue;
    ioAttribute.value.unit = ioAttribute.unit;
    Told(ioObject, ioAttribute);
}

void Host::Valuate(Object& ioObject, Attribute& ioAttribute, const Value& iGiven)
{
    const Value value = iGiven.kind == Kind::String ? Read(ioAttribute, iGiven.text) : Converted(ioAttribute, iGiven);
    if (value.isThere)
        Write(ioObject, ioAttribute, value);
}

void Host::ValuateFromString(Object& ioObject, Attribute& ioAttribute, const std::string& iText)
{
    if (ioAttribute.kind == Kind::Real)
        Valuate(ioObject, ioAttribute, Of(iText));
}

void Host::ValuateFromValue(Object& ioObject, Attribute& ioAttribute, const std::optional<Value>& iValue)
{
    if (!iValue.has_value())
        return;
    if (!iValue->isThere)
    {
        if (ioAttribute.value.isThere)
            Write(ioObject, ioAttribute, Unset(ioAttribute.kind, ioAttribute.unit));
        return;
    }
    const Value value = Converted(ioAttribute, *iValue);
    if (value.isThere)
        Write(ioObject, ioAttribute, value);
}

Value Host::Volatile(const Attribute& iAttribute, const std::optional<Value>& iGiven)
{
    Value value = Unset(iAttribute.kind, iAttribute.unit);
    if (iGiven.has_value())
        value = iGiven->kind == Kind::String ? Read(iAttribute, iGiven->text) : Converted(iAttribute, *iGiven);
    value.unit = iAttribute.unit;
    return value;
}

HRESULT Host::Store(Object& ioObject, Attribute& ioAttribute, const Value& iGiven, int iIndex)
{
    const bool isList = ioAttribute.kind == Kind::List;
    const Kind kind = isList ? ioAttribute.entry : ioAttribute.kind;
    const bool fits = kind == iGiven.kind || (kind == Kind::Enumeration && iGiven.kind == Kind::Integer);
    if (!fits || (isList ? iIndex < 1 || iIndex > SizeOf(ioAttribute) : iIndex != 0))
        return E_FAIL;
    const Value value = kind == Kind::Enumeration ? EnumerationAt(ioAttribute.texts, iGiven.integer) : iGiven;
    if (!value.isThere)
        return E_FAIL;
    if (!isList)
        Write(ioObject, ioAttribute, value);
    else
    {
        ioAttribute.values[static_cast<std::size_t>(iIndex - 1)] = value;
        Told(ioObject, ioAttribute);
    }
    return S_OK;
}

bool Host::AddAttribute(Object& ioObject, const std::string& iName, Kind iKind)
{
    Line("add " + PathOf(ioObject) + "." + iName);
    Touch(ioObject);
    if (const Attribute* former = Find(&ioObject, iName))
        return former->kind == iKind;
    Attribute& added = ioObject.attributes[iName];
    added.name = iName;
    added.kind = iKind;
    added.isAdded = true;
    added.value = Unset(iKind, "");
    return true;
}

HRESULT Host::SetFlag(Object& ioObject, const std::string& iName, bool iValue)
{
    return Store(ioObject, *Find(&ioObject, iName), Of(iValue), 0);
}

HRESULT Host::Fail(const std::string& iText)
{
    Report(iText);
    return E_FAIL;
}

// ---- owners ---------------------------------------------------------------------------------------------------------

bool Host::MayOwn(const Object& iOwner, const Object& iPart) const
{
    for (const Object* object = &iOwner; object != nullptr; object = object->owner)
        if (object == &iPart)
            return false;
    return true;
}

/// The part leaves where it stood, in silence; entries of the very attribute that gains it stay.
void Host::Gain(Object& ioOwner, Attribute& ioAttribute, Object* iPart)
{
    Touch(*iPart);
    std::erase(m_top, iPart);
    if (iPart->owner != nullptr && !(iPart->owner == &ioOwner && iPart->place == ioAttribute.name))
    {
        Attribute& former = *Find(iPart->owner, iPart->place);
        Touch(*iPart->owner);
        if (former.object == iPart)
            former.object = nullptr;
        std::erase(former.objects, iPart);
        m_hasLetGo = true;
    }
    iPart->owner = &ioOwner;
    iPart->place = ioAttribute.name;
}

void Host::LoseIfGone(Object& ioOwner, Attribute& ioAttribute, Object* iPart)
{
    m_hasLetGo = m_hasLetGo || iPart != nullptr;
    const Kind kind = ioAttribute.kind == Kind::List ? ioAttribute.entry : ioAttribute.kind;
    if (kind != Kind::Component || iPart == nullptr || iPart->owner != &ioOwner || iPart->place != ioAttribute.name)
        return;
    if (ioAttribute.object == iPart || std::count(ioAttribute.objects.begin(), ioAttribute.objects.end(), iPart) > 0)
        return;
    iPart->owner = nullptr;
    iPart->place.clear();
    Touch(*iPart);
}

// ---- objects as values, and lists -----------------------------------------------------------------------------------

HRESULT Host::SetObject(Object& ioObject, Attribute& ioAttribute, Object* iValue, int iIndex)
{
    const bool isList = ioAttribute.kind == Kind::List;
    const Kind kind = isList ? ioAttribute.entry : ioAttribute.kind;
    if (!HoldsObjects(kind) || (isList ? iIndex < 1 || iIndex > SizeOf(ioAttribute) : iIndex != 0))
        return E_FAIL;
    if (kind == Kind::Component && iValue != nullptr && !MayOwn(ioObject, *iValue))
        return E_FAIL;
    Object*& place = isList ? ioAttribute.objects[static_cast<std::size_t>(iIndex - 1)] : ioAttribute.object;
    Object* former = place;
    if (former == nullptr && iValue == nullptr)
        return S_OK;
    if (kind == Kind::Component && iValue != nullptr)
        Gain(ioObject, ioAttribute, iValue);
    place = iValue;
    LoseIfGone(ioObject, ioAttribute, former);
    Told(ioObject, ioAttribute);
    return S_OK;
}

HRESULT Host::Insert(Object& ioObject, Attribute& ioAttribute, Object* iValue, int iIndex)
{
    Line("insert " + PathOf(ioObject) + "." + ioAttribute.name + At(iIndex) + " = " + TextOf(iValue));
    if (ioAttribute.kind != Kind::List || !HoldsObjects(ioAttribute.entry) || iIndex < 1 ||
        iIndex > SizeOf(ioAttribute) + 1)
        return E_FAIL;
    if (ioAttribute.entry == Kind::Component && iValue != nullptr)
    {
        if (!MayOwn(ioObject, *iValue))
            return E_FAIL;
        Gain(ioObject, ioAttribute, iValue);
    }
    ioAttribute.objects.insert(ioAttribute.objects.begin() + (iIndex - 1), iValue);
    Told(ioObject, ioAttribute);
    return S_OK;
}

HRESULT Host::Move(Object& ioObject, Attribute& ioAttribute, Object* iValue, int iIndex)
{
    Line("move " + PathOf(ioObject) + "." + ioAttribute.name + At(iIndex) + " = " + TextOf(iValue));
    if (ioAttribute.kind != Kind::List || !HoldsObjects(ioAttribute.entry) || iIndex < 1 ||
        iIndex > SizeOf(ioAttribute))
        return E_FAIL;
    std::vector<Object*>& list = ioAttribute.objects;
    const auto target = list.begin() + (iIndex - 1);
    auto found = std::find(target, list.end(), iValue);
    if (found == target)
    {
        // The first behind the unbroken row joins the row.
        auto behind = target;
        while (behind != list.end() && *behind == iValue)
            ++behind;
        found = std::find(behind, list.end(), iValue);
        if (found != list.end())
            std::rotate(behind, found, found + 1);
    }
    else
    {
        if (found == list.end())
            found = std::find(list.begin(), list.end(), iValue);
        if (found == list.end())
            return E_FAIL;
        list.erase(found);
        list.insert(list.begin() + (iIndex - 1), iValue);
    }
    Told(ioObject, ioAttribute);
    return S_OK;
}

HRESULT Host::RemovePosition(Object& ioObject, Attribute& ioAttribute, int iIndex)
{
    Line("remove " + PathOf(ioObject) + "." + ioAttribute.name + At(iIndex));
    if (ioAttribute.kind != Kind::List || iIndex < 1 || iIndex > SizeOf(ioAttribute))
        return E_FAIL;
    if (HoldsObjects(ioAttribute.entry))
    {
        Object* former = ioAttribute.objects[static_cast<std::size_t>(iIndex - 1)];
        ioAttribute.objects.erase(ioAttribute.objects.begin() + (iIndex - 1));
        LoseIfGone(ioObject, ioAttribute, former);
    }
    else
        ioAttribute.values.erase(ioAttribute.values.begin() + (iIndex - 1));
    Told(ioObject, ioAttribute);
    return S_OK;
}

HRESULT Host::RemoveAll(Object& ioObject, Attribute& ioAttribute)
{
    Line("clear " + PathOf(ioObject) + "." + ioAttribute.name);
    if (ioAttribute.kind != Kind::List)
        return E_FAIL;
    if (SizeOf(ioAttribute) == 0)
        return S_OK;
    const std::vector<Object*> former = std::exchange(ioAttribute.objects, {});
    ioAttribute.values.clear();
    for (Object* object : former)
        LoseIfGone(ioObject, ioAttribute, object);
    Told(ioObject, ioAttribute);
    return S_OK;
}

void Host::RemoveObject(Object& ioObject, Attribute& ioAttribute, Object* iValue)
{
    Line("take " + PathOf(ioObject) + "." + ioAttribute.name + " = " + TextOf(iValue));
    if (iValue == nullptr)
        return;
    if (ioAttribute.kind == Kind::List)
    {
        const auto found = std::find(ioAttribute.objects.begin(), ioAttribute.objects.end(), iValue);
        if (found == ioAttribute.objects.end())
            return;
        ioAttribute.objects.erase(found);
    }
    else if (ioAttribute.object == iValue)
        ioAttribute.object = nullptr;
    else
        return;
    LoseIfGone(ioObject, ioAttribute, iValue);
    Told(ioObject, ioAttribute);
}

void Host::Allow(Object& ioObject, Attribute& ioAttribute, const Texts& iTexts)
{
    std::string text;
    for (const std::string& allowed : iTexts)
        text += (&allowed == &iTexts.front() ? "" : ", ") + allowed;
    Line("allow " + PathOf(ioObject) + "." + ioAttribute.name + " = [" + text + "]");
    ioAttribute.allowed = iTexts;
    Touch(ioObject);
}

HRESULT Host::SetTexts(Object& ioObject, Attribute& ioAttribute, const Texts& iTexts)
{
    if (ioAttribute.kind != Kind::List || ioAttribute.entry != Kind::String)
        return E_FAIL;
    ioAttribute.values.clear();
    for (const std::string& text : iTexts)
        ioAttribute.values.push_back(Of(text));
    Told(ioObject, ioAttribute);
    return S_OK;
}
} // namespace Twin
