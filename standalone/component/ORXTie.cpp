#include "ORXTie.h"

#include "Census.h"
#include "FeatureObject.h"
#include "KeptTie.h"
#include "ORXComponentLink.h"
#include "ORXOmxInternals.h"

using VYRStandalone::Census;
using VYRStandalone::FeatureObject;
using VYRStandalone::KeptTie;

ORXBaseUnknown* ToCreateBOA(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension, ORXMetaClass* iClass,
                            const IID& iInterface, ORXInstanceConstructor iConstructor)
{
    FeatureObject* const object = FeatureObject::Of(iExtended);
    if (object == nullptr || iClass == nullptr || iConstructor == nullptr)
        return nullptr;
    ORXBaseUnknown* const instance =
        iExtension != nullptr ? iExtension : object->Extensions().FindOrMake(*object->Root(), *iClass, iConstructor);
    if (instance == nullptr)
        return nullptr;
    if (object->Extensions().FindLink(iInterface) == nullptr)
        object->Extensions().AddLink(iInterface, *instance);
    object->AddReference();
    return instance;
}

ORXBaseUnknown* Tie_Link(ORXBaseUnknown* iExtended, ORXBaseUnknown*, const IID& iInterface)
{
    FeatureObject* const object = FeatureObject::Of(iExtended);
    ORXBaseUnknown* const tie = object != nullptr ? object->Extensions().FindLink(iInterface) : nullptr;
    if (tie != nullptr)
        tie->AddRef();
    return tie;
}

void Tie_Construct(ORXTieRecord& ioTie, ORXBaseUnknown* iTie, ORXMetaClass* iTieMeta, ORXBaseUnknown* iExtended,
                   const IID& iInterface, ENUMTypeOfClass, void**, ORXInstanceConstructor iConstructor,
                   ORXBaseUnknown* iExtension)
{
    FeatureObject* const object = FeatureObject::Of(iExtended);
    if (object == nullptr || iTie == nullptr || iTieMeta == nullptr || iTieMeta->Served() == nullptr)
        ORXOmx::Internals::NullPointerAssertion();
    ORXBaseUnknown& root = *object->Root();
    // First, since a constructor may throw: then nothing of the tie has been linked.
    ioTie.instance =
        iExtension != nullptr ? iExtension : object->Extensions().FindOrMake(root, *iTieMeta->Served(), iConstructor);
    object->AddReference();
    Census::Born(Census::Tie);
    ORXComponentLink::Link(*iTie, root);
    ioTie.tie = iTie;
    ioTie.extended = &root;
    ioTie.meta = iTieMeta;
    ioTie.count = 1;
    if (iTieMeta->Kind() == ORXSharedTieClass)
        object->Extensions().AddLink(iInterface, *iTie, &ioTie);
}

HRESULT Tie_Query(ORXTieRecord& ioTie, const IID& iInterface, void** oInterface)
{
    if (!(iInterface == ioTie.meta->InterfaceId()))
        return ioTie.extended->QueryInterface(iInterface, oInterface);
    *oInterface = ioTie.tie;
    Tie_AddRef(ioTie);
    return S_OK;
}

unsigned int Tie_AddRef(ORXTieRecord& ioTie)
{
    ++ioTie.count;
    if (ioTie.kept != 0 && ioTie.count == ioTie.kept + 1)
        KeptTie::Take(ioTie);
    return ioTie.count - ioTie.kept;
}

unsigned int Tie_Release(int* oMustDelete, ORXTieRecord& ioTie, ENUMTypeOfClass)
{
    const unsigned int left = --ioTie.count;
    *oMustDelete = left == 0 ? 1 : 0;
    const unsigned int others = left - ioTie.kept;
    // With the reference on the object the tie itself may go: nothing of it is touched behind that.
    if (others == 0 && ioTie.kept != 0)
        KeptTie::GiveBack(ioTie);
    return others;
}

void Tie_Destruct(ORXTieRecord& ioTie, ENUMTypeOfClass)
{
    FeatureObject* const object = FeatureObject::Of(ioTie.extended);
    // A tie that was never constructed has nothing to give back.
    if (object == nullptr)
        return;
    Census::Died(Census::Tie);
    object->Extensions().RemoveLinksTo(*ioTie.tie);
    ioTie.extended = nullptr;
    ioTie.instance = nullptr;
    object->DropReference();
}
