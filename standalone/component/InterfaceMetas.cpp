/**
 * @file
 * Meta classes of the interfaces that extension classes of modules name. Made on first use, never destroyed.
 */

#include "ORXIInstance.h"
#include "ORXIParmPublisher.h"
#include "ORXMetaClass.h"
#include "VYRIMpaDefaultManagement.h"
#include "VYRIMpaDefaultManagementProtected.h"

ORXMetaClass* ORXIInstance::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("ORXIInstance", ORXInterfaceClass, IID_ORXIInstance, nullptr, nullptr);
    return meta;
}

ORXMetaClass* ORXIParmPublisher::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("ORXIParmPublisher", ORXInterfaceClass, IID_ORXIParmPublisher, nullptr, nullptr);
    return meta;
}

ORXMetaClass* VYRIMpaDefaultManagement::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("VYRIMpaDefaultManagement", ORXInterfaceClass, IID_VYRIMpaDefaultManagement, nullptr, nullptr);
    return meta;
}

ORXMetaClass* VYRIMpaDefaultManagementProtected::MetaObject()
{
    static ORXMetaClass* const meta = new ORXMetaClass("VYRIMpaDefaultManagementProtected", ORXInterfaceClass,
                                                       IID_VYRIMpaDefaultManagementProtected, nullptr, nullptr);
    return meta;
}
