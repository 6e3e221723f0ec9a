/**
 * @file
 * Descriptions of classes.
 */

#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "ContractExtensions.h"
#include "ORXIParmPublisher.h"
#include "ORXMetaClass.h"

namespace
{
TEST(MetaClasses, OfExtensionClasses_TellClassBaseAndLateType)
{
    const ORXMetaClass* const meta = ContractInstance::Meta();
    EXPECT_STREQ(meta->ClassName(), "ContractInstance");
    EXPECT_EQ(meta->Kind(), ORXExtensionClass);
    EXPECT_STREQ(meta->LateType(), "ContractListening");
    EXPECT_EQ(meta->Base(), ORXIParmPublisher::MetaObject());
    EXPECT_TRUE(meta->InterfaceId() == IID_ORXIParmPublisher) << "that of the base";
    EXPECT_NE(meta->IsAKindOf("ContractInstance"), 0);
    EXPECT_NE(meta->IsAKindOf("ORXIParmPublisher"), 0);
    EXPECT_EQ(meta->IsAKindOf("ORXIInstance"), 0);
    EXPECT_EQ(meta->IsAKindOf("contractInstance"), 0);
    EXPECT_EQ(meta->IsAKindOf(""), 0);
    EXPECT_EQ(meta->IsAKindOf(nullptr), 0);
}

TEST(MetaClasses, OfInterfaces_TellNameAndIdentifier)
{
    ORXMetaClass meta("Name", ORXInterfaceClass, ContractINumber::ClassId(), nullptr, nullptr);
    EXPECT_STREQ(meta.ClassName(), "Name");
    EXPECT_EQ(meta.Kind(), ORXInterfaceClass);
    EXPECT_TRUE(meta.InterfaceId() == ContractINumber::ClassId());
    EXPECT_EQ(meta.Base(), nullptr);
    EXPECT_STREQ(meta.LateType(), "") << "empty for everything but extension classes";
}

TEST(MetaClasses, OfTies_TellInterfaceAndKind)
{
    const ORXMetaClass* const meta =
        qlx::internal::Tie_InitMetaObject(ContractINumber::ClassId(), "ContractINumber", ContractINumber::MetaObject(),
                                          ContractInstance::Meta(), ORXTieClass);
    EXPECT_STREQ(meta->ClassName(), "ContractINumber");
    EXPECT_TRUE(meta->InterfaceId() == ContractINumber::ClassId());
    EXPECT_EQ(meta->Kind(), ORXTieClass);
    EXPECT_NE(meta->IsAKindOf("ContractINumber"), 0);
    EXPECT_STREQ(meta->LateType(), "");
    EXPECT_EQ(meta->Served(), ContractInstance::Meta()) << "what it forwards to";
    EXPECT_EQ(ContractInstance::Meta()->Served(), nullptr) << "null for everything else";
}

TEST(MetaClasses, KindsAreTheNumbersOfTheComponentModel)
{
    EXPECT_EQ(ORXExtensionClass, 2);
    EXPECT_EQ(ORXTieClass, 6);
    EXPECT_EQ(ORXSharedTieClass, 7);
}

TEST(MetaClasses, GuardMayBeTakenAgainOnItsThreadAndKeepsOthersOut)
{
    std::atomic<bool> isWaiting{false};
    std::atomic<bool> isInside{false};
    std::thread other;
    {
        const qlx::internal::om_guard guard;
        const qlx::internal::om_guard again;
        other = std::thread([&] {
            isWaiting = true;
            const qlx::internal::om_guard theirs;
            isInside = true;
        });
        while (!isWaiting)
            std::this_thread::yield();
        // Long enough for a thread that nothing keeps out.
        for (int turn = 0; turn < 10000 && !isInside; ++turn)
            std::this_thread::yield();
        EXPECT_FALSE(isInside);
    }
    other.join();
    EXPECT_TRUE(isInside);
}
} // namespace
