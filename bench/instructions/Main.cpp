/**
 * @file
 * Does one of our works so many times, for counting its instructions: what runs inside `BenchCounted` is the work, and
 * what is done once only, such as finding keys, has been done before.
 *
 *     vyrcfd_instructions                 the names of the works
 *     vyrcfd_instructions WORK TIMES
 */

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "OurWorks.h"

/// The function that callgrind is told to count in.
extern "C" __attribute__((noinline, visibility("default"))) void BenchCounted(const Bench::Work& iWork,
                                                                              std::size_t iTimes)
{
    iWork.run(iTimes);
}

int main(int iCount, char** iTexts)
{
    try
    {
        for (const auto& [name, make] : Bench::CountedWorks())
        {
            if (iCount == 1)
                std::puts(name.c_str());
            if (iCount != 3 || name != iTexts[1])
                continue;
            const Bench::Work work = make();
            // The second time: the first finds keys, and makes what is made once.
            work.run(1);
            BenchCounted(work, std::strtoul(iTexts[2], nullptr, 10));
            return 0;
        }
        return iCount == 1 ? 0 : 2;
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        return 3;
    }
}
