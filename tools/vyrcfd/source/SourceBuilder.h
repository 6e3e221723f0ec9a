#ifndef SourceBuilder_H
#define SourceBuilder_H

#include <deque>
#include <string_view>

#include "SourceValue.h"

namespace Tool
{
/// Reads a text that is JSON into values, in the order in which they begin, the root first.
/// @return false for a text that is no JSON
bool BuildSource(std::string_view iText, std::deque<SourceValue>& oValues);
} // namespace Tool

#endif
