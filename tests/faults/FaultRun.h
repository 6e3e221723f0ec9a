#ifndef FaultRun_H
#define FaultRun_H

/**
 * @file
 * One run of a scenario, with or without something that fails, and what must hold behind it.
 */

#include "Scenario.h"

/// What fails in a run.
struct Plan
{
    enum class What
    {
        Nothing,
        Call,
        Allocation
    };

    What what = What::Nothing;
    /// The first that fails.
    int number = 0;
    /// All from then on. Of unset values only some in a row: on a host where nothing that is written is ever set, an
    /// update that gives the value its default, and is told of that write, never comes to its end.
    bool all = false;
    /// Of calls.
    HRESULT status = E_FAIL;
    /// Of calls: only reads of values are met, and answer one that is not valuated.
    bool unset = false;
};

/// For messages: "call 3 (E_FAIL)", "all allocations from 3 on".
std::string TextOf(const Plan& iPlan);

struct Outcome
{
    std::string answer;
    /// Of what was thrown; empty for nothing.
    std::string thrown;
    Records reports;
    /// The model as its file would hold it, at first and in the end.
    std::string before;
    std::string after;
    /// Calls or allocations that have failed.
    int hits = 0;

    /// Leaks: components and blocks of memory that the run has left behind.
    int components = 0;
    long blocks = 0;
};

/// Runs a scenario on a fresh bench.
Outcome RunScenario(const Scenario& iScenario, const Plan& iPlan);

/**
 * What is wrong with an outcome, whatever has failed; empty for nothing. Leaks are looked at by the caller, since the
 * first run of a kind may fill what the process keeps.
 */
std::string DefectOf(const Scenario& iScenario, const Plan& iPlan, const Outcome& iOutcome);

/// One line: the answer, what became of the model, and the reports. @param iDone how a run without failures ends
std::string LineOf(const Outcome& iOutcome, const Outcome& iDone);

/// The same for every failed status.
std::string WithoutStatus(std::string iLine);

/// Shows which run it is when the process is terminated. One at a time.
void ShowWhenTerminated(const std::string& iRun);

#endif
