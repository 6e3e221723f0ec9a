#ifndef ORXOmxInternals_H
#define ORXOmxInternals_H

/**
 * @file
 * Link-time seam.
 */

#include "ORXExport.h"

namespace ORXOmx::Internals
{
/// The host's fatal reaction to an unexpected null pointer. Does not return; the stand-alone host throws.
[[noreturn]] ORXHostExport void NullPointerAssertion();
} // namespace ORXOmx::Internals

#endif
