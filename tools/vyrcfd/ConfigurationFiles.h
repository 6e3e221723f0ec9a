#ifndef ConfigurationFiles_H
#define ConfigurationFiles_H

/**
 * @file
 * The configuration files of the installation, with what the engine does not keep of them: which file a configuration
 * comes from, and what is wrong with a file and where.
 */

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Installation.h"
#include "SourceValue.h"

namespace Tool
{
struct ConfigurationDefinition
{
    std::string name;
    std::size_t items = 0;
    /// Of the name.
    SourcePosition position;
    /// The earlier definition of the name, which holds in place of this one.
    struct Earlier
    {
        std::string file;
        SourcePosition position;
    };
    std::optional<Earlier> hiddenBy;
};

struct ConfigurationFile
{
    std::string path;
    std::vector<ConfigurationDefinition> definitions;
};

/**
 * Reads the files in the order in which the engine does, and stricter: the engine passes over what has a wrong shape.
 * @throws Failure for a file that is missing
 * @throws VYRStandalone::DocumentError for one that cannot be read, is no JSON or has a wrong shape
 */
std::vector<ConfigurationFile> ReadConfigurationFiles(const Installation& iInstallation);

/// The names that configurations can be asked for by, in the order of the files.
std::vector<std::string> ConfigurationNames(const std::vector<ConfigurationFile>& iFiles);
} // namespace Tool

#endif
