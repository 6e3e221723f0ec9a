/**
 * @file
 * Which of its keys decide what an item does. One item never does two things.
 */

#include <ostream>

#include "WalkTest.h"

namespace
{
struct Dispatch
{
    const char* name;
    const char* item;
    Lines monitors;
    std::string iterations;
    std::string automatic;
    /// The zone's temperature tells whether the nested configuration was applied.
    std::string temperature;
    Lines records;
};

void PrintTo(const Dispatch& iRow, std::ostream* ioStream)
{
    *ioStream << iRow.name;
}

class DispatchTest : public WalkTest, public testing::WithParamInterface<Dispatch>
{
};

TEST_P(DispatchTest, Item_DoesTheOneThingOfItsFirstFittingRow)
{
    const Dispatch& row = GetParam();
    Install({Configuration("main", "[ " + std::string(row.item) + " ]"),
             Configuration("hot", R"([ { "path": "temperature", "default": "900" } ])")});
    EXPECT_EQ(Apply(m_solver, "main"), S_OK);
    EXPECT_EQ(TextsOf(m_solver, "monitors"), row.monitors);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), row.iterations);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), row.automatic);
    EXPECT_EQ(ValueOf(At(m_solver, "zone"), "temperature"), row.temperature);
    EXPECT_EQ(RecordsOf(m_solver), row.records);
}

const Lines mass{"mass"};

const Dispatch rows[] = {
    {"ValueAndList_FillsTheList",
     R"({ "path": "monitors", "value": "lift,drag", "list": true })",
     {"lift", "drag"},
     "500",
     "absent",
     "300",
     {}},
    {"ValueAndListWithEverythingElse_OnlyFillsTheList",
     R"({ "path": "monitors", "type": "string", "value": "lift", "list": true, "default": "7", "defaultAutoKey": "key",
          "config": "hot", "condition": "iterations=500" })",
     {"lift"},
     "500",
     "absent",
     "300",
     {}},
    {"ValueWithoutList_IsSkippedWhateverElseItHolds",
     R"({ "path": "iterations", "value": "9", "default": "7", "defaultAutoKey": "key", "config": "hot" })",
     mass,
     "500",
     "absent",
     "300",
     {}},
    {"ValueWithFalseList_IsSkipped",
     R"({ "path": "iterations", "value": "9", "list": false, "default": "7" })",
     mass,
     "500",
     "absent",
     "300",
     {}},
    {"ValueWithListAsText_IsSkipped",
     R"({ "path": "monitors", "value": "lift", "list": "true" })",
     mass,
     "500",
     "absent",
     "300",
     {}},
    {"EmptyValueWithList_GoesOnToTheDefault",
     R"({ "path": "iterations", "value": "", "list": true, "default": "7" })",
     mass,
     "7",
     "absent",
     "300",
     {"type= path=iterations default=7"}},
    {"ValueThatIsNoText_GoesOnToTheDefault",
     R"({ "path": "iterations", "value": 9, "list": true, "default": "7" })",
     mass,
     "7",
     "absent",
     "300",
     {"type= path=iterations default=7"}},
    {"AutoKeyAndDefault_IsAutomatic",
     R"({ "path": "iterations", "type": "integer", "default": "7", "defaultAutoKey": "key", "config": "hot" })",
     mass,
     "7",
     "true",
     "300",
     {"type=integer path=iterations default=7 defaultAutoKey=key"}},
    {"Default_IsACustomDefault",
     R"({ "path": "iterations", "type": "integer", "default": "7", "config": "hot" })",
     mass,
     "7",
     "absent",
     "300",
     {"type=integer path=iterations default=7"}},
    {"AutoKeyWithoutDefault_IsSkipped",
     R"({ "path": "iterations", "type": "integer", "defaultAutoKey": "key" })",
     mass,
     "500",
     "absent",
     "300",
     {}},
    {"AutoKeyAndConfigWithoutDefault_IsNested",
     R"({ "path": "zone", "defaultAutoKey": "key", "config": "hot" })",
     mass,
     "500",
     "absent",
     "900",
     {}},
    {"AutoKeyConfigAndCondition_IsConditional",
     R"({ "path": "zone", "defaultAutoKey": "key", "config": "hot", "condition": "iterations=500" })",
     mass,
     "500",
     "absent",
     "900",
     {"path=zone condition=iterations=500 config=hot"}},
    {"EmptyAutoKeyAndDefault_IsACustomDefault",
     R"({ "path": "iterations", "type": "integer", "default": "7", "defaultAutoKey": "" })",
     mass,
     "7",
     "absent",
     "300",
     {"type=integer path=iterations default=7"}},
    {"ConditionWithoutConfig_IsSkipped",
     R"({ "path": "zone", "condition": "iterations=500" })",
     mass,
     "500",
     "absent",
     "300",
     {}},
    {"Nothing_IsSkipped", R"({})", mass, "500", "absent", "300", {}},
    {"MisspeltKey_ReadsAsEmpty", R"({ "path": "iterations", "Default": "7" })", mass, "500", "absent", "300", {}},
    {"DefaultThatIsNoText_ReadsAsEmpty", R"({ "path": "iterations", "default": 7 })", mass, "500", "absent", "300", {}},
    {"Config_IsNested", R"({ "path": "zone", "config": "hot" })", mass, "500", "absent", "900", {}},
    {"ConfigWithEmptyCondition_IsNested",
     R"({ "path": "zone", "config": "hot", "condition": "" })",
     mass,
     "500",
     "absent",
     "900",
     {}},
    {"ConfigAndCondition_IsConditional",
     R"({ "path": "zone", "type": "string", "config": "hot", "condition": "iterations=500" })",
     mass,
     "500",
     "absent",
     "900",
     {"path=zone condition=iterations=500 config=hot"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, DispatchTest, testing::ValuesIn(rows),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

struct ChoiceItem
{
    const char* name;
    const char* item;
};

void PrintTo(const ChoiceItem& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ChoiceDispatchTest : public WalkTest, public testing::WithParamInterface<ChoiceItem>
{
};

/// The solver is no Choice, so that the failure shows which road the item took.
TEST_P(ChoiceDispatchTest, ItemWithChoices_IsAChoiceItemWhateverElseItHolds)
{
    AddRecord(m_model, m_solver, "title", "kept");
    EXPECT_EQ(ApplyItems(R"([ { "path": "relaxation", "type": "real", "default": "0.5" }, )" +
                         std::string(GetParam().item) + R"(, { "path": "iterations", "default": "7" } ])"),
              E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spChoice", Walk)}));
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.5");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"mass"}));
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"path=title default=kept"}));
}

const ChoiceItem choiceItems[] = {
    // The path is not followed, also where it leads to a Choice.
    {"WithPathAndDefault", R"({ "path": "choice", "choices": "a,b", "default": "a" })"},
    {"WithoutPathAndDefault", R"({ "choices": "a,b" })"},
    {"WithValueAndList", R"({ "path": "monitors", "choices": "", "value": "lift", "list": true })"},
    {"WithAutoKeyAndConfig",
     R"({ "path": "iterations", "choices": "a", "default": "9", "defaultAutoKey": "key", "config": "main" })"},
    {"WithChoicesOfAnotherKind", R"({ "path": "iterations", "choices": null, "default": "100%d" })"},
};

INSTANTIATE_TEST_SUITE_P(Rows, ChoiceDispatchTest, testing::ValuesIn(choiceItems),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
