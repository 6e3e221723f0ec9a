#ifndef Dictionary_H
#define Dictionary_H

#include <atomic>
#include <string>
#include <string_view>
#include <vector>

#include "ExtensionEntry.h"

namespace VYRStandalone
{
class FeatureType;

/**
 * Which extension class gives which interface for which feature type.
 *
 * Every feature type carries its own share of it, flattened along its chain of base types, so that a request only
 * reads. The shares are made anew when something was registered or declared, before the next request is answered.
 */
class Dictionary
{
public:
    /// Runs queued registrations and makes the shares anew, if there is a reason to. One test otherwise.
    static void EnsureFresh()
    {
        if (s_isStale.load(std::memory_order_acquire))
            Refresh();
    }

    static void MarkStale() noexcept { s_isStale.store(true, std::memory_order_release); }

    /// Leaves a pair that stands already as it is.
    static void Enter(ORXMetaClass& iClass, ORXMetaClass& iInterface, ORXInterfaceCreator iCreator);
    static void Queue(const ORXOMModuleInfo& iInfo);
    static void Unqueue(const ORXOMModuleInfo& iInfo);

    static bool FindInterface(std::string_view iName, IID& oInterface);
    static std::string InterfaceName(const IID& iInterface);

private:
    static void Refresh();
    static std::vector<ExtensionEntry> ShareOf(const FeatureType& iType);

    static constinit std::atomic<bool> s_isStale;
};
} // namespace VYRStandalone

#endif
