#ifndef VYRCfdObjectCondition_H
#define VYRCfdObjectCondition_H

/**
 * @file
 * Conditions on objects.
 */

#include "VYRCfdObjectAccess.h"

/// "=" and "==" are the same operator.
enum class VYRCfdConditionOperator : int
{
    Equal = 0,
    NotEqual = 1,
    GreaterOrEqual = 2,
    LessOrEqual = 3,
    Greater = 4,
    Less = 5
};

/**
 * One comparison, "path operator value", parsed once and evaluated any number of times: `turbulence/model==SST`.
 *
 * The path is walked from the cursor, the attribute's value is the left operand. There are no conjunctions, brackets or
 * quotation marks, and nothing is trimmed: a blank in front of the operator belongs to the path, one behind it to the
 * value. A real is compared as a real, an integer and an enumeration as an integer, a string by "=" and "!=" only. For
 * a boolean attribute the operator and the value play no part: the result is the attribute's value. What cannot be
 * evaluated is false.
 *
 * An empty text is no condition, and true on a cursor that is sound.
 */
class VYRCfdBaseExport VYRCfdObjectCondition
{
public:
    /// A condition that has failed: "Null initialization".
    VYRCfdObjectCondition();
    /// A condition that has failed with this error text; the text is not parsed.
    VYRCfdObjectCondition(const ORXUnicodeString& iError);
    /// Parses, once, and holds the cursor's object.
    /// @param iCondition the comparison; one that cannot be parsed leaves the error "Bad condition: " + text
    VYRCfdObjectCondition(const VYRCfdObjectAccess& iAccess, const ORXUnicodeString& iCondition);
    /// Copies the cursor and the texts, but nothing that was parsed: a copy is for comparing and asking, not for
    /// evaluating. Assignment carries everything.
    VYRCfdObjectCondition(const VYRCfdObjectCondition& iOther);
    virtual ~VYRCfdObjectCondition();

    /// Copies everything, what was parsed too.
    VYRCfdObjectCondition& operator=(const VYRCfdObjectCondition& iOther);

    /// True if the cursors are equal or the texts are.
    bool operator==(const VYRCfdObjectCondition& iOther) const;
    /// True if the cursors differ or the texts do: not the negation of `operator==`.
    bool operator!=(const VYRCfdObjectCondition& iOther) const;

    /// Whether the cursor stands nowhere, see `VYRCfdObjectAccess::IsNull`.
    bool IsNull() const;
    /// Whether the condition itself is broken; the cursor's own error does not count.
    bool HasError() const;
    /// What is broken in the condition; empty where nothing is.
    ORXUnicodeString GetError() const;
    /// The object of the cursor.
    ORXBaseUnknown_var Self() const;
    /// The attributes of that object.
    ORXISpecAttrAccess_var Access() const;

    /// Evaluates: one path walk and one read. Resets the error status. A failed read is reported, and false.
    operator bool() const;

private:
    HRESULT ParseCondition(const ORXUnicodeString& iCondition);

    VYRCfdObjectAccess _access;
    VYRCfdConditionOperator _operator = VYRCfdConditionOperator::Equal;
    ORXUnicodeString _valueText;
    ORXUnicodeString _path;
    double _valueDouble = 0.0;
    ORXBoolean _isDoubleValue = ORXFalse;
    int _valueInteger = 0;
    ORXUnicodeString _condition;
    ORXUnicodeString _error;
};

#endif
