/**
 * @file
 * Putting choices back.
 */

#include <ostream>

#include "ManagerTest.h"

namespace
{
class AddChoicesTest : public ManagerTest
{
protected:
    /// Takes a Choice without startups.
    void TakePlain() { Take({{"a", "b", "c", "d"}, {}, "a", "", ""}); }
};

// ---- without startups -----------------------------------------------------------------------------------------------

TEST_F(AddChoicesTest, ProhibitedChoices_ComeBackInTheDeclaredOrder)
{
    TakePlain();
    ASSERT_EQ(ProhibitAll({"b", "c"}), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(AddAll({"b"}), S_OK);
    EXPECT_EQ(calls.Take(),
              (Lines{"write Choice.1.choices = [a, b, d]", "advise Choice.1.choices = [a, b, d]",
                     "done Choice.1.choices", "data", "allow Choice.1.value = [a, b, d]", "complete false false"}));
    EXPECT_EQ(AddAll({"c"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "c", "d"}));
}

TEST_F(AddChoicesTest, EmptySetOnAnotherOrder_BringsTheDeclaredOrderBack)
{
    TakePlain();
    ASSERT_EQ(Configure({"d", "b", "a"}, "b"), S_OK);
    EXPECT_EQ(AddAll({}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "d"}));
    EXPECT_EQ(AllowedOf(m_choice), (Lines{"a", "b", "d"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "b");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "b");
}

struct NothingToAdd
{
    const char* name;
    std::set<ORXUnicodeString> added;
};

void PrintTo(const NothingToAdd& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class NothingToAddTest : public AddChoicesTest, public testing::WithParamInterface<NothingToAdd>
{
};

TEST_P(NothingToAddTest, WritesNothingAndRunsNoUpdate)
{
    TakePlain();
    ASSERT_EQ(m_manager->ProhibitChoice("c"), S_OK);
    VYRStandalone::CallRecorder calls;
    std::set<ORXUnicodeString> added = GetParam().added;
    EXPECT_EQ(m_manager->AddChoices(added), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(added, GetParam().added);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "d"}));
}

const NothingToAdd nothings[] = {
    {"Nothing", {}},
    {"WhatIsOffered", {"a", "d"}},
    {"WhatIsNotDeclared", {"x", "", "C"}},
};

INSTANTIATE_TEST_SUITE_P(Sets, NothingToAddTest, testing::ValuesIn(nothings),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(AddChoicesTest, SetOfTheCaller_StaysAsItWas)
{
    TakePlain();
    ASSERT_EQ(m_manager->ProhibitChoice("c"), S_OK);
    std::set<ORXUnicodeString> added{"c", "x"};
    EXPECT_EQ(m_manager->AddChoices(added), S_OK);
    EXPECT_EQ(added, (std::set<ORXUnicodeString>{"c", "x"}));
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "c", "d"})) << "what is not declared is passed over";
}

TEST_F(AddChoicesTest, PresentChoiceThatIsNotDeclared_IsDropped)
{
    TakePlain();
    ASSERT_EQ(ChoiceOf(m_choice)->Configure(Texts({"x", "b"}), "x", ""), S_OK);
    ASSERT_EQ(ValueOf(m_choice, "value"), "x");
    EXPECT_EQ(AddAll({}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"b"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "b") << "the default has gone with it";
}

TEST_F(AddChoicesTest, ChoiceDeclaredTwice_StandsTwice)
{
    Take({{"a", "b", "a"}, {}, "a", "", ""});
    ASSERT_EQ(m_manager->ProhibitChoice("a"), S_OK);
    EXPECT_EQ(AddAll({"a"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "a"}));
}

TEST_F(AddChoicesTest, NothingThatIsDeclared_LeavesNothing)
{
    TakePlain();
    ASSERT_EQ(ChoiceOf(m_choice)->Configure(Texts({"x", "y"}), "x", ""), S_OK);
    EXPECT_EQ(AddAll({"z"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), Lines{});
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() > 0", "VYRCfdChoiceInstanceAdp::Update")}));
}

TEST_F(AddChoicesTest, StartupsOfAFeatureWhoseTypeDeclaresNone_AreLeftAlone)
{
    TakePlain();
    ASSERT_EQ(ChoiceOf(m_choice)->Configure(Texts({"a", "b"}), Texts({"TypeAlpha", "TypeBeta"}), "a", ""), S_OK);
    EXPECT_EQ(AddAll({"c"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha", "TypeBeta"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

// ---- with startups --------------------------------------------------------------------------------------------------

TEST_F(AddChoicesTest, AddChoices_OnAChoiceWithStartups_WritesTheStartupsUnderTheKeyOfChoices)
{
    ASSERT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(AddAll({"beta"}), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()), (Lines{"write Choice.1.choices = [alpha, beta, gamma]",
                                                   "write Choice.1.choices = [TypeAlpha, TypeBeta, TypeGamma]"}));
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"TypeAlpha", "TypeBeta", "TypeGamma"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha", "TypeGamma"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
    // The update ended there.
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_EQ(AllowedOf(m_choice), (Lines{"alpha", "gamma"}));
}

TEST_F(AddChoicesTest, OnStartupsOfTheSameLength_MakesTheFirstStartupsNameTheValue)
{
    ASSERT_EQ(Configure({"gamma", "beta", "alpha"}, "beta"), S_OK);
    ASSERT_EQ(DataTypeOf(m_choice), "TypeBeta");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(AddAll({}), S_OK);
    EXPECT_EQ(WritesAndSteps(calls.Take()),
              (Lines{"write Choice.1.choices = [alpha, beta, gamma]",
                     "write Choice.1.choices = [TypeAlpha, TypeBeta, TypeGamma]",
                     "allow Choice.1.value = [TypeAlpha, TypeBeta, TypeGamma]",
                     // Neither value nor default is a choice any more; the first one takes over.
                     "write Choice.1.value = TypeAlpha", "data TypeGamma", "name TypeGamma",
                     "create TypeGamma TypeGammaInst", "write Choice.1.Data = TypeGammaInst", "complete true true",
                     "dispatch Choice.1", "write Choice.1/defaultManagement.value_isset = false", "data TypeGamma",
                     "complete false false", "fix", "complete false false"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeGamma", "TypeBeta", "TypeAlpha"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "TypeAlpha");
}

TEST_F(AddChoicesTest, OnStartupsWithNothingToAdd_WritesNothing)
{
    ASSERT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(AddAll({"alpha", "delta"}), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(AddChoicesTest, WhatIsLeftOfStartups_IsPutRightByAReset)
{
    ASSERT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    ASSERT_EQ(AddAll({"beta"}), S_OK);
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeAlpha", "TypeBeta", "TypeGamma"}));
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

// ---- what goes wrong on the way -------------------------------------------------------------------------------------

TEST_F(AddChoicesTest, FailureOfAWriteOrOfTheUpdate_DoesNotShow)
{
    TakePlain();
    ASSERT_EQ(m_manager->ProhibitChoice("c"), S_OK);
    MakeFail("SetStringList", "choices", E_FAIL, 1, 1);
    EXPECT_EQ(AddAll({"c"}), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"a", "b", "d"}));
    TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return E_NOTIMPL; };
    EXPECT_EQ(AddAll({"c"}), S_OK);
    EXPECT_EQ(Reported(), (Records{FailedCall("CompleteUpdate(wasValueChange, dataChange)",
                                              "VYRCfdChoiceInstanceAdp::Update", E_NOTIMPL)}));
}

TEST_F(AddChoicesTest, PresentStartupsOfAnotherLength_AreNotLookedAt)
{
    TakePlain();
    const VYRICfdConfigurable_var bracket = ConfigurableOf(m_choice);
    ASSERT_EQ(bracket->StartConfiguration(), S_OK);
    WriteTexts(m_choice, "Startups", {"TypeAlpha"});
    EXPECT_EQ(AddAll({}), S_OK) << "nothing to add";
    EXPECT_EQ(Reported(), Records{});
    EXPECT_EQ(m_manager->ProhibitChoice("b"), E_FAIL) << "as they are here";
    EXPECT_EQ(Reported(), (Records{Assertion("currentChoices.size() == currentStartups.size()", Prohibit)}));
}
} // namespace
