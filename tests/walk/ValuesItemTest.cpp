/**
 * @file
 * Items that fill a list attribute.
 */

#include <ostream>

#include "VYRStandaloneInstruments.h"
#include "WalkTest.h"

namespace
{
class ValuesItemTest : public WalkTest
{
};

struct Splitting
{
    const char* name;
    const char* value;
    Lines entries;
};

void PrintTo(const Splitting& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ValuesTextTest : public WalkTest, public testing::WithParamInterface<Splitting>
{
};

TEST_P(ValuesTextTest, Value_IsSplitAtCommas)
{
    EXPECT_EQ(
        ApplyItems(R"([ { "path": "monitors", "list": true, "value": ")" + std::string(GetParam().value) + R"(" } ])"),
        S_OK);
    EXPECT_EQ(TextsOf(m_solver, "monitors"), GetParam().entries);
}

const Splitting splittings[] = {
    {"One", "lift", {"lift"}},
    {"BlanksAlsoInside", " lift , mass flow", {"lift", "massflow"}},
    {"EmptyEntries", "lift,,drag,", {"lift", "", "drag", ""}},
    {"OtherDelimiters", "lift;drag", {"lift;drag"}},
    {"OneBlank", " ", {""}},
};

INSTANTIATE_TEST_SUITE_P(Texts, ValuesTextTest, testing::ValuesIn(splittings),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ValuesItemTest, Apply_Twice_OverwritesTheListAndRecordsNothing)
{
    const std::string items = R"([ { "path": "monitors", "value": "lift,drag", "list": true } ])";
    EXPECT_EQ(ApplyItems(items), S_OK);
    EXPECT_EQ(ApplyItems(items), S_OK);
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"lift", "drag"}));
    EXPECT_EQ(RecordsIn(m_model), 0);
}

TEST_F(ValuesItemTest, Apply_WritesAsAUserDoes_AndSoMarksTheAttributeAsSet)
{
    ApplyItems(R"([ { "path": "monitors", "value": "lift", "list": true } ])");
    EXPECT_EQ(SetFlagOf(m_solver, "monitors"), "true");
}

TEST_F(ValuesItemTest, Apply_TwoItemsForOneAttribute_TheLastStands)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": "monitors", "value": "lift", "list": true },
                              { "path": "monitors", "value": "drag", "list": true } ])"),
              S_OK);
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"drag"}));
}

constexpr const char* SetStringsCall = "specAccess[path].SetStrings(valuesList)";
constexpr const char* SetStrings = "VYRCfdObjectAccess::SetStrings";

struct BadPath
{
    const char* name;
    const char* path;
    Record cause;
};

void PrintTo(const BadPath& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ValuesPathTest : public WalkTest, public testing::WithParamInterface<BadPath>
{
};

TEST_P(ValuesPathTest, PathThatIsNoListOfStrings_StopsTheWalk)
{
    EXPECT_EQ(ApplyItems(R"([ { "path": ")" + std::string(GetParam().path) +
                         R"(", "value": "lift", "list": true }, { "path": "iterations", "default": "7" } ])"),
              E_FAIL);
    EXPECT_EQ(Reported(), (Records{GetParam().cause, FailedCall(SetStringsCall, Walk)}));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
}

const BadPath badPaths[] = {
    {"Missing", "monitor", Error("No attribute monitor", SetStrings)},
    // Here a path is one name: "zone" is there and has "outputs".
    {"Nested", "zone/outputs", Error("No attribute zone/outputs", SetStrings)},
    {"Empty", "", Error("No attribute ", SetStrings)},
    {"Scalar", "iterations", Assertion("_spKey->GetType() == tk_list", SetStrings)},
    {"ListOfObjects", "zones", Assertion("_spKey->GetListType() == tk_string", SetStrings)},
    {"Object", "zone", Assertion("_spKey", SetStrings)},
};

INSTANTIATE_TEST_SUITE_P(Paths, ValuesPathTest, testing::ValuesIn(badPaths),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ValuesItemTest, Apply_WhoseThirdOfFiveItemsFails_KeepsTheFirstTwoAndWritesNoRecords)
{
    AddRecord(m_model, m_solver, "title", "kept");
    EXPECT_EQ(ApplyItems(R"([ { "path": "monitors", "value": "lift", "list": true },
                              { "path": "relaxation", "default": "0.5" },
                              { "path": "missing", "value": "x", "list": true },
                              { "path": "iterations", "default": "7" },
                              { "path": "title", "default": "new" } ])"),
              E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("No attribute missing", SetStrings), FailedCall(SetStringsCall, Walk)}));
    EXPECT_EQ(TextsOf(m_solver, "monitors"), (Lines{"lift"}));
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.5");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(ValueOf(m_solver, "title"), "flow");
    EXPECT_EQ(RecordsOf(m_solver), (Lines{"path=title default=kept"}));
    // The second item's record stays in the model, without anybody who refers to it.
    EXPECT_EQ(RecordsIn(m_model), 2);
}

TEST_F(ValuesItemTest, Apply_OfValuesItemsOnly_EmptiesTheRecords)
{
    AddRecord(m_model, m_solver, "title", "old");
    EXPECT_EQ(ApplyItems(R"([ { "path": "monitors", "value": "lift", "list": true } ])"), S_OK);
    EXPECT_EQ(RecordsOf(m_solver), Lines{});
    EXPECT_EQ(RecordsIn(m_model), 1);
}
} // namespace
