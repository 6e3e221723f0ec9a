#include <memory>
#include <optional>

#include "ApplyText.h"
#include "Command.h"
#include "ConfigurationFiles.h"
#include "ConfigurationSource.h"
#include "Configuring.h"
#include "FailedItem.h"
#include "Failure.h"
#include "InputFile.h"
#include "ObjectPath.h"
#include "Output.h"
#include "Progress.h"
#include "Reports.h"
#include "Uninterrupted.h"
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

/// Where it has failed, and what a failure leaves with the error service, go with it.
bool ConfigureOrTell(const ORXISpecObject_var& iObject, const Configuring& iConfiguring,
                     const ConfigurationSource& iSource)
{
    try
    {
        return Configure(iObject, iConfiguring);
    }
    catch (const Failure& failure)
    {
        std::string text = failure.what();
        std::vector<ReportRecord> reports = TakeReportRecords();
        for (const FailedItem& item : FailedItems(iObject, iConfiguring.configuration, iSource))
            text += "\n" + item.Shown();
        throw ReportedFailure(text, std::move(reports));
    }
}

void Apply(const CommonOptions& iOptions, const ApplyArguments& iArguments)
{
    const Installation installation(iOptions);
    const std::vector<ConfigurationFile> files = ReadConfigurationFiles(installation);
    const std::vector<std::string> configurations = ConfigurationNames(files);
    // Before all else, since it may be the reason for what follows.
    if (const std::string note = OddityNote(files); !note.empty())
        PrintError(note);
    const ConfigurationSource source(installation);
    const VYRStandalone::Model model = installation.LoadModel(iArguments.model);
    if (!iArguments.output.empty() && IsFromPipe(iArguments.output))
        throw Failure(OneLine(iArguments.output) + ": is a pipe, which nothing is saved to; --output names a file");
    const ORXISpecObject_var spObject = FollowToObject(model, iArguments.model, iArguments.object);

    std::optional<Progress> progress;
    progress.emplace("Applying " + OneLine(iArguments.configuration));
    const Snapshot before = TakeSnapshot(model);
    const bool isDone = ConfigureOrTell(
        spObject, {iArguments.model, iArguments.object, iArguments.configuration, configurations}, source);
    const std::vector<std::string> reports = TakeReportLines();

    const Snapshot after = TakeSnapshot(model);
    const Difference difference = Compare(before, after);
    // First of all, so that nobody reads of changes that could not be saved.
    if (!iArguments.output.empty())
    {
        const Uninterrupted save(iArguments.output);
        model.Save(iArguments.output);
    }
    Application application{iArguments.configuration, iArguments.object, isDone, iArguments.output, reports, {}};
    // Last of all, since it changes the model.
    if (!reports.empty())
        application.failed = FailedItems(spObject, iArguments.configuration, source);
    const std::string text = iOptions.json ? ApplyJson(application, difference) : ApplyText(application, difference);
    progress.reset();
    for (const std::string& report : reports)
        PrintError("note: " + report);
    for (const FailedItem& item : application.failed)
        PrintError("note: " + item.Shown());
    Print(text);
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
        ->check(&ObjectionToOutput, "");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        std::string(ObjectPathHelp) +
        "\n\nThe exit status is that of this application: a nested configuration that fails stops nothing, and its "
        "reports are notes on standard error, with the items that failed. Nothing is written when the run failed."
        "\n\nWhat has changed on an object stands as \"old -> new\", with its flags; of an object that has come or "
        "gone, as the data object of a Choice, all that it holds (+) or has held (-). Records that nothing refers to "
        "any more are taken away by vyrcfd purge. Colours are for terminals, and not where the variable NO_COLOR is "
        "set to something."
        "\n\nWith --json: {\"configuration\", \"object\", \"done\", \"objects\": [{\"path\", \"type\", \"change\", "
        "\"oldType\", \"attributes\": {NAME: {\"kind\", \"before\", \"after\"}}, \"newRecords\", \"goneRecords\", "
        "\"remadeRecords\"}], \"unreferencedRecords\", \"notes\", \"failedItems\": [{\"configuration\", \"item\", "
        "\"why\", \"file\", \"line\", \"column\"}], \"savedTo\"}; \"before\" and \"after\" are "
        "{\"value\", \"set\", \"auto\"}, null where the object has no such attribute. \"change\" is \"changed\", "
        "\"new\", \"gone\" or \"replaced\", and only then there is \"oldType\". \"done\" is false for a "
        "configuration without items."
        "\n\nExample:\n    vyrcfd apply wing.model.json Solver.1 externalFlow -o new.model.json");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Apply(ioOptions, *arguments); }; });
}
} // namespace Tool
