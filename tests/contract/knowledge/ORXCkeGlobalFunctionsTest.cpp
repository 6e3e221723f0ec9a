/**
 * @file
 * Where the dictionary and the factory of parameters come from.
 */

#include "ORXCkeGlobalFunctions.h"
#include "ContractTest.h"

namespace
{
using CkeGlobalFunctions = ContractTest;

TEST_F(CkeGlobalFunctions, GiveTheSameEachTime)
{
    const ORXIParmDictionary_var dictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    const ORXICkeParmFactory_var factory = ORXCkeGlobalFunctions::GetVolatileFactory();
    ASSERT_FALSE(!dictionary);
    ASSERT_FALSE(!factory);
    EXPECT_TRUE(ORXCkeGlobalFunctions::GetParmDictionary() == dictionary);
    EXPECT_TRUE(ORXCkeGlobalFunctions::GetVolatileFactory() == factory);
    EXPECT_FALSE(dictionary == factory);
}

TEST_F(CkeGlobalFunctions, OfferTheirInterfaces)
{
    const ORXBaseUnknown_var dictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    const ORXBaseUnknown_var factory = ORXCkeGlobalFunctions::GetVolatileFactory();
    EXPECT_FALSE(!ORXIParmDictionary_var(dictionary));
    EXPECT_TRUE(!ORXICkeParmFactory_var(dictionary));
    EXPECT_FALSE(!ORXICkeParmFactory_var(factory));
    EXPECT_TRUE(!ORXIParmDictionary_var(factory));
}
} // namespace
