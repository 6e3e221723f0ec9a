#include <algorithm>
#include <optional>
#include <set>

#include "CheckRun.h"
#include "ConditionText.h"
#include "MeantLists.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// What is wrong with the blanks of a list; empty when nothing is.
std::string BlanksOf(std::string_view iText)
{
    const std::vector<std::string> written = WrittenEntries(iText);
    const std::vector<std::string> read = SplitTexts(iText);
    for (std::size_t i = 0; i < std::min(written.size(), read.size()); ++i)
    {
        if (read[i].find_first_of("\t\r\n") != std::string::npos)
            return "white space other than blanks stays in the entry " + Quoted(read[i]);
        if (written[i] != read[i])
            return "blanks are removed also inside an entry: " + Quoted(written[i]) + " becomes " + Quoted(read[i]);
    }
    return {};
}

/// The first entry that stands there a second time; empty for none, and for empty ones, which are told already.
std::string DoubledIn(const std::vector<std::string>& iEntries)
{
    std::set<std::string> seen;
    for (const std::string& entry : iEntries)
        if (!seen.insert(entry).second && !entry.empty())
            return entry;
    return {};
}

class ListCheck
{
public:
    explicit ListCheck(CheckRun& ioRun) : m_run(ioRun) {}

    void Check(const SourceItem& iItem)
    {
        if (iItem.role == ItemRole::Values)
            CheckValues(iItem);
        if (iItem.role == ItemRole::Choice && IsText(iItem, "choices"))
            CheckChoices(iItem);
    }

private:
    static bool IsText(const SourceItem& iItem, const char* iKey)
    {
        const SourceMember* member = iItem.value.Find(iKey);
        return member != nullptr && member->value->Is(SourceValue::Kind::Text);
    }

    void CheckValues(const SourceItem& iItem)
    {
        MeantEntries entries = MeantEntriesOf(iItem);
        Add(std::move(entries.findings));
        CheckEntries(iItem, "value", entries.text, "an entry of the list is empty");
        const std::string doubled = DoubledIn(SplitTexts(entries.text));
        if (!doubled.empty())
            m_run.Add(FindingAt(iItem, "value", FindingKind::DuplicateEntry, Severity::Note,
                                "the entry " + Quoted(doubled) + " stands twice in the list"));
    }

    void CheckChoices(const SourceItem& iItem)
    {
        MeantLists lists = MeantListsOf(iItem);
        Add(std::move(lists.findings));
        constexpr char isEmpty[] = "an entry of \"choices\" is empty, and is a choice without a name";
        // Nothing else can be right where there are none.
        if (lists.choices.find_first_not_of(' ') == std::string::npos)
        {
            const bool fails = SplitTexts(lists.startups).size() > 1 || !iItem.Text("default").empty();
            m_run.Add(FindingAt(iItem, lists.choicesKey, FindingKind::BlankInList,
                                fails ? Severity::Error : Severity::Warning, isEmpty));
            return;
        }
        CheckEntries(iItem, lists.choicesKey, lists.choices, isEmpty);
        const std::vector<std::string> choices = SplitTexts(lists.choices);
        CheckDoubled(iItem, lists.choicesKey, choices);
        const std::size_t startups = lists.hasStartups ? SplitTexts(lists.startups).size() : choices.size();
        if (IsText(iItem, "Startups"))
            CheckStartups(iItem, lists, choices, startups);
        // A choice that is missing in the list may be the default.
        if ((startups <= choices.size() || !IsText(iItem, "Startups")) && !TakeMisspeltChoice(iItem, lists))
            CheckDefault(iItem, choices);
    }

    void Add(std::vector<Finding> iFindings)
    {
        for (Finding& finding : iFindings)
            m_run.Add(std::move(finding));
    }

    void CheckBlanks(const SourceItem& iItem, const char* iKey, const std::string& iText)
    {
        std::string blanks = BlanksOf(iText);
        if (!blanks.empty())
            m_run.Add(FindingAt(iItem, iKey, FindingKind::BlankInList, Severity::Warning, std::move(blanks)));
    }

    void CheckEntries(const SourceItem& iItem, const char* iKey, const std::string& iText, const char* iEmpty)
    {
        const std::vector<std::string> entries = SplitTexts(iText);
        if (std::find(entries.begin(), entries.end(), "") != entries.end())
            m_run.Add(FindingAt(iItem, iKey, FindingKind::BlankInList, Severity::Warning, iEmpty));
        CheckBlanks(iItem, iKey, iText);
    }

    void CheckDoubled(const SourceItem& iItem, const char* iKey, const std::vector<std::string>& iChoices)
    {
        const std::string doubled = DoubledIn(iChoices);
        if (!doubled.empty())
            m_run.Add(FindingAt(iItem, iKey, FindingKind::DoesNothing, Severity::Error,
                                "the choice " + Quoted(doubled) + " stands twice, and can be selected only once"));
    }

    void CheckStartups(const SourceItem& iItem, const MeantLists& iLists, const std::vector<std::string>& iChoices,
                       std::size_t iStartups)
    {
        CheckBlanks(iItem, iLists.startupsKey, iLists.startups);
        if (iStartups == iChoices.size())
            return;
        std::string message = "there is one startup for each choice, an empty one for a choice without data: " +
                              Counted(iChoices.size(), "choice") + " and " + Counted(iStartups, "startup") +
                              " make the item fail";
        if (iStartups > iChoices.size() && IsOutside(iItem, iChoices))
            message += "; the default " + Quoted(iItem.Text("default")) + " is none of the choices";
        m_run.Add(FindingAt(iItem, iLists.startupsKey, FindingKind::UnequalLists, Severity::Error, std::move(message)));
    }

    static bool IsOutside(const SourceItem& iItem, const std::vector<std::string>& iChoices)
    {
        const std::string_view chosen = iItem.Text("default");
        return !chosen.empty() && std::find(iChoices.begin(), iChoices.end(), chosen) == iChoices.end();
    }

    /// How many conditions of the item's configuration ask for a choice.
    static std::size_t ConditionsOn(const SourceItem& iItem, std::string_view iChoice)
    {
        std::size_t number = 0;
        for (const SourceItem& item : ItemsOf(iItem.configuration))
        {
            const std::optional<ConditionText> parts = PartsOf(item.Text("condition"));
            number += parts && parts->path == "value" && parts->value == iChoice ? 1 : 0;
        }
        return number;
    }

    /// A choice is misspelt where the default and a condition agree on another name, of which it is a slip.
    bool TakeMisspeltChoice(const SourceItem& iItem, const MeantLists& iLists)
    {
        const std::vector<std::string> choices = SplitTexts(iLists.choices);
        const std::string chosen(iItem.Text("default"));
        const std::string written = IsOutside(iItem, choices) ? OnlySlip(chosen, choices) : std::string();
        const std::size_t asking = written.empty() ? 0 : ConditionsOn(iItem, chosen);
        if (asking == 0 || ConditionsOn(iItem, written) != 0 || !iLists.findings.empty())
            return false;
        std::string meant;
        for (const std::string& choice : choices)
            meant += (&choice == &choices.front() ? "" : ", ") + (choice == written ? chosen : choice);
        Finding finding = FindingAt(iItem, "choices", FindingKind::DefaultNotInChoices, Severity::Error,
                                    "the default and " + Counted(asking, "condition") + " say " + Quoted(chosen) +
                                        ", and the choice is " + Quoted(written));
        finding.suggestion = meant;
        m_run.Add(std::move(finding));
        m_run.meant.SetText(iItem, "choices", std::move(meant));
        return true;
    }

    void CheckDefault(const SourceItem& iItem, const std::vector<std::string>& iChoices)
    {
        const std::string_view chosen = iItem.Text("default");
        if (IsOutside(iItem, iChoices))
            m_run.Add(FindingAt(iItem, "default", FindingKind::DefaultNotInChoices, Severity::Error,
                                "the default " + Quoted(chosen) + " is none of the choices"),
                      chosen, iChoices);
    }

    CheckRun& m_run;
};
} // namespace

void CheckLists(CheckRun& ioRun)
{
    ListCheck check(ioRun);
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        for (const SourceItem& item : ItemsOf(configuration))
            check.Check(item);
}
} // namespace Tool
