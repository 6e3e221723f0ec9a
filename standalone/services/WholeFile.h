#ifndef WholeFile_H
#define WholeFile_H

/**
 * @file
 * Reading a file from its first to its last byte.
 */

#include <string>

/// @param oText receives the bytes; untouched on failure. @return what went wrong, empty on success
std::string ReadWholeFile(const std::string& iPath, std::string& oText);

#endif
