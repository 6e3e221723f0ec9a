#ifndef Command_H
#define Command_H

/**
 * @file
 * The commands. Each declares itself to the command line, and leaves its work to be done when it was chosen.
 * From what they declare are made the help, the manual page and the completion of shells, so arguments are called what
 * they stand for: MODEL, CATALOG, CONFIG, OBJECT, PATH, FILE, DIR. A footer is paragraphs, and ends with an example.
 */

#include <functional>

#include <CLI/CLI.hpp>

#include "CommandLine.h"
#include "Installation.h"

namespace Tool
{
/// @throws Failure, VYRStandalone::DocumentError
using Job = std::function<void()>;

/// The options that every command takes, before its name or behind it.
void AddCommonOptions(CLI::App& ioApp, CommonOptions& ioOptions);

/// What is wrong with the name of a file to write; empty for nothing. To be given to `CLI::Option::check`.
std::string ObjectionToOutput(const std::string& iFile);

// The options must outlive the job.
void AddApplyCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddShowCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddExplainCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddListCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddCheckCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddDescribeCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddGraphCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddPurgeCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddShellCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
void AddInterfaceCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob);
} // namespace Tool

#endif
