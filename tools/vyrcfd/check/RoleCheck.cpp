#include <algorithm>

#include "CheckRun.h"
#include "MeantLists.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// A key of an item that is there and says something.
bool Says(const SourceItem& iItem, std::string_view iKey)
{
    return !iItem.Text(iKey).empty();
}

std::string WhyNothing(const SourceItem& iItem, std::string& oKey)
{
    if (iItem.role == ItemRole::ValueWithoutList)
    {
        oKey = "value";
        return "the item does nothing: a \"value\" takes effect only beside a true \"list\", and without it the whole "
               "item is passed over";
    }
    if (Says(iItem, "Startups"))
    {
        oKey = "Startups";
        return "the item does nothing: \"Startups\" belong to \"choices\", which are missing";
    }
    if (Says(iItem, "defaultAutoKey"))
    {
        oKey = "defaultAutoKey";
        return "the item does nothing: a \"defaultAutoKey\" belongs to a \"default\", which is missing";
    }
    if (Says(iItem, "condition"))
    {
        oKey = "condition";
        return "the item does nothing: a \"condition\" belongs to a \"config\", which is missing";
    }
    for (const char* key : {"default", "value", "config"})
        if (iItem.value.Has(key))
        {
            oKey = key;
            return "the item does nothing: its " + Quoted(key) + " is empty";
        }
    return "the item does nothing: it has none of \"choices\", \"value\", \"default\" and \"config\"";
}

/// What the role of an item leaves unread, and why.
struct Unread
{
    std::vector<const char*> keys;
    const char* winner;
};

Unread UnreadBy(ItemRole iRole)
{
    switch (iRole)
    {
    case ItemRole::Choice:
        return {{"type", "defaultAutoKey", "value", "list", "config", "condition"}, "choices"};
    case ItemRole::Values:
        return {{"type", "default", "defaultAutoKey", "display", "config", "condition", "Startups"}, "value"};
    case ItemRole::AutomaticDefault:
    case ItemRole::CustomDefault:
        return {{"display", "list", "config", "condition", "Startups"}, "default"};
    case ItemRole::Nested:
    case ItemRole::Conditional:
        return {{"type", "defaultAutoKey", "display", "list", "Startups"}, "config"};
    case ItemRole::ValueWithoutList:
    case ItemRole::Nothing:
        break;
    }
    return {{}, ""};
}

/// Whether the "value" of an item with "choices" is what is to be chosen at first.
bool MeansDefault(const SourceItem& iItem)
{
    return !iItem.value.Has("default") && Holds(SplitTexts(iItem.Text("choices")), iItem.Text("value"));
}

void CheckUnread(const SourceItem& iItem, CheckRun& ioRun)
{
    const Unread unread = UnreadBy(iItem.role);
    for (const std::string key : unread.keys)
    {
        if (!Says(iItem, key) && !iItem.value.IsTrueAt(key))
            continue;
        // As "Startups" and a default without attribute, it belongs to "choices", which are missing; that is told.
        if (key == "display" && SetsDefault(iItem.role) && (Says(iItem, "Startups") || !Says(iItem, "path")))
            continue;
        if (key == "Startups" && SetsDefault(iItem.role))
        {
            ioRun.Add(FindingAt(iItem, key, FindingKind::IgnoredKey, Severity::Error,
                                "\"Startups\" belong to \"choices\", which are missing"));
            continue;
        }
        if (key == "value" && iItem.role == ItemRole::Choice && MeansDefault(iItem))
        {
            ioRun.Add(FindingAt(iItem, key, FindingKind::IgnoredKey, Severity::Warning,
                                "\"value\" has no effect in an item with \"choices\": what is chosen at first stands "
                                "under \"default\""));
            continue;
        }
        // Nothing reads the word for the type but people, and what it says may be right.
        const Severity severity = key == "type" ? Severity::Note : Severity::Warning;
        ioRun.Add(FindingAt(iItem, key, FindingKind::IgnoredKey, severity,
                            Quoted(key) + " has no effect in an item with " + Quoted(unread.winner)));
    }
    if (iItem.role == ItemRole::Choice && Says(iItem, "path"))
        ioRun.Add(FindingAt(iItem, "path", FindingKind::IgnoredKey, Severity::Warning,
                            "the \"path\" of an item with \"choices\" is not followed: the Choice is the object that "
                            "the configuration is applied to, and a record of its default under that path is lost; "
                            "reach one that lies deeper by an item with \"config\""));
}

/// The engine keeps the word with the record and reads it never, so that a wrong one stays for good.
void CheckWord(const SourceItem& iItem, CheckRun& ioRun)
{
    const std::vector<std::string>& words = TypeWords();
    const std::string_view word = iItem.Text("type");
    if (SetsDefault(iItem.role) && !word.empty() && std::find(words.begin(), words.end(), word) == words.end())
        ioRun.Add(FindingAt(iItem, "type", FindingKind::UnknownType, Severity::Warning,
                            Quoted(word) + " is no type of an attribute with a default"),
                  word, words);
}

/// An empty text counts as none, which its writer may not have meant.
void CheckEmpty(const SourceItem& iItem, CheckRun& ioRun)
{
    const auto isEmpty = [&](const char* iKey) {
        const SourceMember* member = iItem.value.Find(iKey);
        return member != nullptr && member->value->Is(SourceValue::Kind::Text) && member->value->text.empty();
    };
    if (iItem.role == ItemRole::Nested && isEmpty("condition"))
        ioRun.Add(FindingAt(iItem, "condition", FindingKind::BadCondition, Severity::Warning,
                            "an empty \"condition\" counts as none: " + Quoted(iItem.Text("config")) +
                                " is applied in any case"));
    if (iItem.role == ItemRole::CustomDefault && isEmpty("defaultAutoKey"))
        ioRun.Add(FindingAt(iItem, "defaultAutoKey", FindingKind::IgnoredKey, Severity::Warning,
                            "an empty \"defaultAutoKey\" counts as none: the attribute is not made automatic"));
}
} // namespace

const std::vector<std::string>& TypeWords()
{
    static const std::vector<std::string> words{"real", "integer", "boolean", "enumeration", "string"};
    return words;
}

void CheckRoles(CheckRun& ioRun)
{
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        for (const SourceItem& item : ItemsOf(configuration))
        {
            CheckEmpty(item, ioRun);
            CheckWord(item, ioRun);
            const bool isIdle = item.role == ItemRole::ValueWithoutList || item.role == ItemRole::Nothing;
            // What a key that is wrong was to say may be what the others belong to.
            if (!isIdle && !HasWrongKey(item.value))
                CheckUnread(item, ioRun);
            else if (!HasWrongKey(item.value))
            {
                std::string key;
                std::string why = WhyNothing(item, key);
                ioRun.Add(FindingAt(item, key, FindingKind::DoesNothing, Severity::Error, std::move(why)));
            }
        }
}
} // namespace Tool
