#include <memory>

#include "Command.h"
#include "Description.h"
#include "Failure.h"
#include "KnownConfiguration.h"
#include "Output.h"

namespace Tool
{
namespace
{
struct DescribeArguments
{
    std::string configuration;
    bool isNested = false;
};

void Describe(const CommonOptions& iOptions, const DescribeArguments& iArguments)
{
    const Installation installation(iOptions);
    installation.LoadCatalogs();
    const ConfigurationSource source(installation);
    const SourceConfiguration& configuration = KnownConfiguration(source, iArguments.configuration);
    Print((iOptions.json ? DescriptionJson : DescriptionText)(configuration, source, iArguments.isNested));
}
} // namespace

void AddDescribeCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand("describe", "Tells in words what a configuration will do, item by item");
    const auto arguments = std::make_shared<DescribeArguments>();
    command->add_option("CONFIG", arguments->configuration, "Name of the configuration")->required();
    command->add_flag("--nested", arguments->isNested,
                      "Tell also what the configurations do that its items apply, and those that theirs apply");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        "Each configuration is unfolded once, where it is first applied. What is wrong in a configuration, vyrcfd "
        "check tells."
        "\n\nWith --json: {\"name\", \"file\", \"line\", \"column\", \"items\": [{\"item\", \"file\", \"line\", "
        "\"column\", \"role\", \"path\", \"config\", \"condition\", \"words\", \"nested\", \"notNested\"}]}. "
        "\"role\" is \"choice\", \"values\", \"automatic default\", \"custom default\", \"nested\", "
        "\"conditional\" or \"nothing\". Only with --nested, \"nested\" is the configuration that the item applies, "
        "and \"notNested\" stands in its place: \"told before\", \"circle\" or \"too deep\"."
        "\n\nExample:\n    vyrcfd --installation samples describe wallEnergy --nested");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Describe(ioOptions, *arguments); }; });
}
} // namespace Tool
