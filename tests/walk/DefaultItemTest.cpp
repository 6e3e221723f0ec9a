/**
 * @file
 * Items that give an attribute a default, and the records that they leave.
 */

#include <ostream>

#include "VYRStandaloneInstruments.h"
#include "WalkTest.h"

namespace
{
class DefaultItemTest : public WalkTest
{
};

TEST_F(DefaultItemTest, CustomDefault_OnAnUnsetAttribute_GivesItTheValueAndLeavesARecord)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "type": "integer", "default": "7" } ])"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "absent");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "7");
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"type=integer path=iterations default=7"}));
}

TEST_F(DefaultItemTest, CustomDefault_OnASetAttribute_LeavesTheValue)
{
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "type": "integer", "default": "7" } ])"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "7");
}

TEST_F(DefaultItemTest, CustomDefault_LeavesTheAutoFlagAlone)
{
    ASSERT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXTrue), S_OK);
    ApplyItems(R"([ { "path": "iterations", "default": "7" } ])");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(DefaultItemTest, Type_IsRecordedAndNotInterpreted)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "type": "pressure", "default": "7" } ])"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"type=pressure path=iterations default=7"}));
}

TEST_F(DefaultItemTest, AutomaticDefault_MarksTheAttributeAndLeavesARecord)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "relaxation", "type": "real", "default": "0.5", "defaultAutoKey": "fast" } ])"),
              S_OK);
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.5");
    EXPECT_EQ(SetFlagOf(m_solver, "relaxation"), "false");
    EXPECT_EQ(AutoFlagOf(m_solver, "relaxation"), "true");
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"type=real path=relaxation default=0.5 defaultAutoKey=fast"}));
}

TEST_F(DefaultItemTest, AutomaticDefault_OnAnAttributeThatTheUserSet_TheFirstLeavesItAndTheSecondResetsIt)
{
    const std::string items =
        R"([ { "path": "iterations", "type": "integer", "default": "7", "defaultAutoKey": "key" } ])";
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(ApplyItems(items), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");

    EXPECT_EQ(ApplyItems(items), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "7");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(DefaultItemTest, Record_IsAFeatureOfItsOwnTypeNamedConfigItem)
{
    ApplyItems(R"([ { "path": "iterations", "default": "7" } ])");
    const ORXISpecObject_var record = At(m_solver, "defaultManagement/configuration/1");
    ASSERT_FALSE(!record);
    EXPECT_EQ(record->GetType(), ORXUnicodeString("VYRCfdConfigItem"));
    EXPECT_EQ(record->GetName(), ORXUnicodeString("ConfigItem"));
    EXPECT_EQ(ORXISpecObject_var::Adopt(record->GetOwner()), NULL_var);
    EXPECT_TRUE(record->GetContainer() == m_model.Container());
}

TEST_F(DefaultItemTest, TwoItemsForOnePath_LeaveTwoRecords_OfWhichTheFirstIsFoundAgain)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "iterations", "type": "integer", "default": "7" },
                              { "path": "iterations", "type": "integer", "default": "8" } ])"),
              S_OK);
    EXPECT_EQ(RecordsOf(m_solver),
              (Lines{"type=integer path=iterations default=7", "type=integer path=iterations default=8"}));
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "8");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "8");
    ASSERT_EQ(DefaultManagement()->RemoveAllCustomDefaults(), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "7");
}

TEST_F(DefaultItemTest, Apply_Twice_MakesNewRecordsAndLeavesTheOldOnesInTheModel)
{
    Install({Configuration("first", R"([ { "path": "iterations", "default": "7" } ])"),
             Configuration("second", R"([ { "path": "relaxation", "default": "0.5" } ])")});
    EXPECT_EQ(Apply(m_solver, "first"), S_OK);
    const ORXISpecObject_var first = At(m_solver, "defaultManagement/configuration/1");
    EXPECT_EQ(Apply(m_solver, "second"), S_OK);
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"type= path=relaxation default=0.5"}));
    EXPECT_FALSE(first == At(m_solver, "defaultManagement/configuration/1"));
    EXPECT_EQ(RecordsIn(m_model), 2);
    EXPECT_EQ(ValueOf(first, "path"), "iterations");
    // The default that the first gave is still in force.
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "7");
}

constexpr const char* SetCustomDefaultCall = "spDefMgmt->SetCustomDefault(path, defaultValue)";
constexpr const char* SetCustomDefault = "VYRCfdDefaultManagementAdp::SetCustomDefault";

struct BadPath
{
    const char* name;
    const char* path;
    const char* autoKey;
    Records reports;
    /// Whether the auto flag has been written all the same.
    std::string automatic;
};

void PrintTo(const BadPath& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class DefaultPathTest : public WalkTest, public testing::WithParamInterface<BadPath>
{
};

TEST_P(DefaultPathTest, PathThatNamesNoValue_IsRefusedByDefaultManagementAndStopsTheWalk)
{
    const BadPath& row = GetParam();
    EXPECT_EQ(ApplyItems(R"([ { "path": ")" + std::string(row.path) + R"(", "default": "7", "defaultAutoKey": ")" +
                         row.autoKey + R"(" }, { "path": "iterations", "default": "8" } ])"),
              E_FAIL);
    EXPECT_EQ(Reported(), row.reports);
    EXPECT_EQ(AutoFlagOf(m_solver, row.path), row.automatic);
    EXPECT_EQ(SetFlagOf(m_solver, row.path), "absent");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(ValueOf(At(m_solver, "zone"), "temperature"), "300");
    EXPECT_EQ(RecordsOf(m_solver), Lines{});
    // The record was made first, and stays without anybody who refers to it and without anything written.
    const ORXISpecObject_var record = m_model.Find("ConfigItem");
    ASSERT_FALSE(!record);
    EXPECT_EQ(ValueOf(record, "path"), "(none)");
}

const BadPath badPaths[] = {
    {"Empty", "", "", {FailedCall(SetCustomDefaultCall, Walk)}, "absent"},
    {"EmptyAutomatic", "", "key", {FailedCall("spDefMgmt->SetIsAuto(path, ORXTrue)", Walk)}, "absent"},
    {"Missing",
     "missing",
     "",
     {Assertion("spParm", SetCustomDefault), FailedCall(SetCustomDefaultCall, Walk)},
     "absent"},
    {"MissingAutomatic",
     "missing",
     "key",
     {Assertion("spParm", SetCustomDefault), FailedCall(SetCustomDefaultCall, Walk)},
     "true"},
    {"Nested",
     "zone/temperature",
     "",
     {Assertion("spParm", SetCustomDefault), FailedCall(SetCustomDefaultCall, Walk)},
     "absent"},
    {"NestedAutomatic",
     "zone/temperature",
     "key",
     {Assertion("spParm", SetCustomDefault), FailedCall(SetCustomDefaultCall, Walk)},
     "true"},
    {"List", "monitors", "", {Assertion("spParm", SetCustomDefault), FailedCall(SetCustomDefaultCall, Walk)}, "absent"},
    {"Object", "zone", "", {Assertion("spParm", SetCustomDefault), FailedCall(SetCustomDefaultCall, Walk)}, "absent"},
};

INSTANTIATE_TEST_SUITE_P(Paths, DefaultPathTest, testing::ValuesIn(badPaths),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
