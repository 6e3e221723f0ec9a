#ifndef FeatureKey_H
#define FeatureKey_H

#include <typeinfo>

#include "KnowledgeType.h"
#include "ORXISpecAttrKey.h"

namespace VYRStandalone
{
class FeatureType;
class AddedAttribute;

/// What a slot holds.
enum class SlotKind : unsigned char
{
    Value,
    Object,
    List
};

/**
 * A key. That of a declared attribute is immortal and says where the attribute's slot is in all objects that carry it;
 * that of an added attribute is counted, belongs to one object and is equal to others by name and kind.
 */
class FeatureKey final : public ORXISpecAttrKey
{
public:
    /// What both kinds of keys are made from.
    struct Traits
    {
        ORXUnicodeString name;
        int type;
        int listType;
        /// Knowledge type of the value or of the list's entries; null for objects.
        KnowledgeType* knowledge;
        /// The slot is there, but the object carries the attribute only once it has been added to it.
        bool isOptional = false;
    };

    /// Key of a declared attribute; `iOffset` is that of its slot, in bytes.
    FeatureKey(const Traits& iTraits, FeatureType& iDeclaring, std::size_t iOffset, FeatureType* iComponentType);
    /// Key of an added attribute. It starts with one reference, which belongs to the attribute.
    FeatureKey(const Traits& iTraits, AddedAttribute& iHome);
    ~FeatureKey() override;

    /// The key behind an interface pointer; null for null and for a key that is not the host's.
    static FeatureKey* Of(ORXISpecAttrKey* iKey) noexcept
    {
        // The class is seen in this library alone, so there is one description of it.
        const bool isOwn = iKey != nullptr && &typeid(*iKey) == &typeid(FeatureKey);
        return isOwn ? static_cast<FeatureKey*>(iKey) : nullptr;
    }

    const ORXUnicodeString& Name() const noexcept { return m_traits.name; }
    int TypeCode() const noexcept { return m_traits.type; }
    int ListTypeCode() const noexcept { return m_traits.listType; }
    KnowledgeType* Knowledge() const noexcept { return m_traits.knowledge; }
    SlotKind Slot() const noexcept { return m_slot; }
    bool IsListOfObjects() const noexcept { return m_slot == SlotKind::List && m_traits.knowledge == nullptr; }
    /// True when the objects of the attribute, or of its list, are owned.
    bool Owns() const noexcept { return m_traits.type == tk_component || m_traits.listType == tk_component; }

    /// Null for an added attribute.
    FeatureType* Declaring() const noexcept { return m_declaring; }
    bool IsAdded() const noexcept { return m_declaring == nullptr; }
    std::size_t Offset() const noexcept { return m_offset; }
    bool IsOptional() const noexcept { return m_traits.isOptional; }
    /// The type that comes into being with the owner; null for none.
    FeatureType* ComponentType() const noexcept { return m_componentType; }
    /// The added attribute that the key was made for; null when that is gone, and for a declared key.
    AddedAttribute* Home() const noexcept { return m_home; }
    void ForgetHome() noexcept { m_home = nullptr; }

    /// True when both are of the same kind: codes, and texts of an enumeration.
    static bool SameKind(const Traits& iLeft, const Traits& iRight);
    const Traits& Kind() const noexcept { return m_traits; }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    int IsEqual(const ORXBaseUnknown* iOther) const override;
    int GetListType() override;
    int GetType() override;
    ORXUnicodeString GetName() override;

private:
    Traits m_traits;
    SlotKind m_slot;
    FeatureType* m_declaring;
    FeatureType* m_componentType;
    AddedAttribute* m_home;
    std::size_t m_offset;
};
} // namespace VYRStandalone

#endif
