#ifndef ObjectPath_H
#define ObjectPath_H

/**
 * @file
 * Objects as the command line names them.
 */

#include <string>

#include "ORXISpecObject.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/// Where a path leads to.
struct Target
{
    ORXISpecObject_var object;
    /// Empty for the object itself.
    std::string attribute;
};

/**
 * Follows a path: a top-level object by a meaning of its name, up to the first "/", and a cursor path from there.
 * @param iFile the model's file, for messages
 * @throws Failure when it leads nowhere
 */
Target FollowPath(const VYRStandalone::Model& iModel, const std::string& iFile, const std::string& iPath);

/// What --help says of such a path.
extern const char ObjectPathHelp[];
} // namespace Tool

#endif
