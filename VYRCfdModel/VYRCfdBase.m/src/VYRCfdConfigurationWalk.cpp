#include "VYRCfdConfigurationWalk.h"

#include "ORXKeySetVYRCfdBase.h"
#include "ORXSimBCInitializeServices.h"
#include "VYRCfdChecks.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdUtilityMethods.h"

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
        VYRCFD_FAIL_FOR(m_function, "Choice items are not supported yet: path %s, default %s", item.path,
                        item.defaultValue);

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
