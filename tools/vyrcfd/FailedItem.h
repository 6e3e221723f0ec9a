#ifndef FailedItem_H
#define FailedItem_H

/**
 * @file
 * Which items of configurations fail on an object.
 */

#include <string>
#include <vector>

#include "ORXISpecObject.h"
#include "SourceItem.h"

namespace Tool
{
/// An item that could not do what it says.
struct FailedItem
{
    SourceItem item;
    /// "fails", and what an item that applies a configuration finds at the end of its path.
    std::string why;

    /// Such as `"main", item 2, fails: FILE:LINE:COLUMN`.
    std::string Shown() const;
};

/**
 * The engine tells the call that failed, not the item. So this goes through the items as the engine does, on an object
 * that the configuration has failed on, or on one like it, and changes it.
 * @return those of configurations that other ones apply stand in front of them; the last one is that at which the
 * configuration itself ends, unless it came to its end
 */
std::vector<FailedItem> FailedItems(const ORXISpecObject_var& iObject, const std::string& iConfiguration,
                                    const ConfigurationSource& iSource);
} // namespace Tool

#endif
