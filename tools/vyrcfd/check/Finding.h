#ifndef Finding_H
#define Finding_H

/**
 * @file
 * What a check finds.
 */

#include <string>
#include <string_view>
#include <vector>

#include "SourceItem.h"

namespace Tool
{
enum class FindingKind
{
    UnreadableFile,
    IgnoredFile,
    UnknownKey,
    WrongKind,
    DoesNothing,
    IgnoredKey,
    DuplicateName,
    UnknownConfig,
    UnusedConfig,
    Cycle,
    BadCondition,
    OddCondition,
    SwappedLists,
    WrongSeparator,
    UnequalLists,
    BlankInList,
    DefaultNotInChoices,
    DefaultInvalid,
    DefaultReopensDifferently,
    PathNowhere,
    UnknownType,
    WrongType,
    DuplicateEntry
};

/// Such as "unknown-key".
const char* NameOf(FindingKind iKind);

/// An error does not do what is written; a warning may not do what is meant; a note is worth knowing.
enum class Severity
{
    Error,
    Warning,
    Note
};

/// "error", "warning" or "note".
const char* NameOf(Severity iSeverity);

struct RelatedPlace
{
    std::string file;
    int line = 0;
};

struct Finding
{
    FindingKind kind;
    Severity severity;
    std::string file;
    /// Of the key's value; of the key itself where it is unknown; of the item, the configuration or the file without
    /// key.
    SourcePosition position;
    /// Null for a place outside every configuration.
    const SourceConfiguration* configuration = nullptr;
    /// From 1; 0 for a place outside every item.
    std::size_t item = 0;
    std::string key;
    /// In one line.
    std::string message;
    /// What was probably meant; empty where nothing is near.
    std::string suggestion;
    std::vector<RelatedPlace> related;
    /// Of what was meant: another finding tells of what is written at the same place.
    bool isBehind = false;
};

/// A finding at the value of a key of an item, or at the item where it has none.
Finding FindingAt(const SourceItem& iItem, std::string_view iKey, FindingKind iKind, Severity iSeverity,
                  std::string iMessage);

/// A finding at the value of a key of a configuration, or at the configuration where it has none.
Finding FindingAt(const SourceConfiguration& iConfiguration, std::string_view iKey, FindingKind iKind,
                  Severity iSeverity, std::string iMessage);

/// A finding in a file, outside every configuration.
Finding FindingIn(const std::string& iFile, const SourcePosition& iPosition, FindingKind iKind, Severity iSeverity,
                  std::string iMessage);

/// Where the name of a configuration stands.
RelatedPlace PlaceOf(const SourceConfiguration& iConfiguration);
} // namespace Tool

#endif
