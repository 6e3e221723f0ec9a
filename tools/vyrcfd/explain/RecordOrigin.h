#ifndef RecordOrigin_H
#define RecordOrigin_H

/**
 * @file
 * Which items of configurations a record may come from.
 */

#include <vector>

#include "Snapshot.h"
#include "SourceItem.h"

namespace Tool
{
/// The texts by which a record is known to its readers; an item that leaves no record has none.
struct RecordTexts
{
    bool isLeft = false;
    std::string path;
    std::string byDefault;
    std::string condition;
    std::string config;
};

/// What record the item leaves where it is applied.
RecordTexts RecordTextsOf(const SourceItem& iItem);

/**
 * Records do not name their configuration, so these are all items that leave such a record, in the order of the files.
 * They belong to the source. An item that has been changed since the record was made is not among them.
 */
std::vector<SourceItem> ItemsThatLeave(const RecordSnapshot& iRecord, const ConfigurationSource& iSource);
} // namespace Tool

#endif
