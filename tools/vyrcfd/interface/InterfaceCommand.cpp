#include <functional>
#include <map>
#include <memory>

#include "Command.h"
#include "CompletionScripts.h"
#include "ManPage.h"
#include "Output.h"
#include "WordCompletion.h"

namespace Tool
{
namespace
{
struct InterfaceArguments
{
    std::string what;
    std::vector<std::string> words;
};

std::string InterfaceText(const CommandDescription& iProgram, const InterfaceArguments& iArguments)
{
    if (iArguments.what == "man")
        return ManPage(iProgram, VYRCFD_VERSION);
    if (iArguments.what == "bash")
        return BashCompletion;
    if (iArguments.what == "zsh")
        return ZshCompletion;
    if (iArguments.what == "fish")
        return FishCompletion;
    return CompleteWord(iProgram, iArguments.words).Text();
}
} // namespace

void AddInterfaceCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand("interface", "Prints the manual page, or the completion of a shell");
    // For the build and for shells; not offered among what people work with.
    command->group("");
    const auto arguments = std::make_shared<InterfaceArguments>();
    command
        ->add_option("WHAT", arguments->what,
                     "man, bash, zsh or fish; complete, with the words so far, answers the scripts of the shells")
        ->required()
        ->check(CLI::IsMember({"man", "bash", "zsh", "fish", "complete"}));
    command->add_option("WORD", arguments->words, "Words of a command line, the last of which is to be completed");
    command->footer("Example:\n    source <(vyrcfd interface bash)");
    command->callback([&ioApp, &ioOptions, &oJob, arguments] {
        if (ioOptions.json)
            throw CLI::ValidationError("--json", "what interface prints is for shells and for man, and never JSON");
        oJob = [&ioApp, arguments] { Print(InterfaceText(DescriptionOf(ioApp), *arguments)); };
    });
}
} // namespace Tool
