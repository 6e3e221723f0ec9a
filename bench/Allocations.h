#ifndef BenchAllocations_H
#define BenchAllocations_H

/**
 * @file
 * What this process takes from the heap.
 */

#include <cstddef>

namespace Bench
{
/// How often operator new has been called, of the libraries too: this program replaces it.
std::size_t Allocations() noexcept;

/// Bytes that are in use, by whomever, as the allocator keeps count of them: what was freed is not in it, and neither
/// is what the process keeps for later.
std::size_t LiveBytes() noexcept;
} // namespace Bench

#endif
