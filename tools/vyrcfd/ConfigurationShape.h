#ifndef ConfigurationShape_H
#define ConfigurationShape_H

/**
 * @file
 * The shape of a configuration file.
 */

#include <string>
#include <vector>

#include "SourceFile.h"

namespace Tool
{
/**
 * What the engine passes over, since it expects an array "configurations" of objects, each with a text "name" and an
 * array "config" of items, whose keys are texts, but for the boolean "list". Keys beyond these are not looked at; of a
 * key that stands twice the first counts, as it does for the engine.
 * @return a line with place and reason for each, configuration by configuration
 */
std::vector<std::string> OdditiesOf(const SourceFile& iFile);
} // namespace Tool

#endif
