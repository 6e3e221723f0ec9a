/**
 * @file
 * Meta classes of the interfaces that extension classes of modules name. Made on first use, never destroyed.
 */

#include "ORXIInstance.h"
#include "ORXIParmPublisher.h"
#include "ORXISamAnalysisEntityInit.h"
#include "ORXMetaClass.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRICfdConfigurable.h"
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

ORXMetaClass* ORXISamAnalysisEntityInit::MetaObject()
{
    static ORXMetaClass* const meta = new ORXMetaClass("ORXISamAnalysisEntityInit", ORXInterfaceClass,
                                                       IID_ORXISamAnalysisEntityInit, nullptr, nullptr);
    return meta;
}

ORXMetaClass* VYRICfdChoice::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("VYRICfdChoice", ORXInterfaceClass, IID_VYRICfdChoice, nullptr, nullptr);
    return meta;
}

ORXMetaClass* VYRICfdChoiceMgr::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("VYRICfdChoiceMgr", ORXInterfaceClass, IID_VYRICfdChoiceMgr, nullptr, nullptr);
    return meta;
}

ORXMetaClass* VYRICfdConfigurable::MetaObject()
{
    static ORXMetaClass* const meta =
        new ORXMetaClass("VYRICfdConfigurable", ORXInterfaceClass, IID_VYRICfdConfigurable, nullptr, nullptr);
    return meta;
}
