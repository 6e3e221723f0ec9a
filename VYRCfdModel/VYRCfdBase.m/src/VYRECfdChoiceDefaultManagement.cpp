#include "VYRECfdChoiceDefaultManagement.h"

#include "ORXKeySetVYRCfdBase.h"
#include "VYRCfdChecks.h"
#include "VYRICfdChoice.h"

VYRECfdChoiceDefaultManagement::VYRECfdChoiceDefaultManagement()
{
    // The object is linked already, so the cursor's cast reaches the attributes of the extended feature.
    const ORXBaseUnknown_var spSelf = ORXBaseUnknown_var::Share(this);
    m_defMgmt = VYRCfdObjectAccess(spSelf).Get(VYRCFDBASE(Choice, defaultManagement), 0);
}

VYRECfdChoiceDefaultManagement::~VYRECfdChoiceDefaultManagement() = default;

// clang-format off
HRESULT VYRECfdChoiceDefaultManagement::SetCustomDefault(const ORXUnicodeString& iAttrName, ORXUnicodeString& iValue)
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_CHECK(VYRCfdDefaultManagementAdp::SetCustomDefault(iAttrName, iValue));
    const VYRICfdChoice_var spChoice = VYRICfdChoice_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spChoice);
    spChoice->Update();
    return S_OK;
}
// clang-format on
