/**
 * @file
 * Random operations on the real model and its twin, and what was once found by them. These variables steer it:
 *
 * VYRCFD_RANDOM_OPERATIONS  how many operations; a few ten thousand otherwise
 * VYRCFD_RANDOM_SEED        the seed of the first model; models count on from there
 * VYRCFD_RANDOM_MET         set to anything: print what was met, and how often
 * VYRCFD_RANDOM_REPLAY      a file of operations to run, as a failure prints them
 */

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include <gtest/gtest.h>

#include "RandomRun.h"

namespace
{
long long Setting(const char* iName, long long iOtherwise)
{
    const char* text = std::getenv(iName);
    return text != nullptr ? std::strtoll(text, nullptr, 10) : iOtherwise;
}

/// Replays stand one to a file, each named by what went wrong.
std::vector<std::string> Replays()
{
    if (const char* file = std::getenv("VYRCFD_RANDOM_REPLAY"))
        return {file};
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(VYR_RANDOM_REPLAYS))
        files.push_back(entry.path().string());
    return files;
}

TEST(Random, OperationsOnTheModelAndItsTwin_LeaveThemEqual)
{
    if (std::getenv("VYRCFD_RANDOM_REPLAY") != nullptr)
        GTEST_SKIP() << "a file is replayed";
    const long long operations = Setting("VYRCFD_RANDOM_OPERATIONS", 20000);
    const auto seed = static_cast<std::uint64_t>(Setting("VYRCFD_RANDOM_SEED", 1));
    const RunResult result = RunRandom(seed, operations);
    std::cout << "random: " << operations << " operations, " << result.effective
              << " of them with an object to work on, seed " << seed << ", " << result.compared << " objects compared"
              << std::endl;
    if (!result.difference.empty())
        FAIL() << Describe(Shrink(result));
    // A generator that no longer reaches what it is for would find nothing, and say so.
    if (operations >= 10000)
    {
        for (const char* what : {"answer apply S_OK",
                                 "answer configure S_OK",
                                 "answer choose S_OK",
                                 "answer close S_OK",
                                 "answer addchoices S_OK",
                                 "answer reset S_OK",
                                 "answer move S_OK",
                                 "answer cursor.list S_OK",
                                 "answer setdefault S_OK",
                                 "answer setauto S_OK",
                                 "answer takeaway ",
                                 "answer add added",
                                 "call dispatch",
                                 "call create",
                                 "call move",
                                 "call take",
                                 "call fix",
                                 "call complete",
                                 "saved and loaded",
                                 "extensions dropped",
                                 "report choices.size() == startups.size()",
                                 "report spAttr",
                                 "report spDefVal"})
            EXPECT_GT(result.met.contains(what) ? result.met.at(what) : 0, 0) << what;
    }
    if (std::getenv("VYRCFD_RANDOM_MET") != nullptr)
        for (const auto& [what, count] : result.met)
            std::cout << "    " << count << " " << what << "\n";
}

TEST(Random, Replays_LeaveTheModelAndItsTwinEqual)
{
    int count = 0;
    for (const std::string& file : Replays())
    {
        const std::vector<Operation> operations = ReadOperations(file);
        ASSERT_FALSE(operations.empty()) << file;
        const RunResult result = RunOperations(operations);
        EXPECT_EQ(result.difference, "") << file << ", at operation " << result.operations.size();
        EXPECT_GT(result.effective, 0) << file << " does nothing any more";
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST(Random, Operations_AreReadBackFromTheirText)
{
    for (const Operation& operation : {Operation{"valuate.text", {"#3/zones[2]", "outputs", "a \"b\" \\ c"}},
                                       Operation{"choose", {"#1", ""}}, Operation{"save", {}}})
    {
        const Operation again = Operation::Parse(operation.Text());
        EXPECT_EQ(again.verb, operation.verb);
        EXPECT_EQ(again.words, operation.words);
    }
    for (const char* line : {"", "unheard #1", "choose #1", "save now"})
        EXPECT_THROW(Operation::Parse(line), std::invalid_argument) << line;
}
} // namespace
