#ifndef FeatureObject_H
#define FeatureObject_H

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "AddedAttribute.h"
#include "AttributeAccess.h"
#include "AttributeParm.h"
#include "ExtensionTable.h"
#include "FeatureType.h"
#include "IdentityFacet.h"
#include "ManipulatorTable.h"
#include "ORXISpecObject.h"
#include "SlotBlock.h"
#include "SlotMaking.h"
#include "Slots.h"
#include "Subscribers.h"

class ORXIInstance;

namespace VYRStandalone
{
class Container;
class ObjectNames;
class TableColumn;

/**
 * A feature object, or the start-up of a type.
 *
 * Owner and container are weak links upward. A container holds its top-level objects, an owner its components, an
 * attribute the object that it refers to. Start-ups are immortal, count nothing, and are changed silently.
 *
 * The operations of the first section are silent: nobody is told, no fault is asked for and nothing is recorded. They
 * are what loading, saving and instantiation use.
 */
class FeatureObject final : public ORXISpecObject
{
public:
    struct Dropper
    {
        void operator()(FeatureObject* iObject) const { iObject->DropReference(); }
    };
    /// Holds a reference until somebody takes it over.
    using Holder = std::unique_ptr<FeatureObject, Dropper>;

    /// @name Making. New references, outside every container, without an owner.
    /// @{
    /// With the values, lists and components of the type's start-up.
    static FeatureObject* Make(FeatureType& iType, const ORXUnicodeString& iName);
    /// The same after a given start-up, which may be a component of another.
    static FeatureObject* MakeAfter(FeatureObject& iStartup, const ORXUnicodeString& iName);
    /// An empty table column.
    static FeatureObject* MakeColumn();
    /// The start-up of a type: its base type's, or its own former one, and what its own attributes add. Immortal.
    static FeatureObject* MakePrototype(FeatureType& iType, const FeatureObject* iFormer);
    /// @}

    /// The object that a component pointer of any kind stands for; null for null and for anything else.
    static FeatureObject* Of(const ORXBaseUnknown* iComponent);

    /// @name What it is.
    /// @{
    FeatureType& Type() const noexcept { return *m_type; }
    const ORXUnicodeString& Name() const noexcept { return m_name; }
    bool IsPrototype() const noexcept { return m_isPrototype; }
    /// Where this object, its facets and its parameters are counted; null for a start-up, which is not.
    unsigned int* PlaceOfCount() noexcept { return m_isPrototype ? nullptr : &m_references; }
    /// An owner that has come to its end is none.
    FeatureObject* Owner() const noexcept { return m_owner != nullptr && !m_owner->m_isDying ? m_owner : nullptr; }
    /// The owner's attribute that holds this object; null without an owner.
    const FeatureKey* OwnerKey() const noexcept { return m_ownerKey; }
    /// The object's container, or its owner's; null outside every model.
    Container* Home() const noexcept;
    /// The start-up that the object was made after; null for a start-up.
    FeatureObject* Startup() const noexcept { return m_startup; }
    /// As `PathOf` of the public face.
    std::string Path() const;
    /// @}

    /// @name Names that not every object has: null when there is none. The empty text takes one away.
    /// @{
    const ORXUnicodeString* Alias() const noexcept;
    const ORXUnicodeString* Identifier() const noexcept;
    void SetAlias(const ORXUnicodeString& iAlias);
    void SetIdentifier(const ORXUnicodeString& iIdentifier);
    /// @}

    /// @name Attributes. A key given here is one that the object carries.
    /// @{
    /// Declared and added ones by name; null when there is none.
    FeatureKey* FindKey(std::string_view iName) const noexcept;
    /// The declared keys from the root type down, optional ones that have not been added among them, then the added
    /// ones.
    std::vector<FeatureKey*> Keys() const;
    /// False for an optional attribute that has not been added to this object. Of a declared key of the type.
    bool IsMade(const FeatureKey& iKey) const noexcept { return !iKey.IsOptional() || Mark(iKey); }
    /// Adds an optional attribute, with the value of the start-up.
    void MakeOptional(const FeatureKey& iKey) noexcept { Mark(iKey) = true; }
    /// This object's own key for a key of any origin; null when the object does not carry the attribute.
    FeatureKey* Carried(ORXISpecAttrKey* iKey) const noexcept
    {
        FeatureKey* const key = FeatureKey::Of(iKey);
        if (key == nullptr || key->IsAdded())
            return key != nullptr ? CarriedAdded(*key) : nullptr;
        return m_type->Carries(*key) && IsMade(*key) ? key : nullptr;
    }
    /// The same for attributes that each object of the type carries; null for others.
    FeatureKey* CarriedByAll(ORXISpecAttrKey* iKey) const noexcept
    {
        FeatureKey* const key = FeatureKey::Of(iKey);
        const bool isOfAll = key != nullptr && !key->IsAdded() && !key->IsOptional();
        return isOfAll && m_type->Carries(*key) ? key : nullptr;
    }

    /// The added attributes in the order in which they were added.
    const std::vector<AddedAttribute*>& Added() const noexcept;
    /// Adds an attribute, unset; one that is there already with the same kind is given again. Null for a code that is
    /// no scalar, another kind, and on a start-up. @param iTexts texts of an enumeration
    AddedAttribute* AddAttributeSilently(const ORXUnicodeString& iName, int iTypeCode, int iFlag,
                                         const std::vector<std::string>& iTexts = {});

    /// Of a value attribute; monostate is unset.
    const Scalar& Value(const FeatureKey& iKey) const noexcept { return Parm(iKey).Value(); }
    /// The value is of the attribute's kind, or monostate.
    void StoreValue(const FeatureKey& iKey, const Scalar& iValue) { Parm(iKey).Store(iValue); }

    /// Of a list attribute.
    const ListEntries& Entries(const FeatureKey& iKey) const noexcept { return List(iKey).entries; }
    /// Replaces a list of values; the alternative is that of the attribute.
    void StoreEntries(const FeatureKey& iKey, ListEntries iEntries);
    /// Replaces a list of objects, with null for empty entries. Objects of a component attribute get this object as
    /// their owner; those that leave it have none.
    void StoreObjects(const FeatureKey& iKey, const std::vector<FeatureObject*>& iObjects);

    /// Of an object attribute; borrowed, null when it is empty.
    FeatureObject* Object(const FeatureKey& iKey) const noexcept { return ObjectAt(iKey).object; }
    /// As `StoreObjects`, for a scalar attribute.
    void StoreObject(const FeatureKey& iKey, FeatureObject* iObject);

    /// Rows of a table column; null for every other object.
    std::vector<double>* ColumnRows() noexcept;
    /// @}

    /// @name Counting, without a virtual call.
    /// @{
    void AddReference() noexcept
    {
        if (!m_isPrototype)
            ++m_references;
    }
    unsigned int DropReference();
    unsigned int References() const noexcept { return m_references; }
    /// @}

    /// @name Who receives its notifications.
    /// @{
    /// A start-up has none, since all threads share it.
    void AddSubscriber(const std::shared_ptr<Subscription::Callback>& iCallback);
    /// Null when nobody has ever subscribed.
    const Subscribers* GetSubscribers() const noexcept { return m_subscribers.get(); }
    /// @}

    /// @name What the facets of the object share.
    /// @{
    ORXBaseUnknown* Root() const noexcept { return const_cast<FeatureObject*>(this); }
    AttributeAccess& Access() noexcept { return m_access; }
    ExtensionTable& Extensions() noexcept { return m_extensions; }
    ManipulatorTable& Manipulators() noexcept { return m_manipulators; }
    AttributeParm& Parm(const FeatureKey& iKey) const noexcept { return *static_cast<AttributeParm*>(Slot(iKey)); }
    ListSlot& List(const FeatureKey& iKey) const noexcept { return *static_cast<ListSlot*>(Slot(iKey)); }
    ObjectSlot& ObjectAt(const FeatureKey& iKey) const noexcept { return *static_cast<ObjectSlot*>(Slot(iKey)); }

    /// True when this object is the other, or owns it, directly or not.
    bool IsOrOwns(const FeatureObject& iOther) const noexcept;
    /// One entry of a component attribute of this object now holds the child, which leaves where it stood before.
    void Gained(FeatureObject& ioChild, const FeatureKey& iKey);
    /// One entry of this object's component attributes no longer holds the child; with the last it has no owner.
    void Lost(FeatureObject& ioChild) noexcept;
    /// Of the container only: the one that keeps this object in mind although it has left the model.
    void SetStrayOf(Container* iContainer) noexcept { m_strayOf = iContainer; }
    void SetContainer(Container* iContainer) noexcept { m_container = iContainer; }
    Container* OwnContainer() const noexcept { return m_container; }
    /// Takes the objects out that this object and its components refer to; they still count one reference each.
    void TakeReferences(std::vector<FeatureObject*>& ioTaken);

    /// Tells the object's `ORXIInstance`, if it has one, of a write. The object may be gone afterwards, if nobody
    /// else holds it: the caller returns without touching it.
    void Tell(const FeatureKey& iKey, ORXIValue* iValue);
    /// @}

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXBaseUnknown* GetImpl(int iKind) const override;
    int IsEqual(const ORXBaseUnknown* iOther) const override;

    ORXUnicodeString GetName() override;
    ORXUnicodeString GetType() override;
    ORXBoolean IsSubTypeOf(const ORXUnicodeString& iType) override;
    ORXISpecObject* GetStartup() override;
    ORXISpecObject* GetOwner() override;
    ORXBaseUnknown_var GetContainer() override;
    ORXISpecAttribute* AddAttribute(const ORXUnicodeString& iName, int iTypeCode, int iFlag) override;

private:
    FeatureObject(FeatureType& iType, const ORXUnicodeString& iName, FeatureObject* iStartup, bool iIsPrototype);
    ~FeatureObject() override;

    friend class FeatureType;

    /// Of a start-up that is not finished.
    struct Deleter
    {
        void operator()(FeatureObject* iObject) const noexcept { ::delete iObject; }
    };

    void* Slot(const FeatureKey& iKey) const noexcept
    {
        return iKey.IsAdded() ? iKey.Home()->Slot() : m_block->At(iKey.Offset());
    }
    /// Of an optional attribute.
    bool& Mark(const FeatureKey& iKey) const noexcept
    {
        return *static_cast<bool*>(m_block->At(iKey.Offset() + SlotMaking::MarkOffset(iKey.Kind())));
    }
    /// The keys of the declared attributes that have slots here.
    std::vector<FeatureKey*>::const_iterator SlotsEnd() const noexcept;
    void MakeSlots();
    void DropSlots() noexcept;
    void DropSlot(const FeatureKey& iKey) noexcept;
    /// Copies values and lists, and makes components after those of the other.
    void CopyFrom(const FeatureObject& iOther);
    /// Makes a component after a start-up, itself a start-up if this object is one.
    void MakeComponent(const FeatureKey& iKey, FeatureObject& iAfter);
    void LeaveOwner();
    void LeaveStrays() noexcept;
    void TakeObjects(const FeatureKey& iKey, std::vector<FeatureObject*>& ioTaken);
    void Die();
    /// Of a key of an added attribute.
    FeatureKey* CarriedAdded(FeatureKey& iKey) const noexcept;
    void Advise(ORXIInstance& ioInstance, const FeatureKey& iKey, const ORXIValue_var& iValue);
    /// A facet that is no extension; null when the object has none of that interface. No reference is added.
    [[gnu::always_inline]] inline ORXBaseUnknown* OwnFacet(const IID& iInterface) noexcept;
    /// New reference.
    ORXBaseUnknown* ExtensionFacet(const IID& iInterface, const ExtensionEntry* iEntry);
    ObjectNames& Names();

    // What long lists of objects touch stands in front, so that it is mostly in one cache line.
    unsigned int m_references = 1;
    /// Entries of the owner's component attributes that hold this object: a list may hold it twice.
    unsigned int m_holdings = 0;
    AttributeAccess m_access;
    /// A start-up may have fewer slots than its type has keys, until it is made anew.
    unsigned int m_slotCount;
    bool m_isPrototype;
    bool m_isDying = false;
    FeatureType* m_type;
    SlotBlock::Holder m_block;
    ExtensionTable m_extensions;
    FeatureObject* m_owner = nullptr;
    const FeatureKey* m_ownerKey = nullptr;
    /// Of a top-level object only.
    Container* m_container = nullptr;
    Container* m_strayOf = nullptr;
    FeatureObject* m_nextDying = nullptr;
    FeatureObject* m_startup;
    IdentityFacet m_identity;
    std::unique_ptr<AddedAttributes> m_added;
    std::unique_ptr<ObjectNames> m_names;
    std::unique_ptr<TableColumn> m_column;
    std::unique_ptr<Subscribers> m_subscribers;
    ManipulatorTable m_manipulators;
    ORXUnicodeString m_name;
};
} // namespace VYRStandalone

#endif
