#ifndef ORXICkeManipulator_H
#define ORXICkeManipulator_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXListValORXUnicodeString.h"

/// What a panel offers for a parameter. It holds texts only and restricts nothing.
class ORXHostExport ORXICkeManipulator : public ORXBaseUnknown
{
public:
    /// Replaces what is offered. The texts are copied.
    virtual HRESULT SetAllowedValues(const ORXListValORXUnicodeString& iValues) = 0;
    /// Replaces what `oValues` holds.
    virtual HRESULT GetAllowedValues(ORXListValORXUnicodeString& oValues) = 0;

    static const IID& ClassId() noexcept { return IID_ORXICkeManipulator; }
};

using ORXICkeManipulator_var = ORXHandle<ORXICkeManipulator>;

#endif
