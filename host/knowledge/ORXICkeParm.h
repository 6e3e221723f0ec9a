#ifndef ORXICkeParm_H
#define ORXICkeParm_H

/**
 * @file
 * Parameters. Run-time seam; the free function is a link-time seam.
 */

#include "ORXICkeManipulator.h"
#include "ORXICkeType.h"
#include "ORXIValue.h"

class ORXISpecAttrAccess;
class ORXISpecAttrKey;

/**
 * A typed knowledge parameter: one that stands for an attribute of an object, or a free-standing one.
 *
 * A write stores, and then tells the object's `ORXIInstance` as a write through `ORXISpecAttrAccess` does. A value of
 * the wrong kind and a text that cannot be read change nothing and tell nobody. An integer given to a real is taken, a
 * number given to an enumeration is that of its text; every other mixture of kinds is wrong.
 */
class ORXHostExport ORXICkeParm : public ORXBaseUnknown
{
public:
    /// Its knowledge type; null is possible.
    virtual ORXICkeType_var GetType() = 0;

    /// A snapshot that later writes do not change. An unset parameter gives a value that is not valuated.
    virtual ORXIValue_var GetValue() = 0;

    /// Writes a boolean.
    virtual void Valuate(const ORXCke::Boolean& iValue) = 0;
    /// Reads the text by kind: a string as it stands; a real as a whole number text; an integer by its leading digits;
    /// a boolean "true", "false", "1" or "0" in any case; an enumeration by its exact text.
    virtual void Valuate(const ORXUnicodeString& iText) = 0;
    /// Writes a real, in SI units where it measures something.
    virtual void Valuate(double iValue) = 0;
    /// Writes an integer, or an enumeration by the number of its text.
    virtual void Valuate(int iValue) = 0;

    /// Copies a value. Null does nothing; a value that is not valuated takes the parameter's value away.
    virtual void ValuateFromValue(const ORXIValue_var& iValue) = 0;

    /// Sets a real parameter from a text, as `Valuate` does.
    virtual void ValuateFromString(const ORXUnicodeString& iText) = 0;

    /// A new manipulator, which becomes the parameter's.
    virtual ORXICkeManipulator_var CreateManipulator() = 0;
    /// The parameter's manipulator; null if it has none.
    virtual ORXICkeManipulator_var GetManipulator() = 0;

    static const IID& ClassId() noexcept { return IID_ORXICkeParm; }
};

using ORXICkeParm_var = ORXHandle<ORXICkeParm>;

/**
 * The parameter that stands for a scalar value attribute of an object; null for lists, for object values, for a key
 * that the object does not carry, and when one of the two is null.
 * @param iMode always 1
 */
ORXHostExport ORXICkeParm_var ORXCke_GetParm(ORXISpecAttrAccess* iAccess, ORXISpecAttrKey* iKey, int iMode);

#endif
