#ifndef NaiveWalk_H
#define NaiveWalk_H

/**
 * @file
 * The walk along names and paths, on the host's interfaces alone and with all rules written out one after the other, to
 * compare the cursor with.
 */

#include <string>

#include "ORXISpecAttrAccess.h"
#include "ORXISpecObject.h"

namespace Naive
{
/// Where a walk stands: at an object, at one of its attributes, or nowhere for a reason.
struct Place
{
    ORXISpecObject_var object;
    ORXISpecAttrKey_var key;
    std::string error;
    /// The list holds an empty entry which the search by name cannot pass: the host's fatal reaction.
    bool isFatal = false;
};

Place PlaceOf(const ORXISpecObject_var& iObject);
Place ByName(const Place& iPlace, const std::string& iName);
Place ByPath(const Place& iPlace, const std::string& iPath);
} // namespace Naive

#endif
