/**
 * @file
 * A Choice inside an owner: what is declared for it is what the owner's type declares.
 */

#include "ManagerTest.h"

namespace
{
/// "model" of the owner declares alpha, beta and gamma with beta as the value; its own type declares nothing.
class OwnedChoiceTest : public ManagerTest
{
protected:
    void SetUp() override
    {
        ManagerTest::SetUp();
        m_choice = At(Create("ChoiceTestOwner", "Owner.1"), "model");
        m_manager = ManagerOf(m_choice);
        ASSERT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    }
};

TEST_F(OwnedChoiceTest, AllChoices_AreThoseOfTheOwnersType)
{
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value;
    EXPECT_EQ(m_manager->GetAllChoices(choices, value), S_OK);
    EXPECT_EQ(choices, Texts({"alpha", "beta", "gamma"}));
    EXPECT_EQ(value, ORXUnicodeString("beta"));
}

TEST_F(OwnedChoiceTest, Configure_StaysWithinTheOwnersDeclaration)
{
    EXPECT_EQ(Configure({"gamma", "alpha"}, "alpha"), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "Startups"), (Lines{"TypeGamma", "TypeAlpha"}));
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
    EXPECT_EQ(Configure({"delta"}, "delta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Invalid choice delta", Manage)}));
}

TEST_F(OwnedChoiceTest, ProhibitAndReset_GoBackToTheOwnersDefault)
{
    EXPECT_EQ(m_manager->ProhibitChoice("beta"), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "alpha");
    EXPECT_EQ(m_manager->Reset(ORXFalse), S_OK);
    EXPECT_EQ(TextsOf(m_choice, "choices"), (Lines{"alpha", "beta", "gamma"}));
    EXPECT_EQ(ValueOf(m_choice, "value"), "beta");
    EXPECT_EQ(ValueOf(m_choice, "display"), "Model");
    EXPECT_EQ(DataTypeOf(m_choice), "TypeBeta");
    EXPECT_EQ(Reported(), (Records{UnequalLists()}));
}

TEST_F(OwnedChoiceTest, ChoiceThatTookTheOnesPlace_IsDeclaredByItsOwnType)
{
    const ORXISpecObject_var own = Create("ChoiceTestHooked", "Own.1");
    ASSERT_EQ(WriteObject(Create("ChoiceTestOwner", "Owner.2"), "model", own), S_OK);
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value;
    EXPECT_EQ(ManagerOf(own)->GetAllChoices(choices, value), S_OK);
    EXPECT_TRUE(choices.empty());
}
} // namespace
