#ifndef ORXFormat_H
#define ORXFormat_H

/**
 * @file
 * What may stand behind a printf-style format of the trace and error services.
 */

#include "ORXString.h"
#include "ORXUnicodeString.h"

namespace ORXFormat
{
/// A string object is printed as its narrow text; numbers and pointers are handed on.
inline const char* Argument(const ORXUnicodeString& iText) noexcept
{
    return iText.CastToCharPtr();
}
inline const char* Argument(const ORXString& iText) noexcept
{
    return iText.CastToCharPtr();
}
inline const char* Argument(const char* iText) noexcept
{
    return iText;
}
inline int Argument(int iNumber) noexcept
{
    return iNumber;
}
inline long Argument(long iNumber) noexcept
{
    return iNumber;
}
inline double Argument(double iNumber) noexcept
{
    return iNumber;
}
} // namespace ORXFormat

#endif
