#include "ORXEnvironment.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include "FileName.h"
#include "Instruments.h"
#include "PerThread.h"
#include "VYRStandaloneServices.h"

namespace
{
using VYRStandalone::Instruments;

constexpr char PathSeparator = ':';

/// What was set here. A text stays where it is until its variable is set anew.
struct OfficialVariables
{
    std::mutex mutex;
    std::map<std::string, std::string, std::less<>> values;
};

OfficialVariables& Variables()
{
    static auto* const variables = new OfficialVariables;
    return *variables;
}

/// Holds what the last look-up of this thread found.
struct FoundPath
{
    std::string path;
};

bool IsRegularFile(const std::string& iPath)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(iPath, ignored);
}
} // namespace

const char* ORXGetEnv(const char* iName)
{
    if (iName == nullptr)
        return nullptr;
    if (Instruments::Active() && Instruments::Fails("GetEnv", std::string_view(iName), nullptr))
        return nullptr;
    return std::getenv(iName);
}

const char* ORXGetOfficialVariable(const char* iName)
{
    if (iName == nullptr)
        return nullptr;
    if (Instruments::Active() && Instruments::Fails("GetOfficialVariable", std::string_view(iName), nullptr))
        return nullptr;
    OfficialVariables& variables = Variables();
    const std::lock_guard lock(variables.mutex);
    const auto found = variables.values.find(std::string_view(iName));
    return found != variables.values.end() ? found->second.c_str() : std::getenv(iName);
}

const char* ORXFindPath(const char* iRelativePath, const char* iPathList)
{
    if (iRelativePath == nullptr || iPathList == nullptr)
        return nullptr;
    if (Instruments::Active() && Instruments::Fails("FindPath", FileName(iRelativePath), nullptr))
        return nullptr;
    std::string_view left = iPathList;
    while (!left.empty())
    {
        const std::string_view folder = left.substr(0, left.find(PathSeparator));
        left.remove_prefix(std::min(folder.size() + 1, left.size()));
        // An empty entry would be the working folder, which no installation means.
        if (folder.empty())
            continue;
        std::string path(folder);
        if (path.back() != ORXFolderSeparator[0])
            path += ORXFolderSeparator;
        path += iRelativePath;
        if (IsRegularFile(path))
        {
            FoundPath& found = PerThread<FoundPath>::Get();
            found.path = std::move(path);
            return found.path.c_str();
        }
    }
    return nullptr;
}

namespace VYRStandalone
{
void SetOfficialVariable(const std::string& iName, const std::string& iValue)
{
    OfficialVariables& variables = Variables();
    const std::lock_guard lock(variables.mutex);
    variables.values.insert_or_assign(iName, iValue);
}

void ResetOfficialVariable(const std::string& iName)
{
    OfficialVariables& variables = Variables();
    const std::lock_guard lock(variables.mutex);
    variables.values.erase(iName);
}
} // namespace VYRStandalone
