#include <algorithm>
#include <memory>

#include "ApplyText.h"
#include "Command.h"
#include "ConfigurationFiles.h"
#include "Failure.h"
#include "ObjectPath.h"
#include "Output.h"
#include "Reports.h"
#include "VYRCfdConfigurator.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "Wording.h"

namespace Tool
{
namespace
{
struct ApplyArguments
{
    std::string model;
    std::string object;
    std::string configuration;
    std::string output;
};

ORXISpecObject_var FollowToObject(const VYRStandalone::Model& iModel, const ApplyArguments& iArguments)
{
    Target target = FollowPath(iModel, iArguments.model, iArguments.object);
    if (!target.attribute.empty())
        throw Failure(OneLine(iArguments.model) + ": " + Quoted(iArguments.object) + " is an attribute, no object");
    return target.object;
}

/// Why a configuration could not be applied, in one line.
std::string Why(const ApplyArguments& iArguments, const ORXISpecObject_var& iObject,
                const std::vector<std::string>& iConfigurations)
{
    const std::string& name = iArguments.configuration;
    if (std::find(iConfigurations.begin(), iConfigurations.end(), name) == iConfigurations.end())
        return "vyrcfd: no configuration " + Quoted(name) + DidYouMean(name, iConfigurations);
    if (!VYRIMpaDefaultManagementProtected_var(iObject))
        return OneLine(iArguments.model) + ": " + Quoted(iArguments.object) +
               " has no default management, and cannot be configured";
    return OneLine(iArguments.model) + ": " + Quoted(name) + " failed on " + Quoted(iArguments.object);
}

/// The line, and what the error service holds.
[[noreturn]] void Fail(std::string iLine)
{
    for (const std::string& report : TakeReportLines())
        iLine += "\n" + report;
    throw Failure(iLine);
}

/// @return a status that is no failure
long Configure(const ApplyArguments& iArguments, const ORXISpecObject_var& iObject,
               const std::vector<std::string>& iConfigurations)
{
    const ORXUnicodeString name(iArguments.configuration.data(), iArguments.configuration.size());
    long status = E_FAIL;
    try
    {
        status = VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(iObject, name);
    }
    catch (const std::logic_error& fatal)
    {
        // Where the application would have ended, as on a path through a list with an empty entry.
        Fail(Why(iArguments, iObject, iConfigurations) + ", fatally: " + OneLine(fatal.what()));
    }
    if (status < 0)
        Fail(Why(iArguments, iObject, iConfigurations));
    return status;
}

void Apply(const CommonOptions& iOptions, const ApplyArguments& iArguments)
{
    const Installation installation(iOptions);
    const std::vector<std::string> configurations = ConfigurationNames(ReadConfigurationFiles(installation));
    const VYRStandalone::Model model = installation.LoadModel(iArguments.model);
    const ORXISpecObject_var spObject = FollowToObject(model, iArguments);

    const Snapshot before = TakeSnapshot(model);
    const long status = Configure(iArguments, spObject, configurations);
    const std::vector<std::string> reports = TakeReportLines();

    const Snapshot after = TakeSnapshot(model);
    const Difference difference = Compare(before, after);
    // First of all, so that nobody reads of changes that could not be saved.
    if (!iArguments.output.empty())
        model.Save(iArguments.output);
    for (const std::string& report : reports)
        PrintError("note: " + report);
    const Application application{iArguments.configuration, iArguments.object, status != S_FALSE, iArguments.output,
                                  reports};
    Print(iOptions.json ? ApplyJson(application, difference) : ApplyText(application, difference));
}
} // namespace

void AddApplyCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand(
        "apply", "Applies a configuration to an object of a model, and shows what changed in the whole model");
    const auto arguments = std::make_shared<ApplyArguments>();
    command->add_option("MODEL", arguments->model, "Model file (*.model.json)")->required();
    command->add_option("OBJECT", arguments->object, "Path of the object")->required();
    command->add_option("CONFIG", arguments->configuration, "Name of the configuration")->required();
    command
        ->add_option("-o,--output", arguments->output,
                     "File to save the changed model in, which may be MODEL itself; without it nothing is written")
        ->type_name("FILE")
        ->check([](const std::string& iFile) { return iFile.empty() ? "names no file" : std::string(); }, "");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        std::string(ObjectPathHelp) +
        "\n\nThe exit status is that of this application: a nested configuration that fails stops nothing, "
        "and its reports\nare notes on standard error. Nothing is written when the run failed.\n"
        "With --json: {\"configuration\", \"object\", \"done\", \"objects\": [{\"path\", \"type\", "
        "\"change\", \"attributes\":\n{NAME: {\"kind\", \"before\", \"after\"}}, \"newRecords\", "
        "\"goneRecords\", \"remadeRecords\"}], \"unreferencedRecords\",\n\"notes\", \"savedTo\"}; \"before\" "
        "and \"after\" are {\"value\", \"set\", \"auto\"}. \"done\" is false for a configuration\nwithout "
        "items.");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Apply(ioOptions, *arguments); }; });
}
} // namespace Tool
