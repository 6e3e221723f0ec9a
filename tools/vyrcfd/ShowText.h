#ifndef ShowText_H
#define ShowText_H

/**
 * @file
 * A snapshot for a reader.
 */

#include <string>

#include "Snapshot.h"

namespace Tool
{
/// The objects as a tree, indented below their owners. Asks for defaults.
std::string ShowText(const Snapshot& iSnapshot);
} // namespace Tool

#endif
