#include "AddedAttribute.h"

#include <memory>

#include "FeatureObject.h"
#include "Instruments.h"
#include "SlotMaking.h"

namespace VYRStandalone
{
AddedAttribute::AddedAttribute(FeatureObject& iObject, const FeatureKey::Traits& iTraits, int iFlag)
    : m_object(iObject), m_flag(iFlag)
{
    const auto release = [](FeatureKey* iKey) { iKey->Release(); };
    std::unique_ptr<FeatureKey, decltype(release)> key(new FeatureKey(iTraits, *this), release);
    SlotBlock::Holder block(SlotBlock::Make(SlotMaking::BytesOf(iTraits), iObject));
    SlotMaking::Make(block->At(0), iObject, *key, *block);
    m_key = key.release();
    m_block = block.release();
    m_slot = m_block->At(0);
}

AddedAttribute::~AddedAttribute()
{
    // The object has emptied the slot.
    m_block->Drop();
    m_key->ForgetHome();
    m_key->Release();
}

HRESULT AddedAttribute::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered = iInterface == IID_ORXISpecAttribute || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    if (!isOffered)
        return E_NOINTERFACE;
    m_object.AddReference();
    return S_OK;
}

unsigned int AddedAttribute::AddRef()
{
    return m_object.AddRef();
}

unsigned int AddedAttribute::Release()
{
    return m_object.DropReference();
}

HRESULT AddedAttribute::SetBoolean(ORXBoolean iValue, int iIndex)
{
    return m_object.Access().SetBoolean(m_key, iValue, iIndex);
}
} // namespace VYRStandalone
