/**
 * @file
 * The base interface of objects that publish parameters: its meta class is what is used of it.
 */

#include "ORXIParmPublisher.h"
#include "ContractTest.h"
#include "ORXMetaClass.h"

namespace
{
using ParmPublishers = ContractTest;

TEST_F(ParmPublishers, MetaClassIsOneThatTellsNameAndIdentifier)
{
    const ORXMetaClass* const meta = ORXIParmPublisher::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(ORXIParmPublisher::MetaObject(), meta);
    EXPECT_STREQ(meta->ClassName(), "ORXIParmPublisher");
    EXPECT_TRUE(meta->InterfaceId() == ORXIParmPublisher::ClassId());
    EXPECT_EQ(meta->Kind(), ORXInterfaceClass);
}

TEST_F(ParmPublishers, NoObjectOffersTheInterface)
{
    EXPECT_TRUE(!ORXHandle<ORXIParmPublisher>(Make("ContractListening", "A")));
}
} // namespace
