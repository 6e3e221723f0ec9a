#include "ConditionOverlap.h"

#include <algorithm>
#include <optional>

#include "RecordOrigin.h"
#include "ScratchObjects.h"
#include "VYRCfdUtilityMethods.h"
#include "VYRStandaloneCatalog.h"
#include "Value.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Comparison = VYRCfdConditionOperator;

template <class Number> bool Compares(Number iLeft, Comparison iComparison, Number iRight)
{
    switch (iComparison)
    {
    case Comparison::Equal:
        return iLeft == iRight;
    case Comparison::NotEqual:
        return !(iLeft == iRight);
    case Comparison::GreaterOrEqual:
        return iLeft >= iRight;
    case Comparison::LessOrEqual:
        return iLeft <= iRight;
    case Comparison::Greater:
        return iLeft > iRight;
    case Comparison::Less:
        break;
    }
    return iLeft < iRight;
}

std::optional<double> NumberOf(const std::string& iText)
{
    double number = 0.0;
    if (VYRCfdUtilityMethods::ConvertToDouble(UnicodeOf(iText), number) < 0)
        return std::nullopt;
    return number;
}

std::optional<int> IntegerOf(const std::string& iText)
{
    int number = 0;
    if (VYRCfdUtilityMethods::ConvertToInteger(UnicodeOf(iText), number) < 0)
        return std::nullopt;
    return number;
}

/// The values at which the two conditions may turn, and between them.
std::optional<std::string> RealForBoth(const ConditionText& iOne, const ConditionText& iOther)
{
    const std::optional<double> one = NumberOf(iOne.value);
    const std::optional<double> other = NumberOf(iOther.value);
    if (!one || !other)
        return std::nullopt;
    for (const double value :
         {*one, *other, (*one + *other) / 2, std::min(*one, *other) - 1, std::max(*one, *other) + 1})
        if (Compares(value, iOne.comparison, *one) && Compares(value, iOther.comparison, *other))
            return Value::Of(value).Shown();
    return std::nullopt;
}

/// @param iTexts of an enumeration, whose numbers count from 1; empty for any other integer
std::optional<std::string> IntegerForBoth(const ConditionText& iOne, const ConditionText& iOther,
                                          const std::vector<std::string>& iTexts)
{
    const std::optional<int> one = IntegerOf(iOne.value);
    const std::optional<int> other = IntegerOf(iOther.value);
    constexpr int Largest = 1'000'000'000;
    const auto isLarge = [](int iNumber) { return iNumber < -Largest || iNumber > Largest; };
    if (!one || !other || isLarge(*one) || isLarge(*other))
        return std::nullopt;
    for (const int value : {*one, *other, *one - 1, *one + 1, *other - 1, *other + 1})
    {
        const bool isThere = iTexts.empty() || (value >= 1 && static_cast<std::size_t>(value) <= iTexts.size());
        if (isThere && Compares(value, iOne.comparison, *one) && Compares(value, iOther.comparison, *other))
            return std::to_string(value);
    }
    return std::nullopt;
}

/// Texts compare by equality only.
bool HoldsFor(const std::string& iText, const ConditionText& iParts)
{
    return iParts.comparison == Comparison::Equal      ? iText == iParts.value
           : iParts.comparison == Comparison::NotEqual ? iText != iParts.value
                                                       : false;
}

/// Anything but a Choice may have any text, also one of the two.
std::optional<std::string> TextForBoth(const ConditionText& iOne, const ConditionText& iOther)
{
    for (const std::string& text : {iOne.value, iOther.value})
        if (HoldsFor(text, iOne) && HoldsFor(text, iOther))
            return Quoted(text);
    return std::nullopt;
}

/// A choice that meets both, and with which there is an object at the end of the path.
std::optional<std::string> ChoiceForBoth(const ConditionText& iOne, const ConditionText& iOther,
                                         const VYRCfdObjectAccess& iChoice, const VYRCfdObjectAccess& iStart,
                                         const ORXUnicodeString& iPath)
{
    for (const std::string& text : ChoicesOf(iChoice))
    {
        if (!HoldsFor(text, iOne) || !HoldsFor(text, iOther))
            continue;
        Select(iChoice, text);
        if (!iStart.GetByPath(iPath).IsNull())
            return Quoted(text);
    }
    return std::nullopt;
}

/// A value for which both hold. Of booleans nothing is said: what they are compared with plays no part, and that is
/// told of each.
std::optional<std::string> ValueForBoth(const ConditionText& iOne, const ConditionText& iOther,
                                        const VYRCfdObjectAccess& iAttribute, const Trial& iTrial,
                                        std::string_view iPath)
{
    if (iAttribute.IsDouble())
        return RealForBoth(iOne, iOther);
    if (iAttribute.IsInteger())
        return IntegerForBoth(iOne, iOther, iAttribute.IsEnum() ? TextsOf(iAttribute) : std::vector<std::string>());
    if (!iAttribute.IsString())
        return std::nullopt;
    const VYRCfdObjectAccess owner{iAttribute.Self()};
    if (iAttribute.GetName() == ORXUnicodeString("value") && IsChoice(owner))
        return ChoiceForBoth(iOne, iOther, owner, iTrial.object, UnicodeOf(iPath));
    return TextForBoth(iOne, iOther);
}
} // namespace

bool ConditionOverlap::LeavesRecords(std::string_view iConfiguration) const
{
    const SourceConfiguration* const configuration = m_source->Find(iConfiguration);
    if (configuration == nullptr)
        return false;
    const std::vector<SourceItem> items = ItemsOf(*configuration);
    return std::any_of(items.begin(), items.end(), [](const SourceItem& iItem) { return RecordTextsOf(iItem).isLeft; });
}

void ConditionOverlap::Enter(const SourceItem& iItem, const Trial& iTrial, const ConditionText& iParts,
                             const VYRCfdObjectAccess& iAttribute, TrialFindings& oFindings)
{
    // Each with each of so many would take its time, and nobody could tell them apart.
    constexpr std::size_t Most = 50;
    std::vector<Entry>& others = m_entries[{std::string(iItem.Text("path")), iParts.path}];
    for (const Entry& other : others)
    {
        if (other.item.Text("config") == iItem.Text("config") || !LeavesRecords(other.item.Text("config")))
            continue;
        const std::optional<std::string> value =
            ValueForBoth(other.parts, iParts, iAttribute, iTrial, iItem.Text("path"));
        if (!value)
            continue;
        const Finding place = FindingAt(other.item, "condition", FindingKind::OddCondition, Severity::Note, {});
        oFindings.push_back({FindingAt(iItem, "condition", FindingKind::OddCondition, Severity::Note,
                                       "the condition of item " + std::to_string(other.item.number) +
                                           " may hold at the same time, as with " + *value + ": then " +
                                           Quoted(other.item.Text("config")) + " and " + Quoted(iItem.Text("config")) +
                                           " are both applied to the same object, and the records of the second "
                                           "replace those of the first (" +
                                           iTrial.Where() + ")")});
        oFindings.back().finding.related.push_back({place.file, place.position.line});
        break;
    }
    if (others.size() < Most)
        others.push_back({iItem, iParts});
}
} // namespace Tool
