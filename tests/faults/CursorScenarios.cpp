#include "CursorScenarios.h"

void AddCursorOperations(std::vector<ScenarioGroup>& ioGroups, const std::vector<CursorOperation>& iOperations)
{
    for (const CursorOperation& operation : iOperations)
    {
        ScenarioGroup group{std::string("cursor_") + operation.name, {}};
        for (const std::string& place : Places())
        {
            Scenario scenario;
            scenario.name = place;
            scenario.kind = operation.kind;
            scenario.isSilent = operation.isSilent && place.starts_with('(');
            scenario.prepare = [operation, place](FaultBench& ioBench) -> Action {
                const ORXISpecObject_var& part = ioBench.Part();
                const ORXISpecObject_var other = At(part, "peers/2");
                return [cursor = ioBench.At(place), other, call = operation.call] { return call(cursor, other); };
            };
            group.scenarios.push_back(std::move(scenario));
        }
        ioGroups.push_back(std::move(group));
    }
}
