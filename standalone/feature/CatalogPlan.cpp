#include "CatalogPlan.h"

#include <algorithm>
#include <set>

#include "FeatureObject.h"
#include "StartupValues.h"
#include "TypeRegistry.h"

namespace VYRStandalone
{
namespace
{
constexpr std::size_t none = DeclarationError::None;

bool EndsWith(const std::string& iText, std::string_view iEnd)
{
    return iText.size() >= iEnd.size() && iText.compare(iText.size() - iEnd.size(), iEnd.size(), iEnd) == 0;
}

bool IsTypeName(const std::string& iName)
{
    return !iName.empty() && iName.find_first_of(" \t\n\r,") == std::string::npos;
}

/// Paths and conditions give these characters a meaning, default management these ends.
bool IsAttributeName(const std::string& iName)
{
    return !iName.empty() && iName.find_first_of("/=!<>") == std::string::npos && !EndsWith(iName, "_isset") &&
           !EndsWith(iName, "_isauto");
}

bool IsObjectCode(int iCode)
{
    return iCode == tk_component || iCode == tk_specobject;
}

bool IsScalarCode(int iCode)
{
    return IsObjectCode(iCode) || KnowledgeType::OfTypeCode(iCode) != nullptr;
}

std::string Quoted(const std::string& iText)
{
    return '"' + iText + '"';
}
} // namespace

bool CatalogPlan::Attribute::operator==(const Attribute& iOther) const
{
    return type == iOther.type && listType == iOther.listType && texts == iOther.texts &&
           knowledge == iOther.knowledge && isOptional == iOther.isOptional && componentType == iOther.componentType;
}

CatalogPlan::CatalogPlan(const TypeRegistry& iRegistry, const CatalogDeclaration& iCatalog)
    : m_registry(iRegistry), m_catalog(iCatalog)
{
    CollectTypes();
    for (std::size_t type = 0; type < m_catalog.types.size(); ++type)
        CheckBase(type);
    OrderByBases();
    for (std::size_t type = 0; type < m_catalog.types.size(); ++type)
        CheckManager(type);
    for (const std::size_t type : m_basesFirst)
        AddAttributes(type);
    OrderByParts();
    for (const std::size_t type : m_partsFirst)
        CountObjects(type);
    for (std::size_t type = 0; type < m_catalog.types.size(); ++type)
        for (std::size_t value = 0; value < m_catalog.types[type].values.size(); ++value)
        {
            CheckValue(type, value);
            CheckStartupInUse(type, value);
        }
}

void CatalogPlan::CollectTypes()
{
    for (std::size_t index = 0; index < m_catalog.types.size(); ++index)
    {
        const TypeDeclaration& type = m_catalog.types[index];
        if (!IsTypeName(type.name))
            throw DeclarationError(index, none, none, "no name for a type: " + Quoted(type.name));
        Type planned;
        planned.declared = m_registry.Find(type.name);
        planned.base = type.base;
        if (planned.declared != nullptr && type.base.empty() && planned.declared->Base() != nullptr)
            planned.base = planned.declared->Base()->Name();
        if (!m_types.emplace(type.name, planned).second)
            throw DeclarationError(index, none, none, "type " + Quoted(type.name) + " stands twice in the catalog");
    }
}

void CatalogPlan::CheckBase(std::size_t iType) const
{
    const TypeDeclaration& type = m_catalog.types[iType];
    if (!type.base.empty() && Find(type.base) == nullptr)
        throw DeclarationError(iType, none, none, "unknown base type " + Quoted(type.base));
    const Type& planned = *Find(type.name);
    if (planned.declared == nullptr)
        return;
    const FeatureType* const base = planned.declared->Base();
    if (planned.base != (base != nullptr ? base->Name() : std::string()))
        throw DeclarationError(iType, none, none,
                               "type " + Quoted(type.name) + " has been declared with another base type");
}

void CatalogPlan::CheckManager(std::size_t iType) const
{
    const TypeDeclaration& declaration = m_catalog.types[iType];
    if (!declaration.isManaged)
        return;
    for (const Type* type = Find(declaration.name); type != nullptr && !type->base.empty(); type = Find(type->base))
        if (type->base == "VYRCfdChoice")
            return;
    throw DeclarationError(iType, none, none,
                           "a manager is for Choices: type " + Quoted(declaration.name) +
                               " does not derive from \"VYRCfdChoice\"");
}

void CatalogPlan::OrderByBases()
{
    std::vector<bool> isPlaced(m_catalog.types.size(), false);
    std::unordered_map<std::string, std::size_t> indices;
    for (std::size_t index = 0; index < m_catalog.types.size(); ++index)
        indices.emplace(m_catalog.types[index].name, index);
    for (std::size_t index = 0; index < m_catalog.types.size(); ++index)
    {
        // The chain up to the first type that is placed, or is none of the catalog's.
        std::vector<std::size_t> chain;
        for (auto next = indices.find(m_catalog.types[index].name); next != indices.end() && !isPlaced[next->second];
             next = indices.find(m_catalog.types[next->second].base))
        {
            if (std::find(chain.begin(), chain.end(), next->second) != chain.end())
                throw DeclarationError(index, none, none,
                                       "type " + Quoted(m_catalog.types[index].name) + " derives from itself");
            chain.push_back(next->second);
        }
        for (auto type = chain.rbegin(); type != chain.rend(); ++type)
        {
            isPlaced[*type] = true;
            m_basesFirst.push_back(*type);
        }
    }
}

void CatalogPlan::AddAttributes(std::size_t iType)
{
    const TypeDeclaration& type = m_catalog.types[iType];
    std::set<std::string> names;
    for (std::size_t index = 0; index < type.attributes.size(); ++index)
    {
        const AttributeDeclaration& attribute = type.attributes[index];
        CheckAttribute(iType, index);
        if (!names.insert(attribute.name).second)
            throw DeclarationError(iType, index, none, "attribute " + Quoted(attribute.name) + " stands twice");
        std::string why;
        const Attribute planned{attribute.type,       attribute.listType,
                                attribute.texts,      KnowledgeOf(attribute, why),
                                attribute.isOptional, attribute.componentType};
        Attribute known;
        if (FindAttribute(type.name, attribute.name, known))
        {
            if (!(known == planned))
                throw DeclarationError(iType, index, none,
                                       "attribute " + Quoted(attribute.name) + " has been declared with another kind");
            continue;
        }
        Type& owner = m_types.at(type.name);
        if (owner.declared != nullptr && owner.declared->IsFrozen())
            throw DeclarationError(iType, index, none,
                                   "type " + Quoted(type.name) + " is in use and cannot gain the attribute " +
                                       Quoted(attribute.name));
        owner.places.emplace(attribute.name, owner.attributes.size());
        owner.attributes.emplace_back(attribute.name, planned);
    }
}

const KnowledgeType* CatalogPlan::KnowledgeOf(const AttributeDeclaration& iAttribute, std::string& oWhy)
{
    const int code = iAttribute.type == tk_list ? iAttribute.listType : iAttribute.type;
    if (code == tk_enum)
        return nullptr;
    return iAttribute.unit.empty() ? KnowledgeType::OfTypeCode(code) : KnowledgeType::RealOfUnit(iAttribute.unit, oWhy);
}

void CatalogPlan::CheckAttribute(std::size_t iType, std::size_t iAttribute) const
{
    const AttributeDeclaration& attribute = m_catalog.types[iType].attributes[iAttribute];
    const auto refuse = [&](const std::string& iMessage) { throw DeclarationError(iType, iAttribute, none, iMessage); };
    if (!IsAttributeName(attribute.name))
        refuse("no name for an attribute: " + Quoted(attribute.name));
    const bool isList = attribute.type == tk_list;
    const int code = isList ? attribute.listType : attribute.type;
    if (!IsScalarCode(code) || (!isList && attribute.listType != 0))
        refuse("unknown kind of the attribute " + Quoted(attribute.name));
    const std::set<std::string> texts(attribute.texts.begin(), attribute.texts.end());
    if ((code == tk_enum) == attribute.texts.empty())
        refuse(code == tk_enum ? "enumeration " + Quoted(attribute.name) + " without texts"
                               : "texts of the attribute " + Quoted(attribute.name) + ", which is no enumeration");
    if (texts.size() != attribute.texts.size())
        refuse("enumeration " + Quoted(attribute.name) + " has a text twice");
    if (attribute.isOptional && attribute.type == tk_component)
        refuse("a component comes into being with its owner and cannot be optional: " + Quoted(attribute.name));
    if (!attribute.unit.empty() && code != tk_double)
        refuse("only reals have a unit: " + Quoted(attribute.name));
    std::string why;
    if (!attribute.unit.empty() && KnowledgeOf(attribute, why) == nullptr)
        refuse(why);
    if (attribute.componentType.empty())
        return;
    if (attribute.type != tk_component)
        refuse("only a component names a type: " + Quoted(attribute.name));
    if (Find(attribute.componentType) == nullptr)
        refuse("unknown type " + Quoted(attribute.componentType));
}

void CatalogPlan::OrderByParts()
{
    enum class State
    {
        Entered,
        Left
    };
    struct Step
    {
        std::string type;
        std::vector<std::string> parts;
    };
    std::unordered_map<std::string, std::size_t> indices;
    for (std::size_t index = 0; index < m_catalog.types.size(); ++index)
        indices.emplace(m_catalog.types[index].name, index);
    std::unordered_map<std::string, State> states;
    for (std::size_t index = 0; index < m_catalog.types.size(); ++index)
    {
        std::vector<Step> road;
        const auto enter = [&](const std::string& iName) {
            states.emplace(iName, State::Entered);
            road.push_back({iName, PartsOf(iName)});
        };
        if (states.count(m_catalog.types[index].name) == 0)
            enter(m_catalog.types[index].name);
        while (!road.empty())
        {
            if (road.back().parts.empty())
            {
                const std::string left = road.back().type;
                road.pop_back();
                states[left] = State::Left;
                if (const auto found = indices.find(left); found != indices.end())
                    m_partsFirst.push_back(found->second);
                continue;
            }
            const std::string next = road.back().parts.back();
            road.back().parts.pop_back();
            const auto known = states.find(next);
            if (known == states.end())
                enter(next);
            else if (known->second == State::Entered)
                throw DeclarationError(index, none, none, "type " + Quoted(next) + " contains itself");
        }
    }
}

/// Components multiply: ten of a type that has ten of another are a hundred, and a small catalog could fill the memory.
void CatalogPlan::CountObjects(std::size_t iType)
{
    constexpr std::size_t most = 1000;
    const std::string& name = m_catalog.types[iType].name;
    std::size_t count = 1;
    const auto add = [&](const std::string& iPart) {
        const auto known = m_objectCounts.find(iPart);
        count += known != m_objectCounts.end() ? known->second : m_registry.Find(iPart)->ObjectCount();
    };
    for (const Type* type = Find(name); type != nullptr; type = type->base.empty() ? nullptr : Find(type->base))
    {
        for (const auto& [attribute, traits] : type->attributes)
            if (!traits.componentType.empty())
                add(traits.componentType);
        if (type->declared == nullptr)
            continue;
        for (const FeatureKey* const key : type->declared->Keys())
            if (key->Declaring() == type->declared && key->ComponentType() != nullptr)
                add(key->ComponentType()->Name());
    }
    if (count > most)
        throw DeclarationError(iType, none, none,
                               "more than " + std::to_string(most) + " objects come into being with one of type " +
                                   Quoted(name) + ", since its components have components");
    m_objectCounts[name] = count;
}

void CatalogPlan::CheckValue(std::size_t iType, std::size_t iValue) const
{
    const PrototypeValue& value = m_catalog.types[iType].values[iValue];
    const auto refuse = [&](const std::string& iMessage) { throw DeclarationError(iType, none, iValue, iMessage); };
    std::string type = m_catalog.types[iType].name;
    Attribute attribute{};
    for (std::size_t step = 0; step < value.path.size(); ++step)
    {
        if (!FindAttribute(type, value.path[step], attribute))
            refuse("type " + Quoted(type) + " has no attribute " + Quoted(value.path[step]));
        if (step + 1 == value.path.size())
            break;
        if (attribute.componentType.empty())
            refuse("no component comes into being under " + Quoted(value.path[step]));
        type = attribute.componentType;
    }
    const int code = attribute.type == tk_list ? attribute.listType : attribute.type;
    if (value.path.empty() || IsObjectCode(code))
        refuse("no value attribute");
    if (value.isList != (attribute.type == tk_list))
        refuse(value.isList ? "a single value is wanted" : "a list is wanted");
    if (!value.isList && value.entries.size() != 1)
        refuse("a single value is wanted");
    for (const DeclaredScalar& entry : value.entries)
    {
        Scalar stored;
        std::string why;
        const bool isUnset = std::holds_alternative<std::monostate>(entry);
        if (isUnset && value.isList)
            refuse("a list of values has no empty entries");
        if (isUnset)
            continue;
        if (code != tk_enum)
        {
            if (!attribute.knowledge->FromDocument(entry, stored, why))
                refuse(why);
            continue;
        }
        // The enumeration's own type does not exist yet.
        const std::string* const text = std::get_if<std::string>(&entry);
        if (text == nullptr)
            refuse("a text of the enumeration is wanted");
        if (std::find(attribute.texts.begin(), attribute.texts.end(), *text) == attribute.texts.end())
            refuse("no text of the enumeration: " + Quoted(*text));
    }
}

const CatalogPlan::Type* CatalogPlan::Find(const std::string& iName) const
{
    if (const auto known = m_types.find(iName); known != m_types.end())
        return &known->second;
    const FeatureType* const declared = m_registry.Find(iName);
    if (declared == nullptr)
        return nullptr;
    Type type;
    type.declared = declared;
    type.base = declared->Base() != nullptr ? declared->Base()->Name() : std::string();
    return &m_types.emplace(iName, type).first->second;
}

bool CatalogPlan::FindAttribute(const std::string& iType, const std::string& iName, Attribute& oAttribute) const
{
    for (const Type* type = Find(iType); type != nullptr; type = type->base.empty() ? nullptr : Find(type->base))
    {
        // What stands already knows its inherited attributes itself.
        if (const FeatureKey* const key = type->declared != nullptr ? type->declared->FindKey(iName) : nullptr)
        {
            oAttribute = Describe(*key);
            return true;
        }
        if (const auto place = type->places.find(iName); place != type->places.end())
        {
            oAttribute = type->attributes[place->second].second;
            return true;
        }
    }
    return false;
}

std::vector<std::string> CatalogPlan::PartsOf(const std::string& iType) const
{
    std::vector<std::string> parts;
    const Type* const first = Find(iType);
    // The base type itself is a part in the order only: a start-up is made after that of the base.
    if (!first->base.empty())
        parts.push_back(first->base);
    for (const Type* type = first; type != nullptr; type = type->base.empty() ? nullptr : Find(type->base))
    {
        for (const auto& [name, attribute] : type->attributes)
            if (!attribute.componentType.empty())
                parts.push_back(attribute.componentType);
        if (type->declared == nullptr)
            continue;
        for (const FeatureKey* const key : type->declared->Keys())
            if (key->ComponentType() != nullptr)
                parts.push_back(key->ComponentType()->Name());
    }
    return parts;
}

void CatalogPlan::CheckStartupInUse(std::size_t iType, std::size_t iValue) const
{
    const TypeDeclaration& declaration = m_catalog.types[iType];
    const FeatureType* const declared = Find(declaration.name)->declared;
    if (declared == nullptr || !declared->IsFrozen())
        return;
    const PrototypeValue& value = declaration.values[iValue];
    // Of several values for one place the last one counts.
    for (std::size_t later = iValue + 1; later < declaration.values.size(); ++later)
        if (declaration.values[later].path == value.path)
            return;
    const FeatureObject* holder = declared->Prototype();
    for (std::size_t step = 0; step + 1 < value.path.size() && holder != nullptr; ++step)
        holder = holder->Object(*holder->FindKey(value.path[step]));
    if (holder == nullptr || !StartupValues::Holds(*holder, *holder->FindKey(value.path.back()), value))
        throw DeclarationError(iType, none, iValue,
                               "type " + Quoted(declaration.name) + " is in use, and its start-up holds another value");
}

CatalogPlan::Attribute CatalogPlan::Describe(const FeatureKey& iKey)
{
    Attribute attribute{iKey.TypeCode(), iKey.ListTypeCode(), {}, iKey.Knowledge(), iKey.IsOptional(), {}};
    if (iKey.Knowledge() != nullptr && iKey.Knowledge()->Kind() == ValueKind::Enumeration)
    {
        attribute.knowledge = nullptr;
        for (const ORXUnicodeString& text : iKey.Knowledge()->Texts())
            attribute.texts.emplace_back(text.View());
    }
    if (iKey.ComponentType() != nullptr)
        attribute.componentType = iKey.ComponentType()->Name();
    return attribute;
}
} // namespace VYRStandalone
