#include "MeantLists.h"

#include <algorithm>
#include <sstream>

#include "ConditionText.h"
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
    // In an address these are signs like any other.
    if (iText.find("://") != std::string::npos)
        return ',';
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

/// What is taken for a comma in each of them; a comma itself for nothing else.
struct Signs
{
    char choices;
    char startups;
};

/// The less a pair differs from what is right, the earlier it comes; a blank parts more than it was meant to.
const std::vector<Signs>& AllSigns()
{
    static const std::vector<Signs> all = [] {
        std::vector<Signs> signs;
        for (const char sign : {';', '|', '.'})
            signs.insert(signs.end(), {{sign, ','}, {',', sign}, {sign, sign}});
        signs.insert(signs.end(), {{';', '|'}, {'|', ';'}, {';', '.'}, {'.', ';'}, {'|', '.'}, {'.', '|'}});
        signs.insert(signs.end(), {{' ', ','}, {',', ' '}, {' ', ' '}, {' ', '|'}, {'|', ' '}});
        return signs;
    }();
    return all;
}

/// A list with signs around entries, or around the whole, that are no part of a name: what they are, and the list
/// without them. No signs where there are none.
struct Undressed
{
    std::string signs{};
    std::string text{};
};

constexpr std::string_view NoBreakSpace = "\xC2\xA0";

bool IsInQuotes(std::string_view iText)
{
    return iText.size() >= 2 && iText.front() == iText.back() && (iText.front() == '\'' || iText.front() == '"') &&
           iText.find(iText.front(), 1) == iText.size() - 1;
}

bool IsInBrackets(std::string_view iText)
{
    constexpr std::string_view opening = "[{(";
    constexpr std::string_view closing = "]})";
    const std::size_t kind = iText.size() < 2 ? std::string_view::npos : opening.find(iText.front());
    return kind != std::string_view::npos && iText.back() == closing[kind] &&
           iText.find_first_of("[]{}()", 1) == iText.size() - 1;
}

/// Without no-break spaces and blanks at its ends.
std::string WithoutNoBreakSpaces(std::string iEntry)
{
    for (std::string before; before != iEntry;)
    {
        before = iEntry;
        iEntry = Trimmed(iEntry);
        if (iEntry.starts_with(NoBreakSpace))
            iEntry.erase(0, NoBreakSpace.size());
        if (iEntry.ends_with(NoBreakSpace))
            iEntry.resize(iEntry.size() - NoBreakSpace.size());
    }
    return iEntry;
}

std::string Inside(const std::string& iText)
{
    return iText.substr(1, iText.size() - 2);
}

Undressed WithoutSigns(const std::string& iText)
{
    std::string whole = WithoutNoBreakSpaces(iText);
    std::string signs = whole != Trimmed(iText) ? "the no-break spaces (U+00A0)" : "";
    const auto tell = [&](const char* iSigns) {
        if (signs.find(iSigns) == std::string::npos)
            signs += (signs.empty() ? "" : " and ") + std::string(iSigns);
    };
    if (IsInBrackets(whole))
    {
        tell("the brackets");
        whole = Inside(whole);
    }
    if (IsInQuotes(whole))
    {
        tell("the quotation marks");
        whole = Inside(whole);
    }
    std::string text;
    bool isFirst = true;
    for (const std::string& written : WrittenEntries(whole))
    {
        std::string entry = WithoutNoBreakSpaces(written);
        if (entry != Trimmed(written))
            tell("the no-break spaces (U+00A0)");
        if (IsInQuotes(entry))
        {
            tell("the quotation marks");
            entry = Inside(entry);
        }
        text += (isFirst ? "" : ", ") + entry;
        isFirst = false;
    }
    return {signs, text};
}

/// The first entry that is not as it was meant.
std::string FirstOther(const std::string& iWritten, const std::string& iMeant)
{
    const std::vector<std::string> meant = SplitTexts(iMeant);
    for (const std::string& entry : SplitTexts(iWritten))
        if (!Holds(meant, entry))
            return entry;
    return iWritten;
}

/// That signs around entries belong to them.
Finding SignsInEntries(const SourceItem& iItem, const char* iKey, const std::string& iWritten, const Undressed& iMeant,
                       Severity iSeverity)
{
    std::string entry = FirstOther(iWritten, iMeant.text);
    std::string shown = Quoted(entry);
    // It looks like any other blank.
    for (std::size_t at = 0; (at = shown.find(NoBreakSpace, at)) != std::string::npos;)
        shown.replace(at, NoBreakSpace.size(), "<U+00A0>");
    Finding finding = FindingAt(iItem, iKey, FindingKind::WrongSeparator, iSeverity,
                                "a comma alone parts the entries of a list: " + iMeant.signs +
                                    " belong to the entries, such as " + shown);
    finding.suggestion = iMeant.text;
    return finding;
}

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
        TakeSignsOut("choices", m_written.choices, lists.findings);
        TakeSignsOut("Startups", m_written.startups, lists.findings);
        TakeWhiteOut("choices", m_written.choices, lists.findings);
        TakeWhiteOut("Startups", m_written.startups, lists.findings);
        Reading reading = Parted(lists.findings);
        if (m_hasStartups && AreSwapped(SplitTexts(reading.choices), SplitTexts(reading.startups), m_default))
        {
            std::swap(reading.choices, reading.startups);
            std::swap(lists.choicesKey, lists.startupsKey);
            lists.findings.push_back(
                FindingAt(m_item, "choices", FindingKind::SwappedLists, Severity::Error, SwappedText));
        }
        TakeEmptyOut(lists.choicesKey, reading, lists.findings);
        lists.choices = std::move(reading.choices);
        lists.startups = std::move(reading.startups);
        return lists;
    }

private:
    /// Where the default is such an entry, the signs are part of it.
    void TakeSignsOut(const char* iKey, std::string& ioText, std::vector<Finding>& oFindings) const
    {
        const Undressed meant = WithoutSigns(ioText);
        if (meant.signs.empty() || Holds(SplitTexts(ioText), m_default))
            return;
        const Severity severity = m_default.empty() ? Severity::Warning : Severity::Error;
        oFindings.push_back(SignsInEntries(m_item, iKey, ioText, meant, severity));
        ioText = meant.text;
    }

    /// The engine takes blanks out of entries, but no other white space.
    void TakeWhiteOut(const char* iKey, std::string& ioText, std::vector<Finding>& oFindings) const
    {
        const auto isWhite = [](char iOne) { return iOne == '\t' || iOne == '\r' || iOne == '\n'; };
        for (const std::string& entry : SplitTexts(ioText))
            if (std::any_of(entry.begin(), entry.end(), isWhite))
            {
                oFindings.push_back(FindingAt(m_item, iKey, FindingKind::BlankInList, Severity::Warning,
                                              "white space other than blanks stays in the entry " + Quoted(entry)));
                std::replace_if(ioText.begin(), ioText.end(), isWhite, ' ');
                return;
            }
    }

    /// An empty choice beside which a startup is missing is one comma too much.
    void TakeEmptyOut(const char* iKey, Reading& ioReading, std::vector<Finding>& oFindings) const
    {
        std::vector<std::string> choices = SplitTexts(ioReading.choices);
        const std::size_t startups = SplitTexts(ioReading.startups).size();
        const std::size_t all = choices.size();
        if (!m_hasStartups || all == startups)
            return;
        choices.erase(std::remove(choices.begin(), choices.end(), ""), choices.end());
        if (choices.size() != startups || all == startups)
            return;
        std::string text;
        for (const std::string& choice : choices)
            text += (text.empty() ? "" : ", ") + choice;
        Finding finding =
            FindingAt(m_item, iKey, FindingKind::BlankInList, Severity::Error,
                      "an entry of \"choices\" is empty, and is a choice without a name: " + Counted(all, "choice") +
                          " and " + Counted(startups, "startup") + " make the item fail");
        finding.suggestion = text;
        oFindings.push_back(std::move(finding));
        ioReading.choices = std::move(text);
    }

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
            for (const Signs& signs : AllSigns())
            {
                const Reading reading{
                    signs.choices == ',' ? m_written.choices : WithCommas(m_written.choices, signs.choices),
                    signs.startups == ',' ? m_written.startups : WithCommas(m_written.startups, signs.startups)};
                if (!Fails(reading))
                    return Told(reading, signs, fails, oFindings);
            }
        const char inChoices = SeparatorIn(m_written.choices);
        const char inStartups = SeparatorIn(m_written.startups);
        if (inChoices != ',' || inStartups != ',')
            return Told({WithCommas(m_written.choices, inChoices), WithCommas(m_written.startups, inStartups)},
                        {inChoices, inStartups}, fails, oFindings);
        return m_written;
    }

    Reading Told(const Reading& iReading, const Signs& iSigns, bool iFails, std::vector<Finding>& oFindings) const;

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

Reading ListsReader::Told(const Reading& iReading, const Signs& iSigns, bool iFails,
                          std::vector<Finding>& oFindings) const
{
    const Severity severity = iFails ? Severity::Error : Severity::Warning;
    const bool isInChoices = iReading.choices != m_written.choices;
    const bool isInStartups = iReading.startups != m_written.startups;
    const bool isSame = isInChoices && iSigns.choices == iSigns.startups;
    if (isInChoices)
        oFindings.push_back(
            WrongSeparator(m_item, "choices", m_written.choices, iReading.choices, iSigns.choices, severity));
    if (isInStartups && isSame)
        oFindings.back().message += "; nor in \"Startups\"";
    else if (isInStartups)
        oFindings.push_back(
            WrongSeparator(m_item, "Startups", m_written.startups, iReading.startups, iSigns.startups, severity));
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
    if (Undressed undressed = WithoutSigns(entries.text); !undressed.signs.empty())
    {
        entries.findings.push_back(SignsInEntries(iItem, "value", entries.text, undressed, Severity::Warning));
        entries.text = std::move(undressed.text);
    }
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
