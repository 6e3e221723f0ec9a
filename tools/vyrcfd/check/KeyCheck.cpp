#include <algorithm>
#include <set>

#include "CheckRun.h"
#include "ConfigurationKeys.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Kind = SourceValue::Kind;
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
        const Finding place = FindingIn(iFile.Path(), {}, FindingKind::WrongKind, Severity::Error, {});
        CheckObject({iFile.Root(), FileKeys(), "a file", place});
    }

    void CheckConfiguration(const SourceConfiguration& iConfiguration, const MeantSource::Written& iWritten)
    {
        const Finding place = FindingAt(iConfiguration, {}, FindingKind::WrongKind, Severity::Error, {});
        CheckObject({*iWritten.definition, ConfigurationKeys(), "a configuration", place});
        for (const SourceItem& item : ItemsOf(iConfiguration))
            CheckObject({*iWritten.items[item.number - 1], ItemKeys(), "an item",
                         FindingAt(item, {}, FindingKind::WrongKind, Severity::Error, {})});
    }

private:
    void CheckObject(const KeyedObject& iObject)
    {
        if (!iObject.value.Is(Kind::Object))
        {
            Add(iObject, FindingKind::WrongKind, Severity::Error, {}, iObject.value.position,
                WrongKindText(iObject.what, Kind::Object, iObject.value));
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
                WrongKindText(Quoted(iMember.key), known->second, *iMember.value) +
                    (!InKind(iMember.key, *iMember.value).empty() && known->second == Kind::Boolean
                         ? ", and stands without quotation marks"
                         : ""),
                InKind(iMember.key, *iMember.value));
    }

    /// A number, and a text that says what is true, as they are to be written; empty for anything else.
    static std::string InKind(std::string_view iKey, const SourceValue& iValue)
    {
        const bool isTruth = iValue.Is(Kind::Text) && (iValue.text == "true" || iValue.text == "false");
        const bool isRight = (iKey == "default" && iValue.Is(Kind::Number)) || (iKey == "list" && isTruth);
        return isRight ? iValue.text : std::string();
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
             const SourcePosition& iPosition, std::string iMessage, std::string iSuggestion = {})
    {
        Finding finding = iObject.place;
        finding.kind = iKind;
        finding.severity = iSeverity;
        finding.key = iKey;
        finding.position = iPosition;
        finding.message = std::move(iMessage);
        finding.suggestion = std::move(iSuggestion);
        m_run.Add(std::move(finding));
    }

    CheckRun& m_run;
};
} // namespace

void CheckKeys(const ConfigurationSource& iWritten, CheckRun& ioRun)
{
    KeyCheck check(ioRun);
    for (const SourceFile& file : iWritten.Files())
        check.CheckFile(file);
    for (const SourceConfiguration& configuration : ioRun.source.Configurations())
        check.CheckConfiguration(configuration, ioRun.meant.Definitions()[configuration.number]);
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
