#include "ShellCommands.h"

#include <algorithm>

#include "Failure.h"
#include "ShellWords.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// The usage line, one word an argument.
std::vector<std::string> UsageWords(const ShellCommand& iCommand)
{
    return SplitWords(iCommand.usage);
}
} // namespace

const std::vector<ShellCommand>& ShellCommands()
{
    static const std::vector<ShellCommand> commands{
        {"ls [PATH]", "the objects of the model, or one object with its attributes and what it owns", &ShellList},
        {"get PATH", "the value of an attribute", &ShellGet},
        {"set PATH VALUE", "gives an attribute a value; an enumeration takes its text", &ShellSet},
        {"unset PATH", "puts an attribute back on its default", &ShellUnset},
        {"default PATH [VALUE]", "the default of an attribute; with a value, gives it a default of its own",
         &ShellDefault},
        {"auto PATH [on|off]", "the auto flag of an attribute; with on or off, writes it", &ShellAuto},
        {"test [PATH] CONDITION", "whether a condition holds on an object; without PATH the condition begins with one",
         &ShellTest},
        {"apply PATH CONFIG", "applies a configuration to an object", &ShellApply},
        {"records PATH", "what configurations have recorded on an object", &ShellRecords},
        {"choices PATH", "what a Choice offers, with what belongs to each choice", &ShellChoices},
        {"choose PATH CHOICE", "selects a choice", &ShellChoose},
        {"prohibit PATH CHOICE...", "takes choices out of what a Choice offers", &ShellProhibit},
        {"allow PATH CHOICE...", "puts declared choices back", &ShellAllow},
        {"reset PATH [keep]", "returns to the declared choices and their default; keep makes the value the default",
         &ShellReset},
        {"errors", "what the error service has reported in this session", &ShellErrors},
        {"save [FILE]", "saves the model, in its own file unless another one is named", &ShellSave},
        {"help [COMMAND]", "the commands, or one of them", &ShellHelp},
        {"quit", "leaves the shell; what was not saved is lost", &ShellQuit},
        {"exit", "leaves the shell as quit does", &ShellQuit},
    };
    return commands;
}

std::string ShellCommand::Name() const
{
    return UsageWords(*this).front();
}

std::vector<std::string> ShellCommand::ArgumentNames() const
{
    std::vector<std::string> names = UsageWords(*this);
    names.erase(names.begin());
    for (std::string& name : names)
        std::erase_if(name,
                      [](char iCharacter) { return std::string_view("[].").find(iCharacter) != std::string::npos; });
    return names;
}

bool ShellCommand::Takes(std::size_t iArguments) const
{
    const std::string text = usage;
    const std::size_t all = ArgumentNames().size();
    const auto optional = static_cast<std::size_t>(std::count(text.begin(), text.end(), '['));
    return iArguments + optional >= all && (iArguments <= all || text.ends_with("..."));
}

const ShellCommand* FindShellCommand(const std::string& iName)
{
    for (const ShellCommand& command : ShellCommands())
        if (command.Name() == iName)
            return &command;
    return nullptr;
}

std::vector<std::string> ShellCommandNames()
{
    std::vector<std::string> names;
    for (const ShellCommand& command : ShellCommands())
        names.push_back(command.Name());
    return names;
}

void RunShellCommand(ShellSession& ioSession, const std::vector<std::string>& iWords)
{
    const ShellCommand* const command = FindShellCommand(iWords.front());
    if (command == nullptr)
        throw Failure("no command " + Quoted(iWords.front()) + DidYouMean(iWords.front(), ShellCommandNames()));
    const ShellArguments arguments(iWords.begin() + 1, iWords.end());
    if (!command->Takes(arguments.size()))
        throw Failure(std::string("usage: ") + command->usage);
    command->run(ioSession, arguments);
}
} // namespace Tool
