#include "ShowText.h"

#include "ChoiceView.h"
#include "ORXTypeCode.h"
#include "Output.h"
#include "Table.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Row = std::vector<std::string>;

std::string FlagText(const AttributeSnapshot& iAttribute)
{
    std::string text = iAttribute.set.value_or(false) ? "set" : "";
    if (iAttribute.automatic)
        text += std::string(text.empty() ? "" : ", ") + (*iAttribute.automatic ? "auto" : "auto off");
    return text;
}

/// Empty for what can have no default.
std::string DefaultText(const AttributeDefault& iDefault)
{
    return iDefault.origin == DefaultOrigin::None ? std::string() : "default " + iDefault.Shown();
}

Row RowOf(const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute, const AskDefault& iAskDefault)
{
    return {OneLine(iAttribute.info.name), iAttribute.KindText(), iAttribute.value.Shown(), FlagText(iAttribute),
            DefaultText(iAskDefault(iObject, iAttribute))};
}

std::string HeadingText(const ObjectSnapshot& iObject, const std::optional<ChoiceView>& iChoice,
                        const Colours& iColours)
{
    std::string text = iColours.Heading(OneLine(iObject.label)) + "  " + OneLine(iObject.type);
    // What an attribute holds is known by the attribute; elsewhere the label is the name, if it can be.
    const std::string last = iObject.label.substr(iObject.label.find_last_of('/') + 1);
    const bool isComponent = iObject.depth > 0 && last == iObject.label;
    if (!isComponent && last != iObject.name)
        text += "  name " + Quoted(iObject.name);
    if (iChoice && !iChoice->display.Text().empty())
        text += "  display " + iChoice->display.Shown();
    if (!iObject.alias.empty())
        text += "  alias " + Quoted(iObject.alias);
    if (!iObject.identifier.empty())
        text += "  identifier " + Quoted(iObject.identifier);
    return text + "\n";
}

std::string RecordsBlock(const ObjectSnapshot& iObject, const std::string& iIndent)
{
    if (iObject.records.empty())
        return {};
    return iIndent + "records\n" + RecordsText(iObject, iIndent + std::string(IndentStep, ' '));
}

/// Whether the attribute has a row of its own: what the object owns through a component attribute follows as an object
/// of its own, and what makes a Choice has a form of its own. Flags are told in any case.
bool HasRow(const AttributeSnapshot& iAttribute, const std::optional<ChoiceView>& iChoice)
{
    const bool follows = iAttribute.info.type == tk_component && iAttribute.value.GetKind() == Value::Kind::Word;
    const bool isToldElsewhere = follows || (iChoice && iChoice->Tells(iAttribute));
    return !isToldElsewhere || iAttribute.set.value_or(false) || iAttribute.automatic;
}

std::string ObjectText(const ObjectSnapshot& iObject, const AskDefault& iAskDefault, const Colours& iColours)
{
    const std::string outer(IndentStep * static_cast<std::size_t>(iObject.depth), ' ');
    const std::string inner = outer + std::string(IndentStep, ' ');
    const std::optional<ChoiceView> choice = ChoiceViewOf(iObject, iAskDefault);
    std::vector<Row> rows;
    for (const AttributeSnapshot& attribute : iObject.attributes)
        if (HasRow(attribute, choice))
            rows.push_back(RowOf(iObject, attribute, iAskDefault));
    for (const AttributeSnapshot& flag : iObject.otherFlags)
        rows.push_back({"defaultManagement/" + OneLine(flag.info.name), flag.KindText(), flag.value.Shown(), "", ""});
    return outer + HeadingText(iObject, choice, iColours) + TableText(rows, inner) +
           (choice ? ChoiceText(*choice, inner) : std::string()) + RecordsBlock(iObject, inner);
}
} // namespace

std::string ShowText(const Snapshot& iSnapshot, const AskDefault& iAskDefault)
{
    const Colours colours;
    std::string text;
    for (const ObjectSnapshot& object : iSnapshot)
        text += ObjectText(object, iAskDefault, colours);
    return text.empty() ? "No objects.\n" : text;
}

std::string ListText(const Snapshot& iSnapshot, int iDepth)
{
    const Colours colours;
    std::string text;
    for (const ObjectSnapshot& object : iSnapshot)
        if (object.depth == iDepth)
            text += std::string(IndentStep * static_cast<std::size_t>(iDepth), ' ') +
                    HeadingText(object, std::nullopt, colours);
    return text;
}

std::string RecordsText(const ObjectSnapshot& iObject, const std::string& iIndent)
{
    std::string text;
    for (std::size_t i = 0; i < iObject.records.size(); ++i)
        text += iIndent + std::to_string(i + 1) + ". " + iObject.records[i].Shown() + "\n";
    return text;
}

void WriteAttribute(JsonWriter& oWriter, const AttributeSnapshot& iAttribute, const AttributeDefault& iDefault)
{
    WriteKey(oWriter, iAttribute.info.name);
    oWriter.StartObject();
    WriteMember(oWriter, "kind", iAttribute.KindName());
    WriteKey(oWriter, "value");
    iAttribute.value.Write(oWriter);
    WriteFlag(oWriter, "set", iAttribute.set);
    WriteFlag(oWriter, "auto", iAttribute.automatic);
    WriteKey(oWriter, "default");
    iDefault.value.Write(oWriter);
    WriteMember(oWriter, "source", SourceText(iAttribute, iDefault));
    oWriter.EndObject();
}
} // namespace Tool
