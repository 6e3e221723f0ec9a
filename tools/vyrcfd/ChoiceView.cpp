#include "ChoiceView.h"

#include <algorithm>

#include "ORXKeySetVYRCfdBase.h"
#include "Table.h"
#include "VYRCfdObjectAccess.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char ChoiceType[] = "VYRCfdChoice";

const AttributeSnapshot* Find(const ObjectSnapshot& iObject, const char* iName)
{
    for (const AttributeSnapshot& attribute : iObject.attributes)
        if (attribute.info.name == iName)
            return &attribute;
    return nullptr;
}

Value ValueIn(const ObjectSnapshot& iObject, const char* iName)
{
    const AttributeSnapshot* attribute = Find(iObject, iName);
    return attribute != nullptr ? attribute->value : Value();
}

std::vector<std::string> TextsIn(const ObjectSnapshot& iObject, const char* iName)
{
    std::vector<std::string> texts;
    const Value list = ValueIn(iObject, iName);
    for (const Value& entry : list.Entries())
        texts.push_back(entry.Text());
    return texts;
}

bool IsText(const Value& iValue, const std::string& iText)
{
    return iValue.GetKind() == Value::Kind::String && iValue.Text() == iText;
}

/// Empty for no object.
std::string TypeOfData(const ObjectSnapshot& iObject)
{
    const VYRCfdObjectAccess choice{ORXBaseUnknown_var(iObject.object)};
    const VYRCfdObjectAccess data = choice[VYRCFDBASE(Choice, Data)];
    return data.IsNull() ? std::string() : std::string(data.GetType().View());
}

void WriteTexts(JsonWriter& oWriter, const char* iKey, const std::vector<std::string>& iTexts)
{
    std::vector<Value> entries;
    for (const std::string& text : iTexts)
        entries.push_back(Value::String(text));
    WriteKey(oWriter, iKey);
    Value::List(std::move(entries)).Write(oWriter);
}
} // namespace

bool ChoiceView::IsOffered(const std::string& iChoice) const
{
    return std::find(choices.begin(), choices.end(), iChoice) != choices.end();
}

bool ChoiceView::HasOtherData() const
{
    const auto selected = std::find(choices.begin(), choices.end(), value.Text());
    if (dataType.empty() || selected == choices.end() || (!startups.empty() && startups.size() != choices.size()))
        return false;
    return startups.empty() || startups[static_cast<std::size_t>(selected - choices.begin())] != dataType;
}

std::optional<ChoiceView> ChoiceViewOf(const ObjectSnapshot& iObject, const AskDefault& iAskDefault)
{
    const AttributeSnapshot* value = Find(iObject, "value");
    if (iObject.object->IsSubTypeOf(ChoiceType) == ORXFalse || value == nullptr || Find(iObject, "choices") == nullptr)
        return std::nullopt;
    return ChoiceView{value->value,
                      TextsIn(iObject, "choices"),
                      TextsIn(iObject, "Startups"),
                      ValueIn(iObject, "display"),
                      iAskDefault(iObject, *value),
                      ValueIn(iObject, "Data"),
                      TypeOfData(iObject)};
}

bool ChoiceView::Tells(const AttributeSnapshot& iAttribute) const
{
    const std::string& name = iAttribute.info.name;
    const bool isUnnamed = name == "dataName" && iAttribute.value.Text().empty();
    // Without startups no data object is missing.
    const bool isWithoutData = name == "Data" && data.GetKind() == Value::Kind::Empty && startups.empty();
    return name == "choices" || name == "Startups" || name == "display" || isUnnamed || isWithoutData;
}

std::string ChoiceText(const ChoiceView& iChoice, const std::string& iIndent)
{
    const std::string label = iIndent + "choices";
    // More startups than choices are as wrong as fewer; both are shown.
    const std::size_t count = std::max(iChoice.choices.size(), iChoice.startups.size());
    if (count == 0)
        return label + "  (none)\n";
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < count; ++i)
    {
        const bool hasChoice = i < iChoice.choices.size();
        const std::string choice = hasChoice ? iChoice.choices[i] : std::string();
        const bool isSelected = hasChoice && IsText(iChoice.value, choice);
        const bool isDefault = hasChoice && IsText(iChoice.byDefault.value, choice);
        rows.push_back({(isSelected ? "> " : "  ") + (hasChoice ? Quoted(choice) : std::string("(none)")),
                        i < iChoice.startups.size() ? OneLine(iChoice.startups[i]) : std::string(),
                        isDefault ? "default" : ""});
    }
    const bool isOutside = !iChoice.value.IsUnset() && !iChoice.IsOffered(iChoice.value.Text());
    // What a model file says is taken as it is; only a change of the value puts it right.
    const bool isOther = iChoice.HasOtherData();
    return label + (isOutside ? "  (the value is none of them)" : "") +
           (isOther ? "  (the data object is not what the selected one brings)" : "") + "\n" +
           TableText(rows, iIndent + std::string(IndentStep, ' '));
}

void WriteChoice(JsonWriter& oWriter, const ChoiceView& iChoice)
{
    oWriter.StartObject();
    WriteKey(oWriter, "value");
    iChoice.value.Write(oWriter);
    WriteTexts(oWriter, "choices", iChoice.choices);
    WriteTexts(oWriter, "startups", iChoice.startups);
    WriteKey(oWriter, "display");
    iChoice.display.Write(oWriter);
    WriteKey(oWriter, "default");
    iChoice.byDefault.value.Write(oWriter);
    WriteKey(oWriter, "data");
    iChoice.data.Write(oWriter);
    oWriter.EndObject();
}
} // namespace Tool
