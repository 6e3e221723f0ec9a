#include "HelpText.h"

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

#include "CommandLine.h"
#include "Paragraphs.h"

namespace Tool
{
namespace
{
/// Of what is described; what is longer stands on a line of its own.
constexpr std::size_t WidestTerm = 22;

std::size_t LineWidth()
{
    constexpr std::size_t usual = 80;
    constexpr std::size_t least = 40;
    constexpr std::size_t readable = 100;
    winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return usual;
    return std::clamp<std::size_t>(size.ws_col, least, readable);
}

struct Definitions
{
    std::string heading;
    /// Terms with what is said of them.
    std::vector<std::pair<std::string, std::string>> rows;
};

std::vector<Definitions> DefinitionsOf(const CommandDescription& iCommand)
{
    std::vector<Definitions> all{{"Commands", {}}, {"Arguments", {}}};
    for (const CommandDescription& one : iCommand.commands)
        all[0].rows.emplace_back(one.name, one.description);
    for (const ArgumentDescription& argument : iCommand.arguments)
        all[1].rows.emplace_back(argument.name, argument.description);
    for (const std::string& group : iCommand.Groups())
    {
        all.push_back({group, {}});
        for (const OptionDescription& option : iCommand.options)
            if (option.group == group)
                all.back().rows.emplace_back(option.Label(), option.description);
    }
    std::erase_if(all, [](const Definitions& iOne) { return iOne.rows.empty(); });
    return all;
}

std::string NotesText(const std::string& iNotes, std::size_t iWidth)
{
    std::string text;
    for (const TextBlock& block : BlocksOf(iNotes))
        text += (block.isApart ? "\n" : "") +
                (block.isKept ? WrappedLine(block.text, iWidth) : Wrapped(block.text, iWidth));
    return text.empty() ? "" : "\n" + text;
}

std::string HelpText(const CommandDescription& iCommand, const std::string& iProgram, std::size_t iWidth)
{
    const std::vector<Definitions> definitions = DefinitionsOf(iCommand);
    std::size_t widest = 0;
    for (const Definitions& one : definitions)
        for (const auto& [term, said] : one.rows)
            widest = std::max(widest, std::min(term.size(), WidestTerm));
    constexpr std::size_t around = 4;
    std::string text = "Usage: " + iProgram + " " + iCommand.Usage() + "\n\n" + Wrapped(iCommand.description, iWidth);
    for (const Definitions& one : definitions)
    {
        text += "\n" + one.heading + ":\n";
        for (const auto& [term, said] : one.rows)
            text += Definition(term, said, widest + around, iWidth);
    }
    return text + NotesText(iCommand.notes, iWidth);
}
} // namespace

std::string HelpFormatter::make_help(const CLI::App* iApp, std::string, CLI::AppFormatMode) const
{
    std::string program = iApp->get_name();
    for (const CLI::App* owner = iApp->get_parent(); owner != nullptr; owner = owner->get_parent())
        program = owner->get_name() + " " + program;
    return HelpText(DescriptionOf(*iApp), program, LineWidth());
}
} // namespace Tool
