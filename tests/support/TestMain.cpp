/**
 * @file
 * The main function of all test programs. A run in which every test passes still fails when components are left alive
 * at its end: each of them is a reference that somebody has not given back.
 */

#include <cstdio>

#include <gtest/gtest.h>

#include "VYRStandaloneErrors.h"
#include "VYRStandaloneInstruments.h"

namespace
{
void Clear()
{
    VYRStandalone::ClearFaults();
    VYRStandalone::TakeReports();
    VYRStandalone::SetErrorStatus(0);
}

/// What one test leaves in the host's per-thread state is not seen by the next.
class FreshState : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override { Clear(); }
    void OnTestEnd(const testing::TestInfo&) override { Clear(); }
};

int ReportLiveComponents()
{
    const int count = VYRStandalone::LiveComponents();
    if (count == 0)
        return 0;
    std::fprintf(stderr, "[  FAILED  ] %d components are alive at the end of the run:\n", count);
    for (const std::string& name : VYRStandalone::LiveComponentNames())
        std::fprintf(stderr, "    %s\n", name.c_str());
    return 1;
}
} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The list of listeners takes it over.
    testing::UnitTest::GetInstance()->listeners().Append(new FreshState);
    const int testStatus = RUN_ALL_TESTS();
    const int leakStatus = ReportLiveComponents();
    return testStatus != 0 ? testStatus : leakStatus;
}
