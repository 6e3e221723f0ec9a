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

    /// What a declaration changes of a type.
    struct Content
    {
        std::vector<std::string> catalogs;
        std::vector<FeatureKey*> keys;
        NameTable names;
        std::size_t slotBytes = 0;
        std::size_t objectCount = 1;
        bool isManaged = false;
        FeatureObject* prototype = nullptr;
    };

    const std::string& Name() const noexcept { return m_name; }
    /// The catalogs that say something of the type, in the order of their declaration.
    const std::vector<std::string>& Catalogs() const noexcept { return m_content.catalogs; }
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
    FeatureKey* FindKey(std::string_view iName) const noexcept { return m_content.names.Find(iName); }
    /// All keys: the root type's first, each type's in the order of their declaration.
    const std::vector<FeatureKey*>& Keys() const noexcept { return m_content.keys; }
    std::size_t SlotBytes() const noexcept { return m_content.slotBytes; }

    /// True as soon as something was made of the type or derived from it. No attribute may be added then.
    bool IsFrozen() const noexcept { return m_frozen.load(std::memory_order_relaxed); }
    void Freeze() noexcept
    {
        if (!IsFrozen())
            m_frozen.store(true, std::memory_order_relaxed);
    }

    /// How many objects come into being with one of the type, that one included.
    std::size_t ObjectCount() const noexcept { return m_content.objectCount; }
    void SetObjectCount(std::size_t iCount) noexcept { m_content.objectCount = iCount; }

    bool IsManaged() const noexcept { return m_content.isManaged; }
    void SetManaged() noexcept { m_content.isManaged = true; }

    /// Takes the attributes of the base type over, which is frozen by that. Before attributes are added.
    void Inherit();

    /// Adds an attribute to a type that is not frozen and has no attribute of that name.
    void AddKey(const FeatureKey::Traits& iTraits, FeatureType* iComponentType);

    /// The start-up. Its values may be written silently at any time. Null until `MakePrototype`.
    FeatureObject* Prototype() const noexcept { return m_content.prototype; }
    /// Makes the start-up, or another one with the values of the former and with the attributes that were added since.
    /// The former one is the caller's, to be thrown away by `DropPrototype` once the declaration stands.
    void MakePrototype();

    /// @name Taking a declaration back. Nobody may have seen anything of it.
    /// @{
    const Content& AllContent() const noexcept { return m_content; }
    /// Deletes a start-up that nothing was made after. Null is allowed.
    static void DropPrototype(FeatureObject* iPrototype) noexcept;
    /// Sets the start-up of a former content again, and deletes the one that was made since.
    void TakePrototypeBack(const Content& iFormer) noexcept;
    /// Sets all else again, and deletes the keys that were made since. Behind all start-ups, which need them.
    void TakeBack(Content& ioFormer, bool iWasFrozen) noexcept;
    /// @}

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
    FeatureType* m_base;
    std::size_t m_depth;
    /// By depth, this type itself at its own.
    std::vector<const FeatureType*> m_ancestors;
    Content m_content;
    std::atomic<bool> m_frozen{false};
    std::vector<ExtensionEntry> m_extensions;
    const ExtensionEntry* m_instanceExtension = nullptr;
};
} // namespace VYRStandalone

#endif
