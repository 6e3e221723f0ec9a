#ifndef VYRCfdChecks_H
#define VYRCfdChecks_H

/**
 * @file
 * How a function of the module enters, checks and reports.
 *
 * @code
 *     HRESULT VYRCfdThing::Do(const ORXUnicodeString& iName)
 *     {
 *         VYRCFD_ENTER_RESET(20);
 *         VYRCFD_ASSERT(spSpec != NULL_var);   // assertion "spSpec != NULL_var" of "VYRCfdThing::Do", E_FAIL
 *         VYRCFD_CHECK(Load(iName));           // failed call "Load(iName)", with its status
 *         VYRCFD_FAIL("No name %s", iName);    // error with the formatted message, E_FAIL
 *     }
 * @endcode
 *
 * - VYRCFD_ENTER(L): trace scope at level L, and the function's name for its checks.
 * - VYRCFD_ENTER_RESET(L): the same, and the error status becomes 0.
 * - VYRCFD_RESET(): no scope; the name, and the error status becomes 0.
 * - VYRCFD_PASS(call): hands a negative status on that has been reported already.
 *
 * Reports carry the source text of what was checked, and that text is contract: the names of local variables in checks
 * stay as they are, and the formatter stays away from checks whose spacing matters. A check in a helper that several
 * operations share reports under the operation's name, by the forms ending in _FOR. In a function that returns a
 * boolean, a failed check returns false.
 */

#include <type_traits>

#include "VYRCfdFunctionName.h"
#include "VYRCfdTraceManager.h"
#include "VYRFeaErrorManager.h"
#include "VYRFeaIndentedTraceManager.h"

#define VYRCFD_ENTER(L)                                                                                                \
    VYRCFD_NAME_FUNCTION;                                                                                              \
    VYRFeaIndentedTraceManager vyrcfdScope(VYRCFD_FUNCTION, __FILE__, __LINE__, VYRCfd::ScopeChannel(L), L)

#define VYRCFD_ENTER_RESET(L)                                                                                          \
    VYRCFD_ENTER(L);                                                                                                   \
    VYRFeaErrorManager::SetErrorStatus(0)

#define VYRCFD_RESET()                                                                                                 \
    VYRCFD_NAME_FUNCTION;                                                                                              \
    VYRFeaErrorManager::SetErrorStatus(0)

#define VYRCFD_ASSERT(...) VYRCFD_ASSERT_TEXT(VYRCFD_FUNCTION, #__VA_ARGS__, __VA_ARGS__)
#define VYRCFD_ASSERT_FOR(function, ...) VYRCFD_ASSERT_TEXT(function, #__VA_ARGS__, __VA_ARGS__)

#define VYRCFD_CHECK(...) VYRCFD_CHECK_TEXT(VYRCFD_FUNCTION, #__VA_ARGS__, __VA_ARGS__)
#define VYRCFD_CHECK_FOR(function, ...) VYRCFD_CHECK_TEXT(function, #__VA_ARGS__, __VA_ARGS__)

#define VYRCFD_FAIL(...) VYRCFD_FAIL_FOR(VYRCFD_FUNCTION, __VA_ARGS__)
#define VYRCFD_FAIL_FOR(function, ...)                                                                                 \
    do                                                                                                                 \
    {                                                                                                                  \
        VYRFeaErrorManager::CreateError(__FILE__, function, __LINE__, __VA_ARGS__);                                    \
        return VYRCfd::Failure(E_FAIL);                                                                                \
    } while (false)

#define VYRCFD_PASS(...)                                                                                               \
    do                                                                                                                 \
    {                                                                                                                  \
        const HRESULT vyrcfdPassed = (__VA_ARGS__);                                                                    \
        if (vyrcfdPassed < 0)                                                                                          \
            return VYRCfd::Failure(vyrcfdPassed);                                                                      \
    } while (false)

// ---- machinery ----------------------------------------------------------------------------------------------------

#define VYRCFD_NAME_FUNCTION static constexpr VYRCfd::FunctionName vyrcfdFunctionName(__PRETTY_FUNCTION__)
#define VYRCFD_FUNCTION (vyrcfdFunctionName.Text())

// The text is made by the outermost macro, so that a macro in the argument stands unexpanded in the report.
#define VYRCFD_ASSERT_TEXT(function, text, ...)                                                                        \
    do                                                                                                                 \
    {                                                                                                                  \
        if (!(__VA_ARGS__))                                                                                            \
        {                                                                                                              \
            VYRFeaErrorManager::CreateAssertionError(__FILE__, function, __LINE__, text);                              \
            return VYRCfd::Failure(E_FAIL);                                                                            \
        }                                                                                                              \
    } while (false)

#define VYRCFD_CHECK_TEXT(function, text, ...)                                                                         \
    do                                                                                                                 \
    {                                                                                                                  \
        const auto vyrcfdStatus = (__VA_ARGS__);                                                                       \
        static_assert(std::is_same_v<decltype(vyrcfdStatus), const HRESULT> ||                                         \
                          std::is_same_v<decltype(vyrcfdStatus), const long>,                                          \
                      "VYRCFD_CHECK takes a call that returns a status");                                              \
        if (vyrcfdStatus < 0)                                                                                          \
            return VYRCfd::Failure(                                                                                    \
                VYRFeaErrorManager::CreateErrorOnCall(__FILE__, function, __LINE__, text, vyrcfdStatus));              \
    } while (false)

namespace VYRCfd
{
/// What a failed check returns: the status, or false from a function that returns a boolean of either kind.
class Failure
{
public:
    explicit Failure(HRESULT iStatus) noexcept : m_status(iStatus) {}

    template <class Result> operator Result() const noexcept
    {
        if constexpr (std::is_same_v<Result, bool> || std::is_same_v<Result, unsigned char>)
            return Result{};
        else
            return m_status;
    }

private:
    HRESULT m_status;
};

/// Whether a direct print has to be made at all.
inline bool IsActive(const ORXTrace* iChannel) noexcept
{
    return iChannel != nullptr && iChannel->IsActive();
}

/// Channel of a function scope of a level. One query; a channel that could not be made is silent.
inline ORXTrace*& ScopeChannel(int iLevel) noexcept
{
    // Almost always all scopes are silent, and then the level need not be asked for.
    const ORXTraControle* control = VYRCfdTraceManager::_ControlFeatures;
    if (!IsActive(VYRCfdTraceManager::_Features) || control == nullptr || control->TraGetLevelMax() < 100 + iLevel)
        return VYRCfdTraceManager::_NullTrace;
    return VYRCfdTraceManager::_Features;
}
} // namespace VYRCfd

#endif
