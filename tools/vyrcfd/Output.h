#ifndef Output_H
#define Output_H

/**
 * @file
 * Where the tool writes to.
 */

#include <string>

namespace Tool
{
/// Writes the whole answer of a command to standard output.
/// @throws BrokenPipe into a pipe that nobody reads
/// @throws OutputFailure when it cannot be written otherwise, as on a full disk
void Print(const std::string& iText);

/// Whether anything was printed there, so that an answer has begun at least.
bool HasAnswered();

/// Writes a line to standard error.
void PrintError(const std::string& iLine);

/// Marks words of a text that goes to a terminal; everywhere else, where the variable NO_COLOR is set to something, and
/// where TERM is "dumb", the words stay as they are.
class Colours
{
public:
    Colours();

    std::string Heading(const std::string& iText) const { return Wrapped("1", iText); }
    std::string Added(const std::string& iText) const { return Wrapped("32", iText); }
    std::string Noted(const std::string& iText) const { return Wrapped("33", iText); }
    std::string Removed(const std::string& iText) const { return Wrapped("31", iText); }

private:
    std::string Wrapped(const char* iCode, const std::string& iText) const;

    bool m_on;
};
} // namespace Tool

#endif
