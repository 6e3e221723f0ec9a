#ifndef PrintfText_H
#define PrintfText_H

/**
 * @file
 * Text from a printf-style format, of any length.
 */

#include <cstdarg>
#include <string>

/// The arguments are used up. A format that cannot be carried out gives the format itself.
std::string FormatText(const char* iFormat, std::va_list iArguments);

#endif
