/**
 * @file
 * vyrcfd purge.
 */

#include "SmallTest.h"

namespace
{
TEST_F(SmallTest, Purge_WithoutYes_ListsAndWritesNothing)
{
    const auto before = Files();
    const ToolRun run = Run({"purge", Small});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "- 5. author: default \"nobody refers to this\"\n"
                          "small.model.json: nothing refers to 1 of 3 records; --yes removes it.\n");
    EXPECT_EQ(Files(), before);
}

TEST_F(SmallTest, Purge_WithYes_CutsTheRecord_AndNoOtherByte)
{
    const std::string record = R"(    {
      "type": "VYRCfdConfigItem",
      "name": "ConfigItem",
      "values": { "path": "author", "default": "nobody refers to this" }
    },
)";
    std::string expected = Read(Small);
    ASSERT_NE(expected.find(record), std::string::npos);
    expected.erase(expected.find(record), record.size());
    auto files = Files();
    files[Small] = expected;
    const ToolRun run = Run({"purge", Small, "--yes"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output.substr(run.output.find('\n') + 1), "small.model.json: nothing refers to 1 of 3 records; "
                                                            "removed; saved to small.model.json.\n");
    EXPECT_EQ(Files(), files);
}

TEST_F(SmallTest, Purge_ToAnotherFile_LeavesTheModelAlone)
{
    auto files = Files();
    ASSERT_EQ(Outcome(Run({"purge", Small, "--yes", "-o", "purged.model.json"})), Outcome(0, ""));
    files["purged.model.json"] = Read("purged.model.json");
    EXPECT_EQ(Files(), files);
    EXPECT_EQ(Run({"purge", "purged.model.json"}).output, "purged.model.json: 2 records, still referred to.\n");
}

TEST_F(SmallTest, Purge_OfAModelWithNothingToRemove_WritesOnlyACopyThatWasAskedFor)
{
    const auto before = Files();
    EXPECT_EQ(Run({"purge", Flow, "--yes"}).output, "flow.model.json: no records.\n");
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(Outcome(Run({"purge", Flow, "--yes", "-o", "copy.model.json"})), Outcome(0, ""));
    EXPECT_EQ(Read("copy.model.json"), Read(Flow));
}

TEST_F(SmallTest, Purge_TakesAwayWhatASecondApplicationLeaves_AndTheModelShowsTheSame)
{
    const std::string model = "twice.model.json";
    ASSERT_EQ(Run({"apply", Flow, "Flow 3", "turbulent", "-o", model}).status, 0);
    ASSERT_EQ(Run({"apply", model, "Flow 3", "turbulent", "-o", model}).status, 0);
    const std::string before = Run({"show", model, "Flow 3", "--json"}).output;
    EXPECT_EQ(Run({"purge", model, "--yes"}).output.substr(0, 2), "- ");
    EXPECT_EQ(Run({"show", model, "Flow 3", "--json"}).output, before);
    EXPECT_EQ(Run({"purge", model}).output.find("nothing refers"), std::string::npos);
    EXPECT_EQ(Run({"apply", model, "Flow 3", "turbulent"}).status, 0);
}

struct Referrer
{
    const char* name;
    /// Of the model, with the record under the id 1.
    std::string objects;
    const char* answer;
};

void PrintTo(const Referrer& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Referrers : public ToolTest, public testing::WithParamInterface<Referrer>
{
protected:
    static constexpr char Catalog[] = R"({"catalog": "Keeping", "uses": ["VYRCfdBase"], "types": [
        {"name": "Keeper", "base": "VYRCfdValues", "attributes": [
            {"name": "one", "kind": "reference"}, {"name": "some", "kind": "list", "of": "reference"},
            {"name": "part", "kind": "component"}, {"name": "parts", "kind": "list", "of": "component"}]},
        {"name": "LongRecord", "base": "VYRCfdConfigItem", "attributes": [
            {"name": "more", "kind": "reference"}, {"name": "part", "kind": "component"}]}]})";
};

TEST_P(Referrers, KeepTheRecord)
{
    Write("Keeping.catalog.json", Catalog);
    Write("keeping.model.json", R"({"model": 1, "catalogs": ["Keeping"], "objects": [)" + GetParam().objects + "]}");
    const ToolRun run = Run({"purge", "keeping.model.json"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output.substr(run.output.rfind('\n', run.output.size() - 2) + 1),
              std::string("keeping.model.json: ") + GetParam().answer + "\n");
}

const std::string Record = R"({"type": "VYRCfdConfigItem", "name": "ConfigItem", "id": 1})";
constexpr char Kept[] = "1 record, still referred to.";
const Referrer ReferrerCases[] = {
    {"Nobody", Record, "nothing refers to 1 of 1 record; --yes removes it."},
    {"AReference", Record + R"(, {"type": "Keeper", "name": "K", "values": {"one": {"ref": 1}}})", Kept},
    {"AnEntryOfAList", Record + R"(, {"type": "Keeper", "name": "K", "values": {"some": [null, {"ref": 1}]}})", Kept},
    {"AListOfRecords",
     Record + R"(, {"type": "Keeper", "name": "K", "values": {"defaultManagement": {"values": )"
              R"({"configuration": [{"ref": 1}]}}}})",
     Kept},
    {"APartOfAPart",
     Record + R"(, {"type": "Keeper", "name": "K", "values": {"parts": [{"type": "Keeper", "name": "L", "values": )"
              R"({"part": {"type": "Keeper", "values": {"one": {"ref": 1}}}}}]}})",
     Kept},
    {"AnotherRecord", Record + R"(, {"type": "LongRecord", "name": "L", "values": {"more": {"ref": 1}}})",
     "nothing refers to 1 of 2 records; --yes removes it."},
    {"SomethingThatRefersToAPartOfIt",
     R"({"type": "LongRecord", "name": "L", "values": {"part": {"type": "Keeper", "id": 1}}}, )"
     R"({"type": "Keeper", "name": "K", "values": {"one": {"ref": 1}}})",
     Kept},
    {"OnlyItself", R"({"type": "LongRecord", "name": "L", "id": 1, "values": {"more": {"ref": 1}}})",
     "nothing refers to 1 of 1 record; --yes removes it."},
};
INSTANTIATE_TEST_SUITE_P(Purge, Referrers, testing::ValuesIn(ReferrerCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

struct Cut
{
    const char* name;
    std::string before;
    std::string after;
};

void PrintTo(const Cut& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Cuts : public ToolTest, public testing::WithParamInterface<Cut>
{
protected:
    static std::string Model(const std::string& iObjects)
    {
        return R"({ "objects": [)" + iObjects + R"(],  "model": 1, "catalogs": [] })";
    }
};

TEST_P(Cuts, LeaveTheRestAsItWas)
{
    Write("cut.model.json", Model(GetParam().before));
    ASSERT_EQ(Outcome(Run({"purge", "cut.model.json", "--yes"})), Outcome(0, ""));
    EXPECT_EQ(Read("cut.model.json"), Model(GetParam().after));
}

const std::string Gone = R"({"type": "VYRCfdConfigItem", "name": "ConfigItem", "values": {"path": "]},{[ \""}})";
const std::string Stays = R"({"name": "V", "type": "VYRCfdValues"})";
const Cut CutCases[] = {
    {"First", " " + Gone + " ,\n  " + Stays + "\t", " " + Stays + "\t"},
    {"Last", " " + Stays + ",\n  " + Gone + "\t", " " + Stays + "\t"},
    {"Between", Stays + " , " + Gone + ",\n" + Stays, Stays + ",\n" + Stays},
    {"InARow", Stays + "," + Gone + ",  " + Gone + ",   " + Stays, Stays + ",   " + Stays},
    {"All", " " + Gone + ", " + Gone + " ", ""},
};
INSTANTIATE_TEST_SUITE_P(Purge, Cuts, testing::ValuesIn(CutCases), [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(SmallTest, Purge_OntoFullDisk_LeavesTheOldFileAndNothingBesides)
{
    ToolSettings settings{m_folder.Path()};
    settings.longestFile = 1024;
    const auto before = Files();
    const ToolRun run = Run({"purge", Small, "--yes"}, settings);
    EXPECT_EQ(Outcome(run), Outcome(1, "small.model.json: cannot be written: File too large\n"));
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(Files(), before);
}

TEST_F(SmallTest, Purge_ToAFileWithoutYes_IsWrongUse)
{
    EXPECT_EQ(Outcome(Run({"purge", Small, "-o", "x"})),
              Outcome(2, "vyrcfd: --output requires --yes; see vyrcfd purge --help\n"));
}
} // namespace
