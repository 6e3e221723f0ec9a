/**
 * @file
 * Whole sequences of writes and notifications around one write. Everything is nested on one thread, and the order in
 * which nested runs see things is behaviour.
 */

#include "FlowTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class SequencesTest : public FlowTest
{
protected:
    VYRStandalone::CallRecorder m_calls;
};

TEST_F(SequencesTest, UsersWrite_MarksTheAttributeAsSet)
{
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1.iterations = 40",
                                  "advise Solver.1.iterations = 40",
                                  "add Solver.1/defaultManagement.iterations_isset",
                                  "write Solver.1/defaultManagement.iterations_isset = true",
                                  "advise Solver.1/defaultManagement.iterations_isset = true",
                                  "done Solver.1/defaultManagement.iterations_isset",
                                  "done Solver.1.iterations",
                              }));
}

TEST_F(SequencesTest, UsersWriteOfTheValueThatIsThere_MarksTheAttributeAsSet)
{
    ASSERT_EQ(DefaultManagement()->SetIsSet("iterations", ORXFalse), S_OK);
    m_calls.Take();
    Write(m_solver, "iterations", "500");
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1.iterations = 500",
                                  "advise Solver.1.iterations = 500",
                                  "write Solver.1/defaultManagement.iterations_isset = true",
                                  "advise Solver.1/defaultManagement.iterations_isset = true",
                                  "done Solver.1/defaultManagement.iterations_isset",
                                  "done Solver.1.iterations",
                              }));
}

TEST_F(SequencesTest, WriteThatTakesTheValueAway_GivesTheDefaultBackUnderTheGuard)
{
    Write(m_solver, "iterations", "40");
    m_calls.Take();
    TakeAway(m_solver, "iterations");
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1.iterations = (none)",
                                  "advise Solver.1.iterations = (none)",
                                  "write Solver.1.iterations = 500",
                                  "advise Solver.1.iterations = 500",
                                  "done Solver.1.iterations",
                                  "write Solver.1/defaultManagement.iterations_isset = false",
                                  "advise Solver.1/defaultManagement.iterations_isset = false",
                                  "done Solver.1/defaultManagement.iterations_isset",
                                  "done Solver.1.iterations",
                              }));
}

TEST_F(SequencesTest, SetIsAuto_OnAnAbsentFlag)
{
    Write(m_solver, "iterations", "40");
    m_calls.Take();
    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "add Solver.1/defaultManagement.iterations_isauto",
                                  "write Solver.1/defaultManagement.iterations_isauto = true",
                                  "advise Solver.1/defaultManagement.iterations_isauto = true",
                                  "done Solver.1/defaultManagement.iterations_isauto",
                              }));
}

TEST_F(SequencesTest, SetIsAuto_OnAnExistingFlag)
{
    Write(m_solver, "iterations", "40");
    DefaultManagement()->SetIsAuto("iterations", ORXFalse);
    m_calls.Take();
    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXTrue), S_OK);
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1/defaultManagement.iterations_isauto = true",
                                  "advise Solver.1/defaultManagement.iterations_isauto = true",
                                  "done Solver.1/defaultManagement.iterations_isauto",
                                  "write Solver.1.iterations = 500",
                                  "advise Solver.1.iterations = 500",
                                  "done Solver.1.iterations",
                                  "write Solver.1/defaultManagement.iterations_isset = false",
                                  "advise Solver.1/defaultManagement.iterations_isset = false",
                                  "done Solver.1/defaultManagement.iterations_isset",
                              }));
    EXPECT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXFalse), S_OK);
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1/defaultManagement.iterations_isauto = false",
                                  "advise Solver.1/defaultManagement.iterations_isauto = false",
                                  "done Solver.1/defaultManagement.iterations_isauto",
                              }));
}

TEST_F(SequencesTest, WriteOfAnAutoFlagOnTheSubFeature_ResetsTheAttributeOfTheFeature)
{
    Write(m_solver, "iterations", "40");
    DefaultManagement()->SetIsAuto("iterations", ORXFalse);
    m_calls.Take();
    Write(SubFeature(), "iterations_isauto", "true");
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1/defaultManagement.iterations_isauto = true",
                                  "advise Solver.1/defaultManagement.iterations_isauto = true",
                                  // The feature's default management writes the same once more.
                                  "write Solver.1/defaultManagement.iterations_isauto = true",
                                  "advise Solver.1/defaultManagement.iterations_isauto = true",
                                  "done Solver.1/defaultManagement.iterations_isauto",
                                  "write Solver.1.iterations = 500",
                                  "advise Solver.1.iterations = 500",
                                  "done Solver.1.iterations",
                                  "write Solver.1/defaultManagement.iterations_isset = false",
                                  "advise Solver.1/defaultManagement.iterations_isset = false",
                                  "done Solver.1/defaultManagement.iterations_isset",
                                  "done Solver.1/defaultManagement.iterations_isauto",
                              }));
}

TEST_F(SequencesTest, WriteOfASetFlagOnTheSubFeature_TouchesNothingElse)
{
    DefaultManagement()->SetIsSet("iterations", ORXFalse);
    m_calls.Take();
    Write(SubFeature(), "iterations_isset", "true");
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1/defaultManagement.iterations_isset = true",
                                  "advise Solver.1/defaultManagement.iterations_isset = true",
                                  "done Solver.1/defaultManagement.iterations_isset",
                              }));
}

TEST_F(SequencesTest, CustomDefault_OnAnAttributeThatIsNotSet)
{
    ORXUnicodeString text("12");
    DefaultManagement()->SetCustomDefault("iterations", text);
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "add Solver.1/defaultManagement.iterations_isset",
                                  "write Solver.1/defaultManagement.iterations_isset = false",
                                  "advise Solver.1/defaultManagement.iterations_isset = false",
                                  "done Solver.1/defaultManagement.iterations_isset",
                                  "write Solver.1.iterations = 12",
                                  "advise Solver.1.iterations = 12",
                                  "done Solver.1.iterations",
                                  "write Solver.1/defaultManagement.iterations_isset = false",
                                  "advise Solver.1/defaultManagement.iterations_isset = false",
                                  "done Solver.1/defaultManagement.iterations_isset",
                              }));
}

TEST_F(SequencesTest, UsersWriteOnAComponent_TellsTheComponentAndNotItsOwner)
{
    Write(At(m_solver, "zone"), "layers", "4");
    EXPECT_EQ(m_calls.Take(), (Lines{
                                  "write Solver.1/zone.layers = 4",
                                  "advise Solver.1/zone.layers = 4",
                                  "add Solver.1/zone/defaultManagement.layers_isset",
                                  "write Solver.1/zone/defaultManagement.layers_isset = true",
                                  "advise Solver.1/zone/defaultManagement.layers_isset = true",
                                  "done Solver.1/zone/defaultManagement.layers_isset",
                                  "done Solver.1/zone.layers",
                              }));
}
} // namespace
