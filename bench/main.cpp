/**
 * @file
 * The benchmark: measures ours beside its peers and prints the table.
 *
 *     vyrcfd_bench [--check] [--json] [--rows N,N...] [--rounds N]
 *
 * Exit status 1 with --check when a goal is not reached, 2 for wrong use.
 */

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>

#include "Rows.h"

namespace
{
using namespace Bench;

struct Options
{
    bool check = false;
    bool json = false;
    /// Empty for all.
    std::set<int> rows;
    Settings settings;
};

struct Row
{
    int number;
    std::vector<Line> (*measure)(const Settings& iSettings);
};

// The large ones last: what they leave in the heap and the caches meets none of the short ones.
constexpr Row Rows[] = {{1, ReadByPathRow},  {2, ReadByKeysRow},  {3, WriteByPathRow},  {4, OneLevelRow},
                        {5, WriteValuesRow}, {6, ConditionRow},   {7, CopyAndScopeRow}, {8, ColdLoadRow},
                        {9, DefaultsRow},    {10, ScalingRow},    {11, SetListRow},     {12, ChoiceRow},
                        {13, MemoryRow},     {14, LoadAndSaveRow}};

int NumberOf(const std::string& iText)
{
    char* end = nullptr;
    const long number = std::strtol(iText.c_str(), &end, 10);
    if (iText.empty() || *end != '\0' || number < 1 || number > 1000)
        throw std::invalid_argument("no number: " + iText);
    return static_cast<int>(number);
}

std::set<int> NumbersOf(const std::string& iText)
{
    std::set<int> numbers;
    for (std::size_t begin = 0; begin <= iText.size();)
    {
        const std::size_t end = std::min(iText.find(',', begin), iText.size());
        numbers.insert(NumberOf(iText.substr(begin, end - begin)));
        begin = end + 1;
    }
    return numbers;
}

Options Read(int iCount, char** iTexts)
{
    Options options;
    for (int i = 1; i < iCount; ++i)
    {
        const std::string option = iTexts[i];
        const bool hasValue = i + 1 < iCount;
        if (option == "--check")
            options.check = true;
        else if (option == "--json")
            options.json = true;
        else if (option == "--rows" && hasValue)
            options.rows = NumbersOf(iTexts[++i]);
        else if (option == "--rounds" && hasValue)
            options.settings.rounds = NumberOf(iTexts[++i]);
        else
            throw std::invalid_argument("cannot read: " + option);
    }
    return options;
}

std::string Processor()
{
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.rfind("model name", 0) == 0 && line.find(": ") != std::string::npos)
            return line.substr(line.find(": ") + 2);
    return "unknown processor";
}

int Run(const Options& iOptions)
{
    if (!iOptions.json)
        std::printf("%s, %u threads, g++ %s\n\n", Processor().c_str(), std::thread::hardware_concurrency(),
                    __VERSION__);
    std::vector<Line> lines;
    for (const Row& row : Rows)
    {
        if (!iOptions.rows.empty() && !iOptions.rows.contains(row.number))
            continue;
        std::fprintf(stderr, "row %d ...\n", row.number);
        const std::vector<Line> measured = row.measure(iOptions.settings);
        lines.insert(lines.end(), measured.begin(), measured.end());
    }
    if (iOptions.json)
        PrintJson(lines);
    else
        Print(lines);
    return iOptions.check && CountReached(lines) < static_cast<int>(lines.size()) ? 1 : 0;
}
} // namespace

int main(int iCount, char** iTexts)
{
    try
    {
        // A process of its own for each cold load, which is this program once more.
        if (iCount == 4 && std::strcmp(iTexts[1], "--cold-load") == 0)
        {
            std::printf("%.0f\n", ColdLoadInChild(iTexts[2], iTexts[3]));
            return 0;
        }
        return Run(Read(iCount, iTexts));
    }
    catch (const std::invalid_argument& wrong)
    {
        std::fprintf(stderr, "%s\nusage: vyrcfd_bench [--check] [--json] [--rows N,N...] [--rounds N]\n", wrong.what());
        return 2;
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        return 3;
    }
}
