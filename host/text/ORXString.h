#ifndef ORXString_H
#define ORXString_H

/**
 * @file
 * Narrow string, used where the host takes names of channels. A value class.
 */

#include <string>

/// A copy of a zero-terminated text.
class ORXString
{
public:
    ORXString() = default;
    /// Null gives the empty string.
    ORXString(const char* iText) : m_text(iText != nullptr ? iText : "") {}

    /// A new string with the other behind this one.
    ORXString operator+(const char* iTail) const { return ORXString((m_text + iTail).c_str()); }

    /// Borrowed, valid as long as the string is neither changed nor destroyed.
    const char* CastToCharPtr() const noexcept { return m_text.c_str(); }
    operator const char*() const noexcept { return CastToCharPtr(); }

private:
    std::string m_text;
};

#endif
