/**
 * @file
 * Trace levels of default management, and which operations reset the error status.
 */

#include <functional>

#include "ChannelSwap.h"
#include "FlowTest.h"
#include "VYRCfdTraceManager.h"

namespace
{
struct Scope
{
    const char* name;
    std::function<void(const VYRIMpaDefaultManagementProtected_var&)> call;
    /// The function and its level.
    std::string scope;
    bool isResetting;
};

// Called with an empty name, so that nothing else is entered.
const Scope scopes[] = {
    {"IsSet",
     [](const auto& management) {
         unsigned char flag = 0;
         management->IsSet("", flag);
     },
     "VYRCfdDefaultManagementAdp::IsSet [40]", true},
    {"Unset", [](const auto& management) { management->Unset(""); }, "VYRCfdDefaultManagementAdp::Unset [20]", false},
    {"GetDefault",
     [](const auto& management) {
         ORXICkeInst_var value;
         management->GetDefault("", value);
     },
     "VYRCfdDefaultManagementAdp::GetDefault [25]", true},
    {"SetIsSet", [](const auto& management) { management->SetIsSet("", ORXTrue); },
     "VYRCfdDefaultManagementAdp::SetIsSet [20]", true},
    {"SetCustomDefaultText",
     [](const auto& management) {
         ORXUnicodeString text;
         management->SetCustomDefault("", text);
     },
     "VYRCfdDefaultManagementAdp::SetCustomDefault [20]", true},
    {"SetCustomDefaultValue",
     [](const auto& management) {
         ORXICkeInst_var value;
         management->SetCustomDefault("", value);
     },
     "VYRCfdDefaultManagementAdp::SetCustomDefault [20]", true},
    {"RemoveCustomDefault", [](const auto& management) { management->RemoveCustomDefault(""); },
     "VYRCfdDefaultManagementAdp::RemoveCustomDefault [20]", true},
    {"RemoveAllCustomDefaults", [](const auto& management) { management->RemoveAllCustomDefaults(); },
     "VYRCfdDefaultManagementAdp::RemoveAllCustomDefaults [20]", true},
    {"HasCustomDefault",
     [](const auto& management) {
         unsigned char flag = 0;
         management->HasCustomDefault("", flag);
     },
     "VYRCfdDefaultManagementAdp::HasCustomDefault [40]", false},
    {"HasAuto",
     [](const auto& management) {
         unsigned char flag = 0;
         management->HasAuto("", flag);
     },
     "VYRCfdDefaultManagementAdp::HasAuto [40]", true},
    {"GetIsAuto",
     [](const auto& management) {
         unsigned char flag = 0;
         management->GetIsAuto("", flag);
     },
     "VYRCfdDefaultManagementAdp::GetIsAuto [40]", true},
    {"SetIsAuto", [](const auto& management) { management->SetIsAuto("", ORXTrue); },
     "VYRCfdDefaultManagementAdp::SetIsAuto [20]", true},
};

class ScopesTest : public FlowTest, public testing::WithParamInterface<Scope>
{
};

TEST_P(ScopesTest, Operation_EntersAtItsLevel)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    ChannelSwap features(VYRCfdTraceManager::_Features);
    GetParam().call(management);
    EXPECT_EQ(Entered(features.Take(), ""), (Lines{GetParam().scope}));
}

TEST_P(ScopesTest, Operation_ResetsTheErrorStatusOrKeepsIt)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    VYRStandalone::SetErrorStatus(3);
    GetParam().call(management);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), GetParam().isResetting ? 0 : 3);
}

INSTANTIATE_TEST_SUITE_P(Operations, ScopesTest, testing::ValuesIn(scopes),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

class WriteScopesTest : public FlowTest
{
};

TEST_F(WriteScopesTest, isConfigured_EntersAt25)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    ChannelSwap features(VYRCfdTraceManager::_Features);
    ORXICkeInst_var value;
    management->GetDefault("iterations", value);
    EXPECT_EQ(Entered(features.Take(), "VYRCfdDefaultManagementAdp"),
              (Lines{"VYRCfdDefaultManagementAdp::GetDefault [25]", "VYRCfdDefaultManagementAdp::isConfigured [25]"}));
}

TEST_F(WriteScopesTest, UsersWrite_EntersTheNotificationsAndTheFlag)
{
    ASSERT_FALSE(!DefaultManagement());
    ChannelSwap features(VYRCfdTraceManager::_Features);
    Write(m_solver, "iterations", "40");
    Lines entered = features.Take();
    EXPECT_EQ(Entered(entered, "VYRE"), (Lines{"VYRECfdValuesInstance::AdviseAttributeChanged [10]",
                                               "VYRECfdDefaultManagementInstance::AdviseAttributeChanged [10]"}));
    EXPECT_EQ(Entered(entered, "VYRCfdDefaultManagementAdp"), (Lines{"VYRCfdDefaultManagementAdp::SetIsSet [20]"}));
}
} // namespace
