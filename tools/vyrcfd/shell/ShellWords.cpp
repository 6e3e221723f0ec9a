#include "ShellWords.h"

#include "Failure.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr std::string_view Blanks = " \t\r\n\v\f";

bool IsBlank(char iCharacter)
{
    return Blanks.find(iCharacter) != std::string_view::npos;
}

/// Takes one line apart.
class Splitter
{
public:
    explicit Splitter(std::string_view iLine) : m_line(iLine) {}

    std::vector<std::string> Words();
    /// Whether the last word ended inside quotation marks.
    bool IsOpen() const { return m_isOpen; }

private:
    std::string Word();
    void Quoted(std::string& oWord);

    std::string_view m_line;
    std::size_t m_at = 0;
    bool m_isOpen = false;
};

std::vector<std::string> Splitter::Words()
{
    std::vector<std::string> words;
    while (true)
    {
        while (m_at < m_line.size() && IsBlank(m_line[m_at]))
            ++m_at;
        if (m_at == m_line.size() || m_line[m_at] == '#')
            return words;
        words.push_back(Word());
    }
}

std::string Splitter::Word()
{
    std::string word;
    while (m_at < m_line.size() && !IsBlank(m_line[m_at]))
    {
        const char character = m_line[m_at++];
        if (character == '"')
            Quoted(word);
        else
            word += character;
    }
    return word;
}

void Splitter::Quoted(std::string& oWord)
{
    while (m_at < m_line.size())
    {
        char character = m_line[m_at++];
        if (character == '"')
            return;
        const bool isEscape =
            character == '\\' && m_at < m_line.size() && (m_line[m_at] == '"' || m_line[m_at] == '\\');
        if (isEscape)
            character = m_line[m_at++];
        oWord += character;
    }
    m_isOpen = true;
}
} // namespace

std::vector<std::string> SplitWords(std::string_view iLine)
{
    if (!IsUtf8(iLine))
        throw Failure("the line is no UTF-8");
    Splitter splitter(iLine);
    std::vector<std::string> words = splitter.Words();
    if (splitter.IsOpen())
        throw Failure("a quotation mark is missing at the end");
    return words;
}

std::vector<std::string> WordsBefore(std::string_view iLine, std::size_t iWordStart)
{
    // The quotation mark with which the word begins is not part of what stands before it.
    const bool isQuoted = iWordStart > 0 && iWordStart <= iLine.size() && iLine[iWordStart - 1] == '"';
    return Splitter(iLine.substr(0, isQuoted ? iWordStart - 1 : iWordStart)).Words();
}

std::string AsWord(const std::string& iText)
{
    const bool isPlain = !iText.empty() && iText.find_first_of(" \t\r\n\v\f\"#") == std::string::npos;
    if (isPlain)
        return iText;
    std::string word = "\"";
    for (const char character : iText)
    {
        if (character == '"' || character == '\\')
            word += '\\';
        word += character;
    }
    return word + '"';
}

std::string JoinWords(const std::vector<std::string>& iWords)
{
    std::string line;
    for (const std::string& word : iWords)
        line += (line.empty() ? "" : " ") + AsWord(word);
    return line;
}
} // namespace Tool
