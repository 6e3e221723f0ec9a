#include <filesystem>
#include <memory>

#include "Command.h"
#include "Failure.h"
#include "GraphText.h"
#include "Graphviz.h"
#include "KnownConfiguration.h"
#include "Output.h"
#include "Uninterrupted.h"
#include "VYRStandaloneServices.h"
#include "Wording.h"

namespace Tool
{
namespace
{
struct GraphArguments
{
    /// Of the configuration to begin with, if one was named.
    std::string configuration;
    bool isNamed = false;
    bool isAll = false;
    bool isSvg = false;
    std::string output;
};

std::string ExtensionOf(const std::string& iFile)
{
    return std::filesystem::path(iFile).extension().string();
}

/// What is wrong with the name of the file; empty for nothing.
std::string Objection(const std::string& iFile)
{
    if (std::string objection = ObjectionToOutput(iFile); !objection.empty())
        return objection;
    const std::string extension = ExtensionOf(iFile);
    const bool isKnown = extension == ".svg" || extension == ".dot" || extension == ".gv";
    return isKnown ? std::string() : Quoted(iFile) + " must end in .svg, .dot or .gv";
}

void RunGraph(const CommonOptions& iOptions, const GraphArguments& iArguments)
{
    const Installation installation(iOptions);
    installation.LoadCatalogs();
    const ConfigurationSource source(installation);
    GraphExtent extent;
    extent.isAll = iArguments.isAll;
    if (iArguments.isNamed)
        extent.from = &KnownConfiguration(source, iArguments.configuration);
    const ReferenceGraph graph = ReferencesOf(source, extent);
    std::string text = iOptions.json ? GraphJson(graph) : GraphDot(graph);
    if (iArguments.isSvg || ExtensionOf(iArguments.output) == ".svg")
        text = DrawSvg(text);
    if (iArguments.output.empty())
    {
        Print(text);
        return;
    }
    const Uninterrupted save(iArguments.output);
    VYRStandalone::SaveText(iArguments.output, text);
}
} // namespace

void AddGraphCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand("graph", "Draws which configuration applies which, as DOT or SVG");
    const auto arguments = std::make_shared<GraphArguments>();
    CLI::Option* name =
        command->add_option("CONFIG", arguments->configuration, "Only this one, what it applies, and what those apply");
    command->add_flag("--all", arguments->isAll, "Also configurations that apply none, and that none applies")
        ->excludes(name);
    command->add_flag("--svg", arguments->isSvg, "Draw it as SVG, with the program dot of Graphviz");
    command
        ->add_option("-o,--output", arguments->output,
                     "File to write to in place of standard output; one that ends in .svg is drawn")
        ->type_name("FILE")
        ->check(&Objection, "");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        "Configurations of one file stand in one box. A dashed line is a reference on the condition that it bears; "
        "pointing at a line or a box in the SVG tells the items and the places. A configuration from which more than "
        "eight lines lead into other files stands in these once more, dashed. In red: references in a circle, and "
        "names that no configuration has."
        "\n\nWith --json: {\"configurations\": [{\"name\", \"file\", \"line\"}], \"references\": [{\"from\", "
        "\"to\", \"item\", \"line\", \"path\", \"condition\", \"inCircle\"}]}; \"file\" and \"line\" are null for "
        "a name that no configuration has, \"condition\" where there is none."
        "\n\nExample:\n    vyrcfd --installation samples graph wall -o wall.svg");
    command->callback([&ioOptions, &oJob, arguments, name] {
        arguments->isNamed = name->count() != 0;
        if (ioOptions.json && (arguments->isSvg || !arguments->output.empty()))
            throw CLI::ValidationError("--json", "is an answer on standard output, and excludes --svg and --output");
        oJob = [&ioOptions, arguments] { RunGraph(ioOptions, *arguments); };
    });
}
} // namespace Tool
