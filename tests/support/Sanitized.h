#ifndef Sanitized_H
#define Sanitized_H

/**
 * @file
 * What tests have to know of the sanitizers that they run under.
 */

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool IsSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool IsSanitized = true;
#else
inline constexpr bool IsSanitized = false;
#endif
#else
inline constexpr bool IsSanitized = false;
#endif

/// How often a test repeats what takes ten times as long under the address sanitizer, which sees in a tenth of the
/// repetitions what it sees in all; the run without it goes through all.
constexpr int Repetitions(int iCount)
{
    return IsSanitized ? iCount / 10 : iCount;
}

#endif
