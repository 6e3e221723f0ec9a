#ifndef WholeNumber_H
#define WholeNumber_H

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "VYRCfdUtilityMethods.h"

namespace Tool
{
/// Whether a number of that kind and nothing else stands there, white space aside. The engine is content with one at
/// the head of a text.
template <class Number> bool IsWhole(std::string_view iText)
{
    constexpr std::string_view white = " \t\n\v\f\r";
    const std::size_t first = std::min(iText.find_first_not_of(white), iText.size());
    const std::size_t last = iText.find_last_not_of(white) + 1;
    const std::size_t digits = first + (first < last && iText[first] == '+' ? 1 : 0);
    Number number{};
    const auto read = std::from_chars(iText.data() + digits, iText.data() + std::max(last, digits), number);
    return read.ec == std::errc() && read.ptr == iText.data() + last;
}

/// The integer that is written as a real, such as "5" for "5.0" and "1000" for "1e3"; empty for any other text.
inline std::string IntegerMeantBy(const std::string& iText)
{
    double number = 0.0;
    const bool isReal = IsWhole<double>(iText) && !IsWhole<int>(iText) &&
                        VYRCfdUtilityMethods::ConvertToDouble(ORXUnicodeString(iText.c_str()), number) >= 0;
    constexpr double Largest = std::numeric_limits<int>::max();
    return isReal && std::abs(number) <= Largest && number == std::trunc(number)
               ? std::to_string(static_cast<int>(number))
               : std::string();
}
} // namespace Tool

#endif
