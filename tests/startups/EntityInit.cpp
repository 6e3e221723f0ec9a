#include "EntityInit.h"

#include <string>

#include "ModuleTest.h"
#include "ORXFillDictionary.h"
#include "ORXTie.h"
#include "VYRStandaloneInstruments.h"

namespace
{
ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, EntityInit::MetaObject(), ORXISamAnalysisEntityInit::ClassId(),
                       &EntityInit::Construct);
}
} // namespace

ORXMetaClass* EntityInit::BaseMeta()
{
    return ORXISamAnalysisEntityInit::MetaObject();
}

void EntityInit::Register()
{
    Declare(R"({ "catalog": "StartupTest", "uses": ["VYRCfdBase"], "types": [
        { "name": "StartupTestEntity", "base": "VYRCfdValues" },
        { "name": "StartupTestDerivedEntity", "base": "StartupTestEntity" } ] })");
    ORXFillDictionary::Register(MetaObject(), BaseMeta(), &Create, nullptr, 1);
    Steps() = {};
}

EntitySteps& EntityInit::Steps()
{
    static EntitySteps steps;
    return steps;
}

HRESULT EntityInit::Init()
{
    return Take("init ", Steps().init);
}

HRESULT EntityInit::PostInit()
{
    return Take("postinit ", Steps().postInit);
}

HRESULT EntityInit::Take(const char* iLine, const std::function<void()>& iStep)
{
    VYRStandalone::RecordLine(iLine + VYRStandalone::PathOf(ORXISpecObject_var::Cast(GetImpl(0))));
    const HRESULT answer = Steps().answer;
    if (iStep)
        iStep();
    return answer;
}
