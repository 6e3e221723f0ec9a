#ifndef Scenario_H
#define Scenario_H

/**
 * @file
 * What is run over and over while one call or one allocation after the other fails.
 */

#include <functional>
#include <string>
#include <vector>

#include "FaultBench.h"

/// What fails, and what the answer is, as `AnswerOf` puts it; other results stand behind it.
using Action = std::function<std::string()>;

struct Scenario
{
    enum class Kind
    {
        /// Leaves the model as it is, whatever fails.
        Reads,
        Writes,
        /// Writes, and hands a failed status on which the host's own operation has given, without a report.
        HandsOn
    };

    /// Operation, and what it is called on.
    std::string name;
    /// Makes everything that the action is to find; nothing fails meanwhile.
    std::function<Action(FaultBench& ioBench)> prepare;
    Kind kind = Kind::Writes;
    /// A failed status of it needs no report: the operation answers it where there is nothing to tell.
    bool isSilent = false;
    /// What it makes belongs to the process, and is never given back.
    bool isKept = false;
    /// Of allocations, every which is made to fail.
    int step = 1;
    /// What is left besides the model; empty for nothing. Throws nothing, and expects by itself.
    std::function<void()> check = {};
};

/// Scenarios that are tested together, as they call one operation or one part of the module.
struct ScenarioGroup
{
    std::string name;
    std::vector<Scenario> scenarios;
};

/// All groups.
const std::vector<ScenarioGroup>& ScenarioGroups();

// Their parts, each in a file of its own.
void AddCursorMoves(std::vector<ScenarioGroup>& ioGroups);
void AddCursorReads(std::vector<ScenarioGroup>& ioGroups);
void AddCursorWrites(std::vector<ScenarioGroup>& ioGroups);
void AddConditionScenarios(std::vector<ScenarioGroup>& ioGroups);
void AddDefaultScenarios(std::vector<ScenarioGroup>& ioGroups);
void AddChoiceScenarios(std::vector<ScenarioGroup>& ioGroups);
void AddManagerScenarios(std::vector<ScenarioGroup>& ioGroups);
void AddConfigurationScenarios(std::vector<ScenarioGroup>& ioGroups);
void AddFileScenarios(std::vector<ScenarioGroup>& ioGroups);

std::string AnswerOf(HRESULT iStatus);
std::string AnswerOf(bool iAnswer);
std::string AnswerOf(const VYRCfdObjectAccess& iCursor);

#endif
