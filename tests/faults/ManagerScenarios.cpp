#include "Scenario.h"

namespace
{
using Call = HRESULT (*)(VYRICfdChoiceMgr& ioManager);

HRESULT Configure(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.ConfigureChoiceMgr(Texts({"gamma", "beta"}), "beta", "Model");
}

HRESULT ConfigureWrongly(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.ConfigureChoiceMgr(Texts({"gamma", "omega"}), "gamma", "Model");
}

HRESULT Reset(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.Reset(ORXFalse);
}

HRESULT ResetKeeping(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.Reset(ORXTrue);
}

HRESULT GetAll(VYRICfdChoiceMgr& ioManager)
{
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value;
    return ioManager.GetAllChoices(choices, value);
}

HRESULT ProhibitOne(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.ProhibitChoice("alpha");
}

HRESULT ProhibitAll(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.ProhibitChoices({"alpha", "beta", "gamma"});
}

HRESULT ProhibitNone(VYRICfdChoiceMgr& ioManager)
{
    return ioManager.ProhibitChoices({"omega"});
}

HRESULT Allow(VYRICfdChoiceMgr& ioManager)
{
    std::set<ORXUnicodeString> added{"alpha", "omega"};
    return ioManager.AddChoices(added);
}

void Prohibited(FaultBench& ioBench)
{
    EXPECT_EQ(ManagerOf(ioBench.Managed())->ProhibitChoice("alpha"), S_OK);
}

/// @param iNeedsReport false where a failed update answers for the operation
Scenario Operation(const char* iName, Call iCall, const std::function<void(FaultBench&)>& iBefore = {},
                   Scenario::Kind iKind = Scenario::Kind::Writes)
{
    Scenario scenario;
    scenario.name = iName;
    scenario.kind = iKind;
    scenario.prepare = [=](FaultBench& ioBench) -> Action {
        const ORXISpecObject_var choice = ioBench.Managed();
        if (iBefore)
            iBefore(ioBench);
        return [=, held = ManagerOf(choice)]() -> std::string {
            const VYRICfdChoiceMgr_var manager = choice;
            return !manager ? "no manager" : AnswerOf(iCall(*manager.Pointer()));
        };
    };
    return scenario;
}
} // namespace

void AddManagerScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ScenarioGroup group{"managers", {}};
    std::vector<Scenario>& scenarios = group.scenarios;
    scenarios.push_back(Operation("ConfigureChoiceMgr", &Configure));
    scenarios.push_back(Operation("ConfigureChoiceMgr, refused", &ConfigureWrongly));
    scenarios.push_back(Operation("Reset", &Reset, &Prohibited));
    scenarios.push_back(Operation("Reset, keeping the value", &ResetKeeping, &Prohibited));
    scenarios.push_back(Operation("GetAllChoices", &GetAll, {}, Scenario::Kind::Reads));
    scenarios.push_back(Operation("ProhibitChoice", &ProhibitOne));
    scenarios.push_back(Operation("ProhibitChoices, all", &ProhibitAll));
    scenarios.push_back(Operation("ProhibitChoices, none", &ProhibitNone));
    scenarios.push_back(Operation("AddChoices", &Allow, &Prohibited));
    scenarios.push_back(Operation("AddChoices, none", &Allow));
    ioGroups.push_back(std::move(group));
}
