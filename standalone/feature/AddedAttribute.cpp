#include "AddedAttribute.h"

#include "FeatureObject.h"
#include "Instruments.h"
#include "SlotMaking.h"

namespace VYRStandalone
{
AddedAttribute::AddedAttribute(FeatureObject& iObject, const FeatureKey::Traits& iTraits, int iFlag)
    : m_object(iObject), m_key(new FeatureKey(iTraits, *this)), m_flag(iFlag),
      m_block(SlotBlock::Make(SlotMaking::BytesOf(iTraits))), m_slot(m_block->At(0))
{
    SlotMaking::Make(m_slot, iObject, *m_key, *m_block);
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
