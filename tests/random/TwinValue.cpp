#include <charconv>
#include <climits>
#include <cmath>
#include <cstdlib>

#include "TwinHost.h"

namespace Twin
{
bool HoldsObjects(Kind iKind)
{
    return iKind == Kind::Component || iKind == Kind::Reference;
}

std::string Value::AsString() const
{
    if (!isThere)
        return "";
    switch (kind)
    {
    case Kind::Real:
    {
        char digits[64];
        const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), real);
        return std::string(digits, end.ptr) + (unit.empty() ? "" : " " + unit);
    }
    case Kind::Integer:
        return std::to_string(integer);
    case Kind::Boolean:
        return integer != 0 ? "true" : "false";
    default:
        return text;
    }
}

Value Of(double iValue)
{
    Value value;
    value.kind = Kind::Real;
    value.isThere = true;
    value.real = iValue;
    return value;
}

Value Of(int iValue)
{
    Value value;
    value.kind = Kind::Integer;
    value.isThere = true;
    value.integer = iValue;
    return value;
}

Value Of(bool iValue)
{
    Value value = Of(iValue ? 1 : 0);
    value.kind = Kind::Boolean;
    return value;
}

Value Of(const std::string& iValue)
{
    Value value;
    value.isThere = true;
    value.text = iValue;
    return value;
}

std::optional<int> ScannedInteger(const std::string& iText)
{
    char* end = nullptr;
    const long number = std::strtol(iText.c_str(), &end, 10);
    if (end == iText.c_str() || number < INT_MIN || number > INT_MAX)
        return std::nullopt;
    return static_cast<int>(number);
}

std::optional<double> ScannedReal(const std::string& iText)
{
    char* end = nullptr;
    const double number = std::strtod(iText.c_str(), &end);
    if (end == iText.c_str() || !std::isfinite(number))
        return std::nullopt;
    return number;
}
} // namespace Twin
