#ifndef Paragraphs_H
#define Paragraphs_H

/**
 * @file
 * Texts in lines of a given width.
 */

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool
{
/// A paragraph, or a line that is to stay as it is.
struct TextBlock
{
    std::string text;
    bool isKept = false;
    /// An empty line stands in front of it.
    bool isApart = false;
};

/// Lines that follow one another are one paragraph, except for those that begin with a blank: examples and tables.
std::vector<TextBlock> BlocksOf(std::string_view iText);

/// The words of a text in lines that are no longer than the width, each behind the indent. A longer word has a line for
/// itself.
std::string Wrapped(std::string_view iText, std::size_t iWidth, std::size_t iIndent = 0);

/// A line of a table or an example. One that is too long goes on below the last of its columns.
std::string WrappedLine(const std::string& iLine, std::size_t iWidth);

/// What is described, and beside it what is said of it, from a column on; below it where there is no room.
std::string Definition(const std::string& iTerm, std::string_view iText, std::size_t iColumn, std::size_t iWidth);
} // namespace Tool

#endif
