#include <memory>
#include <optional>

#include "ChoiceView.h"
#include "Command.h"
#include "JsonWriter.h"
#include "ObjectPath.h"
#include "Output.h"
#include "Progress.h"
#include "ShowText.h"
#include "Snapshot.h"
#include "Wording.h"

namespace Tool
{
namespace
{
void WriteObject(JsonWriter& oWriter, DefaultsOnce& ioDefaults, const ORXISpecObject_var& iObject,
                 const std::string& iPath, const std::string& iType, const std::vector<AttributeSnapshot>& iAttributes,
                 const std::optional<ChoiceView>& iChoice = std::nullopt)
{
    oWriter.StartObject();
    WriteMember(oWriter, "path", iPath);
    WriteMember(oWriter, "type", iType);
    WriteKey(oWriter, "attributes");
    oWriter.StartObject();
    for (const AttributeSnapshot& attribute : iAttributes)
        WriteAttribute(oWriter, attribute, ioDefaults.Of(iObject, attribute));
    oWriter.EndObject();
    if (iChoice)
    {
        WriteKey(oWriter, "choice");
        WriteChoice(oWriter, *iChoice);
    }
    oWriter.EndObject();
}

/// Records stand behind their object, as objects at their place in its default management.
std::string ShowJson(const Snapshot& iSnapshot)
{
    DefaultsOnce defaults;
    return JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteKey(oWriter, "objects");
        oWriter.StartArray();
        for (const ObjectSnapshot& object : iSnapshot)
        {
            WriteObject(oWriter, defaults, object.object, object.path, object.type, object.attributes,
                        ChoiceViewOf(object, defaults.Ask()));
            if (!object.otherFlags.empty())
                WriteObject(oWriter, defaults, {}, object.path + "/defaultManagement", "VYRCfdDefaultManagement",
                            object.otherFlags);
            for (const RecordSnapshot& record : object.records)
                if (!record.attributes.empty())
                    WriteObject(oWriter, defaults, record.object, record.path, record.type, record.attributes);
        }
        oWriter.EndArray();
        oWriter.EndObject();
    });
}

struct ShowArguments
{
    std::string model;
    std::string path;
};

/// What asking for defaults does to the model is lost with it: it is never saved.
void Show(const CommonOptions& iOptions, const ShowArguments& iArguments)
{
    const VYRStandalone::Model model = Installation(iOptions).LoadModel(iArguments.model);
    std::optional<Progress> progress;
    progress.emplace("Showing " + OneLine(iArguments.path.empty() ? iArguments.model : iArguments.path));
    Snapshot snapshot;
    if (iArguments.path.empty())
        snapshot = TakeSnapshot(model);
    else
    {
        const Target target = FollowPath(model, iArguments.model, iArguments.path);
        snapshot = TakeSnapshot(model, target.object, iArguments.path, target.attribute);
    }
    DefaultsOnce defaults;
    const std::string text = iOptions.json ? ShowJson(snapshot) : ShowText(snapshot, defaults.Ask());
    progress.reset();
    Print(text);
}
} // namespace

void AddShowCommand(CLI::App& ioApp, CommonOptions& ioOptions, Job& oJob)
{
    CLI::App* command = ioApp.add_subcommand(
        "show", "Shows objects of a model as a tree: values, kinds, set and auto flags, defaults, records");
    const auto arguments = std::make_shared<ShowArguments>();
    command->add_option("MODEL", arguments->model, "Model file (*.model.json)")->required();
    command->add_option("PATH", arguments->path, "Object or attribute; all objects where it is left out");
    AddCommonOptions(*command, ioOptions);
    command->footer(
        std::string(ObjectPathHelp) +
        "\n\nNothing is changed. An attribute without value is (unset), which is something else than \"\"; an object "
        "attribute or list entry without object is (empty). A default stands with what it comes from: a custom "
        "default, a record that a configuration has left, or the start-up of the feature type. Of a Choice the "
        "selected value is marked with \">\", and the feature type of the data object that comes with a choice stands "
        "beside it."
        "\n\nWith --json: {\"objects\": [{\"path\", \"type\", \"attributes\": {NAME: {\"kind\", \"value\", \"set\", "
        "\"auto\", \"default\", \"source\"}}}]}, owners first; null for no value, no flag, no default. \"source\" "
        "says where the value comes from: \"set\", \"custom default\", \"record\", \"start-up\", or \"none\" when "
        "none of these gives it. A Choice has a member \"choice\" beside \"attributes\": {\"value\", \"choices\", "
        "\"startups\", \"display\", \"default\", \"data\"}, where \"data\" is the path of its data object."
        "\n\nExample:\n    vyrcfd show wing.model.json Solver.1/turbulence");
    command->callback(
        [&ioOptions, &oJob, arguments] { oJob = [&ioOptions, arguments] { Show(ioOptions, *arguments); }; });
}
} // namespace Tool
