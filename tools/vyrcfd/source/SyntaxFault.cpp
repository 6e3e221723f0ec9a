#include "SyntaxFault.h"

#include <algorithm>
#include <vector>

#include "Flaw.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr std::string_view JsonBlanks = " \t\r\n";
/// That documents may have.
constexpr std::size_t DeepestNesting = 1000;

bool IsIn(char iByte, std::string_view iSet)
{
    return iSet.find(iByte) != std::string_view::npos;
}

char CloserOf(char iOpener)
{
    return iOpener == '{' ? '}' : ']';
}

/// Goes through a text token by token up to the first that is wrong.
class SyntaxWalk
{
public:
    explicit SyntaxWalk(std::string_view iText) : m_text(iText) {}

    std::optional<Flaw> FirstFlaw()
    {
        for (;;)
        {
            SkipBlanks();
            if (m_at == m_text.size())
                return AtEnd();
            if (std::optional<Flaw> flaw = IsComment(m_text, m_at) ? Comment() : Step())
                return flaw;
            // The reader refuses it here, and says so; how it goes on is not looked at.
            if (m_open.size() > DeepestNesting)
                return std::nullopt;
        }
    }

private:
    /// What comes next.
    enum class Wanted
    {
        Value,
        ValueOrEnd,
        Key,
        KeyOrEnd,
        Colon,
        CommaOrEnd,
        Nothing
    };

    struct Opened
    {
        char bracket;
        std::size_t at;
        /// Of its line.
        std::size_t indent;
    };

    using Found = std::optional<Flaw>;

    void SkipBlanks()
    {
        const std::size_t begin = m_at;
        m_at = std::min(m_text.find_first_not_of(JsonBlanks, m_at), m_text.size());
        const std::size_t lineEnd = m_text.substr(begin, m_at - begin).rfind('\n');
        m_isFirstOfLine = lineEnd != std::string_view::npos;
        if (m_isFirstOfLine)
            m_indent = m_at - (begin + lineEnd + 1);
    }

    Found Step()
    {
        if (std::optional<Flaw> foreign = SignOfAnotherLanguage())
            return foreign;
        switch (m_wanted)
        {
        case Wanted::Value:
        case Wanted::ValueOrEnd:
            return Value();
        case Wanted::Key:
        case Wanted::KeyOrEnd:
            return Key();
        case Wanted::Colon:
            return Colon();
        case Wanted::CommaOrEnd:
            return CommaOrEnd();
        case Wanted::Nothing:
            break;
        }
        return BehindTheEnd();
    }

    Found SignOfAnotherLanguage() const
    {
        const char byte = m_text[m_at];
        if (byte == ')' && !m_open.empty())
            return Flaw{m_at, "the " + Opening(m_open.back()) + " is closed by " +
                                  Shown(CloserOf(m_open.back().bracket)) + ", not by \")\""};
        if (byte == '(' && (m_wanted == Wanted::Value || m_wanted == Wanted::ValueOrEnd))
            return Flaw{m_at, "an array stands between [ and ], not between ( and )"};
        const std::size_t next = m_text.find_first_not_of(JsonBlanks, m_at + 1);
        const bool isBehindText = m_end > 0 && m_text[m_end - 1] == '"';
        if (byte == '+' && isBehindText && next != std::string_view::npos && m_text[next] == '"')
            return Flaw{m_at, "texts cannot be joined by \"+\"; write them as one text"};
        return std::nullopt;
    }

    Found Value()
    {
        const char byte = m_text[m_at];
        if (byte == ']' && m_wanted == Wanted::ValueOrEnd)
            return Close();
        if (byte == '{' || byte == '[')
            return Open(byte);
        if (byte == '"')
            return Take(ScanText(m_text, m_at));
        if (byte == '-' || (byte >= '0' && byte <= '9'))
            return Take(ScanNumber(m_text, m_at));
        if (IsIn(byte, ",]}"))
            return NothingBetween();
        return Take(ScanWord(m_text, m_at));
    }

    Found Key()
    {
        const char byte = m_text[m_at];
        if (byte == '}' && m_wanted == Wanted::KeyOrEnd)
            return Close();
        if (byte == '"')
            return Take(ScanText(m_text, m_at), Wanted::Colon);
        if (IsIn(byte, ",]}"))
            return NothingBetween();
        if (byte == '{' || byte == '[')
            return Flaw{m_at, "a key in quotation marks is wanted in front of this " + Shown(byte) + ", or the " +
                                  Opening(Unclosed()) + " is to be closed before"};
        if (IsDecimalComma())
            return Flaw{m_tokenBegin, "a decimal comma is written as a point: " +
                                          std::string(m_text.substr(m_valueBegin, m_tokenBegin - m_valueBegin)) + "." +
                                          std::string(DigitsAt(m_at))};
        return StrangeBeginning(m_text, m_at, "key");
    }

    Found Colon()
    {
        const char byte = m_text[m_at];
        if (byte == ':')
            return Take({m_at + 1, {}}, Wanted::Value);
        const std::string key = "the key " + Token();
        if (IsIn(byte, ",]}"))
            return Flaw{m_end, "behind " + key + " a colon and a value are missing"};
        if (byte == '=')
            return Flaw{m_at, "between a key and its value stands a colon, not \"=\""};
        if (m_at == m_end && !IsIn(byte, "{[\""))
            return WordBehindText();
        return Flaw{m_end, "behind " + key + " a colon is missing"};
    }

    Found CommaOrEnd()
    {
        const char byte = m_text[m_at];
        const Opened& open = m_open.back();
        if (byte == ',')
            return Take({m_at + 1, {}}, open.bracket == '{' ? Wanted::Key : Wanted::Value);
        if (byte == '}' || byte == ']')
            return Close();
        if (byte == ':')
            return open.bracket == '['
                       ? Flaw{m_at, "a key with a value stands between { and }, and the array at " + Place(open.at) +
                                        " holds values alone"}
                       : Flaw{m_at, "behind a value stands no colon: a comma or a quotation mark is missing before"};
        if (byte == ';')
            return Flaw{m_at, "entries are parted by a comma, not by \";\""};
        if (byte == '{' && open.bracket == '{')
            return Flaw{m_end, "the " + Opening(Unclosed()) +
                                   " is to be closed by \"}\", and a comma is to follow, in front "
                                   "of the \"{\" at " +
                                   Place(m_at)};
        if (m_at == m_end && m_text[m_end - 1] == '"' && !IsIn(byte, "\"[{"))
            return WordBehindText();
        return Flaw{m_end, "a comma is missing behind " + (IsBracketBefore() ? Shown(m_text[m_end - 1]) : Token())};
    }

    Found BehindTheEnd() const
    {
        const std::string end = "the document ends at " + Place(m_end - 1) + ", where its value does";
        if (IsIn(m_text[m_at], "}]"))
            return Flaw{m_at, "this " + Shown(m_text[m_at]) + " closes nothing: " + end};
        if (m_text[m_at] == ':' && m_text[m_end - 1] == '"')
            return Flaw{m_tokenBegin,
                        "a key with a value stands between { and }: a \"{\" is missing in front of " + Token()};
        return Flaw{m_at, end + ", and nothing may follow"};
    }

    Found Comment() const { return Flaw{m_at, "JSON has no comments; take it out"}; }

    /// A comma, a colon or a bracket, and in front of it a comma, a colon or a bracket as well.
    Found NothingBetween() const
    {
        const char byte = m_text[m_at];
        const char before = m_end == 0 ? '\0' : m_text[m_end - 1];
        if (before == ',' && byte == ',')
            return Flaw{m_at, "nothing stands between two commas; take one out"};
        if (before == ',')
            return Flaw{m_tokenBegin, "nothing follows this comma but " + Shown(byte) + "; take the comma out"};
        if (before == ':')
            return Flaw{m_end, "behind the colon a value is missing"};
        if (byte == ',')
            return Flaw{m_at, "nothing stands in front of this comma; take it out"};
        return m_open.empty() ? Flaw{m_at, "this " + Shown(byte) + " closes nothing"} : WrongCloser();
    }

    Found Open(char iBracket)
    {
        m_open.push_back({iBracket, m_at, m_indent});
        Take({m_at + 1, {}}, iBracket == '{' ? Wanted::KeyOrEnd : Wanted::ValueOrEnd);
        return std::nullopt;
    }

    Found Close()
    {
        const Opened open = m_open.back();
        if (m_text[m_at] != CloserOf(open.bracket))
            return WrongCloser();
        // At the beginning of a line that stands further left than the one which opens it.
        if (m_oddlyIndented.bracket == '\0' && m_isFirstOfLine && m_indent < open.indent)
            m_oddlyIndented = open;
        m_open.pop_back();
        return Take({m_at + 1, {}});
    }

    Flaw WrongCloser() const
    {
        const Opened& open = Unclosed();
        const std::string closer = Shown(m_text[m_at]);
        return {m_at, "the " + Opening(open) + " is not closed: " + Shown(CloserOf(open.bracket)) +
                          " is missing in front of this " + closer + ", or this " + closer + " is one too many"};
    }

    /// The bracket whose end is missing: the innermost open one, unless inside of it one was closed that stands further
    /// right than what has closed it, which was meant for another.
    const Opened& Unclosed() const
    {
        return m_oddlyIndented.bracket != '\0' && m_oddlyIndented.at > m_open.back().at ? m_oddlyIndented
                                                                                        : m_open.back();
    }

    /// What remains open, from inside.
    Found AtEnd() const
    {
        if (m_open.empty() && m_wanted == Wanted::Nothing)
            return std::nullopt;
        if (m_open.empty())
            return Flaw{0, m_text.empty()
                               ? "the file is empty; a document between { and } is wanted"
                               : "nothing stands in the file but blanks; a document between { and } is wanted"};
        const bool isOdd = m_oddlyIndented.bracket != '\0';
        const Opened& first = isOdd ? m_oddlyIndented : m_open.back();
        std::string message =
            "the document ends, and the " + Opening(first) + " is not closed by " + Shown(CloserOf(first.bracket));
        const std::size_t others = isOdd ? 0 : m_open.size() - 1;
        if (others > 0)
            message += ", nor the " + Opening(m_open[others - 1]);
        if (others > 1)
            message += ", nor " + Counted(others - 1, "other") + " further out";
        return Flaw{m_text.size(), message};
    }

    /// As when a text was meant to go on, or to end.
    Flaw WordBehindText() const
    {
        return {m_at, "behind the text " + Token() +
                          " something follows without a comma: a quotation mark is missing or too many, or one inside "
                          "a text is to be written \\\""};
    }

    Found Take(const ScannedPart& iPart) { return Take(iPart, m_open.empty() ? Wanted::Nothing : Wanted::CommaOrEnd); }

    Found Take(const ScannedPart& iPart, Wanted iNext)
    {
        if (iPart.flaw)
            return iPart.flaw;
        const bool isComma = m_text[m_at] == ',';
        m_valueBegin = isComma ? m_tokenBegin : m_at;
        m_tokenBegin = m_at;
        m_end = m_at = iPart.end;
        m_wanted = iNext;
        return std::nullopt;
    }

    /// Whether the last comma stands between digits, of which the first are a whole number.
    bool IsDecimalComma() const
    {
        constexpr std::string_view digits = "0123456789";
        return m_at == m_end && m_tokenBegin > 0 && m_text[m_tokenBegin] == ',' &&
               IsIn(m_text[m_tokenBegin - 1], digits) && IsIn(m_text[m_at], digits) &&
               m_text.substr(m_valueBegin, m_tokenBegin - m_valueBegin).find_first_not_of("-0123456789") ==
                   std::string_view::npos;
    }

    std::string_view DigitsAt(std::size_t iAt) const
    {
        return m_text.substr(iAt, m_text.find_first_not_of("0123456789eE", iAt) - iAt);
    }

    bool IsBracketBefore() const { return m_end > 0 && IsIn(m_text[m_end - 1], "]}"); }

    /// The last token as it is written, if it is short.
    std::string Token() const
    {
        constexpr std::size_t LongestShown = 60;
        const std::size_t length = m_end - m_tokenBegin;
        return length <= LongestShown ? OneLine(m_text.substr(m_tokenBegin, length)) : "at " + Place(m_tokenBegin);
    }

    static std::string Shown(char iSign) { return std::string{'"', iSign, '"'}; }
    std::string Place(std::size_t iOffset) const { return ShownPlace(m_text, iOffset); }
    std::string Opening(const Opened& iOpened) const { return Shown(iOpened.bracket) + " at " + Place(iOpened.at); }

    std::string_view m_text;
    std::size_t m_at = 0;
    Wanted m_wanted = Wanted::Value;
    /// Of the last token.
    std::size_t m_tokenBegin = 0;
    std::size_t m_end = 0;
    /// Of the token in front of a comma that is the last one.
    std::size_t m_valueBegin = 0;
    /// Each inside the one before.
    std::vector<Opened> m_open;
    /// The first bracket that the one of another seems to close.
    Opened m_oddlyIndented{'\0', 0, 0};
    /// Of the line of the token that is looked at.
    std::size_t m_indent = 0;
    bool m_isFirstOfLine = true;
};

/// What an editor has written in front of the first character, or in another encoding throughout.
std::optional<Flaw> EncodingFault(std::string_view iText)
{
    using namespace std::string_view_literals;
    const std::string_view four = iText.substr(0, 4);
    const bool isWide = four.size() == 4 && std::count(four.begin(), four.end(), '\0') == 3;
    if (four == "\xFF\xFE\0\0"sv || four == "\0\0\xFE\xFF"sv || (isWide && (four[0] != '\0' || four[3] != '\0')))
        return Flaw{0, "the file is in UTF-32; save it as UTF-8"};
    const std::string_view begin = iText.substr(0, 2);
    const bool isMarked = begin == "\xFF\xFE" || begin == "\xFE\xFF";
    if (isMarked || (begin.size() == 2 && (begin[0] == '\0') != (begin[1] == '\0')))
        return Flaw{0, "the file is in UTF-16; save it as UTF-8"};
    if (iText.substr(0, 3) == "\xEF\xBB\xBF")
        return Flaw{0, "a byte order mark has no place in JSON; save the file as UTF-8 without one"};
    return std::nullopt;
}
} // namespace

std::optional<SyntaxFault> SyntaxFaultOf(std::string_view iText)
{
    std::optional<Flaw> flaw = EncodingFault(iText);
    if (!flaw && iText.find('\0') == std::string_view::npos)
        flaw = SyntaxWalk(iText).FirstFlaw();
    if (!flaw)
        return std::nullopt;
    return SyntaxFault{PositionIn(iText, flaw->offset), std::move(flaw->message)};
}
} // namespace Tool
