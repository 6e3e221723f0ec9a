#ifndef InputFile_H
#define InputFile_H

/**
 * @file
 * What may be read in place of a file.
 */

#include <cstdint>
#include <string>

namespace Tool
{
/// Bytes of a model or a catalog, at most: what is larger no memory holds, once it is read.
constexpr std::uintmax_t LargestInput = std::uintmax_t{2} << 30U;

/**
 * To be called before a model or a catalog that a user names is opened. What comes through a pipe that the process has
 * open, as /dev/stdin or by <(...) of a shell, is read to its end and kept under that name from then on, so that it can
 * be read several times as a file can.
 * @throws Failure for an empty name
 * @throws VYRStandalone::DocumentError for what is no file and no such pipe, and for what is too large. What is not
 * there, and a folder, are let pass: the reader has words for these.
 */
void AdmitInput(const std::string& iFile);

/// Whether a pipe has stood there, or stands there as standard input, so that nothing can be saved under the name.
bool IsFromPipe(const std::string& iFile);
} // namespace Tool

#endif
