#ifndef WholeNumber_H
#define WholeNumber_H

#include <algorithm>
#include <charconv>
#include <string_view>

namespace Tool
{
/// Whether a number of that kind and nothing else stands there, blanks aside. The engine is content with one at the
/// head of a text.
template <class Number> bool IsWhole(std::string_view iText)
{
    const std::size_t first = std::min(iText.find_first_not_of(" \t"), iText.size());
    const std::size_t last = iText.find_last_not_of(" \t") + 1;
    const std::size_t digits = first + (first < last && iText[first] == '+' ? 1 : 0);
    Number number{};
    const auto read = std::from_chars(iText.data() + digits, iText.data() + std::max(last, digits), number);
    return read.ec == std::errc() && read.ptr == iText.data() + last;
}
} // namespace Tool

#endif
