#ifndef ORXStatus_H
#define ORXStatus_H

/**
 * @file
 * Status values and the byte-sized boolean. Link-time seam: a host that has its own replaces this header.
 */

#include <cstdint>

/// Signed 32-bit status: negative is failure, zero or positive is success.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;
/// Success with nothing done.
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);

/// Byte-sized boolean of the attribute interfaces: zero is false, everything else is true.
using ORXBoolean = unsigned char;
inline constexpr ORXBoolean ORXTrue = 1;
inline constexpr ORXBoolean ORXFalse = 0;

#endif
