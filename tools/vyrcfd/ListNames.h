#ifndef ListNames_H
#define ListNames_H

/**
 * @file
 * By which names the entries of a list of objects are reached.
 */

#include <string>
#include <vector>

#include "ORXISpecObject.h"

namespace Tool
{
/**
 * For each entry a name that leads to it: its internal name, else its display name, else its type, unless a path cannot
 * hold that or it means another entry; then its position. A name means, in this order, a display name, an internal
 * name, a type and a position, and of several entries the first.
 */
std::vector<std::string> ListNames(const std::vector<ORXISpecObject_var>& iEntries);

std::string AliasOf(const ORXISpecObject_var& iObject);
std::string IdentifierOf(const ORXISpecObject_var& iObject);
std::string TextOf(const ORXUnicodeString& iText);
} // namespace Tool

#endif
