#include "ConfigurationFiles.h"

#include "ConfigurationShape.h"
#include "ConfigurationSource.h"
#include "Wording.h"

namespace Tool
{
std::vector<ConfigurationFile> ReadConfigurationFiles(const Installation& iInstallation)
{
    const ConfigurationSource source(iInstallation);
    std::vector<ConfigurationFile> files;
    auto next = source.Configurations().begin();
    for (const SourceFile& file : source.Files())
    {
        std::vector<ConfigurationDefinition>& definitions =
            files.emplace_back(ConfigurationFile{file.Path(), {}, OdditiesOf(file)}).definitions;
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

std::string OddityNote(const std::vector<ConfigurationFile>& iFiles)
{
    std::string first;
    std::size_t others = 0;
    for (const ConfigurationFile& file : iFiles)
        for (const std::string& oddity : file.oddities)
        {
            others += first.empty() ? 0 : 1;
            first = first.empty() ? oddity : first;
        }
    if (first.empty())
        return {};
    const std::string more =
        others == 0 ? "" : std::string(others == 1 ? ", as is " : ", as are ") + Counted(others, "other mistake");
    return "note: " + first + ", and is passed over" + more + "; see vyrcfd check";
}
} // namespace Tool
