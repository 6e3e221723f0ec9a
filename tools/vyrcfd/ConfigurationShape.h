#ifndef ConfigurationShape_H
#define ConfigurationShape_H

/**
 * @file
 * The shape of a configuration file.
 */

#include "SourceFile.h"

namespace Tool
{
/**
 * Expects an object with an array "configurations" of objects, each with a text "name" and an array "config" of items,
 * whose keys are texts, but for the boolean "list". Keys beyond these are not looked at; of a key that stands twice the
 * first counts, as it does for the engine.
 * @throws VYRStandalone::DocumentError with the place of what has a wrong shape
 */
void CheckConfigurationShape(const SourceFile& iFile);
} // namespace Tool

#endif
