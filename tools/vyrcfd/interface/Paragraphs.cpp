#include "Paragraphs.h"

#include <sstream>

#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char Gap[] = "  ";

/// Where the last column of a line begins; some blanks further in than the line where it has but one.
std::size_t LastColumn(const std::string& iLine)
{
    const std::size_t begin = iLine.find_first_not_of(' ');
    const std::size_t gap = iLine.find(Gap, begin);
    return gap == std::string::npos ? begin + 4 : iLine.find_first_not_of(' ', gap);
}

void Append(std::vector<TextBlock>& ioBlocks, const std::string& iLine, bool iIsApart)
{
    const bool isKept = iLine.front() == ' ';
    if (!ioBlocks.empty() && !iIsApart && !isKept && !ioBlocks.back().isKept)
        ioBlocks.back().text += " " + iLine;
    else
        ioBlocks.push_back({iLine, isKept, iIsApart && !ioBlocks.empty()});
}
} // namespace

std::vector<TextBlock> BlocksOf(std::string_view iText)
{
    std::vector<TextBlock> blocks;
    std::istringstream lines{std::string(iText)};
    bool isApart = false;
    for (std::string line; std::getline(lines, line);)
    {
        if (!line.empty())
            Append(blocks, line, isApart);
        isApart = line.empty();
    }
    return blocks;
}

std::string Wrapped(std::string_view iText, std::size_t iWidth, std::size_t iIndent)
{
    const std::string indent(iIndent, ' ');
    std::string text;
    std::size_t length = 0;
    std::istringstream words{std::string(iText)};
    for (std::string word; words >> word;)
    {
        const std::size_t longer = Characters(word);
        const bool fits = length != 0 && length + 1 + longer <= iWidth;
        text += fits ? " " : (text.empty() ? "" : "\n") + indent;
        length = fits ? length + 1 + longer : iIndent + longer;
        text += word;
    }
    return text + "\n";
}

std::string WrappedLine(const std::string& iLine, std::size_t iWidth)
{
    if (Characters(iLine) <= iWidth)
        return iLine + "\n";
    const std::size_t column = LastColumn(iLine);
    const std::string rest = Wrapped(std::string_view(iLine).substr(column), iWidth, column);
    return iLine.substr(0, column) + rest.substr(column);
}

std::string Definition(const std::string& iTerm, std::string_view iText, std::size_t iColumn, std::size_t iWidth)
{
    const std::string head = Gap + iTerm;
    const std::string text = Wrapped(iText, iWidth, iColumn);
    if (Characters(head) + 2 > iColumn)
        return head + "\n" + text;
    return head + std::string(iColumn - Characters(head), ' ') + text.substr(iColumn);
}
} // namespace Tool
