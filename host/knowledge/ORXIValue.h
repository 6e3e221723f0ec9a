#ifndef ORXIValue_H
#define ORXIValue_H

/**
 * @file
 * Values of parameters. Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXCke.h"
#include "ORXUnicodeString.h"

/**
 * A value, as default management carries it. Immutable. A value that is unset is not valuated and reads as 0, 0.0,
 * false and ""; it is something else than an empty text that was written.
 */
class ORXHostExport ORXICkeInst : public ORXBaseUnknown
{
public:
    /// Nonzero when there is a value.
    virtual int IsValuated() = 0;
    /// The number of an integer or of an enumeration's text; a real without its fraction; a boolean as 0 or 1.
    virtual int AsInteger() = 0;
    /// A real in SI units; an integer, a boolean or an enumeration as `AsInteger`.
    virtual double AsReal() = 0;
    /// The value as text, for every kind; of a real the shortest decimal that reads back the same.
    virtual ORXUnicodeString AsString() = 0;
    /// A boolean value; false for every other kind.
    virtual ORXCke::Boolean AsBoolean() = 0;
    /// Plain read of a boolean value; false for every other kind.
    virtual bool IsTrue() = 0;

    static const IID& ClassId() noexcept { return IID_ORXICkeInst; }
};

using ORXICkeInst_var = ORXHandle<ORXICkeInst>;

/// A value, as a parameter holds it and as it is sent in notifications: the same object under its other name.
class ORXHostExport ORXIValue : public ORXICkeInst
{
public:
    static const IID& ClassId() noexcept { return IID_ORXIValue; }
};

using ORXIValue_var = ORXHandle<ORXIValue>;

#endif
