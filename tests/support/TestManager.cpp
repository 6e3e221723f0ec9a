#include "TestManager.h"

#include <string>

#include "ORXFillDictionary.h"
#include "ORXMetaClass.h"
#include "ORXTie.h"
#include "VYRStandaloneInstruments.h"

namespace
{
ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, TestManager::MetaObject(), VYRICfdChoiceMgr::ClassId(),
                       &TestManager::Construct);
}

template <class Texts> std::string Array(const Texts& iTexts)
{
    std::string array;
    const char* separator = "";
    for (const ORXUnicodeString& text : iTexts)
    {
        array += std::string(separator) + text.CastToCharPtr();
        separator = ", ";
    }
    return "[" + array + "]";
}

std::string Word(const ORXUnicodeString& iText)
{
    return iText.IsEmpty() ? "" : std::string(" ") + iText.CastToCharPtr();
}
} // namespace

ORXMetaClass* TestManager::BaseMeta()
{
    return VYRICfdChoiceMgr::MetaObject();
}

void TestManager::Register()
{
    Hooks() = {};
    ORXFillDictionary::Register(MetaObject(), VYRICfdChoiceMgr::MetaObject(), &Create, nullptr, 1);
}

ManagerHooks& TestManager::Hooks()
{
    static ManagerHooks hooks;
    return hooks;
}

HRESULT TestManager::ConfigureChoiceMgr(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                                        const ORXUnicodeString& iDisplay)
{
    VYRStandalone::RecordLine("manage " + Array(iChoices) + Word(iDefault) + Word(iDisplay));
    return Hooks().configure ? Hooks().configure(iChoices)
                             : VYRCfdChoiceMgrAdp::ConfigureChoiceMgr(iChoices, iDefault, iDisplay);
}

HRESULT TestManager::ProhibitChoices(const std::set<ORXUnicodeString>& iProhibited)
{
    VYRStandalone::RecordLine("prohibit " + Array(iProhibited));
    return Hooks().prohibit ? Hooks().prohibit(iProhibited) : VYRCfdChoiceMgrAdp::ProhibitChoices(iProhibited);
}

VYRICfdChoiceMgr_var ManagerOf(const ORXISpecObject_var& iObject)
{
    return iObject;
}
