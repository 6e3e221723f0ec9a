#ifndef KnownConfiguration_H
#define KnownConfiguration_H

/**
 * @file
 * Configurations as the user names them.
 */

#include "ConfigurationSource.h"

namespace Tool
{
/// The definition that holds; borrowed from the source. @throws Failure with what was probably meant
const SourceConfiguration& KnownConfiguration(const ConfigurationSource& iSource, const std::string& iName);
} // namespace Tool

#endif
