#include "Container.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

#include "Census.h"
#include "FeatureObject.h"
#include "Instruments.h"

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
    // The container takes the reference over.
    FeatureObject* const object = FeatureObject::Make(iType, iName);
    m_objects.push_back(object);
    object->SetContainer(this);
    return object;
}

void Container::Append(FeatureObject& ioObject)
{
    ioObject.AddReference();
    m_objects.push_back(&ioObject);
    ioObject.SetContainer(this);
}

void Container::Remove(FeatureObject& ioObject)
{
    const auto found = std::find(m_objects.begin(), m_objects.end(), &ioObject);
    if (found == m_objects.end())
        return;
    m_objects.erase(found);
    ioObject.SetContainer(nullptr);
    ioObject.DropReference();
}

void Container::Close()
{
    const std::vector<FeatureObject*> objects = std::exchange(m_objects, {});
    // References first, so that objects that refer to each other, also in a ring, can die.
    std::vector<FeatureObject*> references;
    for (FeatureObject* const object : objects)
    {
        object->SetContainer(nullptr);
        object->TakeReferences(references);
    }
    for (FeatureObject* const object : references)
        object->DropReference();
    for (FeatureObject* const object : objects)
        object->DropReference();
}

HRESULT Container::QueryInterface(const IID& iInterface, void** oInterface)
{
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
    ORXListValORXBaseUnknown_var* const list = new ORXListValORXBaseUnknown_var;
    for (FeatureObject* const object : m_objects)
        if (iType.IsEmpty() || object->Type().DerivesFrom(iType.View()))
            list->Append(ORXBaseUnknown_var::Share(object));
    return list;
}
} // namespace VYRStandalone
