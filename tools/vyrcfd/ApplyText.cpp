#include "ApplyText.h"

#include "ORXTypeCode.h"
#include "Output.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char Indent[] = "    ";

std::string Joined(const std::vector<std::string>& iParts)
{
    std::string text;
    for (const std::string& part : iParts)
        text += (text.empty() ? "" : ", ") + part;
    return text;
}

std::string FlagChange(const char* iName, bool iBefore, bool iAfter)
{
    if (iBefore == iAfter)
        return {};
    return std::string(iAfter ? "now " : "no longer ") + iName;
}

std::vector<std::string> FlagChanges(const AttributeSnapshot& iBefore, const AttributeSnapshot& iAfter)
{
    std::vector<std::string> parts{
        FlagChange("set", iBefore.set.value_or(false), iAfter.set.value_or(false)),
        FlagChange("auto", iBefore.automatic.value_or(false), iAfter.automatic.value_or(false))};
    // No flag and a false one are two things.
    if (!iBefore.automatic && iAfter.automatic == false)
        parts.emplace_back("auto off");
    std::erase(parts, std::string());
    return parts;
}

std::string Coloured(const std::vector<std::string>& iParts, const Colours& iColours)
{
    std::vector<std::string> parts;
    for (const std::string& part : iParts)
        parts.push_back(iColours.Noted(part));
    return Joined(parts);
}

/// The value and the flags of one side: what was there, or what is there now.
std::string SideText(const AttributeSnapshot& iAttribute)
{
    std::vector<std::string> parts{iAttribute.value.Shown()};
    if (iAttribute.set.value_or(false))
        parts.emplace_back("set");
    if (iAttribute.automatic)
        parts.emplace_back(*iAttribute.automatic ? "auto" : "auto off");
    return Joined(parts);
}

std::string AttributeText(const AttributeChange& iChange, const Colours& iColours)
{
    if (iChange.before == nullptr)
        return OneLine(iChange.after->info.name) + ": " + iColours.Added("added, " + SideText(*iChange.after));
    if (iChange.after == nullptr)
        return OneLine(iChange.before->info.name) + ": " + iColours.Removed("taken away, " + SideText(*iChange.before));
    std::vector<std::string> parts;
    if (!(iChange.before->value == iChange.after->value))
        parts.push_back(iColours.Removed(iChange.before->value.Shown()) + " -> " +
                        iColours.Added(iChange.after->value.Shown()));
    if (const std::string flags = Coloured(FlagChanges(*iChange.before, *iChange.after), iColours); !flags.empty())
        parts.push_back(flags);
    return OneLine(iChange.after->info.name) + ": " + Joined(parts);
}

/// Whether an object that comes or goes is told with this: what it owns stands as objects of their own, and of what
/// holds nothing there is nothing to tell.
bool IsTold(const AttributeSnapshot* iAttribute)
{
    if (iAttribute == nullptr)
        return false;
    const bool hasFlag = iAttribute->set.value_or(false) || iAttribute->automatic;
    switch (iAttribute->value.GetKind())
    {
    case Value::Kind::Unset:
    case Value::Kind::Empty:
        return hasFlag;
    case Value::Kind::List:
        return hasFlag || (iAttribute->info.listType != tk_component && !iAttribute->value.Entries().empty());
    default:
        return hasFlag || iAttribute->info.type != tk_component || iAttribute->value.GetKind() == Value::Kind::Column;
    }
}

/// What an object holds that has come (+), and one that has gone (-).
std::string HoldingsText(const std::vector<AttributeChange>& iAttributes, const Colours& iColours)
{
    std::string text;
    for (const AttributeChange& attribute : iAttributes)
        if (IsTold(attribute.before))
            text += Indent +
                    iColours.Removed("- " + OneLine(attribute.before->info.name) + ": " + SideText(*attribute.before)) +
                    "\n";
    for (const AttributeChange& attribute : iAttributes)
        if (IsTold(attribute.after))
            text += Indent +
                    iColours.Added("+ " + OneLine(attribute.after->info.name) + ": " + SideText(*attribute.after)) +
                    "\n";
    return text;
}

/// The path, and what has become of the object there.
std::string HeadingText(const ObjectChange& iChange, const Colours& iColours)
{
    const ObjectSnapshot& object = *iChange.object;
    const std::string path = iColours.Heading(OneLine(object.path));
    const std::string type = OneLine(object.type);
    if (iChange.replaced != nullptr && iChange.replaced->type != object.type)
        return path + "\n" + Indent + iColours.Removed("- " + OneLine(iChange.replaced->type)) + "\n" + Indent +
               iColours.Added("+ " + type) + "\n";
    const std::string fate = iChange.replaced != nullptr ? iColours.Added("  made anew")
                             : iChange.isNew             ? iColours.Added("  new")
                             : iChange.isGone            ? iColours.Removed("  gone")
                                                         : "";
    return path + "  " + type + fate + "\n";
}

std::string ObjectText(const ObjectChange& iChange, const Colours& iColours)
{
    std::string text = HeadingText(iChange, iColours);
    if (iChange.IsOfAnother())
        text += HoldingsText(iChange.attributes, iColours);
    else
        for (const AttributeChange& attribute : iChange.attributes)
            text += Indent + AttributeText(attribute, iColours) + "\n";
    for (const RecordSnapshot* record : iChange.goneRecords)
        text += Indent + iColours.Removed("- record " + record->Shown()) + "\n";
    for (const RecordSnapshot* record : iChange.newRecords)
        text += Indent + iColours.Added("+ record " + record->Shown()) + "\n";
    if (iChange.remadeRecords != 0)
        text += Indent + Counted(iChange.remadeRecords, "record") + " made anew as before\n";
    return text;
}

std::string SummaryText(const Application& iApplication, const Difference& iDifference)
{
    std::size_t fresh = 0;
    std::size_t replaced = 0;
    std::size_t gone = 0;
    for (const ObjectChange& change : iDifference.objects)
    {
        fresh += change.isNew ? 1 : 0;
        replaced += change.replaced != nullptr ? 1 : 0;
        gone += change.isGone ? 1 : 0;
    }
    std::string text = Quoted(iApplication.configuration) + " on " + OneLine(iApplication.object) + ": " +
                       Counted(iDifference.ChangedAttributes(), "attribute") + " changed, " +
                       Counted(iDifference.NewRecords(), "record") + " made";
    if (fresh != 0)
        text += ", " + Counted(fresh, "object") + " made";
    if (replaced != 0)
        text += ", " + Counted(replaced, "object") + " replaced";
    if (gone != 0)
        text += ", " + Counted(gone, "object") + " gone";
    if (iDifference.unreferencedRecords > 0)
        text += ", " + Counted(static_cast<std::size_t>(iDifference.unreferencedRecords), "record") +
                " left that nothing refers to";
    if (!iApplication.notes.empty())
        text += ", " + Counted(iApplication.notes.size(), "report") + " on standard error";
    return text + ".\n";
}

void WriteSide(JsonWriter& oWriter, const char* iKey, const AttributeSnapshot* iAttribute)
{
    WriteKey(oWriter, iKey);
    if (iAttribute == nullptr)
    {
        oWriter.Null();
        return;
    }
    const auto flag = [&](const char* iName, const std::optional<bool>& iFlag) {
        WriteKey(oWriter, iName);
        if (iFlag)
            oWriter.Bool(*iFlag);
        else
            oWriter.Null();
    };
    oWriter.StartObject();
    WriteKey(oWriter, "value");
    iAttribute->value.Write(oWriter);
    flag("set", iAttribute->set);
    flag("auto", iAttribute->automatic);
    oWriter.EndObject();
}

void WriteRecords(JsonWriter& oWriter, const char* iKey, const std::vector<const RecordSnapshot*>& iRecords)
{
    WriteKey(oWriter, iKey);
    oWriter.StartArray();
    for (const RecordSnapshot* record : iRecords)
        WriteRecord(oWriter, *record);
    oWriter.EndArray();
}

const char* FateText(const ObjectChange& iChange)
{
    if (iChange.replaced != nullptr)
        return "replaced";
    return iChange.isNew ? "new" : iChange.isGone ? "gone" : "changed";
}

void WriteObject(JsonWriter& oWriter, const ObjectChange& iChange)
{
    oWriter.StartObject();
    WriteMember(oWriter, "path", iChange.object->path);
    WriteMember(oWriter, "type", iChange.object->type);
    WriteMember(oWriter, "change", FateText(iChange));
    if (iChange.replaced != nullptr)
        WriteMember(oWriter, "oldType", iChange.replaced->type);
    WriteKey(oWriter, "attributes");
    oWriter.StartObject();
    for (const AttributeChange& attribute : iChange.attributes)
    {
        const AttributeSnapshot& side = attribute.after != nullptr ? *attribute.after : *attribute.before;
        WriteKey(oWriter, side.info.name);
        oWriter.StartObject();
        WriteMember(oWriter, "kind", side.KindName());
        WriteSide(oWriter, "before", attribute.before);
        WriteSide(oWriter, "after", attribute.after);
        oWriter.EndObject();
    }
    oWriter.EndObject();
    WriteRecords(oWriter, "newRecords", iChange.newRecords);
    WriteRecords(oWriter, "goneRecords", iChange.goneRecords);
    WriteKey(oWriter, "remadeRecords");
    oWriter.Uint64(iChange.remadeRecords);
    oWriter.EndObject();
}
void WriteFailedItem(JsonWriter& oWriter, const FailedItem& iFailed)
{
    oWriter.StartObject();
    WriteMember(oWriter, "configuration", iFailed.item.configuration.name);
    WriteKey(oWriter, "item");
    oWriter.Uint64(iFailed.item.number);
    WriteMember(oWriter, "why", iFailed.why);
    WriteMember(oWriter, "file", OneLine(iFailed.item.configuration.file->Path()));
    WriteKey(oWriter, "line");
    oWriter.Int(iFailed.item.value.position.line);
    WriteKey(oWriter, "column");
    oWriter.Int(iFailed.item.value.position.column);
    oWriter.EndObject();
}

} // namespace

std::string DifferenceText(const Difference& iDifference)
{
    const Colours colours;
    std::string text;
    for (const ObjectChange& change : iDifference.objects)
        text += ObjectText(change, colours);
    return text;
}

void WriteRecord(JsonWriter& oWriter, const RecordSnapshot& iRecord)
{
    oWriter.StartObject();
    for (const AttributeSnapshot& attribute : iRecord.attributes)
    {
        WriteKey(oWriter, attribute.info.name);
        attribute.value.Write(oWriter);
    }
    oWriter.EndObject();
}

void WriteChanges(JsonWriter& oWriter, const Difference& iDifference)
{
    oWriter.StartArray();
    for (const ObjectChange& change : iDifference.objects)
        WriteObject(oWriter, change);
    oWriter.EndArray();
}

std::string ApplyText(const Application& iApplication, const Difference& iDifference)
{
    const std::string saved = iApplication.savedTo.empty() ? "" : "Saved to " + OneLine(iApplication.savedTo) + ".\n";
    if (!iApplication.isDone)
        return "Nothing done: " + Quoted(iApplication.configuration) + " has no items.\n" + saved;
    return DifferenceText(iDifference) + SummaryText(iApplication, iDifference) + saved;
}

std::string ApplyJson(const Application& iApplication, const Difference& iDifference)
{
    return JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteMember(oWriter, "configuration", iApplication.configuration);
        WriteMember(oWriter, "object", iApplication.object);
        WriteKey(oWriter, "done");
        oWriter.Bool(iApplication.isDone);
        WriteKey(oWriter, "objects");
        WriteChanges(oWriter, iDifference);
        WriteKey(oWriter, "unreferencedRecords");
        oWriter.Int(iDifference.unreferencedRecords);
        WriteKey(oWriter, "notes");
        oWriter.StartArray();
        for (const std::string& note : iApplication.notes)
            WriteText(oWriter, note);
        oWriter.EndArray();
        WriteKey(oWriter, "failedItems");
        oWriter.StartArray();
        for (const FailedItem& failed : iApplication.failed)
            WriteFailedItem(oWriter, failed);
        oWriter.EndArray();
        WriteKey(oWriter, "savedTo");
        if (iApplication.savedTo.empty())
            oWriter.Null();
        else
            WriteText(oWriter, OneLine(iApplication.savedTo));
        oWriter.EndObject();
    });
}
} // namespace Tool
