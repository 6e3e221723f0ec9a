#include <memory>
#include <optional>

#include "CheckCatalogs.h"
#include "CheckRun.h"
#include "Command.h"
#include "ConditionSuggestions.h"
#include "Failure.h"
#include "FindingText.h"
#include "Output.h"
#include "Progress.h"
#include "TypedCheck.h"
#include "Wording.h"

namespace Tool
{
namespace
{
struct CheckArguments
{
    std::vector<std::string> catalogs;
    bool isStrict = false;
};

std::string SummaryText(const CheckRun& iRun, const ConfigurationSource& iWritten)
{
    std::size_t items = 0;
    for (const SourceConfiguration& configuration : iWritten.Configurations())
        items += configuration.items.size();
    return Counted(iRun.findings.Count(Severity::Error), "error") + ", " +
           Counted(iRun.findings.Count(Severity::Warning), "warning") + " and " +
           Counted(iRun.findings.Count(Severity::Note), "note") + " in " +
           Counted(iWritten.Configurations().size(), "configuration") + " with " + Counted(items, "item");
}

/// What the configuration files say by themselves.
void CheckTexts(const ConfigurationSource& iWritten, CheckRun& ioRun)
{
    CheckKeys(iWritten, ioRun);
    CheckRoles(ioRun);
    CheckNames(ioRun);
    CheckCycles(ioRun);
    CheckPaths(ioRun);
    CheckConditionTexts(ioRun);
    CheckLists(ioRun);
    CheckRepeatedItems(ioRun);
    AddUnusedWithoutCatalogs(ioRun);
}

void Check(const CommonOptions& iOptions, const CheckArguments& iArguments)
{
    const Installation installation(iOptions);
    std::optional<Progress> progress;
    progress.emplace("Checking the installation");
    const ConfigurationSource source(installation, ConfigurationSource::Faults::Keep);
    MeantSource meant(source);
    CheckRun run(meant);
    CheckFiles(installation, source, run);
    const CheckCatalogs catalogs(installation, iArguments.catalogs, run);
    run.isWhole = source.Unreadable().empty() && !catalogs.HaveFailed() && !meant.HasLostConfigurations();
    run.hasCatalogs = !catalogs.Files().empty();
    CheckTexts(source, run);
    if (!catalogs.HaveFailed() && !catalogs.Files().empty())
        TypedCheck(run).Check(CatalogSource(installation, catalogs.Files()));
    CheckRepeatedDefaults(run);
    CompleteConditions(run.findings);

    const std::vector<Finding> findings = run.findings.Sorted(source);
    progress.reset();
    Print(iOptions.json ? FindingsJson(findings) : FindingsText(findings) + SummaryText(run, source) + "\n");
    const bool fails =
        run.findings.Count(Severity::Error) != 0 || (iArguments.isStrict && run.findings.Count(Severity::Warning) != 0);
    if (fails)
        throw Failure("vyrcfd: the check found " + SummaryText(run, source));
}
} // namespace

void AddCheckCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand(
        "check", "Finds what the engine passes over in silence in the configuration files of the installation");
    const auto arguments = std::make_shared<CheckArguments>();
    command->add_option("CATALOG", arguments->catalogs,
                        "Catalogs of feature types to check against, beside those of the installation");
    command->add_flag("--strict", arguments->isStrict, "Warnings fail as errors do");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        "One line a finding: FILE:LINE:COLUMN: SEVERITY: CONFIGURATION, ITEM: MESSAGE [KIND]. An error does not do "
        "what is written, a warning may not do what is meant, a note is worth knowing. The exit status is 1 if there "
        "are errors, with --strict also if there are warnings."
        "\n\nA configuration is checked against the types that list it under \"configurations\" in a catalog, against "
        "those that the paths of others lead to, and otherwise against the types that most of its paths were meant for."
        "\n\nWith --json: {\"findings\": [{\"kind\", \"severity\", \"file\", \"line\", \"column\", "
        "\"configuration\", \"item\", \"key\", \"message\", \"suggestion\", \"related\": [{\"file\", \"line\"}]}]}; "
        "items count from 1. The place is that of the value of \"key\", of an unknown key itself. \"suggestion\" "
        "stands for the whole that is there, with these exceptions: of ignored-file it is a file's name; of "
        "path-nowhere without \"/\" it may be the one name that leads nowhere, and in a condition it is never "
        "more than the path; of odd-condition without operator it is what the condition compares with; of "
        "unknown-type in a list of startups, and of default-not-in-choices at a list of choices, it is one entry. "
        "Kinds: "
        "unreadable-file, ignored-file, unknown-key, wrong-kind, does-nothing, ignored-key, duplicate-name, "
        "unknown-config, unused-config, cycle, bad-condition, "
        "odd-condition, unequal-lists, swapped-lists, wrong-separator, blank-in-list, default-not-in-choices, "
        "default-invalid, "
        "default-reopens-differently, path-nowhere, unknown-type, wrong-type, duplicate-entry."
        "\n\nExample:\n    vyrcfd --installation samples check --strict");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Check(ioOptions, *arguments); }; });
}
} // namespace Tool
