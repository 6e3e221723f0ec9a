#include "VYRCfdConfigurationWalk.h"

#include "ORXKeySetVYRCfdBase.h"
#include "ORXSimBCInitializeServices.h"
#include "VYRCfdChecks.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdUtilityMethods.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"

VYRCfdConfigurationWalk::VYRCfdConfigurationWalk(VYRCfdConfigurator& ioConfigurator, const char* iFunction,
                                                 const ORXBaseUnknown_var& ispObject,
                                                 const VYRIMpaDefaultManagementProtected_var& ispDefMgmt,
                                                 const ORXIContainer_var& ispCont)
    : m_configurator(ioConfigurator), m_function(iFunction), spDefMgmt(ispDefMgmt), spCont(ispCont),
      specAccess(ispObject)
{
}

VYRCfdConfigurationWalk::Item VYRCfdConfigurationWalk::Read(const JSON::JIStream& iItem) const
{
    // In the order of the initialisers.
    return Item{iItem.ReadString(m_keys.path),         iItem.ReadString(m_keys.type),
                iItem.ReadString(m_keys.defaultValue), iItem.ReadString(m_keys.defaultAutoKey),
                iItem.ReadString(m_keys.display),      iItem.ReadString(m_keys.value),
                iItem.ReadBoolean(m_keys.list),        iItem.ReadString(m_keys.config)};
}

HRESULT VYRCfdConfigurationWalk::Apply(const JSON::JIStream& iItem)
{
    Item item = Read(iItem);

    if (iItem.Exist(m_keys.choices))
        return ApplyChoice(iItem, item);

    // A value without a true "list" swallows the whole item.
    if (!item.value.IsEmpty())
        return item.list ? ApplyValues(item.path, item.value) : S_OK;

    if (!item.defaultValue.IsEmpty())
        return ApplyDefault(item, !item.defaultAutoValue.IsEmpty());

    if (item.config.IsEmpty())
        return S_OK;

    const ORXUnicodeString condition = iItem.ReadString(m_keys.condition);
    if (!condition.IsEmpty())
        return ApplyConditional(item.path, condition, item.config);
    ApplyNested(item.path, item.config);
    return S_OK;
}

// clang-format off

/// The one item kind that reaches its attribute by name and not by path. It leaves no record.
HRESULT VYRCfdConfigurationWalk::ApplyValues(const ORXUnicodeString& path, const ORXUnicodeString& value)
{
    std::vector<ORXUnicodeString> valuesList;
    VYRCFD_CHECK_FOR(m_function, VYRCfdUtilityMethods::ConvertStringToVector(value, valuesList));
    VYRCFD_CHECK_FOR(m_function, specAccess[path].SetStrings(valuesList));
    return S_OK;
}

/// The host may create nothing without calling it a failure; then the item is done.
HRESULT VYRCfdConfigurationWalk::CreateRecord(ORXISpecObject_var& spConfigItem)
{
    VYRCFD_CHECK_FOR(m_function, ORXSimBCInitializeServices::CreateBasicComponent("VYRCfdConfigItem", "ConfigItem", spCont, spConfigItem));
    return S_OK;
}

/// The path is not followed: it only shapes the record, and the Choice is the object that is configured. One that lies
/// deeper is reached by a nested item, whose configuration holds the Choice item.
HRESULT VYRCfdConfigurationWalk::ApplyChoice(const JSON::JIStream& iItem, const Item& item)
{
    const ORXUnicodeString& path = item.path;
    const ORXUnicodeString& defaultValue = item.defaultValue;
    const ORXUnicodeString& display = item.display;
    const VYRCfdObjectAccess choiceAccess = path.IsEmpty() ? specAccess.GetByPath(path) : specAccess;
    const ORXUnicodeString choicesString = iItem.ReadString(m_keys.choices);
    std::vector<ORXUnicodeString> choicesList;
    VYRCFD_CHECK_FOR(m_function, VYRCfdUtilityMethods::ConvertStringToVector(choicesString, choicesList));
    std::vector<ORXUnicodeString> startupsList;
    if (iItem.Exist(m_keys.startups))
    {
        const ORXUnicodeString startupsString = iItem.ReadString(m_keys.startups);
        VYRCFD_CHECK_FOR(m_function, VYRCfdUtilityMethods::ConvertStringToVector(startupsString, startupsList));
    }
    const VYRICfdChoice_var spChoice = choiceAccess.Self();
    const VYRICfdChoiceMgr_var spChoiceMgr = choiceAccess.Self();
    // An object that is both is a manager as long as the item gives no startups.
    if (startupsList.empty() && !!spChoiceMgr)
        VYRCFD_CHECK_FOR(m_function, spChoiceMgr->ConfigureChoiceMgr(choicesList, defaultValue, display));
    else
    {
        VYRCFD_ASSERT_FOR(m_function, spChoice);
        VYRCFD_CHECK_FOR(m_function, spChoice->Configure(choicesList, startupsList, defaultValue, display));
    }
    return defaultValue.IsEmpty() ? S_OK : RecordChoice(path, defaultValue);
}

HRESULT VYRCfdConfigurationWalk::RecordChoice(const ORXUnicodeString& path, const ORXUnicodeString& defaultValue)
{
    ORXISpecObject_var spConfigItem;
    VYRCFD_PASS(CreateRecord(spConfigItem));
    if (!spConfigItem)
        return S_OK;
    const VYRCfdObjectAccess configItemAccess{ORXBaseUnknown_var(spConfigItem)};

    const ORXUnicodeString valuePath = path.IsEmpty() ? ORXUnicodeString("value") : path + "/value";
    VYRCFD_CHECK_FOR(m_function, configItemAccess["type"].SetPlainString("string"));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["path"].SetPlainString(valuePath));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["default"].SetPlainString(defaultValue));
    configItemsList.push_back(configItemAccess);
    return S_OK;
}

/// The default goes through default management only, which decides what it does to the attribute.
HRESULT VYRCfdConfigurationWalk::ApplyDefault(Item& ioItem, bool iIsAutomatic)
{
    ORXISpecObject_var spConfigItem;
    VYRCFD_PASS(CreateRecord(spConfigItem));
    if (!spConfigItem)
        return S_OK;
    const VYRCfdObjectAccess configItemAccess{ORXBaseUnknown_var(spConfigItem)};

    const ORXUnicodeString& path = ioItem.path;
    const ORXUnicodeString& type = ioItem.type;
    ORXUnicodeString& defaultValue = ioItem.defaultValue;
    const ORXUnicodeString& defaultAutoValue = ioItem.defaultAutoValue;
    if (iIsAutomatic)
        VYRCFD_CHECK_FOR(m_function, spDefMgmt->SetIsAuto(path, ORXTrue));
    VYRCFD_CHECK_FOR(m_function, spDefMgmt->SetCustomDefault(path, defaultValue));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["type"].SetPlainString(type));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["path"].SetPlainString(path));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["default"].SetPlainString(defaultValue));
    if (iIsAutomatic)
        VYRCFD_CHECK_FOR(m_function, configItemAccess["defaultAutoKey"].SetPlainString(defaultAutoValue));
    configItemsList.push_back(configItemAccess);
    return S_OK;
}

/// The record is kept whether or not the condition holds now: that is its purpose.
HRESULT VYRCfdConfigurationWalk::ApplyConditional(const ORXUnicodeString& path, const ORXUnicodeString& condition, const ORXUnicodeString& config)
{
    ORXISpecObject_var spConfigItem;
    VYRCFD_PASS(CreateRecord(spConfigItem));
    if (!spConfigItem)
        return S_OK;
    const VYRCfdObjectAccess configItemAccess{ORXBaseUnknown_var(spConfigItem)};

    const ORXISpecObject_var spTarget = specAccess.ApplyCondition(condition).GetByPath(path).Self();
    VYRCFD_CHECK_FOR(m_function, configItemAccess["path"].SetPlainString(path));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["condition"].SetPlainString(condition));
    VYRCFD_CHECK_FOR(m_function, configItemAccess["config"].SetPlainString(config));
    configItemsList.push_back(configItemAccess);
    if (!!spTarget)
        m_configurator.ApplyConfiguration(spTarget, config);
    return S_OK;
}

/// A target that is not there is traced, and handed on: the nested call reports it, unless it has nothing to do. What
/// it reports does not stop this walk.
void VYRCfdConfigurationWalk::ApplyNested(const ORXUnicodeString& path, const ORXUnicodeString& config)
{
    const ORXISpecObject_var spTarget = specAccess.GetByPath(path).Self();
    if (!spTarget && VYRCfd::IsActive(VYRCfdTraceManager::_Debug))
        VYRCfdTraceManager::_Debug->TraPrint(110, "Path has null target: %s\n", path.CastToCharPtr());
    m_configurator.ApplyConfiguration(spTarget, config);
}

HRESULT VYRCfdConfigurationWalk::Close()
{
    VYRCFD_CHECK_FOR(m_function, specAccess["defaultManagement"][VYRCFDBASE(DefaultManagement, configuration)].SetList(configItemsList));
    return S_OK;
}
// clang-format on
