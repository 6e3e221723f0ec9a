#include "ORXICkeParm.h"

#include "FeatureObject.h"
#include "Instruments.h"

using namespace VYRStandalone;

ORXICkeParm_var ORXCke_GetParm(ORXISpecAttrAccess* iAccess, ORXISpecAttrKey* iKey, int)
{
    FeatureObject* const object = AttributeAccess::ObjectOf(iAccess);
    if (Instruments::Active() && Instruments::Fails("GetParm", iKey, object))
        return {};
    const FeatureKey* const key = object != nullptr ? object->Carried(iKey) : nullptr;
    if (key == nullptr || key->Slot() != SlotKind::Value)
        return {};
    return ORXICkeParm_var::Share(&object->Parm(*key));
}
