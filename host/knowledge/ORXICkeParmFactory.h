#ifndef ORXICkeParmFactory_H
#define ORXICkeParmFactory_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXICkeParm.h"

/// Makes free-standing parameters.
class ORXHostExport ORXICkeParmFactory : public ORXBaseUnknown
{
public:
    /// A parameter that belongs to no object and tells nobody. It has no value at first. Null when `iType` is null.
    virtual ORXICkeParm_var CreateParm(const ORXICkeType_var& iType, const ORXUnicodeString& iName) = 0;

    static const IID& ClassId() noexcept { return IID_ORXICkeParmFactory; }
};

using ORXICkeParmFactory_var = ORXHandle<ORXICkeParmFactory>;

#endif
