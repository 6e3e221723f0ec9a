#ifndef PathNames_H
#define PathNames_H

/**
 * @file
 * Names of a path, and why one does not lead on.
 */

#include <string>
#include <vector>

#include "VYRCfdObjectAccess.h"

namespace Tool
{
/// Names that lead on from a cursor: of an object its attributes, and of a Choice the value that it has; of a list of
/// objects its entries.
std::vector<std::string> NamesFrom(const VYRCfdObjectAccess& iFrom);

/// Why a name does not lead on from where a cursor stands; empty where it does. Where the cursor says it well, in its
/// words.
std::string WhyNoFurther(const VYRCfdObjectAccess& iFrom, const std::string& iName);

/// Why a path does not lead to anything, with the name that was probably meant; empty where it does.
std::string WhyNowhere(const VYRCfdObjectAccess& iStart, const ORXUnicodeString& iPath);
} // namespace Tool

#endif
