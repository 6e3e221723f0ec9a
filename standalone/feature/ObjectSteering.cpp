/**
 * @file
 * What the public face does to single objects.
 */

#include "FeatureObject.h"
#include "VYRStandaloneModel.h"

namespace VYRStandalone
{
void SetAlias(const ORXISpecObject_var& iObject, const ORXUnicodeString& iAlias)
{
    if (FeatureObject* const object = FeatureObject::Of(iObject.Pointer()))
        object->SetAlias(iAlias);
}

void SetIdentifier(const ORXISpecObject_var& iObject, const ORXUnicodeString& iIdentifier)
{
    if (FeatureObject* const object = FeatureObject::Of(iObject.Pointer()))
        object->SetIdentifier(iIdentifier);
}

std::string PathOf(ORXISpecObject* iObject)
{
    const FeatureObject* const object = FeatureObject::Of(iObject);
    return object != nullptr ? object->Path() : std::string();
}

ORXISpecObject_var MakeTableColumn()
{
    return ORXISpecObject_var::Adopt(FeatureObject::MakeColumn());
}
} // namespace VYRStandalone
