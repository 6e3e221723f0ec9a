#include "CheckRun.h"
#include "ConditionText.h"
#include "Oddity.h"
#include "VYRCfdUtilityMethods.h"
#include "VYRStandaloneModel.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char White[] = " \t\r\n";

bool HasWhiteEdge(const std::string& iText)
{
    return iText.find_first_of(White) == 0 || iText.find_last_of(White) + 1 == iText.size();
}

/// Numbers are read from behind white space, and what stands beside a boolean plays no part.
bool MayStandBesideBlanks(const std::string& iValue)
{
    double number = 0.0;
    bool truth = false;
    return VYRCfdUtilityMethods::ConvertToDouble(UnicodeOf(iValue), number) >= 0 ||
           VYRCfdUtilityMethods::ConvertToBoolean(UnicodeOf(Trimmed(iValue)), truth,
                                                  VYRCfdUtilityMethods::VYRCfdEmptyIsInvalid) >= 0;
}

bool IsQuoted(const std::string& iValue)
{
    const std::string text = Trimmed(iValue);
    return text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
}

Oddity OddityOf(const ConditionText& iParts)
{
    for (const char* joint : {"&&", "||", " and ", " or "})
        if (iParts.value.find(joint) != std::string::npos)
            return {"a condition is one comparison: " + Quoted(joint) + " and what follows belong to the text that " +
                    Quoted(iParts.path) + " is compared with"};
    if (iParts.path.find_first_of("=!<>") != std::string::npos)
        return {"a condition is one comparison: the left side would be the path " + Quoted(iParts.path) +
                ", and no attribute has such a name"};
    if (HasWhiteEdge(iParts.path))
        return {"the blank beside the operator belongs to the path " + Quoted(iParts.path) + ", which leads nowhere",
                Trimmed(iParts.path) + iParts.sign + Trimmed(iParts.value)};
    if (IsQuoted(iParts.value))
    {
        const std::string text = Trimmed(iParts.value);
        return {"the quotation marks belong to the text that is compared with",
                iParts.path + iParts.sign + text.substr(1, text.size() - 2)};
    }
    if (HasWhiteEdge(iParts.value) && !MayStandBesideBlanks(iParts.value))
        return {"the blanks at its ends belong to the text " + Quoted(iParts.value) + " that is compared with",
                iParts.path + iParts.sign + Trimmed(iParts.value)};
    return {};
}

std::string WhyBad(const std::string& iCondition)
{
    if (iCondition.find_first_of("=<>") == std::string::npos)
        return "it has no operator (==, !=, <=, >=, <, > or =)";
    if (iCondition.find_first_of("=!<>") == 0)
        return "nothing stands in front of its operator";
    return "nothing stands behind its operator";
}

void CheckCondition(const SourceItem& iItem, const VYRCfdObjectAccess& iProbe, CheckRun& ioRun)
{
    const std::string text(iItem.Text("condition"));
    const bool isBad = VYRCfdObjectCondition(iProbe, UnicodeOf(text)).HasError();
    const std::optional<ConditionText> parts = PartsOf(text);
    if (isBad || !parts)
    {
        ioRun.Add(FindingAt(iItem, "condition", FindingKind::BadCondition, Severity::Error,
                            "the condition " + Quoted(text) + " is none, and never holds: " + WhyBad(text)));
        return;
    }
    const Oddity oddity = OddityOf(*parts);
    if (oddity.message.empty())
        return;
    Finding finding = FindingAt(iItem, "condition", FindingKind::OddCondition, Severity::Warning, oddity.message);
    finding.suggestion = oddity.suggestion;
    ioRun.Add(std::move(finding));
    if (!oddity.suggestion.empty())
        ioRun.meant.SetText(iItem, "condition", oddity.suggestion);
}
} // namespace

void CheckConditionTexts(CheckRun& ioRun)
{
    // What a condition is asked of does not matter, but it must be there.
    VYRStandalone::Model model;
    const VYRCfdObjectAccess probe{ORXBaseUnknown_var(model.Create("VYRCfdValues", "Probe"))};
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        for (const SourceItem& item : ItemsOf(configuration))
            if (item.role == ItemRole::Conditional ||
                (item.role == ItemRole::Nothing && HasWrongKey(item.value) && !item.Text("condition").empty()))
                CheckCondition(item, probe, ioRun);
}
} // namespace Tool
