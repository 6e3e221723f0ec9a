#ifndef ScratchFolder_H
#define ScratchFolder_H

/**
 * @file
 * A folder of the process's own for what must stand in files.
 */

#include <string>
#include <string_view>

/// Made below the folder for temporary files, and removed when the process ends.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& Path() const noexcept { return m_path; }
    std::string Path(const std::string& iName) const { return m_path + "/" + iName; }

    /// Writes a file with the folders that it needs. @return its full path
    std::string Write(const std::string& iName, std::string_view iText) const;

private:
    std::string m_path;
};

#endif
