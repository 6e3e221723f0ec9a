#ifndef BenchTable_H
#define BenchTable_H

/**
 * @file
 * The table of what was measured and what was to be reached.
 */

#include <optional>
#include <string>
#include <vector>

namespace Bench
{
/// One goal: something of ours against something else.
struct Line
{
    /// Of the table of goals.
    int row = 0;
    std::string work;
    std::string ours;
    /// Who, and what it takes.
    std::string peer;
    /// Absent where the peer is not installed.
    std::optional<double> figure;
    /// The most that the figure may be, and what is wanted of it.
    double reach = 0;
    std::optional<double> aim = {};
    /// "x" where the figure is a ratio, otherwise its unit.
    std::string unit = "x";
    /// A condition besides the figure that does not hold; empty when all is well.
    std::string fault = {};

    bool IsReached() const { return figure && *figure <= reach && fault.empty(); }
};

/// Appends, rounded for reading: "12.3 ns", "4.56 ms".
std::string TimeText(double iNanoseconds);

/// The table, and the closing line.
void Print(const std::vector<Line>& iLines);
void PrintJson(const std::vector<Line>& iLines);

int CountReached(const std::vector<Line>& iLines);
} // namespace Bench

#endif
