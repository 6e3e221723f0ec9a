/**
 * @file
 * Where a default has no value, or there is none, a write that takes a value away leads back to itself through the
 * notifications. Each of these runs ends, on a stack that no endless recursion would survive.
 */

#include "BoundedStack.h"
#include "Configurations.h"
#include "FlowTest.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr std::size_t Stack = 64;

constexpr const char* GetDefault = "VYRCfdDefaultManagementAdp::GetDefault";
constexpr const char* SetIsSet = "VYRCfdDefaultManagementAdp::SetIsSet";

class TerminationTest : public FlowTest
{
protected:
    /// Runs on the bounded stack. @return the calls and notifications, in their order
    Lines CallsOf(const std::function<void()>& iBody)
    {
        Lines lines;
        OnBoundedStack(Stack, [&] {
            VYRStandalone::CallRecorder calls;
            iBody();
            lines = calls.Take();
            m_reports = Reported();
        });
        return lines;
    }

    Records m_reports;
};

// ---- a default without a value --------------------------------------------------------------------------------------

TEST_F(TerminationTest, StartUpWithoutAValue_TakingTheValueAway)
{
    Write(m_solver, "seed", "5");
    const Lines calls = CallsOf([&] { TakeAway(m_solver, "seed"); });
    EXPECT_EQ(calls, (Lines{
                         "write Solver.1.seed = (none)",
                         "advise Solver.1.seed = (none)",
                         // Nothing is there any more, so nobody is told of this one.
                         "write Solver.1.seed = (none)",
                         "write Solver.1/defaultManagement.seed_isset = false",
                         "advise Solver.1/defaultManagement.seed_isset = false",
                         "done Solver.1/defaultManagement.seed_isset",
                         "done Solver.1.seed",
                     }));
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(ValueOf(m_solver, "seed"), "(none)");
}

TEST_F(TerminationTest, StartUpWithoutAValue_Unset)
{
    Write(m_solver, "seed", "5");
    const Lines calls = CallsOf([&] { EXPECT_EQ(DefaultManagement()->Unset("seed"), S_OK); });
    EXPECT_EQ(calls, (Lines{
                         "write Solver.1.seed = (none)",
                         "advise Solver.1.seed = (none)",
                         // The notification unsets as well, under the guard, and takes the guard down.
                         "write Solver.1.seed = (none)",
                         "write Solver.1/defaultManagement.seed_isset = false",
                         "advise Solver.1/defaultManagement.seed_isset = false",
                         "done Solver.1/defaultManagement.seed_isset",
                         "done Solver.1.seed",
                         "write Solver.1/defaultManagement.seed_isset = false",
                         "advise Solver.1/defaultManagement.seed_isset = false",
                         "done Solver.1/defaultManagement.seed_isset",
                     }));
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(SetFlagOf(m_solver, "seed"), "false");
}

TEST_F(TerminationTest, RecordThatIsNoNumber)
{
    AddRecord(m_model, m_solver, "iterations", "abc");
    Write(m_solver, "iterations", "40");
    const Lines calls = CallsOf([&] { TakeAway(m_solver, "iterations"); });
    EXPECT_EQ(calls, (Lines{
                         "write Solver.1.iterations = (none)",
                         "advise Solver.1.iterations = (none)",
                         "write Solver.1.iterations = (none)",
                         "write Solver.1/defaultManagement.iterations_isset = false",
                         "advise Solver.1/defaultManagement.iterations_isset = false",
                         "done Solver.1/defaultManagement.iterations_isset",
                         "done Solver.1.iterations",
                     }));
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "(none)");
}

TEST_F(TerminationTest, DefaultItemThatIsNoNumber)
{
    Configurations configurations({Configuration("main", R"([ { "path": "iterations", "default": "abc" } ])"),
                                   Configuration("empty", "[]")});
    // Reading the file is not what has to fit.
    ASSERT_EQ(configurations.Apply(NULL_var, "empty"), S_FALSE);
    CallsOf([&] { EXPECT_EQ(configurations.Apply(m_solver, "main"), S_OK); });
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "(none)");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

/// The ways in which a model is closed and opened again.
enum class Reopening
{
    DroppedExtensions,
    SavedAndRead
};

class ReopenedTest : public TerminationTest, public testing::WithParamInterface<Reopening>
{
protected:
    /// Applies the items to the solver and opens the model again. @return the solver in it
    ORXISpecObject_var ReopenedSolver(const char* iItems)
    {
        Configurations configurations({Configuration("main", iItems)});
        EXPECT_EQ(configurations.Apply(m_solver, "main"), S_OK);
        if (GetParam() == Reopening::DroppedExtensions)
        {
            m_model.DropExtensions();
            return m_solver;
        }
        m_reopened = VYRStandalone::Model::Parse(m_model.Text(), "test");
        return m_reopened.Find("Solver.1");
    }

    VYRStandalone::Model m_reopened;
};

TEST_P(ReopenedTest, BooleanRecord_HasNoValueAnyMore_AndUnsetEmptiesTheAttribute)
{
    const ORXISpecObject_var solver =
        ReopenedSolver(R"([ { "path": "steady", "type": "boolean", "default": "false" } ])");
    ASSERT_EQ(ValueOf(solver, "steady"), "false");
    CallsOf([&] { EXPECT_EQ(DefaultManagementOf(solver)->Unset("steady"), S_OK); });
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(ValueOf(solver, "steady"), "(none)");
    EXPECT_EQ(SetFlagOf(solver, "steady"), "false");
}

TEST_P(ReopenedTest, BooleanRecord_TakingTheValueAwayAndSwitchingToAuto)
{
    const ORXISpecObject_var solver =
        ReopenedSolver(R"([ { "path": "steady", "type": "boolean", "default": "false", "defaultAutoKey": "key" } ])");
    CallsOf([&] {
        TakeAway(solver, "steady");
        Write(solver, "steady", "true");
        EXPECT_EQ(DefaultManagementOf(solver)->SetIsAuto("steady", ORXTrue), S_OK);
    });
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(ValueOf(solver, "steady"), "(none)");
    EXPECT_EQ(SetFlagOf(solver, "steady"), "false");
    EXPECT_EQ(AutoFlagOf(solver, "steady"), "true");
}

TEST_P(ReopenedTest, OtherRecords_GiveTheirDefaultAgain)
{
    const ORXISpecObject_var solver = ReopenedSolver(R"([ { "path": "iterations", "default": "40" },
                                                          { "path": "relaxation", "default": "0.25" },
                                                          { "path": "title", "default": "jet" },
                                                          { "path": "scheme", "default": "central" } ])");
    EXPECT_EQ(DefaultOf(solver, "iterations"), "40");
    EXPECT_EQ(DefaultOf(solver, "relaxation"), "0.25");
    EXPECT_EQ(DefaultOf(solver, "title"), "jet");
    // Like that of a boolean: records read no other types.
    EXPECT_EQ(DefaultOf(solver, "scheme"), "(none)");
}

INSTANTIATE_TEST_SUITE_P(Ways, ReopenedTest, testing::Values(Reopening::DroppedExtensions, Reopening::SavedAndRead),
                         [](const auto& iInfo) {
                             return iInfo.param == Reopening::DroppedExtensions ? "DroppedExtensions" : "SavedAndRead";
                         });

// ---- no default at all ----------------------------------------------------------------------------------------------

TEST_F(TerminationTest, DefaultThatCannotBeResolved)
{
    Write(m_solver, "iterations", "40");
    const Lines calls = CallsOf([&] {
        VYRStandalone::Fault always{};
        always.operation = "GetStartup";
        always.times = 0;
        VYRStandalone::PlantFault(always);
        TakeAway(m_solver, "iterations");
        VYRStandalone::ClearFaults();
    });
    EXPECT_EQ(calls, (Lines{
                         "write Solver.1.iterations = (none)",
                         "advise Solver.1.iterations = (none)",
                         "write Solver.1/defaultManagement.iterations_isset = false",
                         "advise Solver.1/defaultManagement.iterations_isset = false",
                         "done Solver.1/defaultManagement.iterations_isset",
                         "done Solver.1.iterations",
                     }));
    EXPECT_EQ(m_reports, (Records{Assertion("parentSU", GetDefault)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "(none)");
}

TEST_F(TerminationTest, AttributeOfThisObjectAlone)
{
    ASSERT_FALSE(!ORXISpecAttribute_var::Adopt(m_solver->AddAttribute("extra", tk_integer, 0)));
    const Lines calls = CallsOf([&] {
        Write(m_solver, "extra", "5");
        TakeAway(m_solver, "extra");
    });
    EXPECT_EQ(calls, (Lines{
                         "write Solver.1.extra = 5",
                         "advise Solver.1.extra = 5",
                         "add Solver.1/defaultManagement.extra_isset",
                         "write Solver.1/defaultManagement.extra_isset = true",
                         "advise Solver.1/defaultManagement.extra_isset = true",
                         "done Solver.1/defaultManagement.extra_isset",
                         "done Solver.1.extra",
                         "write Solver.1.extra = (none)",
                         "advise Solver.1.extra = (none)",
                         "write Solver.1/defaultManagement.extra_isset = false",
                         "advise Solver.1/defaultManagement.extra_isset = false",
                         "done Solver.1/defaultManagement.extra_isset",
                         "done Solver.1.extra",
                     }));
    EXPECT_EQ(m_reports, (Records{Assertion("key", GetDefault)}));
}

// ---- the attribute that default management itself stands in ---------------------------------------------------------

TEST_F(TerminationTest, DefaultManagementReplaced_IsMarkedOnTheOneThatTheExtensionFound)
{
    ASSERT_FALSE(!DefaultManagement());
    const ORXISpecObject_var old = SubFeature();
    const ORXISpecObject_var flags = Create("VYRCfdDefaultManagement", "Flags");
    const Lines calls = CallsOf([&] { EXPECT_EQ(WriteObject(m_solver, "defaultManagement", flags), S_OK); });
    EXPECT_EQ(m_reports, Records{});
    ASSERT_GE(calls.size(), 3U);
    EXPECT_EQ(calls[0], "write Solver.1.defaultManagement = Flags");
    EXPECT_EQ(calls[1].substr(0, 33), "advise Solver.1.defaultManagement");
    EXPECT_EQ(calls.back(), "done Solver.1.defaultManagement");
    EXPECT_TRUE(At(m_solver, "defaultManagement") == flags);
    EXPECT_EQ(SetFlagOf(m_solver, "defaultManagement"), "absent");
    const ORXISpecAttrAccess_var access = AccessOf(old);
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("defaultManagement_isset"));
    ASSERT_FALSE(!key);
    EXPECT_EQ(access->GetBoolean(key), ORXTrue);
}

TEST_F(TerminationTest, DefaultManagementReplacedBeforeTheExtensionIsMade_IsMarkedOnTheNewOne)
{
    const ORXISpecObject_var flags = Create("VYRCfdDefaultManagement", "Flags");
    CallsOf([&] { EXPECT_EQ(WriteObject(m_solver, "defaultManagement", flags), S_OK); });
    EXPECT_EQ(m_reports, Records{});
    EXPECT_EQ(SetFlagOf(m_solver, "defaultManagement"), "true");
}

TEST_F(TerminationTest, DefaultManagementCleared)
{
    ASSERT_FALSE(!DefaultManagement());
    CallsOf([&] { EXPECT_EQ(WriteObject(m_solver, "defaultManagement", NULL_var), S_OK); });
    EXPECT_EQ(m_reports, (Records{Assertion("defaultParm", GetDefault)}));
    EXPECT_TRUE(!At(m_solver, "defaultManagement"));

    // The extension goes on with the sub-feature that it found, outside the model.
    unsigned char isSet = 7;
    EXPECT_EQ(DefaultManagement()->SetIsSet("iterations", ORXTrue), S_OK);
    EXPECT_EQ(DefaultManagement()->IsSet("iterations", isSet), S_OK);
    EXPECT_EQ(isSet, ORXTrue);
}

TEST_F(TerminationTest, DefaultManagementClearedBeforeTheExtensionIsMade)
{
    CallsOf([&] { EXPECT_EQ(WriteObject(m_solver, "defaultManagement", NULL_var), S_OK); });
    EXPECT_EQ(m_reports, (Records{Assertion("spAttr", GetDefault), Assertion("spAttr", SetIsSet)}));
}

TEST_F(TerminationTest, DefaultManagementWrittenClearedAndReplaced_InOneRun)
{
    const ORXISpecObject_var flags = Create("VYRCfdDefaultManagement", "Flags");
    CallsOf([&] {
        EXPECT_EQ(WriteObject(m_solver, "defaultManagement", SubFeature()), S_OK);
        EXPECT_EQ(WriteObject(m_solver, "defaultManagement", NULL_var), S_OK);
        EXPECT_EQ(WriteObject(m_solver, "defaultManagement", flags), S_OK);
        Write(m_solver, "iterations", "40");
        TakeAway(m_solver, "iterations");
    });
    EXPECT_EQ(m_reports, (Records{Assertion("defaultParm", GetDefault)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
}
} // namespace
