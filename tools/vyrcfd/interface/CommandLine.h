#ifndef CommandLine_H
#define CommandLine_H

/**
 * @file
 * What the command line takes, as the program itself parses it. Help, manual page and completion are made from this.
 */

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace Tool
{
/// What an argument stands for. It decides what the argument is completed with.
enum class ValueKind
{
    /// Nothing: a flag.
    None,
    Text,
    ModelFile,
    CatalogFile,
    File,
    Folder,
    Configuration,
    ObjectPath,
    AttributePath,
    Command
};

/// An argument with a place of its own.
struct ArgumentDescription
{
    std::string name;
    std::string description;
    ValueKind kind = ValueKind::Text;
    bool isRequired = false;
    bool isRepeated = false;
};

struct OptionDescription
{
    /// With their dashes, the short one first.
    std::vector<std::string> names;
    /// What its value is called; empty for a flag.
    std::string value;
    std::string description;
    ValueKind kind = ValueKind::None;
    /// Heading that it stands under.
    std::string group;

    bool IsCalled(const std::string& iName) const;
    /// As help shows it: `-o, --output FILE`.
    std::string Label() const;
};

/// The program, or one of its commands. What is not offered is left out.
struct CommandDescription
{
    std::string name;
    std::string description;
    std::vector<ArgumentDescription> arguments;
    std::vector<OptionDescription> options;
    std::vector<CommandDescription> commands;
    /// Further paragraphs, as `BlocksOf` takes them.
    std::string notes;

    /// What stands behind the name: `[OPTION...] MODEL [PATH]`.
    std::string Usage() const;
    /// Null when there is none.
    const OptionDescription* Option(const std::string& iName) const;
    const CommandDescription* Command(const std::string& iName) const;
    /// Headings of the options, in the order in which they were declared.
    std::vector<std::string> Groups() const;
};

CommandDescription DescriptionOf(const CLI::App& iApp);

/// The group of the options that every command takes.
extern const char CommonOptionGroup[];
} // namespace Tool

#endif
