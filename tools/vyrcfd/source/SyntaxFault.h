#ifndef SyntaxFault_H
#define SyntaxFault_H

/**
 * @file
 * Why a text is no JSON, in words for people who write such files by hand.
 */

#include <optional>
#include <string>
#include <string_view>

#include "SourceValue.h"

namespace Tool
{
/// The first mistake of a text.
struct SyntaxFault
{
    /// Where something is to be changed: of a comma that is one too many the place of the comma, of one that is missing
    /// the end of what stands in front of it.
    SourcePosition position;
    /// What is wrong and what would be right, without full stop.
    std::string message;
};

/// Nothing for a text that is JSON, and for one that is none for another reason than its syntax, such as its depth.
/// Linear.
std::optional<SyntaxFault> SyntaxFaultOf(std::string_view iText);
} // namespace Tool

#endif
