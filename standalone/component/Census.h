#ifndef Census_H
#define Census_H

#include <atomic>
#include <cstddef>

namespace VYRStandalone
{
/**
 * Counts what is alive and can die, over all threads. What comes from `ORXBaseUnknown::operator new` is counted there;
 * classes that a test may want to see by name count themselves besides. Immortal components are allocated past it.
 */
class Census
{
public:
    enum Kind : std::size_t
    {
        Container,
        Extension,
        FeatureKey,
        FeatureObject,
        Manipulator,
        Tie,
        VolatileParm,
        /// A value that outlives its attribute: it may be part of a slot, so that it is in no allocation.
        Value,
        Kinds
    };

    static void Allocated() noexcept { s_allocated.fetch_add(1, std::memory_order_relaxed); }
    static void Freed() noexcept { s_allocated.fetch_sub(1, std::memory_order_relaxed); }
    static void Born(Kind iKind) noexcept { s_named[iKind].fetch_add(1, std::memory_order_relaxed); }
    static void Died(Kind iKind) noexcept { s_named[iKind].fetch_sub(1, std::memory_order_relaxed); }

private:
    friend class CensusReader;

    static constinit std::atomic<int> s_allocated;
    static constinit std::atomic<int> s_named[Kinds];
};
} // namespace VYRStandalone

#endif
