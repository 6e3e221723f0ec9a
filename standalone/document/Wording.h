#ifndef Wording_H
#define Wording_H

/**
 * @file
 * How names stand in messages.
 */

#include <string>
#include <string_view>
#include <vector>

namespace VYRStandalone
{
/// A long text is cut, and ends in points.
std::string Shortened(std::string_view iText);

/// In quotation marks; a long text is cut.
std::string Quoted(std::string_view iText);

/// Each quoted, with commas between.
std::string QuotedList(const std::vector<std::string>& iTexts);

/// What to say behind an unknown name: the known name that it is most like, otherwise all of them.
std::string InsteadOf(std::string_view iUnknown, const std::vector<std::string>& iKnown);
} // namespace VYRStandalone

#endif
