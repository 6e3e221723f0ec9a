#include "ConfigurationSource.h"

#include <cstdint>
#include <filesystem>

#include "ConfigurationKeys.h"
#include "DocumentMessage.h"
#include "Failure.h"
#include "ORXEnvironment.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Below a folder of the installation.
std::string RelativePath(const std::string& iName)
{
    // Of a sum g++ 12 believes, optimised, that it is written beyond its end.
    std::string path("reffiles");
    path.append(ORXFolderSeparator).append("VYRCfdApp").append(ORXFolderSeparator);
    return path + iName;
}

UnreadableFile Missing(const std::string& iName, const Installation& iInstallation)
{
    for (const std::string& folder : iInstallation.Folders())
    {
        const std::string path = ConfigurationFolder(folder) + iName;
        if (const std::string what = NoFileOf(path); !what.empty())
            return {path, {}, what, false, OneLine(path) + ": " + what};
    }
    const std::string relative = RelativePath(iName);
    const std::string why = "no such file in the installation " + OneLine(iInstallation.Path());
    return {ConfigurationFolder(iInstallation.Folders().front()) + iName, {}, why, true, relative + ": " + why};
}

/// Where the engine's reader gives up without a word. What is no file has no size, and is told by whoever reads it.
void RefuseTooLarge(const std::string& iPath)
{
    constexpr std::uintmax_t Most = std::uintmax_t{512} << 20U;
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(iPath, none);
    if (!none && size > Most)
        throw VYRStandalone::DocumentError(iPath, "", "is too large: the engine reads no file above 512 MB");
}

UnreadableFile Unread(const std::string& iPath, const VYRStandalone::DocumentError& iError)
{
    const bool hasPlace = iError.Line() > 0;
    const SourcePosition position = hasPlace ? SourcePosition{iError.Line(), iError.Column()} : SourcePosition{};
    return {iPath, position, MessageOf(iError), false, OneLine(iError.what())};
}
} // namespace

std::string NoFileOf(const std::string& iPath)
{
    std::error_code ignored;
    if (std::filesystem::is_regular_file(iPath, ignored))
        return "";
    if (std::filesystem::is_directory(iPath, ignored))
        return "is a folder, not a file";
    if (std::filesystem::exists(iPath, ignored))
        return "is a pipe or a device, not a file";
    const bool isLink = std::filesystem::is_symlink(std::filesystem::symlink_status(iPath, ignored));
    return isLink ? "is a link that leads to no file" : "";
}

std::vector<std::string> ConfigurationFileNames()
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

std::string ConfigurationFolder(const std::string& iInstallationFolder)
{
    return iInstallationFolder + ORXFolderSeparator + RelativePath({});
}

ConfigurationSource::ConfigurationSource(const Installation& iInstallation, Faults iFaults)
{
    for (const std::string& name : ConfigurationFileNames())
    {
        const char* path = ORXFindPath(RelativePath(name).c_str(), iInstallation.Path().c_str());
        if (path == nullptr)
            m_unreadable.push_back(Missing(name, iInstallation));
        m_paths.emplace_back(path != nullptr ? std::string(path) : m_unreadable.back().path);
        if (path != nullptr)
            Read(m_paths.back());
    }
    std::string lines;
    for (const UnreadableFile& file : m_unreadable)
        lines += (lines.empty() ? "" : "\n") + file.line;
    if (iFaults == Faults::Throw && !lines.empty())
        throw Failure(lines);
}

void ConfigurationSource::Read(const std::string& iPath)
{
    try
    {
        RefuseTooLarge(iPath);
        SourceFile file(iPath);
        const SourceValue& root = file.Root();
        if (!root.Is(SourceValue::Kind::Object))
            throw VYRStandalone::DocumentError(iPath, root.position.line, root.position.column,
                                               WrongKindText("a configuration file", SourceValue::Kind::Object, root));
        m_files.push_back(std::move(file));
        for (const SourceValue* value : m_files.back().Root().ElementsOf("configurations"))
            Add(m_files.back(), *value, value->ElementsOf("config"));
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        m_unreadable.push_back(Unread(iPath, Retold(error)));
    }
}

void ConfigurationSource::Add(const SourceFile& iFile, const SourceValue& iDefinition,
                              const std::vector<const SourceValue*>& iItems)
{
    const std::size_t number = m_configurations.size();
    SourceConfiguration& configuration = m_configurations.emplace_back();
    configuration.number = number;
    configuration.name = iDefinition.TextOf("name");
    configuration.file = &iFile;
    const SourceMember* name = iDefinition.Find("name");
    configuration.position = name != nullptr ? name->value->position : iDefinition.position;
    configuration.value = &iDefinition;
    configuration.items = iItems;
    const auto [first, isFirst] = m_byName.try_emplace(configuration.name, &configuration);
    if (!isFirst)
        configuration.hiddenBy = first->second;
}

void ConfigurationSource::Replace(const SourceConfiguration& iConfiguration, std::size_t iNumber,
                                  const SourceValue& iItem)
{
    m_configurations[iConfiguration.number].items[iNumber - 1] = &iItem;
}

const SourceConfiguration* ConfigurationSource::Find(std::string_view iName) const
{
    const auto found = m_byName.find(iName);
    return found != m_byName.end() ? found->second : nullptr;
}
} // namespace Tool
