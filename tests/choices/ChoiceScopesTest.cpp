/**
 * @file
 * Trace levels of a Choice, which operations reset the error status, and the line of a change.
 */

#include <functional>
#include <ostream>

#include "ChannelSwap.h"
#include "ChoiceTest.h"
#include "EnteredScopes.h"
#include "VYRCfdTraceManager.h"
#include "VYRFeaErrorManager.h"
#include "VYRFeaTraceManager.h"

namespace
{
struct Scope
{
    const char* name;
    std::function<void(TestChoice& ioChoice)> call;
    /// The scopes of the Choice's class that are entered, in their order.
    Lines scopes;
    bool isResetting;
};

void PrintTo(const Scope& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

// A Choice without choices, so that no more is entered than has to be.
const Scope scopes[] = {
    {"StartConfiguration",
     [](TestChoice& ioChoice) { ioChoice.StartConfiguration(); },
     {"VYRCfdChoiceInstanceAdp::StartConfiguration [15]"},
     true},
    {"CompleteConfiguration",
     [](TestChoice& ioChoice) { ioChoice.CompleteConfiguration(); },
     {"VYRCfdChoiceInstanceAdp::CompleteConfiguration [15]"},
     true},
    {"ConfigureThatIsRefused",
     [](TestChoice& ioChoice) { ioChoice.Configure({}, Texts({"TypeAlpha"}), "", ""); },
     {"VYRCfdChoiceInstanceAdp::Configure [15]"},
     true},
    {"Configure",
     [](TestChoice& ioChoice) { ioChoice.Configure({}, {}, "", ""); },
     {"VYRCfdChoiceInstanceAdp::Configure [15]", "VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]",
      "VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]"},
     true},
    {"ShortConfigure",
     [](TestChoice& ioChoice) { ioChoice.Configure({}, "", ""); },
     {"VYRCfdChoiceInstanceAdp::Configure [15]", "VYRCfdChoiceInstanceAdp::Configure [15]",
      "VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]", "VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]"},
     true},
    {"AdviseAttributeChanged",
     [](TestChoice& ioChoice) { ioChoice.AdviseAttributeChanged("display", NULL_var); },
     {"VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]"},
     true},
    {"SetChoice",
     [](TestChoice& ioChoice) { ioChoice.SetChoice("alpha"); },
     {"VYRCfdChoiceInstanceAdp::SetChoice [20]", "VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]"},
     true},
    {"GetChoice",
     [](TestChoice& ioChoice) {
         ORXUnicodeString text;
         ioChoice.GetChoice(text);
     },
     {"VYRCfdChoiceInstanceAdp::GetChoice [30]"},
     true},
    {"GetDefaultDisplay",
     [](TestChoice& ioChoice) {
         ORXUnicodeString text;
         ioChoice.GetDefaultDisplay(text);
     },
     {"VYRCfdChoiceInstanceAdp::GetDefaultDisplay [30]"},
     true},
    {"GetListOfChoices",
     [](TestChoice& ioChoice) {
         std::vector<ORXUnicodeString> texts;
         ioChoice.GetListOfChoices(texts);
     },
     {"VYRCfdChoiceInstanceAdp::GetListOfChoices [30]"},
     true},
    {"GetListOfChoicesNLS",
     [](TestChoice& ioChoice) {
         std::vector<ORXUnicodeString> texts;
         ioChoice.GetListOfChoicesNLS(texts);
     },
     {},
     false},
    {"UpdateDataForStartup",
     [](TestChoice& ioChoice) {
         bool dataChange = false;
         ioChoice.BaseUpdateDataForStartup("", dataChange);
     },
     {"VYRCfdChoiceInstanceAdp::UpdateDataForStartup [20]"},
     true},
    {"GetInstanceName",
     [](TestChoice& ioChoice) {
         ORXUnicodeString name;
         ioChoice.BaseGetInstanceName(VYRCfdObjectAccess(ORXBaseUnknown_var::Share(ioChoice.GetImpl(0))), "TypeAlpha",
                                      name);
     },
     {"VYRCfdChoiceInstanceAdp::GetInstanceName [30]"},
     true},
    {"CompleteUpdate", [](TestChoice& ioChoice) { ioChoice.BaseCompleteUpdate(true, true); }, {}, false},
    {"FixInvalidChoice", [](TestChoice& ioChoice) { ioChoice.BaseFixInvalidChoice(); }, {}, false},
    {"Update", [](TestChoice& ioChoice) { ioChoice.Update(""); }, {}, true},
    {"UpdateInABracket",
     [](TestChoice& ioChoice) {
         ioChoice.StartConfiguration();
         VYRFeaErrorManager::SetErrorStatus(3);
         ioChoice.Update("");
     },
     {"VYRCfdChoiceInstanceAdp::StartConfiguration [15]"},
     true},
};

class ChoiceScopeCasesTest : public ChoiceTest, public testing::WithParamInterface<Scope>
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        m_choice = Make({{}, {}, "alpha", "", ""});
        // Everything on demand stands, so that its making is not seen.
        ASSERT_FALSE(!DefaultManagementOf(m_choice));
        m_instance = &TestChoice::Of(m_choice);
    }

    void TearDown() override
    {
        // An update of a Choice without choices, and a refused configuration, report; other tests look at that.
        VYRStandalone::TakeReports();
        ChoiceTest::TearDown();
    }

    ORXISpecObject_var m_choice;
    TestChoice* m_instance = nullptr;
};

TEST_P(ChoiceScopeCasesTest, Operation_EntersAtItsLevel)
{
    ChannelSwap features(VYRCfdTraceManager::_Features);
    GetParam().call(*m_instance);
    EXPECT_EQ(Entered(features.Take(), "VYRCfdChoiceInstanceAdp"), GetParam().scopes);
}

TEST_P(ChoiceScopeCasesTest, Operation_ResetsTheErrorStatusOrKeepsIt)
{
    VYRStandalone::SetErrorStatus(3);
    GetParam().call(*m_instance);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), GetParam().isResetting ? 0 : 3);
}

INSTANTIATE_TEST_SUITE_P(Operations, ChoiceScopeCasesTest, testing::ValuesIn(scopes),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

// ---- nesting --------------------------------------------------------------------------------------------------------

class ChoiceScopesTest : public ChoiceTest
{
};

TEST_F(ChoiceScopesTest, GetListOfChoicesNLS_EntersNothingAtAll)
{
    const VYRICfdChoice_var choice = ChoiceOf(Make(ThreeChoices()));
    std::vector<ORXUnicodeString> texts;
    EXPECT_EQ(EnteredScopes(50, [&] { choice->GetListOfChoicesNLS(texts); }), Lines{});
}

TEST_F(ChoiceScopesTest, UsersWrite_NestsTheUpdateInTheNotification)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const VYRICfdChoice_var interface = ChoiceOf(choice);
    ASSERT_EQ(interface->SetChoice("alpha"), S_OK);
    EXPECT_EQ(EnteredScopes(20, [&] { interface->SetChoice("beta"); }),
              (Lines{
                  "> VYRCfdChoiceInstanceAdp::SetChoice [20]",
                  "  > VYRCfdObjectAccess::SetString [20]",
                  "    > VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]",
                  "      > VYRCfdDefaultManagementAdp::SetIsSet [20]",
                  "        > VYRECfdDefaultManagementInstance::AdviseAttributeChanged [10]",
                  // The update itself is no step of this stair.
                  "      > VYRCfdChoiceInstanceAdp::UpdateDataForStartup [20]",
                  "        > VYRCfdChoiceInstanceAdp::AdviseAttributeChanged [15]",
              }));
}

TEST_F(ChoiceScopesTest, NewDefault_EntersTheChoicesOwnDefaultManagementFirst)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    EXPECT_EQ(EnteredScopes(20, [&] { TestChoice::Of(choice).Update("beta"); }),
              (Lines{
                  "> VYRCfdChoiceInstanceAdp::UpdateDataForStartup [20]",
                  "> VYRECfdChoiceDefaultManagement::SetCustomDefault [20]",
                  "  > VYRCfdDefaultManagementAdp::SetCustomDefault [20]",
                  "  > VYRCfdChoiceInstanceAdp::UpdateDataForStartup [20]",
              }));
}

// ---- the line of a change -------------------------------------------------------------------------------------------

TEST_F(ChoiceScopesTest, Change_PrintsTheValueBehindTheIndentation)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(debug.Take(), (Lines{"    ", "Value Change: beta\n"}));
}

TEST_F(ChoiceScopesTest, UpdateThatChangesNothing_PrintsNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(debug.Take(), Lines{});
}

TEST_F(ChoiceScopesTest, ChangeOfTheDataAlone_PrintsTheValueToo)
{
    const ORXISpecObject_var choice = Make(ThreeChoices());
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(debug.Take(), (Lines{"    ", "Value Change: alpha\n"}));
}

TEST_F(ChoiceScopesTest, PrintedValue_IsTheOneThatTheRunHasRead)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().complete = [](TestChoice& ioSelf, bool, bool) {
        TestChoice::Hooks().complete = {};
        return ioSelf.SetChoice("gamma");
    };
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(debug.Take(), (Lines{"    ", "Value Change: gamma\n", "    ", "Value Change: beta\n"}));
}

TEST_F(ChoiceScopesTest, PercentSignInAValue_IsText)
{
    const ORXISpecObject_var choice = MakeUpdated({{"100%s", "50%d"}, {}, "100%s", "", ""});
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("50%d"), S_OK);
    EXPECT_EQ(debug.Take(), (Lines{"    ", "Value Change: 50%d\n"}));
}

TEST_F(ChoiceScopesTest, SubscribersAreToldBeforeTheLineIsPrinted)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ChannelSwap debug(VYRFeaTraceManager::_Debug);
    Lines printedBefore = {"not told"};
    const VYRStandalone::Subscription subscription(choice, [&](ORXNotification&) { printedBefore = debug.Take(); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(printedBefore, Lines{});
    EXPECT_EQ(debug.Take().size(), 2U);
}

TEST_F(ChoiceScopesTest, ChannelThatIsNull_PrintsNothing)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ORXTrace* const original = std::exchange(VYRFeaTraceManager::_Debug, nullptr);
    const NotificationCounter notifications(choice);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    VYRFeaTraceManager::_Debug = original;
    EXPECT_EQ(notifications.Count(), 1);
}
} // namespace
