#include "Comparison.h"

#include "ORXICkeManipulator.h"
#include "RealAccess.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"

namespace
{
using Twin::Attribute;
using Twin::Kind;
using Twin::Object;

std::string Joined(const std::vector<std::string>& iTexts)
{
    std::string text;
    const char* separator = "";
    for (const std::string& entry : iTexts)
    {
        text += separator + entry;
        separator = ", ";
    }
    return "[" + text + "]";
}

Difference Unequal(const std::string& iWhere, const std::string& iTwin, const std::string& iReal)
{
    if (iTwin == iReal)
        return std::nullopt;
    return iWhere + ": \"" + iReal + "\", and by the twin \"" + iTwin + "\"";
}

int CodeOf(Kind iKind)
{
    switch (iKind)
    {
    case Kind::Real:
        return tk_double;
    case Kind::Integer:
        return tk_integer;
    case Kind::Boolean:
        return tk_boolean;
    case Kind::Enumeration:
        return tk_enum;
    case Kind::String:
        return tk_string;
    case Kind::Component:
        return tk_component;
    case Kind::Reference:
        return tk_specobject;
    default:
        return tk_list;
    }
}

std::string PathOfStartup(const Object& iPrototype)
{
    return iPrototype.owner != nullptr ? PathOfStartup(*iPrototype.owner) + "/" + iPrototype.place
                                       : "[" + iPrototype.type + "]";
}

std::string EntryText(const RealAttribute& iAttribute, const Attribute& iDeclared, int iIndex)
{
    ORXISpecAttrAccess& access = *iAttribute.access.Pointer();
    switch (iDeclared.entry)
    {
    case Kind::Enumeration:
    {
        const int number = access.GetInteger(iAttribute.key, iIndex);
        return number < 1 ? "(none)" : iDeclared.texts.at(static_cast<std::size_t>(number - 1));
    }
    case Kind::Real:
        return Twin::Of(access.GetDouble(iAttribute.key, iIndex)).AsString();
    case Kind::Integer:
        return Twin::Of(access.GetInteger(iAttribute.key, iIndex)).AsString();
    case Kind::Boolean:
        return Twin::Of(access.GetBoolean(iAttribute.key, iIndex) != ORXFalse).AsString();
    default:
        return access.GetString(iAttribute.key, iIndex).CastToCharPtr();
    }
}
} // namespace

ORXISpecObject_var Comparison::RealOf(const Object* iObject) const
{
    if (iObject == nullptr)
        return {};
    const auto found = m_pairs.find(iObject->number);
    return found == m_pairs.end() ? ORXISpecObject_var() : found->second;
}

bool Comparison::IsNew(const Object* iObject) const
{
    return !m_pairs.contains(iObject->number);
}

Difference Comparison::Pair(const Object* iObject, const ORXISpecObject_var& iReal)
{
    if (iObject == nullptr || !iReal)
    {
        if (iObject == nullptr && !iReal)
            return std::nullopt;
        return iObject == nullptr ? "an object \"" + VYRStandalone::PathOf(iReal) + "\" where the twin has none"
                                  : "no object where the twin has \"" + Twin::Host::PathOf(*iObject) + "\"";
    }
    const ORXBaseUnknown* root = iReal->GetImpl(0);
    if (!IsNew(iObject))
    {
        if (m_pairs.at(iObject->number)->GetImpl(0) == root)
            return std::nullopt;
        return "\"" + VYRStandalone::PathOf(iReal) + "\" where the twin has \"" + Twin::Host::PathOf(*iObject) + "\"";
    }
    if (m_roots.contains(root))
        return "the former \"" + VYRStandalone::PathOf(iReal) + "\" where the twin has a new object";
    m_pairs[iObject->number] = iReal;
    m_roots[root] = iObject->number;
    m_waiting.push_back(const_cast<Object*>(iObject));
    return std::nullopt;
}

Difference Comparison::Enter(Object& ioObject, const ORXISpecObject_var& iReal)
{
    const Difference difference = Pair(&ioObject, iReal);
    return difference ? difference : CompareDeep(ioObject);
}

Difference Comparison::CompareTouched(const std::set<Object*>& iTouched)
{
    m_twin.Bury();
    for (const Object* object : iTouched)
        if (!IsNew(object) && !m_twin.IsLiving(*object))
        {
            m_roots.erase(m_pairs.at(object->number)->GetImpl(0));
            m_pairs.erase(object->number);
        }
    for (Object* object : iTouched)
        if (!IsNew(object))
            if (const Difference difference = CompareDeep(*object))
                return difference;
    return std::nullopt;
}

Difference Comparison::CompareDeep(Object& ioObject)
{
    m_waiting.push_back(&ioObject);
    while (!m_waiting.empty())
    {
        Object* next = m_waiting.back();
        m_waiting.pop_back();
        if (const Difference difference = Compare(*next))
            return difference;
    }
    return std::nullopt;
}

Difference Comparison::CompareAll(const VYRStandalone::Model& iModel, bool iIsNew)
{
    if (iIsNew)
    {
        m_pairs.clear();
        m_roots.clear();
    }
    const std::vector<ORXISpecObject_var> real = iModel.Objects();
    const std::vector<Object*>& top = m_twin.TopLevel();
    if (real.size() != top.size())
        return Unequal("number of objects at the top", std::to_string(top.size()), std::to_string(real.size()));
    for (std::size_t i = 0; i < top.size(); ++i)
        if (const Difference difference = Pair(top[i], real[i]))
            return difference;
    // Everything below the top, whether or not it is new.
    std::vector<Object*> open = top;
    while (!open.empty())
    {
        Object* object = open.back();
        open.pop_back();
        if (const Difference difference = CompareDeep(*object))
            return difference;
        for (const auto& [name, attribute] : object->attributes)
        {
            if (attribute.kind == Kind::Component && attribute.object != nullptr)
                open.push_back(attribute.object);
            if (attribute.entry == Kind::Component)
                for (Object* entry : attribute.objects)
                    if (entry != nullptr)
                        open.push_back(entry);
        }
    }
    return std::nullopt;
}

// ---- one object -----------------------------------------------------------------------------------------------------

Difference Comparison::Compare(Object& ioObject)
{
    ++m_compared;
    const ORXISpecObject_var real = RealOf(&ioObject);
    if (const Difference difference = CompareIdentity(ioObject, real))
        return difference;
    const std::vector<VYRStandalone::AttributeInfo> infos = VYRStandalone::Attributes(real);
    const std::string path = Twin::Host::PathOf(ioObject);
    if (infos.size() != ioObject.attributes.size())
        return Unequal(path + ", number of attributes", std::to_string(ioObject.attributes.size()),
                       std::to_string(infos.size()));
    for (const VYRStandalone::AttributeInfo& info : infos)
    {
        const Attribute* attribute = Twin::Host::Find(&ioObject, info.name);
        const std::string where = path + "." + info.name;
        if (attribute == nullptr)
            return where + ": not known to the twin";
        if (info.type != CodeOf(attribute->kind) || info.added != attribute->isAdded ||
            (info.type == tk_list && info.listType != CodeOf(attribute->entry)))
            return where + ": of another kind than the twin's";
        if (const Difference difference = CompareAttribute(ioObject, *attribute, real))
            return where + ": " + *difference;
    }
    if (!ioObject.defaults.isMade)
        return std::nullopt;
    const Difference difference = CompareDefaults(ioObject, real);
    // Asking reports names that have no default.
    m_twin.TakeReports();
    VYRStandalone::TakeReports();
    return difference ? path + ": " + *difference : difference;
}

Difference Comparison::CompareIdentity(const Object& iObject, const ORXISpecObject_var& iReal) const
{
    const std::string path = Twin::Host::PathOf(iObject);
    if (const Difference difference = Unequal("path", path, VYRStandalone::PathOf(iReal)))
        return difference;
    if (const Difference difference = Unequal(path + ", type", iObject.type, iReal->GetType().CastToCharPtr()))
        return difference;
    if (const Difference difference = Unequal(path + ", name", iObject.name, iReal->GetName().CastToCharPtr()))
        return difference;
    const ORXISpecObject_var owner = ORXISpecObject_var::Adopt(iReal->GetOwner());
    if ((iObject.owner == nullptr) != !owner)
        return path + ": an owner in one model only";
    if (m_twin.IsInModel(iObject) != (iReal->GetContainer() != NULL_var))
        return path + ": in the model in one of them only";
    const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(iReal->GetStartup());
    return Unequal(path + ", start-up", PathOfStartup(*iObject.startup), VYRStandalone::PathOf(startup));
}

Difference Comparison::CompareAttribute(const Object& iObject, const Attribute& iAttribute,
                                        const ORXISpecObject_var& iReal)
{
    const RealAttribute real(iReal, iAttribute.name);
    if (!real.key || real.access->HasAttribute(real.key) == ORXFalse)
        return std::string("not carried");
    if (iAttribute.kind != Kind::List && !Twin::HoldsObjects(iAttribute.kind))
        return CompareScalar(iAttribute, iReal);
    if (iAttribute.kind != Kind::List)
    {
        const Difference difference =
            Pair(iAttribute.object, ORXISpecObject_var::Adopt(real.access->GetSpecObject(real.key)));
        const bool isOwned = iAttribute.kind == Kind::Component && iAttribute.object != nullptr;
        if (!difference && isOwned && iAttribute.object->owner != &iObject)
            return std::string("the twin has lost an owner");
        return difference;
    }
    std::vector<std::string> expected;
    std::vector<std::string> found;
    const int size = real.access->GetListSize(real.key);
    if (Twin::HoldsObjects(iAttribute.entry))
    {
        if (size != static_cast<int>(iAttribute.objects.size()))
            return Unequal("size", std::to_string(iAttribute.objects.size()), std::to_string(size));
        for (int i = 1; i <= size; ++i)
            if (const Difference difference = Pair(iAttribute.objects[static_cast<std::size_t>(i - 1)],
                                                   ORXISpecObject_var::Adopt(real.access->GetSpecObject(real.key, i))))
                return "entry " + std::to_string(i) + ": " + *difference;
        return std::nullopt;
    }
    for (const Twin::Value& value : iAttribute.values)
        expected.push_back(value.AsString());
    for (int i = 1; i <= size; ++i)
        found.push_back(EntryText(real, iAttribute, i));
    return Unequal("entries", Joined(expected), Joined(found));
}

Difference Comparison::CompareScalar(const Attribute& iAttribute, const ORXISpecObject_var& iReal) const
{
    const RealAttribute real(iReal, iAttribute.name);
    const ORXICkeParm_var parameter = real.Parameter();
    if (!parameter)
        return std::string("no parameter");
    const ORXIValue_var value = parameter->GetValue();
    const std::string expected = iAttribute.value.isThere ? "=" + iAttribute.value.AsString() : "(none)";
    const std::string found =
        value->IsValuated() != 0 ? std::string("=") + value->AsString().CastToCharPtr() : "(none)";
    if (const Difference difference = Unequal("value", expected, found))
        return difference;
    const bool isEnumeration = iAttribute.kind == Kind::Enumeration;
    if ((isEnumeration || iAttribute.kind == Kind::Integer) &&
        real.access->GetInteger(real.key) != (iAttribute.value.isThere ? iAttribute.value.integer : 0))
        return std::string("another number in the store");
    const ORXICkeManipulator_var manipulator = parameter->GetManipulator();
    if (!manipulator != !iAttribute.allowed.has_value())
        return std::string("a manipulator in one model only");
    if (!manipulator)
        return std::nullopt;
    ORXListValORXUnicodeString list;
    manipulator->GetAllowedValues(list);
    std::vector<std::string> allowed;
    for (int i = 1; i <= list.Size(); ++i)
        allowed.push_back(list[i].CastToCharPtr());
    return Unequal("allowed values", Joined(*iAttribute.allowed), Joined(allowed));
}

/// Asked only where asking keeps nothing: names with a default of their own, and all while there are no records.
Difference Comparison::CompareDefaults(Object& ioObject, const ORXISpecObject_var& iReal)
{
    const VYRIMpaDefaultManagementProtected_var defaults = iReal;
    if (!defaults)
        return std::string("no default management");
    const Object* flags = ioObject.defaults.flags;
    const bool hasRecords = flags != nullptr && !Twin::Host::Find(flags, "configuration")->objects.empty();
    for (const auto& [name, attribute] : ioObject.attributes)
    {
        const ORXUnicodeString text = name.c_str();
        unsigned char has = 0;
        defaults->HasCustomDefault(text, has);
        const auto custom = ioObject.defaults.custom.find(name);
        const bool isKept = custom != ioObject.defaults.custom.end();
        if ((has != 0) != isKept)
            return "a default of its own of " + name + " in one model only";
        const bool isScalar = attribute.kind != Kind::List && !Twin::HoldsObjects(attribute.kind);
        if (!isScalar || flags == nullptr || (!isKept && hasRecords))
            continue;
        std::optional<Twin::Value> expected;
        m_twin.GetDefault(ioObject, name, expected);
        ORXICkeInst_var found;
        defaults->GetDefault(text, found);
        const auto shown = [](bool iIsNull, bool iIsThere, const std::string& iText) {
            return iIsNull ? "(null)" : iIsThere ? "=" + iText : "(none)";
        };
        const std::string foundText =
            !found ? shown(true, false, "") : shown(false, found->IsValuated() != 0, found->AsString().CastToCharPtr());
        const std::string expectedText = shown(!expected.has_value(), expected.has_value() && expected->isThere,
                                               expected.has_value() ? expected->AsString() : "");
        if (const Difference difference = Unequal("default of " + name, expectedText, foundText))
            return difference;
    }
    return std::nullopt;
}
