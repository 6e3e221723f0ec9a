/**
 * @file
 * Items that apply a further configuration.
 */

#include <ostream>

#include "ChannelSwap.h"
#include "VYRCfdTraceManager.h"
#include "WalkTest.h"

namespace
{
class NestedItemTest : public WalkTest
{
protected:
    /// Applies the items beside configurations that nested items may name.
    long ApplyNesting(const std::string& iItems)
    {
        Install({Configuration("main", iItems),
                 Configuration("hot", R"([ { "path": "temperature", "type": "real", "default": "900" } ])"),
                 Configuration("short", R"([ { "path": "iterations", "type": "integer", "default": "7" } ])"),
                 Configuration("broken", R"([ { "path": "missing", "value": "x", "list": true } ])"),
                 Configuration("empty", "[]")});
        return Apply(m_solver, "main");
    }
};

TEST_F(NestedItemTest, Path_LeadsToASubObject_WhichKeepsTheRecords)
{
    EXPECT_EQ(ApplyNesting(R"([ { "path": "zone", "config": "hot" } ])"), S_OK);
    EXPECT_EQ(ValueOf(At(m_solver, "zone"), "temperature"), "900");
    EXPECT_EQ(RecordsOf(At(m_solver, "zone")), (Lines{"type=real path=temperature default=900"}));
    EXPECT_EQ(RecordsOf(m_solver), Lines{});
}

TEST_F(NestedItemTest, Path_IsFollowedThroughLists)
{
    const ORXISpecObject_var inlet = Create("FlowTestZone", "Inlet");
    const ORXISpecAttrAccess_var access = AccessOf(m_solver);
    ASSERT_EQ(access->InsertAtPosition(ORXISpecAttrKey_var::Adopt(access->GetAttrKey("zones")), inlet, 1), S_OK);
    EXPECT_EQ(ApplyNesting(R"([ { "path": "zones/Inlet", "config": "hot" } ])"), S_OK);
    EXPECT_EQ(ValueOf(inlet, "temperature"), "900");
}

TEST_F(NestedItemTest, EmptyPath_AppliesToTheObjectItself_WhoseRecordsTheOuterApplicationThenReplaces)
{
    EXPECT_EQ(ApplyNesting(R"([ { "path": "relaxation", "type": "real", "default": "0.5" }, { "config": "short" } ])"),
              S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"type=real path=relaxation default=0.5"}));
    EXPECT_EQ(RecordsIn(m_model), 2);
}

TEST_F(NestedItemTest, PathThatEndsOnAScalar_AppliesToTheObjectThatHoldsIt)
{
    EXPECT_EQ(ApplyNesting(R"([ { "path": "zone/layers", "config": "hot" } ])"), S_OK);
    EXPECT_EQ(ValueOf(At(m_solver, "zone"), "temperature"), "900");
}

TEST_F(NestedItemTest, PathWithoutTarget_PrintsAndReportsAndGoesOn)
{
    ChannelSwap debug(VYRCfdTraceManager::_Debug);
    EXPECT_EQ(ApplyNesting(R"([ { "path": "zone/nowhere", "config": "hot" },
                                { "path": "iterations", "default": "8" } ])"),
              S_OK);
    EXPECT_EQ(debug.Take(), (Lines{"Path has null target: zone/nowhere\n"}));
    EXPECT_EQ(Reported(), (Records{Assertion("ispObject != NULL_var", Walk)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "8");
}

TEST_F(NestedItemTest, PathThatLeadsToATarget_PrintsNothing)
{
    ChannelSwap debug(VYRCfdTraceManager::_Debug);
    EXPECT_EQ(ApplyNesting(R"([ { "path": "zone", "config": "hot" } ])"), S_OK);
    EXPECT_EQ(debug.Take(), Lines{});
}

TEST_F(NestedItemTest, PathToAnEmptyAttribute_HasNoTarget)
{
    EXPECT_EQ(ApplyNesting(R"([ { "path": "material", "config": "hot" } ])"), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("ispObject != NULL_var", Walk)}));
}

TEST_F(NestedItemTest, PathWithoutTargetForAnEmptyConfiguration_ReportsNothing)
{
    EXPECT_EQ(ApplyNesting(R"([ { "path": "nowhere", "config": "empty" } ])"), S_OK);
}

struct NestedFailure
{
    const char* name;
    const char* item;
    Records reports;
};

void PrintTo(const NestedFailure& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class NestedFailureTest : public NestedItemTest, public testing::WithParamInterface<NestedFailure>
{
};

TEST_P(NestedFailureTest, Failure_IsReportedThereAndDoesNotStopTheWalk)
{
    ASSERT_EQ(WriteObject(m_solver, "material", Create("FlowTestMaterial", "Air")), S_OK);
    EXPECT_EQ(ApplyNesting("[ " + std::string(GetParam().item) + R"(, { "path": "iterations", "default": "8" } ])"),
              S_OK);
    EXPECT_EQ(Reported(), GetParam().reports);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "8");
}

const NestedFailure nestedFailures[] = {
    {"UnknownName",
     R"({ "path": "zone", "config": "unknown" })",
     {FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)", Walk)}},
    {"FailingItem",
     R"({ "path": "zone", "config": "broken" })",
     {Error("No attribute missing", "VYRCfdObjectAccess::SetStrings"),
      FailedCall("specAccess[path].SetStrings(valuesList)", Walk)}},
    {"NoDefaultManagement", R"({ "path": "material", "config": "hot" })", {Assertion("spDefMgmt != NULL_var", Walk)}},
};

INSTANTIATE_TEST_SUITE_P(Failures, NestedFailureTest, testing::ValuesIn(nestedFailures),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(NestedItemTest, Items_AreAppliedInTheOrderOfTheFile)
{
    EXPECT_EQ(ApplyNesting(R"([ { "path": "iterations", "default": "8" }, { "config": "short" } ])"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(ApplyNesting(R"([ { "config": "short" }, { "path": "iterations", "default": "8" } ])"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "8");
}
} // namespace
