#include "TwinDefaults.h"

namespace Twin
{
namespace
{
/// Without a sub-feature there is nothing to stand on.
constexpr const char* NoFlags = "spAttr";

/// An attribute of another kind that bears the name of a flag reads as false.
bool IsTrue(const Attribute& iFlag)
{
    return iFlag.kind == Kind::Boolean && iFlag.value.integer != 0;
}
} // namespace

bool DefaultManagement::HasDefaults(const Object& iObject) const
{
    return IsKindOf(iObject, "VYRCfdValues") || IsKindOf(iObject, "VYRCfdChoice");
}

Defaults& DefaultManagement::DefaultsOf(Object& ioObject)
{
    if (!ioObject.defaults.isMade)
    {
        ioObject.defaults.isMade = true;
        ioObject.defaults.flags = Find(&ioObject, "defaultManagement")->object;
    }
    return ioObject.defaults;
}

// ---- flags ----------------------------------------------------------------------------------------------------------

HRESULT DefaultManagement::IsSet(Object& ioObject, const std::string& iName, bool& oIsSet)
{
    Object* flags = DefaultsOf(ioObject).flags;
    if (iName.empty())
        return E_FAIL;
    oIsSet = false;
    if (flags == nullptr)
        return Fail(NoFlags);
    const std::string name = iName + "_isset";
    if (const Attribute* flag = Find(flags, name))
        oIsSet = IsTrue(*flag);
    else
    {
        AddAttribute(*flags, name, Kind::Boolean);
        SetFlag(*flags, name, false);
    }
    return S_OK;
}

HRESULT DefaultManagement::SetIsSet(Object& ioObject, const std::string& iName, bool iIsSet)
{
    const Defaults& defaults = DefaultsOf(ioObject);
    if (defaults.isUpdating)
        return S_OK;
    if (iName.empty())
        return E_FAIL;
    if (defaults.flags == nullptr)
        return Fail(NoFlags);
    const std::string name = iName + "_isset";
    if (Find(defaults.flags, name) == nullptr)
        AddAttribute(*defaults.flags, name, Kind::Boolean);
    return SetFlag(*defaults.flags, name, iIsSet);
}

HRESULT DefaultManagement::HasAuto(Object& ioObject, const std::string& iName, bool& oHas)
{
    Object* flags = DefaultsOf(ioObject).flags;
    if (iName.empty())
        return E_FAIL;
    oHas = false;
    if (flags == nullptr)
        return Fail(NoFlags);
    oHas = Find(flags, iName + "_isauto") != nullptr;
    return S_OK;
}

HRESULT DefaultManagement::GetIsAuto(Object& ioObject, const std::string& iName, bool& oIsAuto)
{
    Object* flags = DefaultsOf(ioObject).flags;
    if (iName.empty())
        return E_FAIL;
    oIsAuto = false;
    if (flags == nullptr)
        return Fail(NoFlags);
    const Attribute* flag = Find(flags, iName + "_isauto");
    oIsAuto = flag != nullptr && IsTrue(*flag);
    return S_OK;
}

HRESULT DefaultManagement::SetIsAuto(Object& ioObject, const std::string& iName, bool iIsAuto)
{
    Defaults& defaults = DefaultsOf(ioObject);
    if (defaults.isUpdating)
        return S_OK;
    if (iName.empty())
        return E_FAIL;
    if (defaults.flags == nullptr)
        return Fail(NoFlags);
    const std::string name = iName + "_isauto";
    const bool isThere = Find(defaults.flags, name) != nullptr;
    if (!isThere)
        AddAttribute(*defaults.flags, name, Kind::Boolean);
    defaults.isUpdating = true;
    // The guard stays up when the flag is none: from then on flags are left alone.
    if (SetFlag(*defaults.flags, name, iIsAuto) < 0)
        return Fail("spAttr->SetBoolean(spKey, iIsAuto)");
    if (isThere && iIsAuto)
        Unset(ioObject, iName);
    defaults.isUpdating = false;
    return S_OK;
}

// ---- defaults -------------------------------------------------------------------------------------------------------

HRESULT DefaultManagement::GetDefault(Object& ioObject, const std::string& iName, std::optional<Value>& oValue)
{
    Defaults& defaults = DefaultsOf(ioObject);
    if (iName.empty())
        return E_FAIL;
    if (defaults.flags == nullptr)
        return Fail(NoFlags);
    const auto kept = defaults.custom.find(iName);
    if (kept != defaults.custom.end())
    {
        oValue = kept->second;
        return S_OK;
    }
    std::optional<Value> configured;
    if (IsConfigured(ioObject, iName, configured))
    {
        oValue = configured;
        return S_OK;
    }
    const Attribute* declared = Find(ioObject.startup, iName);
    if (declared == nullptr)
        return Fail("key");
    if (declared->kind == Kind::List || HoldsObjects(declared->kind))
        return Fail("defaultParm");
    oValue = declared->value;
    return S_OK;
}

bool DefaultManagement::IsConfigured(Object& ioObject, const std::string& iName, std::optional<Value>& oValue)
{
    Defaults& defaults = DefaultsOf(ioObject);
    const std::vector<Object*> records = Find(defaults.flags, "configuration")->objects;
    if (records.empty())
        return false;
    const Place place = Get(At(&ioObject), iName);
    if (!HasParameter(place))
    {
        Report("spParm");
        return false;
    }
    for (Object* record : records)
    {
        std::string path;
        GetPlainString(Get(At(record), "path"), path);
        if (path != iName)
            continue;
        std::string text;
        GetPlainString(Get(At(record), "default"), text);
        std::optional<Value> given;
        if (place.attribute->kind == Kind::Integer)
        {
            if (const std::optional<int> number = ScannedInteger(text))
                given = Of(*number);
        }
        else if (place.attribute->kind == Kind::Real)
        {
            if (const std::optional<double> number = ScannedReal(text))
                given = Of(*number);
        }
        else if (place.attribute->kind == Kind::String)
            given = Of(text);
        oValue = Volatile(*place.attribute, given);
        defaults.custom[iName] = oValue;
        return true;
    }
    return false;
}

HRESULT DefaultManagement::SetOwnDefault(Object& ioObject, const std::string& iName, const std::string& iValue)
{
    if (iName.empty())
        return E_FAIL;
    const Place place = Get(At(&ioObject), iName);
    if (!HasParameter(place))
        return Fail("spParm");
    const Kind kind = place.attribute->kind;
    std::optional<Value> given = Of(iValue);
    if ((kind == Kind::Integer && !ScannedInteger(iValue)) || (kind == Kind::Real && !ScannedReal(iValue)))
        given.reset();
    DefaultsOf(ioObject).custom[iName] = Volatile(*place.attribute, given);
    bool isSet = false;
    if (IsSet(ioObject, iName, isSet) < 0)
        return Fail("IsSet(iAttrName, isSet)");
    if (!isSet)
        Unset(ioObject, iName);
    return S_OK;
}

HRESULT DefaultManagement::SetCustomDefault(Object& ioObject, const std::string& iName, const std::string& iValue)
{
    DefaultsOf(ioObject);
    const HRESULT status = SetOwnDefault(ioObject, iName, iValue);
    if (!IsKindOf(ioObject, "VYRCfdChoice"))
        return status;
    if (status < 0)
        return Fail("VYRCfdDefaultManagementAdp::SetCustomDefault(iAttrName, iValue)");
    UpdateChoice(ioObject, "");
    return S_OK;
}

HRESULT DefaultManagement::SetCustomDefaultValue(Object& ioObject, const std::string& iName,
                                                 const std::optional<Value>& iValue)
{
    Defaults& defaults = DefaultsOf(ioObject);
    if (iName.empty())
        return E_FAIL;
    defaults.custom[iName] = iValue;
    return S_OK;
}

HRESULT DefaultManagement::RemoveCustomDefault(Object& ioObject, const std::string& iName)
{
    Defaults& defaults = DefaultsOf(ioObject);
    if (iName.empty())
        return E_FAIL;
    defaults.custom.erase(iName);
    return S_OK;
}

HRESULT DefaultManagement::RemoveAllCustomDefaults(Object& ioObject)
{
    DefaultsOf(ioObject).custom.clear();
    return S_OK;
}

HRESULT DefaultManagement::HasCustomDefault(Object& ioObject, const std::string& iName, bool& oHas)
{
    const Defaults& defaults = DefaultsOf(ioObject);
    if (iName.empty())
        return E_FAIL;
    oHas = defaults.custom.contains(iName);
    return S_OK;
}

HRESULT DefaultManagement::Unset(Object& ioObject, const std::string& iName)
{
    Defaults& defaults = DefaultsOf(ioObject);
    if (iName.empty())
        return S_FALSE;
    std::optional<Value> value;
    GetDefault(ioObject, iName, value);
    const Place place = Get(At(&ioObject), iName);
    if (HasParameter(place))
    {
        defaults.isUpdating = true;
        ValuateFromValue(*place.object, *place.attribute, value);
        defaults.isUpdating = false;
    }
    SetIsSet(ioObject, iName, false);
    return S_OK;
}

// ---- notifications --------------------------------------------------------------------------------------------------

void DefaultManagement::AdviseValues(Object& ioObject, const std::string& iName, bool iIsThere)
{
    if (iIsThere)
        SetIsSet(ioObject, iName, true);
    else
        Unset(ioObject, iName);
}

void DefaultManagement::AdviseFlags(Object& ioFlags, const std::string& iName, bool iIsTrue)
{
    const std::string suffix = "_isauto";
    const std::size_t found = iName.find(suffix);
    if (found == std::string::npos)
        return;
    Object* values = nullptr;
    for (Object* owner = ioFlags.owner; owner != nullptr && values == nullptr; owner = owner->owner)
    {
        // Asking makes default management, whether or not it is then used.
        if (HasDefaults(*owner))
            DefaultsOf(*owner);
        if (IsKindOf(*owner, "VYRCfdValues"))
            values = owner;
    }
    if (values != nullptr)
        SetIsAuto(*values, std::string(iName).erase(found, suffix.size()), iIsTrue);
}
} // namespace Twin
