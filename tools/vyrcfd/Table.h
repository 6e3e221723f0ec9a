#ifndef Table_H
#define Table_H

/**
 * @file
 * Rows of texts under one another.
 */

#include <cstddef>
#include <string>
#include <vector>

namespace Tool
{
/// Blanks by which what belongs to an object stands further in than the object.
constexpr std::size_t IndentStep = 4;

/// One line a row, columns two blanks apart. All rows have as many cells as the first.
std::string TableText(const std::vector<std::vector<std::string>>& iRows, const std::string& iIndent);
} // namespace Tool

#endif
