#include "ORXSpecAttrShortcuts.h"

#include "FeatureObject.h"
#include "Instruments.h"

namespace VYRStandalone
{
namespace
{
/**
 * For attributes that each object of a type carries, not for optional and added ones. Planted faults and recorders see
 * the single operations, so these decline as long as there are any.
 */
class SpecAttrShortcuts final : public ORXSpecAttrShortcuts
{
public:
    bool Step(ORXISpecAttrAccess* iObject, const char* iName, std::size_t iBytes,
              ORXSpecAttrPlace& oPlace) noexcept override
    {
        FeatureObject* const object = ObjectOf(iObject);
        FeatureKey* const key = object != nullptr ? object->Type().FindKey({iName, iBytes}) : nullptr;
        return key != nullptr && !key->IsOptional() && Enter(*object, *key, oPlace);
    }

    bool Step(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey, ORXSpecAttrPlace& oPlace) noexcept override
    {
        FeatureObject* const object = ObjectOf(iObject);
        FeatureKey* const key = object != nullptr ? object->CarriedByAll(iKey) : nullptr;
        return key != nullptr && Enter(*object, *key, oPlace);
    }

    bool ReadReal(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey, double& oNumber) noexcept override
    {
        const AttributeParm* const parm = Parm(iObject, iKey);
        const double* const number = parm != nullptr ? std::get_if<double>(&parm->Value()) : nullptr;
        if (number == nullptr)
            return false;
        oNumber = *number;
        return true;
    }

    bool WriteReal(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey, double iNumber) override
    {
        AttributeParm* const parm = Parm(iObject, iKey);
        if (parm == nullptr || parm->Key().Knowledge()->Kind() != ValueKind::Real)
            return false;
        parm->Valuate(iNumber);
        return true;
    }

private:
    static FeatureObject* ObjectOf(ORXISpecAttrAccess* iAccess) noexcept
    {
        return Instruments::Active() ? nullptr : AttributeAccess::ObjectOf(iAccess);
    }

    /// Borrowed; null for declined.
    static AttributeParm* Parm(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey) noexcept
    {
        const FeatureObject* const object = ObjectOf(iObject);
        const FeatureKey* const key = object != nullptr ? object->CarriedByAll(iKey) : nullptr;
        return key != nullptr && key->Slot() == SlotKind::Value ? &object->Parm(*key) : nullptr;
    }

    /// Keys of declared attributes are not counted.
    static bool Enter(FeatureObject& iObject, FeatureKey& iKey, ORXSpecAttrPlace& oPlace) noexcept
    {
        const bool isHeld = iKey.Slot() == SlotKind::Object;
        FeatureObject* const entered = isHeld ? iObject.Object(iKey) : &iObject;
        if (entered == nullptr)
            return false;
        entered->AddReference();
        oPlace.object = &entered->Access();
        oPlace.key = isHeld ? nullptr : &iKey;
        return true;
    }
};
} // namespace
} // namespace VYRStandalone

ORXSpecAttrShortcuts* ORXGetSpecAttrShortcuts() noexcept
{
    static constinit VYRStandalone::SpecAttrShortcuts shortcuts;
    return &shortcuts;
}
