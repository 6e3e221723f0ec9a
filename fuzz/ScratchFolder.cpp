#include "ScratchFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "FuzzTarget.h"

ScratchFolder::ScratchFolder() : m_path((std::filesystem::temp_directory_path() / "vyrcfd-fuzz-XXXXXX").string())
{
    Demand(mkdtemp(m_path.data()) != nullptr, "a temporary folder can be made", m_path);
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string ScratchFolder::Write(const std::string& iName, std::string_view iText) const
{
    const std::filesystem::path file = Path(iName);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << iText;
    Demand(stream.flush().good(), "a temporary file can be written", file.string());
    return file.string();
}
