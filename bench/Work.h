#ifndef BenchWork_H
#define BenchWork_H

/**
 * @file
 * What is measured: one piece of work, ours or a peer's.
 */

#include <cstddef>
#include <functional>

namespace Bench
{
/// Does one thing so many times. Only `run` is timed; what it needs afresh each time is made by `prepare` and let go
/// by `finish`.
struct Work
{
    std::function<void(std::size_t iTimes)> run;
    std::function<void(std::size_t iTimes)> prepare = {};
    std::function<void()> finish = {};
    /// The most that one `run` takes, for work whose preparation is large.
    std::size_t most = static_cast<std::size_t>(1) << 24;

    explicit operator bool() const noexcept { return static_cast<bool>(run); }
};
} // namespace Bench

#endif
