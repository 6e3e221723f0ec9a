#ifndef ApplyText_H
#define ApplyText_H

/**
 * @file
 * What a configuration has changed, for a reader and for a machine.
 */

#include <string>

#include "Difference.h"
#include "FailedItem.h"
#include "JsonWriter.h"

namespace Tool
{
/// What was applied to what.
struct Application
{
    std::string configuration;
    std::string object;
    /// False for a configuration without items.
    bool isDone = true;
    /// Empty when nothing was saved.
    std::string savedTo;
    /// What the error service holds, one line each.
    std::vector<std::string> notes;
    /// Where nested configurations have failed.
    std::vector<FailedItem> failed;
};

/// What has changed, object by object; empty for nothing.
std::string DifferenceText(const Difference& iDifference);

/// The same as a list: [{"path", "type", "change", "oldType", "attributes", "newRecords", "goneRecords",
/// "remadeRecords"}].
void WriteChanges(JsonWriter& oWriter, const Difference& iDifference);

/// The texts of a record under their names.
void WriteRecord(JsonWriter& oWriter, const RecordSnapshot& iRecord);

std::string ApplyText(const Application& iApplication, const Difference& iDifference);
std::string ApplyJson(const Application& iApplication, const Difference& iDifference);
} // namespace Tool

#endif
