#ifndef Rebase_H
#define Rebase_H

/**
 * @file
 * Snapshots of a model that was read anew.
 */

#include "Snapshot.h"

namespace Tool
{
/**
 * Of a model that was saved and read anew all objects are others. Makes a former snapshot comparable with one of the
 * new objects: an object counts as the one of the same type that stands at its place now, a record of it as one that
 * says the same.
 */
void Rebase(Snapshot& ioBefore, const Snapshot& iAfter);
} // namespace Tool

#endif
