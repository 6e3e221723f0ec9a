#ifndef GraphText_H
#define GraphText_H

/**
 * @file
 * The graph of references, for Graphviz and for other machines.
 */

#include <string>

#include "ReferenceGraph.h"

namespace Tool
{
/// In the language DOT: configurations of a file stand together, references point to the right and bear their
/// conditions.
std::string GraphDot(const ReferenceGraph& iGraph);
std::string GraphJson(const ReferenceGraph& iGraph);
} // namespace Tool

#endif
