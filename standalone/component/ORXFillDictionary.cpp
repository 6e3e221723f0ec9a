#include "ORXFillDictionary.h"

#include "Dictionary.h"

void ORXFillDictionary::Register(ORXMetaClass* iClass, ORXMetaClass* iInterface, ORXInterfaceCreator iCreator, void*,
                                 int)
{
    if (iClass != nullptr && iInterface != nullptr && iCreator != nullptr)
        VYRStandalone::Dictionary::Enter(*iClass, *iInterface, iCreator);
}
