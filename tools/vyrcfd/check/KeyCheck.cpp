#include <algorithm>
#include <map>
#include <set>

#include "CheckRun.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Kind = SourceValue::Kind;
using KindsByKey = std::map<std::string, Kind, std::less<>>;

const KindsByKey& RootKeys()
{
    // The first names the schema for editors.
    static const KindsByKey keys{{"$schema", Kind::Text}, {"configurations", Kind::Array}};
    return keys;
}

const KindsByKey& ConfigurationKeys()
{
    static const KindsByKey keys{{"name", Kind::Text}, {"config", Kind::Array}};
    return keys;
}

const KindsByKey& ItemKeys()
{
    static const KindsByKey keys{{"path", Kind::Text},    {"type", Kind::Text},           {"default", Kind::Text},
                                 {"display", Kind::Text}, {"defaultAutoKey", Kind::Text}, {"value", Kind::Text},
                                 {"list", Kind::Boolean}, {"config", Kind::Text},         {"condition", Kind::Text},
                                 {"choices", Kind::Text}, {"Startups", Kind::Text}};
    return keys;
}

const char* WantedText(Kind iKind)
{
    switch (iKind)
    {
    case Kind::Boolean:
        return "true or false";
    case Kind::Array:
        return "an array";
    case Kind::Object:
        return "an object";
    default:
        return "a text";
    }
}

std::vector<std::string> NamesOf(const KindsByKey& iKeys)
{
    std::vector<std::string> names;
    for (const auto& [name, kind] : iKeys)
        if (name != "$schema")
            names.push_back(name);
    return names;
}

/// An object whose keys are looked at.
struct KeyedObject
{
    const SourceValue& value;
    const KindsByKey& keys;
    /// "an item", "a configuration", "a file".
    const char* what;
    /// Without key, kind, severity, position and message.
    Finding place;
};

class KeyCheck
{
public:
    explicit KeyCheck(CheckRun& ioRun) : m_run(ioRun) {}

    void CheckFile(const SourceFile& iFile)
    {
        Finding place{FindingKind::WrongKind, Severity::Error, OneLine(iFile.Path()), {}, nullptr, 0, {}, {}, {}, {}};
        CheckObject({iFile.Root(), RootKeys(), "a file", place});
    }

    void CheckConfiguration(const SourceConfiguration& iConfiguration)
    {
        const Finding place = FindingAt(iConfiguration, {}, FindingKind::WrongKind, Severity::Error, {});
        CheckObject({*iConfiguration.value, ConfigurationKeys(), "a configuration", place});
        for (const SourceItem& item : ItemsOf(iConfiguration))
            CheckObject(
                {item.value, ItemKeys(), "an item", FindingAt(item, {}, FindingKind::WrongKind, Severity::Error, {})});
    }

private:
    void CheckObject(const KeyedObject& iObject)
    {
        if (!iObject.value.Is(Kind::Object))
        {
            Add(iObject, FindingKind::WrongKind, Severity::Error, {}, iObject.value.position,
                std::string(iObject.what) + " must be an object, not " + iObject.value.KindText());
            return;
        }
        std::set<std::string_view> seen;
        for (const SourceMember& member : iObject.value.members)
            CheckMember(iObject, member, seen.insert(member.key).second);
    }

    void CheckMember(const KeyedObject& iObject, const SourceMember& iMember, bool iIsFirst)
    {
        const auto known = iObject.keys.find(iMember.key);
        if (known == iObject.keys.end())
            AddUnknown(iObject, iMember);
        else if (!iIsFirst)
            Add(iObject, FindingKind::IgnoredKey, Severity::Warning, iMember.key, iMember.value->position,
                "the key " + Quoted(iMember.key) + " stands twice in " + iObject.what + ", and the first counts");
        else if (!iMember.value->Is(known->second))
            Add(iObject, FindingKind::WrongKind, Severity::Error, iMember.key, iMember.value->position,
                Quoted(iMember.key) + " must be " + WantedText(known->second) + ", not " + iMember.value->KindText());
    }

    void AddUnknown(const KeyedObject& iObject, const SourceMember& iMember)
    {
        Finding finding = iObject.place;
        finding.kind = FindingKind::UnknownKey;
        finding.key = iMember.key;
        finding.position = iMember.keyPosition;
        finding.message = std::string("no key of ") + iObject.what + " is called " + Quoted(iMember.key);
        m_run.Add(std::move(finding), iMember.key, NamesOf(iObject.keys));
    }

    void Add(const KeyedObject& iObject, FindingKind iKind, Severity iSeverity, const std::string& iKey,
             const SourcePosition& iPosition, std::string iMessage)
    {
        Finding finding = iObject.place;
        finding.kind = iKind;
        finding.severity = iSeverity;
        finding.key = iKey;
        finding.position = iPosition;
        finding.message = std::move(iMessage);
        m_run.Add(std::move(finding));
    }

    CheckRun& m_run;
};
} // namespace

void CheckKeys(CheckRun& ioRun)
{
    KeyCheck check(ioRun);
    for (const SourceFile& file : ioRun.source.Files())
        check.CheckFile(file);
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        check.CheckConfiguration(configuration);
}

bool HasWrongKey(const SourceValue& iItem)
{
    const auto isWrong = [&](const SourceMember& iMember) {
        const auto known = ItemKeys().find(iMember.key);
        return known == ItemKeys().end() || !iMember.value->Is(known->second);
    };
    return !iItem.Is(Kind::Object) || std::any_of(iItem.members.begin(), iItem.members.end(), isWrong);
}
} // namespace Tool
