#include "FeatureType.h"

#include <algorithm>
#include <utility>

#include "FeatureObject.h"
#include "ORXInterfaceIds.h"
#include "SlotMaking.h"

namespace VYRStandalone
{
FeatureType::FeatureType(const std::string& iName, FeatureType* iBase)
    : m_name(iName), m_base(iBase), m_depth(iBase != nullptr ? iBase->m_depth + 1 : 0)
{
    if (iBase != nullptr)
        m_ancestors = iBase->m_ancestors;
    m_ancestors.push_back(this);
}

void FeatureType::AddCatalog(const std::string& iCatalog)
{
    std::vector<std::string>& catalogs = m_content.catalogs;
    if (std::find(catalogs.begin(), catalogs.end(), iCatalog) == catalogs.end())
        catalogs.push_back(iCatalog);
}

void FeatureType::Inherit()
{
    if (m_base == nullptr)
        return;
    m_base->Freeze();
    m_content.keys = m_base->m_content.keys;
    m_content.names = m_base->m_content.names;
    m_content.slotBytes = m_base->m_content.slotBytes;
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
    // Room for it first, so that no key is made that nobody knows.
    m_content.keys.push_back(nullptr);
    try
    {
        m_content.names.MakeRoom();
        // Immortal, and so past the allocation that the census counts.
        m_content.keys.back() = ::new FeatureKey(iTraits, *this, m_content.slotBytes, iComponentType);
    }
    catch (...)
    {
        m_content.keys.pop_back();
        throw;
    }
    m_content.slotBytes += SlotMaking::BytesOf(iTraits);
    m_content.names.Insert(m_content.keys.back());
}

void FeatureType::MakePrototype()
{
    m_content.prototype = FeatureObject::MakePrototype(*this, m_content.prototype);
}

void FeatureType::DropPrototype(FeatureObject* iPrototype) noexcept
{
    ::delete iPrototype;
}

void FeatureType::TakePrototypeBack(const Content& iFormer) noexcept
{
    if (m_content.prototype != iFormer.prototype)
        DropPrototype(std::exchange(m_content.prototype, iFormer.prototype));
}

void FeatureType::TakeBack(Content& ioFormer, bool iWasFrozen) noexcept
{
    // Those of the base type stand first, and are not the type's own.
    for (std::size_t place = ioFormer.keys.size(); place < m_content.keys.size(); ++place)
        if (m_content.keys[place]->Declaring() == this)
            ::delete m_content.keys[place];
    std::swap(m_content, ioFormer);
    m_frozen.store(iWasFrozen, std::memory_order_relaxed);
}

void FeatureType::SetExtensions(std::vector<ExtensionEntry> iEntries)
{
    m_extensions = std::move(iEntries);
    m_instanceExtension = FindExtension(IID_ORXIInstance);
}
} // namespace VYRStandalone
