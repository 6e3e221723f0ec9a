#include "FeatureKey.h"

#include <typeinfo>

#include "Census.h"
#include "Instruments.h"
#include "ORXComponentLink.h"

namespace VYRStandalone
{
namespace
{
SlotKind SlotKindOf(const FeatureKey::Traits& iTraits)
{
    if (iTraits.type == tk_list)
        return SlotKind::List;
    return iTraits.knowledge != nullptr ? SlotKind::Value : SlotKind::Object;
}
} // namespace

FeatureKey::FeatureKey(const Traits& iTraits, FeatureType& iDeclaring, std::size_t iOffset, FeatureType* iComponentType)
    : m_traits(iTraits), m_slot(SlotKindOf(iTraits)), m_declaring(&iDeclaring), m_componentType(iComponentType),
      m_home(nullptr), m_offset(iOffset)
{
    ORXComponentLink::CountAt(*this, nullptr);
}

FeatureKey::FeatureKey(const Traits& iTraits, AddedAttribute& iHome)
    : m_traits(iTraits), m_slot(SlotKindOf(iTraits)), m_declaring(nullptr), m_componentType(nullptr), m_home(&iHome),
      m_offset(0)
{
    Census::Born(Census::FeatureKey);
}

FeatureKey::~FeatureKey()
{
    if (IsAdded())
        Census::Died(Census::FeatureKey);
}

bool FeatureKey::SameKind(const Traits& iLeft, const Traits& iRight)
{
    if (iLeft.type != iRight.type || iLeft.listType != iRight.listType)
        return false;
    // Every enumeration has a type of its own, so that the texts decide.
    if (iLeft.knowledge == nullptr || iRight.knowledge == nullptr || iLeft.knowledge == iRight.knowledge)
        return iLeft.knowledge == iRight.knowledge;
    return iLeft.knowledge->Kind() == iRight.knowledge->Kind() &&
           iLeft.knowledge->Measured() == iRight.knowledge->Measured() &&
           iLeft.knowledge->Texts() == iRight.knowledge->Texts();
}

HRESULT FeatureKey::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered = iInterface == IID_ORXISpecAttrKey || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    if (!isOffered)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

unsigned int FeatureKey::AddRef()
{
    return IsAdded() ? ORXISpecAttrKey::AddRef() : 1;
}

unsigned int FeatureKey::Release()
{
    return IsAdded() ? ORXISpecAttrKey::Release() : 1;
}

int FeatureKey::IsEqual(const ORXBaseUnknown* iOther) const
{
    if (iOther == nullptr)
        return 0;
    if (static_cast<const ORXBaseUnknown*>(this) == iOther)
        return 1;
    if (!IsAdded() || typeid(*iOther) != typeid(FeatureKey))
        return 0;
    const FeatureKey& other = *static_cast<const FeatureKey*>(iOther);
    return other.IsAdded() && other.Name() == Name() && SameKind(other.m_traits, m_traits) ? 1 : 0;
}

int FeatureKey::GetListType()
{
    return m_traits.listType;
}

int FeatureKey::GetType()
{
    return m_traits.type;
}

ORXUnicodeString FeatureKey::GetName()
{
    return m_traits.name;
}
} // namespace VYRStandalone
