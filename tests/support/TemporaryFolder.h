#ifndef TemporaryFolder_H
#define TemporaryFolder_H

/**
 * @file
 * A folder for the files of one test.
 */

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

/// Made empty, and removed with everything in it.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "vyrcfd-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder: " + pattern);
        m_path = pattern;
    }

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string Path() const { return m_path.string(); }
    std::string Path(const std::string& iName) const { return (m_path / iName).string(); }

    /// Writes a file below the folder, with the folders that it needs. @return its full path
    std::string Write(const std::string& iName, const std::string& iText) const
    {
        const std::filesystem::path file = m_path / iName;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << iText;
        return file.string();
    }

    std::string Read(const std::string& iName) const
    {
        std::ifstream file(m_path / iName, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    /// Names of what stands directly in the folder.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path m_path;
};

#endif
