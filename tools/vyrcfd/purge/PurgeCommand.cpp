#include <fstream>
#include <iterator>
#include <memory>

#include "Command.h"
#include "Failure.h"
#include "InputFile.h"
#include "JsonWriter.h"
#include "ModelText.h"
#include "Output.h"
#include "Uninterrupted.h"
#include "UnreferencedRecords.h"
#include "VYRStandaloneServices.h"
#include "Wording.h"

namespace Tool
{
namespace
{
struct PurgeArguments
{
    std::string model;
    std::string output;
    bool isMeant = false;
};

/// What was found, and what has become of it.
struct Purge
{
    RecordCensus census;
    /// Empty where nothing was written.
    std::string savedTo;
};

std::string ReadText(const std::string& iFile)
{
    std::ifstream stream(iFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::set<std::size_t> PositionsOf(const std::vector<UnreferencedRecord>& iRecords)
{
    std::set<std::size_t> positions;
    for (const UnreferencedRecord& one : iRecords)
        positions.insert(one.position);
    return positions;
}

/// The text of the model without the records, read once more before anybody trusts it.
std::string PurgedText(const Installation& iInstallation, const VYRStandalone::Model& iModel, const std::string& iFile,
                       const std::vector<UnreferencedRecord>& iRecords)
{
    const std::string text = WithoutObjects(ReadText(iFile), PositionsOf(iRecords));
    const VYRStandalone::Model purged = VYRStandalone::Model::Parse(text, iFile, iInstallation.CatalogFolders());
    if (purged.Objects().size() + iRecords.size() != iModel.Objects().size())
        throw Failure(OneLine(iFile) + ": has changed while it was read");
    return text;
}

std::string PurgeText(const PurgeArguments& iArguments, const Purge& iPurge)
{
    const Colours colours;
    const std::size_t found = iPurge.census.unreferenced.size();
    const std::size_t all = found + iPurge.census.referenced;
    std::string text;
    for (const UnreferencedRecord& one : iPurge.census.unreferenced)
        text += colours.Removed("- " + std::to_string(one.position) + ". " + one.record.Shown()) + "\n";
    text += OneLine(iArguments.model) + ": ";
    if (found == 0)
        text += all == 0 ? "no records" : Counted(all, "record") + ", still referred to";
    else
        text += "nothing refers to " + std::to_string(found) + " of " + Counted(all, "record");
    if (!iPurge.savedTo.empty())
        text += std::string(found == 0 ? "" : "; removed") + "; saved to " + OneLine(iPurge.savedTo);
    else if (found != 0)
        text += "; --yes removes " + std::string(found == 1 ? "it" : "them");
    return text + ".\n";
}

void WriteRecord(JsonWriter& oWriter, const UnreferencedRecord& iOne)
{
    oWriter.StartObject();
    WriteKey(oWriter, "position");
    oWriter.Uint64(iOne.position);
    WriteMember(oWriter, "object", iOne.record.path);
    for (const AttributeSnapshot& attribute : iOne.record.attributes)
    {
        WriteKey(oWriter, attribute.info.name);
        attribute.value.Write(oWriter);
    }
    oWriter.EndObject();
}

std::string PurgeJson(const PurgeArguments& iArguments, const Purge& iPurge)
{
    return JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteMember(oWriter, "model", OneLine(iArguments.model));
        WriteKey(oWriter, "unreferenced");
        oWriter.StartArray();
        for (const UnreferencedRecord& one : iPurge.census.unreferenced)
            WriteRecord(oWriter, one);
        oWriter.EndArray();
        WriteKey(oWriter, "referenced");
        oWriter.Uint64(iPurge.census.referenced);
        WriteKey(oWriter, "savedTo");
        if (iPurge.savedTo.empty())
            oWriter.Null();
        else
            WriteText(oWriter, OneLine(iPurge.savedTo));
        oWriter.EndObject();
    });
}

void RunPurge(const CommonOptions& iOptions, const PurgeArguments& iArguments)
{
    const Installation installation(iOptions);
    const VYRStandalone::Model model = installation.LoadModel(iArguments.model);
    const std::string& target = iArguments.output.empty() ? iArguments.model : iArguments.output;
    if (iArguments.isMeant && IsFromPipe(target))
        throw Failure(OneLine(target) + ": is a pipe, which nothing is saved to; --output names a file");
    Purge purge{CountRecords(model), ""};
    const std::vector<UnreferencedRecord>& records = purge.census.unreferenced;
    // The model itself is left alone where there is nothing to remove; a copy that was asked for is made.
    if (iArguments.isMeant && (!records.empty() || !iArguments.output.empty()))
    {
        purge.savedTo = target;
        const std::string text = PurgedText(installation, model, iArguments.model, records);
        const Uninterrupted save(purge.savedTo);
        VYRStandalone::SaveText(purge.savedTo, text);
    }
    Print(iOptions.json ? PurgeJson(iArguments, purge) : PurgeText(iArguments, purge));
}
} // namespace

void AddPurgeCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand(
        "purge", "Lists the configuration records of a model that nothing refers to any more, and removes them");
    const auto arguments = std::make_shared<PurgeArguments>();
    command->add_option("MODEL", arguments->model, "Model file (*.model.json)")->required();
    CLI::Option* yes = command->add_flag("--yes", arguments->isMeant, "Remove them; otherwise nothing is written");
    command->add_option("-o,--output", arguments->output, "File to save the purged model in, in place of MODEL itself")
        ->type_name("FILE")
        ->needs(yes)
        ->check(&ObjectionToOutput, "");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        "Each application of a configuration leaves the records behind that it has replaced. A record that anything "
        "in the model refers to stays, and so does every byte of the file that does not belong to a removed record."
        "\n\nWith --json: {\"model\", \"unreferenced\": [{\"position\", \"object\", and the texts of the record}], "
        "\"referenced\", \"savedTo\"}; \"position\" counts the top-level objects from 1, \"referenced\" the records "
        "that stay, and \"savedTo\" is null where nothing was written."
        "\n\nExample:\n    vyrcfd purge wing.model.json --yes");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { RunPurge(ioOptions, *arguments); }; });
}
} // namespace Tool
