#include "Finding.h"

#include "Wording.h"

namespace Tool
{
const char* NameOf(FindingKind iKind)
{
    switch (iKind)
    {
    case FindingKind::UnreadableFile:
        return "unreadable-file";
    case FindingKind::IgnoredFile:
        return "ignored-file";
    case FindingKind::UnknownKey:
        return "unknown-key";
    case FindingKind::WrongKind:
        return "wrong-kind";
    case FindingKind::DoesNothing:
        return "does-nothing";
    case FindingKind::IgnoredKey:
        return "ignored-key";
    case FindingKind::DuplicateName:
        return "duplicate-name";
    case FindingKind::UnknownConfig:
        return "unknown-config";
    case FindingKind::UnusedConfig:
        return "unused-config";
    case FindingKind::Cycle:
        return "cycle";
    case FindingKind::BadCondition:
        return "bad-condition";
    case FindingKind::OddCondition:
        return "odd-condition";
    case FindingKind::UnequalLists:
        return "unequal-lists";
    case FindingKind::SwappedLists:
        return "swapped-lists";
    case FindingKind::WrongSeparator:
        return "wrong-separator";
    case FindingKind::BlankInList:
        return "blank-in-list";
    case FindingKind::DefaultNotInChoices:
        return "default-not-in-choices";
    case FindingKind::DefaultInvalid:
        return "default-invalid";
    case FindingKind::DefaultReopensDifferently:
        return "default-reopens-differently";
    case FindingKind::PathNowhere:
        return "path-nowhere";
    case FindingKind::UnknownType:
        return "unknown-type";
    case FindingKind::WrongType:
        return "wrong-type";
    case FindingKind::DuplicateEntry:
        break;
    }
    return "duplicate-entry";
}

const char* NameOf(Severity iSeverity)
{
    switch (iSeverity)
    {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Note:
        break;
    }
    return "note";
}

Finding FindingIn(const std::string& iFile, const SourcePosition& iPosition, FindingKind iKind, Severity iSeverity,
                  std::string iMessage)
{
    return {iKind, iSeverity, OneLine(iFile), iPosition, nullptr, 0, {}, std::move(iMessage), {}, {}, false};
}

Finding FindingAt(const SourceConfiguration& iConfiguration, std::string_view iKey, FindingKind iKind,
                  Severity iSeverity, std::string iMessage)
{
    Finding finding =
        FindingIn(iConfiguration.file->Path(), iConfiguration.position, iKind, iSeverity, std::move(iMessage));
    finding.configuration = &iConfiguration;
    finding.key = iKey;
    if (const SourceMember* member = iConfiguration.value->Find(iKey))
        finding.position = member->value->position;
    return finding;
}

Finding FindingAt(const SourceItem& iItem, std::string_view iKey, FindingKind iKind, Severity iSeverity,
                  std::string iMessage)
{
    Finding finding = FindingAt(iItem.configuration, {}, iKind, iSeverity, std::move(iMessage));
    finding.item = iItem.number;
    finding.key = iKey;
    const SourceMember* member = iItem.value.Find(iKey);
    finding.position = member != nullptr ? member->value->position : iItem.value.position;
    return finding;
}

RelatedPlace PlaceOf(const SourceConfiguration& iConfiguration)
{
    return {OneLine(iConfiguration.file->Path()), iConfiguration.position.line};
}
} // namespace Tool
