#ifndef DocumentMessage_H
#define DocumentMessage_H

/**
 * @file
 * What a document error says.
 */

#include <string>

#include "VYRStandaloneErrors.h"

namespace Tool
{
/// Of a file that is no JSON the error with place and words for whoever has written it; any other error as it is. Reads
/// the file again.
VYRStandalone::DocumentError Retold(const VYRStandalone::DocumentError& iError);

/// The message alone, without full stop.
std::string MessageOf(const VYRStandalone::DocumentError& iError);
} // namespace Tool

#endif
