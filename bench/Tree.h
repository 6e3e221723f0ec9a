#ifndef BenchTree_H
#define BenchTree_H

/**
 * @file
 * The trees that ours and every peer build, from one description.
 */

#include <memory>
#include <string>
#include <vector>

namespace Bench
{
struct Level;

struct Entry
{
    enum class Kind
    {
        Real,
        Integer,
        Boolean,
        String,
        Level
    };

    std::string name;
    Kind kind;
    /// Of a real, an integer and a boolean.
    double number = 0;
    std::string text = {};
    std::shared_ptr<const Level> level = {};
};

/// Twenty entries of mixed kinds. What is looked for is the twelfth.
struct Level
{
    std::vector<Entry> entries;
};

/// Levels inside each other, one a name; the innermost name is a real.
Level Nested(const std::vector<std::string>& iNames, double iValue);

/// boundary / inflow / turbulence / intensity.
Level PathTree();
/// The innermost level of that: twenty values, of which the twelfth is "intensity".
Level ValuesLevel();
/// a / b, which is 1.5.
Level ConditionTree();

/// The tree as JSON.
std::string JsonOf(const Level& iLevel);

inline constexpr char PathText[] = "boundary/inflow/turbulence/intensity";
inline constexpr double PathValue = 0.05;
inline constexpr char ConditionText[] = "a/b==1.5";
} // namespace Bench

#endif
