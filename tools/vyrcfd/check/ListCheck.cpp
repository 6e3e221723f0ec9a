#include <algorithm>
#include <set>

#include "CheckRun.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// The text between commas as a reader takes it: blanks at its ends do not count.
std::vector<std::string> WrittenEntries(std::string_view iText)
{
    std::vector<std::string> entries;
    for (std::size_t at = 0; at <= iText.size();)
    {
        const std::size_t end = std::min(iText.find(',', at), iText.size());
        std::string_view entry = iText.substr(at, end - at);
        entry.remove_prefix(std::min(entry.find_first_not_of(' '), entry.size()));
        entry = entry.substr(0, entry.find_last_not_of(' ') + 1);
        entries.emplace_back(entry);
        at = end + 1;
    }
    return entries;
}

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

class ListCheck
{
public:
    explicit ListCheck(CheckRun& ioRun) : m_run(ioRun) {}

    void Check(const SourceItem& iItem)
    {
        if (iItem.role == ItemRole::Values)
            CheckEntries(iItem, "value", "an entry of the list is empty");
        if (iItem.role != ItemRole::Choice || !IsText(iItem, "choices"))
            return;
        CheckEntries(iItem, "choices", "an entry of \"choices\" is empty, and is a choice without a name");
        const std::vector<std::string> choices = SplitTexts(iItem.Text("choices"));
        CheckDoubled(iItem, choices);
        CheckStartups(iItem, choices.size());
        CheckDefault(iItem, choices);
    }

private:
    static bool IsText(const SourceItem& iItem, const char* iKey)
    {
        const SourceMember* member = iItem.value.Find(iKey);
        return member != nullptr && member->value->Is(SourceValue::Kind::Text);
    }

    void CheckBlanks(const SourceItem& iItem, const char* iKey)
    {
        std::string blanks = BlanksOf(iItem.Text(iKey));
        if (!blanks.empty())
            m_run.Add(FindingAt(iItem, iKey, FindingKind::BlankInList, Severity::Warning, std::move(blanks)));
    }

    void CheckEntries(const SourceItem& iItem, const char* iKey, const char* iEmpty)
    {
        const std::vector<std::string> entries = SplitTexts(iItem.Text(iKey));
        if (std::find(entries.begin(), entries.end(), "") != entries.end())
            m_run.Add(FindingAt(iItem, iKey, FindingKind::BlankInList, Severity::Warning, iEmpty));
        CheckBlanks(iItem, iKey);
    }

    void CheckDoubled(const SourceItem& iItem, const std::vector<std::string>& iChoices)
    {
        std::set<std::string> seen;
        for (const std::string& choice : iChoices)
            if (!seen.insert(choice).second)
            {
                m_run.Add(FindingAt(iItem, "choices", FindingKind::DoesNothing, Severity::Error,
                                    "the choice " + Quoted(choice) + " stands twice, and can be selected only once"));
                return;
            }
    }

    void CheckStartups(const SourceItem& iItem, std::size_t iChoices)
    {
        if (!IsText(iItem, "Startups"))
            return;
        CheckBlanks(iItem, "Startups");
        const std::size_t startups = SplitTexts(iItem.Text("Startups")).size();
        if (startups != iChoices)
            m_run.Add(FindingAt(iItem, "Startups", FindingKind::UnequalLists, Severity::Error,
                                "there is one startup for each choice, an empty one for a choice without data: " +
                                    Counted(iChoices, "choice") + " and " + Counted(startups, "startup") +
                                    " make the item fail"));
    }

    void CheckDefault(const SourceItem& iItem, const std::vector<std::string>& iChoices)
    {
        const std::string_view chosen = iItem.Text("default");
        if (!chosen.empty() && std::find(iChoices.begin(), iChoices.end(), chosen) == iChoices.end())
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
