#ifndef ORXISpecAttribute_H
#define ORXISpecAttribute_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"

/// One attribute of one object, as `ORXISpecObject::AddAttribute` gives it.
class ORXHostExport ORXISpecAttribute : public ORXBaseUnknown
{
public:
    /// Writes a boolean attribute as `ORXISpecAttrAccess::SetBoolean` does, with its notification.
    virtual HRESULT SetBoolean(ORXBoolean iValue, int iIndex = 0) = 0;

    static const IID& ClassId() noexcept { return IID_ORXISpecAttribute; }
};

using ORXISpecAttribute_var = ORXHandle<ORXISpecAttribute>;

#endif
