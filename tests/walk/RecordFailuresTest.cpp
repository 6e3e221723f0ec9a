/**
 * @file
 * Records that cannot be made or written.
 */

#include <ostream>

#include "VYRStandaloneInstruments.h"
#include "WalkTest.h"

namespace
{
constexpr const char* CreateCall = "ORXSimBCInitializeServices::CreateBasicComponent(\"VYRCfdConfigItem\", "
                                   "\"ConfigItem\", spCont, spConfigItem)";

constexpr const char* CustomItem = R"({ "path": "iterations", "type": "integer", "default": "7" })";
constexpr const char* AutomaticItem =
    R"({ "path": "iterations", "type": "integer", "default": "7", "defaultAutoKey": "key" })";
constexpr const char* ConditionalItem = R"({ "path": "zone", "condition": "iterations=500", "config": "hot" })";

class RecordFailuresTest : public WalkTest
{
protected:
    /// Applies one item, and behind it one that tells whether the walk went on.
    long ApplyItem(const std::string& iItem)
    {
        Install({Configuration("main", "[ " + iItem + R"(, { "path": "monitors", "value": "lift", "list": true } ])"),
                 Configuration("hot", R"([ { "path": "outputs", "value": "heat", "list": true } ])")});
        return Apply(m_solver, "main");
    }

    bool HasGoneOn() const { return TextsOf(m_solver, "monitors") == Lines{"lift"}; }
};

struct Item
{
    const char* name;
    const char* item;
};

void PrintTo(const Item& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class RecordCreationTest : public RecordFailuresTest, public testing::WithParamInterface<Item>
{
};

TEST_P(RecordCreationTest, FailedCreation_StopsTheWalkWithItsStatusBeforeAnythingElseIsDone)
{
    Plant("CreateBasicComponent", "VYRCfdConfigItem", "", E_NOTIMPL);
    EXPECT_EQ(ApplyItem(GetParam().item), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall(CreateCall, Walk, E_NOTIMPL)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "absent");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "absent");
    EXPECT_EQ(TextsOf(At(m_solver, "zone"), "outputs"), Lines{});
    EXPECT_FALSE(HasGoneOn());
}

TEST_P(RecordCreationTest, CreationOfNothing_EndsTheItemInSilenceBeforeAnythingElseIsDone)
{
    for (const HRESULT status : {S_OK, S_FALSE})
    {
        VYRStandalone::ClearFaults();
        Plant("CreateBasicComponent", "VYRCfdConfigItem", "", status);
        EXPECT_EQ(ApplyItem(GetParam().item), S_OK);
        EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
        EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
        EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "absent");
        EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "absent");
        EXPECT_EQ(TextsOf(At(m_solver, "zone"), "outputs"), Lines{});
        EXPECT_EQ(RecordsOf(m_solver), Lines{});
        EXPECT_TRUE(HasGoneOn());
    }
}

const Item items[] = {{"Custom", CustomItem}, {"Automatic", AutomaticItem}, {"Conditional", ConditionalItem}};

INSTANTIATE_TEST_SUITE_P(Items, RecordCreationTest, testing::ValuesIn(items),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

struct FailedWrite
{
    const char* name;
    const char* item;
    const char* attribute;
    const char* call;
    /// What of the record was written before, in the order of the table of record attributes.
    Lines written;
};

void PrintTo(const FailedWrite& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class RecordWriteTest : public RecordFailuresTest, public testing::WithParamInterface<FailedWrite>
{
};

TEST_P(RecordWriteTest, FailedWrite_StopsTheWalkWithItsStatus)
{
    const FailedWrite& row = GetParam();
    AddRecord(m_model, m_solver, "title", "kept");
    Plant("SetString", row.attribute, "ConfigItem", E_NOTIMPL);
    EXPECT_EQ(ApplyItem(row.item), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall(row.call, Walk, E_NOTIMPL)}));
    EXPECT_FALSE(HasGoneOn());
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"path=title default=kept"}));

    // The record stays in the model, and so does the default that was set before it was written.
    ASSERT_EQ(RecordsIn(m_model), 2);
    const ORXISpecObject_var record = m_model.Objects().back();
    Lines written;
    for (const char* name : {"type", "path", "default", "defaultAutoKey", "condition", "config"})
        if (ValueOf(record, name) != "(none)")
            written.push_back(name);
    EXPECT_EQ(written, row.written);
    const bool isDefault = row.item != ConditionalItem;
    EXPECT_EQ(ValueOf(m_solver, "iterations"), isDefault ? "7" : "500");
    // A nested configuration is applied behind its record only.
    EXPECT_EQ(TextsOf(At(m_solver, "zone"), "outputs"), Lines{});
}

const FailedWrite failedWrites[] = {
    {"CustomType", CustomItem, "type", R"(configItemAccess["type"].SetPlainString(type))", {}},
    {"CustomPath", CustomItem, "path", R"(configItemAccess["path"].SetPlainString(path))", {"type"}},
    {"CustomDefault",
     CustomItem,
     "default",
     R"(configItemAccess["default"].SetPlainString(defaultValue))",
     {"type", "path"}},
    {"AutomaticType", AutomaticItem, "type", R"(configItemAccess["type"].SetPlainString(type))", {}},
    {"AutomaticPath", AutomaticItem, "path", R"(configItemAccess["path"].SetPlainString(path))", {"type"}},
    {"AutomaticDefault",
     AutomaticItem,
     "default",
     R"(configItemAccess["default"].SetPlainString(defaultValue))",
     {"type", "path"}},
    {"AutomaticKey",
     AutomaticItem,
     "defaultAutoKey",
     R"(configItemAccess["defaultAutoKey"].SetPlainString(defaultAutoValue))",
     {"type", "path", "default"}},
    {"ConditionalPath", ConditionalItem, "path", R"(configItemAccess["path"].SetPlainString(path))", {}},
    {"ConditionalCondition",
     ConditionalItem,
     "condition",
     R"(configItemAccess["condition"].SetPlainString(condition))",
     {"path"}},
    {"ConditionalConfig",
     ConditionalItem,
     "config",
     R"(configItemAccess["config"].SetPlainString(config))",
     {"path", "condition"}},
};

INSTANTIATE_TEST_SUITE_P(Writes, RecordWriteTest, testing::ValuesIn(failedWrites),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(RecordFailuresTest, FailedAutoFlag_StopsTheWalkBeforeTheDefault)
{
    ASSERT_EQ(DefaultManagement()->SetIsAuto("iterations", ORXFalse), S_OK);
    Plant("SetBoolean", "iterations_isauto", "", E_NOTIMPL);
    EXPECT_EQ(ApplyItem(AutomaticItem), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spAttr->SetBoolean(spKey, iIsAuto)",
                                              "VYRCfdDefaultManagementAdp::SetIsAuto", E_NOTIMPL),
                                   FailedCall("spDefMgmt->SetIsAuto(path, ORXTrue)", Walk, E_NOTIMPL)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_FALSE(HasGoneOn());
}
} // namespace
