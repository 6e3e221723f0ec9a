/**
 * @file
 * Who holds whom: ties hold their object, the object its extension instances.
 */

#include "FlowTest.h"
#include "ORXIInstance.h"
#include "VYRIMpaDefaultManagement.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class LifetimeTest : public FlowTest
{
};

TEST_F(LifetimeTest, CustomDefaults_SurviveTheReleaseOfEveryHandle)
{
    ORXICkeInst_var value;
    ASSERT_EQ(VYRIMpaDefaultManagement_var(m_solver)->GetDefault("relaxation", value), S_OK);
    ASSERT_EQ(DefaultManagement()->SetCustomDefault("iterations", value), S_OK);
    value = NULL_var;
    // No handle on an interface of the extension is left, nor on the object itself.
    m_solver = NULL_var;
    m_solver = m_model.Find("Solver.1");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "0.7");
}

TEST_F(LifetimeTest, LogicalName_SurvivesTheReleaseOfTheSharedTie)
{
    ORXIInstance_var(m_solver)->SetLogicalName("flow");
    ORXUnicodeString name;
    ORXIInstance_var(m_solver)->GetLogicalName(name);
    EXPECT_EQ(name, ORXUnicodeString("flow"));
}

TEST_F(LifetimeTest, DropExtensions_LosesWhatLivesInThem)
{
    ORXIInstance_var(m_solver)->SetLogicalName("flow");
    m_model.DropExtensions();
    ORXUnicodeString name;
    ORXIInstance_var(m_solver)->GetLogicalName(name);
    EXPECT_EQ(name, ORXUnicodeString("Solver.1"));
}

TEST_F(LifetimeTest, Ties_HoldTheObjectAndCountThemselves)
{
    const unsigned int before = VYRStandalone::ReferenceCount(m_solver);
    {
        const VYRIMpaDefaultManagement_var first = m_solver;
        const VYRIMpaDefaultManagement_var copy = first;
        EXPECT_EQ(VYRStandalone::ReferenceCount(m_solver), before + 1) << "two references on one tie";
        const VYRIMpaDefaultManagement_var second = m_solver;
        EXPECT_EQ(VYRStandalone::ReferenceCount(m_solver), before + 2) << "two ties";
        const ORXIInstance_var instance = m_solver;
        const ORXIInstance_var shared = m_solver;
        EXPECT_EQ(VYRStandalone::ReferenceCount(m_solver), before + 3) << "one tie, shared";
    }
    EXPECT_EQ(VYRStandalone::ReferenceCount(m_solver), before);
}

TEST_F(LifetimeTest, Tie_CountsAndAnswersItsCount)
{
    VYRIMpaDefaultManagement_var tie = m_solver;
    EXPECT_EQ(tie->AddRef(), 2U);
    EXPECT_EQ(tie->Release(), 1U);
    ORXIInstance_var instance = m_solver;
    EXPECT_EQ(instance->AddRef(), 2U);
    EXPECT_EQ(instance->Release(), 1U);
}

TEST_F(LifetimeTest, Tie_KeepsTheObjectAlive)
{
    VYRStandalone::Model model;
    VYRIMpaDefaultManagement_var tie = model.Create("FlowTestSolver", "Solver.9");
    model.Close();
    ORXICkeInst_var value;
    EXPECT_EQ(tie->GetDefault("iterations", value), S_OK);
    EXPECT_EQ(TextOf(value), "500");
}

TEST_F(LifetimeTest, SharedTie_IsForgottenWithItsLastReference)
{
    const int before = VYRStandalone::LiveComponents();
    // The first request makes the extension, which stays.
    ORXIInstance_var instance = m_solver;
    instance = NULL_var;
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 1);
    instance = m_solver;
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 2) << "extension and tie";
    instance = NULL_var;
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 1);
    EXPECT_FALSE(!ORXIInstance_var(m_solver));
}

TEST_F(LifetimeTest, Extensions_DieWithTheirObject)
{
    const int before = VYRStandalone::LiveComponents();
    {
        VYRStandalone::Model model;
        const ORXISpecObject_var solver = model.Create("FlowTestSolver", "Solver.9");
        Write(solver, "iterations", "40");
        Write(At(solver, "zone"), "layers", "4");
        ORXUnicodeString text("0.1");
        DefaultManagementOf(solver)->SetCustomDefault("relaxation", text);
        AddRecord(model, solver, "title", "jet");
        EXPECT_EQ(DefaultOf(solver, "title"), "jet");
        EXPECT_GT(VYRStandalone::LiveComponents(), before);
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(LifetimeTest, DirectInterface_CountsOnTheObject)
{
    const unsigned int before = VYRStandalone::ReferenceCount(m_solver);
    const VYRIMpaDefaultManagementProtected_var first = DefaultManagement();
    // The extension's cursor holds the sub-feature and not the object.
    EXPECT_EQ(VYRStandalone::ReferenceCount(m_solver), before + 1);
    const VYRIMpaDefaultManagementProtected_var second = first;
    EXPECT_EQ(VYRStandalone::ReferenceCount(m_solver), before + 2);
}
} // namespace
