#include "Command.h"
#include "ConfigurationFiles.h"
#include "JsonWriter.h"
#include "Output.h"
#include "Wording.h"

namespace Tool
{
namespace
{
std::string ListText(const std::vector<ConfigurationFile>& iFiles)
{
    const Colours colours;
    std::size_t width = 0;
    for (const std::string& name : ConfigurationNames(iFiles))
        width = std::max(width, Characters(OneLine(name)));

    std::string text;
    for (const ConfigurationFile& file : iFiles)
    {
        text += colours.Heading(OneLine(file.path)) + "\n";
        for (const ConfigurationDefinition& definition : file.definitions)
        {
            const std::string name = definition.name.empty() ? "\"\"" : OneLine(definition.name);
            text += "    " + name + std::string(width - std::min(width, Characters(name)), ' ') + "  " +
                    Counted(definition.items, "item") + ", line " + std::to_string(definition.position.line);
            if (definition.hiddenBy)
                text += colours.Removed("  without effect: defined in " + OneLine(definition.hiddenBy->file) +
                                        ", line " + std::to_string(definition.hiddenBy->position.line));
            text += "\n";
        }
    }
    return text;
}

void WriteDefinition(JsonWriter& oWriter, const ConfigurationFile& iFile, const ConfigurationDefinition& iDefinition)
{
    oWriter.StartObject();
    WriteMember(oWriter, "name", iDefinition.name);
    WriteMember(oWriter, "file", OneLine(iFile.path));
    WriteKey(oWriter, "line");
    oWriter.Int(iDefinition.position.line);
    WriteKey(oWriter, "column");
    oWriter.Int(iDefinition.position.column);
    WriteKey(oWriter, "items");
    oWriter.Uint64(iDefinition.items);
    WriteKey(oWriter, "hiddenBy");
    if (iDefinition.hiddenBy)
        WriteText(oWriter, OneLine(iDefinition.hiddenBy->file));
    else
        oWriter.Null();
    WriteKey(oWriter, "hiddenByLine");
    if (iDefinition.hiddenBy)
        oWriter.Int(iDefinition.hiddenBy->position.line);
    else
        oWriter.Null();
    oWriter.EndObject();
}

std::string ListJson(const std::vector<ConfigurationFile>& iFiles)
{
    return JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteKey(oWriter, "configurations");
        oWriter.StartArray();
        for (const ConfigurationFile& file : iFiles)
            for (const ConfigurationDefinition& definition : file.definitions)
                WriteDefinition(oWriter, file, definition);
        oWriter.EndArray();
        oWriter.EndObject();
    });
}
} // namespace

void AddListCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand("list", "Lists the configurations, with the file and the line that each "
                                                     "comes from, in the order in which they are read");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        "Of a name that is defined twice the first definition holds; the others are marked."
        "\n\nWith --json: {\"configurations\": [{\"name\", \"file\", \"line\", \"column\", \"items\", \"hiddenBy\", "
        "\"hiddenByLine\"}]}, where the last two tell the definition that holds, and are null for that one itself."
        "\n\nExample:\n    vyrcfd --installation samples list");
    command->callback([&ioOptions, &oJob] {
        oJob = [&ioOptions] {
            const Installation installation(ioOptions);
            installation.LoadCatalogs();
            const std::vector<ConfigurationFile> files = ReadConfigurationFiles(installation);
            if (const std::string note = OddityNote(files); !note.empty())
                PrintError(note);
            Print(ioOptions.json ? ListJson(files) : ListText(files));
        };
    });
}
} // namespace Tool
