#include "VYRCfdAttributeNotification.h"

#include "ORXMetaClass.h"

VYRCfdAttributeNotification::VYRCfdAttributeNotification() = default;

VYRCfdAttributeNotification::~VYRCfdAttributeNotification() = default;

ORXMetaClass* VYRCfdAttributeNotification::GetMetaObject() const
{
    return MetaObject();
}

const char* VYRCfdAttributeNotification::IsA() const
{
    return MetaObject()->ClassName();
}

int VYRCfdAttributeNotification::IsAKindOf(const char* iClassName) const
{
    return MetaObject()->IsAKindOf(iClassName);
}

ORXMetaClass* VYRCfdAttributeNotification::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("VYRCfdAttributeNotification", ORXImplementationClass, IID_ORXBaseUnknown, nullptr, nullptr);
    return meta;
}
