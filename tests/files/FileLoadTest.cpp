/**
 * @file
 * The load of configuration files: once, in order, from where the installation is.
 */

#include <filesystem>
#include <memory>

#include "EnteredScopes.h"
#include "FilesFixture.h"
#include "VYRStandaloneServices.h"

namespace
{
class FileLoadTest : public FilesFixture
{
};

TEST_F(FileLoadTest, AllFiles_ContributeToTheMap)
{
    WriteConfigurations("a.json", {"one", "two"}, "a");
    WriteConfigurations("b.json", {}, "b");
    WriteConfigurations("c.json", {"three"}, "c");
    WriteConfigurations("unlisted.json", {"four"}, "d");
    Configurator configurator({"a.json", "b.json", "c.json"});
    const VYRCfdConfigurationMap map = MapOf(configurator);
    EXPECT_EQ(NamesIn(map), (Names{"one", "three", "two"}));
    EXPECT_EQ(PathsIn(map, "one"), (Names{"a"}));
    EXPECT_EQ(PathsIn(map, "three"), (Names{"c"}));
}

TEST_F(FileLoadTest, ANameInTwoFiles_TheEarlierFileWins)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    WriteConfigurations("b.json", {"flow", "energy"}, "b");
    Configurator forward({"a.json", "b.json"});
    EXPECT_EQ(PathsIn(MapOf(forward), "flow"), (Names{"a"}));
    EXPECT_EQ(PathsIn(MapOf(forward), "energy"), (Names{"b"})) << "the rest of the file counts";
    Configurator backward({"b.json", "a.json"});
    EXPECT_EQ(PathsIn(MapOf(backward), "flow"), (Names{"b"}));
}

TEST_F(FileLoadTest, Making_ReadsNoFile)
{
    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path("nowhere"));
    Configurator configurator({"a.json"});
    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path());
    WriteConfigurations("a.json", {"flow"}, "a");
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"flow"})) << "the first operation that needs the files reads them";
}

TEST_F(FileLoadTest, OnceLoaded_FilesAreNotReadAgain)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    Configurator configurator({"a.json"});
    MapOf(configurator);

    WriteConfigurations("a.json", {"energy"}, "edited");
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"flow"}));
    std::filesystem::remove_all(m_folder.Path("reffiles"));
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"flow"}));
    VYRStandalone::SetOfficialVariable("ORXInstallPath", "");
    EXPECT_EQ(PathsIn(MapOf(configurator), "flow"), (Names{"a"}));
}

TEST_F(FileLoadTest, TheInstallation_MayBeAListOfFolders)
{
    const TemporaryFolder second;
    second.Write("reffiles/VYRCfdApp/a.json", R"({ "configurations": [ { "name": "hidden" } ] })");
    second.Write("reffiles/VYRCfdApp/b.json", R"({ "configurations": [ { "name": "second" } ] })");
    WriteConfigurations("a.json", {"first"}, "a");
    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path() + ":" + second.Path());
    Configurator configurator({"a.json", "b.json"});
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"first", "second"}));
}

TEST_F(FileLoadTest, WithoutFiles_IsLoadedAtOnce_AndEveryNameIsUnknown)
{
    Configurator configurator({});
    EXPECT_TRUE(MapOf(configurator).empty());
    for (const char* name : {"flow", ""})
    {
        EXPECT_EQ(configurator.ApplyConfiguration(ORXBaseUnknown_var(), name), E_FAIL);
        EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)",
                                                  "VYRCfdConfigurator::ApplyConfiguration")}));
    }
}

TEST_F(FileLoadTest, GetConfigurationMap_ReplacesWhatTheMapHeld)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    Configurator configurator({"a.json"});
    VYRCfdConfigurationMap map;
    map["old"];
    map["flow"].resize(3);
    EXPECT_EQ(configurator.GetConfigurationMap(map), S_OK);
    EXPECT_EQ(NamesIn(map), (Names{"flow"}));
    EXPECT_EQ(PathsIn(map, "flow"), (Names{"a"}));
}

TEST_F(FileLoadTest, GetConfigurationMap_GivesACopy)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    auto configurator = std::make_unique<Configurator>(std::vector<ORXUnicodeString>{"a.json"});
    VYRCfdConfigurationMap map = MapOf(*configurator);
    map["flow"].clear();
    map["more"];
    const VYRCfdConfigurationMap second = MapOf(*configurator);
    EXPECT_EQ(NamesIn(second), (Names{"flow"}));

    configurator.reset();
    EXPECT_EQ(PathsIn(second, "flow"), (Names{"a"})) << "items stay readable without their configurator";
}

TEST_F(FileLoadTest, Configurators_KnowNothingOfEachOther)
{
    WriteConfigurations("a.json", {"flow"}, "a");
    WriteConfigurations("b.json", {"energy"}, "b");
    Configurator first({"a.json"});
    Configurator second({"b.json"});
    EXPECT_EQ(NamesIn(MapOf(first)), (Names{"flow"}));
    EXPECT_EQ(NamesIn(MapOf(second)), (Names{"energy"}));
}

TEST_F(FileLoadTest, TheListOfFiles_IsCopied)
{
    std::vector<ORXUnicodeString> files{"a.json"};
    WriteConfigurations("a.json", {"flow"}, "a");
    Configurator configurator(files);
    files = {"b.json"};
    EXPECT_EQ(NamesIn(MapOf(configurator)), (Names{"flow"}));
}

TEST_F(FileLoadTest, AnErrorStatus_IsTakenBack)
{
    Configurator configurator({});
    VYRCfdConfigurationMap map;
    VYRStandalone::SetErrorStatus(7);
    EXPECT_EQ(configurator.GetConfigurationMap(map), S_OK);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    VYRStandalone::SetErrorStatus(7);
    EXPECT_EQ(configurator.ApplyConfiguration(ORXBaseUnknown_var(), "unknown"), E_FAIL);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    Reported();
}

TEST_F(FileLoadTest, Scopes_ShowOneLoad)
{
    Write("a.json", R"({ "configurations": [ { "name": "flow" } ] })");
    Configurator configurator({"a.json"});
    VYRCfdConfigurationMap map;
    EXPECT_EQ(EnteredScopes(40, [&] { configurator.GetConfigurationMap(map); }),
              (Names{"> VYRCfdConfigurator::GetConfigurationMap [30]", "  > VYRCfdConfigurator::LoadConfigs [10]"}));
    EXPECT_EQ(EnteredScopes(40, [&] { configurator.GetConfigurationMap(map); }),
              (Names{"> VYRCfdConfigurator::GetConfigurationMap [30]"}));

    Configurator applying({"a.json"});
    EXPECT_EQ(EnteredScopes(40, [&] { applying.ApplyConfiguration(ORXBaseUnknown_var(), "flow"); }),
              (Names{"> VYRCfdConfigurator::ApplyConfiguration [15]", "  > VYRCfdConfigurator::LoadConfigs [10]",
                     "  > VYRCfdConfigurator::GetConfigurationObject [20]"}));
}
} // namespace
