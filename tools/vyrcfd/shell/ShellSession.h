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

#include "Answer.h"
#include "Installation.h"
#include "ObjectPath.h"
#include "ShellReports.h"
#include "Snapshot.h"
#include "UndoHistory.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/**
 * One model, from its loading to the end of the session.
 *
 * What a command changes goes through `Change`, which knows the model's text before and after it. Undo reads the former
 * text anew, so that objects are others afterwards, and what lives in memory only is lost: custom defaults.
 */
class ShellSession
{
public:
    /// @throws VYRStandalone::DocumentError
    ShellSession(Installation iInstallation, std::string iFile);

    const VYRStandalone::Model& Model() const noexcept { return m_model; }
    const Installation& UsedInstallation() const noexcept { return m_installation; }
    /// The model's own, which it was read from.
    const std::string& File() const noexcept { return m_file; }
    ShellReports& Reports() noexcept { return m_reports; }

    /// Begins a command. @param iCommand its words, as undo names it
    void Begin(std::string iCommand);
    /// The answer of the command; the last one counts.
    void Say(Answer iAnswer) { m_answer = std::move(iAnswer); }
    /// What the command has answered, also when it has failed behind that.
    const Answer& Said() const noexcept { return m_answer; }

    /// Paths as on the command line. @throws Failure
    ORXISpecObject_var Object(const std::string& iPath) const { return FollowToObject(m_model, {}, iPath); }
    Target Attribute(const std::string& iPath) const { return FollowToAttribute(m_model, {}, iPath); }
    /// The attribute with its value and its flags.
    AttributeSnapshot Read(const Target& iAttribute, const std::string& iPath) const;

    enum class Touches
    {
        Model,
        /// Also custom defaults, so that there is something to take back where the model stays the same.
        CustomDefaults
    };

    /**
     * Does something to the model, and answers what has changed, also when it fails in the middle. A model that could
     * not be saved any more is put back.
     * @throws Failure and what the work throws
     */
    void Change(const std::function<void()>& iWork, Touches iTouches = Touches::Model);
    /// Takes back what the last `Change` has done, and answers what that changes. @throws Failure when there is none
    void Undo();

    /// Inside of `Change`: makes a top-level object.
    ORXISpecObject_var Create(const std::string& iType, const std::string& iName);
    /// Inside of `Change`: what the text says takes the place of the model, and the user is told that custom defaults
    /// are lost. @throws VYRStandalone::DocumentError, and nothing has changed
    void Replace(const std::string& iText);

    /// Names of the configurations; their files are read at the first call. @throws Failure,
    /// VYRStandalone::DocumentError
    const std::vector<std::string>& Configurations();

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
    /// What the model holds, kept from one command to the next.
    const Snapshot& Before();
    /// The model's text. @throws Failure when there is none, and the model is what it was before
    std::string TextOrPutBack();
    /// Answers what has changed since `Before`. @return whether anything has
    bool SayChanges();
    /// After an exception of a command. @throws it again
    [[noreturn]] void FailWith(const std::exception_ptr& iFailure, bool iHasChanged);

    Installation m_installation;
    std::string m_file;
    VYRStandalone::Model m_model;
    /// As the last change has left it.
    std::string m_text;
    std::string m_savedText;
    std::string m_warnedText;
    std::string m_command;
    Answer m_answer;
    UndoHistory m_history;
    std::optional<Snapshot> m_before;
    /// Objects are others than in `m_before`.
    bool m_isReplaced = false;
    std::optional<std::vector<std::string>> m_configurations;
    ShellReports m_reports;
    bool m_isLeaving = false;
};
} // namespace Tool

#endif
