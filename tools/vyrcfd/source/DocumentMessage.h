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
/// The message alone, without full stop, and with what there is to add to it.
std::string MessageOf(const VYRStandalone::DocumentError& iError);

/// The whole line, with what there is to add to its message.
std::string ErrorLineOf(const VYRStandalone::DocumentError& iError);
} // namespace Tool

#endif
