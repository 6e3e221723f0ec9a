#ifndef TerminalWidth_H
#define TerminalWidth_H

#include <cstddef>

namespace Tool
{
/// Columns of the terminal that standard output is; 0 where it is none, and where nobody knows.
std::size_t TerminalWidth();
} // namespace Tool

#endif
