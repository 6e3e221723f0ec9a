#ifndef ORXGuid_H
#define ORXGuid_H

/**
 * @file
 * Interface identifiers. The type is here, the identifiers themselves stand together in ORXInterfaceIds.h.
 */

#include <cstdint>
#include <cstring>

/// 128-bit identifier of an interface.
struct GUID
{
    /// The bits, from the highest on, in the customary four parts.
    /// @{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
    /// @}
};

/// The same under the name that it has as an identifier of interfaces.
using IID = GUID;

/// Whether all bits agree.
inline bool operator==(const GUID& iLeft, const GUID& iRight) noexcept
{
    return std::memcmp(&iLeft, &iRight, sizeof(GUID)) == 0;
}

#endif
