#include "VYRCfdChoiceUpdateRun.h"

#include "ORXKeySetVYRCfdBase.h"
#include "ORXNotification.h"
#include "VYRCfdAttributeNotification.h"
#include "VYRCfdChecks.h"
#include "VYRCfdConfigurator.h"
#include "VYRFeaTraceManager.h"

namespace
{
constexpr const char* Name = "VYRCfdChoiceInstanceAdp::Update";

/// What a Choice sends when it has changed.
class ChoiceNotification final : public VYRCfdAttributeNotification
{
public:
    ~ChoiceNotification() override = default;
};
} // namespace

VYRCfdChoiceInstanceAdp::UpdateRun::UpdateRun(VYRCfdChoiceInstanceAdp& ioChoice)
    : m_choice(ioChoice), access(ORXBaseUnknown_var::Share(ioChoice.GetImpl(0)))
{
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::Go(ORXUnicodeString& iDefault)
{
    VYRCFD_PASS(ReadLists());
    VYRCFD_PASS(SettleDefaultText(iDefault));
    VYRCFD_PASS(FindManipulator());
    VYRCFD_PASS(WalkChoices());
    PublishAllowedValues();
    SettleDefault(iDefault);
    if (!m_isValueFound)
    {
        bool isGivenUp = false;
        VYRCFD_PASS(RepairValue(isGivenUp));
        if (isGivenUp)
            return S_OK;
    }
    VYRCFD_PASS(ApplyRecordedConfigurations());
    return Complete();
}

// clang-format off

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::ReadLists()
{
    VYRCFD_CHECK_FOR(Name, access[VYRCFDBASE(Choice, value)].GetString(value));
    VYRCFD_CHECK_FOR(Name, access[VYRCFDBASE(Choice, choices)].GetStrings(choices));
    VYRCFD_CHECK_FOR(Name, access[VYRCFDBASE(Choice, Startups)].GetStrings(startups));
    // A Choice without startups has none at all.
    if (!startups.empty())
        VYRCFD_ASSERT_FOR(Name, choices.size() == startups.size());
    VYRCFD_ASSERT_FOR(Name, choices.size() > 0);
    spDefMgmt = VYRIMpaDefaultManagementProtected_var::Cast(m_choice.GetImpl(0));
    VYRCFD_ASSERT_FOR(Name, spDefMgmt);
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::SettleDefaultText(const ORXUnicodeString& iDefault)
{
    if (!iDefault.IsEmpty())
    {
        m_defaultText = iDefault;
        return S_OK;
    }
    ORXICkeInst_var spDefVal;
    VYRCFD_CHECK_FOR(Name, spDefMgmt->GetDefault("value", spDefVal));
    VYRCFD_ASSERT_FOR(Name, spDefVal);
    m_defaultText = spDefVal->AsString();
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::FindManipulator()
{
    const ORXICkeParm_var spParm = access[VYRCFDBASE(Choice, value)].GetParm();
    VYRCFD_ASSERT_FOR(Name, spParm);
    manip = spParm->GetManipulator();
    if (!manip)
        manip = spParm->CreateManipulator();
    VYRCFD_ASSERT_FOR(Name, manip);
    return S_OK;
}

/// It does not end at the match: of a choice that stands twice, the data of each place is made, and the last prevails.
HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::WalkChoices()
{
    ORXListValORXUnicodeString oldValues;
    manip->GetAllowedValues(oldValues);
    m_listsDiffer = static_cast<int>(choices.size()) != oldValues.Size();
    for (std::size_t i = 0; i < choices.size(); ++i)
    {
        if (!m_listsDiffer && !(choices[i] == oldValues[static_cast<int>(i) + 1]))
            m_listsDiffer = true;
        if (choices[i] == m_defaultText)
            m_isDefaultFound = true;
        if (choices[i] == value)
        {
            m_isValueFound = true;
            const ORXUnicodeString startup = startups.empty() ? ORXUnicodeString() : startups[i];
            VYRCFD_CHECK_FOR(Name, UpdateDataForStartup(startup, dataChange));
        }
    }
    return S_OK;
}

void VYRCfdChoiceInstanceAdp::UpdateRun::PublishAllowedValues()
{
    if (!m_listsDiffer)
        return;
    ORXListValORXUnicodeString allowed;
    for (const ORXUnicodeString& choice : choices)
        allowed.Append(choice);
    manip->SetAllowedValues(allowed);
}

/// A default that is no choice gives way to the first one, and nobody is told.
void VYRCfdChoiceInstanceAdp::UpdateRun::SettleDefault(const ORXUnicodeString& iDefault)
{
    if (!m_isDefaultFound)
        spDefMgmt->SetCustomDefault("value", choices[0]);
    else if (!iDefault.IsEmpty())
        spDefMgmt->SetCustomDefault("value", m_defaultText);
}

/// A value that is not set follows the default by itself.
HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::RepairValue(bool& oIsGivenUp)
{
    spDefMgmt = VYRIMpaDefaultManagementProtected_var::Cast(m_choice.GetImpl(0));
    VYRCFD_ASSERT_FOR(Name, spDefMgmt);
    unsigned char isSet = ORXFalse;
    spDefMgmt->IsSet("value", isSet);
    // Asked whether or not the value is set.
    oIsGivenUp = m_choice.FixInvalidChoice() == ORXFalse;
    if (!oIsGivenUp && isSet != ORXFalse)
        spDefMgmt->Unset("value");
    return S_OK;
}

/// What was recorded for the data object is applied in every run, since the object may be a new one.
HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::ApplyRecordedConfigurations()
{
    VYRCfdConfigurator* const pConfigurator = VYRCfdConfigurator::GetConfigurator();
    VYRCFD_ASSERT_FOR(Name, pConfigurator);
    std::vector<VYRCfdObjectAccess> items;
    access[VYRCFDBASE(Choice, defaultManagement)][VYRCFDBASE(DefaultManagement, configuration)].List(items, false);
    for (const VYRCfdObjectAccess& item : items)
    {
        ORXUnicodeString path;
        item["path"].GetPlainString(path);
        if (!(path == "Data"))
            continue;
        ORXUnicodeString condition;
        item["condition"].GetPlainString(condition);
        const ORXISpecObject_var spTarget = access.ApplyCondition(condition).GetByPath(path).Self();
        if (!spTarget)
            continue;
        ORXUnicodeString config;
        item["config"].GetPlainString(config);
        pConfigurator->ApplyConfiguration(spTarget, config);
    }
    return S_OK;
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::Complete()
{
    const bool wasValueChange = m_choice._wasValueChange != ORXFalse;
    m_choice._wasValueChange = ORXFalse;
    VYRCFD_CHECK_FOR(Name, CompleteUpdate(wasValueChange, dataChange));
    if (dataChange || wasValueChange)
        TellSubscribers();
    return S_OK;
}
// clang-format on

/// The value printed is the one that this run has read, also where an inner run has changed it since.
void VYRCfdChoiceInstanceAdp::UpdateRun::TellSubscribers()
{
    {
        const ORXHandle<ChoiceNotification> notification = ORXHandle<ChoiceNotification>::Adopt(new ChoiceNotification);
        DispatchCallbacks(m_choice.GetImpl(0), notification);
    }
    VYRFeaIndentedTraceManager::PrintDebugIndent(2);
    if (VYRCfd::IsActive(VYRFeaTraceManager::_Debug))
        VYRFeaTraceManager::_Debug->TraPrint("Value Change: %s\n", value.CastToCharPtr());
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& ioDataChange)
{
    return m_choice.UpdateDataForStartup(iStartup, ioDataChange);
}

HRESULT VYRCfdChoiceInstanceAdp::UpdateRun::CompleteUpdate(bool iWasValueChange, bool iDataChange)
{
    return m_choice.CompleteUpdate(iWasValueChange, iDataChange);
}
