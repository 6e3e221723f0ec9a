#include "VYRCfdChoiceInstanceAdp.h"

#include "ORXISamAnalysisEntityInit.h"
#include "ORXKeySetVYRCfdBase.h"
#include "ORXSimBCInitializeServices.h"
#include "VYRCfdChecks.h"
#include "VYRCfdChoiceUpdateRun.h"
#include "VYRFeaTraceManager.h"

namespace
{
VYRCfdObjectAccess CursorOn(const ORXBaseUnknown& iInstance)
{
    return VYRCfdObjectAccess(ORXBaseUnknown_var::Share(iInstance.GetImpl(0)));
}

/// A startup that the host refuses is a line on the debug channel and no failure: the Choice does without data.
ORXISpecObject_var MakeData(const ORXUnicodeString& iStartup, const ORXUnicodeString& iInstanceName,
                            const ORXISpecObject_var& ispSpecObj)
{
    ORXIContainer_var container = ispSpecObj->GetContainer();
    ORXISpecObject_var spSubCompSpecObj;
    const HRESULT status =
        ORXSimBCInitializeServices::CreateBasicComponent(iStartup, iInstanceName, container, spSubCompSpecObj);
    if (status < 0)
    {
        VYRFeaIndentedTraceManager::PrintDebugIndent(2);
        if (VYRCfd::IsActive(VYRFeaTraceManager::_Debug))
            VYRFeaTraceManager::_Debug->TraPrint("BAD STARTUP: %s", iStartup);
    }
    return spSubCompSpecObj;
}

void RemoveData(const ORXISpecAttrAccess_var& ispAttrAccess, const VYRCfdObjectAccess& iData)
{
    const ORXISpecObject_var spData = iData.Self();
    ispAttrAccess->RemoveObject(VYRCFDBASE(Choice, Data)(ispAttrAccess), spData);
}
} // namespace

VYRCfdChoiceInstanceAdp::VYRCfdChoiceInstanceAdp() : _inConfiguration(0), _wasValueChange(ORXFalse) {}

VYRCfdChoiceInstanceAdp::~VYRCfdChoiceInstanceAdp() = default;

// ---- what leads to an update ----------------------------------------------------------------------------------------

HRESULT VYRCfdChoiceInstanceAdp::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    VYRCFD_ENTER_RESET(15);
    if (iName == "choices" || iName == "Startups")
        Update(ORXUnicodeString());
    else if (iName == "value")
    {
        _wasValueChange = ORXTrue;
        const VYRIMpaDefaultManagementProtected_var spDefMgmt = VYRIMpaDefaultManagementProtected_var::Cast(GetImpl(0));
        if (!!spDefMgmt)
        {
            if (!!iValue && iValue->IsValuated() == 0)
                spDefMgmt->Unset(iName);
            else
                spDefMgmt->SetIsSet(iName, ORXTrue);
        }
        Update(ORXUnicodeString());
    }
    return ORXSimFeatureInstanceAdp::AdviseAttributeChanged(iName, iValue);
}

// clang-format off
HRESULT VYRCfdChoiceInstanceAdp::Configure(const std::vector<ORXUnicodeString>& iChoices, const std::vector<ORXUnicodeString>& iStartups, const ORXUnicodeString& iDefault, const ORXUnicodeString& iDisplay)
{
    VYRCFD_ENTER_RESET(15);
    VYRCFD_ASSERT(iStartups.size() == 0 || iStartups.size() == iChoices.size());
    const VYRCfdObjectAccess access = CursorOn(*this);
    VYRCFD_CHECK(access[VYRCFDBASE(Choice, choices)].SetStrings(iChoices));
    // Also when empty, which clears the startups of an earlier configuration.
    VYRCFD_CHECK(access[VYRCFDBASE(Choice, Startups)].SetStrings(iStartups));
    if (!iDisplay.IsEmpty())
        VYRCFD_CHECK(access[VYRCFDBASE(Choice, display)].SetString(iDisplay));
    return Update(iDefault);
}

HRESULT VYRCfdChoiceInstanceAdp::Configure(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault, const ORXUnicodeString& iDisplay)
{
    VYRCFD_ENTER_RESET(15);
    return Configure(iChoices, std::vector<ORXUnicodeString>(), iDefault, iDisplay);
}

HRESULT VYRCfdChoiceInstanceAdp::StartConfiguration()
{
    VYRCFD_ENTER_RESET(15);
    if (_inConfiguration != 0)
        return S_FALSE;
    _inConfiguration = 1;
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::CompleteConfiguration()
{
    VYRCFD_ENTER_RESET(15);
    _inConfiguration = 0;
    return Update(ORXUnicodeString());
}

HRESULT VYRCfdChoiceInstanceAdp::Update(ORXUnicodeString iDefault)
{
    // No scope: updates nest within writes that are traced already.
    VYRFeaErrorManager::SetErrorStatus(0);
    if (_inConfiguration != 0)
        return S_FALSE;
    UpdateRun run(*this);
    return run.Go(iDefault);
}

// ---- reads and writes -----------------------------------------------------------------------------------------------

HRESULT VYRCfdChoiceInstanceAdp::SetChoice(const ORXUnicodeString& iChoice)
{
    VYRCFD_ENTER_RESET(20);
    const VYRCfdObjectAccess access = CursorOn(*this);
    VYRCFD_CHECK(access[VYRCFDBASE(Choice, value)].SetString(iChoice));
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::GetChoice(ORXUnicodeString& oChoice)
{
    VYRCFD_ENTER_RESET(30);
    const VYRCfdObjectAccess access = CursorOn(*this);
    ORXUnicodeString choice;
    VYRCFD_CHECK(access[VYRCFDBASE(Choice, value)].GetString(choice));
    oChoice = choice;
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::GetDefaultDisplay(ORXUnicodeString& oDisplay)
{
    VYRCFD_ENTER_RESET(30);
    const VYRCfdObjectAccess access = CursorOn(*this);
    ORXUnicodeString defaultDisplay;
    VYRCFD_CHECK(access[VYRCFDBASE(Choice, display)].GetString(defaultDisplay));
    oDisplay = defaultDisplay;
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::GetListOfChoices(std::vector<ORXUnicodeString>& oListChoices)
{
    VYRCFD_ENTER_RESET(30);
    const VYRCfdObjectAccess access = CursorOn(*this);
    VYRCFD_CHECK(access[VYRCFDBASE(Choice, choices)].GetStrings(oListChoices));
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::GetListOfChoicesNLS(std::vector<ORXUnicodeString>&)
{
    return E_NOTIMPL;
}

// ---- for subclasses to replace --------------------------------------------------------------------------------------

HRESULT VYRCfdChoiceInstanceAdp::CompleteUpdate(bool, bool)
{
    return S_OK;
}

ORXBoolean VYRCfdChoiceInstanceAdp::FixInvalidChoice()
{
    return ORXTrue;
}

HRESULT VYRCfdChoiceInstanceAdp::GetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup, ORXUnicodeString& oInstanceName)
{
    VYRCFD_ENTER_RESET(30);
    ORXUnicodeString instanceName;
    VYRCFD_CHECK(iObjectAccess[VYRCFDBASE(Choice, dataName)].GetString(instanceName));
    if (instanceName.IsEmpty())
        instanceName = iStartup + "Inst";
    oInstanceName = instanceName;
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& dataChange)
{
    VYRCFD_ENTER_RESET(20);
    const VYRCfdObjectAccess access = CursorOn(*this);
    const ORXISpecAttrAccess_var spAttrAccess = ORXISpecAttrAccess_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spAttrAccess);
    const VYRCfdObjectAccess data = access[VYRCFDBASE(Choice, Data)];
    if (iStartup.IsEmpty())
    {
        if (!data.IsNull())
        {
            RemoveData(spAttrAccess, data);
            dataChange = true;
        }
        return S_OK;
    }
    const ORXUnicodeString presentType = data.IsNull() ? ORXUnicodeString() : data.GetType();
    if (presentType == iStartup)
        return S_OK;
    // From here on, whatever happens: also a replacement that fails is one.
    dataChange = true;
    ORXUnicodeString instanceName;
    VYRCFD_CHECK(GetInstanceName(access, iStartup, instanceName));
    const ORXISpecObject_var spSpecObj = ORXISpecObject_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spSpecObj);
    const ORXISpecObject_var spSubCompSpecObj = MakeData(iStartup, instanceName, spSpecObj);
    const ORXISamAnalysisEntityInit_var spInit = spSubCompSpecObj;
    if (!!spInit)
        spInit->Init();
    if (!spSubCompSpecObj)
    {
        if (!data.IsNull())
            RemoveData(spAttrAccess, data);
        return S_OK;
    }
    VYRCFD_CHECK(spAttrAccess->SetSpecObject(VYRCFDBASE(Choice, Data)(spAttrAccess), spSubCompSpecObj));
    if (!!spInit)
        spInit->PostInit();
    return S_OK;
}
// clang-format on
