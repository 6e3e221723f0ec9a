/**
 * @file
 * The records of an application, written at its end, and the whole sequences of calls and notifications of a walk.
 */

#include "VYRStandaloneInstruments.h"
#include "WalkTest.h"

namespace
{
class ClosingTest : public WalkTest
{
};

constexpr const char* SetListCall =
    R"(specAccess["defaultManagement"][VYRCFDBASE(DefaultManagement, configuration)].SetList(configItemsList))";

TEST_F(ClosingTest, Records_StandInTheOrderOfTheItems)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "default": "7" },
                              { "path": "zone", "condition": "steady=true", "config": "main2" },
                              { "path": "monitors", "value": "lift", "list": true },
                              { "path": "relaxation", "type": "real", "default": "0.5", "defaultAutoKey": "k" } ])"),
              S_OK);
    EXPECT_EQ(Reported(), (Records{FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)", Walk)}));
    EXPECT_EQ(RecordsOf(m_solver),
              (Lines{"type= path=iterations default=7", "path=zone condition=steady=true config=main2",
                     "type=real path=relaxation default=0.5 defaultAutoKey=k"}));
}

TEST_F(ClosingTest, FailedWrite_IsReturnedAndTheEffectsOfTheWalkStay)
{
    AddRecord(m_model, m_solver, "title", "old");
    Plant("InsertAtPosition", "configuration", "", E_NOTIMPL);
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "default": "7" } ])"), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("_spAttr->InsertAtPosition(_spKey, spSpec, i)",
                                              "VYRCfdObjectAccess::SetList", E_NOTIMPL),
                                   FailedCall(SetListCall, Walk, E_NOTIMPL)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"path=title default=old"}));
}

TEST_F(ClosingTest, SubFeatureThatIsGoneByThen_IsReported)
{
    // Default management keeps the sub-feature that it has found; the walk looks for it anew.
    ASSERT_FALSE(!DefaultManagement());
    ASSERT_EQ(WriteObject(m_solver, "defaultManagement", NULL_var), S_OK);
    Reported();
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "default": "7" } ])"), E_FAIL);
    EXPECT_EQ(Reported(),
              (Records{Error("Null initialization c", "VYRCfdObjectAccess::SetList"), FailedCall(SetListCall, Walk)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
}

TEST_F(ClosingTest, EqualList_IsNotWritten)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "monitors", "value": "lift", "list": true } ])"), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ApplyItems(R"([ { "path": "monitors", "value": "lift" } ])"), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(ClosingTest, Sequence_OfADefaultItemOnAnUnsetAttribute)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "type": "integer", "default": "7" } ])"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "create VYRCfdConfigItem ConfigItem",
                                // Asking for the set flag makes it.
                                "add Solver.1/defaultManagement.iterations_isset",
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                                // The attribute follows its default.
                                "write Solver.1.iterations = 7",
                                "advise Solver.1.iterations = 7",
                                "done Solver.1.iterations",
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                                // The record.
                                "write ConfigItem.type = integer",
                                "write ConfigItem.path = iterations",
                                "write ConfigItem.default = 7",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                            }));
}

TEST_F(ClosingTest, Sequence_OfADefaultItemOnASetAttribute)
{
    Write(m_solver, "iterations", "40");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "type": "integer", "default": "7" } ])"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "create VYRCfdConfigItem ConfigItem",
                                "write ConfigItem.type = integer",
                                "write ConfigItem.path = iterations",
                                "write ConfigItem.default = 7",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                            }));
}

TEST_F(ClosingTest, Sequence_OfAnAutomaticItemAppliedTwiceToAnAttributeThatTheUserSet)
{
    Write(m_solver, "iterations", "40");
    Install({Configuration("main", R"([ { "path": "iterations", "type": "integer", "default": "7",
                                          "defaultAutoKey": "key" } ])")});
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_solver, "main"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "create VYRCfdConfigItem ConfigItem",
                                // A flag that is made now leaves the attribute alone.
                                "add Solver.1/defaultManagement.iterations_isauto",
                                "write Solver.1/defaultManagement.iterations_isauto = true",
                                "advise Solver.1/defaultManagement.iterations_isauto = true",
                                "done Solver.1/defaultManagement.iterations_isauto",
                                "write ConfigItem.type = integer",
                                "write ConfigItem.path = iterations",
                                "write ConfigItem.default = 7",
                                "write ConfigItem.defaultAutoKey = key",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                            }));

    EXPECT_EQ(Apply(m_solver, "main"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "create VYRCfdConfigItem ConfigItem",
                                // The flag is there: the attribute goes back to its default.
                                "write Solver.1/defaultManagement.iterations_isauto = true",
                                "advise Solver.1/defaultManagement.iterations_isauto = true",
                                "done Solver.1/defaultManagement.iterations_isauto",
                                "write Solver.1.iterations = 7",
                                "advise Solver.1.iterations = 7",
                                "done Solver.1.iterations",
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                                // And once more, by the custom default of an attribute that is no longer set.
                                "write Solver.1.iterations = 7",
                                "advise Solver.1.iterations = 7",
                                "done Solver.1.iterations",
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                                "write ConfigItem.type = integer",
                                "write ConfigItem.path = iterations",
                                "write ConfigItem.default = 7",
                                "write ConfigItem.defaultAutoKey = key",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem, ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                                "remove Solver.1/defaultManagement.configuration[2]",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                            }));
}

TEST_F(ClosingTest, Sequence_OfAValuesItem)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ApplyItems(R"([ { "path": "monitors", "value": "lift,drag", "list": true } ])"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "write Solver.1.monitors = [lift, drag]",
                                "advise Solver.1.monitors = [lift, drag]",
                                "add Solver.1/defaultManagement.monitors_isset",
                                "write Solver.1/defaultManagement.monitors_isset = true",
                                "advise Solver.1/defaultManagement.monitors_isset = true",
                                "done Solver.1/defaultManagement.monitors_isset",
                                "done Solver.1.monitors",
                            }));
}

TEST_F(ClosingTest, Sequence_OfANestedApplicationToTheSameObject_WritesItsRecordsFirst)
{
    Install({Configuration("main", R"([ { "config": "inner" }, { "path": "zone", "condition": "seed=1",
                                          "config": "inner" } ])"),
             Configuration("inner", R"([ { "path": "zone", "condition": "seed=2", "config": "inner" } ])")});
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_solver, "main"), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "create VYRCfdConfigItem ConfigItem",
                                "write ConfigItem.path = zone",
                                "write ConfigItem.condition = seed=2",
                                "write ConfigItem.config = inner",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                                "create VYRCfdConfigItem ConfigItem",
                                "write ConfigItem.path = zone",
                                "write ConfigItem.condition = seed=1",
                                "write ConfigItem.config = inner",
                                "insert Solver.1/defaultManagement.configuration[1] = ConfigItem",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem, ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                                "remove Solver.1/defaultManagement.configuration[2]",
                                "advise Solver.1/defaultManagement.configuration = [ConfigItem]",
                                "done Solver.1/defaultManagement.configuration",
                            }));
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"path=zone condition=seed=1 config=inner"}));
}
} // namespace
