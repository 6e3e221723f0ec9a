#ifndef Installation_H
#define Installation_H

/**
 * @file
 * The installation that a run works on.
 */

#include <string>
#include <vector>

#include "VYRStandaloneModel.h"

namespace Tool
{
/// What every command takes.
struct CommonOptions
{
    /// Empty where the option was not given.
    std::string installation;
    std::vector<std::string> catalogs;
    bool json = false;
};

/**
 * One folder, or several with the platform's path separator between, like the variable: the option, else the variable
 * ORXInstallPath, else the sample installation. The module is told.
 */
class Installation
{
public:
    /// @throws Failure for a folder that is not there
    explicit Installation(const CommonOptions& iOptions);

    const std::string& Path() const noexcept { return m_path; }
    /// At least one, in their order.
    const std::vector<std::string>& Folders() const noexcept { return m_folders; }

    /// Declares the catalogs of the options. @throws VYRStandalone::DocumentError
    void LoadCatalogs() const;

    /// The catalogs of the options are declared, and those that the model names are sought beside it and in the
    /// installation. Types that ask for a manager of Choices get the tool's. @throws VYRStandalone::DocumentError
    VYRStandalone::Model LoadModel(const std::string& iFile) const;

    /// Catalogs of the options, as they were named.
    const std::vector<std::string>& Catalogs() const noexcept { return m_catalogs; }
    /// Where catalogs are sought that do not stand beside the file that names them.
    const std::vector<std::string>& CatalogFolders() const noexcept { return m_catalogFolders; }

private:
    std::string m_path;
    std::vector<std::string> m_folders;
    std::vector<std::string> m_catalogs;
    std::vector<std::string> m_catalogFolders;
};
} // namespace Tool

#endif
