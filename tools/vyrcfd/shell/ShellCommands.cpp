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

/// For a value or a condition that was typed as several words.
std::string QuotationHint(const ShellCommand& iCommand, const ShellArguments& iArguments)
{
    const std::vector<std::string> names = iCommand.ArgumentNames();
    if (iArguments.size() <= names.size() || (names.back() != "VALUE" && names.back() != "CONDITION"))
        return {};
    const std::size_t first = names.size() - 1;
    std::string words;
    for (std::size_t i = first; i < iArguments.size(); ++i)
        words += (i == first ? "" : " ") + iArguments[i];
    return "; what has blanks in it stands in double quotes, as " + AsWord(words);
}
} // namespace

const std::vector<ShellCommand>& ShellCommands()
{
    static const std::vector<ShellCommand> commands{
        {"ls [PATH]", "the objects of the model, or one object with its attributes and what it owns",
         "ls Solver.1/turbulence", "", &ShellList},
        {"get PATH", "the value of an attribute", "get Solver.1/iterations", "", &ShellGet},
        {"set PATH VALUE", "gives an attribute a value; an enumeration takes its text, an object attribute a path",
         "set Solver.1/freestream/angleOfAttack \"2 degree\"",
         "A real may carry a unit of its quantity. Lists are changed by insert and delete.", &ShellSet},
        {"unset PATH", "puts an attribute back on its default", "unset Solver.1/iterations", "", &ShellUnset},
        {"default PATH [VALUE]", "the default of an attribute; with a value, gives it a default of its own",
         "default Solver.1/iterations 500", "A default of its own, a custom default, is not saved with the model.",
         &ShellDefault},
        {"explain PATH", "where the value of an attribute comes from, and what would replace it",
         "explain Solver.1/iterations",
         "The whole ladder of its defaults, with \">\" at the rung that counts: a custom default, the records\n"
         "about the attribute, the start-up; and what unset would do. With --json it answers as\n"
         "vyrcfd explain --json does, with \"custom default\" as another \"winner\".",
         &ShellExplain},
        {"isset PATH", "whether an attribute was given its value on purpose", "isset Solver.1/iterations", "",
         &ShellIsSet},
        {"auto PATH [on|off]", "the auto flag of an attribute; with on or off, writes it",
         "auto Solver.1/iterations on",
         "The first time only makes the flag; later, on also puts the attribute back on its default.", &ShellAuto},
        {"test [PATH] CONDITION", "whether a condition holds on an object; without PATH the condition begins with one",
         "test Solver.1 iterations>100", "", &ShellTest},
        {"apply PATH CONFIG", "applies a configuration to an object", "apply Solver.1 externalFlow", "", &ShellApply},
        {"records PATH", "what configurations have recorded on an object", "records Solver.1", "", &ShellRecords},
        {"choices PATH", "what a Choice offers, with what belongs to each choice", "choices Solver.1/linearSolver", "",
         &ShellChoices},
        {"choose PATH CHOICE", "selects a choice", "choose Solver.1/linearSolver BCGSTAB", "", &ShellChoose},
        {"prohibit PATH CHOICE...", "takes choices out of what a Choice offers",
         "prohibit Solver.1/linearSolver PASTIX_LDLT PASTIX_LU", "", &ShellProhibit},
        {"allow PATH CHOICE...", "puts declared choices back", "allow Solver.1/solverKind FEM_LES",
         "Of a Choice that is declared with startups, their names take the place of the choices, which is warned of.",
         &ShellAllow},
        {"reset PATH [keep]", "returns to the declared choices and their default; keep makes the value the default",
         "reset Solver.1/linearSolver keep", "", &ShellReset},
        {"new TYPE [NAME]", "makes a top-level object of a feature type", "new PointProbe Probe.2",
         "Without a name it is called by its type and a number.", &ShellNew},
        {"insert PATH ENTRY [POSITION]", "puts an entry into a list, at its end where no position is given",
         "insert Solver.1/monitors Probe.2 1",
         "ENTRY is a value, or the path of an object; a list of components takes the object from where it stands.\n"
         "Positions count from 1.",
         &ShellInsert},
        {"delete PATH [POSITION]", "takes an object out of the model, or an entry out of a list",
         "delete Solver.1/monitors 1",
         "What referred to the object is empty afterwards. An attribute that refers to an object is emptied, and the\n"
         "object stays; an entry of such a list is named by its position, or by its path.",
         &ShellDelete},
        {"errors", "what the error service has reported in this session", "errors", "", &ShellErrors},
        {"undo", "takes back the last command that has changed the model; once more, the one before", "undo",
         "Values, flags, records and objects are as they were; custom defaults, which are not saved with a model, are\n"
         "those that the records give. The last 100 changes are known, fewer of a very large model.",
         &ShellUndo},
        {"save [FILE]", "saves the model, in its own file unless another one is named", "save copy.model.json", "",
         &ShellSave},
        {"help [COMMAND]", "the commands, or one of them with an example", "help insert", "", &ShellHelp},
        {"quit", "leaves the shell; what was not saved is lost", "quit", "", &ShellQuit},
        {"exit", "leaves the shell as quit does", "exit", "", &ShellQuit},
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

Failure NoShellCommand(const std::string& iName)
{
    // It may be a line of a file that is no script.
    constexpr std::size_t LongestShown = 100;
    return Failure("no command " + Quoted(Shortened(iName, LongestShown)) + DidYouMean(iName, ShellCommandNames()));
}

void RunShellCommand(ShellSession& ioSession, const std::vector<std::string>& iWords)
{
    const ShellCommand* const command = FindShellCommand(iWords.front());
    if (command == nullptr)
        throw NoShellCommand(iWords.front());
    const ShellArguments arguments(iWords.begin() + 1, iWords.end());
    if (!command->Takes(arguments.size()))
        throw Failure(std::string("usage: ") + command->usage + QuotationHint(*command, arguments));
    command->run(ioSession, arguments);
}
} // namespace Tool
