#include "VYRCfdObjectCondition.h"

#include <limits>

#include "VYRCfdChecks.h"
#include "VYRCfdUtilityMethods.h"

namespace
{
/// Marks a right side that is no integer. The same number as a right side is therefore never equal to anything.
constexpr int NoInteger = std::numeric_limits<int>::min();

struct OperatorText
{
    const char* text;
    VYRCfdConditionOperator value;
};

/// In the order of the search: the first text that stands anywhere behind the first character wins.
constexpr OperatorText OperatorTexts[] = {
    {"==", VYRCfdConditionOperator::Equal},       {"!=", VYRCfdConditionOperator::NotEqual},
    {"<=", VYRCfdConditionOperator::LessOrEqual}, {">=", VYRCfdConditionOperator::GreaterOrEqual},
    {"<", VYRCfdConditionOperator::Less},         {">", VYRCfdConditionOperator::Greater},
    {"=", VYRCfdConditionOperator::Equal},
};

/// The attribute's value is always the left operand. Reals are compared exactly; with a value that is no number only
/// NotEqual holds.
template <class Number> bool Compare(Number iAttribute, VYRCfdConditionOperator iOperator, Number iRight)
{
    switch (iOperator)
    {
    case VYRCfdConditionOperator::Equal:
        return iAttribute == iRight;
    case VYRCfdConditionOperator::NotEqual:
        return iAttribute != iRight;
    case VYRCfdConditionOperator::GreaterOrEqual:
        return iAttribute >= iRight;
    case VYRCfdConditionOperator::LessOrEqual:
        return iAttribute <= iRight;
    case VYRCfdConditionOperator::Greater:
        return iAttribute > iRight;
    case VYRCfdConditionOperator::Less:
        return iAttribute < iRight;
    }
    return false;
}
} // namespace

VYRCfdObjectCondition::VYRCfdObjectCondition() : _access(ORXUnicodeString())
{
    VYRCFD_ENTER(10);
    _error = "Null initialization";
}

VYRCfdObjectCondition::VYRCfdObjectCondition(const ORXUnicodeString& iError)
    : _access(ORXUnicodeString()), _error(iError)
{
    VYRCFD_ENTER(20);
}

VYRCfdObjectCondition::VYRCfdObjectCondition(const VYRCfdObjectAccess& iAccess, const ORXUnicodeString& iCondition)
    : _access(iAccess), _condition(iCondition)
{
    VYRCFD_ENTER(20);
    if (_access.IsNull())
        _error = "Null initialization";
    if (!iCondition.IsEmpty() && ParseCondition(iCondition) < 0)
        _error = "Bad condition: " + iCondition;
}

VYRCfdObjectCondition::VYRCfdObjectCondition(const VYRCfdObjectCondition& iOther)
    : _access(iOther._access), _condition(iOther._condition), _error(iOther._error)
{
    VYRCFD_ENTER(20);
}

VYRCfdObjectCondition::~VYRCfdObjectCondition()
{
    VYRCFD_ENTER(20);
}

VYRCfdObjectCondition& VYRCfdObjectCondition::operator=(const VYRCfdObjectCondition& iOther) = default;

bool VYRCfdObjectCondition::operator==(const VYRCfdObjectCondition& iOther) const
{
    return _access == iOther._access || _condition == iOther._condition;
}

// Not the negation of operator==: two conditions on one cursor with different texts are both equal and unequal.
bool VYRCfdObjectCondition::operator!=(const VYRCfdObjectCondition& iOther) const
{
    return _access != iOther._access || !(_condition == iOther._condition);
}

bool VYRCfdObjectCondition::IsNull() const
{
    return _access.IsNull();
}

bool VYRCfdObjectCondition::HasError() const
{
    return !_error.IsEmpty();
}

ORXUnicodeString VYRCfdObjectCondition::GetError() const
{
    return _error;
}

ORXBaseUnknown_var VYRCfdObjectCondition::Self() const
{
    return _access.Self();
}

ORXISpecAttrAccess_var VYRCfdObjectCondition::Access() const
{
    return _access.Access();
}

HRESULT VYRCfdObjectCondition::ParseCondition(const ORXUnicodeString& iCondition)
{
    VYRCFD_ENTER(20);
    if (_access.IsNull())
        return E_FAIL;

    const OperatorText* found = nullptr;
    int position = -1;
    for (const OperatorText& candidate : OperatorTexts)
    {
        position = iCondition.SearchSubString(candidate.text, 0, 1);
        if (position > 0)
        {
            found = &candidate;
            break;
        }
    }
    if (found == nullptr)
        return E_FAIL;

    _operator = found->value;
    _path = iCondition.SubString(0, position);
    const int behind = position + ORXUnicodeString(found->text).GetLengthInChar();
    const int length = iCondition.GetLengthInChar();
    if (behind >= length)
        return E_FAIL;

    _valueText = iCondition.SubString(behind, length - behind);
    _isDoubleValue = VYRCfdUtilityMethods::ConvertToDouble(_valueText, _valueDouble) >= 0 ? ORXTrue : ORXFalse;
    if (VYRCfdUtilityMethods::ConvertToInteger(_valueText, _valueInteger) < 0)
        _valueInteger = NoInteger;
    // Neither of the two is no failure: the text can still be compared with a string.
    return S_OK;
}

VYRCfdObjectCondition::operator bool() const
{
    VYRCFD_RESET();
    if (_access.IsNull() || _access.HasError() || HasError())
        return false;
    if (_condition.IsEmpty())
        return true;

    // The path is walked anew each time, so that a condition follows the model.
    const VYRCfdObjectAccess varAccess = _access.GetByPath(_path);
    if (varAccess.IsNull())
        return false;

    if (varAccess.IsDouble())
    {
        if (_isDoubleValue == ORXFalse)
            return false;
        double value = 0.0;
        VYRCFD_CHECK(varAccess.GetDouble(value));
        return Compare(value, _operator, _valueDouble);
    }
    if (varAccess.IsInteger())
    {
        if (_valueInteger == NoInteger)
            return false;
        int value = 0;
        VYRCFD_CHECK(varAccess.GetInteger(value));
        return Compare(value, _operator, _valueInteger);
    }
    if (varAccess.IsString())
    {
        ORXUnicodeString value;
        VYRCFD_CHECK(varAccess.GetString(value));
        const bool isEqual = value == _valueText;
        return (_operator == VYRCfdConditionOperator::Equal && isEqual) ||
               (_operator == VYRCfdConditionOperator::NotEqual && !isEqual);
    }
    if (varAccess.IsBoolean())
    {
        // Operator and right side play no part for a boolean.
        bool value = false;
        VYRCFD_CHECK(varAccess.GetBoolean(value));
        return value;
    }
    return false;
}
