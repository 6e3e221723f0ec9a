#ifndef ManPage_H
#define ManPage_H

/**
 * @file
 * The manual page, in the macros of man(7).
 */

#include <string>

#include "CommandLine.h"

namespace Tool
{
std::string ManPage(const CommandDescription& iProgram, const std::string& iVersion);
} // namespace Tool

#endif
