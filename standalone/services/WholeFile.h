#ifndef WholeFile_H
#define WholeFile_H

/**
 * @file
 * Reading a file from its first to its last byte.
 */

#include <cstddef>
#include <limits>
#include <string>

/// Of a file that may have any size.
constexpr std::size_t AnySize = std::numeric_limits<std::size_t>::max();

/**
 * @param oText receives the bytes, into the memory that it has already; of no use on failure
 * @param iSpare so many more bytes behind the text can be read, for readers that take several at a time
 * @param iMost a file of more bytes is refused, before there is memory for it
 * @return what went wrong, empty on success
 */
std::string ReadWholeFile(const std::string& iPath, std::string& oText, std::size_t iSpare = 0,
                          std::size_t iMost = AnySize);

#endif
