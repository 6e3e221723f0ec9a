/**
 * @file
 * What the extension classes say about themselves.
 */

#include "FlowTest.h"
#include "ORXIInstance.h"
#include "ORXIParmPublisher.h"
#include "ORXMetaClass.h"
#include "TestChoice.h"

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

TEST_F(ExtensionClassTest, ChoiceDefaultManagement_AnswersFromItsMetaClass)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(At(m_solver, "choice"));
    EXPECT_STREQ(management->IsA(), "VYRECfdChoiceDefaultManagement");
    EXPECT_NE(management->IsAKindOf("VYRECfdChoiceDefaultManagement"), 0);
    EXPECT_NE(management->IsAKindOf("VYRIMpaDefaultManagementProtected"), 0);
    EXPECT_EQ(management->IsAKindOf("VYRECfdValuesDefaultManagement"), 0);

    const ORXMetaClass* meta = management->GetMetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_STREQ(meta->ClassName(), "VYRECfdChoiceDefaultManagement");
    EXPECT_EQ(meta->Kind(), 2);
    EXPECT_STREQ(meta->LateType(), "VYRCfdChoice");
    EXPECT_EQ(meta->Base(), VYRIMpaDefaultManagementProtected::MetaObject());
}

TEST_F(ExtensionClassTest, DerivedChoice_AnswersFromTheMetaClassOfItsOwn)
{
    Declare(R"({ "catalog": "ExtensionClassTest", "uses": ["VYRCfdBase"],
                 "types": [ { "name": "ChoiceTestHooked", "base": "VYRCfdChoice" } ] })");
    TestChoice::Register();
    const ORXISpecObject_var object = Create("ChoiceTestHooked", "Choice.1");
    const TestChoice& choice = TestChoice::Of(object);
    EXPECT_STREQ(choice.IsA(), "TestChoice");
    EXPECT_NE(choice.IsAKindOf("TestChoice"), 0);
    EXPECT_NE(choice.IsAKindOf("ORXIParmPublisher"), 0);
    EXPECT_EQ(choice.IsAKindOf("VYRECfdChoiceInstance"), 0);
    EXPECT_EQ(choice.GetMetaObject(), TestChoice::MetaObject());
    EXPECT_STREQ(choice.GetMetaObject()->LateType(), "ChoiceTestHooked");
    // Default management is the module's: the type derives from "VYRCfdChoice".
    EXPECT_STREQ(DefaultManagementOf(object)->IsA(), "VYRECfdChoiceDefaultManagement");
}

TEST_F(ExtensionClassTest, MetaClass_IsOneForAllInstances)
{
    EXPECT_EQ(DefaultManagement()->GetMetaObject(),
              DefaultManagementOf(Create("FlowTestSteadySolver", "Solver.2"))->GetMetaObject());
}
} // namespace
