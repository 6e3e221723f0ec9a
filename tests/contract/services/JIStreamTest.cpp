/**
 * @file
 * The reader of JSON objects.
 */

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "JIStream.h"
#include "TemporaryFolder.h"

namespace
{
using JSON::JIStream;

/// A stream over a file that holds the text.
JIStream Parsed(const std::string& iText)
{
    const TemporaryFolder folder;
    JIStream stream;
    EXPECT_TRUE(stream.ParseFile(folder.Write("file.json", iText).c_str(), true)) << iText;
    return stream;
}

struct ValidityCase
{
    const char* what;
    std::string text;
    bool isValid;
};

class JsonTexts : public testing::TestWithParam<ValidityCase>
{
};

TEST_P(JsonTexts, ParseFile_TakesStrictJsonOnly)
{
    const TemporaryFolder folder;
    const std::string file = folder.Write("file.json", GetParam().text);
    JIStream stream;
    EXPECT_EQ(stream.ParseFile(file.c_str(), true), GetParam().isValid);
    EXPECT_EQ(folder.Read("file.json"), GetParam().text);
}

std::string Nested(int iDepth)
{
    const auto depth = static_cast<std::size_t>(iDepth);
    return "{\"a\": " + std::string(depth, '[') + std::string(depth, ']') + "}";
}

INSTANTIATE_TEST_SUITE_P(
    JIStream, JsonTexts,
    testing::Values(
        ValidityCase{"EmptyObject", "{}", true}, ValidityCase{"WhiteSpaceAround", " \t\r\n{ } \n", true},
        ValidityCase{"AllKinds", R"({"a": [1, -2.5e3, true, false, null, "x", {}]})", true},
        ValidityCase{"Escapes", R"({"a": "\"\\\/\b\f\n\r\t\u00e4\ud83c\udf0a"})", true},
        ValidityCase{"RawUtf8", "{\"\xC3\xA4\": \"\xF0\x9F\x8C\x8A\"}", true},
        ValidityCase{"DoubledKey", R"({"a": 1, "a": 2})", true}, ValidityCase{"NestedDeep", Nested(512), true},
        ValidityCase{"NestedVeryDeep", Nested(100000), false}, ValidityCase{"Nothing", "", false},
        ValidityCase{"OnlyBlanks", "  \n", false}, ValidityCase{"AnArray", "[]", false},
        ValidityCase{"AText", "\"a\"", false}, ValidityCase{"Truncated", R"({"a": [1, 2)", false},
        ValidityCase{"TrailingText", "{} {}", false}, ValidityCase{"TrailingZero", std::string("{}\0", 3), false},
        ValidityCase{"ZeroInText", std::string("{\"a\": \"b\0c\"}", 12), false},
        ValidityCase{"TrailingComma", R"({"a": 1,})", false}, ValidityCase{"LineComment", "{} // no", false},
        ValidityCase{"BlockComment", "/* no */ {}", false}, ValidityCase{"SingleQuotes", "{'a': 1}", false},
        ValidityCase{"BareKey", "{a: 1}", false}, ValidityCase{"LeadingZero", R"({"a": 01})", false},
        ValidityCase{"NoFraction", R"({"a": 1.})", false}, ValidityCase{"PlusSign", R"({"a": +1})", false},
        ValidityCase{"NotANumber", R"({"a": NaN})", false}, ValidityCase{"TooBig", R"({"a": 1e400})", false},
        ValidityCase{"LineEndInText", "{\"a\": \"b\nc\"}", false},
        ValidityCase{"UnknownEscape", R"({"a": "\x"})", false},
        ValidityCase{"HighSurrogateAlone", R"({"a": "\ud83c"})", false},
        ValidityCase{"LowSurrogateAlone", R"({"a": "\udf0a"})", false},
        ValidityCase{"NoUtf8", "{\"a\": \"\xE4\"}", false}, ValidityCase{"NoUtf8InKey", "{\"\xC3\": 1}", false},
        ValidityCase{"OverlongUtf8", "{\"a\": \"\xC0\xAF\"}", false},
        ValidityCase{"EncodedSurrogate", "{\"a\": \"\xED\xA0\x80\"}", false},
        ValidityCase{"ByteOrderMark", "\xEF\xBB\xBF{}", false},
        ValidityCase{"DeepAndTruncated", "{\"a\": " + std::string(100000, '['), false}),
    [](const testing::TestParamInfo<ValidityCase>& iInfo) { return std::string(iInfo.param.what); });

TEST(JIStream, ParseFile_OfWhatIsNoReadableFile_IsFalse)
{
    const TemporaryFolder folder;
    JIStream stream;
    EXPECT_FALSE(stream.ParseFile(nullptr, true));
    EXPECT_FALSE(stream.ParseFile("", true));
    EXPECT_FALSE(stream.ParseFile(folder.Path("missing.json").c_str(), true));
    EXPECT_FALSE(stream.ParseFile(folder.Path().c_str(), true)) << "a folder";
}

TEST(JIStream, ParseFile_ReadsTheWholeFile)
{
    std::string text = "{\"items\": [";
    for (int i = 0; i < 50000; ++i)
        text += "{\"name\": \"item " + std::to_string(i) + "\"},";
    text += "{\"name\": \"last\"}]}";
    const std::vector<JIStream> items = Parsed(text).ReadObjects("items");
    ASSERT_EQ(items.size(), 50001U);
    EXPECT_STREQ(items[49999].ReadString("name"), "item 49999");
    EXPECT_STREQ(items[50000].ReadString("name"), "last");
}

TEST(JIStream, ParseFile_ThatFails_DropsOrKeepsWhatWasThere)
{
    JIStream stream = Parsed(R"({"a": "text"})");
    EXPECT_FALSE(stream.ParseFile("/nowhere/at/all", false));
    EXPECT_STREQ(stream.ReadString("a"), "text");
    EXPECT_FALSE(stream.ParseFile("/nowhere/at/all", true));
    EXPECT_FALSE(stream.Exist("a"));
}

TEST(JIStream, DefaultMade_ReadsAsAnEmptyObject)
{
    const JIStream stream;
    EXPECT_FALSE(stream.Exist("a"));
    EXPECT_TRUE(stream.ReadString("a").IsEmpty());
    EXPECT_FALSE(stream.ReadBoolean("a"));
    EXPECT_TRUE(stream.ReadObjects("a").empty());
}

struct ReadCase
{
    const char* key;
    const char* text;
    bool boolean;
    std::size_t objects;
    bool exists;
};

TEST(JIStream, Reads_OfTheWrongKindOrOfNothing_GiveNothing)
{
    const JIStream stream = Parsed(R"({"text": "value", "empty": "", "yes": true, "no": false, "number": 1, "zero": 0,
                                       "null": null, "object": {"text": "inner"}, "array": [{}, {}], "none": [],
                                       "": "no name"})");
    const ReadCase cases[] = {
        {"text", "value", false, 0, true}, {"empty", "", false, 0, true},   {"yes", "", true, 0, true},
        {"no", "", false, 0, true},        {"number", "", false, 0, true},  {"zero", "", false, 0, true},
        {"null", "", false, 0, true},      {"object", "", false, 0, true},  {"array", "", false, 2, true},
        {"none", "", false, 0, true},      {"", "no name", false, 0, true}, {"missing", "", false, 0, false},
        {"Text", "", false, 0, false},     {"tex", "", false, 0, false},
    };
    for (const ReadCase& row : cases)
    {
        const ORXUnicodeString key(row.key);
        EXPECT_STREQ(stream.ReadString(row.key), row.text) << row.key;
        EXPECT_STREQ(stream.ReadString(key), row.text) << row.key;
        EXPECT_EQ(stream.ReadBoolean(key), row.boolean) << row.key;
        EXPECT_EQ(stream.ReadObjects(row.key).size(), row.objects) << row.key;
        EXPECT_EQ(stream.Exist(key), row.exists) << row.key;
    }
}

TEST(JIStream, OfADoubledKey_TheFirstCounts)
{
    const JIStream stream = Parsed(R"({"a": "first", "b": true, "c": [{}], "a": "second", "b": false, "c": []})");
    EXPECT_STREQ(stream.ReadString("a"), "first");
    EXPECT_TRUE(stream.ReadBoolean("b"));
    EXPECT_EQ(stream.ReadObjects("c").size(), 1U);
}

TEST(JIStream, ReadObjects_KeepsPlacesOfElementsThatAreNoObjects)
{
    const std::vector<JIStream> elements =
        Parsed(R"({"a": [{"n": "1"}, 5, "text", null, [], {"n": "2"}]})").ReadObjects("a");
    ASSERT_EQ(elements.size(), 6U);
    EXPECT_STREQ(elements[0].ReadString("n"), "1");
    for (std::size_t i = 1; i <= 4; ++i)
        EXPECT_FALSE(elements[i].Exist("n")) << i;
    EXPECT_STREQ(elements[5].ReadString("n"), "2");
}

TEST(JIStream, Objects_OutliveTheStreamTheyCameFrom)
{
    std::vector<JIStream> kept;
    {
        const JIStream outer = Parsed(R"({"outer": [{"inner": [{"name": "kept"}]}]})");
        kept = outer.ReadObjects("outer").front().ReadObjects("inner");
    }
    const JIStream copy = kept.front();
    kept.clear();
    EXPECT_STREQ(copy.ReadString("name"), "kept");
}

TEST(JIStream, Texts_HoldWhatTheEscapesSay)
{
    const JIStream stream = Parsed(R"({"wave": "\ud83c\udf0a", "zero": "a\u0000b", "umlaut": "\u00e4"})");
    EXPECT_STREQ(stream.ReadString("wave"), "\xF0\x9F\x8C\x8A");
    EXPECT_EQ(stream.ReadString("wave").GetLengthInChar(), 1);
    EXPECT_EQ(stream.ReadString("zero").View(), std::string_view("a\0b", 3));
    EXPECT_STREQ(stream.ReadString("umlaut"), "\xC3\xA4");
}
} // namespace
