#ifndef ObjectPath_H
#define ObjectPath_H

/**
 * @file
 * Objects and attributes as the user names them.
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
 * @param iFile the model's file, for messages; empty where the reader knows it
 * @throws Failure when it leads nowhere
 */
Target FollowPath(const VYRStandalone::Model& iModel, const std::string& iFile, const std::string& iPath);

/// The same, to an object. @throws Failure also at an attribute
ORXISpecObject_var FollowToObject(const VYRStandalone::Model& iModel, const std::string& iFile,
                                  const std::string& iPath);

/// The same, to the attribute that the last name of the path means, of whatever kind: an object that it holds is not
/// followed. @throws Failure also where there is only an object
Target FollowToAttribute(const VYRStandalone::Model& iModel, const std::string& iFile, const std::string& iPath);

/// What --help says of such a path.
extern const char ObjectPathHelp[];
} // namespace Tool

#endif
