#include "ConfigurationSource.h"

#include "Failure.h"
#include "ORXEnvironment.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Names and order are the engine's.
std::vector<std::string> FileNames()
{
    const bool bySlope = ORXGetEnv("VYRCfd_USE_DxSLOPE_CONVG_CRIT") != nullptr;
    return {bySlope ? "SolverConfigurations_dxSlope.json" : "SolverConfigurations.json",
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
            "meshFYEConfig.json"};
}

std::string Find(const std::string& iName, const Installation& iInstallation)
{
    const std::string relative =
        std::string("reffiles") + ORXFolderSeparator + "VYRCfdApp" + ORXFolderSeparator + iName;
    const char* path = ORXFindPath(relative.c_str(), iInstallation.Path().c_str());
    if (path == nullptr)
        throw Failure(relative + ": no such file in the installation " + OneLine(iInstallation.Path()));
    return path;
}
} // namespace

std::vector<std::string> ConfigurationFilePaths(const Installation& iInstallation)
{
    std::vector<std::string> paths;
    for (const std::string& name : FileNames())
        paths.push_back(Find(name, iInstallation));
    return paths;
}

ConfigurationSource::ConfigurationSource(const Installation& iInstallation)
{
    for (const std::string& path : ConfigurationFilePaths(iInstallation))
    {
        const SourceFile& file = m_files.emplace_back(path);
        if (!file.Root().Is(SourceValue::Kind::Object))
            throw VYRStandalone::DocumentError(path, "",
                                               std::string("must be an object, not ") + file.Root().KindText());
        Add(file);
    }
}

void ConfigurationSource::Add(const SourceFile& iFile)
{
    for (const SourceValue* value : iFile.Root().ElementsOf("configurations"))
    {
        SourceConfiguration& configuration = m_configurations.emplace_back();
        configuration.name = value->TextOf("name");
        configuration.file = &iFile;
        const SourceMember* name = value->Find("name");
        configuration.position = name != nullptr ? name->value->position : value->position;
        configuration.value = value;
        configuration.items = value->ElementsOf("config");
        const auto [first, isFirst] = m_byName.try_emplace(configuration.name, &configuration);
        if (!isFirst)
            configuration.hiddenBy = first->second;
    }
}

const SourceConfiguration* ConfigurationSource::Find(std::string_view iName) const
{
    const auto found = m_byName.find(iName);
    return found != m_byName.end() ? found->second : nullptr;
}
} // namespace Tool
