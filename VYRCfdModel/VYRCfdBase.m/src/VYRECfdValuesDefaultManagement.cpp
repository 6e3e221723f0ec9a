#include "VYRECfdValuesDefaultManagement.h"

#include "ORXKeySetVYRCfdBase.h"

VYRECfdValuesDefaultManagement::VYRECfdValuesDefaultManagement()
{
    // The object is linked already, so the cursor's cast reaches the attributes of the extended feature.
    const ORXBaseUnknown_var spSelf = ORXBaseUnknown_var::Share(this);
    m_defMgmt = VYRCfdObjectAccess(spSelf).Get(VYRCFDBASE(Values, defaultManagement), 0);
}

VYRECfdValuesDefaultManagement::~VYRECfdValuesDefaultManagement() = default;
