#ifndef ToolRun_H
#define ToolRun_H

/**
 * @file
 * Running the tool as a user does: a process of its own, with its own working folder.
 */

#include <map>
#include <string>
#include <utility>
#include <vector>

struct ToolRun
{
    /// Exit status; 128 and the signal for a process that a signal has ended.
    int status = 0;
    std::string output;
    std::string errors;
};

/// What the shell shows on a terminal when it waits for a command.
inline constexpr char Prompt[] = "vyrcfd> ";

struct ToolSettings
{
    ToolSettings(std::string iFolder = {}) : folder(std::move(iFolder)) {}

    /// Working folder.
    std::string folder;
    /// Variables beside the few that are handed on, or in place of them.
    std::map<std::string, std::string> environment;
    /// In place of being caught, standard output goes to this file.
    std::string outputFile;
    /// Standard output is a pipe that nobody reads.
    bool brokenPipe = false;
    /// Standard output is a terminal, which is read.
    bool terminal = false;
    /// What stands on standard input.
    std::string input;
    /// It comes through a pipe, and not from a file: less than the 64 kB that a pipe holds.
    bool pipedInput = false;
    /// Keys that somebody types: standard input and standard output are a terminal, and each text is typed at a prompt,
    /// one after the other. At a prompt for which nothing is left, Ctrl-D is.
    std::vector<std::string> typed;
    /// Columns of the terminal; 0 where it does not say how many it has.
    unsigned short columns = 0;
    /// No file may become longer; 0 for any length.
    unsigned long longestFile = 0;
};

/// Runs vyrcfd. Of the environment it sees what settings say and nothing that would steer it.
ToolRun RunTool(const std::vector<std::string>& iArguments, const ToolSettings& iSettings);

#endif
