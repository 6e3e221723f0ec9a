#ifndef BenchInterleaved_H
#define BenchInterleaved_H

/**
 * @file
 * Running works side by side.
 */

#include <chrono>
#include <vector>

#include "Work.h"

namespace Bench
{
/// The middle one; of an even number the mean of the two in the middle. Not of nothing.
double Median(std::vector<double> iValues);

/**
 * Runs works in rounds: in each round every work has one slice, one right after the other, so that what disturbs the
 * machine meets all of them. A ratio is the median over the rounds of the ratio within a round. What counts is the
 * processor time of this process, all its threads and the kernel on its behalf included: on a machine that others use
 * as well, a slice is interrupted now and then, and that time is nobody's work.
 *
 * This is a runner of our own since that of Google Benchmark finishes one benchmark before it begins the next, or
 * shuffles the repetitions of all of them: either way two that are to be compared run seconds apart, and there is no
 * pair to take a ratio of. Its guards against the optimiser are used throughout.
 */
class Interleaved
{
public:
    /// @param iRounds of which the first, in which caches fill, does not count
    Interleaved(std::vector<Work> iWorks, int iRounds, std::chrono::nanoseconds iSlice = std::chrono::milliseconds(1));

    /// Nanoseconds of doing work `iWork` once, the median of the rounds.
    double Nanoseconds(std::size_t iWork) const;
    /// Of one work to another.
    double Ratio(std::size_t iWork, std::size_t iOther) const;
    /// Nanoseconds in the fastest round, for what is limited absolutely: a disturbance only adds.
    double Fastest(std::size_t iWork) const;
    /// Nanoseconds of each work in each round: [work][round].
    const std::vector<std::vector<double>>& Rounds() const noexcept { return m_times; }

private:
    std::vector<std::vector<double>> m_times;
};

/// Nanoseconds of processor time of one run.
double TimeOf(const Work& iWork, std::size_t iTimes);
} // namespace Bench

#endif
