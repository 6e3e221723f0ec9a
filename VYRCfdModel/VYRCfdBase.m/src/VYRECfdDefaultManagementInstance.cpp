#include "VYRECfdDefaultManagementInstance.h"

#include "ORXISpecObject.h"
#include "VYRCfdChecks.h"
#include "VYRIMpaDefaultManagementProtected.h"

namespace
{
/// The default management of the nearest owner that is a Values feature. A Choice has one as well, but its type does
/// not derive from that, and so it is passed over.
VYRIMpaDefaultManagementProtected_var ValuesAbove(const ORXISpecObject_var& ispSpec)
{
    VYRIMpaDefaultManagementProtected_var spDefMgmt;
    // A sub-feature that the host does not hand out has no owner either.
    ORXISpecObject_var parent = !ispSpec ? ORXISpecObject_var() : ORXISpecObject_var::Adopt(ispSpec->GetOwner());
    while (!!parent && !spDefMgmt)
    {
        const VYRIMpaDefaultManagementProtected_var candidate = parent;
        if (!!candidate && parent->IsSubTypeOf("VYRCfdValues") != ORXFalse)
            spDefMgmt = candidate;
        parent = ORXISpecObject_var::Adopt(parent->GetOwner());
    }
    return spDefMgmt;
}
} // namespace

VYRECfdDefaultManagementInstance::VYRECfdDefaultManagementInstance() = default;

VYRECfdDefaultManagementInstance::~VYRECfdDefaultManagementInstance() = default;

HRESULT VYRECfdDefaultManagementInstance::AdviseAttributeChanged(const ORXUnicodeString& iName,
                                                                 const ORXIValue_var& iValue)
{
    VYRCFD_ENTER(10);
    // Anywhere in the name, not only at its end.
    if (iName.SearchSubString("_isauto", 0, 1) >= 0)
    {
        ORXUnicodeString attrName = iName;
        attrName.ReplaceSubString("_isauto", "");
        const ORXISpecObject_var spSpec = ORXISpecObject_var::Cast(GetImpl(0));
        const VYRIMpaDefaultManagementProtected_var spDefMgmt = ValuesAbove(spSpec);
        if (!spDefMgmt)
            return E_FAIL;
        const bool flag = iValue->IsTrue();
        spDefMgmt->SetIsAuto(attrName, flag ? ORXTrue : ORXFalse);
    }
    return ORXSimFeatureInstanceAdp::AdviseAttributeChanged(iName, iValue);
}
