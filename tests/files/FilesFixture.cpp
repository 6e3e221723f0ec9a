#include "FilesFixture.h"

#include <algorithm>

#include "VYRStandaloneServices.h"

void FilesFixture::SetUp()
{
    ModuleTest::SetUp();
    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path());
}

void FilesFixture::TearDown()
{
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    ModuleTest::TearDown();
}

void FilesFixture::Write(const std::string& iFile, const std::string& iText) const
{
    m_folder.Write("reffiles/VYRCfdApp/" + iFile, iText);
}

void FilesFixture::WriteConfigurations(const std::string& iFile, const Names& iNames, const std::string& iPath) const
{
    std::string text;
    for (const std::string& name : iNames)
        text += (text.empty() ? R"({ "name": ")" : R"(, { "name": ")") + name + R"(", "config": [ { "path": ")" +
                iPath + R"(" } ] })";
    Write(iFile, R"({ "configurations": [ )" + text + " ] }");
}

VYRCfdConfigurationMap MapOf(VYRCfdConfigurator& ioConfigurator)
{
    VYRCfdConfigurationMap map;
    EXPECT_EQ(ioConfigurator.GetConfigurationMap(map), S_OK);
    return map;
}

Names NamesIn(const VYRCfdConfigurationMap& iMap)
{
    Names names;
    for (const auto& [name, items] : iMap)
        names.emplace_back(name.View());
    std::sort(names.begin(), names.end());
    return names;
}

Names PathsIn(const VYRCfdConfigurationMap& iMap, const char* iName)
{
    const auto found = iMap.find(iName);
    if (found == iMap.end())
        return {"(unknown)"};
    Names paths;
    for (const JSON::JIStream& item : found->second)
        paths.emplace_back(item.ReadString("path").View());
    return paths;
}
