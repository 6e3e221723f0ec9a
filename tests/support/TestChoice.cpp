#include "TestChoice.h"

#include <map>
#include <stdexcept>
#include <string>

#include "ORXFillDictionary.h"
#include "ORXIParmPublisher.h"
#include "VYRCfdTie.h"
#include "VYRStandaloneInstruments.h"

namespace
{
/// Instances by the roots of their objects.
std::map<const ORXBaseUnknown*, TestChoice*>& Instances()
{
    static std::map<const ORXBaseUnknown*, TestChoice*> instances;
    return instances;
}

std::string Line(const char* iWord, const ORXUnicodeString& iText)
{
    return iText.IsEmpty() ? iWord : std::string(iWord) + " " + iText.CastToCharPtr();
}

const char* Text(bool iValue)
{
    return iValue ? "true" : "false";
}
} // namespace

ORXMetaClass* TestChoice::BaseMeta()
{
    return ORXIParmPublisher::MetaObject();
}

TestChoice::TestChoice()
{
    // Linked before the constructor runs, so the root is known already.
    Instances()[GetImpl(0)] = this;
}

TestChoice::~TestChoice()
{
    std::erase_if(Instances(), [this](const auto& iEntry) { return iEntry.second == this; });
}

void TestChoice::Register()
{
    ORXFillDictionary::Register(MetaObject(), ORXIInstance::MetaObject(), &TIEORXIInstance<TestChoice>::Create, nullptr,
                                1);
    ORXFillDictionary::Register(MetaObject(), VYRICfdChoice::MetaObject(), &TIEVYRICfdChoice<TestChoice>::Create,
                                nullptr, 1);
    ORXFillDictionary::Register(MetaObject(), VYRICfdConfigurable::MetaObject(),
                                &TIEVYRICfdConfigurable<TestChoice>::Create, nullptr, 1);
}

TestChoice& TestChoice::Of(const ORXISpecObject_var& iObject)
{
    const VYRICfdChoice_var choice = iObject;
    const auto found = Instances().find(iObject->GetImpl(0));
    if (!choice || found == Instances().end())
        throw std::invalid_argument("no TestChoice");
    return *found->second;
}

ChoiceHooks& TestChoice::Hooks()
{
    static ChoiceHooks hooks;
    return hooks;
}

// ---- hooks ----------------------------------------------------------------------------------------------------------

HRESULT TestChoice::CompleteUpdate(bool iWasValueChange, bool iDataChange)
{
    VYRStandalone::RecordLine(std::string("complete ") + Text(iWasValueChange) + " " + Text(iDataChange));
    // A copy: a hook may replace itself.
    const auto hook = Hooks().complete;
    return hook ? hook(*this, iWasValueChange, iDataChange) : BaseCompleteUpdate(iWasValueChange, iDataChange);
}

HRESULT TestChoice::GetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup,
                                    ORXUnicodeString& oName)
{
    VYRStandalone::RecordLine(Line("name", iStartup));
    const auto hook = Hooks().name;
    return hook ? hook(*this, iStartup, oName) : BaseGetInstanceName(iObjectAccess, iStartup, oName);
}

HRESULT TestChoice::UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& oDataChange)
{
    VYRStandalone::RecordLine(Line("data", iStartup));
    const auto hook = Hooks().data;
    return hook ? hook(*this, iStartup, oDataChange) : BaseUpdateDataForStartup(iStartup, oDataChange);
}

ORXBoolean TestChoice::FixInvalidChoice()
{
    VYRStandalone::RecordLine("fix");
    const auto hook = Hooks().fix;
    return (hook ? hook(*this) : BaseFixInvalidChoice()) ? ORXTrue : ORXFalse;
}

// ---- the base -------------------------------------------------------------------------------------------------------

HRESULT TestChoice::BaseCompleteUpdate(bool iWasValueChange, bool iDataChange)
{
    return VYRCfdChoiceInstanceAdp::CompleteUpdate(iWasValueChange, iDataChange);
}

bool TestChoice::BaseFixInvalidChoice()
{
    return VYRCfdChoiceInstanceAdp::FixInvalidChoice() != ORXFalse;
}

HRESULT TestChoice::BaseGetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup,
                                        ORXUnicodeString& oName)
{
    return VYRCfdChoiceInstanceAdp::GetInstanceName(iObjectAccess, iStartup, oName);
}

HRESULT TestChoice::BaseUpdateDataForStartup(const ORXUnicodeString& iStartup, bool& oDataChange)
{
    return VYRCfdChoiceInstanceAdp::UpdateDataForStartup(iStartup, oDataChange);
}
