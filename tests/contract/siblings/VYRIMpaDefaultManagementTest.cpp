/**
 * @file
 * An interface that modules offer: the host brings its meta class, and offers it on no object by itself.
 */

#include "VYRIMpaDefaultManagement.h"
#include "MetaClassOf.h"

namespace
{
using DefaultManagementInterface = ContractTest;

TEST_F(DefaultManagementInterface, MetaClassIsOneThatTellsNameAndIdentifier)
{
    ExpectMetaClassOf<VYRIMpaDefaultManagement>("VYRIMpaDefaultManagement");
}

TEST_F(DefaultManagementInterface, IsNotOfferedByObjectsOfTheHostAlone)
{
    EXPECT_TRUE(!VYRIMpaDefaultManagement_var(Make("ContractListening", "A")));
}
} // namespace
