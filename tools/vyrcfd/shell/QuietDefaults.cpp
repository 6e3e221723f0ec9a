#include "QuietDefaults.h"

#include "AttributeReader.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneErrors.h"

namespace Tool
{
AttributeDefault QuietDefaults::Of(const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute)
{
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = iObject.object;
    if (!spDefMgmt || !IsScalar(iAttribute.info.type))
        return {};
    const AttributeDefault stored = OnCopy(iObject, iAttribute);
    const ORXUnicodeString name(iAttribute.info.name.c_str());
    unsigned char hasCustom = 0;
    ORXICkeInst_var spCustom;
    spDefMgmt->HasCustomDefault(name, hasCustom);
    if (hasCustom != 0)
        spDefMgmt->GetDefault(name, spCustom);
    // The question was the tool's, and what was reported is nothing that the user has done.
    VYRStandalone::TakeReports();
    const Value custom = ValueOf(spCustom, iAttribute.info.type);
    // A record that was looked up before is kept like a custom default; it still is the record's.
    const bool isKeptRecord = stored.origin == DefaultOrigin::Record && stored.value == custom;
    if (hasCustom == 0 || isKeptRecord)
        return stored;
    return {custom, DefaultOrigin::CustomDefault};
}

AskDefault QuietDefaults::Ask()
{
    return
        [this](const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute) { return Of(iObject, iAttribute); };
}

void QuietDefaults::Copy()
{
    m_copy = VYRStandalone::Model::Parse(m_model.Text(), "copy of the model");
    for (const ObjectSnapshot& object : TakeSnapshot(*m_copy))
        m_objects.try_emplace(object.path, object.object);
}

AttributeDefault QuietDefaults::OnCopy(const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute)
{
    if (!m_copy)
        Copy();
    // What stands at no place of its own, as default management itself, has no defaults.
    const auto found = m_objects.find(iObject.path);
    return found != m_objects.end() ? DefaultOf(found->second, iAttribute) : AttributeDefault();
}
} // namespace Tool
