/**
 * @file
 * Model documents that are refused: what is said, and where.
 */

#include <string>

#include <gtest/gtest.h>

#include "TestCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

std::string ErrorOf(const std::string& iModel)
{
    try
    {
        Model::Parse(iModel, "m.json");
    }
    catch (const DocumentError& error)
    {
        return error.what();
    }
    return {};
}

struct ErrorCase
{
    const char* what;
    std::string model;
    std::string error;
};

std::string Repeated(const std::string& iText, int iCount)
{
    std::string text;
    for (int i = 0; i < iCount; ++i)
        text += iText;
    return text;
}

/// Components inside each other, the top-level object counting as none.
std::string Nested(int iDepth)
{
    return TestCatalog::Model(R"({"type": "Part", "name": "P", "values": {"inside": )" +
                              Repeated(R"({"type": "Part", "values": {"inside": )", iDepth) + "null" +
                              Repeated("}}", iDepth) + "}}");
}

class RefusedModels : public testing::TestWithParam<ErrorCase>
{
protected:
    RefusedModels() { TestCatalog::Declare(); }
};

TEST_P(RefusedModels, SayWhatAndWhereAndLeaveNothing)
{
    EXPECT_EQ(ErrorOf(GetParam().model), "m.json" + GetParam().error);
    EXPECT_EQ(VYRStandalone::LiveComponents(), 0);
}

const auto Name = [](const testing::TestParamInfo<ErrorCase>& iInfo) { return std::string(iInfo.param.what); };

INSTANTIATE_TEST_SUITE_P(
    Document, RefusedModels,
    testing::Values(ErrorCase{"Empty", "", ":1:1: The document is empty."},
                    ErrorCase{"Truncated", R"({"model": 1, "objects": [{"type": "Part",)",
                              ":1:42: Missing a name for object member."},
                    ErrorCase{"ByteOrderMark", "\xEF\xBB\xBF{}", ":1:1: A byte order mark has no place in JSON."},
                    ErrorCase{"TooBigNumber", TestCatalog::ModelOfValues("\"real\": 1e400"),
                              ":1:111: Number too big to be stored in double."},
                    ErrorCase{"VeryDeepArray", std::string(100000, '['),
                              ":1:1001: Arrays and objects stand inside each other more than 1000 deep."},
                    ErrorCase{"AText", "\"model\"", ": must be an object, not a text"},
                    ErrorCase{"NoVersion", R"({"objects": []})", ": /model: is missing"},
                    ErrorCase{"AnotherVersion", R"({"model": 2, "objects": []})",
                              ": /model: unknown version 2 of the format; there is 1"},
                    ErrorCase{"VersionNoInteger", R"({"model": 1.0, "objects": []})",
                              ": /model: must be an integer, not a real number"},
                    ErrorCase{"NoObjects", R"({"model": 1})", ": /objects: is missing"},
                    ErrorCase{"ObjectsNoArray", R"({"model": 1, "objects": {}})",
                              ": /objects: must be an array, not an object"},
                    ErrorCase{"UnknownKey", R"({"model": 1, "catalog": [], "objects": []})",
                              ": /catalog: unknown key; did you mean \"catalogs\"?"},
                    ErrorCase{"UnknownCatalog", R"({"model": 1, "catalogs": ["Nowhere"], "objects": []})",
                              ": /catalogs/0: unknown catalog \"Nowhere\": none of that name is declared"},
                    ErrorCase{"CatalogsNoTexts", R"({"model": 1, "catalogs": [1], "objects": []})",
                              ": /catalogs/0: must be a text, not an integer"}),
    Name);

INSTANTIATE_TEST_SUITE_P(
    Objects, RefusedModels,
    testing::Values(
        ErrorCase{"NoObject", TestCatalog::Model("null"), ": /objects/0: must be an object, not null"},
        ErrorCase{"NoType", TestCatalog::Model(R"({"name": "P"})"), ": /objects/0/type: is missing"},
        ErrorCase{"NoName", TestCatalog::Model(R"({"type": "Part"})"), ": /objects/0/name: is missing"},
        ErrorCase{"UnknownType", TestCatalog::Model(R"({"type": "Prat", "name": "P"})"),
                  ": /objects/0/type: unknown type \"Prat\"; did you mean \"Part\"?"},
        ErrorCase{"UnknownKey", TestCatalog::Model(R"({"type": "Part", "name": "P", "value": {}})"),
                  ": /objects/0/value: unknown key; did you mean \"values\"?"},
        ErrorCase{"DoubledKey", TestCatalog::Model(R"({"type": "Part", "name": "P", "name": "Q"})"),
                  ": /objects/0/name: stands twice"},
        ErrorCase{"AliasNoText", TestCatalog::Model(R"({"type": "Part", "name": "P", "alias": 1})"),
                  ": /objects/0/alias: must be a text, not an integer"},
        ErrorCase{"IdNoInteger", TestCatalog::Model(R"({"type": "Part", "name": "P", "id": "1"})"),
                  ": /objects/0/id: must be an integer, not a text"},
        ErrorCase{"IdTooLarge", TestCatalog::Model(R"({"type": "Part", "name": "P", "id": 18446744073709551615})"),
                  ": /objects/0/id: must be an integer of 64 bits, not an integer"},
        ErrorCase{
            "DoubledId",
            TestCatalog::Model(R"({"type": "Part", "name": "P", "id": 1}, {"type": "Part", "name": "Q", "id": 1})"),
            ": /objects/1/id: the id 1 stands at /objects/0/id already"},
        ErrorCase{"ValuesNoObject", TestCatalog::Model(R"({"type": "Part", "name": "P", "values": []})"),
                  ": /objects/0/values: must be an object, not an array"},
        ErrorCase{"UnknownAttribute", TestCatalog::Model(R"({"type": "Part", "name": "P", "values": {"sise": 1}})"),
                  ": /objects/0/values/sise: type \"Part\" has no attribute \"sise\"; did you mean \"size\"?"},
        ErrorCase{"AttributeLikeNone", TestCatalog::Model(R"({"type": "Part", "name": "P", "values": {"a/b": 1}})"),
                  ": /objects/0/values/a~1b: type \"Part\" has no attribute \"a/b\"; there are \"size\", \"label\", "
                  "\"inside\""},
        ErrorCase{"DoubledAttribute",
                  TestCatalog::Model(R"({"type": "Part", "name": "P", "values": {"size": 1, "size": 2}})"),
                  ": /objects/0/values/size: stands twice"},
        ErrorCase{
            "AddedOfTheType",
            TestCatalog::Model(R"({"type": "Part", "name": "P", "added": {"size": {"kind": "real", "value": 1}}})"),
            ": /objects/0/added/size: type \"Part\" declares this attribute: it belongs to \"values\""},
        ErrorCase{"AddedWithoutKind", TestCatalog::Model(R"({"type": "Part", "name": "P", "added": {"a": {}}})"),
                  ": /objects/0/added/a/kind: is missing"},
        ErrorCase{"AddedList", TestCatalog::Model(R"({"type": "Part", "name": "P", "added": {"a": {"kind": "list"}}})"),
                  ": /objects/0/added/a/kind: unknown kind \"list\" of an added attribute; there are \"real\", "
                  "\"integer\", \"boolean\", \"enumeration\", \"string\", \"component\", \"reference\""},
        ErrorCase{"AddedNoObject", TestCatalog::Model(R"({"type": "Part", "name": "P", "added": {"a": true}})"),
                  ": /objects/0/added/a: must be an object, not a boolean"},
        ErrorCase{
            "AddedOfWrongKind",
            TestCatalog::Model(R"({"type": "Part", "name": "P", "added": {"a": {"kind": "boolean", "value": 1}}})"),
            ": /objects/0/added/a/value: true or false is wanted"},
        ErrorCase{"AddedInValues",
                  TestCatalog::Model(
                      R"({"type": "Part", "name": "P", "added": {"a": {"kind": "real"}}, "values": {"a": 1}})"),
                  ": /objects/0/values/a: an added attribute has its value in \"added\""}),
    Name);

INSTANTIATE_TEST_SUITE_P(
    Values, RefusedModels,
    testing::Values(ErrorCase{"RealFromBoolean", TestCatalog::ModelOfValues("\"real\": true"),
                              ": /objects/0/values/real: a number is wanted"},
                    ErrorCase{"RealFromNoNumber", TestCatalog::ModelOfValues("\"real\": \"5 mm\""),
                              ": /objects/0/values/real: no number: \"5 mm\""},
                    ErrorCase{"RealFromArray", TestCatalog::ModelOfValues("\"real\": [1]"),
                              ": /objects/0/values/real: must be a single value, not an array"},
                    ErrorCase{"IntegerFromReal", TestCatalog::ModelOfValues("\"integer\": 1.5"),
                              ": /objects/0/values/integer: an integer is wanted"},
                    ErrorCase{"IntegerFromWholeReal", TestCatalog::ModelOfValues("\"integer\": 1.0"),
                              ": /objects/0/values/integer: an integer is wanted"},
                    ErrorCase{"IntegerFromText", TestCatalog::ModelOfValues("\"integer\": \"1\""),
                              ": /objects/0/values/integer: an integer is wanted"},
                    ErrorCase{"IntegerTooLarge", TestCatalog::ModelOfValues("\"integer\": 2147483648"),
                              ": /objects/0/values/integer: out of the range of an integer, which has 32 bits"},
                    ErrorCase{"IntegerTooSmall", TestCatalog::ModelOfValues("\"integer\": -2147483649"),
                              ": /objects/0/values/integer: out of the range of an integer, which has 32 bits"},
                    ErrorCase{"BooleanFromNumber", TestCatalog::ModelOfValues("\"boolean\": 1"),
                              ": /objects/0/values/boolean: true or false is wanted"},
                    ErrorCase{"BooleanFromText", TestCatalog::ModelOfValues("\"boolean\": \"true\""),
                              ": /objects/0/values/boolean: true or false is wanted"},
                    ErrorCase{
                        "EnumerationUnknown", TestCatalog::ModelOfValues("\"enumeration\": \"middle\""),
                        ": /objects/0/values/enumeration: no text of the enumeration: \"middle\"; there are \"low\", "
                        "\"high\""},
                    ErrorCase{"EnumerationFromNumber", TestCatalog::ModelOfValues("\"enumeration\": 1"),
                              ": /objects/0/values/enumeration: a text of the enumeration is wanted"},
                    ErrorCase{"StringFromNumber", TestCatalog::ModelOfValues("\"string\": 1"),
                              ": /objects/0/values/string: a text is wanted"},
                    ErrorCase{"ListNull", TestCatalog::ModelOfValues("\"strings\": null"),
                              ": /objects/0/values/strings: must be an array, not null"},
                    ErrorCase{"ListFromText", TestCatalog::ModelOfValues("\"strings\": \"a, b\""),
                              ": /objects/0/values/strings: must be an array, not a text"},
                    ErrorCase{"ListEntryNull", TestCatalog::ModelOfValues("\"strings\": [\"a\", null]"),
                              ": /objects/0/values/strings/1: a list of values has no empty entries"},
                    ErrorCase{"ListEntryOfWrongKind", TestCatalog::ModelOfValues("\"integers\": [1, 2, 3.5]"),
                              ": /objects/0/values/integers/2: an integer is wanted"},
                    ErrorCase{"ListEntryOutOfRange", TestCatalog::ModelOfValues("\"integers\": [4294967296]"),
                              ": /objects/0/values/integers/0: out of the range of an integer, which has 32 bits"},
                    ErrorCase{"ListEntryUnknown", TestCatalog::ModelOfValues("\"enumerations\": [\"hihg\"]"),
                              ": /objects/0/values/enumerations/0: no text of the enumeration: \"hihg\"; did you mean "
                              "\"high\"?"}),
    Name);

INSTANTIATE_TEST_SUITE_P(
    ComponentsAndReferences, RefusedModels,
    testing::Values(
        ErrorCase{"ComponentNoObject", TestCatalog::ModelOfValues("\"part\": 1"),
                  ": /objects/0/values/part: must be an object, not an integer"},
        ErrorCase{"ComponentWithoutType", TestCatalog::ModelOfValues("\"anything\": {}"),
                  ": /objects/0/values/anything/type: is missing: the attribute names no type of its own"},
        ErrorCase{"ComponentOfUnknownType", TestCatalog::ModelOfValues("\"anything\": {\"type\": \"Prat\"}"),
                  ": /objects/0/values/anything/type: unknown type \"Prat\"; did you mean \"Part\"?"},
        ErrorCase{"ComponentByReference", TestCatalog::ModelOfValues("\"part\": {\"ref\": 1}"),
                  ": /objects/0/values/part: a component stands inside its owner; \"ref\" is for attributes of kind "
                  "\"reference\""},
        ErrorCase{"ComponentUnknownKey", TestCatalog::ModelOfValues("\"part\": {\"valeus\": {}}"),
                  ": /objects/0/values/part/valeus: unknown key; did you mean \"values\"?"},
        ErrorCase{"ComponentDeeper", TestCatalog::ModelOfValues("\"part\": {\"values\": {\"size\": \"big\"}}"),
                  ": /objects/0/values/part/values/size: no number: \"big\""},
        ErrorCase{"ComponentInListFromElsewhere",
                  TestCatalog::ModelOfValues("\"part\": {\"id\": 1}, \"parts\": [{\"ref\": 1}]"),
                  ": /objects/0/values/parts/0/ref: a component can only be referred to from the list that holds it"},
        ErrorCase{"ColumnOfTexts", TestCatalog::ModelOfValues("\"anything\": {\"column\": [1, \"2\"]}"),
                  ": /objects/0/values/anything/column/1: must be a number, not a text"},
        ErrorCase{"ColumnWithValues", TestCatalog::ModelOfValues("\"anything\": {\"column\": [], \"values\": {}}"),
                  ": /objects/0/values/anything/values: unknown key; there are \"column\", \"alias\", "
                  "\"identifier\", \"id\", \"added\""},
        ErrorCase{"ReferenceNoObject", TestCatalog::ModelOfValues("\"other\": 1"),
                  ": /objects/0/values/other: must be an object, not an integer"},
        ErrorCase{"ReferenceWithoutRef", TestCatalog::ModelOfValues("\"other\": {\"type\": \"Part\"}"),
                  ": /objects/0/values/other/type: unknown key; there are \"ref\""},
        ErrorCase{"ReferenceNothing", TestCatalog::ModelOfValues("\"other\": {}"),
                  ": /objects/0/values/other/ref: is missing"},
        ErrorCase{"ReferenceNull", TestCatalog::ModelOfValues("\"other\": {\"ref\": null}"),
                  ": /objects/0/values/other/ref: must be an integer, not null"},
        ErrorCase{"ReferenceUnknownId", TestCatalog::ModelOfValues("\"others\": [null, {\"ref\": 7}]"),
                  ": /objects/0/values/others/1/ref: no object has the id 7"},
        ErrorCase{"ReferenceUnknownName", TestCatalog::ModelOfValues("\"other\": {\"ref\": \"X\"}"),
                  ": /objects/0/values/other/ref: no object has the identifier or the name \"X\""},
        ErrorCase{"ReferenceAmbiguous",
                  TestCatalog::Model(R"({"type": "Everything", "name": "E", "values": {"other": {"ref": "P"}}},
                                        {"type": "Part", "name": "P"}, {"type": "Part", "name": "Q", "identifier": "P"})"),
                  ": /objects/0/values/other/ref: several objects have the identifier or the name \"P\": \"P\", "
                  "\"Q\"; refer by id"},
        ErrorCase{"TooDeep", Nested(201),
                  ": /objects/0" + Repeated("/values/inside", 201) +
                      ": components stand inside each other more than 200 deep"},
        ErrorCase{"MuchTooDeep", Nested(100000),
                  ":1:19031: Arrays and objects stand inside each other more than 1000 deep."}),
    Name);

TEST(DeepModels, AtTheLimit_AreLoadedAndSaved)
{
    TestCatalog::Declare();
    const Model model = Model::Parse(Nested(200), "m.json");
    const std::string text = model.Text();
    EXPECT_EQ(Model::Parse(text, "saved").Text(), text);
}
} // namespace
