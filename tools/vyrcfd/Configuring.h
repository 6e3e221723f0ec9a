#ifndef Configuring_H
#define Configuring_H

/**
 * @file
 * Applying a configuration to an object.
 */

#include <string>
#include <vector>

#include "ORXISpecObject.h"

namespace Tool
{
/// What is to be applied to what, as the user has named it.
struct Configuring
{
    /// The model's file, for messages; empty where the reader knows it.
    std::string file;
    std::string object;
    std::string configuration;
    /// The configurations that there are.
    std::vector<std::string> known;
};

/**
 * Applies the configuration. What the module has reported stays with the error service.
 * @return whether anything was done: false for a configuration without items
 * @throws Failure that says why in one line; what was done until then stays
 */
bool Configure(const ORXISpecObject_var& iObject, const Configuring& iConfiguring);
} // namespace Tool

#endif
