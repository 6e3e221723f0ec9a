/**
 * @file
 * One instance for a Choice, whatever interface it is reached by, and how long it lives.
 */

#include "ChoiceTest.h"
#include "ORXIInstance.h"
#include "VYRIMpaDefaultManagement.h"

namespace
{
/// "Choice.1" is extended by the module's own classes.
class ChoiceIdentityTest : public ChoiceTest
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        m_choice = MakeOwn(ThreeChoices());
    }

    ORXISpecObject_var m_choice;
};

TEST_F(ChoiceIdentityTest, ChoiceConfigurableAndInstance_ReachOneInstance)
{
    // What a bracket that was opened by one interface holds back is held back for the others.
    const VYRICfdChoice_var choice = m_choice;
    const VYRICfdConfigurable_var configurable = m_choice;
    const ORXIInstance_var instance = m_choice;
    ASSERT_EQ(configurable->StartConfiguration(), S_OK);
    EXPECT_EQ(choice->Update(), S_FALSE);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(instance->AdviseAttributeChanged("choices", NULL_var), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
    // The change that the instance was told of is what the end of the bracket tells on.
    NotificationCounter told(m_choice);
    EXPECT_EQ(instance->AdviseAttributeChanged("value", NULL_var), S_OK);
    EXPECT_EQ(told.Count(), 0);
    EXPECT_EQ(configurable->CompleteConfiguration(), S_OK);
    EXPECT_EQ(told.Count(), 1);
    EXPECT_EQ(choice->Update(), S_OK);
    EXPECT_EQ(told.Count(), 1);
}

TEST_F(ChoiceIdentityTest, SharedTies_AreOnePointerEach)
{
    const VYRICfdChoice_var choice = m_choice;
    const VYRICfdConfigurable_var configurable = m_choice;
    const ORXIInstance_var instance = m_choice;
    EXPECT_EQ(choice.Pointer(), ChoiceOf(m_choice).Pointer());
    EXPECT_EQ(choice.Pointer(), VYRICfdChoice_var(configurable).Pointer());
    EXPECT_EQ(configurable.Pointer(), VYRICfdConfigurable_var(instance).Pointer());
    EXPECT_EQ(instance.Pointer(), ORXIInstance_var(ORXISpecAttrAccess_var(m_choice)).Pointer());
}

TEST_F(ChoiceIdentityTest, TieOfDefaultManagement_IsMadeAtEachRequest)
{
    const VYRIMpaDefaultManagement_var first = m_choice;
    const VYRIMpaDefaultManagement_var second = m_choice;
    EXPECT_NE(first.Pointer(), second.Pointer());
    EXPECT_NE(first->IsEqual(second), 0);
    EXPECT_EQ(DefaultManagementOf(m_choice).Pointer(), DefaultManagementOf(m_choice).Pointer());
}

TEST_F(ChoiceIdentityTest, AllInterfaces_AreEqual)
{
    const std::vector<ORXBaseUnknown_var> interfaces = {m_choice,
                                                        ORXISpecAttrAccess_var(m_choice),
                                                        VYRICfdChoice_var(m_choice),
                                                        VYRICfdConfigurable_var(m_choice),
                                                        ORXIInstance_var(m_choice),
                                                        VYRIMpaDefaultManagement_var(m_choice),
                                                        VYRIMpaDefaultManagement_var(m_choice),
                                                        VYRIMpaDefaultManagementProtected_var(m_choice)};
    for (const ORXBaseUnknown_var& one : interfaces)
        for (const ORXBaseUnknown_var& other : interfaces)
        {
            EXPECT_NE(one->IsEqual(other), 0);
            EXPECT_TRUE(one == other);
        }
    const ORXISpecObject_var other = MakeOwn(ThreeChoices(), "Choice.2");
    for (const ORXBaseUnknown_var& one : interfaces)
        EXPECT_EQ(one->IsEqual(ChoiceOf(other)), 0);
}

TEST_F(ChoiceIdentityTest, TwoChoices_HaveInstancesOfTheirOwn)
{
    const ORXISpecObject_var other = MakeOwn(ThreeChoices(), "Choice.2");
    ASSERT_EQ(ConfigurableOf(m_choice)->StartConfiguration(), S_OK);
    EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_FALSE);
    EXPECT_EQ(ChoiceOf(other)->Update(), S_OK);
}

TEST_F(ChoiceIdentityTest, BothInterfacesOfDefaultManagement_ReachOneInstance)
{
    KeepDefault(m_choice, "beta");
    ORXICkeInst_var value;
    EXPECT_EQ(VYRIMpaDefaultManagement_var(m_choice)->GetDefault("value", value), S_OK);
    EXPECT_EQ(TextOf(value), "beta");
}

TEST_F(ChoiceIdentityTest, CustomDefaultsAndBrackets_SurviveTheReleaseOfEveryHandle)
{
    KeepDefault(m_choice, "beta");
    ASSERT_EQ(ConfigurableOf(m_choice)->StartConfiguration(), S_OK);
    m_choice = NULL_var;
    m_choice = m_model.Find("Choice.1");
    EXPECT_EQ(DefaultOf(m_choice, "value"), "beta");
    EXPECT_EQ(ConfigurableOf(m_choice)->StartConfiguration(), S_FALSE);
}

TEST_F(ChoiceIdentityTest, Extensions_DieWithTheirChoice)
{
    const int before = VYRStandalone::LiveComponents();
    {
        VYRStandalone::Model model;
        const ORXISpecObject_var choice = model.Create("ChoiceTestThree", "Choice.9");
        EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
        KeepDefault(choice, "gamma");
        EXPECT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
        EXPECT_GT(VYRStandalone::LiveComponents(), before);
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(ChoiceIdentityTest, Tie_KeepsTheChoiceAliveOutsideOfItsModel)
{
    VYRStandalone::Model model;
    const VYRICfdChoice_var choice = model.Create("ChoiceTestThree", "Choice.9");
    model.Close();
    ORXUnicodeString value;
    EXPECT_EQ(choice->GetChoice(value), S_OK);
    EXPECT_EQ(value, ORXUnicodeString("alpha"));
}

TEST_F(ChoiceIdentityTest, ChoiceInsideAnOwner_IsExtendedLikeATopLevelOne)
{
    const ORXISpecObject_var kind = At(Create("ChoiceTestOwner", "Owner.1"), "kind");
    EXPECT_FALSE(!ChoiceOf(kind));
    EXPECT_STREQ(DefaultManagementOf(kind)->IsA(), "VYRECfdChoiceDefaultManagement");
    EXPECT_EQ(ChoiceOf(kind)->SetChoice("two"), S_OK);
    EXPECT_EQ(SetFlagOf(kind, "value"), "true");
}
} // namespace
