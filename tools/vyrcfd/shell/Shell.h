#ifndef Shell_H
#define Shell_H

/**
 * @file
 * Reading commands and running them, one after the other.
 */

#include "LineSource.h"
#include "ShellSession.h"

namespace Tool
{
struct ShellSettings
{
    /// Answers are JSON, one line a command.
    bool isJson = false;
    /// A script goes on behind a command that has failed.
    bool keepsGoing = false;
};

/**
 * Runs commands until their end or until the session is left. On a terminal a failing command is told of, and the
 * session goes on; in a script it is the end, unless the settings say otherwise.
 * @throws Failure with the place of the command that failed in a script, or at the end of the script with how many
 * have failed
 */
void RunShell(ShellSession& ioSession, LineSource& ioLines, const ShellSettings& iSettings = {});
} // namespace Tool

#endif
