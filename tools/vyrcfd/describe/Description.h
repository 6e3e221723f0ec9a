#ifndef Description_H
#define Description_H

/**
 * @file
 * What a configuration will do, item by item, for a reader and for a machine.
 */

#include <string>

#include "ConfigurationSource.h"

namespace Tool
{
std::string DescriptionText(const SourceConfiguration& iConfiguration, const ConfigurationSource& iSource,
                            bool iIsNested);
std::string DescriptionJson(const SourceConfiguration& iConfiguration, const ConfigurationSource& iSource,
                            bool iIsNested);
} // namespace Tool

#endif
