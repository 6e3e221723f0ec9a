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
    /// What the engine passes over in it, each with its place, in one line.
    std::vector<std::string> oddities;
};

/**
 * Reads the files in the order in which the engine does.
 * @throws Failure with a line for each file that fails the engine's load: one that is missing, cannot be read, or is no
 * JSON object
 */
std::vector<ConfigurationFile> ReadConfigurationFiles(const Installation& iInstallation);

/// The names that configurations can be asked for by, in the order of the files.
std::vector<std::string> ConfigurationNames(const std::vector<ConfigurationFile>& iFiles);

/// A line on what the engine passes over in the files, so that nobody looks for it in vain; empty where nothing is.
std::string OddityNote(const std::vector<ConfigurationFile>& iFiles);
} // namespace Tool

#endif
