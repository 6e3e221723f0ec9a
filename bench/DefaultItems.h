#ifndef BenchDefaultItems_H
#define BenchDefaultItems_H

/**
 * @file
 * The items of a configuration that gives defaults, for ours and for peers.
 */

#include <string>
#include <vector>

#include "Tree.h"

namespace Bench
{
struct DefaultItem
{
    std::string name;
    /// A real, an integer or a string.
    Entry::Kind kind;
    std::string text;
};

/// So many, of three kinds: six in ten are reals, two are integers, two are strings.
std::vector<DefaultItem> DefaultItems(int iNumber);
} // namespace Bench

#endif
