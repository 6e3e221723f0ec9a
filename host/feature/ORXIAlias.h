#ifndef ORXIAlias_H
#define ORXIAlias_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXUnicodeString.h"

/// The name of an object as the user sees it. An object that was given no such name does not offer the interface.
class ORXHostExport ORXIAlias : public ORXBaseUnknown
{
public:
    /// The name, never empty.
    virtual ORXUnicodeString GetAlias() = 0;

    static const IID& ClassId() noexcept { return IID_ORXIAlias; }
};

using ORXIAlias_var = ORXHandle<ORXIAlias>;

#endif
