#include "Interleaved.h"

#include <algorithm>
#include <stdexcept>

namespace Bench
{
namespace
{
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
    const auto begin = std::chrono::steady_clock::now();
    iWork.run(iTimes);
    const auto end = std::chrono::steady_clock::now();
    if (iWork.finish)
        iWork.finish();
    return static_cast<double>(std::chrono::duration_cast<std::chrono::nanoseconds>(end - begin).count());
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

double Interleaved::Difference(std::size_t iWork, std::size_t iOther) const
{
    std::vector<double> differences;
    for (std::size_t round = 0; round < m_times[iWork].size(); ++round)
        differences.push_back(m_times[iWork][round] - m_times[iOther][round]);
    return Median(differences);
}
} // namespace Bench
