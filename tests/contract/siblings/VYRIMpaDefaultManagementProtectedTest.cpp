/**
 * @file
 * An interface that modules offer: the host brings its meta class, and offers it on no object by itself.
 */

#include "VYRIMpaDefaultManagementProtected.h"
#include "MetaClassOf.h"

namespace
{
using DefaultManagementProtectedInterface = ContractTest;

TEST_F(DefaultManagementProtectedInterface, MetaClassIsOneThatTellsNameAndIdentifier)
{
    ExpectMetaClassOf<VYRIMpaDefaultManagementProtected>("VYRIMpaDefaultManagementProtected");
}

TEST_F(DefaultManagementProtectedInterface, IsNotOfferedByObjectsOfTheHostAlone)
{
    EXPECT_TRUE(!VYRIMpaDefaultManagementProtected_var(Make("ContractListening", "A")));
}
} // namespace
