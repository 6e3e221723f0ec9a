/**
 * @file
 * One extension instance for an object and a class, however it is reached, and the identity of ties.
 */

#include "FlowTest.h"
#include "ORXIInstance.h"
#include "VYRIMpaDefaultManagement.h"

namespace
{
class IdentityTest : public FlowTest
{
};

TEST_F(IdentityTest, DirectInterface_IsOnePointer)
{
    EXPECT_EQ(DefaultManagement().Pointer(), DefaultManagement().Pointer());
}

TEST_F(IdentityTest, DirectInterface_IsTheObject)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    EXPECT_NE(management->IsEqual(m_solver), 0);
    EXPECT_NE(m_solver->IsEqual(management), 0);
    EXPECT_EQ(management->GetImpl(0), m_solver->GetImpl(0));
    EXPECT_TRUE(ORXISpecObject_var(management) == m_solver);
    EXPECT_TRUE(VYRIMpaDefaultManagementProtected_var(ORXISpecAttrAccess_var(management)) == management);
}

TEST_F(IdentityTest, BothInterfacesOfDefaultManagement_ReachOneInstance)
{
    const VYRIMpaDefaultManagement_var tie = m_solver;
    ORXICkeInst_var value;
    ASSERT_EQ(tie->GetDefault("relaxation", value), S_OK);
    ASSERT_EQ(DefaultManagement()->SetCustomDefault("iterations", value), S_OK);
    ORXICkeInst_var answer;
    EXPECT_EQ(tie->GetDefault("iterations", answer), S_OK);
    EXPECT_EQ(TextOf(answer), "0.7");

    unsigned char isSet = 7;
    EXPECT_EQ(DefaultManagement()->SetIsSet("title", ORXTrue), S_OK);
    EXPECT_EQ(tie->IsSet("title", isSet), S_OK);
    EXPECT_EQ(isSet, ORXTrue);
    EXPECT_EQ(tie->Unset("title"), S_OK);
    EXPECT_EQ(SetFlagOf(m_solver, "title"), "false");
    EXPECT_EQ(tie->Unset(""), S_FALSE);
}

TEST_F(IdentityTest, TwoRequestsForDefaultManagement_GiveTwoTiesThatAreEqual)
{
    const VYRIMpaDefaultManagement_var first = m_solver;
    const VYRIMpaDefaultManagement_var second = m_solver;
    EXPECT_NE(first.Pointer(), second.Pointer());
    EXPECT_TRUE(first == second);
    EXPECT_NE(first->IsEqual(second), 0);
    EXPECT_EQ(first->GetImpl(0), second->GetImpl(0));
    EXPECT_TRUE(first == m_solver);
    // Each tie is its own interface's answer.
    EXPECT_EQ(VYRIMpaDefaultManagement_var::Cast(first).Pointer(), first.Pointer());
}

TEST_F(IdentityTest, TwoRequestsForTheInstance_ShareTheTie)
{
    const ORXIInstance_var first = m_solver;
    const ORXIInstance_var second = ORXISpecAttrAccess_var(m_solver);
    EXPECT_EQ(first.Pointer(), second.Pointer());
    EXPECT_TRUE(first == m_solver);
    EXPECT_EQ(first->GetImpl(0), m_solver->GetImpl(0));
    EXPECT_EQ(ORXIInstance_var(SubFeature()).Pointer(), ORXIInstance_var(SubFeature()).Pointer());
}

TEST_F(IdentityTest, Tie_CastsToEverythingThatTheObjectOffers)
{
    const VYRIMpaDefaultManagement_var tie = m_solver;
    EXPECT_TRUE(ORXISpecObject_var(tie) == m_solver);
    EXPECT_EQ(VYRIMpaDefaultManagementProtected_var(tie).Pointer(), DefaultManagement().Pointer());
    EXPECT_EQ(ORXIInstance_var(tie).Pointer(), ORXIInstance_var(m_solver).Pointer());
    const ORXIInstance_var instance = m_solver;
    EXPECT_EQ(VYRIMpaDefaultManagementProtected_var(instance).Pointer(), DefaultManagement().Pointer());
    EXPECT_EQ(ORXIInstance_var::Cast(instance).Pointer(), instance.Pointer());
}

TEST_F(IdentityTest, TwoObjects_HaveInstancesOfTheirOwn)
{
    const ORXISpecObject_var other = Create("FlowTestSolver", "Solver.2");
    EXPECT_NE(DefaultManagement().Pointer(), DefaultManagementOf(other).Pointer());
    EXPECT_NE(ORXIInstance_var(m_solver).Pointer(), ORXIInstance_var(other).Pointer());
    EXPECT_FALSE(DefaultManagement() == DefaultManagementOf(other));

    ORXICkeInst_var value;
    ASSERT_EQ(DefaultManagement()->GetDefault("relaxation", value), S_OK);
    DefaultManagement()->SetCustomDefault("iterations", value);
    EXPECT_EQ(DefaultOf(other, "iterations"), "500");
}

TEST_F(IdentityTest, Instance_OfBothRequests_KeepsItsListenersAndItsName)
{
    // What lives in the instance shows that it is one.
    ASSERT_EQ(ORXIInstance_var(m_solver)->SetLogicalName("flow"), S_OK);
    ORXUnicodeString name;
    EXPECT_EQ(ORXIInstance_var(m_solver)->GetLogicalName(name), S_OK);
    EXPECT_EQ(name, ORXUnicodeString("flow"));
}
} // namespace
