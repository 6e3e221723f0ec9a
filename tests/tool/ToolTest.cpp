#include "ToolTest.h"

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

ToolTest::ToolTest()
{
    fs::copy(VYR_SAMPLES_DIR, m_folder.Path("samples"), fs::copy_options::recursive);
}

ToolRun ToolTest::Run(std::vector<std::string> iArguments) const
{
    return Run(std::move(iArguments), ToolSettings());
}

ToolRun ToolTest::Run(std::vector<std::string> iArguments, ToolSettings iSettings) const
{
    if (iSettings.folder.empty())
        iSettings.folder = m_folder.Path();
    iArguments.insert(iArguments.begin(), {"--installation", "samples"});
    return RunTool(iArguments, iSettings);
}

std::map<std::string, std::string> ToolTest::Files() const
{
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_folder.Path()))
    {
        const std::string name = entry.path().lexically_relative(m_folder.Path()).string();
        if (entry.is_symlink())
            files[name] = "-> " + fs::read_symlink(entry.path()).string();
        else
            files[name] = entry.is_directory() ? "folder" : Read(name);
    }
    return files;
}

void ToolTest::AddSmallModel() const
{
    for (const char* name : {"Small.catalog.json", "small.model.json", "flow.model.json"})
        Write(name, ReadData(name));
}

std::string ReadData(const std::string& iName)
{
    std::ifstream stream(std::string(VYR_TEST_DATA_DIR) + "/" + iName, std::ios::binary);
    if (!stream)
        ADD_FAILURE() << "no data file " << iName;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string Outcome(const ToolRun& iRun)
{
    return Outcome(iRun.status, iRun.errors);
}

std::string Outcome(int iStatus, const std::string& iErrors)
{
    return "exit " + std::to_string(iStatus) + "\n" + iErrors;
}
