#ifndef Answer_H
#define Answer_H

/**
 * @file
 * What a command of the shell answers.
 */

#include <string>

#include "JsonWriter.h"

namespace Tool
{
/// The same twice: for a reader, and as one JSON value for a machine.
struct Answer
{
    std::string text;
    std::string json = "null";
};

/// @param iWrite writes one value to a `JsonWriter`
template <class Write> Answer MakeAnswer(std::string iText, Write iWrite)
{
    return {std::move(iText), JsonText(iWrite)};
}
} // namespace Tool

#endif
