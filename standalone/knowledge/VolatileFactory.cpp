#include "VolatileFactory.h"

#include "Instruments.h"
#include "ORXComponentLink.h"
#include "VolatileParm.h"

namespace VYRStandalone
{
VolatileFactory::VolatileFactory()
{
    ORXComponentLink::CountAt(*this, nullptr);
}

VolatileFactory& VolatileFactory::Instance()
{
    static VolatileFactory* const factory = ::new VolatileFactory;
    return *factory;
}

HRESULT VolatileFactory::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered = iInterface == IID_ORXICkeParmFactory || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    return isOffered ? S_OK : E_NOINTERFACE;
}

unsigned int VolatileFactory::AddRef()
{
    return 1;
}

unsigned int VolatileFactory::Release()
{
    return 1;
}

ORXICkeParm_var VolatileFactory::CreateParm(const ORXICkeType_var& iType, const ORXUnicodeString& iName)
{
    if (Instruments::Active() && Instruments::Fails("CreateParm", iName.View(), nullptr))
        return {};
    const KnowledgeType* const type = KnowledgeType::Of(iType.Pointer());
    return type != nullptr ? ORXICkeParm_var::Adopt(new VolatileParm(*type, iName)) : ORXICkeParm_var();
}
} // namespace VYRStandalone
