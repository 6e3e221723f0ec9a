#ifndef ORXStatus_H
#define ORXStatus_H

/**
 * @file
 * Status values and the byte-sized boolean. Link-time seam: a host that has its own replaces this header.
 */

#include <cstdint>

/// Signed 32-bit status: negative is failure, zero or positive is success.
using HRESULT = std::int32_t;

/// Success.
inline constexpr HRESULT S_OK = 0;
/// Success with nothing done.
inline constexpr HRESULT S_FALSE = 1;
/// Failure of any kind; what it was is told to the error service.
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
/// The operation is not offered.
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
/// The component does not offer the interface.
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);

/// Byte-sized boolean of the attribute interfaces: zero is false, everything else is true.
using ORXBoolean = unsigned char;
/// True, as it is written.
inline constexpr ORXBoolean ORXTrue = 1;
/// False.
inline constexpr ORXBoolean ORXFalse = 0;

#endif
