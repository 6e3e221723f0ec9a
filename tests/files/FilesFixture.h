#ifndef FilesFixture_H
#define FilesFixture_H

/**
 * @file
 * An installation in a temporary folder, and configurators over chosen files of it.
 */

#include <string>
#include <vector>

#include "ModuleTest.h"
#include "TemporaryFolder.h"
#include "VYRCfdConfigurator.h"

using Names = std::vector<std::string>;

/// A configurator over its own files.
class Configurator : public VYRCfdConfigurator
{
public:
    explicit Configurator(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles) {}
};

/// The variable of the installation points to an empty folder at first.
class FilesFixture : public ModuleTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Writes a configuration file of the installation.
    void Write(const std::string& iFile, const std::string& iText) const;
    /// Writes one that defines the named configurations, each with one item whose path is `iPath`.
    void WriteConfigurations(const std::string& iFile, const Names& iNames, const std::string& iPath) const;

    TemporaryFolder m_folder;
};

/// The map of a configurator whose load succeeds.
VYRCfdConfigurationMap MapOf(VYRCfdConfigurator& ioConfigurator);

/// The names in a map, sorted.
Names NamesIn(const VYRCfdConfigurationMap& iMap);

/// The paths of a configuration's items, in their order; "(unknown)" for an unknown name.
Names PathsIn(const VYRCfdConfigurationMap& iMap, const char* iName);

#endif
