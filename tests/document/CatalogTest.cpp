/**
 * @file
 * Declaring catalogs from their texts.
 */

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ModelDump.h"
#include "ORXTypeCode.h"
#include "TestCatalog.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::AttributeInfo;
using VYRStandalone::DeclareCatalog;
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

/// What is said of a catalog that is refused; empty when it is accepted.
std::string ErrorOf(const std::string& iCatalog)
{
    try
    {
        DeclareCatalog(iCatalog, "c.json");
    }
    catch (const DocumentError& error)
    {
        return error.what();
    }
    return {};
}

bool IsDeclared(const std::string& iType)
{
    const std::vector<std::string> names = VYRStandalone::TypeNames();
    return std::count(names.begin(), names.end(), iType) == 1;
}

TEST(Catalog, DeclaredTypes_HaveTheirAttributesInOrder)
{
    TestCatalog::Declare();
    Model model;
    std::vector<std::string> lines;
    for (const AttributeInfo& info : VYRStandalone::Attributes(model.Create("SubPart", "P")))
        lines.push_back(info.name + " " + std::to_string(info.type) + " of " + info.declaredBy);
    EXPECT_EQ(lines, (std::vector<std::string>{"size 7 of Part", "label 18 of Part", "inside 26 of Part",
                                               "extra 28 of SubPart"}));

    const std::vector<AttributeInfo> all = VYRStandalone::Attributes(model.Create("Everything", "E"));
    const auto enumerations =
        std::find_if(all.begin(), all.end(), [](const AttributeInfo& iInfo) { return iInfo.name == "enumerations"; });
    ASSERT_NE(enumerations, all.end());
    EXPECT_EQ(enumerations->type, tk_list);
    EXPECT_EQ(enumerations->listType, tk_enum);
    EXPECT_EQ(enumerations->values, (std::vector<std::string>{"low", "high"}));
    EXPECT_FALSE(enumerations->added);
}

TEST(Catalog, DeclaredAgainUnchanged_IsAccepted)
{
    TestCatalog::Declare();
    const std::vector<std::string> before = VYRStandalone::TypeNames();
    TestCatalog::Declare();
    EXPECT_EQ(VYRStandalone::TypeNames(), before);
}

TEST(Catalog, Startup_ReachesInheritedAndNestedAttributes)
{
    EXPECT_EQ(ErrorOf(R"({"catalog": "StartupTest", "types": [
        {"name": "StartupLeaf", "attributes": [{"name": "depth", "kind": "integer", "default": 1},
                                               {"name": "notes", "kind": "list", "of": "string"}]},
        {"name": "StartupBranch", "attributes": [{"name": "leaf", "kind": "component", "type": "StartupLeaf"},
                                                 {"name": "title", "kind": "string", "default": "branch"}]},
        {"name": "StartupTree", "base": "StartupBranch",
         "startup": {"title": null, "leaf": {"depth": 2, "notes": ["a", "b"]}}}]})"),
              "");
    Model model;
    model.Create("StartupTree", "T");
    EXPECT_EQ(Dump(model), "T [StartupTree] name=T owner=(null)\n"
                           "T.leaf -> T/leaf\n"
                           "T/leaf [StartupLeaf] name=leaf owner=T\n"
                           "T/leaf.depth = 2\n"
                           "T/leaf.notes has 2\n"
                           "    1 a\n"
                           "    2 b\n"
                           "T.title = (unset)\n");
}

TEST(Catalog, Configurations_AreKeptForTheTool)
{
    EXPECT_EQ(ErrorOf(R"({"catalog": "ConfigurationsTest", "types": [
        {"name": "PlainType"}, {"name": "ConfiguredType", "configurations": ["steadyFlow", "transientFlow"]}]})"),
              "");
    EXPECT_TRUE(IsDeclared("ConfiguredType"));
    std::string kept;
    for (const VYRStandalone::MeantConfiguration& one : VYRStandalone::MeantConfigurations())
        if (one.type == "ConfiguredType")
            kept += one.configuration + " " + one.path + "\n";
    EXPECT_EQ(kept, "steadyFlow /types/1/configurations/0\n"
                    "transientFlow /types/1/configurations/1\n");
}

TEST(Catalog, ConfigurationsOfARefusedCatalog_AreNotKept)
{
    EXPECT_NE(ErrorOf(R"({"catalog": "RefusedConfigurationsTest", "types": [
        {"name": "RefusedConfiguredType", "base": "NoSuchBase", "configurations": ["steadyFlow"]}]})"),
              "");
    for (const VYRStandalone::MeantConfiguration& one : VYRStandalone::MeantConfigurations())
        EXPECT_NE(one.type, "RefusedConfiguredType");
}

struct ErrorCase
{
    const char* what;
    std::string catalog;
    std::string error;
};

std::string Repeated(const std::string& iText, int iCount)
{
    std::string text;
    for (int i = 0; i < iCount; ++i)
        text += iText;
    return text;
}

std::string OfType(const std::string& iType)
{
    return R"({"catalog": "Refused", "types": [{"name": "RefusedType")" + iType + "}]}";
}

std::string OfAttribute(const std::string& iAttribute)
{
    return OfType(R"(, "attributes": [{)" + iAttribute + "}]");
}

class RefusedCatalogs : public testing::TestWithParam<ErrorCase>
{
};

TEST_P(RefusedCatalogs, SayWhatAndWhereAndDeclareNothing)
{
    TestCatalog::Declare();
    const std::vector<std::string> before = VYRStandalone::TypeNames();
    EXPECT_EQ(ErrorOf(GetParam().catalog), "c.json" + GetParam().error);
    EXPECT_EQ(VYRStandalone::TypeNames(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Catalog, RefusedCatalogs,
    testing::Values(
        ErrorCase{"Empty", "", ":1:1: The document is empty."},
        ErrorCase{"Truncated", "{\"catalog\": \"\xC3\xA4\",\n \"types\": [\xC3", ":2:12: Invalid value."},
        ErrorCase{"ColumnsInCharacters", "{\"catalog\": \"\xC3\xA4\xE6\xB0\xB4\" x",
                  ":1:18: Missing a comma or '}' after an object member."},
        ErrorCase{"NoUtf8", "{\"catalog\": \"ab\xE4\"}", ":1:16: Invalid encoding in string."},
        ErrorCase{"AnArray", "[]", ": must be an object, not an array"},
        ErrorCase{"NoName", "{\"types\": []}", ": /catalog: is missing"},
        ErrorCase{"EmptyName", "{\"catalog\": \"\", \"types\": []}", ": /catalog: must not be empty"},
        ErrorCase{"NoTypes", "{\"catalog\": \"Refused\"}", ": /types: is missing"},
        ErrorCase{"UnknownKey", "{\"catalog\": \"Refused\", \"types\": [], \"use\": []}",
                  ": /use: unknown key; did you mean \"uses\"?"},
        ErrorCase{"DoubledKey", "{\"catalog\": \"Refused\", \"types\": [], \"types\": []}", ": /types: stands twice"},
        ErrorCase{"UnknownUse", "{\"catalog\": \"Refused\", \"uses\": [\"Nowhere\"], \"types\": []}",
                  ": /uses/0: unknown catalog \"Nowhere\": none of that name is declared"},
        ErrorCase{"TypesNoArray", "{\"catalog\": \"Refused\", \"types\": {}}",
                  ": /types: must be an array, not an object"},
        ErrorCase{"TypeNoObject", "{\"catalog\": \"Refused\", \"types\": [5]}",
                  ": /types/0: must be an object, not an integer"},
        ErrorCase{"TypeUnknownKey", OfType(", \"attribute\": []"),
                  ": /types/0/attribute: unknown key; did you mean \"attributes\"?"},
        ErrorCase{"TypeKeyLikeNone", OfType(", \"zzz\": []"),
                  ": /types/0/zzz: unknown key; there are \"name\", \"base\", \"attributes\", \"startup\", "
                  "\"configurations\", \"manager\""},
        ErrorCase{"ManagerOfNoChoice", OfType(", \"manager\": true"),
                  ": /types/0: a manager is for Choices: type \"RefusedType\" does not derive from \"VYRCfdChoice\""},
        ErrorCase{"ManagerNoBoolean", OfType(", \"manager\": \"yes\""),
                  ": /types/0/manager: must be true or false, not a text"},
        ErrorCase{"TypeWithBlank", R"({"catalog": "Refused", "types": [{"name": "a b"}]})",
                  ": /types/0/name: the name of a type holds no blank and no comma"},
        ErrorCase{"TypeTwice", R"({"catalog": "Refused", "types": [{"name": "RefusedA"}, {"name": "RefusedA"}]})",
                  ": /types/1/name: the catalog has a type \"RefusedA\" already"},
        ErrorCase{"UnknownBase", OfType(", \"base\": \"Prat\""),
                  ": /types/0/base: unknown type \"Prat\"; did you mean \"Part\"?"},
        ErrorCase{"AnotherBase", R"({"catalog": "Refused", "types": [{"name": "SubPart", "base": "Everything"}]})",
                  ": /types/0: type \"SubPart\" has been declared with another base type"},
        ErrorCase{"AttributeWithoutKind", OfAttribute("\"name\": \"a\""), ": /types/0/attributes/0/kind: is missing"},
        ErrorCase{"UnknownKind", OfAttribute("\"name\": \"a\", \"kind\": \"strng\""),
                  ": /types/0/attributes/0/kind: unknown kind \"strng\"; did you mean \"string\"?"},
        ErrorCase{"KindLikeNone", OfAttribute("\"name\": \"a\", \"kind\": \"vector\""),
                  ": /types/0/attributes/0/kind: unknown kind \"vector\"; there are \"real\", \"integer\", "
                  "\"boolean\", \"enumeration\", \"string\", \"component\", \"reference\", \"list\""},
        ErrorCase{"ListOfLists", OfAttribute(R"("name": "a", "kind": "list", "of": "list")"),
                  ": /types/0/attributes/0/of: unknown kind \"list\"; there are \"real\", \"integer\", \"boolean\", "
                  "\"enumeration\", \"string\", \"component\", \"reference\""},
        ErrorCase{"ListOfNothing", OfAttribute(R"("name": "a", "kind": "list")"),
                  ": /types/0/attributes/0/of: is missing"},
        ErrorCase{"OfWithoutList", OfAttribute(R"("name": "a", "kind": "real", "of": "real")"),
                  ": /types/0/attributes/0/of: belongs to kind \"list\" only"},
        ErrorCase{"UnknownUnit", OfAttribute(R"("name": "a", "kind": "real", "unit": "furlongg")"),
                  ": /types/0/attributes/0/unit: unknown unit \"furlongg\""},
        ErrorCase{"UnitBehindABlank", OfAttribute(R"("name": "a", "kind": "real", "unit": "\n1s")"),
                  ": /types/0/attributes/0/unit: unknown unit \" 1s\""},
        ErrorCase{"UnitBeforeABlank", OfAttribute(R"("name": "a", "kind": "real", "unit": "m ")"),
                  ": /types/0/attributes/0/unit: unknown unit \"m \""},
        ErrorCase{"UnitOfATime", OfAttribute(R"("name": "a", "kind": "real", "unit": "days since 2000-01-01")"),
                  ": /types/0/attributes/0/unit: unknown unit \"days since 2000-01-01\""},
        ErrorCase{"UnitOfAnInteger", OfAttribute(R"("name": "a", "kind": "integer", "unit": "Pa")"),
                  ": /types/0/attributes/0/unit: belongs to kind \"real\" only"},
        ErrorCase{"DefaultOfAnotherQuantity",
                  OfAttribute(R"("name": "a", "kind": "real", "unit": "kPa", "default": "5 mm")"),
                  ": /types/0/attributes/0/default: no number, or no unit like \"Pa\": \"5 mm\""},
        ErrorCase{"OptionalComponent", OfAttribute(R"("name": "a", "kind": "component", "optional": true)"),
                  ": /types/0/attributes/0/optional: a component comes into being with its owner and cannot be "
                  "optional"},
        ErrorCase{"AttributeTwice",
                  OfType(R"(, "attributes": [{"name": "a", "kind": "real"}, {"name": "a", "kind": "real"}])"),
                  ": /types/0/attributes/1/name: the type has an attribute \"a\" already"},
        ErrorCase{"AttributeNameWithSlash", OfAttribute(R"("name": "a/b", "kind": "real")"),
                  ": /types/0/attributes/0/name: the name of an attribute holds no \"/\", \"=\", \"!\", \"<\" or "
                  "\">\""},
        ErrorCase{"AttributeNameOfAFlag", OfAttribute(R"("name": "a_isset", "kind": "real")"),
                  ": /types/0/attributes/0/name: the name of an attribute does not end in \"_isset\" or \"_isauto\": "
                  "these are names of flags"},
        ErrorCase{"AttributeNameEmpty", OfAttribute(R"("name": "", "kind": "real")"),
                  ": /types/0/attributes/0/name: must not be empty"},
        ErrorCase{"EnumerationWithoutValues", OfAttribute(R"("name": "a", "kind": "enumeration")"),
                  ": /types/0/attributes/0/values: is missing"},
        ErrorCase{"EnumerationOfNothing", OfAttribute(R"("name": "a", "kind": "enumeration", "values": [])"),
                  ": /types/0/attributes/0/values: an enumeration has at least one text"},
        ErrorCase{"EnumerationTextTwice", OfAttribute(R"("name": "a", "kind": "enumeration", "values": ["x", "x"])"),
                  ": /types/0/attributes/0/values/1: \"x\" stands twice"},
        ErrorCase{"EnumerationOfNumbers", OfAttribute(R"("name": "a", "kind": "enumeration", "values": [1])"),
                  ": /types/0/attributes/0/values/0: must be a text, not an integer"},
        ErrorCase{"ValuesWithoutEnumeration", OfAttribute(R"("name": "a", "kind": "string", "values": ["x"])"),
                  ": /types/0/attributes/0/values: belongs to kind \"enumeration\" only"},
        ErrorCase{"TypeWithoutComponent", OfAttribute(R"("name": "a", "kind": "reference", "type": "Part")"),
                  ": /types/0/attributes/0/type: belongs to kind \"component\" only"},
        ErrorCase{"UnknownComponentType", OfAttribute(R"("name": "a", "kind": "component", "type": "Prat")"),
                  ": /types/0/attributes/0/type: unknown type \"Prat\"; did you mean \"Part\"?"},
        ErrorCase{"ContainsItself", OfAttribute(R"("name": "a", "kind": "component", "type": "RefusedType")"),
                  ": /types/0: type \"RefusedType\" contains itself"},
        ErrorCase{"DefaultOfReference", OfAttribute(R"("name": "a", "kind": "reference", "default": null)"),
                  ": /types/0/attributes/0/default: an attribute of objects has no default"},
        ErrorCase{"DefaultOfListNoArray", OfAttribute(R"("name": "a", "kind": "list", "of": "real", "default": 1)"),
                  ": /types/0/attributes/0/default: the default of a list is an array"},
        ErrorCase{"DefaultArrayOfReal", OfAttribute(R"("name": "a", "kind": "real", "default": [1])"),
                  ": /types/0/attributes/0/default: only the default of a list is an array"},
        ErrorCase{"DefaultOfWrongKind", OfAttribute(R"("name": "a", "kind": "integer", "default": 1.5)"),
                  ": /types/0/attributes/0/default: an integer is wanted"},
        ErrorCase{"DefaultOutOfRange", OfAttribute(R"("name": "a", "kind": "integer", "default": 2147483648)"),
                  ": /types/0/attributes/0/default: out of the range of an integer, which has 32 bits"},
        ErrorCase{"DefaultNoNumber", OfAttribute(R"("name": "a", "kind": "real", "default": "1 atm")"),
                  ": /types/0/attributes/0/default: no number: \"1 atm\""},
        ErrorCase{"DefaultNoText",
                  OfAttribute(R"("name": "a", "kind": "enumeration", "values": ["x"], "default": "y")"),
                  ": /types/0/attributes/0/default: no text of the enumeration: \"y\"; did you mean \"x\"?"},
        ErrorCase{"StartupUnknown", OfType(R"(, "base": "Part", "startup": {"sise": 1})"),
                  ": /types/0/startup/sise: type \"RefusedType\" has no attribute \"sise\""},
        ErrorCase{"StartupOfValueNested", OfType(R"(, "base": "Part", "startup": {"size": {"a": 1}})"),
                  ": /types/0/startup/size/a: no component comes into being under \"size\""},
        ErrorCase{"StartupOfEmptyComponent", OfType(R"(, "base": "Part", "startup": {"inside": {"size": 1}})"),
                  ": /types/0/startup/inside/size: no component comes into being under \"inside\""},
        ErrorCase{"StartupListOfLists", OfType(R"(, "base": "Everything", "startup": {"reals": [[1]]})"),
                  ": /types/0/startup/reals/0: must be a single value, not an array"},
        ErrorCase{"StartupDeep", OfType(R"(, "startup": )" + Repeated("{\"a\": ", 900) + "1" + Repeated("}", 900)),
                  ": /types/0/startup" + Repeated("/a", 201) +
                      ": components stand inside each other more than 200 deep"},
        ErrorCase{"StartupWrongKind", OfType(R"(, "base": "Everything", "startup": {"reals": ["x"]})"),
                  ": /types/0/startup/reals: no number: \"x\""},
        ErrorCase{"ChangedKind", R"({"catalog": "DocumentTest", "types": [{"name": "Part", "attributes": [
            {"name": "size", "kind": "integer"}]}]})",
                  ": /types/0/attributes/0: attribute \"size\" has been declared with another kind"},
        ErrorCase{"TooManyMistakes", R"({"catalog": "Refused", "types": [{"name": "RefusedGood"}, {"name": 5}]})",
                  ": /types/1/name: must be a text, not an integer"}),
    [](const testing::TestParamInfo<ErrorCase>& iInfo) { return std::string(iInfo.param.what); });

/// A chain of types, each derived from the one before it, the last one with a default.
std::string Chain(int iTypes, const std::string& iDefault)
{
    std::string types;
    for (int i = 1; i <= iTypes; ++i)
        types += std::string(i > 1 ? ", " : "") + "{\"name\": \"Chained" + std::to_string(i) + "\"" +
                 (i > 1 ? ", \"base\": \"Chained" + std::to_string(i - 1) + "\"" : "") +
                 ", \"attributes\": [{\"name\": \"a" + std::to_string(i) + "\", \"kind\": \"real\"" +
                 (i == iTypes ? ", \"default\": " + iDefault : "") + "}]}";
    return R"({"catalog": "Chain", "types": [)" + types + "]}";
}

TEST(Catalog, OfManyDerivedTypesThatIsRefusedAtItsEnd_CanBeDeclaredWhenItIsRight)
{
    constexpr int Types = 40;
    EXPECT_EQ(ErrorOf(Chain(Types, "\"much\"")), "c.json: /types/39/attributes/0/default: no number: \"much\"");
    EXPECT_EQ(ErrorOf(Chain(Types, "0.5")), "");
    Model model;
    const ORXISpecObject_var object = model.Create("Chained40", "C");
    EXPECT_EQ(VYRStandalone::Attributes(object).size(), static_cast<std::size_t>(Types));
}

TEST(Catalog, DocumentError_HoldsItsParts)
{
    try
    {
        DeclareCatalog("{\n  x", "c.json");
        FAIL();
    }
    catch (const DocumentError& error)
    {
        EXPECT_EQ(error.File(), "c.json");
        EXPECT_EQ(error.Path(), "");
        EXPECT_EQ(error.Line(), 2);
        EXPECT_EQ(error.Column(), 3);
    }
    try
    {
        DeclareCatalog("{\"catalog\": 1}", "c.json");
        FAIL();
    }
    catch (const DocumentError& error)
    {
        EXPECT_EQ(error.Path(), "/catalog");
        EXPECT_EQ(error.Line(), 0);
        EXPECT_EQ(error.Column(), 0);
    }
}

TEST(Catalog, Errors_AreOneLineWhateverTheyName)
{
    EXPECT_EQ(ErrorOf(R"({"catalog": "Refused", "types": [], "a\nb/~\u0007": 1})"),
              "c.json: /a b~1~0 : unknown key; there are \"catalog\", \"uses\", \"types\"");
    const std::string longName(300, 'x');
    EXPECT_EQ(ErrorOf(OfAttribute(R"("name": "a", "kind": ")" + longName + "\"")),
              "c.json: /types/0/attributes/0/kind: unknown kind \"" + longName.substr(0, 80) +
                  "...\"; there are \"real\", \"integer\", \"boolean\", \"enumeration\", \"string\", \"component\", "
                  "\"reference\", \"list\"");
}
} // namespace
