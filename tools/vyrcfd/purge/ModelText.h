#ifndef ModelText_H
#define ModelText_H

/**
 * @file
 * The text of a model file.
 */

#include <cstddef>
#include <set>
#include <string>

namespace Tool
{
/**
 * Cuts top-level objects out of the text of a model; every other byte stays, so that a file written by hand stays as it
 * was written.
 * @param iText a model that the host has read
 * @param iPositions of the objects, from 1
 */
std::string WithoutObjects(const std::string& iText, const std::set<std::size_t>& iPositions);
} // namespace Tool

#endif
