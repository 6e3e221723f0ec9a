#ifndef ORXICkeType_H
#define ORXICkeType_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXCke.h"
#include "ORXUnicodeString.h"

class ORXICkeType;
using ORXICkeType_var = ORXHandle<ORXICkeType>;

/// A knowledge type. Types live until the process ends, and counting them does nothing.
class ORXHostExport ORXICkeType : public ORXBaseUnknown
{
public:
    /// True for the type of that name, such as "Real", and for what derives from it.
    virtual ORXCke::Boolean IsaKindOf(const ORXUnicodeString& iTypeName) = 0;
    /// True for the type and what derives from it; false for null.
    virtual ORXCke::Boolean IsaKindOf(const ORXICkeType_var& iType) = 0;
    /// Also true for the type of a quantity, such as a length.
    virtual ORXCke::Boolean IsaReal() = 0;
    /// Whether values are true or false.
    virtual ORXCke::Boolean IsaBoolean() = 0;
    /// False for an enumeration.
    virtual ORXCke::Boolean IsaInteger() = 0;
    /// False for an enumeration, though its values are texts.
    virtual ORXCke::Boolean IsaString() = 0;

    static const IID& ClassId() noexcept { return IID_ORXICkeType; }
};

#endif
