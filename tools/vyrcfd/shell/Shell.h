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
/**
 * Runs commands until their end or until the session is left. On a terminal a failing command is told of, and the
 * session goes on; in a script it is the end.
 * @throws Failure with the place of the command that failed in a script
 */
void RunShell(ShellSession& ioSession, LineSource& ioLines);
} // namespace Tool

#endif
