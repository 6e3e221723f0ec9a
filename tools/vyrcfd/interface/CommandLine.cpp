#include "CommandLine.h"

#include <algorithm>
#include <map>

namespace Tool
{
const char CommonOptionGroup[] = "Common options";

namespace
{
ValueKind KindOf(const std::string& iCalled)
{
    static const std::map<std::string, ValueKind> Kinds{
        {"", ValueKind::None},
        {"MODEL", ValueKind::ModelFile},
        {"CATALOG", ValueKind::CatalogFile},
        {"FILE", ValueKind::File},
        {"DIR", ValueKind::Folder},
        {"CONFIG", ValueKind::Configuration},
        {"OBJECT", ValueKind::ObjectPath},
        {"PATH", ValueKind::AttributePath},
        {"COMMAND", ValueKind::Command},
    };
    const auto found = Kinds.find(iCalled);
    return found == Kinds.end() ? ValueKind::Text : found->second;
}

ArgumentDescription ArgumentOf(const CLI::Option& iOption)
{
    const std::string name = iOption.get_name(true, false);
    return {name, iOption.get_description(), KindOf(name), iOption.get_required(),
            iOption.get_expected_max() >= CLI::detail::expected_max_vector_size};
}

OptionDescription OptionOf(const CLI::Option& iOption)
{
    OptionDescription option;
    for (const std::string& name : iOption.get_snames())
        option.names.push_back("-" + name);
    for (const std::string& name : iOption.get_lnames())
        option.names.push_back("--" + name);
    option.value = iOption.get_type_size() == 0 ? std::string() : iOption.get_type_name();
    option.kind = KindOf(option.value);
    option.description = iOption.get_description();
    option.group = iOption.get_group();
    return option;
}
} // namespace

bool OptionDescription::IsCalled(const std::string& iName) const
{
    return std::find(names.begin(), names.end(), iName) != names.end();
}

std::string OptionDescription::Label() const
{
    return CLI::detail::join(names, ", ") + (value.empty() ? "" : " " + value);
}

std::string CommandDescription::Usage() const
{
    std::string usage = "[OPTION...]";
    for (const ArgumentDescription& argument : arguments)
    {
        const std::string word = argument.name + (argument.isRepeated ? "..." : "");
        usage += argument.isRequired ? " " + word : " [" + word + "]";
    }
    return usage + (commands.empty() ? "" : " COMMAND ...");
}

const OptionDescription* CommandDescription::Option(const std::string& iName) const
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const OptionDescription& iOne) { return iOne.IsCalled(iName); });
    return found == options.end() ? nullptr : &*found;
}

const CommandDescription* CommandDescription::Command(const std::string& iName) const
{
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const CommandDescription& iOne) { return iOne.name == iName; });
    return found == commands.end() ? nullptr : &*found;
}

std::vector<std::string> CommandDescription::Groups() const
{
    std::vector<std::string> groups;
    for (const OptionDescription& option : options)
        if (std::find(groups.begin(), groups.end(), option.group) == groups.end())
            groups.push_back(option.group);
    return groups;
}

CommandDescription DescriptionOf(const CLI::App& iApp)
{
    CommandDescription command{iApp.get_name(), iApp.get_description(), {}, {}, {}, iApp.get_footer()};
    // Without a group it is understood, and not offered.
    for (const CLI::Option* option :
         iApp.get_options([](const CLI::Option* iOne) { return !iOne->get_group().empty(); }))
        if (option->get_positional())
            command.arguments.push_back(ArgumentOf(*option));
        else
            command.options.push_back(OptionOf(*option));
    for (const CLI::App* one : iApp.get_subcommands([](const CLI::App* iOne) { return !iOne->get_group().empty(); }))
        command.commands.push_back(DescriptionOf(*one));
    return command;
}
} // namespace Tool
