#ifndef ORXUuid_H
#define ORXUuid_H

/**
 * @file
 * Source of random identifiers. Link-time seam.
 */

#include "ORXExport.h"

/// Each object made is a new identifier.
class ORXHostExport ORXUuid
{
public:
    ORXUuid();

    /// Copies the 16 bytes, in their order, to `oBytes`.
    void get(unsigned char* oBytes) const noexcept;

private:
    unsigned char m_bytes[16];
};

#endif
