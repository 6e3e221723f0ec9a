#ifndef VYRFeaTraceManager_H
#define VYRFeaTraceManager_H

/**
 * @file
 * Trace channels of the sibling module. Link-time seam.
 */

#include "ORXTrace.h"

/// Owns the sibling's channels.
class ORXHostExport VYRFeaTraceManager
{
public:
    /// Debug channel. It lives until the process ends, and may be null.
    static ORXTrace* _Debug;
};

#endif
