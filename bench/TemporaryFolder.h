#ifndef BenchTemporaryFolder_H
#define BenchTemporaryFolder_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace Bench
{
/// Made empty, and removed with everything in it.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "vyrcfd-bench-XXXXXX").string();
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

    void Write(const std::string& iName, const std::string& iText) const
    {
        const std::filesystem::path file = m_path / iName;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << iText;
    }

private:
    std::filesystem::path m_path;
};
} // namespace Bench

#endif
