#ifndef KindNames_H
#define KindNames_H

/**
 * @file
 * Kinds of attributes, as documents name them.
 */

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VYRStandalone
{
/// Code of ORXTypeCode; nothing for an unknown kind.
std::optional<int> TypeCodeOfKind(std::string_view iKind);

/// Of a code of ORXTypeCode.
const char* KindOfTypeCode(int iTypeCode);

/// All kinds, without "list" where it has no place.
std::vector<std::string> KindNames(bool iWithList);
} // namespace VYRStandalone

#endif
