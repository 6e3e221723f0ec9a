#include "TypeRegistry.h"

#include "BuiltInTypes.h"
#include "CatalogPlan.h"
#include "Dictionary.h"
#include "FeatureObject.h"
#include "StartupValues.h"
#include "TypeRegistryUndo.h"

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
} // namespace

TypeRegistry::TypeRegistry() : m_columnType(new FeatureType(columnTypeName, nullptr))
{
    m_columnType->MakePrototype();
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
    Undo undo(*this);
    // All types first, since attributes name types; then the attributes, those of bases before those that inherit them.
    std::vector<bool> isNew(iCatalog.types.size(), false);
    for (const std::size_t index : plan.BasesFirst())
    {
        const TypeDeclaration& declaration = iCatalog.types[index];
        isNew[index] = Find(declaration.name) == nullptr;
        if (isNew[index])
            undo.Make(declaration.name, Find(declaration.base));
        else
            undo.Remember(*Find(declaration.name));
    }
    for (const std::size_t index : plan.BasesFirst())
    {
        FeatureType& type = *Find(iCatalog.types[index].name);
        if (isNew[index])
            type.Inherit();
        type.AddCatalog(iCatalog.name);
        AddMissingAttributes(*this, type, iCatalog.types[index]);
        if (iCatalog.types[index].isManaged)
            type.SetManaged();
        for (const AttributeDeclaration& attribute : iCatalog.types[index].attributes)
            if (FeatureType* const component = Find(attribute.componentType))
                undo.RememberUse(*component);
    }
    // A start-up takes over what those of its base and of its components hold: their values have to stand before it.
    for (const std::size_t index : plan.PartsFirst())
    {
        const TypeDeclaration& declaration = iCatalog.types[index];
        FeatureType& type = *Find(declaration.name);
        type.SetObjectCount(plan.ObjectCount(declaration.name));
        // The start-up of a type in use holds the values already, and is not to be written meanwhile.
        if (undo.WasFrozen(type))
            continue;
        type.MakePrototype();
        for (const PrototypeValue& value : declaration.values)
            StartupValues::Apply(*type.Prototype(), value);
    }
    undo.EnterCatalog(iCatalog.name);
    undo.Keep();
    Dictionary::MarkStale();
}
} // namespace VYRStandalone
