#include "Defaults.h"

#include "AttributeReader.h"
#include "VYRIMpaDefaultManagementProtected.h"

namespace Tool
{
AttributeDefault DefaultOf(const ORXISpecObject_var& iObject, const AttributeSnapshot& iAttribute)
{
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = iObject;
    if (!spDefMgmt || !IsScalar(iAttribute.info.type))
        return {};
    const ORXUnicodeString name(iAttribute.info.name.c_str());
    unsigned char hadCustom = 0;
    unsigned char hasCustom = 0;
    ORXICkeInst_var spDefault;
    // A record that is found becomes a custom default, so whoever wants to tell them apart asks before and after.
    spDefMgmt->HasCustomDefault(name, hadCustom);
    if (spDefMgmt->GetDefault(name, spDefault) < 0)
        return {};
    spDefMgmt->HasCustomDefault(name, hasCustom);
    const Value value = ValueOf(spDefault, iAttribute.info.type);
    if (hadCustom != 0)
        return {value, DefaultOrigin::CustomDefault};
    if (hasCustom != 0)
        return {value, DefaultOrigin::Record};
    return {value, value.IsUnset() ? DefaultOrigin::None : DefaultOrigin::Startup};
}

std::string AttributeDefault::Shown() const
{
    return value.Shown() + " (" + OriginText(origin) + ")";
}

AttributeDefault DefaultsOnce::Of(const ORXISpecObject_var& iObject, const AttributeSnapshot& iAttribute)
{
    const ORXBaseUnknown* const root = !iObject ? nullptr : iObject->GetImpl(0);
    const auto [place, isNew] = m_known.try_emplace({root, iAttribute.info.name});
    if (isNew)
        place->second = DefaultOf(iObject, iAttribute);
    return place->second;
}

AskDefault DefaultsOnce::Ask()
{
    return [this](const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute) {
        return Of(iObject.object, iAttribute);
    };
}

const char* SourceText(const AttributeSnapshot& iAttribute, const AttributeDefault& iDefault)
{
    if (iAttribute.set.value_or(false))
        return "set";
    // A value that differs was left by something that default management does not know any more.
    const bool follows = iAttribute.value == iDefault.value;
    return OriginText(follows ? iDefault.origin : DefaultOrigin::None);
}

const char* OriginText(DefaultOrigin iOrigin)
{
    switch (iOrigin)
    {
    case DefaultOrigin::CustomDefault:
        return "custom default";
    case DefaultOrigin::Record:
        return "record";
    case DefaultOrigin::Startup:
        return "start-up";
    case DefaultOrigin::None:
        break;
    }
    return "none";
}
} // namespace Tool
