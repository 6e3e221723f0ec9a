#ifndef ShellCommands_H
#define ShellCommands_H

/**
 * @file
 * The commands of the shell.
 */

#include <string>
#include <vector>

#include "Failure.h"
#include "ShellSession.h"

namespace Tool
{
using ShellArguments = std::vector<std::string>;

struct ShellCommand
{
    /// The name and the arguments: "auto PATH [on|off]", "prohibit PATH CHOICE...". Optional ones stand in brackets,
    /// the last one may be repeated. What they are called says what they are: see `ShellCompletion`.
    const char* usage;
    const char* help;
    /// One line that shows it, and what else there is to know; the latter may be empty.
    const char* example;
    const char* more;
    /// @throws Failure, VYRStandalone::DocumentError
    void (*run)(ShellSession& ioSession, const ShellArguments& iArguments);

    std::string Name() const;
    /// The arguments without brackets and dots.
    std::vector<std::string> ArgumentNames() const;
    bool Takes(std::size_t iArguments) const;
};

/// All of them, in the order in which help lists them.
const std::vector<ShellCommand>& ShellCommands();

/// Null for none.
const ShellCommand* FindShellCommand(const std::string& iName);

std::vector<std::string> ShellCommandNames();

/// That there is no such command, and which one was probably meant.
Failure NoShellCommand(const std::string& iName);

/// Runs the command that the words make, which leaves its answer with the session. @throws Failure also for an unknown
/// command and a wrong number of arguments
void RunShellCommand(ShellSession& ioSession, const std::vector<std::string>& iWords);

// By subject, one file each.
void ShellList(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellRecords(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellTest(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellApply(ShellSession& ioSession, const ShellArguments& iArguments);

void ShellGet(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellSet(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellExplain(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellUnset(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellDefault(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellIsSet(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellAuto(ShellSession& ioSession, const ShellArguments& iArguments);

void ShellChoices(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellChoose(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellProhibit(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellAllow(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellReset(ShellSession& ioSession, const ShellArguments& iArguments);

void ShellNew(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellInsert(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellDelete(ShellSession& ioSession, const ShellArguments& iArguments);

void ShellErrors(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellUndo(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellSave(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellHelp(ShellSession& ioSession, const ShellArguments& iArguments);
void ShellQuit(ShellSession& ioSession, const ShellArguments& iArguments);
} // namespace Tool

#endif
