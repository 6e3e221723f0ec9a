#include "VYRCfdAttributeNotification.h"

#include <cstring>

VYRCfdAttributeNotification::VYRCfdAttributeNotification() = default;

VYRCfdAttributeNotification::~VYRCfdAttributeNotification() = default;

const char* VYRCfdAttributeNotification::IsA() const
{
    return "VYRCfdAttributeNotification";
}

int VYRCfdAttributeNotification::IsAKindOf(const char* iClassName) const
{
    if (iClassName != nullptr && std::strcmp(iClassName, "VYRCfdAttributeNotification") == 0)
        return 1;
    return ORXNotification::IsAKindOf(iClassName);
}
