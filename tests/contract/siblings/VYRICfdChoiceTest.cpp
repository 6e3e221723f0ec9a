/**
 * @file
 * An interface that modules offer: the host brings its meta class, and offers it on no object by itself.
 */

#include "VYRICfdChoice.h"
#include "MetaClassOf.h"

namespace
{
using ChoiceInterface = ContractTest;

TEST_F(ChoiceInterface, MetaClassIsOneThatTellsNameAndIdentifier)
{
    ExpectMetaClassOf<VYRICfdChoice>("VYRICfdChoice");
}

TEST_F(ChoiceInterface, IsNotOfferedByObjectsOfTheHostAlone)
{
    EXPECT_TRUE(!VYRICfdChoice_var(Make("ContractListening", "A")));
}
} // namespace
