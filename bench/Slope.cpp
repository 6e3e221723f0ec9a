#include "Slope.h"

#include <cmath>

#include "Table.h"

namespace Bench
{
namespace
{
double SlopeOf(const std::vector<double>& iX, const std::vector<double>& iY)
{
    const double count = static_cast<double>(iX.size());
    double meanX = 0;
    double meanY = 0;
    for (std::size_t i = 0; i < iX.size(); ++i)
    {
        meanX += iX[i] / count;
        meanY += iY[i] / count;
    }
    double product = 0;
    double square = 0;
    for (std::size_t i = 0; i < iX.size(); ++i)
    {
        product += (iX[i] - meanX) * (iY[i] - meanY);
        square += (iX[i] - meanX) * (iX[i] - meanX);
    }
    return product / square;
}
} // namespace

double Slope(const Interleaved& iMeasured, const std::vector<int>& iSizes)
{
    std::vector<double> sizes;
    for (const int size : iSizes)
        sizes.push_back(std::log(size));
    std::vector<double> slopes;
    for (std::size_t round = 0; round < iMeasured.Rounds().front().size(); ++round)
    {
        std::vector<double> times;
        for (const std::vector<double>& work : iMeasured.Rounds())
            times.push_back(std::log(work[round]));
        slopes.push_back(SlopeOf(sizes, times));
    }
    return Median(slopes);
}

std::string TimesText(const Interleaved& iMeasured, std::size_t iWorks)
{
    std::string text;
    for (std::size_t work = 0; work < iWorks; ++work)
        text += (work > 0 ? "; " : "") + TimeText(iMeasured.Nanoseconds(work));
    return text;
}
} // namespace Bench
