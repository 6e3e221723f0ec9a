/**
 * @file
 * Commands on objects: ls, records, test, apply.
 */

#include "ApplyText.h"
#include "Configuring.h"
#include "Failure.h"
#include "QuietDefaults.h"
#include "ShellCommands.h"
#include "ShowText.h"
#include "VYRCfdObjectCondition.h"
#include "Wording.h"

namespace Tool
{
namespace
{
void WriteTextOrNull(JsonWriter& oWriter, const char* iKey, const std::string& iText)
{
    WriteKey(oWriter, iKey);
    if (iText.empty())
        oWriter.Null();
    else
        WriteText(oWriter, iText);
}

void WriteHeading(JsonWriter& oWriter, const ObjectSnapshot& iObject)
{
    WriteMember(oWriter, "path", iObject.path);
    WriteMember(oWriter, "type", iObject.type);
    WriteMember(oWriter, "name", iObject.name);
    WriteTextOrNull(oWriter, "alias", iObject.alias);
    WriteTextOrNull(oWriter, "identifier", iObject.identifier);
}

/// A list of the objects of a depth.
void WriteList(JsonWriter& oWriter, const Snapshot& iSnapshot, int iDepth)
{
    oWriter.StartArray();
    for (const ObjectSnapshot& object : iSnapshot)
    {
        if (object.depth != iDepth)
            continue;
        oWriter.StartObject();
        WriteHeading(oWriter, object);
        oWriter.EndObject();
    }
    oWriter.EndArray();
}

/// The first object, and below it those that it owns.
void WriteObject(JsonWriter& oWriter, const Snapshot& iSnapshot, const AskDefault& iAskDefault)
{
    const ObjectSnapshot& object = iSnapshot.front();
    oWriter.StartObject();
    WriteHeading(oWriter, object);
    WriteKey(oWriter, "attributes");
    oWriter.StartObject();
    for (const AttributeSnapshot& attribute : object.attributes)
        WriteAttribute(oWriter, attribute, iAskDefault(object, attribute));
    oWriter.EndObject();
    WriteKey(oWriter, "parts");
    WriteList(oWriter, iSnapshot, 1);
    oWriter.EndObject();
}
} // namespace

void ShellList(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const VYRStandalone::Model& model = ioSession.Model();
    if (iArguments.empty())
    {
        const Snapshot snapshot = TakeSnapshot(model);
        ioSession.Say(MakeAnswer(snapshot.empty() ? "No objects.\n" : ListText(snapshot, 0),
                                 [&](JsonWriter& oWriter) { WriteList(oWriter, snapshot, 0); }));
        return;
    }
    const std::string& path = iArguments[0];
    const Target target = FollowPath(model, {}, path);
    const Snapshot snapshot = TakeSnapshot(model, target.object, path, target.attribute);
    QuietDefaults defaults(model);
    ioSession.Say(MakeAnswer(ShowText({snapshot.front()}, defaults.Ask()) + ListText(snapshot, 1),
                             [&](JsonWriter& oWriter) { WriteObject(oWriter, snapshot, defaults.Ask()); }));
}

void ShellRecords(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const ORXISpecObject_var spObject = ioSession.Object(iArguments[0]);
    const ObjectSnapshot object = TakeSnapshot(ioSession.Model(), spObject, iArguments[0]).front();
    const std::string text = RecordsText(object, {});
    ioSession.Say(MakeAnswer(text.empty() ? "No records.\n" : text, [&](JsonWriter& oWriter) {
        oWriter.StartArray();
        for (const RecordSnapshot& record : object.records)
            WriteRecord(oWriter, record);
        oWriter.EndArray();
    }));
}

void ShellTest(ShellSession& ioSession, const ShellArguments& iArguments)
{
    // Without a path the condition itself begins with the object.
    std::string path = iArguments.front();
    std::string condition = iArguments.back();
    if (iArguments.size() == 1)
    {
        const std::size_t slash = path.find('/');
        condition = slash != std::string::npos ? path.substr(slash + 1) : std::string();
        path.resize(std::min(path.size(), slash));
    }
    const VYRCfdObjectAccess access(ORXBaseUnknown_var(ioSession.Object(path)));
    const VYRCfdObjectCondition evaluated(access, ORXUnicodeString(condition.data(), condition.size()));
    if (evaluated.HasError())
        throw Failure(OneLine(evaluated.GetError().View()));
    const std::string answer = evaluated ? "true" : "false";
    ioSession.Say({answer + "\n", answer});
}

void ShellApply(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const ORXISpecObject_var spObject = ioSession.Object(iArguments[0]);
    const Configuring configuring{{}, iArguments[0], iArguments[1], ioSession.Configurations()};
    bool isDone = true;
    ioSession.Change([&] { isDone = Configure(spObject, configuring); }, ShellSession::Touches::CustomDefaults);
    if (!isDone)
        ioSession.Reports().Note(Quoted(iArguments[1]) + " has no items");
}
} // namespace Tool
