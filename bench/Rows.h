#ifndef BenchRows_H
#define BenchRows_H

/**
 * @file
 * The rows of the table, each a function that measures and gives its lines. One source file a group, in rows/.
 */

#include <string>
#include <vector>

#include "Table.h"
#include "Work.h"

namespace Bench
{
struct Settings
{
    /// Of short works; long ones take fewer.
    int rounds = 101;
};

std::vector<Line> ReadByPathRow(const Settings& iSettings);
std::vector<Line> ReadByKeysRow(const Settings& iSettings);
std::vector<Line> WriteByPathRow(const Settings& iSettings);
std::vector<Line> OneLevelRow(const Settings& iSettings);
std::vector<Line> WriteValuesRow(const Settings& iSettings);
std::vector<Line> ConditionRow(const Settings& iSettings);
std::vector<Line> CopyAndScopeRow(const Settings& iSettings);
std::vector<Line> ColdLoadRow(const Settings& iSettings);
std::vector<Line> DefaultsRow(const Settings& iSettings);
std::vector<Line> ScalingRow(const Settings& iSettings);
std::vector<Line> SetListRow(const Settings& iSettings);
std::vector<Line> ChoiceRow(const Settings& iSettings);
std::vector<Line> MemoryRow(const Settings& iSettings);
std::vector<Line> LoadAndSaveRow(const Settings& iSettings);

/// What ours is held against.
struct Opponent
{
    std::string name;
    Work work;
    double reach;
    std::optional<double> aim;
};

/// Measures ours beside all of them at once; a line each.
std::vector<Line> Compare(int iRow, const std::string& iText, const Work& iOurs,
                          const std::vector<Opponent>& iOpponents, int iRounds);

/// What a child process does for the row of cold loads. @return nanoseconds; negative for what it does not know
double ColdLoadInChild(const std::string& iWhose, const std::string& iFolder);
} // namespace Bench

#endif
