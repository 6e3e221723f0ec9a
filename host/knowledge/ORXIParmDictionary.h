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
    virtual ORXICkeType_var GetRealType() = 0;
    virtual ORXICkeType_var GetIntegerType() = 0;
    virtual ORXICkeType_var GetBooleanType() = 0;
    /// Every enumeration's type derives from it.
    virtual ORXICkeType_var GetEnumType() = 0;

    static const IID& ClassId() noexcept { return IID_ORXIParmDictionary; }
};

using ORXIParmDictionary_var = ORXHandle<ORXIParmDictionary>;

#endif
