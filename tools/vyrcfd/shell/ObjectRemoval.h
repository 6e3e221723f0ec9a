#ifndef ObjectRemoval_H
#define ObjectRemoval_H

/**
 * @file
 * Taking objects out of a model.
 */

#include <string>

#include "ORXISpecObject.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/**
 * Takes an object and what it owns out of its model, from among the top-level objects or from the owner that holds it.
 * Before that, attributes of other objects that refer to it or to a part of it are emptied, and lose the entry where
 * they are lists, since a model with a reference that leads out of it cannot be saved. Linear in the model.
 * @throws Failure when the host refuses; what was done until then stays
 */
void RemoveObject(const VYRStandalone::Model& iModel, const ORXISpecObject_var& iObject);

/// @param iPath of the object, for messages
/// @throws Failure for default management of an object, which could not work without it
void CheckMayLeave(const ORXISpecObject_var& iObject, const std::string& iPath);
} // namespace Tool

#endif
