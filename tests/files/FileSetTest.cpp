/**
 * @file
 * Which files the configurator of the process reads, and in which order. Run once for each setting of the variable
 * that exchanges the first of them.
 */

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

#include "ModuleTest.h"
#include "TemporaryFolder.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneServices.h"

namespace
{
using Names = std::vector<std::string>;

constexpr char SlopeVariable[] = "VYRCfd_USE_DxSLOPE_CONVG_CRIT";

/// Turns the variable round while it lives: takes it away, or sets it where it was not.
class SlopeTurnedRound
{
public:
    SlopeTurnedRound()
    {
        const char* value = std::getenv(SlopeVariable);
        m_wasSet = value != nullptr;
        m_value = m_wasSet ? value : "";
        m_wasSet ? unsetenv(SlopeVariable) : setenv(SlopeVariable, "1", 1);
    }
    ~SlopeTurnedRound() { m_wasSet ? setenv(SlopeVariable, m_value.c_str(), 1) : unsetenv(SlopeVariable); }
    SlopeTurnedRound(const SlopeTurnedRound&) = delete;
    SlopeTurnedRound& operator=(const SlopeTurnedRound&) = delete;

private:
    bool m_wasSet;
    std::string m_value;
};

class FileSetTest : public ModuleTest
{
};

/// A file that defines "same", and a configuration of its own name.
std::string TextOf(const std::string& iFile)
{
    const std::string items = R"(", "config": [ { "path": ")" + iFile + R"(" } ] })";
    return R"({ "configurations": [ { "name": "same)" + items + R"(, { "name": ")" + iFile + items + " ] }";
}

// One test, since the configurator of a process reads its files once.
TEST_F(FileSetTest, TheSixteenFiles_AreReadInTheirOrder)
{
    const bool isSlope = std::getenv(SlopeVariable) != nullptr;
    const Names expected = {
        isSlope ? "SolverConfigurations_dxSlope.json" : "SolverConfigurations.json",
        "conditionsConfig_Flow.json",
        "conditionsConfig_Energy.json",
        "conditionsConfig_Turbulence.json",
        "conditionsConfig_Species.json",
        "conditionsConfig_Phase.json",
        "solverConfig_Flow.json",
        "solverConfig_Energy.json",
        "solverConfig_Turbulence.json",
        "solverConfig_MultiSpecies.json",
        "measurementsConfig.json",
        "solverConfig_Radiation.json",
        "conditionsConfig_Radiation.json",
        "conditionsConfig_ECooling.json",
        "solverConfig_MultiPhase.json",
        "meshFYEConfig.json",
    };
    const std::string folder = "reffiles/VYRCfdApp/";
    const TemporaryFolder installation;
    // The file that the variable leaves out, and one that nobody asks for.
    for (const char* decoy :
         {isSlope ? "SolverConfigurations.json" : "SolverConfigurations_dxSlope.json", "other.json"})
        installation.Write(folder + decoy, TextOf(decoy));

    VYRCfdConfigurator* const configurator = VYRCfdConfigurator::GetConfigurator();
    ASSERT_NE(configurator, nullptr);
    EXPECT_EQ(VYRCfdConfigurator::GetConfigurator(), configurator) << "there is one";

    // The variable was read when the configurator was made, and is not asked again.
    const SlopeTurnedRound turnedRound;
    VYRStandalone::SetOfficialVariable("ORXInstallPath", installation.Path());
    VYRCfdConfigurationMap map;
    Names missing;
    while (missing.size() <= expected.size() && configurator->GetConfigurationMap(map) != S_OK)
    {
        const Records reports = Reported();
        ASSERT_EQ(reports.size(), 2U);
        const std::string text = reports.front().text;
        const std::string head = "Missing config file ";
        ASSERT_EQ(text.substr(0, head.size()), head);
        ASSERT_EQ(text.back(), '\n');
        const std::string file = text.substr(head.size(), text.size() - head.size() - 1);
        ASSERT_EQ(reports, (Records{Error("Missing config file " + file + "\n", "VYRCfdConfigurator::LoadConfigs"),
                                    FailedCall("LoadConfigs()", "VYRCfdConfigurator::GetConfigurationMap")}));
        missing.push_back(file);
        installation.Write(folder + file, TextOf(file));
    }
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    EXPECT_EQ(missing, expected);

    Names names;
    for (const auto& [name, items] : map)
        names.emplace_back(name.View());
    Names allNames = expected;
    allNames.emplace_back("same");
    std::sort(names.begin(), names.end());
    std::sort(allNames.begin(), allNames.end());
    EXPECT_EQ(names, allNames);
    ASSERT_EQ(map["same"].size(), 1U);
    EXPECT_STREQ(map["same"].front().ReadString("path"), expected.front().c_str()) << "the first definition wins";
}
} // namespace
