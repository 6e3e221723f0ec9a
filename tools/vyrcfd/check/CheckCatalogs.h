#ifndef CheckCatalogs_H
#define CheckCatalogs_H

#include <string>
#include <vector>

#include "CheckRun.h"
#include "VYRStandaloneErrors.h"

namespace Tool
{
/// The catalogs that the files are checked against: those that are named, and those of the installation.
class CheckCatalogs
{
public:
    /// Declares them. One that cannot be read, or is refused, is a finding.
    CheckCatalogs(const Installation& iInstallation, const std::vector<std::string>& iNamed, CheckRun& ioRun);

    /// What is declared, so that it can be looked up where.
    const std::vector<std::string>& Files() const noexcept { return m_files; }
    /// Whether one is not declared, so that types are missing.
    bool HaveFailed() const noexcept { return m_haveFailed; }

private:
    template <class Declare> void Declared(const std::string& iFile, Declare iDeclare);
    /// Tells of a catalog of the installation that nobody finds.
    void AddMissing(const std::string& iName, Finding iFinding, CheckRun& ioRun);
    void AddErrors(const std::vector<std::string>& iFolders, CheckRun& ioRun);

    std::vector<std::string> m_files;
    bool m_haveFailed = false;
    std::vector<std::string> m_missing;
    std::vector<VYRStandalone::DocumentError> m_errors;
};
} // namespace Tool

#endif
