#include "ConfigurationFiles.h"

#include "ConfigurationShape.h"
#include "ConfigurationSource.h"

namespace Tool
{
std::vector<ConfigurationFile> ReadConfigurationFiles(const Installation& iInstallation)
{
    const ConfigurationSource source(iInstallation);
    std::vector<ConfigurationFile> files;
    auto next = source.Configurations().begin();
    for (const SourceFile& file : source.Files())
    {
        CheckConfigurationShape(file);
        std::vector<ConfigurationDefinition>& definitions =
            files.emplace_back(ConfigurationFile{file.Path(), {}}).definitions;
        for (; next != source.Configurations().end() && next->file == &file; ++next)
        {
            definitions.push_back({next->name, next->items.size(), next->position, std::nullopt});
            if (next->hiddenBy != nullptr)
                definitions.back().hiddenBy = {next->hiddenBy->file->Path(), next->hiddenBy->position};
        }
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
