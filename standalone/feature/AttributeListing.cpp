/**
 * @file
 * What the public face tells of types and attributes.
 */

#include "FeatureObject.h"
#include "Quantity.h"
#include "TypeRegistry.h"
#include "VYRStandaloneCatalog.h"

namespace VYRStandalone
{
namespace
{
AttributeInfo Describe(const FeatureKey& iKey)
{
    AttributeInfo info;
    info.name = std::string(iKey.Name().View());
    info.type = iKey.TypeCode();
    info.listType = iKey.ListTypeCode();
    info.optional = iKey.IsOptional();
    if (iKey.Knowledge() != nullptr && iKey.Knowledge()->Measured() != nullptr)
        info.unit = iKey.Knowledge()->Measured()->SiUnit();
    if (iKey.Knowledge() != nullptr)
        for (const ORXUnicodeString& text : iKey.Knowledge()->Texts())
            info.values.emplace_back(text.View());
    info.added = iKey.IsAdded();
    if (!info.added)
        info.declaredBy = iKey.Declaring()->Name();
    return info;
}
} // namespace

std::vector<std::string> TypeNames()
{
    std::vector<std::string> names;
    for (const FeatureType* const type : TypeRegistry::Instance().Types())
        names.push_back(type->Name());
    return names;
}

std::vector<std::string> ManagedTypes()
{
    std::vector<std::string> names;
    for (const FeatureType* const type : TypeRegistry::Instance().Types())
        if (type->IsManaged())
            names.push_back(type->Name());
    return names;
}

std::vector<AttributeInfo> Attributes(const ORXISpecObject_var& iObject)
{
    std::vector<AttributeInfo> infos;
    if (const FeatureObject* const object = FeatureObject::Of(iObject.Pointer()))
        for (const FeatureKey* const key : object->Keys())
            if (object->IsMade(*key))
                infos.push_back(Describe(*key));
    return infos;
}
} // namespace VYRStandalone
