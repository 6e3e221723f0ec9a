#include "Scenario.h"

#include "VYRCfdConfigurator.h"

namespace
{
/// A configurator that has read nothing yet.
class FreshConfigurator : public VYRCfdConfigurator
{
public:
    explicit FreshConfigurator(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles) {}
};

enum class Target
{
    Part,
    Choice,
    Managed
};

ORXISpecObject_var ObjectOf(FaultBench& ioBench, Target iTarget)
{
    switch (iTarget)
    {
    case Target::Part:
        return ioBench.Part();
    case Target::Choice:
        return ioBench.Choice();
    case Target::Managed:
        return ioBench.Managed();
    }
    return {};
}

/// @param iBefore another configuration that was applied before; empty for none
Scenario Application(const char* iConfiguration, Target iTarget = Target::Part, const char* iBefore = "")
{
    Scenario scenario;
    scenario.name = std::string(iConfiguration) + (*iBefore != '\0' ? std::string(" behind ") + iBefore : "");
    scenario.prepare = [=](FaultBench& ioBench) -> Action {
        const ORXISpecObject_var object = ObjectOf(ioBench, iTarget);
        if (*iBefore != '\0')
        {
            EXPECT_GE(FaultBench::Configurator().ApplyConfiguration(object, iBefore), 0) << iBefore;
            // A Choice that is configured sees its lists at unequal lengths in between.
            VYRStandalone::TakeReports();
        }
        return [object, name = ORXUnicodeString(iConfiguration)] {
            return AnswerOf(static_cast<HRESULT>(FaultBench::Configurator().ApplyConfiguration(object, name)));
        };
    };
    return scenario;
}

Scenario Loading()
{
    Scenario scenario;
    scenario.name = "GetConfigurationMap of a fresh configurator";
    scenario.kind = Scenario::Kind::Reads;
    scenario.prepare = [](FaultBench&) -> Action {
        const auto configurator = std::make_shared<FreshConfigurator>(InstallationFiles());
        return [configurator] {
            VYRCfdConfigurationMap map;
            // Asked first, whichever side of the sum the compiler begins with.
            const std::string answer = AnswerOf(configurator->GetConfigurationMap(map));
            return answer + " " + std::to_string(map.size());
        };
    };
    return scenario;
}

Scenario FirstApplication()
{
    Scenario scenario;
    scenario.name = "the first application of a configurator";
    scenario.prepare = [](FaultBench& ioBench) -> Action {
        const auto configurator = std::make_shared<FreshConfigurator>(InstallationFiles());
        return [configurator, part = ioBench.Part()] {
            return AnswerOf(static_cast<HRESULT>(configurator->ApplyConfiguration(part, "default")));
        };
    };
    return scenario;
}
} // namespace

void AddConfigurationScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ScenarioGroup items{"configurations_items", {}};
    for (const char* name :
         {"values", "swallowed", "default", "number", "automatic", "holds", "doesNotHold", "none", "nowhere"})
        items.scenarios.push_back(Application(name));
    items.scenarios.push_back(Application("choice", Target::Choice));
    items.scenarios.push_back(Application("managed", Target::Managed));
    items.scenarios.push_back(Application("choice", Target::Managed));
    items.scenarios.back().name = "choice with startups on a manager";
    items.scenarios.push_back(Application("recordAll", Target::Choice));
    ioGroups.push_back(std::move(items));

    ScenarioGroup nested{"configurations_nested", {}};
    for (const char* name : {"nested", "nestedChoice", "nestedNowhere", "itself", "all"})
        nested.scenarios.push_back(Application(name));
    nested.scenarios.push_back(Application("all", Target::Part, "default"));
    nested.scenarios.push_back(Application("default", Target::Part, "all"));
    ioGroups.push_back(std::move(nested));

    ScenarioGroup loading{"configurations_loading", {}};
    loading.scenarios.push_back(Loading());
    loading.scenarios.push_back(FirstApplication());
    ioGroups.push_back(std::move(loading));
}
