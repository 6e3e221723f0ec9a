/**
 * @file
 * Calls of default management to its own operations reach an override.
 */

#include "FlowTest.h"
#include "StandingAdapter.h"

namespace
{
/// Notes the four operations that others call, and lets them do their work.
class NotingAdapter : public StandingAdapter
{
public:
    using StandingAdapter::StandingAdapter;

    HRESULT IsSet(const ORXUnicodeString& iAttrName, unsigned char& oIsSet) override
    {
        calls.push_back("IsSet");
        return StandingAdapter::IsSet(iAttrName, oIsSet);
    }
    HRESULT Unset(const ORXUnicodeString& iAttrName) override
    {
        calls.push_back("Unset");
        return StandingAdapter::Unset(iAttrName);
    }
    HRESULT GetDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue) override
    {
        calls.push_back("GetDefault");
        return StandingAdapter::GetDefault(iAttrName, oValue);
    }
    HRESULT SetIsSet(const ORXUnicodeString& iAttrName, unsigned char iIsSet) override
    {
        calls.push_back("SetIsSet");
        return StandingAdapter::SetIsSet(iAttrName, iIsSet);
    }

    Lines calls;
};

class VirtualCallsTest : public FlowTest
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        m_adapter = ORXHandle<NotingAdapter>::Adopt(new NotingAdapter(m_solver, Cursor(SubFeature())));
    }

    ORXHandle<NotingAdapter> m_adapter;
};

TEST_F(VirtualCallsTest, Unset_AsksForTheDefaultAndWritesTheFlag)
{
    EXPECT_EQ(static_cast<VYRIMpaDefaultManagementProtected*>(m_adapter)->Unset("iterations"), S_OK);
    EXPECT_EQ(m_adapter->calls, (Lines{"Unset", "GetDefault", "SetIsSet"}));
}

TEST_F(VirtualCallsTest, SetCustomDefault_AsksForTheFlagAndUnsets)
{
    ORXUnicodeString text("7");
    EXPECT_EQ(m_adapter->SetCustomDefault("iterations", text), S_OK);
    EXPECT_EQ(m_adapter->calls, (Lines{"IsSet", "Unset", "GetDefault", "SetIsSet"}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
}

TEST_F(VirtualCallsTest, SetIsAuto_UnsetsOnlyWhereTheFlagExistsAndBecomesTrue)
{
    EXPECT_EQ(m_adapter->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(m_adapter->SetIsAuto("iterations", ORXFalse), S_OK);
    EXPECT_EQ(m_adapter->calls, Lines{});
    EXPECT_EQ(m_adapter->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(m_adapter->calls, (Lines{"Unset", "GetDefault", "SetIsSet"}));
}
} // namespace
