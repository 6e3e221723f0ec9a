#ifndef ORXIParmDictionary_H
#define ORXIParmDictionary_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXICkeType.h"

/// The base types of all parameters.
class ORXHostExport ORXIParmDictionary : public ORXBaseUnknown
{
public:
    /// The type of reals, from which those of quantities derive.
    virtual ORXICkeType_var GetRealType() = 0;
    /// The type of integers.
    virtual ORXICkeType_var GetIntegerType() = 0;
    /// The type of booleans.
    virtual ORXICkeType_var GetBooleanType() = 0;
    /// Every enumeration's type derives from it.
    virtual ORXICkeType_var GetEnumType() = 0;

    static const IID& ClassId() noexcept { return IID_ORXIParmDictionary; }
};

using ORXIParmDictionary_var = ORXHandle<ORXIParmDictionary>;

#endif
