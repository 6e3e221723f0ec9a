#include "ConditionText.h"

namespace Tool
{
std::optional<ConditionText> PartsOf(std::string_view iCondition)
{
    struct Sign
    {
        std::string_view text;
        VYRCfdConditionOperator comparison;
    };
    // In this order, each sought in the whole text: so "a!=b==c" asks for "c" at "a!=b".
    static constexpr Sign signs[] = {
        {"==", VYRCfdConditionOperator::Equal},       {"!=", VYRCfdConditionOperator::NotEqual},
        {"<=", VYRCfdConditionOperator::LessOrEqual}, {">=", VYRCfdConditionOperator::GreaterOrEqual},
        {"<", VYRCfdConditionOperator::Less},         {">", VYRCfdConditionOperator::Greater},
        {"=", VYRCfdConditionOperator::Equal},
    };
    for (const Sign& sign : signs)
    {
        const std::size_t at = iCondition.find(sign.text);
        // One at the beginning is passed over, and no later one of the same sign is looked for.
        if (at == std::string_view::npos || at == 0)
            continue;
        const std::string_view value = iCondition.substr(at + sign.text.size());
        if (value.empty())
            return std::nullopt;
        return ConditionText{std::string(iCondition.substr(0, at)), sign.comparison, std::string(sign.text),
                             std::string(value)};
    }
    return std::nullopt;
}

std::string Trimmed(std::string_view iText)
{
    constexpr char white[] = " \t\r\n";
    const std::size_t first = iText.find_first_not_of(white);
    if (first == std::string_view::npos)
        return {};
    return std::string(iText.substr(first, iText.find_last_not_of(white) + 1 - first));
}
} // namespace Tool
