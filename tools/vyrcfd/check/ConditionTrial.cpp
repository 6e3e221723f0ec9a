#include <algorithm>
#include <limits>

#include "ItemTrial.h"
#include "MeantUnit.h"
#include "Oddity.h"
#include "ScratchObjects.h"
#include "VYRCfdUtilityMethods.h"
#include "VYRStandaloneCatalog.h"
#include "WholeNumber.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Comparison = VYRCfdConditionOperator;

bool AsksForEquality(const ConditionText& iParts)
{
    return iParts.comparison == Comparison::Equal || iParts.comparison == Comparison::NotEqual;
}

bool AllowsEquality(const ConditionText& iParts)
{
    return iParts.comparison == Comparison::GreaterOrEqual || iParts.comparison == Comparison::LessOrEqual;
}

/// The result is the attribute's value itself. So a comparison that reads like it is in order.
Oddity OfBoolean(const ConditionText& iParts)
{
    bool truth = false;
    const bool isTruth = VYRCfdUtilityMethods::ConvertToBoolean(UnicodeOf(Trimmed(iParts.value)), truth,
                                                                VYRCfdUtilityMethods::VYRCfdEmptyIsInvalid) >= 0;
    const bool readsAsTrue = isTruth && AsksForEquality(iParts) && truth == (iParts.comparison == Comparison::Equal);
    if (readsAsTrue)
        return {};
    return {Quoted(iParts.path) + " is a boolean, and what stands behind it plays no part: the condition holds "
                                  "whenever it is true"};
}

Oddity OfReal(const ConditionText& iParts)
{
    double number = 0.0;
    if (VYRCfdUtilityMethods::ConvertToDouble(UnicodeOf(iParts.value), number) < 0)
        return {Quoted(iParts.path) + " is a real, and is compared with no number: the condition never holds"};
    if (!IsWhole<double>(iParts.value))
    {
        std::string withPoint = iParts.value;
        std::replace(withPoint.begin(), withPoint.end(), ',', '.');
        const MeantUnit meant = MeantQuantityOf(iParts.value);
        return {Quoted(iParts.path) + " is a real, and of " + Quoted(iParts.value) +
                    " only the number at its head is compared, in SI units" +
                    (meant.readings.empty() ? "" : meant.Remark()),
                meant.readings.empty() && IsWhole<double>(withPoint) ? iParts.path + iParts.sign + withPoint
                                                                     : std::string()};
    }
    return {};
}

/// Such as `1 "upwind", 2 "central"`.
std::string NumberedTexts(const std::vector<std::string>& iTexts)
{
    constexpr std::size_t Most = 12;
    std::string list;
    for (std::size_t i = 0; i < std::min(iTexts.size(), Most); ++i)
        list += (list.empty() ? "" : ", ") + std::to_string(i + 1) + " " + Quoted(iTexts[i]);
    return iTexts.size() > Most ? list + " and so on to " + std::to_string(iTexts.size()) : list;
}

Oddity OfEnumeration(const ConditionText& iParts, const std::vector<std::string>& iTexts)
{
    Oddity oddity{Quoted(iParts.path) + " is an enumeration, and compares as the number of its text: " +
                  NumberedTexts(iTexts) + "; the condition never holds"};
    const auto meant = std::find(iTexts.begin(), iTexts.end(), Nearest(iParts.value, iTexts));
    if (meant != iTexts.end())
        oddity.suggestion = iParts.path + iParts.sign + std::to_string(meant - iTexts.begin() + 1);
    return oddity;
}

Oddity OfInteger(const ConditionText& iParts, const std::vector<std::string>& iTexts)
{
    int number = 0;
    // The engine keeps the least integer for a right side that is none.
    const bool isRead = VYRCfdUtilityMethods::ConvertToInteger(UnicodeOf(iParts.value), number) >= 0 &&
                        number != std::numeric_limits<int>::min();
    const bool isOutside = number < 1 || static_cast<std::size_t>(number) > iTexts.size();
    if (!iTexts.empty() && (!isRead || (iParts.comparison == Comparison::Equal && isOutside)))
        return OfEnumeration(iParts, iTexts);
    if (!isRead)
        return {Quoted(iParts.path) + " is an integer, and is compared with no number: the condition never holds"};
    const std::string meant = IntegerMeantBy(iParts.value);
    if (!IsWhole<int>(iParts.value))
        return {Quoted(iParts.path) + " is an integer, and of " + Quoted(iParts.value) + " only " +
                    std::to_string(number) + " is compared",
                meant.empty() ? meant : iParts.path + iParts.sign + meant};
    return {};
}

Oddity OfText(const ConditionText& iParts, const VYRCfdObjectAccess& iAttribute)
{
    if (!AsksForEquality(iParts))
        return {Quoted(iParts.path) + " is a text, and can be compared by == and != only: the condition never holds",
                AllowsEquality(iParts) ? iParts.path + "==" + iParts.value : std::string()};
    const VYRCfdObjectAccess owner{iAttribute.Self()};
    const std::vector<std::string> choices =
        iAttribute.GetName() == ORXUnicodeString("value") ? ChoicesOf(owner) : std::vector<std::string>();
    if (choices.empty() || std::find(choices.begin(), choices.end(), iParts.value) != choices.end())
        return {};
    return {Quoted(iParts.value) + " is no choice of " + Quoted(iParts.path) + ": the condition " +
                (iParts.comparison == Comparison::Equal ? "never" : "always") + " holds",
            {},
            iParts.value,
            choices};
}

/// Asked in the order in which the engine does.
Oddity OddityOf(const ConditionText& iParts, const VYRCfdObjectAccess& iAttribute)
{
    if (iAttribute.IsDouble())
        return OfReal(iParts);
    if (iAttribute.IsInteger())
        return OfInteger(iParts, iAttribute.IsEnum() ? TextsOf(iAttribute) : std::vector<std::string>());
    if (iAttribute.IsString())
        return OfText(iParts, iAttribute);
    if (iAttribute.IsBoolean())
        return OfBoolean(iParts);
    return {Quoted(iParts.path) + " is neither a number, a text nor a boolean: the condition never holds"};
}
} // namespace

std::vector<std::string> TextsOf(const VYRCfdObjectAccess& iAttribute)
{
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(ORXISpecObject_var(iAttribute.Self())))
        if (UnicodeOf(info.name) == iAttribute.GetName())
            return info.values;
    return {};
}

bool CheckComparison(const SourceItem& iItem, const Trial& iTrial, ConditionText& ioParts,
                     const VYRCfdObjectAccess& iAttribute, TrialFindings& oFindings)
{
    Oddity oddity = OddityOf(ioParts, iAttribute);
    if (oddity.message.empty())
        return true;
    Finding finding = FindingAt(iItem, "condition", FindingKind::OddCondition, Severity::Warning,
                                oddity.message + " (" + iTrial.Where() + ")");
    finding.suggestion = oddity.suggestion;
    // By != hardly anything is left out, so that nothing is known of what is applied.
    const bool isNear = ioParts.comparison == Comparison::Equal;
    const std::string meant = isNear ? OnlySlip(oddity.unknown, oddity.known) : std::string();
    if (!meant.empty())
        ioParts.value = meant;
    oFindings.push_back({std::move(finding), std::move(oddity.unknown), std::move(oddity.known)});
    return !meant.empty();
}
} // namespace Tool
