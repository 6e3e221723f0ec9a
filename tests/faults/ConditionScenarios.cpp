#include "Scenario.h"

#include "VYRCfdObjectCondition.h"

namespace
{
Scenario Evaluation(const char* iText)
{
    Scenario scenario;
    scenario.name = iText;
    scenario.kind = Scenario::Kind::Reads;
    scenario.prepare = [iText](FaultBench& ioBench) -> Action {
        return [cursor = ioBench.At("(object)"), text = ORXUnicodeString(iText)] {
            return AnswerOf(static_cast<bool>(VYRCfdObjectCondition(cursor, text)));
        };
    };
    return scenario;
}
} // namespace

void AddConditionScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ScenarioGroup group{"conditions", {}};
    for (const char* text : {"", "ratio>=0.5", "ratio<0.5", "count==4", "count!=4", "scheme=2", "title=cavity",
                             "title!=cavity", "flag==true", "zone/layers=3", "peers/Peer.2/temperature>299",
                             "nowhere=1", "zone=1", "titles=lift", "no operator"})
        group.scenarios.push_back(Evaluation(text));

    Scenario kept = Evaluation("count==4");
    kept.name = "copied, compared and assigned";
    kept.prepare = [](FaultBench& ioBench) -> Action {
        const VYRCfdObjectCondition condition(ioBench.At("(object)"), "count==4");
        return [condition] {
            VYRCfdObjectCondition copy(condition);
            copy = condition;
            return AnswerOf(copy == condition && !(copy != condition) && static_cast<bool>(copy));
        };
    };
    group.scenarios.push_back(std::move(kept));
    ioGroups.push_back(std::move(group));
}
