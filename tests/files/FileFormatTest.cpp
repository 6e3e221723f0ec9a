/**
 * @file
 * The format of configuration files: what is read from them, and what is let pass.
 */

#include "FilesFixture.h"

namespace
{
class FileFormatTest : public FilesFixture
{
protected:
    VYRCfdConfigurationMap MapOfText(const std::string& iText) const
    {
        Write("a.json", iText);
        Configurator configurator({"a.json"});
        return MapOf(configurator);
    }
};

TEST_F(FileFormatTest, AnItem_KeepsAllItsKeys)
{
    const VYRCfdConfigurationMap map = MapOfText(R"({ "configurations": [ { "name": "flow", "config": [
        { "path": "a/b", "type": "real", "default": "0.7", "defaultAutoKey": "auto", "display": "D", "value": "x, y",
          "list": true, "config": "other", "condition": "c==1", "choices": "p,q", "Startups": "T,U" } ] } ] })");
    ASSERT_EQ(NamesIn(map), (Names{"flow"}));
    ASSERT_EQ(map.at("flow").size(), 1U);
    const JSON::JIStream& item = map.at("flow").front();
    const std::pair<const char*, const char*> texts[] = {
        {"path", "a/b"},   {"type", "real"},    {"default", "0.7"},    {"defaultAutoKey", "auto"}, {"display", "D"},
        {"value", "x, y"}, {"config", "other"}, {"condition", "c==1"}, {"choices", "p,q"},         {"Startups", "T,U"},
    };
    for (const auto& [key, text] : texts)
        EXPECT_STREQ(item.ReadString(key), text) << key;
    EXPECT_TRUE(item.ReadBoolean("list"));
    EXPECT_TRUE(item.Exist("choices"));
    EXPECT_FALSE(item.Exist("startups")) << "the letter is a capital";
}

TEST_F(FileFormatTest, Items_KeepTheirOrder)
{
    const VYRCfdConfigurationMap map = MapOfText(R"({ "configurations": [ { "name": "flow", "config": [
        { "path": "c" }, { "path": "a" }, {}, { "path": "b" }, { "path": "a" } ] } ] })");
    EXPECT_EQ(PathsIn(map, "flow"), (Names{"c", "a", "", "b", "a"}));
}

TEST_F(FileFormatTest, Items_AreNotLookedAtBeforeTheyAreApplied)
{
    const VYRCfdConfigurationMap map = MapOfText(R"({ "configurations": [ { "name": "flow", "config": [
        { "path": 5, "nonsense": [ null ] }, { "condition": "no comparison", "config": "unknown" } ] } ] })");
    EXPECT_EQ(PathsIn(map, "flow").size(), 2U);
}

struct TextCase
{
    const char* what;
    const char* text;
    Names names;
};

TEST_F(FileFormatTest, WhatMayBeLeftOut)
{
    const TextCase cases[] = {
        {"no configurations key", "{}", {}},
        {"another key", R"({ "Configurations": [ { "name": "flow" } ] })", {}},
        {"configurations of another kind", R"({ "configurations": "flow" })", {}},
        {"configurations null", R"({ "configurations": null })", {}},
        {"no configurations", R"({ "configurations": [] })", {}},
        {"no name", R"({ "configurations": [ { "config": [ { "path": "a" } ] } ] })", {""}},
        {"a name of another kind", R"({ "configurations": [ { "name": 5 } ] })", {""}},
        {"an empty name", R"({ "configurations": [ { "name": "" } ] })", {""}},
        {"further keys", R"({ "version": 1, "configurations": [ { "name": "flow", "comment": "x" } ] })", {"flow"}},
    };
    for (const TextCase& row : cases)
        EXPECT_EQ(NamesIn(MapOfText(row.text)), row.names) << row.what;
}

TEST_F(FileFormatTest, AConfigurationWithoutItems_IsThere_AndAsksNothingOfTheObject)
{
    for (const char* text : {R"({ "configurations": [ { "name": "flow" } ] })",
                             R"({ "configurations": [ { "name": "flow", "config": [] } ] })",
                             R"({ "configurations": [ { "name": "flow", "config": "other" } ] })"})
    {
        Write("a.json", text);
        Configurator configurator({"a.json"});
        EXPECT_EQ(PathsIn(MapOf(configurator), "flow"), Names{}) << text;
        EXPECT_EQ(configurator.ApplyConfiguration(ORXBaseUnknown_var(), "flow"), S_FALSE) << text;
    }
}

TEST_F(FileFormatTest, Names_AreExact)
{
    const VYRCfdConfigurationMap map = MapOfText(R"({ "configurations": [
        { "name": "flow", "config": [ { "path": "1" } ] }, { "name": "Flow", "config": [ { "path": "2" } ] },
        { "name": "flow ", "config": [ { "path": "3" } ] }, { "name": "fl", "config": [ { "path": "4" } ] },
        { "name": "\u00e4", "config": [ { "path": "5" } ] }, { "name": "\u00c4", "config": [ { "path": "6" } ] },
        { "name": "a name that is longer than 23 bytes", "config": [ { "path": "7" } ] } ] })");
    EXPECT_EQ(map.size(), 7U);
    EXPECT_EQ(PathsIn(map, "flow"), (Names{"1"}));
    EXPECT_EQ(PathsIn(map, "Flow"), (Names{"2"}));
    EXPECT_EQ(PathsIn(map, "flow "), (Names{"3"}));
    EXPECT_EQ(PathsIn(map, "fl"), (Names{"4"}));
    EXPECT_EQ(PathsIn(map, "\xC3\xA4"), (Names{"5"}));
    EXPECT_EQ(PathsIn(map, "\xC3\x84"), (Names{"6"}));
    EXPECT_EQ(PathsIn(map, "a name that is longer than 23 bytes"), (Names{"7"}));
    EXPECT_EQ(PathsIn(map, "flo"), (Names{"(unknown)"}));
}

TEST_F(FileFormatTest, ANameTwiceInOneFile_TheFirstStands)
{
    const VYRCfdConfigurationMap map = MapOfText(R"({ "configurations": [
        { "name": "flow", "config": [ { "path": "first" } ] },
        { "name": "flow", "config": [ { "path": "second" }, { "path": "third" } ] },
        { "name": "none" },
        { "name": "none", "config": [ { "path": "late" } ] } ] })");
    EXPECT_EQ(NamesIn(map), (Names{"flow", "none"}));
    EXPECT_EQ(PathsIn(map, "flow"), (Names{"first"}));
    EXPECT_EQ(PathsIn(map, "none"), Names{}) << "also one without items is a definition";
}
} // namespace
