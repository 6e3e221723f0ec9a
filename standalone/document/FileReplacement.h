#ifndef FileReplacement_H
#define FileReplacement_H

#include <string>

/**
 * Replaces a file, or makes it, in one step: whatever stops it, the old file or the new one is whole. A symbolic link
 * stays, and what it leads to is replaced; the permissions of an existing file are kept. Devices and pipes are written
 * to as they are.
 * @return what went wrong, empty on success
 */
std::string ReplaceFile(const std::string& iPath, const std::string& iText);

#endif
