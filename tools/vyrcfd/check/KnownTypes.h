#ifndef KnownTypes_H
#define KnownTypes_H

#include <string>
#include <vector>

namespace Tool
{
/// Names of the feature types, as they are declared when they are first asked for: behind all catalogs.
const std::vector<std::string>& KnownTypes();

bool IsKnownType(const std::string& iName);
} // namespace Tool

#endif
