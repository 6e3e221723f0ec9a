#include "TypeRegistry.h"

#include "BuiltInTypes.h"
#include "CatalogPlan.h"
#include "Dictionary.h"
#include "FeatureObject.h"

namespace VYRStandalone
{
namespace
{
void AddMissingAttributes(const TypeRegistry& iRegistry, FeatureType& ioType, const TypeDeclaration& iDeclaration)
{
    for (const AttributeDeclaration& attribute : iDeclaration.attributes)
    {
        if (ioType.FindKey(attribute.name) != nullptr)
            continue;
        const int code = attribute.type == tk_list ? attribute.listType : attribute.type;
        std::string why;
        KnowledgeType* knowledge = KnowledgeType::OfTypeCode(code);
        if (code == tk_enum)
            knowledge = KnowledgeType::MakeEnumeration(ioType.Name() + '.' + attribute.name, attribute.texts);
        else if (!attribute.unit.empty())
            knowledge = KnowledgeType::RealOfUnit(attribute.unit, why);
        ioType.AddKey({ORXUnicodeString(attribute.name.c_str(), attribute.name.size()), attribute.type,
                       attribute.listType, knowledge, attribute.isOptional},
                      iRegistry.Find(attribute.componentType));
    }
}

Scalar Stored(const KnowledgeType& iType, const DeclaredScalar& iValue)
{
    Scalar stored;
    std::string why;
    iType.FromDocument(iValue, stored, why);
    return stored;
}

template <class Entry> void Fill(std::vector<Entry>& oEntries, const FeatureKey& iKey, const PrototypeValue& iValue)
{
    for (const DeclaredScalar& entry : iValue.entries)
    {
        const Scalar stored = Stored(*iKey.Knowledge(), entry);
        if constexpr (std::is_same_v<Entry, int>)
            oEntries.push_back(std::holds_alternative<bool>(stored) ? std::get<bool>(stored) : std::get<int>(stored));
        else if constexpr (!std::is_same_v<Entry, FeatureObject*>)
            oEntries.push_back(std::get<Entry>(stored));
    }
}

/// The value has been checked by the plan.
void ApplyValue(FeatureObject& ioPrototype, const PrototypeValue& iValue)
{
    FeatureObject* object = &ioPrototype;
    for (std::size_t step = 0; step + 1 < iValue.path.size(); ++step)
        object = object->Object(*object->FindKey(iValue.path[step]));
    const FeatureKey& key = *object->FindKey(iValue.path.back());
    if (!iValue.isList)
    {
        object->StoreValue(key, Stored(*key.Knowledge(), iValue.entries.front()));
        return;
    }
    ListEntries entries = object->Entries(key);
    std::visit(
        [&](auto& ioList) {
            ioList.clear();
            Fill(ioList, key, iValue);
        },
        entries);
    object->StoreEntries(key, std::move(entries));
}
} // namespace

TypeRegistry::TypeRegistry() : m_columnType(new FeatureType(columnTypeName, {}, nullptr))
{
    m_columnType->CompletePrototype();
    Declare(BuiltInCatalog());
}

TypeRegistry& TypeRegistry::Instance()
{
    static TypeRegistry* const registry = new TypeRegistry;
    return *registry;
}

FeatureType* TypeRegistry::Find(std::string_view iName) const
{
    const auto found = m_byName.find(iName);
    return found != m_byName.end() ? found->second : nullptr;
}

void TypeRegistry::Declare(const CatalogDeclaration& iCatalog)
{
    // Whatever is wrong, is found here; what follows cannot be refused.
    const CatalogPlan plan(*this, iCatalog);
    // All types first, since attributes name types; then the attributes, those of bases before those that inherit them.
    std::vector<bool> isNew(iCatalog.types.size(), false);
    for (const std::size_t index : plan.BasesFirst())
    {
        const TypeDeclaration& declaration = iCatalog.types[index];
        if (Find(declaration.name) != nullptr)
            continue;
        FeatureType* const type = new FeatureType(declaration.name, iCatalog.name, Find(declaration.base));
        m_types.push_back(type);
        m_byName.emplace(type->Name(), type);
        isNew[index] = true;
    }
    for (const std::size_t index : plan.BasesFirst())
    {
        FeatureType& type = *Find(iCatalog.types[index].name);
        if (isNew[index])
            type.Inherit();
        AddMissingAttributes(*this, type, iCatalog.types[index]);
        if (iCatalog.types[index].isManaged)
            type.SetManaged();
    }
    // A start-up takes over what those of its base and of its components hold: their values have to stand before it.
    for (const std::size_t index : plan.PartsFirst())
    {
        const TypeDeclaration& declaration = iCatalog.types[index];
        FeatureType& type = *Find(declaration.name);
        type.CompletePrototype();
        for (const PrototypeValue& value : declaration.values)
            ApplyValue(*type.Prototype(), value);
    }
    m_catalogs.insert(iCatalog.name);
    Dictionary::MarkStale();
}
} // namespace VYRStandalone
