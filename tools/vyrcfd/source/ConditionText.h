#ifndef ConditionText_H
#define ConditionText_H

/**
 * @file
 * The parts of a condition, as the engine parts it.
 */

#include <optional>
#include <string>
#include <string_view>

#include "VYRCfdObjectCondition.h"

namespace Tool
{
struct ConditionText
{
    /// Of the left side. Nothing is trimmed, here and on the right side.
    std::string path;
    VYRCfdConditionOperator comparison;
    /// As it is written: "=" and "==" are the same.
    std::string sign;
    std::string value;
};

/// Nothing for a text that is no condition; whether it is one the engine also says, by
/// `VYRCfdObjectCondition::HasError`.
std::optional<ConditionText> PartsOf(std::string_view iCondition);

/// The text without white space at its ends, as its writer may have meant it.
std::string Trimmed(std::string_view iText);
} // namespace Tool

#endif
