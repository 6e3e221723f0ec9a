/**
 * @file
 * An interface that modules offer: the host brings its meta class, and offers it on no object by itself.
 */

#include "VYRICfdChoiceMgr.h"
#include "MetaClassOf.h"

namespace
{
using ChoiceManagerInterface = ContractTest;

TEST_F(ChoiceManagerInterface, MetaClassIsOneThatTellsNameAndIdentifier)
{
    ExpectMetaClassOf<VYRICfdChoiceMgr>("VYRICfdChoiceMgr");
}

TEST_F(ChoiceManagerInterface, IsNotOfferedByObjectsOfTheHostAlone)
{
    EXPECT_TRUE(!VYRICfdChoiceMgr_var(Make("ContractListening", "A")));
}
} // namespace
