#include "Container.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <typeinfo>
#include <utility>

#include "Census.h"
#include "FeatureObject.h"
#include "Instruments.h"
#include "ObjectWalk.h"

namespace VYRStandalone
{
Container::Container()
{
    Census::Born(Census::Container);
}

Container::~Container()
{
    Close();
    Census::Died(Census::Container);
}

Container* Container::Make()
{
    return new Container;
}

Container* Container::Of(ORXIContainer* iContainer) noexcept
{
    if (iContainer == nullptr || typeid(*iContainer) != typeid(Container))
        return nullptr;
    return static_cast<Container*>(iContainer);
}

FeatureObject* Container::Create(FeatureType& iType, const ORXUnicodeString& iName)
{
    FeatureObject::Holder object(FeatureObject::Make(iType, iName));
    m_objects.push_back(object.get());
    object->SetContainer(this);
    // The container takes the reference over.
    return object.release();
}

void Container::Append(FeatureObject& ioObject)
{
    m_objects.push_back(&ioObject);
    ioObject.AddReference();
    ioObject.SetContainer(this);
}

void Container::Remove(FeatureObject& ioObject)
{
    // From the end, where what is taken out again has mostly just been made.
    const auto found = std::find(m_objects.rbegin(), m_objects.rend(), &ioObject);
    if (found == m_objects.rend())
        return;
    m_objects.erase(std::prev(found.base()));
    ioObject.SetContainer(nullptr);
    ioObject.DropReference();
}

/// Where there is no memory for it, the object is not kept in mind; that matters only to objects that hold each other.
void Container::AddStray(FeatureObject& ioObject) noexcept
{
    try
    {
        m_strays.insert(&ioObject);
        ioObject.SetStrayOf(this);
    }
    catch (const std::bad_alloc&)
    {
    }
}

void Container::RemoveStray(FeatureObject& ioObject) noexcept
{
    m_strays.erase(&ioObject);
    ioObject.SetStrayOf(nullptr);
}

/// Where there is no memory to look for them, objects that hold each other stay alive; all others go.
void Container::Close() noexcept
{
    std::vector<FeatureObject*> objects = std::exchange(m_objects, {});
    for (FeatureObject* const object : objects)
        object->SetContainer(nullptr);
    const auto strays = std::exchange(m_strays, {});
    for (FeatureObject* const stray : strays)
    {
        stray->AddReference();
        stray->SetStrayOf(nullptr);
    }
    std::vector<FeatureObject*> all;
    std::vector<FeatureObject*> references;
    try
    {
        const auto look = [&](FeatureObject& ioObject) {
            AppendTree(ioObject, all);
            ioObject.TakeReferences(references);
        };
        for (FeatureObject* const object : objects)
            look(*object);
        for (FeatureObject* const stray : strays)
            look(*stray);
    }
    catch (const std::bad_alloc&)
    {
    }
    // Held, since a listener that goes may take others along.
    for (FeatureObject* const object : all)
        object->AddReference();
    for (FeatureObject* const object : all)
        object->Extensions().DropListeners();
    for (const std::vector<FeatureObject*>* const held : {&references, &all, &objects})
        for (FeatureObject* const object : *held)
            object->DropReference();
    for (FeatureObject* const stray : strays)
        stray->DropReference();
}

HRESULT Container::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    if (!(iInterface == IID_ORXIContainer))
        return ORXIContainer::QueryInterface(iInterface, oInterface);
    *oInterface = this;
    AddRef();
    return S_OK;
}

ORXListValORXBaseUnknown_var* Container::ListMembers(const ORXUnicodeString& iType)
{
    if (Instruments::Active() && Instruments::Fails("ListMembers", iType.View(), nullptr))
        return nullptr;
    auto list = std::make_unique<ORXListValORXBaseUnknown_var>();
    for (FeatureObject* const object : m_objects)
        if (iType.IsEmpty() || object->Type().DerivesFrom(iType.View()))
            list->Append(ORXBaseUnknown_var::Share(object));
    return list.release();
}
} // namespace VYRStandalone
