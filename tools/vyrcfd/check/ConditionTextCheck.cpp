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

/// As it is to be written: without blanks beside the operator and quotation marks.
std::string Meant(const std::string& iPath, std::string_view iSign, const std::string& iValue)
{
    const std::string value = Trimmed(iValue);
    return Trimmed(iPath) + std::string(iSign) + (IsQuoted(value) ? value.substr(1, value.size() - 2) : value);
}

/// An operator of another language, or one turned round, and the one that it stands for.
struct ForeignOperator
{
    std::string_view written;
    std::string_view meant;
};

/// The parts of a condition beside an operator that is sought in its text; nothing without it, or without both sides.
std::string MeantBeside(const std::string& iText, std::size_t iAt, const ForeignOperator& iOperator)
{
    const std::string path = iText.substr(0, iAt);
    const std::string value = iText.substr(iAt + iOperator.written.size());
    const bool isWhole = !Trimmed(path).empty() && !Trimmed(value).empty();
    return isWhole ? Meant(path, iOperator.meant, value) : std::string();
}

/// A condition whose signs are no operator in this order.
Oddity OfSigns(const std::string& iText)
{
    static constexpr ForeignOperator operators[] = {{"=>", ">="},  {"=<", "<="}, {"=!", "!="},
                                                    {"<>", "!="},  {"><", "!="}, {"===", "=="},
                                                    {"!==", "!="}, {"~=", "!="}, {"=~", "=="}};
    const std::size_t begin = iText.find_first_of("=!<>~");
    if (begin == std::string::npos)
        return {};
    const std::string_view written =
        std::string_view(iText).substr(begin, iText.find_first_not_of("=!<>~", begin) - begin);
    for (const ForeignOperator& one : operators)
        if (const std::string meant = one.written == written ? MeantBeside(iText, begin, one) : ""; !meant.empty())
            return {"there is no operator " + Quoted(written) + ", and its signs belong to what stands beside them",
                    meant};
    return {};
}

/// What a text without operator seems to ask; empty where it is not known, and where there is an operator.
std::string MeantByWords(const std::string& iText)
{
    if (iText.find_first_of("=<>") != std::string::npos)
        return {};
    static constexpr ForeignOperator words[] = {{" is not ", "!="}, {" is ", "=="}, {" equals ", "=="}, {" eq ", "=="},
                                                {" ne ", "!="},     {" lt ", "<"},  {" gt ", ">"},      {" le ", "<="},
                                                {" ge ", ">="},     {":", "=="}};
    for (const ForeignOperator& one : words)
        if (const std::size_t at = iText.find(one.written); at != std::string::npos)
            return MeantBeside(iText, at, one);
    return {};
}

/// Whether what a comparison goes on with behind a joint is another one. "Wing and body" is a text like any other.
bool IsJoined(const std::string& iValue, const char* iJoint)
{
    const std::size_t at = iValue.find(iJoint);
    return at != std::string::npos && iValue.find_first_of("=<>", at) != std::string::npos;
}

Oddity OddityOf(const std::string& iText, const ConditionText& iParts)
{
    for (const char* joint : {"&&", "||", " and ", " or "})
        if (IsJoined(iParts.value, joint))
            return {"a condition is one comparison: " + Quoted(joint) + " and what follows belong to the text that " +
                    Quoted(iParts.path) + " is compared with"};
    if (Oddity oddity = OfSigns(iText); !oddity.message.empty())
        return oddity;
    const std::string meant = Meant(iParts.path, iParts.sign, iParts.value);
    if (iParts.path.find_first_of("=!<>") != std::string::npos)
        return {"a condition is one comparison: the left side would be the path " + Quoted(iParts.path) +
                ", and no attribute has such a name"};
    if (HasWhiteEdge(iParts.path))
        return {"the blank beside the operator belongs to the path " + Quoted(iParts.path) + ", which leads nowhere",
                meant};
    if (IsQuoted(iParts.value))
        return {"the quotation marks belong to the text that is compared with", meant};
    if (HasWhiteEdge(iParts.value) && !MayStandBesideBlanks(iParts.value))
        return {"the blanks at its ends belong to the text " + Quoted(iParts.value) + " that is compared with", meant};
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

/// Adds the finding, and lets the other checks go on with what was meant.
void AddMeant(const SourceItem& iItem, Finding iFinding, const std::string& iMeant, CheckRun& ioRun)
{
    iFinding.suggestion = iMeant;
    ioRun.Add(std::move(iFinding));
    if (!iMeant.empty())
        ioRun.meant.SetText(iItem, "condition", iMeant);
}

void CheckCondition(const SourceItem& iItem, const VYRCfdObjectAccess& iProbe, CheckRun& ioRun)
{
    const std::string text(iItem.Text("condition"));
    const bool isBad = VYRCfdObjectCondition(iProbe, UnicodeOf(text)).HasError();
    const std::optional<ConditionText> parts = PartsOf(text);
    if (isBad || !parts)
    {
        AddMeant(iItem,
                 FindingAt(iItem, "condition", FindingKind::BadCondition, Severity::Error,
                           "the condition " + Quoted(text) + " is none, and never holds: " + WhyBad(text)),
                 MeantByWords(text), ioRun);
        return;
    }
    const Oddity oddity = OddityOf(text, *parts);
    if (!oddity.message.empty())
        AddMeant(iItem, FindingAt(iItem, "condition", FindingKind::OddCondition, Severity::Warning, oddity.message),
                 oddity.suggestion, ioRun);
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
