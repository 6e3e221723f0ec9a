#include "ItemWords.h"

#include "Wording.h"

namespace Tool
{
namespace
{
using Words = std::vector<std::string>;

std::string QuotedText(const SourceItem& iItem, const char* iKey)
{
    return Quoted(iItem.Text(iKey));
}

/// Where an item along a path applies.
std::string TargetWords(const SourceItem& iItem)
{
    return iItem.Text("path").empty() ? "the object itself" : OneLine(iItem.Text("path"));
}

/// An attribute by its name; there is none without.
std::string Attribute(const SourceItem& iItem)
{
    return iItem.Text("path").empty() ? "no attribute, since there is no \"path\"" : OneLine(iItem.Text("path"));
}

std::string QuotedList(const std::vector<std::string>& iTexts)
{
    std::string text;
    for (const std::string& one : iTexts)
        text += (text.empty() ? "" : ", ") + Quoted(one);
    return text;
}

Words ChoiceWords(const SourceItem& iItem)
{
    const std::vector<std::string> choices = SplitTexts(iItem.Text("choices"));
    const bool hasStartups = iItem.value.Has("Startups");
    const std::vector<std::string> startups = SplitTexts(hasStartups ? iItem.Text("Startups") : "");
    std::string first = "lets the object choose from " + Counted(choices.size(), "value");
    if (!iItem.Text("display").empty())
        first += ", shown as " + QuotedText(iItem, "display");
    if (!hasStartups)
        first += "; through its manager, where it has one";
    Words words{first};
    for (std::size_t i = 0; i < choices.size(); ++i)
    {
        std::string line = Quoted(choices[i]);
        if (hasStartups && i < startups.size() && !startups[i].empty())
            line += " with data of type " + OneLine(startups[i]);
        else if (hasStartups)
            line += " without data";
        words.push_back(line);
    }
    if (hasStartups && startups.size() != choices.size())
        words.push_back("but \"Startups\" names " + Counted(startups.size(), "type") + " for " +
                        Counted(choices.size(), "value"));
    if (iItem.Text("default").empty())
        words.emplace_back("no default, and no record");
    else
        words.push_back("default " + QuotedText(iItem, "default") + ", recorded for " +
                        (iItem.Text("path").empty() ? "value" : OneLine(iItem.Text("path")) + "/value"));
    if (!iItem.Text("path").empty())
        words.emplace_back("the path only shapes the record: the object itself is the Choice");
    return words;
}

Words DefaultWords(const SourceItem& iItem)
{
    std::string text = "gives " + Attribute(iItem) + " the default " + QuotedText(iItem, "default");
    if (iItem.role == ItemRole::AutomaticDefault)
        return {
            text + ", automatic by " + QuotedText(iItem, "defaultAutoKey") +
            ", and records it; a value that was set stays the first time, and gives way when this is applied again"};
    return {text + ", and records it; a value that was set stays"};
}

Words ReferenceWords(const SourceItem& iItem, const ConfigurationSource& iSource)
{
    const std::string config(iItem.Text("config"));
    std::string text = "applies " + OneLine(config) + " to " + TargetWords(iItem);
    if (iItem.role == ItemRole::Conditional)
        text += " if " + OneLine(iItem.Text("condition")) + ", and records that";
    Words words{text};
    const SourceConfiguration* const applied = iSource.Find(config);
    if (applied == nullptr)
        words.push_back("but there is no configuration " + Quoted(config));
    else if (applied->items.empty())
        words.emplace_back("which has no items");
    return words;
}
} // namespace

std::vector<std::string> WordsOf(const SourceItem& iItem, const ConfigurationSource& iSource)
{
    switch (iItem.role)
    {
    case ItemRole::Choice:
        return ChoiceWords(iItem);
    case ItemRole::Values:
        return {"writes " + QuotedList(SplitTexts(iItem.Text("value"))) + " to the list " + Attribute(iItem)};
    case ItemRole::ValueWithoutList:
        return {"does nothing: a \"value\" needs \"list\": true, and takes whatever else the item holds with it"};
    case ItemRole::AutomaticDefault:
    case ItemRole::CustomDefault:
        return DefaultWords(iItem);
    case ItemRole::Nested:
    case ItemRole::Conditional:
        return ReferenceWords(iItem, iSource);
    case ItemRole::Nothing:
        break;
    }
    return {iItem.Text("defaultAutoKey").empty() ? "does nothing: it has no \"choices\", \"value\", \"default\" or "
                                                   "\"config\""
                                                 : "does nothing: a \"defaultAutoKey\" needs a \"default\""};
}

const char* RoleText(ItemRole iRole)
{
    switch (iRole)
    {
    case ItemRole::Choice:
        return "choice";
    case ItemRole::Values:
        return "values";
    case ItemRole::AutomaticDefault:
        return "automatic default";
    case ItemRole::CustomDefault:
        return "custom default";
    case ItemRole::Nested:
        return "nested";
    case ItemRole::Conditional:
        return "conditional";
    case ItemRole::ValueWithoutList:
    case ItemRole::Nothing:
        break;
    }
    return "nothing";
}
} // namespace Tool
