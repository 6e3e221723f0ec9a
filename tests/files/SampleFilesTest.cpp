/**
 * @file
 * The sample installation, as the configurator of the process reads it. Run once for each setting of the variable that
 * exchanges the first of its files.
 */

#include <cstdlib>
#include <map>

#include <gtest/gtest.h>

#include "ModuleTest.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneServices.h"

namespace
{
/// A configuration by its items' paths and defaults.
using Items = std::vector<std::pair<std::string, std::string>>;
using Configurations = std::map<std::string, Items>;

Items ItemsOf(const std::vector<JSON::JIStream>& iItems)
{
    Items items;
    for (const JSON::JIStream& item : iItems)
        items.emplace_back(item.ReadString("path").View(), item.ReadString("default").View());
    return items;
}

/// What stands in a file of the sample installation, the first of each name.
Configurations ReadFile(const std::string& iFile)
{
    Configurations read;
    JSON::JIStream file;
    EXPECT_TRUE(file.ParseFile((std::string(VYR_SAMPLES_DIR) + "/reffiles/VYRCfdApp/" + iFile).c_str(), true)) << iFile;
    for (const JSON::JIStream& configuration : file.ReadObjects("configurations"))
        read.emplace(configuration.ReadString("name").View(), ItemsOf(configuration.ReadObjects("config")));
    return read;
}

class SampleFilesTest : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        VYRStandalone::SetOfficialVariable("ORXInstallPath", VYR_SAMPLES_DIR);
        ASSERT_EQ(VYRCfdConfigurator::GetConfigurator()->GetConfigurationMap(m_map), S_OK);
    }
    void TearDown() override
    {
        VYRStandalone::ResetOfficialVariable("ORXInstallPath");
        ModuleTest::TearDown();
    }

    VYRCfdConfigurationMap m_map;
    const bool m_isSlope = std::getenv("VYRCfd_USE_DxSLOPE_CONVG_CRIT") != nullptr;
};

TEST_F(SampleFilesTest, TheMap_HoldsWhatStandsInTheFiles)
{
    Configurations expected;
    for (const char* file :
         {m_isSlope ? "SolverConfigurations_dxSlope.json" : "SolverConfigurations.json", "conditionsConfig_Flow.json",
          "conditionsConfig_Energy.json", "conditionsConfig_Turbulence.json", "conditionsConfig_Species.json",
          "conditionsConfig_Phase.json", "solverConfig_Flow.json", "solverConfig_Energy.json",
          "solverConfig_Turbulence.json", "solverConfig_MultiSpecies.json", "measurementsConfig.json",
          "solverConfig_Radiation.json", "conditionsConfig_Radiation.json", "conditionsConfig_ECooling.json",
          "solverConfig_MultiPhase.json", "meshFYEConfig.json"})
        expected.merge(ReadFile(file));

    Configurations loaded;
    for (const auto& [name, items] : m_map)
        loaded.emplace(name.View(), ItemsOf(items));
    EXPECT_EQ(loaded, expected);
    EXPECT_GE(loaded.size(), 120U);
    EXPECT_TRUE(loaded.contains("externalFlow"));
    EXPECT_TRUE(loaded.contains("internalFlow"));
}

TEST_F(SampleFilesTest, TheVariable_DecidesHowConvergenceIsJudged)
{
    const auto found = m_map.find("flowConvergence");
    ASSERT_NE(found, m_map.end());
    const Items items = ItemsOf(found->second);
    const std::pair<std::string, std::string> bySlope("criterion", "slope");
    const std::pair<std::string, std::string> byResidual("criterion", "residual");
    EXPECT_EQ(std::count(items.begin(), items.end(), m_isSlope ? bySlope : byResidual), 1);
    EXPECT_EQ(std::count(items.begin(), items.end(), m_isSlope ? byResidual : bySlope), 0);
}

TEST_F(SampleFilesTest, EveryConfigurationThatIsReferredTo_IsThere)
{
    int references = 0;
    for (const auto& [name, items] : m_map)
        for (const JSON::JIStream& item : items)
        {
            const ORXUnicodeString config = item.ReadString("config");
            if (config.IsEmpty())
                continue;
            ++references;
            EXPECT_TRUE(m_map.contains(config)) << name.CastToCharPtr() << " refers to " << config.CastToCharPtr();
        }
    EXPECT_GT(references, 0);
}
} // namespace
