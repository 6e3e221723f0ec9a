/**
 * @file
 * A Values feature without its default-management sub-feature.
 */

#include "FlowTest.h"

namespace
{
std::string Adp(const char* iOperation)
{
    return std::string("VYRCfdDefaultManagementAdp::") + iOperation;
}

class MissingSubFeatureTest : public FlowTest
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        // Read from a file, so that nobody was told.
        m_loaded = VYRStandalone::Model::Parse(
            R"({ "model": 1, "catalogs": ["FlowTest"], "objects": [
                 { "type": "FlowTestSolver", "name": "Solver.9", "values": { "defaultManagement": null } } ] })",
            "test");
        m_bare = m_loaded.Find("Solver.9");
        m_management = m_bare;
        ASSERT_FALSE(!m_management);
    }

    void TearDown() override
    {
        m_management = NULL_var;
        m_bare = NULL_var;
        FlowTest::TearDown();
    }

    VYRStandalone::Model m_loaded;
    ORXISpecObject_var m_bare;
    VYRIMpaDefaultManagementProtected_var m_management;
};

TEST_F(MissingSubFeatureTest, Extension_IsThereAllTheSame_AndReportsNothingByItself)
{
    EXPECT_EQ(Reported(), Records{});
}

TEST_F(MissingSubFeatureTest, FlagOperations_ReportIt)
{
    unsigned char flag = 7;
    EXPECT_EQ(m_management->IsSet("iterations", flag), E_FAIL);
    EXPECT_EQ(flag, ORXFalse);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("IsSet"))}));

    EXPECT_EQ(m_management->SetIsSet("iterations", ORXTrue), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("SetIsSet"))}));

    flag = 7;
    EXPECT_EQ(m_management->HasAuto("iterations", flag), E_FAIL);
    EXPECT_EQ(flag, ORXFalse);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("HasAuto"))}));

    flag = 7;
    EXPECT_EQ(m_management->GetIsAuto("iterations", flag), E_FAIL);
    EXPECT_EQ(flag, ORXFalse);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("GetIsAuto"))}));

    EXPECT_EQ(m_management->SetIsAuto("iterations", ORXTrue), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("SetIsAuto"))}));
}

TEST_F(MissingSubFeatureTest, GetDefault_HasNotEvenTheDeclaredOne)
{
    ORXICkeInst_var value;
    EXPECT_EQ(m_management->GetDefault("iterations", value), E_FAIL);
    EXPECT_EQ(TextOf(value), "(null)");
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("GetDefault"))}));
}

TEST_F(MissingSubFeatureTest, Unset_SucceedsAndLeavesTheValue)
{
    EXPECT_EQ(m_management->Unset("iterations"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("GetDefault")), Assertion("spAttr", Adp("SetIsSet"))}));
    EXPECT_EQ(ValueOf(m_bare, "iterations"), "500");
}

TEST_F(MissingSubFeatureTest, SetCustomDefault_StoresTheDefaultAndFails)
{
    ORXUnicodeString text("12");
    EXPECT_EQ(m_management->SetCustomDefault("iterations", text), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("IsSet")),
                                   FailedCall("IsSet(iAttrName, isSet)", Adp("SetCustomDefault"))}));
    unsigned char has = 7;
    EXPECT_EQ(m_management->HasCustomDefault("iterations", has), S_OK);
    EXPECT_EQ(has, ORXTrue);
    EXPECT_EQ(ValueOf(m_bare, "iterations"), "500");
}

TEST_F(MissingSubFeatureTest, CustomDefaultOperations_NeedNoSubFeature)
{
    ORXICkeInst_var value = UnsetValue(m_bare, "iterations");
    EXPECT_EQ(m_management->SetCustomDefault("iterations", value), S_OK);
    EXPECT_EQ(m_management->RemoveCustomDefault("iterations"), S_OK);
    EXPECT_EQ(m_management->RemoveAllCustomDefaults(), S_OK);
}

TEST_F(MissingSubFeatureTest, UsersWrite_SucceedsAndReportsTheFlag)
{
    Write(m_bare, "iterations", "40");
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("SetIsSet"))}));
    EXPECT_EQ(ValueOf(m_bare, "iterations"), "40");
}

TEST_F(MissingSubFeatureTest, SubFeatureThatComesLater_IsNotSeenByTheExtension)
{
    ASSERT_EQ(WriteObject(m_bare, "defaultManagement", m_loaded.Create("VYRCfdDefaultManagement", "Flags")), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", Adp("SetIsSet"))}));
    EXPECT_EQ(m_management->SetIsSet("iterations", ORXTrue), E_FAIL);
    Reported();

    m_management = NULL_var;
    m_loaded.DropExtensions();
    m_management = m_bare;
    EXPECT_EQ(m_management->SetIsSet("iterations", ORXTrue), S_OK);
    EXPECT_EQ(SetFlagOf(m_bare, "iterations"), "true");
}
} // namespace
