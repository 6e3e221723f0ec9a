/**
 * @file
 * The steps of a new object's own: modules offer them, the host brings the meta class.
 */

#include "ORXISamAnalysisEntityInit.h"
#include "MetaClassOf.h"

namespace
{
TEST(AnalysisEntityInit, MetaClassIsOneThatTellsNameAndIdentifier)
{
    ExpectMetaClassOf<ORXISamAnalysisEntityInit>("ORXISamAnalysisEntityInit");
}

using EntityInits = ContractTest;

TEST_F(EntityInits, AreNotOfferedByObjectsOfTheHostAlone)
{
    EXPECT_TRUE(!ORXISamAnalysisEntityInit_var(Make("ContractListening", "A")));
}
} // namespace
