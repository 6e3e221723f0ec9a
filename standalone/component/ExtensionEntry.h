#ifndef ExtensionEntry_H
#define ExtensionEntry_H

#include "ORXFillDictionary.h"
#include "ORXGuid.h"

namespace VYRStandalone
{
/// Who gives an interface on the objects of one feature type.
struct ExtensionEntry
{
    IID interfaceId;
    ORXMetaClass* extensionClass;
    ORXInterfaceCreator creator;
};
} // namespace VYRStandalone

#endif
