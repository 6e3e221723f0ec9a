#include "ORXSpecAttrKeyServices.h"

#include <atomic>

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
    const FeatureType* const type = TypeRegistry::Instance().Find(featureType);
    if (type == nullptr || !object->Type().DerivesFrom(*type))
        return nullptr;
    // Several threads may find the same key at the same time.
    const std::atomic_ref<ORXISpecAttrKey*> kept(key);
    if (ORXISpecAttrKey* const before = kept.load(std::memory_order_relaxed))
        return before;
    ORXISpecAttrKey* const found = type->FindKey(attribute);
    if (found != nullptr)
        kept.store(found, std::memory_order_relaxed);
    return found;
}
