#include "ORXSpecAttrKeyServices.h"

#include "FeatureObject.h"
#include "Instruments.h"
#include "TypeRegistry.h"

using namespace VYRStandalone;

ORXISpecAttrKey* ORXSpecAttrKeyServices::Get(ORXISpecAttrAccess* iAccess)
{
    const FeatureObject* const object = AttributeAccess::ObjectOf(iAccess);
    if (Instruments::Active() && Instruments::Fails("Get", std::string_view(attribute), object))
        return nullptr;
    if (object == nullptr)
        return nullptr;
    // A kept key is right for every object that carries it, in every model.
    FeatureKey* const kept = static_cast<FeatureKey*>(key);
    if (kept != nullptr)
        return object->Type().DerivesFrom(*kept->Declaring()) ? kept : nullptr;
    const FeatureType* const type = TypeRegistry::Instance().Find(featureType);
    if (type == nullptr || !object->Type().DerivesFrom(*type))
        return nullptr;
    FeatureKey* const found = type->FindKey(attribute);
    // Written once; several threads may find the same key at the same time.
    if (found != nullptr)
        __atomic_store_n(&key, static_cast<ORXISpecAttrKey*>(found), __ATOMIC_RELAXED);
    return found;
}
