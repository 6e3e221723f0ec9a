/**
 * @file
 * Quantities and optional attributes in model documents.
 */

#include <string>

#include <gtest/gtest.h>

#include "ModelDump.h"
#include "RoundTrip.h"
#include "TestCatalog.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::Model;

Model ModelOf(const std::string& iMembers)
{
    TestCatalog::Declare();
    return Model::Parse(TestCatalog::Model(R"({"type": "Rich", "name": "E", )" + iMembers + "}"), "m.json");
}

/// What is said of a document that is refused; empty for one that is read.
std::string ErrorOf(const std::string& iMembers)
{
    try
    {
        ModelOf(iMembers);
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        return error.what();
    }
    return "";
}

struct QuantityCase
{
    const char* what;
    const char* attribute;
    const char* json;
    const char* dump;
    /// As it is saved.
    const char* saved;
};

class Quantities : public testing::TestWithParam<QuantityCase>
{
};

TEST_P(Quantities, AreReadWithUnitsAndSavedInSi)
{
    const QuantityCase& row = GetParam();
    const std::string key = "\"" + std::string(row.attribute) + "\": ";
    const Model model = ModelOf(R"("values": {)" + (*row.json != '\0' ? key + row.json : "") + "}");
    EXPECT_EQ(DumpOf(model, row.attribute), row.dump);
    EXPECT_NE(model.Text().find(key + row.saved), std::string::npos) << model.Text();
    ExpectRoundTrip(model);
}

INSTANTIATE_TEST_SUITE_P(
    Model, Quantities,
    testing::Values(QuantityCase{"LeftOut", "length", "", "E.length = 0.005 m\n", "0.005,"},
                    QuantityCase{"Number", "length", "2", "E.length = 2 m\n", "2.0,"},
                    QuantityCase{"NumberText", "length", "\"2\"", "E.length = 2 m\n", "2.0,"},
                    QuantityCase{"OtherUnit", "length", "\"250 cm\"", "E.length = 2.5 m\n", "2.5,"},
                    QuantityCase{"SiUnit", "length", "\"0.5 m\"", "E.length = 0.5 m\n", "0.5,"},
                    QuantityCase{"NegativeZero", "length", "\"-0 m\"", "E.length = -0 m\n", "-0.0,"},
                    QuantityCase{"Unset", "length", "null", "E.length = (unset)\n", "null,"},
                    QuantityCase{"Pressure", "pressure", "\"2 bar\"", "E.pressure = 2e+05 Pa\n", "2e+05\n"},
                    QuantityCase{"List", "lengths", "[\"1 mm\", 2, \"0.5 km\"]",
                                 "E.lengths has 3\n    1 0.001\n    2 2\n    3 500\n", "[0.001, 2.0, 500.0],"},
                    QuantityCase{"ListLeftOut", "lengths", "", "E.lengths has 2\n    1 1\n    2 0.02\n",
                                 "[1.0, 0.02],"}),
    [](const auto& iInfo) { return std::string(iInfo.param.what); });

struct Refusal
{
    const char* what;
    const char* members;
    const char* error;
};

class RefusedMembers : public testing::TestWithParam<Refusal>
{
};

TEST_P(RefusedMembers, SayWhereAndWhy)
{
    EXPECT_EQ(ErrorOf(GetParam().members), std::string("m.json: /objects/0/") + GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Model, RefusedMembers,
    testing::Values(Refusal{"ForeignUnit", R"("values": {"length": "5 Pa"})",
                            "values/length: no number, or no unit like \"m\": \"5 Pa\""},
                    Refusal{"UnknownUnit", R"("values": {"length": "5 florps"})",
                            "values/length: no number, or no unit like \"m\": \"5 florps\""},
                    Refusal{"DoubledNumber", R"("values": {"length": "5 2 m"})",
                            "values/length: no number, or no unit like \"m\": \"5 2 m\""},
                    Refusal{"UnitOfAPlainReal", R"("values": {"real": "5 m"})", "values/real: no number: \"5 m\""},
                    Refusal{"EntryOfAList", R"("values": {"lengths": [1, "5 s"]})",
                            "values/lengths/1: no number, or no unit like \"m\": \"5 s\""},
                    Refusal{"OptionalAmongValues", R"("values": {"mayReal": 1})",
                            "values/mayReal: an optional attribute has its value in \"added\""},
                    Refusal{"OptionalOfAnotherKind", R"("added": {"mayReal": {"kind": "string"}})",
                            "added/mayReal/kind: the attribute is declared as \"real\""},
                    Refusal{"OptionalWithTexts",
                            R"("added": {"mayEnumeration": {"kind": "enumeration", "values": ["a"]}})",
                            "added/mayEnumeration/values: the type declares the texts of the enumeration"},
                    Refusal{"OptionalWithFlag", R"("added": {"mayReal": {"kind": "real", "flag": 1}})",
                            "added/mayReal/flag: belongs to attributes of one object alone"},
                    Refusal{"DeclaredAmongAdded", R"("added": {"real": {"kind": "real"}})",
                            "added/real: type \"Rich\" declares this attribute: it belongs to \"values\""}),
    [](const auto& iInfo) { return std::string(iInfo.param.what); });

TEST(OptionalAttributes, ThatWereNotAdded_AreNotSaved)
{
    const Model model = ModelOf(R"("values": {})");
    EXPECT_EQ(model.Text().find("may"), std::string::npos) << model.Text();
    const ORXISpecAttrAccess_var access = model.Objects().front();
    EXPECT_EQ(access->HasAttribute(KeyOf(model.Objects().front(), "mayReal")), ORXFalse);
    ExpectRoundTrip(model);
}

TEST(OptionalAttributes, ThatWereAdded_AreKeptWithTheirValues)
{
    const Model model = ModelOf(R"("id": 1, "added": {
        "mayReal": {"kind": "real"}, "mayLength": {"kind": "real", "value": "5 mm"},
        "mayString": {"kind": "string", "value": null}, "mayStrings": {"kind": "list", "value": []},
        "mayReference": {"kind": "reference", "value": {"ref": 1}}})");
    EXPECT_EQ(DumpOf(model, "mayReal"), "E.mayReal = 1.5\n") << "the default of its type";
    EXPECT_EQ(DumpOf(model, "mayLength"), "E.mayLength = 0.005 m\n");
    EXPECT_EQ(DumpOf(model, "mayString"), "E.mayString = (unset)\n");
    EXPECT_EQ(DumpOf(model, "mayStrings"), "E.mayStrings has 0\n");
    EXPECT_EQ(DumpOf(model, "mayReference"), "E.mayReference -> E\n");
    EXPECT_EQ(DumpOf(model, "mayInteger"), "") << "not added";
    ExpectRoundTrip(model);
}
} // namespace
