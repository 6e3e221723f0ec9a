#include "ORXSimBCInitializeServices.h"

#include "Container.h"
#include "FeatureObject.h"
#include "Instruments.h"
#include "TypeRegistry.h"

using namespace VYRStandalone;

HRESULT ORXSimBCInitializeServices::CreateBasicComponent(const ORXUnicodeString& iType, const ORXUnicodeString& iName,
                                                         ORXIContainer_var& ioContainer, ORXISpecObject_var& oObject)
{
    oObject = NULL_var;
    if (Instruments::Active())
    {
        if (Instruments::IsRecording())
            Instruments::Record("create " + std::string(iType.View()) + ' ' + std::string(iName.View()));
        HRESULT planted = S_OK;
        if (Instruments::Fails("CreateBasicComponent", iType.View(), nullptr, planted))
            return planted;
    }
    Container* const container = Container::Of(ioContainer.Pointer());
    FeatureType* const type = TypeRegistry::Instance().Find(iType.View());
    if (container == nullptr || type == nullptr)
        return E_FAIL;
    oObject = ORXISpecObject_var::Share(container->Create(*type, iName));
    return S_OK;
}
