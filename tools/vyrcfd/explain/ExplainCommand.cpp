#include <memory>
#include <optional>

#include "Command.h"
#include "Explanation.h"
#include "ObjectPath.h"
#include "Output.h"
#include "Progress.h"
#include "Wording.h"

namespace Tool
{
namespace
{
struct ExplainArguments
{
    std::string model;
    std::string path;
};

void Explain(const CommonOptions& iOptions, const ExplainArguments& iArguments)
{
    const Installation installation(iOptions);
    const VYRStandalone::Model model = installation.LoadModel(iArguments.model);
    std::optional<Progress> progress;
    progress.emplace("Explaining " + OneLine(iArguments.path));
    const Explanation explanation = ExplainAttribute(model, iArguments.model, iArguments.path, ModelOrigin::File);
    const ConfigurationSource configurations(installation);
    const CatalogSource catalogs(installation, iArguments.model);
    const ExplanationSources sources{configurations, catalogs};
    const std::string text =
        iOptions.json ? ExplanationJson(explanation, sources) : ExplanationText(explanation, sources);
    progress.reset();
    Print(text);
}
} // namespace

void AddExplainCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command =
        ioApp.add_subcommand("explain", "Tells where the value of an attribute comes from, and what would replace it");
    const auto arguments = std::make_shared<ExplainArguments>();
    command->add_option("MODEL", arguments->model, "Model file (*.model.json)")->required();
    command->add_option("PATH", arguments->path, "Path of the attribute")->required();
    AddCommonOptions(*command, ioOptions);
    command->footer(
        std::string(ObjectPathHelp) +
        "\n\nNothing is changed. The default of an attribute is looked up on a ladder, from the top: a custom default, "
        "which lives in memory only, so that a model in a file has none; the first record about the attribute that a "
        "configuration has left; the start-up of the feature type. Each rung is told, with \">\" at the one that "
        "counts. Records do not name their configuration: every item is told that leaves such a record, by its "
        "configuration, its number, and its place. What `unset` would do was tried on a copy."
        "\n\nA path that begins with a type in brackets, as [FlowSolver]/relaxation, is one of that type's prototype: "
        "the object that keeps the start-up values which a catalog gives the type."
        "\n\nWith --json: {\"path\", \"object\", \"attribute\", \"kind\", \"optional\", \"value\", \"set\", \"auto\", "
        "\"source\", "
        "\"ladder\": {\"customDefault\", \"records\": [{\"position\", the texts of the record, \"value\", \"items\": "
        "[{\"configuration\", \"item\", \"file\", \"line\", \"column\"}]}], \"prototype\": {\"path\", \"value\", "
        "\"declaredBy\", \"declarations\": [{\"catalog\", \"type\", \"file\", \"line\", \"column\"}], "
        "\"values\": the same of the places that give the value, of which the last counts}}, \"winner\", "
        "\"afterUnset\": {\"value\", \"set\", \"auto\"}}; \"winner\" is \"record\", \"start-up\" or \"none\". "
        "\"ladder\" and \"afterUnset\" are null for an object without default management, and \"customDefault\" "
        "always is."
        "\n\nExample:\n    vyrcfd explain wing.model.json Solver.1/freestream/freestreamMach");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Explain(ioOptions, *arguments); }; });
}
} // namespace Tool
