/**
 * @file
 * Every operation of the ties to an instance reaches the operation of the same name.
 */

#include <ostream>

#include "FlowTest.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXIInstance.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "RecordingInstance.h"

namespace
{
/// The types whose instances are reached through ties, and what the tests need of an object of each.
struct Extended
{
    const char* name;
    /// Path of the object below the solver.
    const char* path;
    Lines types;
};

void PrintTo(const Extended& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class InstanceTieTest : public FlowTest, public testing::WithParamInterface<Extended>
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        m_object = At(m_solver, GetParam().path);
        m_instance = m_object;
        ASSERT_FALSE(!m_instance);
    }

    ORXISpecObject_var m_object;
    ORXIInstance_var m_instance;
};

TEST_P(InstanceTieTest, LogicalName_IsTheInternalNameUntilItIsSet)
{
    ORXUnicodeString name;
    EXPECT_EQ(m_instance->GetLogicalName(name), S_OK);
    EXPECT_EQ(name, m_object->GetName());
    EXPECT_EQ(m_instance->SetLogicalName("flow"), S_OK);
    EXPECT_EQ(m_instance->GetLogicalName(name), S_OK);
    EXPECT_EQ(name, ORXUnicodeString("flow"));
}

TEST_P(InstanceTieTest, Facts)
{
    EXPECT_NE(m_instance->IsPublic(), 0);
    EXPECT_TRUE(!m_instance->Type());
    EXPECT_EQ(m_instance->IsSupporting(ORXCkeGlobalFunctions::GetParmDictionary()->GetRealType()), 0);
    ORXListValORXUnicodeString types;
    EXPECT_EQ(m_instance->ListSupportedTypes(types), S_OK);
    Lines names;
    for (int i = 1; i <= types.Size(); ++i)
        names.push_back(types[i].CastToCharPtr());
    EXPECT_EQ(names, GetParam().types);
}

TEST_P(InstanceTieTest, Owner_IsTheObjectThatAggregates)
{
    const ORXISpecObject_var owner = ORXISpecObject_var::Adopt(m_object->GetOwner());
    EXPECT_TRUE(m_instance->GetOwner() == ORXBaseUnknown_var(owner));
}

TEST_P(InstanceTieTest, Values_AreReadAndWrittenByName)
{
    ASSERT_FALSE(!ORXISpecAttribute_var::Adopt(m_object->AddAttribute("extra", tk_boolean, 0)));
    EXPECT_EQ(TextOf(m_instance->GetValue("extra")), "(none)");
    ORXICkeInst_var value;
    ASSERT_EQ(DefaultManagement()->GetDefault("steady", value), S_OK);
    EXPECT_EQ(m_instance->SetValue("extra", value), S_OK);
    EXPECT_EQ(TextOf(m_instance->GetValue("extra")), "true");
    EXPECT_EQ(m_instance->SetValue("missing", value), E_FAIL);
    EXPECT_TRUE(!m_instance->GetValue("missing"));
}

TEST_P(InstanceTieTest, Listeners_AreToldAllKindsOfNews)
{
    const RecordingInstance_var listener = RecordingInstance_var::Adopt(new RecordingInstance);
    EXPECT_EQ(m_instance->AddInstanceListener(NULL_var), E_FAIL);
    EXPECT_EQ(m_instance->RemoveInstanceListener(listener), S_FALSE);
    ASSERT_EQ(m_instance->AddInstanceListener(listener), S_OK);

    ORXICkeInst_var value;
    ASSERT_EQ(DefaultManagement()->GetDefault("steady", value), S_OK);
    EXPECT_EQ(m_instance->AdviseAttributeChanged("other", value), S_OK);
    EXPECT_EQ(m_instance->AdviseDynamicAttributeAdded("a"), S_OK);
    EXPECT_EQ(m_instance->AdviseDynamicAttributeRemoved("b"), S_OK);
    EXPECT_EQ(m_instance->AdviseDynamicAttributeRenamed("c", "d"), S_OK);
    EXPECT_EQ(m_instance->AdviseRemoved(), S_OK);
    EXPECT_EQ(m_instance->AdviseModification(), S_OK);
    EXPECT_EQ(m_instance->AdviseTypeChanged(NULL_var), S_OK);
    EXPECT_EQ(m_instance->AdviseSpecificEvent("e"), S_OK);
    EXPECT_EQ(listener->told, (Lines{"changed other = true", "added a", "removed b", "renamed c d", "gone", "modified",
                                     "type", "event e"}));

    listener->told.clear();
    EXPECT_EQ(m_instance->RemoveInstanceListener(listener), S_OK);
    EXPECT_EQ(m_instance->AdviseModification(), S_OK);
    EXPECT_EQ(listener->told, Lines{});
}

const Extended extended[] = {
    {"Values", "", {"FlowTestSolver", "VYRCfdValues"}},
    {"DefaultManagement", "defaultManagement", {"VYRCfdDefaultManagement"}},
    {"Choice", "choice", {"VYRCfdChoice"}},
};

INSTANTIATE_TEST_SUITE_P(Types, InstanceTieTest, testing::ValuesIn(extended),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
