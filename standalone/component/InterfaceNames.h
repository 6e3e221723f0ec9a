#ifndef InterfaceNames_H
#define InterfaceNames_H

#include <string>
#include <string_view>

#include "ORXGuid.h"

namespace VYRStandalone
{
/// Names of interfaces: those of the host, and those that the dictionary has been told of.
class InterfaceNames
{
public:
    static bool Find(std::string_view iName, IID& oInterface);
    /// The empty text for an interface that has no known name.
    static std::string Of(const IID& iInterface);
};
} // namespace VYRStandalone

#endif
