#include "VYRCfdConfigurator.h"

#include <algorithm>
#include <utility>

#include "ORXEnvironment.h"
#include "ORXISpecObject.h"
#include "VYRCfdChecks.h"
#include "VYRCfdConfigurationNesting.h"
#include "VYRCfdConfigurationWalk.h"

VYRCfdConfigurator* VYRCfdConfigurator::GetConfigurator()
{
    if (spConfigurator == nullptr)
        spConfigurator.reset(new VYRCfdConfigurator);
    return spConfigurator.get();
}

// The order matters: of a name that stands in two files the first definition holds.
VYRCfdConfigurator::VYRCfdConfigurator()
    : _configFiles{
          // Only the existence of the variable counts, not its value.
          ORXGetEnv("VYRCfd_USE_DxSLOPE_CONVG_CRIT") != nullptr ? "SolverConfigurations_dxSlope.json"
                                                                : "SolverConfigurations.json",
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
      }
{
}

VYRCfdConfigurator::VYRCfdConfigurator(std::vector<ORXUnicodeString>& files) : _configFiles(files) {}

VYRCfdConfigurator::~VYRCfdConfigurator() = default;

HRESULT VYRCfdConfigurator::GetConfigurationMap(VYRCfdConfigurationMap& oConfigurations)
{
    VYRCFD_ENTER_RESET(30);
    if (!_configsLoaded)
        VYRCFD_CHECK(LoadConfigs());
    if (&oConfigurations != &_configurations)
        oConfigurations = _configurations;
    return S_OK;
}

HRESULT VYRCfdConfigurator::GetConfigurationObject(const ORXUnicodeString& iConfigName,
                                                   std::vector<JSON::JIStream>& configObjectJSON)
{
    VYRCFD_ENTER_RESET(20);
    if (!_configsLoaded)
        VYRCFD_CHECK(LoadConfigs());
    const auto found = _configurations.find(iConfigName);
    if (found == _configurations.end())
        return E_FAIL;
    configObjectJSON = found->second;
    return S_OK;
}

HRESULT VYRCfdConfigurator::LoadConfigs()
{
    VYRCFD_ENTER_RESET(10);
    const char* installPath = ORXGetOfficialVariable("ORXInstallPath");
    if (installPath == nullptr)
        return E_FAIL;

    const ORXUnicodeString folder = ORXUnicodeString("reffiles") + ORXFolderSeparator + "VYRCfdApp";
    for (const ORXUnicodeString& name : _configFiles)
    {
        const char* path = ORXFindPath(folder + ORXFolderSeparator + name, installPath);
        if (path == nullptr)
            VYRCFD_FAIL("Missing config file %s\n", name);
        JSON::JIStream file;
        if (!file.ParseFile(path, true))
            VYRCFD_FAIL("Invalid config file %s\n", name);
        Keep(file);
    }
    _configsLoaded = true;
    return S_OK;
}

/// What was defined earlier stays: in this file, in an earlier one, or in a load that a later file has failed.
void VYRCfdConfigurator::Keep(const JSON::JIStream& iFile)
{
    const std::vector<JSON::JIStream> configurations = iFile.ReadObjects("configurations");
    // As if the files were of a size, within reason: a map that grows asks for the hash of each name again and again.
    constexpr std::size_t MostReserved = 65536;
    if (_configurations.empty())
        _configurations.reserve(std::min(configurations.size() * _configFiles.size(), MostReserved));
    for (const JSON::JIStream& configuration : configurations)
        _configurations.try_emplace(configuration.ReadString("name"), configuration.ReadObjects("config"));
}

long VYRCfdConfigurator::ApplyConfiguration(const ORXBaseUnknown_var& ispObject, const ORXUnicodeString& iConfigName)
{
    VYRCFD_ENTER_RESET(15);
    const VYRCfdConfigurationNesting nesting;
    if (nesting.IsStopped())
        return E_FAIL;
    if (nesting.StopIfTooDeep())
        VYRCFD_FAIL("Configuration nesting too deep: %s", iConfigName);
    if (nesting.StopIfTooMany())
        VYRCFD_FAIL("Too many nested configurations: %s", iConfigName);

    if (!_configsLoaded)
        VYRCFD_CHECK(LoadConfigs());
    if (VYRCfd::IsActive(VYRCfdTraceManager::_Decorate))
        VYRCfdTraceManager::_Decorate->TraPrint(120, "Applying config: %s\n", iConfigName.CastToCharPtr());

    std::vector<JSON::JIStream> configObjectJSON;
    VYRCFD_CHECK(GetConfigurationObject(iConfigName, configObjectJSON));
    // Before any test of the object: a configuration without items asks nothing of it.
    if (configObjectJSON.empty())
        return S_FALSE;

    VYRCFD_ASSERT(ispObject != NULL_var);
    const ORXISpecObject_var spSpec = ispObject;
    VYRCFD_ASSERT(spSpec);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = ispObject;
    VYRCFD_ASSERT(spDefMgmt != NULL_var);
    const ORXIContainer_var spCont = spSpec->GetContainer();
    VYRCFD_ASSERT(spCont);

    VYRCfdConfigurationWalk walk(*this, VYRCFD_FUNCTION, ispObject, spDefMgmt, spCont);
    for (const JSON::JIStream& item : configObjectJSON)
        VYRCFD_PASS(walk.Apply(item));
    VYRCFD_PASS(walk.Close());
    return S_OK;
}
