#ifndef DocumentMessage_H
#define DocumentMessage_H

/**
 * @file
 * What a document error says, without the place that it names.
 */

#include <string>

#include "VYRStandaloneErrors.h"

namespace Tool
{
/// The message alone, without full stop.
std::string MessageOf(const VYRStandalone::DocumentError& iError);
} // namespace Tool

#endif
