#ifndef VYRStandaloneServices_H
#define VYRStandaloneServices_H

/**
 * @file
 * Steering of the services: variables of the installation, trace output, notifications, what is wrong with a JSON
 * file, and saving other texts as safely as models.
 */

#include <functional>
#include <memory>
#include <string>

#include "ORXBaseUnknown.h"
#include "ORXNotification.h"
#include "VYRStandaloneExport.h"

namespace VYRStandalone
{
/**
 * Receives the notifications that `DispatchCallbacks` sends for an object, for as long as the subscription lives. It
 * does not hold the object, and outlives it in silence. Subscribers are told in the order of subscription; who ends its
 * subscription while others are being told is not told any more.
 */
class VYRStandaloneExport Subscription
{
public:
    /// What is called for each notification, inside `DispatchCallbacks`.
    using Callback = std::function<void(ORXNotification& ioNotification)>;

    /// Null and a component that is no feature object receive nothing.
    Subscription(const ORXBaseUnknown_var& iObject, Callback iCallback);
    ~Subscription();
    Subscription(Subscription&&) noexcept;
    Subscription& operator=(Subscription&&) noexcept;

private:
    std::shared_ptr<Callback> m_callback;
};

/// Sets a variable of the installation. One that was not set here is taken from the environment.
VYRStandaloneExport void SetOfficialVariable(const std::string& iName, const std::string& iValue);
/// As if the variable had never been set here.
VYRStandaloneExport void ResetOfficialVariable(const std::string& iName);

/// Sends what all trace channels print to a sink, as it is printed; an empty function restores the standard output.
VYRStandaloneExport void RedirectTraces(std::function<void(const std::string& iText)> iSink);

/// Reads a file as `JSON::JIStream` does, which only tells that it could not. @throws DocumentError with line and
/// column of what is no JSON, or for a file that cannot be read; a file of any shape is accepted
VYRStandaloneExport void CheckJson(const std::string& iFile);

/// Replaces a file, or makes it, in one step: whatever stops it, the old file or the new one is whole. Permissions stay,
/// and what a link leads to is replaced; devices and pipes are written to as they are. @throws DocumentError
VYRStandaloneExport void SaveText(const std::string& iFile, const std::string& iText);
} // namespace VYRStandalone

#endif
