#ifndef Flaw_H
#define Flaw_H

/**
 * @file
 * Mistakes inside the smallest parts of a JSON text: texts, numbers and words.
 */

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "SourceValue.h"

namespace Tool
{
/// A mistake, and where it stands in the text.
struct Flaw
{
    std::size_t offset = 0;
    std::string message{};
};

/// What ends at an offset, or is wrong before.
struct ScannedPart
{
    /// Behind the part.
    std::size_t end = 0;
    std::optional<Flaw> flaw{};
};

/// Line and column of an offset. Linear in it.
SourcePosition PositionIn(std::string_view iText, std::size_t iOffset);

/// The place as it stands in a message: "3:15".
std::string ShownPlace(std::string_view iText, std::size_t iOffset);

/// The text between quotation marks whose first one stands at the offset.
ScannedPart ScanText(std::string_view iText, std::size_t iBegin);

/// The number that begins at the offset with a digit or a sign. A number has no other letters beside it.
ScannedPart ScanNumber(std::string_view iText, std::size_t iBegin);

/// One of the words that are values, which begins at the offset.
ScannedPart ScanWord(std::string_view iText, std::size_t iBegin);

/// Why nothing can begin with what stands at the offset. @param iWhat what would begin there: "text" or "key"
Flaw StrangeBeginning(std::string_view iText, std::size_t iBegin, std::string_view iWhat);

/// Whether a comment begins at the offset, in one of the ways in which other languages begin one.
bool IsComment(std::string_view iText, std::size_t iBegin);
} // namespace Tool

#endif
