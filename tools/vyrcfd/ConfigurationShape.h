#ifndef ConfigurationShape_H
#define ConfigurationShape_H

/**
 * @file
 * The shape of a configuration file.
 */

#include <string>

#include <rapidjson/document.h>

namespace Tool
{
/**
 * Reads a configuration file: an object with an array "configurations" of objects, each with a text "name" and an array
 * "config" of items, whose keys are texts, but for the boolean "list". Keys beyond these are not looked at; of a key
 * that stands twice the first counts, as it does for the engine.
 * @throws VYRStandalone::DocumentError with line and column of wrong syntax, or the path of what has a wrong shape
 */
rapidjson::Document ReadConfigurationDocument(const std::string& iFile);
} // namespace Tool

#endif
