#ifndef ShellCompletion_H
#define ShellCompletion_H

/**
 * @file
 * What a word of a command could become.
 */

#include "ShellCommands.h"
#include "TerminalLines.h"

namespace Tool
{
/// Commands for the first word; for the others what the usage line calls them: paths of objects and attributes,
/// choices, configurations, files, or the words that stand there. Changes nothing and reports nothing.
class ShellCompletion
{
public:
    explicit ShellCompletion(ShellSession& ioSession) : m_session(ioSession) {}

    Completions Of(std::string_view iLine, std::size_t iStart, const std::string& iWord);

private:
    std::vector<Completion> Meanings(const std::string& iArgument, const ShellArguments& iBefore,
                                     const std::string& iWord);
    /// Values of an attribute of which there are but a few; objects for one that holds objects.
    std::vector<Completion> Values(const std::string& iPath, const std::string& iWord) const;
    std::vector<Completion> Paths(const std::string& iWord) const;
    /// Ends the one path that is left where no "/" is to be expected behind it.
    void SettlePath(const std::string& iCommand, std::vector<Completion>& ioCandidates) const;
    std::vector<Completion> Choices(const std::string& iCommand, const ORXISpecObject_var& iObject) const;

    ShellSession& m_session;
};
} // namespace Tool

#endif
