#ifndef FeatureType_H
#define FeatureType_H

#include <atomic>
#include <string>
#include <vector>

#include "ExtensionEntry.h"
#include "NameTable.h"
#include "ORXGuid.h"

namespace VYRStandalone
{
class FeatureObject;

/**
 * A feature type: its attributes, its start-up, and what the dictionary says of it. Immortal, and only read once
 * objects are made of it.
 *
 * The slots of the base type come first in every object, so that one key serves all derived types.
 */
class FeatureType
{
public:
    /// Without any attributes yet, so that types of one catalog may name each other.
    FeatureType(const std::string& iName, FeatureType* iBase);
    FeatureType(const FeatureType&) = delete;
    FeatureType& operator=(const FeatureType&) = delete;

    const std::string& Name() const noexcept { return m_name; }
    /// The catalogs that say something of the type, in the order of their declaration.
    const std::vector<std::string>& Catalogs() const noexcept { return m_catalogs; }
    /// One that is there already stays where it is.
    void AddCatalog(const std::string& iCatalog);
    FeatureType* Base() const noexcept { return m_base; }

    bool DerivesFrom(const FeatureType& iType) const noexcept
    {
        return iType.m_depth <= m_depth && m_ancestors[iType.m_depth] == &iType;
    }
    bool DerivesFrom(std::string_view iName) const noexcept;
    /// This type first, the root type last.
    std::vector<const FeatureType*> Chain() const;

    /// True when objects of this type carry the attribute of a declared key.
    bool Carries(const FeatureKey& iKey) const noexcept { return DerivesFrom(*iKey.Declaring()); }

    /// Null when there is no such attribute.
    FeatureKey* FindKey(std::string_view iName) const noexcept { return m_names.Find(iName); }
    /// All keys: the root type's first, each type's in the order of their declaration.
    const std::vector<FeatureKey*>& Keys() const noexcept { return m_keys; }
    std::size_t SlotBytes() const noexcept { return m_slotBytes; }

    /// True as soon as something was made of the type or derived from it. No attribute may be added then.
    bool IsFrozen() const noexcept { return m_frozen.load(std::memory_order_relaxed); }
    void Freeze() noexcept
    {
        if (!IsFrozen())
            m_frozen.store(true, std::memory_order_relaxed);
    }

    /// How many objects come into being with one of the type, that one included.
    std::size_t ObjectCount() const noexcept { return m_objectCount; }
    void SetObjectCount(std::size_t iCount) noexcept { m_objectCount = iCount; }

    bool IsManaged() const noexcept { return m_isManaged; }
    void SetManaged() noexcept { m_isManaged = true; }

    /// Takes the attributes of the base type over, which is frozen by that. Before attributes are added.
    void Inherit();

    /// Adds an attribute to a type that is not frozen and has no attribute of that name.
    void AddKey(const FeatureKey::Traits& iTraits, FeatureType* iComponentType);

    /// The start-up. Its values may be written silently at any time. Null until `CompletePrototype`.
    FeatureObject* Prototype() const noexcept { return m_prototype; }
    /// Makes the start-up, or remakes it with its values after attributes were added.
    void CompletePrototype();

    /// What the dictionary says of this type, filled by the dictionary.
    const ExtensionEntry* FindExtension(const IID& iInterface) const noexcept
    {
        for (const ExtensionEntry& entry : m_extensions)
            if (entry.interfaceId == iInterface)
                return &entry;
        return nullptr;
    }
    /// The entry for `ORXIInstance`, kept apart since every write asks for it. Null for none.
    const ExtensionEntry* InstanceExtension() const noexcept { return m_instanceExtension; }
    void SetExtensions(std::vector<ExtensionEntry> iEntries);

private:
    std::string m_name;
    std::vector<std::string> m_catalogs;
    FeatureType* m_base;
    std::size_t m_depth;
    /// By depth, this type itself at its own.
    std::vector<const FeatureType*> m_ancestors;
    std::vector<FeatureKey*> m_keys;
    NameTable m_names;
    std::size_t m_slotBytes;
    std::atomic<bool> m_frozen{false};
    std::size_t m_objectCount = 1;
    bool m_isManaged = false;
    FeatureObject* m_prototype = nullptr;
    std::vector<ExtensionEntry> m_extensions;
    const ExtensionEntry* m_instanceExtension = nullptr;
};
} // namespace VYRStandalone

#endif
