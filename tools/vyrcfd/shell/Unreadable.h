#ifndef Unreadable_H
#define Unreadable_H

/**
 * @file
 * Texts that are no values.
 */

#include <string>

#include "VYRStandaloneCatalog.h"

namespace Tool
{
/// Why a text is no value of the attribute: `"half" is no real`.
std::string WhyUnreadable(const VYRStandalone::AttributeInfo& iAttribute, const std::string& iText);
} // namespace Tool

#endif
