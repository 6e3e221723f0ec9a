#ifndef VYRIFldIdentifier_H
#define VYRIFldIdentifier_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXUnicodeString.h"

/// The identifier of an object. An object that was given none does not offer the interface.
class ORXHostExport VYRIFldIdentifier : public ORXBaseUnknown
{
public:
    /// Replaces what `oIdentifier` holds.
    virtual void GetIdentifier(ORXUnicodeString& oIdentifier) = 0;

    static const IID& ClassId() noexcept { return IID_VYRIFldIdentifier; }
};

using VYRIFldIdentifier_var = ORXHandle<VYRIFldIdentifier>;

#endif
