#ifndef Allocations_H
#define Allocations_H

/**
 * @file
 * The global operator new of this program, which counts, and fails when it is told to.
 */

/// All of it is of this thread, and nothing of it allocates.
namespace Allocations
{
/// The `iFirst`-th allocation from now on fails with std::bad_alloc, and all behind it if `iAll`.
void FailFrom(int iFirst, bool iAll) noexcept;
/// None fails any more. @return how many have failed since `FailFrom`
int StopFailing() noexcept;
/// Blocks that were allocated and not given back. Those that another thread gives back are not seen.
long Outstanding() noexcept;
} // namespace Allocations

#endif
