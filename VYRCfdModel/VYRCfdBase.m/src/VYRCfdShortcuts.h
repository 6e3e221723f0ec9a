#ifndef VYRCfdShortcuts_H
#define VYRCfdShortcuts_H

#include "ORXSpecAttrShortcuts.h"
#include "VYRCfdChecks.h"

/// The host's shortcuts, where the module may take them.
class VYRCfdShortcuts
{
public:
    /// Null where the host has none, and while function scopes are printed, where each single operation has its line.
    static ORXSpecAttrShortcuts* Get() noexcept
    {
        return VYRCfd::IsActive(VYRCfdTraceManager::_Features) ? nullptr : s_ofHost;
    }

private:
    /// Null until the library is loaded.
    [[gnu::visibility("hidden")]] static ORXSpecAttrShortcuts* const s_ofHost;
};

#endif
