#ifndef Configurations_H
#define Configurations_H

/**
 * @file
 * Configurations that stand in a test itself.
 */

#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "VYRCfdConfigurator.h"

/// One configuration as a file holds it. @param iItems the array of its items, as JSON
std::string Configuration(const std::string& iName, const std::string& iItems);

/// The names of all files that the configurator of the process may read; of the two main files it reads one.
const std::vector<std::string>& ConfigurationFiles();

/// Writes all of them into an installation: that of the flow solver with the content, the others without any
/// configuration. @param iContent configurations, with commas between them, see `Configuration`
void WriteInstallation(const TemporaryFolder& iFolder, const std::string& iContent);

/**
 * A configurator over an installation of one file, "test.json". The variable of the installation is set for as long as
 * it lives; one at a time.
 */
class Configurations
{
public:
    /// @param iConfigurations see `Configuration`
    explicit Configurations(const std::vector<std::string>& iConfigurations);
    ~Configurations();
    Configurations(const Configurations&) = delete;
    Configurations& operator=(const Configurations&) = delete;

    long Apply(const ORXBaseUnknown_var& iObject, const ORXUnicodeString& iName);

private:
    class Configurator : public VYRCfdConfigurator
    {
    public:
        explicit Configurator(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles) {}
    };

    TemporaryFolder m_folder;
    Configurator m_configurator;
};

#endif
