/**
 * @file
 * What each operation checks, in which order, and that nothing has been written by then.
 */

#include <algorithm>
#include <functional>
#include <ostream>

#include "EnteredScopes.h"
#include "ManagerTest.h"

namespace
{
/// Declares fewer startups than choices.
const ChoiceDeclaration& Unequal()
{
    static const ChoiceDeclaration unequal = {{"alpha", "beta", "gamma"}, {"TypeAlpha"}, "alpha", "Three", ""};
    return unequal;
}

/// One operation and its checks, in their order. To break a check is to break all behind it as well, so that only the
/// right order reports the right one.
struct Checked
{
    const char* name;
    const char* function;
    /// Texts of assertions, but for the one that begins with "Invalid".
    Lines checks;
    /// Calls the operation with arguments that break all checks from the one numbered so.
    std::function<HRESULT(VYRICfdChoiceMgr& ioManager, std::size_t iFirst)> call;
};

void PrintTo(const Checked& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

/// Breaks what is broken outside of the arguments.
void Break(const Lines& iChecks, std::size_t iFirst)
{
    for (std::size_t i = iFirst; i < iChecks.size(); ++i)
    {
        if (iChecks[i] == "spDefMgmt != NULL_var")
            MakeCastFail("VYRIMpaDefaultManagementProtected");
        else if (iChecks[i] == "spSpec")
            MakeCastFail("ORXISpecObject");
        else if (iChecks[i] == "spStartupSpec")
            MakeFail("GetStartup", "");
        else if (iChecks[i] == "spChoice")
            MakeCastFail("VYRICfdChoice");
    }
}

class ManagerChecksTest : public ManagerTest, public testing::WithParamInterface<Checked>
{
protected:
    /// A Choice of its own for each check, since what is declared is one of the things to break.
    void TakeUnequal(bool iIsUnequal)
    {
        m_choice = Make(iIsUnequal ? Unequal() : Declared());
        m_manager = ManagerOf(m_choice);
    }
};

TEST_P(ManagerChecksTest, Checks_ComeInTheirOrderAndBeforeTheFirstWrite)
{
    const Checked& row = GetParam();
    for (std::size_t first = 0; first < row.checks.size(); ++first)
    {
        const std::string& check = row.checks[first];
        TakeUnequal(
            std::any_of(row.checks.begin() + static_cast<std::ptrdiff_t>(first), row.checks.end(),
                        [](const std::string& iText) { return iText.find("tartups.size()") != std::string::npos; }));
        Break(row.checks, first);
        VYRStandalone::SetErrorStatus(3);
        VYRStandalone::CallRecorder calls;
        EXPECT_EQ(row.call(*m_manager, first), E_FAIL) << check;
        VYRStandalone::ClearFaults();
        EXPECT_EQ(Only(calls.Take(), {"write", "allow", "create", "take", "dispatch", "complete"}), Lines{}) << check;
        EXPECT_EQ(Reported(), (Records{check.starts_with("Invalid") ? Error(check, row.function)
                                                                    : Assertion(check, row.function)}));
        EXPECT_EQ(VYRStandalone::ErrorStatus(), 0) << check;
    }
}

const Checked operations[] = {
    {"ConfigureChoiceMgr",
     Manage,
     {"iChoices.size() > 0", "spSpec", "spStartupSpec", "startupChoices.size() == startupStartups.size()",
      "Invalid choice delta", "defaultFound", "spChoice"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t iFirst) {
         Lines choices;
         if (iFirst > 0)
             choices = {"beta", "alpha"};
         // The default stands before the choice that is none.
         if (iFirst > 0 && iFirst <= 4)
             choices.push_back("delta");
         return ioManager.ConfigureChoiceMgr(Texts(choices), iFirst <= 5 ? "gamma" : "alpha", "");
     }},
    {"Reset",
     ResetChoices,
     {"spDefMgmt != NULL_var", "spSpec", "spStartupSpec", "startupChoices.size() == startupStartups.size()",
      "spChoice"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t) { return ioManager.Reset(ORXFalse); }},
    {"ResetKeepingTheValue",
     ResetChoices,
     {"spDefMgmt != NULL_var", "spSpec", "spStartupSpec", "startupChoices.size() == startupStartups.size()",
      "spChoice"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t) { return ioManager.Reset(ORXTrue); }},
    {"GetAllChoices",
     GetAll,
     {"spSpec", "spStartupSpec"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t) {
         std::vector<ORXUnicodeString> choices;
         ORXUnicodeString value;
         return ioManager.GetAllChoices(choices, value);
     }},
    {"ProhibitChoices",
     Prohibit,
     {"currentChoices.size() == currentStartups.size()"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t) { return ioManager.ProhibitChoices({"alpha"}); }},
    {"ProhibitChoice",
     Prohibit,
     {"currentChoices.size() == currentStartups.size()"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t) { return ioManager.ProhibitChoice("alpha"); }},
    {"AddChoices",
     Add,
     {"spSpec", "spStartupSpec", "originalChoices.size() == originalStartups.size()"},
     [](VYRICfdChoiceMgr& ioManager, std::size_t) {
         std::set<ORXUnicodeString> added{"delta"};
         return ioManager.AddChoices(added);
     }},
};

INSTANTIATE_TEST_SUITE_P(Operations, ManagerChecksTest, testing::ValuesIn(operations),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

struct Scope
{
    const char* name;
    std::function<void(VYRICfdChoiceMgr&)> call;
    Lines entered;
    /// What stops it, without a start-up to look at.
    Records reports;
};

void PrintTo(const Scope& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ManagerScopesTest : public ManagerTest, public testing::WithParamInterface<Scope>
{
};

TEST_P(ManagerScopesTest, Operation_EntersAtTheLevelOfItsKind)
{
    MakeFail("GetStartup", "");
    const Lines entered = EnteredScopes(15, [this] { GetParam().call(*m_manager); });
    EXPECT_EQ(entered, GetParam().entered);
    EXPECT_EQ(Reported(), GetParam().reports);
    EXPECT_EQ(EnteredScopes(14, [this] { GetParam().call(*m_manager); }), Lines{});
    EXPECT_EQ(Reported(), GetParam().reports);
}

// None of these gets as far as an update.
const Scope scopes[] = {
    {"ConfigureChoiceMgr",
     [](VYRICfdChoiceMgr& ioManager) { ioManager.ConfigureChoiceMgr({}, "", ""); },
     {"> VYRCfdChoiceMgrAdp::ConfigureChoiceMgr [15]"},
     {Assertion("iChoices.size() > 0", Manage)}},
    {"Reset",
     [](VYRICfdChoiceMgr& ioManager) { ioManager.Reset(ORXFalse); },
     {"> VYRCfdChoiceMgrAdp::Reset [15]"},
     {Assertion("spStartupSpec", ResetChoices)}},
    {"GetAllChoices",
     [](VYRICfdChoiceMgr& ioManager) {
         std::vector<ORXUnicodeString> choices;
         ORXUnicodeString value;
         ioManager.GetAllChoices(choices, value);
     },
     {"> VYRCfdChoiceMgrAdp::GetAllChoices [15]"},
     {Assertion("spStartupSpec", GetAll)}},
    {"ProhibitChoice",
     [](VYRICfdChoiceMgr& ioManager) { ioManager.ProhibitChoice("delta"); },
     {"> VYRCfdChoiceMgrAdp::ProhibitChoice [15]", "  > VYRCfdChoiceMgrAdp::ProhibitChoices [15]"},
     {}},
    {"ProhibitChoices",
     [](VYRICfdChoiceMgr& ioManager) { ioManager.ProhibitChoices({}); },
     {"> VYRCfdChoiceMgrAdp::ProhibitChoices [15]"},
     {}},
    {"AddChoices",
     [](VYRICfdChoiceMgr& ioManager) {
         std::set<ORXUnicodeString> added;
         ioManager.AddChoices(added);
     },
     {"> VYRCfdChoiceMgrAdp::AddChoices [15]"},
     {Assertion("spStartupSpec", Add)}},
};

INSTANTIATE_TEST_SUITE_P(Operations, ManagerScopesTest, testing::ValuesIn(scopes),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

class ManagerIdentityTest : public ManagerTest
{
};

TEST_F(ManagerIdentityTest, Manager_IsTheChoice)
{
    EXPECT_TRUE(m_manager == m_choice);
    EXPECT_EQ(m_manager.Pointer(), ManagerOf(m_choice).Pointer());
    EXPECT_TRUE(VYRICfdChoice_var(m_manager) == ChoiceOf(m_choice));
    EXPECT_NE(m_manager->IsAKindOf("VYRICfdChoiceMgr"), 0);
}

TEST_F(ManagerIdentityTest, NoClassOfTheModule_OffersAManager)
{
    EXPECT_TRUE(!ManagerOf(MakeOwn(Declared(), "Own.1")));
    EXPECT_TRUE(!ManagerOf(Create("VYRCfdChoice", "Plain.1")));
    EXPECT_TRUE(!ManagerOf(Create("VYRCfdValues", "Values.1")));
}

TEST_F(ManagerIdentityTest, Manager_HoldsNothing)
{
    ASSERT_EQ(ProhibitAll({"gamma"}), S_OK);
    m_manager = NULL_var;
    m_model.DropExtensions();
    m_manager = ManagerOf(m_choice);
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value;
    EXPECT_EQ(m_manager->GetAllChoices(choices, value), S_OK);
    EXPECT_EQ(choices, Texts({"alpha", "beta", "gamma"}));
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta"}));
}

/// What each operation asks the host for, it gives back. Start-ups count nothing, so it is the Choice and its ties that
/// tell.
TEST_F(ManagerIdentityTest, Operations_LeaveNoObjectTieOrReferenceBehind)
{
    const auto changeAndChangeBack = [this] {
        EXPECT_EQ(Configure({"gamma", "beta"}, "beta", "Kind"), S_OK);
        EXPECT_EQ(DataTypeOf(m_choice), "TypeBeta");
        EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
        EXPECT_EQ(DataTypeOf(m_choice), "TypeGamma");
        EXPECT_EQ(m_manager->Reset(ORXTrue), S_OK);
        EXPECT_EQ(ProhibitAll({"alpha", "gamma"}), S_OK);
        EXPECT_EQ(DataTypeOf(m_choice), "TypeBeta");
        EXPECT_EQ(AddAll({"gamma"}), S_OK);
        EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"TypeBeta", "TypeGamma"}));
        EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
        std::vector<ORXUnicodeString> choices;
        ORXUnicodeString value;
        EXPECT_EQ(m_manager->GetAllChoices(choices, value), S_OK);
        EXPECT_EQ(choices, Texts(TextsOf(m_choice, "choices")));
        EXPECT_EQ(value, ORXUnicodeString(ValueOf(m_choice, "value").c_str()));
        VYRStandalone::TakeReports();
    };
    const unsigned int before = VYRStandalone::ReferenceCount(m_choice);
    // The first round makes what stays: flags, and the default that is kept.
    changeAndChangeBack();
    EXPECT_EQ(VYRStandalone::ReferenceCount(m_choice), before);
    const Lines alive = VYRStandalone::LiveComponentNames();
    for (int round = 0; round < 3; ++round)
    {
        changeAndChangeBack();
        EXPECT_EQ(VYRStandalone::ReferenceCount(m_choice), before);
        EXPECT_EQ(VYRStandalone::LiveComponentNames(), alive);
    }
}
} // namespace
