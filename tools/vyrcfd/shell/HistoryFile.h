#ifndef HistoryFile_H
#define HistoryFile_H

/**
 * @file
 * Lines that were typed, from one session to the next.
 */

#include <string>

namespace Tool
{
/**
 * The history of the library that reads the lines, in a file: the one that the variable VYRCFD_HISTORY names, none
 * where it is empty, and otherwise "vyrcfd/history" in the user's folder for such files ($XDG_STATE_HOME, else
 * ~/.local/state). A file that cannot be read or written is no reason to complain: then there is the history of this
 * session alone.
 */
class HistoryFile
{
public:
    /// Reads it.
    HistoryFile();

    /// Adds a line to the history, and at once to the file, so that a session that is killed leaves it behind. A line
    /// that repeats the one before, or holds nothing, adds nothing.
    void Add(const std::string& iLine);

private:
    static constexpr int MostLines = 1000;

    std::string m_file;
    std::string m_last;
};
} // namespace Tool

#endif
