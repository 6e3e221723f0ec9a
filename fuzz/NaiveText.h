#ifndef NaiveText_H
#define NaiveText_H

/**
 * @file
 * Text work in the slowest and plainest way, on single characters, to compare with. A byte that continues a UTF-8
 * sequence belongs to the character before it.
 */

#include <string>
#include <string_view>
#include <vector>

namespace Naive
{
using Characters = std::vector<std::string>;

Characters CharactersOf(std::string_view iText);
std::string TextOf(const Characters& iCharacters, std::size_t iFrom, std::size_t iEnd);

/// Position of the first occurrence at or behind a position, negative for none.
int Find(const Characters& iText, const Characters& iWanted, std::size_t iFrom);

/// The tokens of a comma list: parted by the delimiter, without blanks.
std::vector<std::string> Split(std::string_view iText, std::string_view iDelimiter);

struct HeadAndTail
{
    std::string head;
    std::string tail;
};
/// At the first "/".
HeadAndTail SplitPath(std::string_view iPath);

/// @return whether it leads nowhere above its start
bool Normalize(std::string_view iPath, std::string& oNormalized);

/// What the standard streams read under the classic locale, up to the text's first zero. @return whether they do
template <class Number> bool Extract(const std::string& iText, Number& oNumber);
} // namespace Naive

#endif
