#include "VYRCfdDefaultManagementAdp.h"

#include <exception>

#include "ORXCkeGlobalFunctions.h"
#include "ORXISpecAttribute.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRCfdChecks.h"

namespace
{
constexpr const char* SetSuffix = "_isset";
constexpr const char* AutoSuffix = "_isauto";

/// Lowers a guard when an exception from a listener ends the write under it; otherwise it would mark nothing any more.
class LoweredByException
{
public:
    explicit LoweredByException(ORXBoolean& ioGuard) noexcept
        : m_guard(ioGuard), m_exceptions(std::uncaught_exceptions())
    {
    }
    ~LoweredByException()
    {
        if (std::uncaught_exceptions() > m_exceptions)
            m_guard = ORXFalse;
    }
    LoweredByException(const LoweredByException&) = delete;
    LoweredByException& operator=(const LoweredByException&) = delete;

private:
    ORXBoolean& m_guard;
    int m_exceptions;
};

/// Reads a record's text into a free-standing parameter. A text that is no number leaves it without a value; types
/// other than integer, real and string are not read.
void ValuateFromRecord(const ORXICkeParm_var& ispTempParm, const ORXICkeType_var& ispType,
                       const ORXUnicodeString& iText)
{
    if (ispType->IsaInteger())
    {
        int number = 0;
        if (iText.ConvertToNum(&number, "%d") != 0)
            ispTempParm->Valuate(number);
    }
    else if (ispType->IsaReal())
    {
        double number = 0.0;
        if (iText.ConvertToNum(&number, "%le") != 0)
            ispTempParm->Valuate(number);
    }
    else if (ispType->IsaString())
        ispTempParm->Valuate(iText);
}

/// Reads a custom default's text. Unlike a record's: the text of a real is written as it stands, once it has proved to
/// be numeric, and every type that is no number takes the text.
void ValuateFromCustomDefault(const ORXICkeParm_var& ispTempParm, const ORXICkeType_var& ispType,
                              const ORXUnicodeString& iText)
{
    if (ispType->IsaInteger())
    {
        int number = 0;
        if (iText.ConvertToNum(&number, "%d") != 0)
            ispTempParm->Valuate(number);
        return;
    }
    double number = 0.0;
    if (!ispType->IsaReal() || iText.ConvertToNum(&number, "%le") != 0)
        ispTempParm->Valuate(iText);
}
} // namespace

/// The attribute that carries a flag, on the default-management sub-feature.
struct VYRCfdDefaultManagementAdp::Companion
{
    ORXISpecAttrAccess_var spAttr;
    ORXISpecObject_var spSpec;
    ORXUnicodeString attrName;
    ORXISpecAttrKey_var spKey;
    bool exists = false;
};

VYRCfdDefaultManagementAdp::VYRCfdDefaultManagementAdp() : m_defMgmt(ORXUnicodeString()), m_updating(ORXFalse) {}

VYRCfdDefaultManagementAdp::~VYRCfdDefaultManagementAdp()
{
    m_customDefaults.clear();
}

HRESULT VYRCfdDefaultManagementAdp::FindCompanion(const char* iFunction, const ORXUnicodeString& iAttrName,
                                                  const char* iSuffix, Companion& oCompanion) const
{
    const ORXBaseUnknown_var spDefMgmt = m_defMgmt.Self();
    const ORXISpecAttrAccess_var spAttr = spDefMgmt;
    const ORXISpecObject_var spSpec = spDefMgmt;
    VYRCFD_ASSERT_FOR(iFunction, spAttr);
    VYRCFD_ASSERT_FOR(iFunction, spSpec);
    oCompanion.spAttr = spAttr;
    oCompanion.spSpec = spSpec;
    oCompanion.attrName = iAttrName + iSuffix;
    oCompanion.spKey = ORXISpecAttrKey_var::Adopt(spAttr->GetAttrKey(oCompanion.attrName));
    oCompanion.exists = !!oCompanion.spKey && spAttr->HasAttribute(oCompanion.spKey) != ORXFalse;
    return S_OK;
}

// ---- flags ----------------------------------------------------------------------------------------------------------

HRESULT VYRCfdDefaultManagementAdp::IsSet(const ORXUnicodeString& iAttrName, unsigned char& oIsSet)
{
    VYRCFD_ENTER_RESET(40);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    oIsSet = ORXFalse;
    Companion companion;
    VYRCFD_PASS(FindCompanion(VYRCFD_FUNCTION, iAttrName, SetSuffix, companion));
    if (companion.exists)
    {
        oIsSet = companion.spAttr->GetBoolean(companion.spKey, 0);
        return S_OK;
    }
    // Asking makes the flag, so that the attribute carries an explicit false from now on.
    const ORXISpecAttribute_var pAttr =
        ORXISpecAttribute_var::Adopt(companion.spSpec->AddAttribute(companion.attrName, tk_boolean, 0));
    VYRCFD_ASSERT(pAttr);
    pAttr->SetBoolean(ORXFalse, 0);
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::SetIsSet(const ORXUnicodeString& iAttrName, unsigned char iIsSet)
{
    if (m_updating != ORXFalse)
        return S_OK;
    VYRCFD_ENTER_RESET(20);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    Companion companion;
    VYRCFD_PASS(FindCompanion(VYRCFD_FUNCTION, iAttrName, SetSuffix, companion));
    if (companion.exists)
        return companion.spAttr->SetBoolean(companion.spKey, iIsSet, 0);
    const ORXISpecAttribute_var pAttr =
        ORXISpecAttribute_var::Adopt(companion.spSpec->AddAttribute(companion.attrName, tk_boolean, 0));
    VYRCFD_ASSERT(pAttr);
    pAttr->SetBoolean(iIsSet, 0);
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::HasAuto(const ORXUnicodeString& iAttrName, unsigned char& oHasAuto)
{
    VYRCFD_ENTER_RESET(40);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    oHasAuto = ORXFalse;
    Companion companion;
    VYRCFD_PASS(FindCompanion(VYRCFD_FUNCTION, iAttrName, AutoSuffix, companion));
    oHasAuto = companion.exists ? ORXTrue : ORXFalse;
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::GetIsAuto(const ORXUnicodeString& iAttrName, unsigned char& oIsAuto)
{
    VYRCFD_ENTER_RESET(40);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    oIsAuto = ORXFalse;
    Companion companion;
    VYRCFD_PASS(FindCompanion(VYRCFD_FUNCTION, iAttrName, AutoSuffix, companion));
    if (companion.exists)
        oIsAuto = companion.spAttr->GetBoolean(companion.spKey, 0);
    return S_OK;
}

// clang-format off
HRESULT VYRCfdDefaultManagementAdp::SetIsAuto(const ORXUnicodeString& iAttrName, unsigned char iIsAuto)
{
    if (m_updating != ORXFalse)
        return S_OK;
    VYRCFD_ENTER_RESET(20);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    Companion companion;
    VYRCFD_PASS(FindCompanion(VYRCFD_FUNCTION, iAttrName, AutoSuffix, companion));
    if (companion.exists)
    {
        const ORXISpecAttrAccess_var& spAttr = companion.spAttr;
        const ORXISpecAttrKey_var& spKey = companion.spKey;
        m_updating = ORXTrue;
        const LoweredByException lowered(m_updating);
        // Not lowered on every exit: after a failed write the guard stays up, and this instance marks nothing any more.
        VYRCFD_CHECK(spAttr->SetBoolean(spKey, iIsAuto));
        if (iIsAuto != ORXFalse)
            Unset(iAttrName);
        m_updating = ORXFalse;
        return S_OK;
    }
    // A flag that is made now leaves the attribute alone, also when it is made true.
    const ORXISpecAttribute_var pAttr = ORXISpecAttribute_var::Adopt(companion.spSpec->AddAttribute(companion.attrName, tk_boolean, 1));
    VYRCFD_ASSERT(pAttr);
    m_updating = ORXTrue;
    const LoweredByException lowered(m_updating);
    pAttr->SetBoolean(iIsAuto, 0);
    m_updating = ORXFalse;
    return S_OK;
}

// ---- defaults -------------------------------------------------------------------------------------------------------

HRESULT VYRCfdDefaultManagementAdp::GetDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue)
{
    VYRCFD_ENTER_RESET(25);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    // Without the sub-feature an object has no default at all, not even the declared one.
    const ORXISpecAttrAccess_var spAttr = m_defMgmt.Self();
    const ORXISpecObject_var spSpec = m_defMgmt.Self();
    VYRCFD_ASSERT(spAttr);
    VYRCFD_ASSERT(spSpec);

    // The custom default, or a record that was found before.
    const auto custom = m_customDefaults.find(iAttrName);
    if (custom != m_customDefaults.end())
    {
        oValue = custom->second;
        return S_OK;
    }

    // A record of a configuration.
    ORXICkeInst_var configured;
    if (isConfigured(iAttrName, configured) != ORXFalse)
    {
        oValue = configured;
        return S_OK;
    }

    // What the feature type declares. It is not kept.
    const ORXISpecObject_var spParent = ORXISpecObject_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spParent);
    const ORXISpecObject_var parentSU = ORXISpecObject_var::Adopt(spParent->GetStartup());
    VYRCFD_ASSERT(parentSU);
    const ORXISpecAttrAccess_var parentSUAttr = parentSU;
    VYRCFD_ASSERT(parentSUAttr);
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(parentSUAttr->GetAttrKey(iAttrName));
    VYRCFD_ASSERT(key);
    const ORXICkeParm_var defaultParm = ORXCke_GetParm(parentSUAttr, key, 1);
    VYRCFD_ASSERT(defaultParm);
    oValue = defaultParm->GetValue();
    return S_OK;
}

unsigned char VYRCfdDefaultManagementAdp::isConfigured(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue)
{
    VYRCFD_ENTER_RESET(25);
    if (iAttrName.IsEmpty())
        return ORXFalse;
    VYRCFD_ASSERT_TEXT(VYRCFD_FUNCTION, "m_defMgmt", !m_defMgmt.IsNull());
    const VYRCfdObjectAccess dmAccess = m_defMgmt;
    const VYRCfdObjectAccess access(ORXBaseUnknown_var::Share(GetImpl(0)));
    std::vector<VYRCfdObjectAccess> configItemsList;
    VYRCFD_CHECK(dmAccess[VYRCFDBASE(DefaultManagement, configuration)].List(configItemsList));
    // Before the parameter is looked at: an object without records needs none.
    if (configItemsList.empty())
        return ORXFalse;

    const ORXICkeParm_var spParm = access.Get(iAttrName).GetParm();
    VYRCFD_ASSERT(spParm);
    const ORXICkeType_var spType = spParm->GetType();
    VYRCFD_ASSERT(spType);
    const ORXICkeParmFactory_var spParmFactory = ORXCkeGlobalFunctions::GetVolatileFactory();
    VYRCFD_ASSERT(spParmFactory);
    const ORXICkeParm_var spTempParm = spParmFactory->CreateParm(spType, "tempName");
    VYRCFD_ASSERT(spTempParm);

    for (const VYRCfdObjectAccess& item : configItemsList)
    {
        ORXUnicodeString path;
        item["path"].GetPlainString(path);
        if (!(path == iAttrName))
            continue;
        // A record of a conditional configuration has no default: its text is empty, and so is the value then.
        ORXUnicodeString text;
        item["default"].GetPlainString(text);
        ValuateFromRecord(spTempParm, spType, text);
        oValue = spTempParm->GetValue();
        m_customDefaults[iAttrName] = oValue;
        return ORXTrue;
    }
    return ORXFalse;
}

HRESULT VYRCfdDefaultManagementAdp::SetCustomDefault(const ORXUnicodeString& iAttrName, ORXUnicodeString& iValue)
{
    VYRCFD_ENTER_RESET(20);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    const ORXICkeParm_var spParm = VYRCfdObjectAccess(ORXBaseUnknown_var::Share(this))[iAttrName].GetParm();
    VYRCFD_ASSERT(spParm);
    const ORXICkeType_var spType = spParm->GetType();
    VYRCFD_ASSERT(spType);
    const ORXICkeParmFactory_var spParmFactory = ORXCkeGlobalFunctions::GetVolatileFactory();
    VYRCFD_ASSERT(spParmFactory);
    const ORXICkeParm_var spTempParm = spParmFactory->CreateParm(spType, "tempName");
    VYRCFD_ASSERT(spTempParm);

    ValuateFromCustomDefault(spTempParm, spType, iValue);
    m_customDefaults[iAttrName] = spTempParm->GetValue();

    unsigned char isSet = ORXFalse;
    VYRCFD_CHECK(IsSet(iAttrName, isSet));
    // An attribute that the user has set keeps its value; any other follows its default at once.
    if (isSet == ORXFalse)
        VYRCFD_CHECK(Unset(iAttrName));
    return S_OK;
}
// clang-format on

HRESULT VYRCfdDefaultManagementAdp::SetCustomDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& iValue)
{
    VYRCFD_ENTER_RESET(20);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    m_customDefaults[iAttrName] = iValue;
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::RemoveCustomDefault(const ORXUnicodeString& iAttrName)
{
    VYRCFD_ENTER_RESET(20);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    m_customDefaults.erase(iAttrName);
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::RemoveAllCustomDefaults()
{
    VYRCFD_ENTER_RESET(20);
    m_customDefaults.clear();
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::HasCustomDefault(const ORXUnicodeString& iAttrName, unsigned char& oHas)
{
    VYRCFD_ENTER(40);
    if (iAttrName.IsEmpty())
        return E_FAIL;
    oHas = m_customDefaults.contains(iAttrName) ? ORXTrue : ORXFalse;
    return S_OK;
}

HRESULT VYRCfdDefaultManagementAdp::Unset(const ORXUnicodeString& iAttrName)
{
    VYRCFD_ENTER(20);
    // Alone among these operations it takes an empty name as nothing to do.
    if (iAttrName.IsEmpty())
        return S_FALSE;
    ORXICkeInst_var spDefault;
    GetDefault(iAttrName, spDefault);
    const VYRCfdObjectAccess access(ORXBaseUnknown_var::Share(GetImpl(0)));
    const ORXICkeParm_var spParm = access.Get(iAttrName).GetParm();
    if (!!spParm)
    {
        const ORXIValue_var spVal = spParm->GetValue();
        VYRCFD_ASSERT(spVal);
        // Raised and lowered plainly: within SetIsAuto this lowers the outer guard as well, so that the flag below is
        // cleared.
        m_updating = ORXTrue;
        const LoweredByException lowered(m_updating);
        spParm->ValuateFromValue(spDefault);
        m_updating = ORXFalse;
    }
    SetIsSet(iAttrName, ORXFalse);
    return S_OK;
}
