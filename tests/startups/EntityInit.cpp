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
}

HRESULT& EntityInit::Answer()
{
    static HRESULT answer = S_OK;
    return answer;
}

HRESULT EntityInit::Init()
{
    return Note("init ");
}

HRESULT EntityInit::PostInit()
{
    return Note("postinit ");
}

HRESULT EntityInit::Note(const char* iStep)
{
    VYRStandalone::RecordLine(iStep + VYRStandalone::PathOf(ORXISpecObject_var::Cast(GetImpl(0))));
    return Answer();
}
