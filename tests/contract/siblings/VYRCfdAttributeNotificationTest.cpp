/**
 * @file
 * The notification that an object has changed.
 */

#include "VYRCfdAttributeNotification.h"
#include "ContractTest.h"

namespace
{
using AttributeNotifications = ContractTest;

TEST_F(AttributeNotifications, TellTheirClass)
{
    const ORXBaseUnknown_var notification = ORXBaseUnknown_var::Adopt(new VYRCfdAttributeNotification);
    EXPECT_STREQ(notification->IsA(), "VYRCfdAttributeNotification");
    for (const char* name : {"VYRCfdAttributeNotification", "ORXBaseUnknown"})
        EXPECT_NE(notification->IsAKindOf(name), 0) << name;
    EXPECT_EQ(notification->IsAKindOf("VYRICfdChoice"), 0);
    EXPECT_EQ(notification->IsAKindOf(nullptr), 0);
}

TEST_F(AttributeNotifications, CountThemselves)
{
    const int before = HostUnderTest::LiveComponents();
    ORXNotification* const notification = new VYRCfdAttributeNotification;
    EXPECT_EQ(HostUnderTest::LiveComponents(), before + 1);
    EXPECT_EQ(notification->AddRef(), 2U);
    EXPECT_EQ(notification->Release(), 1U);
    EXPECT_EQ(notification->Release(), 0U);
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}
} // namespace
