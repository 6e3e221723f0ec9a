#include "ORXHandle.h"

#include "ORXBaseUnknown.h"
#include "VYRStandaloneErrors.h"

void ORXThrowErrorNullVar()
{
    throw VYRStandalone::NullHandleError();
}

bool ORXSameComponent(IUnknown* iLeft, IUnknown* iRight) noexcept
{
    if (iLeft == iRight)
        return true;
    if (iLeft == nullptr || iRight == nullptr)
        return false;
    // Every component derives from ORXBaseUnknown, which is the only class that derives from IUnknown itself.
    return static_cast<ORXBaseUnknown*>(iLeft)->IsEqual(static_cast<ORXBaseUnknown*>(iRight)) != 0;
}
