#ifndef Wording_H
#define Wording_H

/**
 * @file
 * How texts and numbers of a model stand in what the tool prints.
 */

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool
{
/// The text on one line: white space at its end is left out, control characters and bytes that are no UTF-8 are
/// escaped.
std::string OneLine(std::string_view iText);

/// The same between quotation marks, with those inside escaped; nothing is left out.
std::string Quoted(std::string_view iText);

/// The text up to a number of bytes, which do not end inside a character; "..." stands for the rest.
std::string Shortened(std::string iText, std::size_t iLongest);

/// Number of characters of a text in UTF-8.
std::size_t Characters(std::string_view iText);

/// Whether the text is UTF-8.
bool IsUtf8(std::string_view iText);

/// "1 item", "2 items".
std::string Counted(std::size_t iNumber, const std::string& iSingular);

/// The known name that an unknown one is most like; empty when nothing is like it.
std::string Nearest(std::string_view iUnknown, const std::vector<std::string>& iKnown);

/// Whether an unknown name differs from a known one by no more than a slip of the hand.
bool IsSlip(std::string_view iUnknown, std::string_view iKnown);

/// What to say behind an unknown name: the known one that it is most like, as `; did you mean "wall"?`. Empty when
/// nothing is like it.
std::string DidYouMean(std::string_view iUnknown, const std::vector<std::string>& iKnown);

/// What to say where nothing is like it: the names that there are, each once, as `; there are "a" and "b"`, or the
/// first dozen of them. Empty where there are none.
std::string ThereAre(const std::vector<std::string>& iKnown);

/// The known name that an unknown one is most like, else those that there are.
std::string DidYouMeanOneOf(std::string_view iUnknown, const std::vector<std::string>& iKnown);
} // namespace Tool

#endif
