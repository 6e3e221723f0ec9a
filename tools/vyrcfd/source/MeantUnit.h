#ifndef MeantUnit_H
#define MeantUnit_H

#include <string>
#include <string_view>

namespace Tool
{
/// What was probably meant by a text that is no unit, or by a number with one behind it.
struct MeantUnit
{
    /// Such as "Pa" for "pa", or "mm/s" for "mmm/s"; empty where nothing better is known.
    std::string text{};
    /// What in the text is like no usual unit, such as "x" in "mm/x"; empty where each name in it is like one.
    std::string strange{};
    /// What a number with a comma in it may be, as `1.000 or 1000`; empty where it can be one only.
    std::string readings{};

    /// To be said behind what is wrong: `; "x" is like no usual unit`. Empty where nothing is strange, and what was
    /// meant can be one only.
    std::string Remark() const;
};

MeantUnit MeantUnitOf(std::string_view iUnit);
MeantUnit MeantQuantityOf(std::string_view iNumberWithUnit);
} // namespace Tool

#endif
