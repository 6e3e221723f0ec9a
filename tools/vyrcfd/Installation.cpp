#include "Installation.h"

#include <filesystem>
#include <sstream>

#include "ChoiceManager.h"
#include "Failure.h"
#include "InputFile.h"
#include "ORXEnvironment.h"
#include "Progress.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneServices.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char PathVariable[] = "ORXInstallPath";
constexpr char PathSeparator = ':';

/// The sample installation as it lies from the program, so that both may be moved: where they are installed, else where
/// the program was built.
std::string SamplePath()
{
    std::error_code none;
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
    const std::filesystem::path installed = (folder / VYR_SAMPLES_FROM_INSTALLED).lexically_normal();
    const std::filesystem::path built = (folder / VYR_SAMPLES_FROM_BUILT).lexically_normal();
    const bool isBuilt = !std::filesystem::is_directory(installed, none) && std::filesystem::is_directory(built, none);
    return (isBuilt ? built : installed).string();
}

std::string ChosenPath(const CommonOptions& iOptions)
{
    if (!iOptions.installation.empty())
        return iOptions.installation;
    const char* path = ORXGetOfficialVariable(PathVariable);
    return path != nullptr && *path != '\0' ? path : SamplePath();
}
} // namespace

Installation::Installation(const CommonOptions& iOptions) : m_path(ChosenPath(iOptions)), m_catalogs(iOptions.catalogs)
{
    std::istringstream folders(m_path);
    for (std::string folder; std::getline(folders, folder, PathSeparator);)
    {
        if (folder.empty())
            continue;
        std::error_code ignored;
        if (!std::filesystem::is_directory(folder, ignored))
            throw Failure(OneLine(folder) + ": is no folder, so there is no installation");
        m_folders.push_back(folder);
        m_catalogFolders.push_back((std::filesystem::path(folder) / "catalogs").string());
    }
    if (m_folders.empty())
        throw Failure(Quoted(m_path) + " names no folder, so there is no installation");
    VYRStandalone::SetOfficialVariable(PathVariable, m_path);
}

void Installation::LoadCatalogs() const
{
    for (const std::string& catalog : m_catalogs)
    {
        AdmitInput(catalog);
        VYRStandalone::LoadCatalog(catalog, m_catalogFolders);
    }
}

VYRStandalone::Model Installation::LoadModel(const std::string& iFile) const
{
    AdmitInput(iFile);
    const Progress progress("Loading " + OneLine(iFile));
    LoadCatalogs();
    VYRStandalone::Model model = VYRStandalone::Model::Load(iFile, m_catalogFolders);
    // Now that all types are declared, and before anything is asked of an object.
    ChoiceManager::Register();
    return model;
}
} // namespace Tool
