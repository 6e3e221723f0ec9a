#include "Interleaved.h"

#include <algorithm>
#include <ctime>
#include <stdexcept>

namespace Bench
{
namespace
{
double ProcessorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

/// How often a work is to be done to fill a slice.
std::size_t TimesFor(const Work& iWork, double iSlice)
{
    std::size_t times = 1;
    while (times < iWork.most)
    {
        const double taken = TimeOf(iWork, times);
        if (taken >= iSlice / 2)
            break;
        const double missing = taken > 0 ? iSlice / taken : 1000;
        times = static_cast<std::size_t>(static_cast<double>(times) * std::clamp(missing, 2.0, 1000.0));
    }
    return std::min(times, iWork.most);
}
} // namespace

double Median(std::vector<double> iValues)
{
    if (iValues.empty())
        throw std::invalid_argument("median of nothing");
    std::sort(iValues.begin(), iValues.end());
    const std::size_t middle = iValues.size() / 2;
    return iValues.size() % 2 != 0 ? iValues[middle] : (iValues[middle - 1] + iValues[middle]) / 2;
}

double TimeOf(const Work& iWork, std::size_t iTimes)
{
    if (iWork.prepare)
        iWork.prepare(iTimes);
    const double begin = ProcessorTime();
    iWork.run(iTimes);
    const double end = ProcessorTime();
    if (iWork.finish)
        iWork.finish();
    return end - begin;
}

Interleaved::Interleaved(std::vector<Work> iWorks, int iRounds, std::chrono::nanoseconds iSlice)
    : m_times(iWorks.size())
{
    std::vector<std::size_t> times;
    for (const Work& work : iWorks)
        times.push_back(TimesFor(work, static_cast<double>(iSlice.count())));

    for (int round = 0; round < iRounds; ++round)
        for (std::size_t turn = 0; turn < iWorks.size(); ++turn)
        {
            // Who is first changes from round to round.
            const std::size_t work = (turn + static_cast<std::size_t>(round)) % iWorks.size();
            const double taken = TimeOf(iWorks[work], times[work]);
            if (round > 0 || iRounds == 1)
                m_times[work].push_back(taken / static_cast<double>(times[work]));
        }
}

double Interleaved::Nanoseconds(std::size_t iWork) const
{
    return Median(m_times[iWork]);
}

double Interleaved::Ratio(std::size_t iWork, std::size_t iOther) const
{
    std::vector<double> ratios;
    for (std::size_t round = 0; round < m_times[iWork].size(); ++round)
        ratios.push_back(m_times[iWork][round] / m_times[iOther][round]);
    return Median(ratios);
}

double Interleaved::Fastest(std::size_t iWork) const
{
    return *std::min_element(m_times[iWork].begin(), m_times[iWork].end());
}
} // namespace Bench
