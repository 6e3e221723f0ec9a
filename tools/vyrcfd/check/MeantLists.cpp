#include "MeantLists.h"

#include <algorithm>
#include <sstream>

#include "KnownTypes.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// The words between blanks, but for signs that stand alone between them.
std::vector<std::string> WordsOf(const std::string& iEntry)
{
    std::istringstream text(iEntry);
    std::vector<std::string> words;
    for (std::string word; text >> word;)
        if (word != "/" && word != "|" && word != "-")
            words.push_back(word);
    return words;
}

/// The text with commas in place of a sign. In place of blanks, only of those inside an entry, and of semicolons too.
std::string WithCommas(const std::string& iText, char iSign)
{
    std::string text = iText;
    std::replace(text.begin(), text.end(), iSign == ' ' ? ';' : iSign, ',');
    if (iSign != ' ')
        return text;
    std::string parted;
    bool isFirst = true;
    for (const std::string& entry : WrittenEntries(text))
    {
        std::string before = isFirst ? "" : ", ";
        isFirst = false;
        const std::vector<std::string> words = WordsOf(entry);
        // An entry without words stays, since that it is empty is to be told.
        if (words.empty())
            parted += before;
        for (const std::string& word : words)
        {
            parted += before + word;
            before = ", ";
        }
    }
    return parted;
}

/// A sign that seems to part entries: between texts where no comma does, or in front of a blank as a comma would be.
/// A bar may as well stand around a name.
char SeparatorIn(const std::string& iText)
{
    const bool hasComma = iText.find(',') != std::string::npos;
    if (iText.find(hasComma ? "; " : ";") != std::string::npos)
        return ';';
    const std::vector<std::string> entries = WrittenEntries(WithCommas(iText, '|'));
    return !hasComma && entries.size() > 1 && !Holds(entries, "") ? '|' : ',';
}

/// The lists of an item, in a certain reading.
struct Reading
{
    std::string choices;
    std::string startups;
};

class ListsReader
{
public:
    explicit ListsReader(const SourceItem& iItem)
        : m_item(iItem), m_written{std::string(iItem.Text("choices")), std::string(iItem.Text("Startups"))},
          m_hasStartups(iItem.value.Has("Startups")), m_default(iItem.Text("default"))
    {
    }

    MeantLists Read()
    {
        MeantLists lists;
        lists.hasStartups = m_hasStartups;
        Reading reading = Parted(lists.findings);
        if (m_hasStartups && AreSwapped(SplitTexts(reading.choices), SplitTexts(reading.startups), m_default))
        {
            std::swap(reading.choices, reading.startups);
            std::swap(lists.choicesKey, lists.startupsKey);
            lists.findings.push_back(
                FindingAt(m_item, "choices", FindingKind::SwappedLists, Severity::Error, SwappedText));
        }
        lists.choices = std::move(reading.choices);
        lists.startups = std::move(reading.startups);
        return lists;
    }

private:
    /// Whether the engine refuses the lists, or the default that stands beside them is none of them.
    bool Fails(const Reading& iReading) const
    {
        const std::vector<std::string> choices = SplitTexts(iReading.choices);
        const std::vector<std::string> startups = SplitTexts(iReading.startups);
        return (m_hasStartups && startups.size() != choices.size()) ||
               (!m_default.empty() && !Holds(choices, m_default) && !Holds(startups, m_default));
    }

    /// With commas where other signs were meant to part entries.
    Reading Parted(std::vector<Finding>& oFindings) const
    {
        const bool fails = Fails(m_written);
        if (fails)
            for (const char sign : {';', '|', ' '})
            {
                const Reading parted{WithCommas(m_written.choices, sign), WithCommas(m_written.startups, sign)};
                for (const Reading& reading :
                     {Reading{parted.choices, m_written.startups}, Reading{m_written.choices, parted.startups}, parted})
                    if (!Fails(reading))
                        return Told(reading, sign, fails, oFindings);
            }
        const char inChoices = SeparatorIn(m_written.choices);
        const char inStartups = SeparatorIn(m_written.startups);
        if (inChoices != ',' || inStartups != ',')
            return Told({WithCommas(m_written.choices, inChoices), WithCommas(m_written.startups, inStartups)},
                        inChoices != ',' ? inChoices : inStartups, fails, oFindings);
        return m_written;
    }

    Reading Told(const Reading& iReading, char iSign, bool iFails, std::vector<Finding>& oFindings) const;

    const SourceItem& m_item;
    Reading m_written;
    bool m_hasStartups;
    std::string_view m_default;
};

Finding WrongSeparator(const SourceItem& iItem, const char* iKey, const std::string& iWritten,
                       const std::string& iMeant, char iSign, Severity iSeverity)
{
    const std::vector<std::string> written = WrittenEntries(iWritten);
    const auto entry = std::find_if(written.begin(), written.end(),
                                    [&](const std::string& iEntry) { return iEntry.find(iSign) != std::string::npos; });
    const std::string sign = iSign == ' ' ? "a blank" : Quoted(std::string(1, iSign));
    Finding finding = FindingAt(iItem, iKey, FindingKind::WrongSeparator, iSeverity,
                                "a comma parts the entries of a list, and " + sign + " does not: " +
                                    Quoted(entry != written.end() ? *entry : iWritten) + " is one entry");
    finding.suggestion = iMeant;
    return finding;
}

Reading ListsReader::Told(const Reading& iReading, char iSign, bool iFails, std::vector<Finding>& oFindings) const
{
    const bool isInChoices = iReading.choices != m_written.choices;
    Finding finding = isInChoices ? WrongSeparator(m_item, "choices", m_written.choices, iReading.choices, iSign,
                                                   iFails ? Severity::Error : Severity::Warning)
                                  : WrongSeparator(m_item, "Startups", m_written.startups, iReading.startups, iSign,
                                                   iFails ? Severity::Error : Severity::Warning);
    if (isInChoices && iReading.startups != m_written.startups)
        finding.message += "; nor in \"Startups\"";
    oFindings.push_back(std::move(finding));
    return iReading;
}
} // namespace

const char SwappedText[] = "\"choices\" and \"Startups\" seem to be swapped: the first are what to choose from, the "
                           "second the types of the data objects";

bool AreSwapped(const std::vector<std::string>& iChoices, const std::vector<std::string>& iStartups,
                std::string_view iDefault)
{
    const auto isEmpty = [](const std::string& iOne) { return iOne.empty(); };
    const bool isDefaultChoice = !iDefault.empty() && Holds(iChoices, iDefault);
    if (isDefaultChoice || std::any_of(iStartups.begin(), iStartups.end(), IsKnownType))
        return false;
    if (!iDefault.empty() && Holds(iStartups, iDefault))
        return true;
    const bool areTypes = std::all_of(iChoices.begin(), iChoices.end(),
                                      [&](const std::string& iOne) { return iOne.empty() || IsKnownType(iOne); });
    return areTypes && !std::all_of(iChoices.begin(), iChoices.end(), isEmpty) &&
           !std::all_of(iStartups.begin(), iStartups.end(), isEmpty);
}

MeantLists MeantListsOf(const SourceItem& iItem)
{
    return ListsReader(iItem).Read();
}

MeantEntries MeantEntriesOf(const SourceItem& iItem)
{
    MeantEntries entries{std::string(iItem.Text("value"))};
    const char sign = SeparatorIn(entries.text);
    if (sign == ',')
        return entries;
    std::string meant = WithCommas(entries.text, sign);
    entries.findings.push_back(WrongSeparator(iItem, "value", entries.text, meant, sign, Severity::Warning));
    entries.text = std::move(meant);
    return entries;
}

bool Holds(const std::vector<std::string>& iEntries, std::string_view iEntry)
{
    return std::find(iEntries.begin(), iEntries.end(), iEntry) != iEntries.end();
}

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
} // namespace Tool
