#ifndef ConfigurationSource_H
#define ConfigurationSource_H

/**
 * @file
 * The configurations of the installation with their places, as they are written: what is wrong in them is there as
 * well, and reads as the engine reads it.
 */

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Installation.h"
#include "SourceFile.h"

namespace Tool
{
/// A definition of a configuration. What it points to lives as long as the ConfigurationSource.
struct SourceConfiguration
{
    /// Empty also where there is none, or no text; the engine keeps the configuration under the empty name then.
    std::string name;
    const SourceFile* file = nullptr;
    /// Of the name, or of the whole definition where it has none.
    SourcePosition position;
    /// The whole definition; an object, unless the file has a wrong shape.
    const SourceValue* value = nullptr;
    /// In their order; objects, unless the file has a wrong shape. People count them from 1.
    std::vector<const SourceValue*> items;
    /// The earlier definition of the name, which holds in place of this one; null where this one holds.
    const SourceConfiguration* hiddenBy = nullptr;
};

class ConfigurationSource
{
public:
    /**
     * Reads the files in the order in which the engine does.
     * @throws Failure for a file that is missing
     * @throws VYRStandalone::DocumentError for one that cannot be read or is no JSON object, which fail the engine's
     * load
     */
    explicit ConfigurationSource(const Installation& iInstallation);

    ConfigurationSource(const ConfigurationSource&) = delete;
    ConfigurationSource& operator=(const ConfigurationSource&) = delete;

    const std::deque<SourceFile>& Files() const noexcept { return m_files; }
    /// All definitions, file by file, also those that another one hides.
    const std::deque<SourceConfiguration>& Configurations() const noexcept { return m_configurations; }
    /// The definition that holds; borrowed, null for an unknown name.
    const SourceConfiguration* Find(std::string_view iName) const;

private:
    void Add(const SourceFile& iFile);

    std::deque<SourceFile> m_files;
    std::deque<SourceConfiguration> m_configurations;
    /// Names are those of `m_configurations`.
    std::unordered_map<std::string_view, const SourceConfiguration*> m_byName;
};

/// Paths of the files, in the order in which the engine reads them: of a name that is defined twice the first
/// definition holds. @throws Failure for a file that is missing
std::vector<std::string> ConfigurationFilePaths(const Installation& iInstallation);
} // namespace Tool

#endif
