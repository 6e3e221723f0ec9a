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
    /// Among all definitions, from 0.
    std::size_t number = 0;
};

/// A file that fails the engine's load: it is missing, cannot be read, or is no JSON object.
struct UnreadableFile
{
    std::string path;
    /// The beginning of the file where no place in it is wrong.
    SourcePosition position;
    std::string message;
    bool isMissing = false;
    /// Path, place and message, as the other commands say it.
    std::string line;
};

class ConfigurationSource
{
public:
    enum class Faults
    {
        Throw,
        Keep
    };

    /**
     * Reads the files in the order in which the engine does.
     * @throws Failure unless they are kept: a line for each file that fails the engine's load
     */
    explicit ConfigurationSource(const Installation& iInstallation, Faults iFaults = Faults::Throw);

    /// Without files, of which definitions are added one by one.
    ConfigurationSource() = default;

    ConfigurationSource(const ConfigurationSource&) = delete;
    ConfigurationSource& operator=(const ConfigurationSource&) = delete;

    /// Those that can be read.
    const std::deque<SourceFile>& Files() const noexcept { return m_files; }
    const std::vector<UnreadableFile>& Unreadable() const noexcept { return m_unreadable; }
    /// Of all files, also of those that are missing, in their order.
    const std::vector<std::string>& Paths() const noexcept { return m_paths; }
    /// All definitions, file by file, also those that another one hides.
    const std::deque<SourceConfiguration>& Configurations() const noexcept { return m_configurations; }
    /// The definition that holds; borrowed, null for an unknown name.
    const SourceConfiguration* Find(std::string_view iName) const;

    /// Adds a definition behind all others. @param iItems what is taken for its items
    void Add(const SourceFile& iFile, const SourceValue& iDefinition, const std::vector<const SourceValue*>& iItems);
    /// From now on something else is taken for an item. @param iNumber from 1
    void Replace(const SourceConfiguration& iConfiguration, std::size_t iNumber, const SourceValue& iItem);

private:
    void Read(const std::string& iPath);
    std::vector<std::string> m_paths;
    std::vector<UnreadableFile> m_unreadable;
    std::deque<SourceFile> m_files;
    std::deque<SourceConfiguration> m_configurations;
    /// Names are those of `m_configurations`.
    std::unordered_map<std::string_view, const SourceConfiguration*> m_byName;
};

/// What bears the name of a file and is none, since the engine passes it over: "is a folder, not a file". Empty for a
/// file, and for nothing.
std::string NoFileOf(const std::string& iPath);

/// The bare names that the engine looks for, in the order in which it reads the files: of a name that is defined twice
/// the first definition holds.
std::vector<std::string> ConfigurationFileNames();

/// The folder of the files, in a folder of the installation.
std::string ConfigurationFolder(const std::string& iInstallationFolder);
} // namespace Tool

#endif
