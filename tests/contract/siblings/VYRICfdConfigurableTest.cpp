/**
 * @file
 * An interface that modules offer: the host brings its meta class, and offers it on no object by itself.
 */

#include "VYRICfdConfigurable.h"
#include "MetaClassOf.h"

namespace
{
using ConfigurableInterface = ContractTest;

TEST_F(ConfigurableInterface, MetaClassIsOneThatTellsNameAndIdentifier)
{
    ExpectMetaClassOf<VYRICfdConfigurable>("VYRICfdConfigurable");
}

TEST_F(ConfigurableInterface, IsNotOfferedByObjectsOfTheHostAlone)
{
    EXPECT_TRUE(!VYRICfdConfigurable_var(Make("ContractListening", "A")));
}
} // namespace
