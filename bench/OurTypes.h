#ifndef BenchOurTypes_H
#define BenchOurTypes_H

/**
 * @file
 * The trees as feature types.
 */

#include <string>

#include "Tree.h"

namespace Bench
{
/// Declares a catalog and its types, one a level: the name and a number from 1. What the entries hold are the declared
/// defaults. @param iBase the type that all derive from; empty for none
void DeclareTypes(const std::string& iName, const Level& iLevel, const std::string& iBase = {});
} // namespace Bench

#endif
