#include "FeatureObject.h"

#include <algorithm>
#include <iterator>
#include <typeinfo>
#include <utility>

#include "Census.h"
#include "Container.h"
#include "DeclaredAttribute.h"
#include "Dictionary.h"
#include "Instruments.h"
#include "InterfaceNames.h"
#include "KeptTie.h"
#include "ORXComponentLink.h"
#include "ORXIInstance.h"
#include "ORXTie.h"
#include "ObjectNames.h"
#include "RecordLines.h"
#include "SlotMaking.h"
#include "TableColumn.h"
#include "TypeRegistry.h"

namespace VYRStandalone
{
FeatureObject::FeatureObject(FeatureType& iType, const ORXUnicodeString& iName, FeatureObject* iStartup,
                             bool iIsPrototype)
    : m_access(*this), m_slotCount(static_cast<unsigned int>(iType.Keys().size())), m_isPrototype(iIsPrototype),
      m_type(&iType), m_block(SlotBlock::Make(iType.SlotBytes(), *this)), m_startup(iStartup), m_identity(*this),
      m_name(iName)
{
    ORXComponentLink::CountAt(*this, PlaceOfCount());
    ORXComponentLink::CountAt(m_access, PlaceOfCount());
    MakeSlots();
    if (!m_isPrototype)
        Census::Born(Census::FeatureObject);
}

FeatureObject::~FeatureObject()
{
    m_isDying = true;
    // While the attributes are still there, since destructors of extensions may look at them.
    m_extensions.Clear();
    DropSlots();
    // Behind that, since what it owned and what lives on takes its place among the strays.
    LeaveStrays();
    if (!m_isPrototype)
        Census::Died(Census::FeatureObject);
}

FeatureObject* FeatureObject::Make(FeatureType& iType, const ORXUnicodeString& iName)
{
    return MakeAfter(*iType.Prototype(), iName);
}

FeatureObject* FeatureObject::MakeAfter(FeatureObject& iStartup, const ORXUnicodeString& iName)
{
    iStartup.Type().Freeze();
    Holder object(new FeatureObject(iStartup.Type(), iName, &iStartup, false));
    object->CopyFrom(iStartup);
    return object.release();
}

FeatureObject* FeatureObject::MakeColumn()
{
    FeatureType& type = TypeRegistry::Instance().ColumnType();
    Holder object(Make(type, type.Name().c_str()));
    object->m_column = std::make_unique<TableColumn>(*object);
    return object.release();
}

FeatureObject* FeatureObject::MakePrototype(FeatureType& iType, const FeatureObject* iFormer)
{
    // Immortal, and so past the allocation that the census counts.
    std::unique_ptr<FeatureObject, Deleter> prototype(::new FeatureObject(iType, iType.Name().c_str(), nullptr, true));
    const FeatureObject* const former =
        iFormer != nullptr || iType.Base() == nullptr ? iFormer : iType.Base()->Prototype();
    if (former != nullptr)
        prototype->CopyFrom(*former);
    for (auto key = iType.Keys().begin() + (former != nullptr ? former->m_slotCount : 0); key != iType.Keys().end();
         ++key)
        if (FeatureType* const component = (*key)->ComponentType())
            prototype->MakeComponent(**key, *component->Prototype());
    return prototype.release();
}

FeatureObject* FeatureObject::Of(const ORXBaseUnknown* iComponent)
{
    if (iComponent == nullptr)
        return nullptr;
    // The two that nearly all pointers are. The classes are seen in this library alone, so that there is one
    // description of each.
    const std::type_info& type = typeid(*iComponent);
    if (&type == &typeid(FeatureObject))
        return const_cast<FeatureObject*>(static_cast<const FeatureObject*>(iComponent));
    if (&type == &typeid(AttributeAccess))
        return &static_cast<const AttributeAccess*>(iComponent)->Object();
    ORXBaseUnknown* const root = iComponent->GetImpl(0);
    if (root == nullptr || &typeid(*root) != &typeid(FeatureObject))
        return nullptr;
    return static_cast<FeatureObject*>(root);
}

Container* FeatureObject::Home() const noexcept
{
    const FeatureObject* object = this;
    while (object->Owner() != nullptr)
        object = object->Owner();
    return object->m_container;
}

std::string FeatureObject::Path() const
{
    std::vector<const FeatureObject*> owners{this};
    while (owners.back()->Owner() != nullptr)
        owners.push_back(owners.back()->Owner());
    const FeatureObject& top = *owners.back();
    std::string path = top.m_isPrototype ? '[' + top.m_type->Name() + ']' : std::string(top.m_name.View());
    for (auto object = owners.rbegin() + 1; object != owners.rend(); ++object)
        path.append(1, '/').append((*object)->m_ownerKey->Name().View());
    return path;
}

const ORXUnicodeString* FeatureObject::Alias() const noexcept
{
    return m_names != nullptr && !m_names->alias.text.IsEmpty() ? &m_names->alias.text : nullptr;
}

const ORXUnicodeString* FeatureObject::Identifier() const noexcept
{
    return m_names != nullptr && !m_names->identifier.text.IsEmpty() ? &m_names->identifier.text : nullptr;
}

void FeatureObject::SetAlias(const ORXUnicodeString& iAlias)
{
    Names().alias.text = iAlias;
}

void FeatureObject::SetIdentifier(const ORXUnicodeString& iIdentifier)
{
    Names().identifier.text = iIdentifier;
}

void FeatureObject::AddSubscriber(const std::shared_ptr<Subscription::Callback>& iCallback)
{
    if (m_isPrototype)
        return;
    if (m_subscribers == nullptr)
        m_subscribers = std::make_unique<Subscribers>();
    m_subscribers->Add(iCallback);
}

ObjectNames& FeatureObject::Names()
{
    if (m_names == nullptr)
        m_names = std::make_unique<ObjectNames>(*this);
    return *m_names;
}

FeatureKey* FeatureObject::FindKey(std::string_view iName) const noexcept
{
    FeatureKey* const declared = m_type->FindKey(iName);
    return declared != nullptr || m_added == nullptr ? declared : m_added->names.Find(iName);
}

std::vector<FeatureKey*> FeatureObject::Keys() const
{
    std::vector<FeatureKey*> keys(m_type->Keys().begin(), SlotsEnd());
    for (const AddedAttribute* const added : Added())
        keys.push_back(&added->Key());
    return keys;
}

FeatureKey* FeatureObject::CarriedAdded(FeatureKey& iKey) const noexcept
{
    if (iKey.Home() != nullptr && &iKey.Home()->Object() == this)
        return &iKey;
    // A key of another object's attribute serves here when name and kind agree.
    FeatureKey* const own = m_added != nullptr ? m_added->names.Find(iKey.Name().View()) : nullptr;
    return own != nullptr && FeatureKey::SameKind(own->Kind(), iKey.Kind()) ? own : nullptr;
}

const std::vector<AddedAttribute*>& FeatureObject::Added() const noexcept
{
    static const std::vector<AddedAttribute*>* const none = new std::vector<AddedAttribute*>;
    return m_added != nullptr ? m_added->inOrder : *none;
}

AddedAttribute* FeatureObject::AddAttributeSilently(const ORXUnicodeString& iName, int iTypeCode, int iFlag,
                                                    const std::vector<std::string>& iTexts)
{
    KnowledgeType* knowledge = KnowledgeType::OfTypeCode(iTypeCode);
    const bool isObject = iTypeCode == tk_specobject || iTypeCode == tk_component;
    if ((knowledge == nullptr && !isObject) || m_isPrototype || iName.IsEmpty())
        return nullptr;
    if (const FeatureKey* const known = FindKey(iName.View()))
    {
        const bool isSame = known->IsAdded() && known->TypeCode() == iTypeCode;
        return isSame ? known->Home() : nullptr;
    }
    if (!iTexts.empty())
        knowledge = KnowledgeType::MakeEnumeration(std::string(iName.View()), iTexts);
    if (m_added == nullptr)
        m_added = std::make_unique<AddedAttributes>();
    // Room for it first; what fails behind that leaves nothing.
    m_added->inOrder.push_back(nullptr);
    AddedAttribute* added = nullptr;
    try
    {
        // Past the allocation that the census counts: it is part of the object.
        added = ::new AddedAttribute(*this, {iName, iTypeCode, 0, knowledge}, iFlag);
        m_added->names.Insert(&added->Key());
    }
    catch (...)
    {
        m_added->inOrder.pop_back();
        if (added != nullptr)
            DropSlot(added->Key());
        ::delete added;
        throw;
    }
    m_added->inOrder.back() = added;
    return added;
}

void FeatureObject::StoreEntries(const FeatureKey& iKey, ListEntries iEntries)
{
    List(iKey).entries = std::move(iEntries);
}

void FeatureObject::StoreObjects(const FeatureKey& iKey, const std::vector<FeatureObject*>& iObjects)
{
    // The memory first: from here on nothing fails.
    std::vector<FeatureObject*> former(iObjects);
    // All new ones are held before any of the old ones goes: an object may be among both.
    for (FeatureObject* const object : iObjects)
        if (object != nullptr)
        {
            object->AddReference();
            if (iKey.Owns())
                Gained(*object, iKey);
        }
    List(iKey).SettleBorrowers();
    former.swap(std::get<std::vector<FeatureObject*>>(List(iKey).entries));
    for (FeatureObject* const object : former)
        if (object != nullptr)
        {
            if (iKey.Owns())
                Lost(*object);
            object->DropReference();
        }
}

void FeatureObject::StoreObject(const FeatureKey& iKey, FeatureObject* iObject)
{
    if (iObject != nullptr)
    {
        iObject->AddReference();
        if (iKey.Owns())
            Gained(*iObject, iKey);
    }
    FeatureObject* const former = std::exchange(ObjectAt(iKey).object, iObject);
    if (former == nullptr)
        return;
    if (iKey.Owns())
        Lost(*former);
    former->DropReference();
}

std::vector<double>* FeatureObject::ColumnRows() noexcept
{
    return m_column != nullptr ? &m_column->Rows() : nullptr;
}

unsigned int FeatureObject::DropReference()
{
    if (m_isPrototype)
        return 1;
    const unsigned int left = --m_references;
    if (left == 0)
    {
        // Destructors may hand the object out for a moment; that must not delete it again.
        m_references = 1;
        Die();
    }
    return left;
}

namespace
{
/// The objects that have lost their last reference while another one ends on this thread.
struct Dying
{
    bool isBusy = false;
    FeatureObject* first = nullptr;
};
thread_local constinit Dying dying;
} // namespace

/// One after the other, since a deep tree of components would end the stack.
void FeatureObject::Die()
{
    m_isDying = true;
    m_nextDying = dying.first;
    dying.first = this;
    if (dying.isBusy)
        return;
    dying.isBusy = true;
    while (dying.first != nullptr)
    {
        FeatureObject* const object = dying.first;
        dying.first = object->m_nextDying;
        delete object;
    }
    dying.isBusy = false;
}

bool FeatureObject::IsOrOwns(const FeatureObject& iOther) const noexcept
{
    for (const FeatureObject* object = &iOther; object != nullptr; object = object->m_owner)
        if (object == this)
            return true;
    return false;
}

void FeatureObject::Gained(FeatureObject& ioChild, const FeatureKey& iKey)
{
    if (ioChild.m_owner != nullptr && (ioChild.m_owner != this || ioChild.m_ownerKey != &iKey))
        ioChild.LeaveOwner();
    if (ioChild.m_container != nullptr)
        ioChild.m_container->Remove(ioChild);
    ioChild.LeaveStrays();
    ioChild.m_owner = this;
    ioChild.m_ownerKey = &iKey;
    ++ioChild.m_holdings;
}

void FeatureObject::Lost(FeatureObject& ioChild) noexcept
{
    if (--ioChild.m_holdings != 0)
        return;
    ioChild.m_owner = nullptr;
    ioChild.m_ownerKey = nullptr;
    FeatureObject* top = this;
    while (top->m_owner != nullptr)
        top = top->m_owner;
    if (Container* const home = top->m_container != nullptr ? top->m_container : top->m_strayOf)
        home->AddStray(ioChild);
}

void FeatureObject::LeaveStrays() noexcept
{
    if (m_strayOf != nullptr)
        m_strayOf->RemoveStray(*this);
}

/// The caller holds this object.
void FeatureObject::LeaveOwner()
{
    FeatureObject& owner = *m_owner;
    const FeatureKey& key = *m_ownerKey;
    if (key.Slot() == SlotKind::Object)
    {
        owner.StoreObject(key, nullptr);
        return;
    }
    owner.List(key).SettleBorrowers();
    std::vector<FeatureObject*>& entries = std::get<std::vector<FeatureObject*>>(owner.List(key).entries);
    const auto kept = std::remove(entries.begin(), entries.end(), this);
    auto gone = entries.end() - kept;
    entries.erase(kept, entries.end());
    for (; gone > 0; --gone)
    {
        owner.Lost(*this);
        DropReference();
    }
}

void FeatureObject::TakeReferences(std::vector<FeatureObject*>& ioTaken)
{
    // What is still to come, since components may stand deep inside each other.
    std::vector<FeatureObject*> coming{this};
    while (!coming.empty())
    {
        FeatureObject& object = *coming.back();
        coming.pop_back();
        for (const FeatureKey* const key : object.Keys())
            object.TakeObjects(*key, key->Owns() ? coming : ioTaken);
    }
}

/// Objects that are only referred to are taken out; components stay.
void FeatureObject::TakeObjects(const FeatureKey& iKey, std::vector<FeatureObject*>& ioTaken)
{
    if (iKey.Slot() == SlotKind::Object)
    {
        FeatureObject*& object = ObjectAt(iKey).object;
        if (object != nullptr)
            ioTaken.push_back(object);
        if (!iKey.Owns())
            object = nullptr;
    }
    else if (iKey.IsListOfObjects())
    {
        std::vector<FeatureObject*>& entries = std::get<std::vector<FeatureObject*>>(List(iKey).entries);
        // Room first: all are taken or none.
        if (ioTaken.capacity() - ioTaken.size() < entries.size())
            ioTaken.reserve(2 * ioTaken.capacity() + entries.size());
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(ioTaken),
                     [](const FeatureObject* iEntry) { return iEntry != nullptr; });
        if (!iKey.Owns())
        {
            List(iKey).SettleBorrowers();
            entries.clear();
        }
    }
}

void FeatureObject::Tell(const FeatureKey& iKey, ORXIValue* iValue)
{
    if (m_isPrototype || m_isDying)
        return;
    Dictionary::EnsureFresh();
    const ExtensionEntry* const entry = m_type->InstanceExtension();
    if (entry == nullptr)
        return;
    // The listener may let the last other reference go, and may write the value again.
    const ORXISpecObject_var object = ORXISpecObject_var::Share(this);
    const ORXIValue_var value = ORXIValue_var::Share(iValue);
    ORXTieRecord* kept = m_extensions.FindKeptTie(IID_ORXIInstance);
    // A library that came later may have registered another class.
    if (kept != nullptr && kept->meta->Served() != entry->extensionClass)
        KeptTie::Drop(*std::exchange(kept, nullptr));
    if (kept != nullptr)
    {
        const KeptTie::Use use(*kept);
        Advise(static_cast<ORXIInstance&>(*kept->tie), iKey, value);
        return;
    }
    const ORXIInstance_var instance =
        ORXIInstance_var::Adopt(static_cast<ORXIInstance*>(ExtensionFacet(IID_ORXIInstance, entry)));
    if (!instance)
        return;
    m_extensions.KeepTie(IID_ORXIInstance);
    Advise(*instance.Pointer(), iKey, value);
}

void FeatureObject::Advise(ORXIInstance& ioInstance, const FeatureKey& iKey, const ORXIValue_var& iValue)
{
    if (!Instruments::IsRecording())
    {
        ioInstance.AdviseAttributeChanged(iKey.Name(), iValue);
        return;
    }
    // Made before the listener is told, which may take the object elsewhere.
    const std::string done = RecordLines::Call("done", *this, iKey.Name().View(), 0);
    Instruments::Record(RecordLines::Advise(*this, iKey));
    ioInstance.AdviseAttributeChanged(iKey.Name(), iValue);
    Instruments::Record(done);
}

ORXBaseUnknown* FeatureObject::OwnFacet(const IID& iInterface) noexcept
{
    // The first field decides, since no two interfaces of the host share it; the rest is only looked at then.
    switch (iInterface.Data1)
    {
    case IID_ORXBaseUnknown.Data1:
        return iInterface == IID_ORXBaseUnknown ? this : nullptr;
    case IID_ORXISpecObject.Data1:
        return iInterface == IID_ORXISpecObject ? this : nullptr;
    case IID_ORXISpecAttrAccess.Data1:
        return iInterface == IID_ORXISpecAttrAccess ? &m_access : nullptr;
    case IID_ORXIComponentIdentity.Data1:
        return iInterface == IID_ORXIComponentIdentity ? &m_identity : nullptr;
    case IID_ORXIAlias.Data1:
        return iInterface == IID_ORXIAlias && Alias() != nullptr ? &m_names->alias : nullptr;
    case IID_VYRIFldIdentifier.Data1:
        return iInterface == IID_VYRIFldIdentifier && Identifier() != nullptr ? &m_names->identifier : nullptr;
    case IID_ORXISimBCDataTableColumn.Data1:
        return iInterface == IID_ORXISimBCDataTableColumn ? m_column.get() : nullptr;
    default:
        return nullptr;
    }
}

HRESULT FeatureObject::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() &&
        Instruments::Fails("QueryInterface", std::string_view(InterfaceNames::Of(iInterface)), this, planted))
    {
        *oInterface = nullptr;
        return planted;
    }
    if (ORXBaseUnknown* const facet = OwnFacet(iInterface))
    {
        AddReference();
        *oInterface = facet;
        return S_OK;
    }
    Dictionary::EnsureFresh();
    *oInterface = ExtensionFacet(iInterface, m_type->FindExtension(iInterface));
    return *oInterface != nullptr ? S_OK : E_NOINTERFACE;
}

ORXBaseUnknown* FeatureObject::ExtensionFacet(const IID& iInterface, const ExtensionEntry* iEntry)
{
    if (ORXBaseUnknown* const known = m_extensions.FindLink(iInterface))
    {
        known->AddRef();
        return known;
    }
    // A start-up is shared between threads and lives for ever: nothing is attached to it.
    if (iEntry == nullptr || m_isPrototype || m_isDying || m_extensions.IsClearing() ||
        m_extensions.IsUnderConstruction(*iEntry->extensionClass))
        return nullptr;
    return iEntry->creator(Root(), m_extensions.Find(*iEntry->extensionClass));
}

unsigned int FeatureObject::AddRef()
{
    AddReference();
    return m_references;
}

unsigned int FeatureObject::Release()
{
    return DropReference();
}

ORXBaseUnknown* FeatureObject::GetImpl(int iKind) const
{
    return iKind == 0 ? Root() : nullptr;
}

int FeatureObject::IsEqual(const ORXBaseUnknown* iOther) const
{
    return iOther != nullptr && iOther->GetImpl(0) == Root() ? 1 : 0;
}

ORXUnicodeString FeatureObject::GetName()
{
    return m_name;
}

ORXUnicodeString FeatureObject::GetType()
{
    return ORXUnicodeString(m_type->Name().c_str(), m_type->Name().size());
}

ORXBoolean FeatureObject::IsSubTypeOf(const ORXUnicodeString& iType)
{
    return m_type->DerivesFrom(iType.View()) ? ORXTrue : ORXFalse;
}

ORXISpecObject* FeatureObject::GetStartup()
{
    if (Instruments::Active() && Instruments::Fails("GetStartup", std::string_view(m_type->Name()), this))
        return nullptr;
    if (m_startup != nullptr)
        m_startup->AddReference();
    return m_startup;
}

ORXISpecObject* FeatureObject::GetOwner()
{
    if (Instruments::Active() && Instruments::Fails("GetOwner", std::string_view(m_type->Name()), this))
        return nullptr;
    if (Owner() != nullptr)
        Owner()->AddReference();
    return Owner();
}

ORXBaseUnknown_var FeatureObject::GetContainer()
{
    if (Instruments::Active() && Instruments::Fails("GetContainer", std::string_view(m_type->Name()), this))
        return {};
    return ORXBaseUnknown_var::Share(Home());
}

ORXISpecAttribute* FeatureObject::AddAttribute(const ORXUnicodeString& iName, int iTypeCode, int iFlag)
{
    if (Instruments::Active())
    {
        if (Instruments::IsRecording())
            Instruments::Record(RecordLines::Call("add", *this, iName.View(), 0));
        if (Instruments::Fails("AddAttribute", iName.View(), this))
            return nullptr;
    }
    // A declared attribute is there already, or waits to be added.
    if (FeatureKey* const declared = m_type->FindKey(iName.View()))
    {
        if (declared->TypeCode() != iTypeCode || m_isPrototype)
            return nullptr;
        if (declared->IsOptional())
            MakeOptional(*declared);
        return new DeclaredAttribute(*this, *declared);
    }
    AddedAttribute* const added = AddAttributeSilently(iName, iTypeCode, iFlag);
    if (added != nullptr)
        AddReference();
    return added;
}

std::vector<FeatureKey*>::const_iterator FeatureObject::SlotsEnd() const noexcept
{
    return m_type->Keys().begin() + m_slotCount;
}

void FeatureObject::MakeSlots()
{
    for (auto key = m_type->Keys().begin(); key != SlotsEnd(); ++key)
        SlotMaking::Make(m_block->At((*key)->Offset()), *this, **key, *m_block);
}

void FeatureObject::DropSlots() noexcept
{
    for (auto key = m_type->Keys().begin(); key != SlotsEnd(); ++key)
        DropSlot(**key);
    if (m_added == nullptr)
        return;
    for (AddedAttribute* const added : m_added->inOrder)
    {
        DropSlot(added->Key());
        ::delete added;
    }
}

void FeatureObject::DropSlot(const FeatureKey& iKey) noexcept
{
    switch (iKey.Slot())
    {
    case SlotKind::Value:
        // A start-up ends only when its declaration is taken back, or made anew before anybody has seen it.
        if (m_isPrototype)
            Parm(iKey).DestroyUnseen();
        else
            Parm(iKey).Destroy();
        break;
    case SlotKind::Object:
        if (FeatureObject* const object = m_isPrototype ? ObjectAt(iKey).object : nullptr)
            ::delete object;
        else
            StoreObject(iKey, nullptr);
        break;
    case SlotKind::List:
        if (iKey.IsListOfObjects())
            StoreObjects(iKey, {});
        List(iKey).~ListSlot();
        break;
    }
}

void FeatureObject::CopyFrom(const FeatureObject& iOther)
{
    for (auto key = iOther.m_type->Keys().begin(); key != iOther.SlotsEnd(); ++key)
        switch ((*key)->Slot())
        {
        case SlotKind::Value:
            // Unset is what a new slot is already.
            if (!std::holds_alternative<std::monostate>(iOther.Value(**key)))
                StoreValue(**key, iOther.Value(**key));
            break;
        case SlotKind::List:
            if (!(*key)->IsListOfObjects())
                // Without StoreEntries: where memory runs out in its argument's copy, g++ 12 unwinds wrongly.
                List(**key).entries = iOther.Entries(**key);
            break;
        case SlotKind::Object:
            if (FeatureObject* const component = iOther.Object(**key))
                MakeComponent(**key, *component);
            break;
        }
}

void FeatureObject::MakeComponent(const FeatureKey& iKey, FeatureObject& iAfter)
{
    FeatureObject* component = nullptr;
    if (m_isPrototype)
    {
        iAfter.Type().Freeze();
        std::unique_ptr<FeatureObject, Deleter> made(::new FeatureObject(iAfter.Type(), iKey.Name(), nullptr, true));
        made->CopyFrom(iAfter);
        component = made.release();
    }
    else
        component = MakeAfter(iAfter, iKey.Name());
    // The slot takes the reference over.
    ObjectAt(iKey).object = component;
    Gained(*component, iKey);
}
} // namespace VYRStandalone
