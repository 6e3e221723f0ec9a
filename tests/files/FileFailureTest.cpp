/**
 * @file
 * Loads that fail, what they report, and what a later one makes of what they left.
 */

#include <cstdlib>
#include <filesystem>

#include "FilesFixture.h"
#include "VYRStandaloneServices.h"

namespace
{
constexpr char Load[] = "VYRCfdConfigurator::LoadConfigs";

class FileFailureTest : public FilesFixture
{
protected:
    /// Asks for the map, and expects the load to fail with this message; none when it is empty.
    void ExpectFailure(VYRCfdConfigurator& ioConfigurator, const std::string& iMessage)
    {
        VYRCfdConfigurationMap map;
        map["untouched"];
        VYRStandalone::SetErrorStatus(7);
        EXPECT_EQ(ioConfigurator.GetConfigurationMap(map), E_FAIL) << iMessage;
        EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
        EXPECT_EQ(NamesIn(map), (Names{"untouched"}));
        Records expected;
        if (!iMessage.empty())
            expected.push_back(Error(iMessage, Load));
        expected.push_back(FailedCall("LoadConfigs()", "VYRCfdConfigurator::GetConfigurationMap"));
        EXPECT_EQ(Reported(), expected);
    }

    /// The same, of an application.
    void ExpectFailedApplication(VYRCfdConfigurator& ioConfigurator, const std::string& iMessage)
    {
        EXPECT_EQ(ioConfigurator.ApplyConfiguration(ORXBaseUnknown_var(), "flow"), E_FAIL) << iMessage;
        Records expected;
        if (!iMessage.empty())
            expected.push_back(Error(iMessage, Load));
        expected.push_back(FailedCall("LoadConfigs()", "VYRCfdConfigurator::ApplyConfiguration"));
        EXPECT_EQ(Reported(), expected);
    }
};

/// Takes the variable of the installation away altogether, while it lives.
class NoInstallation
{
public:
    NoInstallation()
    {
        VYRStandalone::ResetOfficialVariable("ORXInstallPath");
        if (const char* value = std::getenv("ORXInstallPath"))
        {
            m_value = value;
            m_isSet = true;
        }
        unsetenv("ORXInstallPath");
    }
    ~NoInstallation()
    {
        if (m_isSet)
            setenv("ORXInstallPath", m_value.c_str(), 1);
    }
    NoInstallation(const NoInstallation&) = delete;
    NoInstallation& operator=(const NoInstallation&) = delete;

private:
    std::string m_value;
    bool m_isSet = false;
};

TEST_F(FileFailureTest, WithoutAnInstallation_FailsWithoutAMessage)
{
    const NoInstallation none;
    Configurator configurator({"a.json"});
    ExpectFailure(configurator, "");
    ExpectFailedApplication(configurator, "");
    Configurator withoutFiles({});
    ExpectFailure(withoutFiles, "");

    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path());
    WriteConfigurations("a.json", {"flow"}, "a");
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"flow"}));
}

TEST_F(FileFailureTest, AMissingFile_IsReportedByItsBareName)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    Configurator configurator({"a.json", "b.json", "c.json"});
    ExpectFailure(configurator, "Missing config file b.json\n");
    ExpectFailedApplication(configurator, "Missing config file b.json\n");

    Configurator oddlyNamed({"100%s.json"});
    ExpectFailure(oddlyNamed, "Missing config file 100%s.json\n");
}

TEST_F(FileFailureTest, AFileElsewhere_IsMissing)
{
    m_folder.Write("a.json", "{}");
    m_folder.Write("reffiles/a.json", "{}");
    m_folder.Write("VYRCfdApp/a.json", "{}");
    std::filesystem::create_directories(m_folder.Path("reffiles/VYRCfdApp/a.json"));
    Configurator configurator({"a.json"});
    ExpectFailure(configurator, "Missing config file a.json\n");

    for (const std::string& path : {std::string(), m_folder.Path("nowhere")})
    {
        VYRStandalone::SetOfficialVariable("ORXInstallPath", path);
        ExpectFailure(configurator, "Missing config file a.json\n");
    }
}

TEST_F(FileFailureTest, AFileThatIsNoJsonObject_IsReportedByItsBareName)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    WriteConfigurations("c.json", {"energy"}, "c");
    for (const char* text :
         {"", " ", "{", "[]", "\"text\"", "5", "null", R"({ "configurations": [ { "name": "flow" ] })",
          R"({ "configurations": [ { "name": "flow" } ] } x)", R"({ "configurations": [ { "name": "flow", } ] })",
          "{ \"configurations\": [ { \"name\": \"\xFF\" } ] }", "// comment\n{}"})
    {
        Write("b.json", text);
        Configurator configurator({"a.json", "b.json", "c.json"});
        ExpectFailure(configurator, "Invalid config file b.json\n");
        ExpectFailedApplication(configurator, "Invalid config file b.json\n");
    }
}

TEST_F(FileFailureTest, EveryCall_TriesAgain)
{
    Configurator configurator({"a.json", "b.json"});
    ExpectFailure(configurator, "Missing config file a.json\n");
    ExpectFailure(configurator, "Missing config file a.json\n");
    Write("a.json", "{");
    ExpectFailure(configurator, "Invalid config file a.json\n");
    WriteConfigurations("a.json", {"flow"}, "a");
    ExpectFailure(configurator, "Missing config file b.json\n");
    WriteConfigurations("b.json", {"energy"}, "b");
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"energy", "flow"}));
}

TEST_F(FileFailureTest, AfterAFailedLoad_WhatWasReadStaysAndKeepsWinning)
{
    WriteConfigurations("a.json", {"flow"}, "first load");
    Configurator configurator({"a.json", "b.json"});
    ExpectFailure(configurator, "Missing config file b.json\n");

    WriteConfigurations("a.json", {"flow", "new"}, "second load");
    WriteConfigurations("b.json", {"flow", "energy"}, "b");
    const VYRCfdConfigurationMap map = MapOf(configurator);
    EXPECT_EQ(NamesIn(map), (Names{"energy", "flow", "new"}));
    EXPECT_EQ(PathsIn(map, "flow"), (Names{"first load"}));
    EXPECT_EQ(PathsIn(map, "new"), (Names{"second load"})) << "the files are read from the first on again";
    EXPECT_EQ(PathsIn(map, "energy"), (Names{"b"}));
}

TEST_F(FileFailureTest, OfTheFileThatFails_NothingIsKept)
{
    Write("a.json", R"({ "configurations": [ { "name": "flow", "config": [ { "path": "broken" } ] } ], )");
    Configurator configurator({"a.json"});
    ExpectFailure(configurator, "Invalid config file a.json\n");
    WriteConfigurations("a.json", {"flow"}, "mended");
    EXPECT_EQ(PathsIn(MapOf(configurator), "flow"), (Names{"mended"}));
}

TEST_F(FileFailureTest, WithTheThirteenthOfSixteenMissing_TheFirstTwelveAreKept)
{
    std::vector<ORXUnicodeString> files;
    for (int number = 1; number <= 16; ++number)
    {
        const std::string name = "file" + std::to_string(number);
        files.emplace_back((name + ".json").c_str());
        if (number != 13)
            WriteConfigurations(name + ".json", {name}, "first load");
    }
    Configurator configurator(files);
    ExpectFailure(configurator, "Missing config file file13.json\n");
    ExpectFailedApplication(configurator, "Missing config file file13.json\n");

    for (int number = 1; number <= 16; ++number)
    {
        const std::string name = "file" + std::to_string(number);
        WriteConfigurations(name + ".json", {name}, "second load");
    }
    const VYRCfdConfigurationMap map = MapOf(configurator);
    EXPECT_EQ(map.size(), 16U);
    for (int number = 1; number <= 16; ++number)
        EXPECT_EQ(PathsIn(map, ("file" + std::to_string(number)).c_str()),
                  (Names{number < 13 ? "first load" : "second load"}))
            << number;
}

TEST_F(FileFailureTest, AnUnknownName_IsReportedByTheApplicationAlone)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    Configurator configurator({"a.json"});
    for (const char* name : {"Flow", "flo", "flow ", "", "a.json"})
    {
        EXPECT_EQ(configurator.ApplyConfiguration(ORXBaseUnknown_var(), name), E_FAIL) << name;
        EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)",
                                                  "VYRCfdConfigurator::ApplyConfiguration")}))
            << name;
    }
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"flow"})) << "asking adds no name";
}
} // namespace
