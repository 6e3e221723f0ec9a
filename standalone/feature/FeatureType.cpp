#include "FeatureType.h"

#include <algorithm>

#include "FeatureObject.h"
#include "ORXInterfaceIds.h"
#include "SlotMaking.h"

namespace VYRStandalone
{
FeatureType::FeatureType(const std::string& iName, FeatureType* iBase)
    : m_name(iName), m_base(iBase), m_depth(iBase != nullptr ? iBase->m_depth + 1 : 0), m_slotBytes(0)
{
    if (iBase != nullptr)
        m_ancestors = iBase->m_ancestors;
    m_ancestors.push_back(this);
}

void FeatureType::AddCatalog(const std::string& iCatalog)
{
    if (std::find(m_catalogs.begin(), m_catalogs.end(), iCatalog) == m_catalogs.end())
        m_catalogs.push_back(iCatalog);
}

void FeatureType::Inherit()
{
    if (m_base == nullptr)
        return;
    m_base->Freeze();
    m_keys = m_base->m_keys;
    m_names = m_base->m_names;
    m_slotBytes = m_base->m_slotBytes;
}

bool FeatureType::DerivesFrom(std::string_view iName) const noexcept
{
    for (const FeatureType* type = this; type != nullptr; type = type->m_base)
        if (type->m_name == iName)
            return true;
    return false;
}

std::vector<const FeatureType*> FeatureType::Chain() const
{
    return {m_ancestors.rbegin(), m_ancestors.rend()};
}

void FeatureType::AddKey(const FeatureKey::Traits& iTraits, FeatureType* iComponentType)
{
    // Immortal, and so past the allocation that the census counts.
    FeatureKey* const key = ::new FeatureKey(iTraits, *this, m_slotBytes, iComponentType);
    m_slotBytes += SlotMaking::BytesOf(iTraits);
    m_keys.push_back(key);
    m_names.Insert(key);
}

void FeatureType::CompletePrototype()
{
    FeatureObject* const former = m_prototype;
    if (former != nullptr && former->m_slotCount == m_keys.size())
        return;
    m_prototype = FeatureObject::MakePrototype(*this, former);
    // Nobody can have seen the former one: nothing was made of the type.
    if (former != nullptr)
        ::delete former;
}

void FeatureType::SetExtensions(std::vector<ExtensionEntry> iEntries)
{
    m_extensions = std::move(iEntries);
    m_instanceExtension = FindExtension(IID_ORXIInstance);
}
} // namespace VYRStandalone
