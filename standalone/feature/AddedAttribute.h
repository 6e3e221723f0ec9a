#ifndef AddedAttribute_H
#define AddedAttribute_H

#include <vector>

#include "NameTable.h"
#include "ORXISpecAttribute.h"

namespace VYRStandalone
{
class FeatureObject;
class SlotBlock;

/// An attribute that one object alone carries: its key, its slot, and what `AddAttribute` hands out. It lives as long
/// as the object, on which it is counted.
class AddedAttribute final : public ORXISpecAttribute
{
public:
    AddedAttribute(FeatureObject& iObject, const FeatureKey::Traits& iTraits, int iFlag);
    ~AddedAttribute() override;

    FeatureObject& Object() const noexcept { return m_object; }
    FeatureKey& Key() const noexcept { return *m_key; }
    /// Kept with the attribute, without a meaning here.
    int Flag() const noexcept { return m_flag; }
    void* Slot() const noexcept { return m_slot; }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    HRESULT SetBoolean(ORXBoolean iValue, int iIndex) override;

private:
    FeatureObject& m_object;
    FeatureKey* m_key;
    int m_flag;
    SlotBlock* m_block;
    void* m_slot;
};

/// The added attributes of one object. By name in one look-up, since default management may add a hundred flags.
struct AddedAttributes
{
    std::vector<AddedAttribute*> inOrder;
    NameTable names;
};
} // namespace VYRStandalone

#endif
