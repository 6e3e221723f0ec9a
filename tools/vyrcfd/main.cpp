/**
 * @file
 * vyrcfd: tries configurations out on models, without the application that they are written for.
 */

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>

#include "Command.h"
#include "DocumentFault.h"
#include "Failure.h"
#include "FailureAnswer.h"
#include "HelpText.h"
#include "Output.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"
#include "Wording.h"

namespace
{
enum ExitStatus
{
    Success = 0,
    JobFailed = 1,
    WrongUse = 2
};

/// What was wrong with the command line, and whose help tells how it is right.
std::string Correction(const CLI::App& iApp, const CLI::ParseError& iError)
{
    using namespace Tool;
    const std::vector<CLI::App*> chosen = iApp.get_subcommands();
    if (!chosen.empty())
        return OneLine(iError.what()) + "; see vyrcfd " + chosen.front()->get_name() + " --help";
    // The library misses a command before it takes offence at what stands in its place.
    const std::vector<std::string> strange = iApp.remaining();
    std::string line = OneLine(iError.what());
    if (!strange.empty())
    {
        std::vector<std::string> known;
        for (const CLI::App* command : iApp.get_subcommands({}))
            if (!command->get_group().empty())
                known.push_back(command->get_name());
        line = "no command " + Quoted(strange.front()) + DidYouMean(strange.front(), known);
    }
    else if (dynamic_cast<const CLI::RequiredError*>(&iError) != nullptr)
        line = "no command";
    return line + "; see vyrcfd --help";
}

/// Ends as a program does that the end of its pipe takes by surprise: without a word, and with a status that tells it.
[[noreturn]] void EndAsBrokenPipe()
{
    std::signal(SIGPIPE, SIG_DFL);
    std::raise(SIGPIPE);
    std::_Exit(JobFailed); // where somebody keeps the signal back
}

/// Where catalogs are sought; nowhere as long as there is no installation.
std::vector<std::string> CatalogFolders(const Tool::CommonOptions& iOptions)
{
    try
    {
        return Tool::Installation(iOptions).CatalogFolders();
    }
    catch (const Tool::Failure&)
    {
        return {};
    }
}

ExitStatus Run(const Tool::Job& iJob, const Tool::CommonOptions& iOptions, const Tool::FailureAnswer& iAnswer)
{
    try
    {
        iJob();
        return Success;
    }
    catch (const Tool::BrokenPipe&)
    {
        EndAsBrokenPipe();
    }
    catch (const Tool::ReportedFailure& failure)
    {
        iAnswer.Tell(failure.Text(), failure.Reports());
    }
    catch (const Tool::Failure& failure)
    {
        iAnswer.Tell(failure.what());
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        iAnswer.Tell(Tool::PlacedLineOf(error, CatalogFolders(iOptions)));
    }
    catch (const std::exception& error)
    {
        // A fault of this program or of the module; what led to it helps whoever mends it.
        iAnswer.Tell("vyrcfd: internal error: " + Tool::OneLine(error.what()));
    }
    return JobFailed;
}

/// Whether JSON is asked for on a command line that cannot be parsed to its end.
bool AsksForJson(int argc, const char* const* argv)
{
    return std::any_of(argv, argv + argc, [](const char* iWord) { return std::string_view(iWord) == "--json"; });
}

std::string NameOfCommand(const CLI::App& iApp)
{
    const std::vector<CLI::App*> chosen = iApp.get_subcommands();
    return chosen.empty() ? std::string() : chosen.front()->get_name();
}

ExitStatus RunCommandLine(int argc, const char* const* argv)
{
    // Standard output is the answer's alone.
    VYRStandalone::RedirectTraces([](const std::string& iText) { std::fputs(iText.c_str(), stderr); });

    CLI::App app("Tries configurations of flow simulation out on models, without the application.", "vyrcfd");
    app.formatter(std::make_shared<Tool::HelpFormatter>());
    app.set_help_flag("-h,--help", "Show this help");
    app.set_version_flag("--version", "vyrcfd " VYRCFD_VERSION, "Show the version");
    app.require_subcommand(1);
    app.footer("Exit status: 0 success, 1 the job failed, 2 wrong use. `vyrcfd COMMAND --help` tells more.\n\n"
               "With --json a command that fails before it could answer prints one line on standard output all the "
               "same: {\"command\", \"status\": \"failed\", \"value\": null, \"reports\": [{\"kind\", \"text\", "
               "\"function\", \"status\"}]}, as the commands of the shell do; so a member \"reports\" tells an answer "
               "of this kind from all others.\n\n"
               "Example:\n    vyrcfd --installation samples list");
    Tool::CommonOptions options;
    Tool::Job job;
    Tool::AddCommonOptions(app, options);
    Tool::AddApplyCommand(app, options, job);
    Tool::AddShowCommand(app, options, job);
    Tool::AddExplainCommand(app, options, job);
    Tool::AddListCommand(app, options, job);
    Tool::AddCheckCommand(app, options, job);
    Tool::AddDescribeCommand(app, options, job);
    Tool::AddGraphCommand(app, options, job);
    Tool::AddPurgeCommand(app, options, job);
    Tool::AddShellCommand(app, options, job);
    Tool::AddInterfaceCommand(app, options, job);

    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::Success& help)
    {
        std::ostringstream text;
        app.exit(help, text, text);
        return Run([&text] { Tool::Print(text.str()); }, options, {{}, false});
    }
    catch (const CLI::ParseError& error)
    {
        Tool::FailureAnswer(NameOfCommand(app), AsksForJson(argc, argv)).Tell("vyrcfd: " + Correction(app, error));
        return WrongUse;
    }
    return Run(job, options, {NameOfCommand(app), options.json});
}
} // namespace

int main(int argc, char** argv)
{
    // A pipe that nobody reads is an output that cannot be written, and no reason to die in the middle of something.
    std::signal(SIGPIPE, SIG_IGN);
    try
    {
        return RunCommandLine(argc, argv);
    }
    catch (...)
    {
        std::fputs("vyrcfd: internal error: no memory is left\n", stderr);
    }
    return JobFailed;
}
