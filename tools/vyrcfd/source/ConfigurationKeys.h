#ifndef ConfigurationKeys_H
#define ConfigurationKeys_H

/**
 * @file
 * The keys that the engine reads in a configuration file, each with the kind of its value.
 */

#include <map>
#include <string>
#include <vector>

#include "SourceValue.h"

namespace Tool
{
using KindsByKey = std::map<std::string, SourceValue::Kind, std::less<>>;

/// Of a file as a whole; beside what the engine reads, the key that names the schema for editors.
const KindsByKey& FileKeys();
const KindsByKey& ConfigurationKeys();
const KindsByKey& ItemKeys();

/// But for the one that only editors read.
std::vector<std::string> NamesOf(const KindsByKey& iKeys);

/// Such as `"list" must be true or false, not a text`.
std::string WrongKindText(const std::string& iWhat, SourceValue::Kind iWanted, const SourceValue& iValue);
} // namespace Tool

#endif
