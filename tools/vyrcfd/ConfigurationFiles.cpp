#include "ConfigurationFiles.h"

#include <map>

#include <rapidjson/document.h>

#include "ConfigurationShape.h"
#include "Failure.h"
#include "ORXEnvironment.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Names and order are the engine's: of a name that is defined twice the first definition holds.
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

ConfigurationFile ReadFile(const std::string& iPath)
{
    const rapidjson::Document document = ReadConfigurationDocument(iPath);
    ConfigurationFile file{iPath, {}};
    const auto configurations = document.FindMember("configurations");
    if (configurations == document.MemberEnd())
        return file;
    for (const rapidjson::Value& configuration : configurations->value.GetArray())
    {
        const rapidjson::Value& name = configuration["name"];
        const auto items = configuration.FindMember("config");
        file.definitions.push_back({std::string(name.GetString(), name.GetStringLength()),
                                    items != configuration.MemberEnd() ? items->value.Size() : 0, std::nullopt});
    }
    return file;
}
} // namespace

std::vector<ConfigurationFile> ReadConfigurationFiles(const Installation& iInstallation)
{
    std::vector<ConfigurationFile> files;
    std::map<std::string, std::string> firstFiles;
    for (const std::string& name : FileNames())
    {
        ConfigurationFile file = ReadFile(Find(name, iInstallation));
        for (ConfigurationDefinition& definition : file.definitions)
        {
            const auto [first, isFirst] = firstFiles.try_emplace(definition.name, file.path);
            if (!isFirst)
                definition.hiddenBy = first->second;
        }
        files.push_back(std::move(file));
    }
    return files;
}

std::vector<std::string> ConfigurationNames(const std::vector<ConfigurationFile>& iFiles)
{
    std::vector<std::string> names;
    for (const ConfigurationFile& file : iFiles)
        for (const ConfigurationDefinition& definition : file.definitions)
            if (!definition.hiddenBy)
                names.push_back(definition.name);
    return names;
}
} // namespace Tool
