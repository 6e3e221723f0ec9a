#include "Installation.h"

#include <filesystem>
#include <sstream>

#include "ChoiceManager.h"
#include "Failure.h"
#include "ORXEnvironment.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneServices.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char PathVariable[] = "ORXInstallPath";
constexpr char PathSeparator = ':';

std::string ChosenPath(const CommonOptions& iOptions)
{
    if (!iOptions.installation.empty())
        return iOptions.installation;
    const char* path = ORXGetOfficialVariable(PathVariable);
    return path != nullptr && *path != '\0' ? path : VYR_SAMPLES_DIR;
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
        m_catalogFolders.push_back((std::filesystem::path(folder) / "catalogs").string());
    }
    VYRStandalone::SetOfficialVariable(PathVariable, m_path);
}

VYRStandalone::Model Installation::LoadModel(const std::string& iFile) const
{
    for (const std::string& catalog : m_catalogs)
        VYRStandalone::LoadCatalog(catalog, m_catalogFolders);
    VYRStandalone::Model model = VYRStandalone::Model::Load(iFile, m_catalogFolders);
    // Now that all types are declared, and before anything is asked of an object.
    ChoiceManager::Register();
    return model;
}
} // namespace Tool
