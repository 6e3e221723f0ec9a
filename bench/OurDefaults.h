#ifndef BenchOurDefaults_H
#define BenchOurDefaults_H

/**
 * @file
 * Our side of applying default items.
 */

#include "Work.h"

namespace Bench
{
/// Applies a configuration of so many default items to a new object of as many attributes, none of which is set:
/// afterwards each has its value, its flag and its record. The files are loaded beforehand, the objects made.
Work ApplyDefaults(int iNumber);
} // namespace Bench

#endif
