#ifndef ShellSession_H
#define ShellSession_H

/**
 * @file
 * What the shell's commands work on.
 */

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Installation.h"
#include "ObjectPath.h"
#include "Snapshot.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/// One model, from its loading to the end of the session.
class ShellSession
{
public:
    /// @throws VYRStandalone::DocumentError
    ShellSession(Installation iInstallation, std::string iFile);

    const VYRStandalone::Model& Model() const noexcept { return m_model; }

    /// Paths as on the command line. @throws Failure
    ORXISpecObject_var Object(const std::string& iPath) const { return FollowToObject(m_model, {}, iPath); }
    Target Attribute(const std::string& iPath) const { return FollowToAttribute(m_model, {}, iPath); }
    /// The attribute with its value and its flags.
    ObjectSnapshot Read(const Target& iAttribute, const std::string& iPath) const;

    /// Does something to the model, and prints what has changed, also when it fails in the middle.
    void Change(const std::function<void()>& iWork);

    /// Names of the configurations; their files are read at the first call. @throws Failure,
    /// VYRStandalone::DocumentError
    const std::vector<std::string>& Configurations();

    /// Takes what the error service holds, one line a report, and keeps it for `ReportsSoFar`.
    std::vector<std::string> TakeReports();
    const std::vector<std::string>& ReportsSoFar() const noexcept { return m_reports; }

    /// @param iFile empty for the model's own @return the file @throws VYRStandalone::DocumentError
    std::string Save(const std::string& iFile);

    /// Ends the session after this command, unless somebody has to be warned first.
    void Leave() { m_isLeaving = true; }
    bool IsLeaving() const noexcept { return m_isLeaving; }
    /// The user has been warned, or something else is to be done first.
    void Stay() { m_isLeaving = false; }

    /// Whether leaving would lose changes of which `true` was not answered before.
    bool MustWarn();

private:
    Installation m_installation;
    std::string m_file;
    VYRStandalone::Model m_model;
    std::string m_savedText;
    std::string m_warnedText;
    std::optional<std::vector<std::string>> m_configurations;
    std::vector<std::string> m_reports;
    bool m_isLeaving = false;
};
} // namespace Tool

#endif
