#ifndef UnreferencedRecords_H
#define UnreferencedRecords_H

/**
 * @file
 * Configuration records that have been replaced, and that nothing needs any more.
 */

#include <cstddef>
#include <vector>

#include "Snapshot.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/// A record that stands among the top-level objects of its model, and that nothing refers to.
struct UnreferencedRecord
{
    /// Among all top-level objects, from 1.
    std::size_t position = 0;
    RecordSnapshot record;
};

struct RecordCensus
{
    /// In their order.
    std::vector<UnreferencedRecord> unreferenced;
    /// How many there are that something refers to.
    std::size_t referenced = 0;
};

/**
 * Counts the records of a model. A record is referred to by whatever holds it or a part of it: the list of records of
 * an object, any other attribute, also of default management, of parts at any depth, and of another record. What it
 * holds of itself does not count.
 */
RecordCensus CountRecords(const VYRStandalone::Model& iModel);
} // namespace Tool

#endif
