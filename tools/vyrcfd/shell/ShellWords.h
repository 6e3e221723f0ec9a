#ifndef ShellWords_H
#define ShellWords_H

/**
 * @file
 * The words of a line of the shell.
 */

#include <string>
#include <string_view>
#include <vector>

namespace Tool
{
/**
 * Words are parted by blanks. Between double quotes a word holds blanks and "#", and after a backslash a quotation mark
 * or a backslash. Where a word would begin, "#" begins a comment.
 * @throws Failure for a quotation mark that is missing and for what is no UTF-8
 */
std::vector<std::string> SplitWords(std::string_view iLine);

/// The words in front of the cursor's, for who completes it; what is left open is no fault there.
std::vector<std::string> WordsBefore(std::string_view iLine, std::size_t iWordStart);

/// The text as a word, in quotation marks where it needs them.
std::string AsWord(const std::string& iText);

/// A line that splits into the words.
std::string JoinWords(const std::vector<std::string>& iWords);
} // namespace Tool

#endif
