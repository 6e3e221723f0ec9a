#include "HistoryFile.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <readline/history.h>

namespace Tool
{
namespace
{
std::string Variable(const char* iName)
{
    const char* const value = std::getenv(iName);
    return value != nullptr ? value : "";
}

/// Empty for none.
std::string ChosenFile()
{
    if (std::getenv("VYRCFD_HISTORY") != nullptr)
        return Variable("VYRCFD_HISTORY");
    std::filesystem::path folder = Variable("XDG_STATE_HOME");
    if (!folder.is_absolute())
        folder = std::filesystem::path(Variable("HOME")) / ".local" / "state";
    return folder.is_absolute() ? (folder / "vyrcfd" / "history").string() : std::string();
}
} // namespace

HistoryFile::HistoryFile() : m_file(ChosenFile())
{
    using_history();
    stifle_history(MostLines);
    if (m_file.empty())
        return;
    std::error_code ignored;
    if (const std::filesystem::path folder = std::filesystem::path(m_file).parent_path(); !folder.empty())
        std::filesystem::create_directories(folder, ignored);
    // Only a file of lines is cut, since anything else may be named by mistake.
    if (read_history(m_file.c_str()) == 0 && std::filesystem::is_regular_file(m_file, ignored))
        history_truncate_file(m_file.c_str(), MostLines);
}

void HistoryFile::Add(const std::string& iLine)
{
    // A completed word has a blank behind it.
    const std::string line = iLine.substr(0, iLine.find_last_not_of(" \t") + 1);
    if (line.empty() || line == m_last)
        return;
    m_last = line;
    add_history(line.c_str());
    if (m_file.empty())
        return;
    std::error_code ignored;
    const bool isThere = std::filesystem::exists(m_file, ignored);
    // The library appends to what is there only.
    if (isThere)
        append_history(1, m_file.c_str());
    else
        write_history(m_file.c_str());
}
} // namespace Tool
