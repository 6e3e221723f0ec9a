#include "VYRECfdValuesInstance.h"

#include "VYRCfdChecks.h"
#include "VYRIMpaDefaultManagementProtected.h"

VYRECfdValuesInstance::VYRECfdValuesInstance() = default;

VYRECfdValuesInstance::~VYRECfdValuesInstance() = default;

HRESULT VYRECfdValuesInstance::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    VYRCFD_ENTER(10);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = VYRIMpaDefaultManagementProtected_var::Cast(GetImpl(0));
    if (!!spDefMgmt)
    {
        if (iValue->IsValuated() != 0)
            spDefMgmt->SetIsSet(iName, ORXTrue);
        else
            spDefMgmt->Unset(iName);
    }
    return ORXSimFeatureInstanceAdp::AdviseAttributeChanged(iName, iValue);
}
