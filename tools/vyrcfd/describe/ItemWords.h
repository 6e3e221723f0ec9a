#ifndef ItemWords_H
#define ItemWords_H

/**
 * @file
 * What an item of a configuration does, in words.
 */

#include <string>
#include <vector>

#include "SourceItem.h"

namespace Tool
{
/// A sentence without full stop, and where there is more to say, further lines.
std::vector<std::string> WordsOf(const SourceItem& iItem, const ConfigurationSource& iSource);

/// "choice", "values", "automatic default", "custom default", "nested", "conditional"; "nothing" where the engine
/// passes the item over.
const char* RoleText(ItemRole iRole);
} // namespace Tool

#endif
