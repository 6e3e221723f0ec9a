#include "Scenario.h"

#include "ORXCkeGlobalFunctions.h"

namespace
{
using Management_var = VYRIMpaDefaultManagementProtected_var;
using Call = std::string (*)(const Management_var& ispManagement);

/// @param iBefore what has happened to the part
Scenario Operation(const char* iName, Call iCall, Scenario::Kind iKind = Scenario::Kind::Writes,
                   const std::function<void(FaultBench&)>& iBefore = {})
{
    Scenario scenario;
    scenario.name = iName;
    scenario.kind = iKind;
    scenario.prepare = [=](FaultBench& ioBench) -> Action {
        const Management_var management = ioBench.Management();
        if (iBefore)
            iBefore(ioBench);
        return [=] { return iCall(management); };
    };
    return scenario;
}

template <HRESULT (VYRIMpaDefaultManagementProtected::*Ask)(const ORXUnicodeString&, unsigned char&)>
std::string AskedOf(const Management_var& ispManagement, const char* iName)
{
    unsigned char answer = ORXFalse;
    const HRESULT status = (ispManagement.Pointer()->*Ask)(iName, answer);
    return AnswerOf(status) + (answer != ORXFalse ? " yes" : " no");
}

std::string IsSet(const Management_var& ispManagement)
{
    unsigned char isSet = ORXFalse;
    const HRESULT status = ispManagement->IsSet("ratio", isSet);
    return AnswerOf(status) + (isSet != ORXFalse ? " yes" : " no");
}

std::string HasAuto(const Management_var& ispManagement)
{
    return AskedOf<&VYRIMpaDefaultManagementProtected::HasAuto>(ispManagement, "ratio");
}

std::string GetIsAuto(const Management_var& ispManagement)
{
    return AskedOf<&VYRIMpaDefaultManagementProtected::GetIsAuto>(ispManagement, "ratio");
}

std::string HasCustomDefault(const Management_var& ispManagement)
{
    return AskedOf<&VYRIMpaDefaultManagementProtected::HasCustomDefault>(ispManagement, "ratio");
}

std::string MarkSet(const Management_var& ispManagement)
{
    return AnswerOf(ispManagement->SetIsSet("ratio", ORXTrue));
}

std::string MarkAuto(const Management_var& ispManagement)
{
    return AnswerOf(ispManagement->SetIsAuto("ratio", ORXTrue));
}

std::string Unset(const Management_var& ispManagement)
{
    return AnswerOf(ispManagement->Unset("ratio"));
}

std::string GetDefault(const Management_var& ispManagement)
{
    ORXICkeInst_var value;
    const HRESULT status = ispManagement->GetDefault("ratio", value);
    return AnswerOf(status) + (!value ? " null" : " found");
}

std::string GetDefaultOfNothing(const Management_var& ispManagement)
{
    ORXICkeInst_var value;
    return AnswerOf(ispManagement->GetDefault("nowhere", value));
}

/// One for each kind of attribute.
template <int Kind> std::string SetDefault(const Management_var& ispManagement)
{
    constexpr const char* names[] = {"ratio", "count", "title", "flag", "scheme", "titles"};
    constexpr const char* texts[] = {"0.75", "7", "duct", "false", "upwind", "a"};
    ORXUnicodeString text = texts[Kind];
    return AnswerOf(ispManagement->SetCustomDefault(names[Kind], text));
}

std::string TakeDefaultAway(const Management_var& ispManagement)
{
    return AnswerOf(ispManagement->RemoveCustomDefault("ratio"));
}

std::string TakeDefaultsAway(const Management_var& ispManagement)
{
    return AnswerOf(ispManagement->RemoveAllCustomDefaults());
}

void HaveCustomDefault(FaultBench& ioBench)
{
    ORXUnicodeString text = "0.75";
    EXPECT_EQ(ioBench.Management()->SetCustomDefault("ratio", text), S_OK);
}

void HaveRecord(FaultBench& ioBench)
{
    AddRecord(ioBench.m_model, ioBench.Part(), "ratio", "0.75");
}

void HaveValue(FaultBench& ioBench)
{
    Write(ioBench.Part(), "ratio", "0.25");
}

void HaveFlags(FaultBench& ioBench)
{
    unsigned char isSet = ORXFalse;
    EXPECT_EQ(ioBench.Management()->IsSet("ratio", isSet), S_OK);
    EXPECT_EQ(ioBench.Management()->SetIsAuto("ratio", ORXFalse), S_OK);
}

void AddFlags(ScenarioGroup& ioGroup)
{
    constexpr Scenario::Kind reads = Scenario::Kind::Reads;
    constexpr Scenario::Kind handsOn = Scenario::Kind::HandsOn;
    std::vector<Scenario>& scenarios = ioGroup.scenarios;
    scenarios.push_back(Operation("IsSet, no flag", &IsSet));
    scenarios.push_back(Operation("IsSet, a flag", &IsSet, Scenario::Kind::Writes, &HaveValue));
    scenarios.push_back(Operation("SetIsSet, no flag", &MarkSet));
    scenarios.push_back(Operation("SetIsSet, a flag", &MarkSet, handsOn, &HaveFlags));
    scenarios.push_back(Operation("HasAuto, no flag", &HasAuto, reads));
    scenarios.push_back(Operation("HasAuto, a flag", &HasAuto, reads, &HaveFlags));
    scenarios.push_back(Operation("GetIsAuto, no flag", &GetIsAuto, reads));
    scenarios.push_back(Operation("GetIsAuto, a flag", &GetIsAuto, reads, &HaveFlags));
    scenarios.push_back(Operation("SetIsAuto, no flag", &MarkAuto));
    scenarios.push_back(Operation("SetIsAuto, a flag", &MarkAuto, Scenario::Kind::Writes, &HaveFlags));
    scenarios.push_back(
        Operation("SetIsAuto, a flag and a value", &MarkAuto, Scenario::Kind::Writes, [](FaultBench& ioBench) {
            HaveFlags(ioBench);
            HaveValue(ioBench);
        }));
}

void AddDefaults(ScenarioGroup& ioGroup)
{
    constexpr Scenario::Kind reads = Scenario::Kind::Reads;
    constexpr Scenario::Kind writes = Scenario::Kind::Writes;
    std::vector<Scenario>& scenarios = ioGroup.scenarios;
    scenarios.push_back(Operation("GetDefault, declared", &GetDefault, reads));
    scenarios.push_back(Operation("GetDefault, custom", &GetDefault, reads, &HaveCustomDefault));
    scenarios.push_back(Operation("GetDefault, recorded", &GetDefault, reads, &HaveRecord));
    scenarios.push_back(Operation("GetDefault, of nothing", &GetDefaultOfNothing, reads));
    scenarios.push_back(Operation("SetCustomDefault, real", &SetDefault<0>));
    scenarios.push_back(Operation("SetCustomDefault, integer", &SetDefault<1>));
    scenarios.push_back(Operation("SetCustomDefault, string", &SetDefault<2>));
    scenarios.push_back(Operation("SetCustomDefault, boolean", &SetDefault<3>));
    scenarios.push_back(Operation("SetCustomDefault, enumeration", &SetDefault<4>));
    scenarios.push_back(Operation("SetCustomDefault, list", &SetDefault<5>));
    scenarios.push_back(Operation("SetCustomDefault, on a value", &SetDefault<0>, writes, &HaveValue));
    scenarios.push_back(Operation("HasCustomDefault", &HasCustomDefault, reads, &HaveCustomDefault));
    scenarios.push_back(Operation("RemoveCustomDefault", &TakeDefaultAway, reads, &HaveCustomDefault));
    scenarios.push_back(Operation("RemoveAllCustomDefaults", &TakeDefaultsAway, reads, &HaveCustomDefault));
    scenarios.push_back(Operation("Unset, to the declared default", &Unset, writes, &HaveValue));
    scenarios.push_back(Operation("Unset, to a custom default", &Unset, writes, [](FaultBench& ioBench) {
        HaveCustomDefault(ioBench);
        HaveValue(ioBench);
    }));
    scenarios.push_back(Operation("Unset, to a record", &Unset, writes, [](FaultBench& ioBench) {
        HaveValue(ioBench);
        HaveRecord(ioBench);
    }));
}

/// What users do to the attributes themselves.
void AddWrites(ScenarioGroup& ioGroup)
{
    const auto add = [&ioGroup](const char* iName, const std::function<Action(FaultBench&)>& iPrepare) {
        Scenario scenario;
        scenario.name = iName;
        scenario.prepare = iPrepare;
        ioGroup.scenarios.push_back(std::move(scenario));
    };
    add("the making of default management", [](FaultBench& ioBench) -> Action {
        return [part = ioBench.Part()] { return std::string(!DefaultManagementOf(part) ? "null" : "found"); };
    });
    add("a write", [](FaultBench& ioBench) -> Action {
        ioBench.Management();
        return [parameter = Cursor(ioBench.Part()).Get("ratio").GetParm()] {
            parameter->Valuate(0.25);
            return AnswerOf(S_OK);
        };
    });
    add("a first write", [](FaultBench& ioBench) -> Action {
        return [parameter = Cursor(ioBench.Part()).Get("ratio").GetParm()] {
            parameter->Valuate(0.25);
            return AnswerOf(S_OK);
        };
    });
    add("a value taken away", [](FaultBench& ioBench) -> Action {
        HaveValue(ioBench);
        return
            [parameter = Cursor(ioBench.Part()).Get("ratio").GetParm(), unset = UnsetValue(ioBench.Part(), "ratio")] {
                parameter->ValuateFromValue(unset);
                return AnswerOf(S_OK);
            };
    });
    add("a list written", [](FaultBench& ioBench) -> Action {
        return [cursor = ioBench.At("titles")] {
            return AnswerOf(cursor.SetStrings(std::vector<ORXUnicodeString>{"drag"}));
        };
    });
    add("an auto flag written", [](FaultBench& ioBench) -> Action {
        HaveFlags(ioBench);
        HaveValue(ioBench);
        return [flag = Cursor(ioBench.Part()).GetByPath("defaultManagement/ratio_isauto")] {
            return AnswerOf(flag.SetBoolean(true));
        };
    });
}
} // namespace

void AddDefaultScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ioGroups.push_back({"defaults_flags", {}});
    AddFlags(ioGroups.back());
    ioGroups.push_back({"defaults", {}});
    AddDefaults(ioGroups.back());
    ioGroups.push_back({"defaults_writes", {}});
    AddWrites(ioGroups.back());
}
