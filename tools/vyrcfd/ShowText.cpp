#include "ShowText.h"

#include <array>

#include "Defaults.h"
#include "ORXTypeCode.h"
#include "Output.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr std::size_t IndentStep = 4;

using Row = std::array<std::string, 5>;

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
    if (iDefault.origin == DefaultOrigin::None)
        return {};
    return "default " + iDefault.value.Shown() + " (" + OriginText(iDefault.origin) + ")";
}

Row RowOf(const ORXISpecObject_var& iObject, const AttributeSnapshot& iAttribute)
{
    return {OneLine(iAttribute.info.name), iAttribute.KindText(), iAttribute.value.Shown(), FlagText(iAttribute),
            DefaultText(DefaultOf(iObject, iAttribute))};
}

/// A long value does not push the rest of every row away.
constexpr std::size_t WidestColumn = 40;

std::string TableText(const std::vector<Row>& iRows, const std::string& iIndent)
{
    std::array<std::size_t, std::tuple_size_v<Row>> widths{};
    for (const Row& row : iRows)
        for (std::size_t i = 0; i < row.size(); ++i)
            if (Characters(row[i]) <= WidestColumn)
                widths[i] = std::max(widths[i], Characters(row[i]));

    std::string text;
    for (const Row& row : iRows)
    {
        std::string line = iIndent;
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            const std::size_t width = Characters(row[i]);
            line += row[i] + std::string(width < widths[i] ? widths[i] - width : 0, ' ') + "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

std::string HeadingText(const ObjectSnapshot& iObject, const Colours& iColours)
{
    std::string text = iColours.Heading(OneLine(iObject.label)) + "  " + OneLine(iObject.type);
    // What an attribute holds is known by the attribute; elsewhere the label is the name, if it can be.
    const std::string last = iObject.label.substr(iObject.label.find_last_of('/') + 1);
    const bool isComponent = iObject.depth > 0 && last == iObject.label;
    if (!isComponent && last != iObject.name)
        text += "  name " + Quoted(iObject.name);
    if (!iObject.alias.empty())
        text += "  alias " + Quoted(iObject.alias);
    if (!iObject.identifier.empty())
        text += "  identifier " + Quoted(iObject.identifier);
    return text + "\n";
}

std::string RecordsText(const ObjectSnapshot& iObject, const std::string& iIndent)
{
    if (iObject.records.empty())
        return {};
    std::string text = iIndent + "records\n";
    for (std::size_t i = 0; i < iObject.records.size(); ++i)
        text +=
            iIndent + std::string(IndentStep, ' ') + std::to_string(i + 1) + ". " + iObject.records[i].Shown() + "\n";
    return text;
}

/// What the object owns through a component attribute follows as an object of its own.
bool FollowsBelow(const AttributeSnapshot& iAttribute)
{
    return iAttribute.info.type == tk_component && iAttribute.value.GetKind() == Value::Kind::Word;
}

std::string ObjectText(const ObjectSnapshot& iObject, const Colours& iColours)
{
    const std::string outer(IndentStep * static_cast<std::size_t>(iObject.depth), ' ');
    const std::string inner = outer + std::string(IndentStep, ' ');
    std::vector<Row> rows;
    for (const AttributeSnapshot& attribute : iObject.attributes)
        if (!FollowsBelow(attribute) || attribute.set.value_or(false) || attribute.automatic)
            rows.push_back(RowOf(iObject.object, attribute));
    for (const AttributeSnapshot& flag : iObject.otherFlags)
        rows.push_back({"defaultManagement/" + OneLine(flag.info.name), flag.KindText(), flag.value.Shown(), "", ""});
    return outer + HeadingText(iObject, iColours) + TableText(rows, inner) + RecordsText(iObject, inner);
}
} // namespace

std::string ShowText(const Snapshot& iSnapshot)
{
    const Colours colours;
    std::string text;
    for (const ObjectSnapshot& object : iSnapshot)
        text += ObjectText(object, colours);
    return text.empty() ? "No objects.\n" : text;
}
} // namespace Tool
