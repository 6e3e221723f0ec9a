#ifndef ShowText_H
#define ShowText_H

/**
 * @file
 * A snapshot for a reader.
 */

#include <string>

#include "Defaults.h"
#include "JsonWriter.h"
#include "Snapshot.h"

namespace Tool
{
/// The objects as a tree, indented below their owners; Choices with what they offer.
std::string ShowText(const Snapshot& iSnapshot, const AskDefault& iAskDefault);

/// A line for each object of a depth; the others are left out.
std::string ListText(const Snapshot& iSnapshot, int iDepth);

/// The records of an object, a numbered line each.
std::string RecordsText(const ObjectSnapshot& iObject, const std::string& iIndent);

/// An attribute under its name: {"kind", "value", "set", "auto", "default", "source"}.
void WriteAttribute(JsonWriter& oWriter, const AttributeSnapshot& iAttribute, const AttributeDefault& iDefault);
} // namespace Tool

#endif
