#ifndef SampleManagers_H
#define SampleManagers_H

/**
 * @file
 * Managers for the Choices of the sample installation, by extension classes of the tests. The module has none of its
 * own for any type.
 */

#include <string>
#include <vector>

/// Enters a manager for each managed type of the sample into the dictionary, for the life of the process. May be called
/// again. @return the types
std::vector<std::string> RegisterSampleManagers();

#endif
