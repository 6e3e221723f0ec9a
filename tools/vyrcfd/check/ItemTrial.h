#ifndef ItemTrial_H
#define ItemTrial_H

/**
 * @file
 * Trying items out on an object that their configuration is for.
 */

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "CheckRun.h"
#include "ConditionText.h"
#include "PathWalk.h"

namespace Tool
{
/// An object that a configuration is for.
struct Trial
{
    VYRCfdObjectAccess object;
    ObjectPlace place;
    /// Not what a catalog says, but the type that most paths of the configuration fit.
    bool isGuessed = false;
    /// Applied under a condition, here or further out.
    bool isConditional = false;

    /// Such as `on "Type/path"`.
    std::string Where() const;
    /// What is certain on the object; on one that was guessed it is a warning.
    Severity Worst() const { return isGuessed ? Severity::Warning : Severity::Error; }
};

/// A finding without what was probably meant, and the names among which to look for that.
struct TrialFinding
{
    Finding finding;
    std::string unknown{};
    std::vector<std::string> known{};
    /// A finding of the texts that is the same mistake, seen from elsewhere.
    std::optional<Finding> replaced{};
    /// Of a path: what was meant is known, and leads on.
    bool isMisspelt = false;
};

using TrialFindings = std::vector<TrialFinding>;

/// Gives the attribute its default as the engine does, and again as the engine does it when the model is opened.
class DefaultTrial
{
public:
    void Check(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);

private:
    /// What is wrong with a default, wherever an item gives it.
    struct Verdict
    {
        bool isGood = true;
        FindingKind kind = FindingKind::DefaultInvalid;
        bool isCertain = true;
        std::string message{};
        std::vector<std::string> known{};
        /// What was probably meant, where that is none of a few.
        std::string meant{};
    };

    static Verdict Try(const Trial& iTrial, const std::string& iName, const std::string& iText);
    static Verdict TryOnAttribute(const Trial& iTrial, const std::string& iName, const std::string& iText);

    /// By type of the object, attribute and text.
    std::map<std::tuple<std::string, std::string, std::string>, Verdict> m_verdicts;
};

/// Fills the list attribute as the engine does.
void TryValues(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);

/// Configures the Choice as the engine does. @return whether what the Choice offers was changed
bool TryChoice(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);

/// The texts of the enumeration that an attribute is; empty for any other.
std::vector<std::string> TextsOf(const VYRCfdObjectAccess& iAttribute);

/// What a comparison with an attribute comes to. @param ioParts a misspelt choice becomes the one that was meant
/// @return false where it is not known which one is meant
bool CheckComparison(const SourceItem& iItem, const Trial& iTrial, ConditionText& ioParts,
                     const VYRCfdObjectAccess& iAttribute, TrialFindings& oFindings);

/// Adds that a path of an item leads nowhere, unless there is no misstep on it.
void AddMissteps(const SourceItem& iItem, const Trial& iTrial, const char* iKey, const std::string& iPath,
                 const Missteps& iMissteps, TrialFindings& oFindings);

/// Of an item whose path is the name of one attribute: that of the attribute, or the one that was meant, which is told.
/// Empty where there is none.
std::string AttributeMeant(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);

/// Adds that an attribute need not be there, and what comes of it.
void AddOptional(const SourceItem& iItem, const Trial& iTrial, const char* iKey, Severity iSeverity,
                 const std::string& iName, const std::string& iConsequence, TrialFindings& oFindings);
} // namespace Tool

#endif
