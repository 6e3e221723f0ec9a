#ifndef StrictJson_H
#define StrictJson_H

/**
 * @file
 * Parsing of JSON, as the standard has it and nothing beyond.
 */

#include <optional>
#include <string>
#include <string_view>

#include <rapidjson/document.h>

namespace StrictJson
{
/// How many arrays and objects may stand inside each other: more than any file that a person or a program means, and
/// few enough for whoever walks a document recursively.
constexpr int DeepestNesting = 1000;

/// Where and why a text is no JSON. Line and column count from 1, columns in characters.
struct SyntaxError
{
    int line;
    int column;
    std::string message;
};

/**
 * Parses a text that is strict JSON in UTF-8 throughout: no comments, no byte order mark, nothing behind the value,
 * no number that a double cannot hold, no half of a surrogate pair, nothing nested deeper than DeepestNesting.
 * @return nothing on success
 */
std::optional<SyntaxError> Parse(std::string_view iText, rapidjson::Document& oDocument);
} // namespace StrictJson

#endif
