#ifndef BenchOurWorks_H
#define BenchOurWorks_H

/**
 * @file
 * Our side of the first six rows, which are timed beside peers and counted in instructions.
 *
 * Texts are given as literals, as callers give them and as peers are given theirs. Each work throws if what it has done
 * is not what it should have.
 */

#include <string>
#include <utility>
#include <vector>

#include "Work.h"

namespace Bench
{
Work ReadByPath();
Work ReadByKeys();
/// To an object without listeners.
Work WriteByPath();
Work ReadByName();
/// By an attribute cursor that is held.
Work ReadHeld();
/// By name, to a feature with default management that keeps a flag, and with one listener.
Work WriteValues();
Work EvaluateCondition();
Work ConstructCondition();

/// All of them, by the names under which their instructions are kept.
std::vector<std::pair<std::string, Work (*)()>> CountedWorks();
} // namespace Bench

#endif
