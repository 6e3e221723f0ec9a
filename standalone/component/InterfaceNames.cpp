#include "InterfaceNames.h"

#include "Dictionary.h"
#include "ORXInterfaceIds.h"

namespace
{
struct NamedInterface
{
    const char* name;
    const IID* interfaceId;
};

constexpr NamedInterface hostInterfaces[] = {
    {"ORXBaseUnknown", &IID_ORXBaseUnknown},
    {"ORXIComponentIdentity", &IID_ORXIComponentIdentity},
    {"ORXISpecObject", &IID_ORXISpecObject},
    {"ORXISpecAttrAccess", &IID_ORXISpecAttrAccess},
    {"ORXISpecAttrKey", &IID_ORXISpecAttrKey},
    {"ORXISpecAttribute", &IID_ORXISpecAttribute},
    {"ORXIContainer", &IID_ORXIContainer},
    {"ORXIAlias", &IID_ORXIAlias},
    {"ORXICkeParm", &IID_ORXICkeParm},
    {"ORXICkeInst", &IID_ORXICkeInst},
    {"ORXIValue", &IID_ORXIValue},
    {"ORXICkeType", &IID_ORXICkeType},
    {"ORXIParmDictionary", &IID_ORXIParmDictionary},
    {"ORXICkeParmFactory", &IID_ORXICkeParmFactory},
    {"ORXICkeManipulator", &IID_ORXICkeManipulator},
    {"ORXIInstance", &IID_ORXIInstance},
    {"ORXIParmPublisher", &IID_ORXIParmPublisher},
    {"ORXISimBCDataTableColumn", &IID_ORXISimBCDataTableColumn},
    {"ORXISamAnalysisEntityInit", &IID_ORXISamAnalysisEntityInit},
    {"VYRIFldIdentifier", &IID_VYRIFldIdentifier},
    {"VYRIMpaDefaultManagement", &IID_VYRIMpaDefaultManagement},
    {"VYRIMpaDefaultManagementProtected", &IID_VYRIMpaDefaultManagementProtected},
    {"VYRICfdChoice", &IID_VYRICfdChoice},
    {"VYRICfdChoiceMgr", &IID_VYRICfdChoiceMgr},
    {"VYRICfdConfigurable", &IID_VYRICfdConfigurable},
};
} // namespace

namespace VYRStandalone
{
bool InterfaceNames::Find(std::string_view iName, IID& oInterface)
{
    for (const NamedInterface& known : hostInterfaces)
        if (iName == known.name)
        {
            oInterface = *known.interfaceId;
            return true;
        }
    return Dictionary::FindInterface(iName, oInterface);
}

std::string InterfaceNames::Of(const IID& iInterface)
{
    for (const NamedInterface& known : hostInterfaces)
        if (iInterface == *known.interfaceId)
            return known.name;
    return Dictionary::InterfaceName(iInterface);
}
} // namespace VYRStandalone
