#ifndef Graphviz_H
#define Graphviz_H

/**
 * @file
 * The program that draws graphs.
 */

#include <string>

namespace Tool
{
/// Lets Graphviz' `dot` draw a graph. What it has to say goes to standard error.
/// @return the picture as SVG @throws Failure where there is no such program, or it does not succeed
std::string DrawSvg(const std::string& iDot);
} // namespace Tool

#endif
