#ifndef BenchSlope_H
#define BenchSlope_H

/**
 * @file
 * How time grows with size.
 */

#include <string>
#include <vector>

#include "Interleaved.h"

namespace Bench
{
/// The exponent by which the times of works grow with their sizes: the slope of the line of least squares through the
/// logarithms, the median of the rounds.
double Slope(const Interleaved& iMeasured, const std::vector<int>& iSizes);

/// "1.20 ms; 12.3 ms; 125 ms"
std::string TimesText(const Interleaved& iMeasured, std::size_t iWorks);
} // namespace Bench

#endif
