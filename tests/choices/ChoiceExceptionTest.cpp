/**
 * @file
 * Exceptions out of listeners, subscribers and hooks: they pass to whoever has set the change off, and the Choice works
 * on.
 */

#include <functional>
#include <ostream>
#include <tuple>

#include "Culprit.h"
#include "TestManager.h"
#include "VYRCfdConfigurableTransaction.h"

namespace
{
/// What is done to a Choice of three choices, such that every place is reached on the way.
struct Operation
{
    const char* name;
    std::function<void(const ORXISpecObject_var& iChoice)> prepare;
    std::function<void(const ORXISpecObject_var& iChoice)> run;
    Records reports;
};

void PrintTo(const Operation& iOperation, std::ostream* ioStream)
{
    *ioStream << iOperation.name;
}

/// A value that has data of its own, as the user sets it.
void TakeBeta(const ORXISpecObject_var& iChoice)
{
    ASSERT_EQ(ChoiceOf(iChoice)->SetChoice("beta"), S_OK);
}

/// The same as the default, with nothing set.
void DefaultToBeta(const ORXISpecObject_var& iChoice)
{
    ASSERT_EQ(TestChoice::Of(iChoice).Update("beta"), S_OK);
    ASSERT_EQ(ValueOf(iChoice, "value"), "beta");
}

void TakeBetaOfAnotherOrder(const ORXISpecObject_var& iChoice)
{
    ASSERT_EQ(ChoiceOf(iChoice)->Configure(Texts({"gamma", "beta", "alpha"}),
                                           Texts({"TypeGamma", "TypeBeta", "TypeAlpha"}), "alpha", ""),
              S_OK);
    TakeBeta(iChoice);
}

const Operation operations[] = {
    {"SetChoice", TakeBeta, [](const ORXISpecObject_var& iChoice) { ChoiceOf(iChoice)->SetChoice("omega"); }, {}},
    {"Configure",
     TakeBeta,
     [](const ORXISpecObject_var& iChoice) {
         ChoiceOf(iChoice)->Configure(Texts({"alpha", "gamma"}), Texts({"TypeAlpha", "TypeGamma"}), "gamma", "Kind");
     },
     // The new choices beside the old startups.
     {Assertion("choices.size() == startups.size()", "VYRCfdChoiceInstanceAdp::Update")}},
    {"SetCustomDefault",
     DefaultToBeta,
     [](const ORXISpecObject_var& iChoice) {
         ORXUnicodeString value("omega");
         DefaultManagementOf(iChoice)->SetCustomDefault("value", value);
     },
     {}},
    {"ProhibitChoices",
     TakeBeta,
     [](const ORXISpecObject_var& iChoice) { ManagerOf(iChoice)->ProhibitChoices({"beta"}); },
     {}},
    {"AddChoices",
     TakeBetaOfAnotherOrder,
     [](const ORXISpecObject_var& iChoice) {
         std::set<ORXUnicodeString> added;
         ManagerOf(iChoice)->AddChoices(added);
     },
     {}},
    {"Bracket",
     TakeBeta,
     [](const ORXISpecObject_var& iChoice) {
         const VYRCfdConfigurableTransaction bracket(ConfigurableOf(iChoice));
         ChoiceOf(iChoice)->SetChoice("omega");
     },
     {}},
    {"CompleteConfiguration",
     [](const ORXISpecObject_var& iChoice) {
         TakeBeta(iChoice);
         ASSERT_EQ(ConfigurableOf(iChoice)->StartConfiguration(), S_OK);
         ASSERT_EQ(ChoiceOf(iChoice)->SetChoice("omega"), S_OK);
     },
     [](const ORXISpecObject_var& iChoice) { ConfigurableOf(iChoice)->CompleteConfiguration(); },
     {}},
};

class ChoiceExceptionTest : public ChoiceLeakTest
{
protected:
    void SetUp() override
    {
        ChoiceLeakTest::SetUp();
        TestManager::Register();
    }

    /// Whether brackets are closed, writes of the user are marked, and updates do their work.
    static void ExpectToWorkOn(const ORXISpecObject_var& iChoice)
    {
        EXPECT_EQ(ConfigurableOf(iChoice)->StartConfiguration(), S_OK) << "no bracket has been left open";
        EXPECT_EQ(ConfigurableOf(iChoice)->CompleteConfiguration(), S_OK);
        const Lines choices = TextsOf(iChoice, "choices");
        const Lines startups = TextsOf(iChoice, "Startups");
        ASSERT_EQ(choices.size(), startups.size());
        for (std::size_t i = 0; i < choices.size(); ++i)
        {
            // Past default management, whose guard may be up.
            Write(At(iChoice, "defaultManagement"), "value_isset", "false");
            const NotificationCounter notifications(iChoice);
            EXPECT_EQ(ChoiceOf(iChoice)->SetChoice(choices[i].c_str()), S_OK);
            EXPECT_EQ(ValueOf(iChoice, "value"), choices[i]);
            EXPECT_EQ(SetFlagOf(iChoice, "value"), "true") << choices[i];
            EXPECT_EQ(DataTypeOf(iChoice), startups[i]);
            EXPECT_EQ(notifications.Count(), 1) << choices[i];
        }
        EXPECT_EQ(AllowedOf(iChoice), choices);
        EXPECT_EQ(ChoiceOf(iChoice)->Update(), S_OK);
    }
};

class ChoiceExceptionPlaceTest : public ChoiceExceptionTest,
                                 public testing::WithParamInterface<std::tuple<Operation, PlaceCase>>
{
};

TEST_P(ChoiceExceptionPlaceTest, Exception_PassesToTheCallerAndTheChoiceWorksOn)
{
    const auto& [operation, place] = GetParam();
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    operation.prepare(choice);
    const Culprit culprit(place.place, choice, [] { throw Thrown(); });
    EXPECT_THROW(operation.run(choice), Thrown);
    EXPECT_TRUE(culprit.HasActed());
    EXPECT_EQ(Reported(), operation.reports);
    ExpectToWorkOn(choice);
}

/// For an exception and the end of the model at once.
TEST_P(ChoiceExceptionPlaceTest, ExceptionBehindTheEndOfTheModel_PassesToTheCaller)
{
    const auto& [operation, place] = GetParam();
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    operation.prepare(choice);
    const Culprit culprit(place.place, choice, [this] {
        m_model.Close();
        throw Thrown();
    });
    EXPECT_THROW(operation.run(choice), Thrown);
    EXPECT_TRUE(culprit.HasActed());
    EXPECT_EQ(Reported(), operation.reports);
    EXPECT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK) << "no bracket has been left open";
}

INSTANTIATE_TEST_SUITE_P(Places, ChoiceExceptionPlaceTest,
                         testing::Combine(testing::ValuesIn(operations), testing::ValuesIn(Places)),
                         [](const auto& iInfo) {
                             return std::string(std::get<0>(iInfo.param).name) + "_" + std::get<1>(iInfo.param).name;
                         });

TEST_F(ChoiceExceptionTest, OfTwoExceptionsOfABracket_TheFirstPassesAndTheBracketIsClosed)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const Culprit culprit(Place::Listener, choice, [] { throw Thrown(); });
    int closings = 0;
    TestChoice::Hooks().complete = [&closings](TestChoice&, bool, bool) -> HRESULT {
        ++closings;
        throw 1;
    };
    const auto write = [&choice] {
        const VYRCfdConfigurableTransaction bracket(ConfigurableOf(choice));
        ChoiceOf(choice)->SetChoice("beta");
    };
    EXPECT_THROW(write(), Thrown);
    EXPECT_EQ(closings, 1);
    TestChoice::Hooks() = {};
    ExpectToWorkOn(choice);
}

/// The run has taken the change of the value before its last hook, so that the change is not told a second time.
TEST_F(ChoiceExceptionTest, ChangeWhoseCompletionHasThrown_IsToldByNobodyLater)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    {
        const Culprit culprit(Place::CompleteHook, choice, [] { throw Thrown(); });
        EXPECT_THROW(ChoiceOf(choice)->SetChoice("beta"), Thrown);
    }
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeBeta", "complete false false"}));
}

/// A run that ends before takes nothing.
TEST_F(ChoiceExceptionTest, ChangeWhoseDataHasThrown_IsToldByTheNextUpdate)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    {
        const Culprit culprit(Place::DataHook, choice, [] { throw Thrown(); });
        EXPECT_THROW(ChoiceOf(choice)->SetChoice("beta"), Thrown);
    }
    EXPECT_EQ(SetFlagOf(choice, "value"), "true");
    EXPECT_EQ(DataTypeOf(choice), "TypeAlpha");
    ChoiceRecorder steps;
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    EXPECT_EQ(steps.TakeSteps(), (Lines{"data TypeBeta", "name TypeBeta", "create TypeBeta TypeBetaInst",
                                        "complete true true", "dispatch Choice.1"}));
}
} // namespace
