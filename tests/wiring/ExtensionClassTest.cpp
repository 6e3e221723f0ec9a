/**
 * @file
 * What the extension classes say about themselves.
 */

#include "FlowTest.h"
#include "ORXIInstance.h"
#include "ORXIParmPublisher.h"
#include "ORXMetaClass.h"

namespace
{
class ExtensionClassTest : public FlowTest
{
};

TEST_F(ExtensionClassTest, ValuesDefaultManagement_AnswersFromItsMetaClass)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    EXPECT_STREQ(management->IsA(), "VYRECfdValuesDefaultManagement");
    EXPECT_NE(management->IsAKindOf("VYRECfdValuesDefaultManagement"), 0);
    EXPECT_NE(management->IsAKindOf("VYRIMpaDefaultManagementProtected"), 0);
    EXPECT_EQ(management->IsAKindOf("VYRIMpaDefaultManagement"), 0);
    EXPECT_EQ(management->IsAKindOf("VYRECfdValuesInstance"), 0);

    const ORXMetaClass* meta = management->GetMetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_STREQ(meta->ClassName(), "VYRECfdValuesDefaultManagement");
    EXPECT_EQ(meta->Kind(), 2);
    EXPECT_STREQ(meta->LateType(), "VYRCfdValues");
    EXPECT_EQ(meta->Base(), VYRIMpaDefaultManagementProtected::MetaObject());
}

TEST_F(ExtensionClassTest, MetaClass_IsOneForAllInstances)
{
    EXPECT_EQ(DefaultManagement()->GetMetaObject(),
              DefaultManagementOf(Create("FlowTestSteadySolver", "Solver.2"))->GetMetaObject());
}
} // namespace
