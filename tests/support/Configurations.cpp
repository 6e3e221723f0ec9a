#include "Configurations.h"

#include "VYRStandaloneServices.h"

std::string Configuration(const std::string& iName, const std::string& iItems)
{
    return R"({ "name": ")" + iName + R"(", "config": )" + iItems + " }";
}

const std::vector<std::string>& ConfigurationFiles()
{
    static const std::vector<std::string> files{
        "SolverConfigurations.json",
        "SolverConfigurations_dxSlope.json",
        "conditionsConfig_Flow.json",
        "conditionsConfig_Energy.json",
        "conditionsConfig_Turbulence.json",
        "conditionsConfig_Species.json",
        "conditionsConfig_Phase.json",
        "solverConfig_Flow.json",
        "solverConfig_Energy.json",
        "solverConfig_Turbulence.json",
        "solverConfig_MultiSpecies.json",
        "measurementsConfig.json",
        "solverConfig_Radiation.json",
        "conditionsConfig_Radiation.json",
        "conditionsConfig_ECooling.json",
        "solverConfig_MultiPhase.json",
        "meshFYEConfig.json",
    };
    return files;
}

void WriteInstallation(const TemporaryFolder& iFolder, const std::string& iContent)
{
    for (const std::string& name : ConfigurationFiles())
        iFolder.Write("reffiles/VYRCfdApp/" + name, "{}");
    iFolder.Write("reffiles/VYRCfdApp/solverConfig_Flow.json", R"({ "configurations": [)" + iContent + "] }");
}

Configurations::Configurations(const std::vector<std::string>& iConfigurations) : m_configurator({"test.json"})
{
    std::string text;
    for (const std::string& configuration : iConfigurations)
        text += (text.empty() ? "" : ",\n") + configuration;
    m_folder.Write("reffiles/VYRCfdApp/test.json", R"({ "configurations": [)" + text + "] }");
    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path());
}

Configurations::~Configurations()
{
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
}

long Configurations::Apply(const ORXBaseUnknown_var& iObject, const ORXUnicodeString& iName)
{
    return m_configurator.ApplyConfiguration(iObject, iName);
}
