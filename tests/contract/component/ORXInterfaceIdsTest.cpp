/**
 * @file
 * The fixed identifiers of all interfaces.
 */

#include <set>

#include <gtest/gtest.h>

#include "ORXInterfaceIds.h"

namespace
{
const IID all[] = {IID_ORXBaseUnknown,
                   IID_ORXIComponentIdentity,
                   IID_ORXISpecObject,
                   IID_ORXISpecAttrAccess,
                   IID_ORXISpecAttrKey,
                   IID_ORXISpecAttribute,
                   IID_ORXIContainer,
                   IID_ORXIAlias,
                   IID_ORXICkeParm,
                   IID_ORXICkeInst,
                   IID_ORXIValue,
                   IID_ORXICkeType,
                   IID_ORXIParmDictionary,
                   IID_ORXICkeParmFactory,
                   IID_ORXICkeManipulator,
                   IID_ORXIInstance,
                   IID_ORXIParmPublisher,
                   IID_ORXISimBCDataTableColumn,
                   IID_ORXISamAnalysisEntityInit,
                   IID_VYRIFldIdentifier,
                   IID_VYRIMpaDefaultManagement,
                   IID_VYRIMpaDefaultManagementProtected,
                   IID_VYRICfdChoice,
                   IID_VYRICfdChoiceMgr,
                   IID_VYRICfdConfigurable};

TEST(InterfaceIds, DifferInTheirFirstField)
{
    std::set<std::uint32_t> first;
    for (const IID& interfaceId : all)
        EXPECT_TRUE(first.insert(interfaceId.Data1).second) << std::hex << interfaceId.Data1;
}

TEST(InterfaceIds, ShareEverythingBehindIt)
{
    for (IID interfaceId : all)
    {
        interfaceId.Data1 = 0;
        EXPECT_TRUE(interfaceId == ORXInterfaceIds::Make(0));
    }
}
} // namespace
