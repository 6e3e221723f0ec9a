#include <filesystem>
#include <memory>
#include <set>

#include "CheckRun.h"
#include "ChoiceManager.h"
#include "Command.h"
#include "Failure.h"
#include "FindingText.h"
#include "JsonWriter.h"
#include "Output.h"
#include "TypedCheck.h"
#include "VYRStandaloneCatalog.h"
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

/// Names of the catalogs in the installation's folders, in their order.
std::vector<std::string> InstalledCatalogs(const Installation& iInstallation)
{
    constexpr std::string_view suffix = ".catalog.json";
    std::set<std::string> names;
    for (const std::string& folder : iInstallation.CatalogFolders())
    {
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator(folder, ignored))
        {
            const std::string name = entry.path().filename().string();
            const bool isCatalog =
                name.size() > suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
            if (isCatalog && entry.is_regular_file(ignored))
                names.insert(name.substr(0, name.size() - suffix.size()));
        }
    }
    return {names.begin(), names.end()};
}

/// Declares catalogs by their names, as a model without objects that uses them does: one that is declared already
/// holds.
void DeclareInstalled(const std::vector<std::string>& iNames, const Installation& iInstallation)
{
    const std::string model = JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteKey(oWriter, "model");
        oWriter.Int(1);
        WriteKey(oWriter, "catalogs");
        oWriter.StartArray();
        for (const std::string& name : iNames)
            WriteText(oWriter, name);
        oWriter.EndArray();
        WriteKey(oWriter, "objects");
        oWriter.StartArray();
        oWriter.EndArray();
        oWriter.EndObject();
    });
    VYRStandalone::Model::Parse(model, "the installation " + OneLine(iInstallation.Path()),
                                iInstallation.CatalogFolders());
}

/// Those that are named come first, so that one of them holds in place of an installed one of the same name.
/// @return whether there are any
bool LoadCatalogs(const Installation& iInstallation, const CheckArguments& iArguments)
{
    std::vector<std::string> files = iInstallation.Catalogs();
    files.insert(files.end(), iArguments.catalogs.begin(), iArguments.catalogs.end());
    for (const std::string& file : files)
        VYRStandalone::LoadCatalog(file, iInstallation.CatalogFolders());
    const std::vector<std::string> installed = InstalledCatalogs(iInstallation);
    DeclareInstalled(installed, iInstallation);
    // Now that all types are declared, and before anything is asked of an object.
    ChoiceManager::Register();
    return !files.empty() || !installed.empty();
}

std::string SummaryText(const CheckRun& iRun)
{
    std::size_t items = 0;
    for (const SourceConfiguration& configuration : iRun.source.Configurations())
        items += configuration.items.size();
    return Counted(iRun.findings.Count(Severity::Error), "error") + ", " +
           Counted(iRun.findings.Count(Severity::Warning), "warning") + " and " +
           Counted(iRun.findings.Count(Severity::Note), "note") + " in " +
           Counted(iRun.source.Configurations().size(), "configuration") + " with " + Counted(items, "item");
}

void Check(const CommonOptions& iOptions, const CheckArguments& iArguments)
{
    const Installation installation(iOptions);
    const ConfigurationSource source(installation);
    const bool hasTypes = LoadCatalogs(installation, iArguments);

    CheckRun run{source};
    CheckKeys(run);
    CheckRoles(run);
    CheckNames(run);
    CheckCycles(run);
    CheckConditionTexts(run);
    CheckLists(run);
    CheckDefaultPaths(run);
    if (hasTypes)
        TypedCheck(run).Check();

    const std::vector<Finding> findings = run.findings.Sorted(source);
    Print(iOptions.json ? FindingsJson(findings) : FindingsText(findings) + SummaryText(run) + "\n");
    const bool fails =
        run.findings.Count(Severity::Error) != 0 || (iArguments.isStrict && run.findings.Count(Severity::Warning) != 0);
    if (fails)
        throw Failure("vyrcfd: the check found " + SummaryText(run));
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
        "those that the paths of others lead to, and otherwise against the types that most of its paths fit."
        "\n\nWith --json: {\"findings\": [{\"kind\", \"severity\", \"file\", \"line\", \"column\", "
        "\"configuration\", \"item\", \"key\", \"message\", \"suggestion\", \"related\": [{\"file\", \"line\"}]}]}; "
        "items count from 1. The place is that of the value of \"key\", of an unknown key itself. Kinds: unknown-key, "
        "wrong-kind, does-nothing, ignored-key, duplicate-name, unknown-config, unused-config, cycle, bad-condition, "
        "odd-condition, unequal-lists, blank-in-list, default-not-in-choices, default-invalid, "
        "default-reopens-differently, path-nowhere, unknown-type."
        "\n\nExample:\n    vyrcfd --installation samples check --strict");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Check(ioOptions, *arguments); }; });
}
} // namespace Tool
