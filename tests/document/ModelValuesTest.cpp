/**
 * @file
 * Values of attributes in model documents: what is read for what is written, and what saving writes of it.
 */

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "ModelDump.h"
#include "ORXISpecAttrAccess.h"
#include "TestCatalog.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::Model;

struct ValueCase
{
    const char* what;
    const char* attribute;
    /// The value in the document; empty leaves the attribute out.
    std::string json;
    /// As the host tells it.
    std::string wanted;
    /// As it is saved.
    std::string saved;
};

class Values : public testing::TestWithParam<ValueCase>
{
protected:
    Values() { TestCatalog::Declare(); }

    static Model Load(const ValueCase& iCase)
    {
        const std::string values = iCase.json.empty() ? "" : "\"" + std::string(iCase.attribute) + "\": " + iCase.json;
        return Model::Parse(TestCatalog::ModelOfValues(values), "test");
    }
};

TEST_P(Values, AreReadAndSaved)
{
    const ValueCase& row = GetParam();
    const Model model = Load(row);
    EXPECT_EQ(DumpOf(model, row.attribute), row.wanted);

    const std::string text = model.Text();
    EXPECT_NE(text.find("\"" + std::string(row.attribute) + "\": " + row.saved), std::string::npos) << text;
    const Model again = Model::Parse(text, "saved");
    EXPECT_EQ(Dump(again), Dump(model));
    EXPECT_EQ(again.Text(), text);
}

INSTANTIATE_TEST_SUITE_P(
    Model, Values,
    testing::Values(
        ValueCase{"RealLeftOut", "real", "", "E.real = (unset)\n", "null"},
        ValueCase{"RealNull", "real", "null", "E.real = (unset)\n", "null"},
        ValueCase{"Real", "real", "1.5", "E.real = 1.5\n", "1.5,"},
        ValueCase{"RealFromInteger", "real", "1", "E.real = 1\n", "1.0,"},
        ValueCase{"RealFromLargeInteger", "real", "3000000000", "E.real = 3e+09\n", "3e+09,"},
        ValueCase{"RealFromHugeInteger", "real", "100000000000000000000000", "E.real = 1e+23\n", "1e+23,"},
        ValueCase{"RealNegativeZero", "real", "-0.0", "E.real = -0\n", "-0.0,"},
        ValueCase{"RealExponent", "real", "1e-7", "E.real = 1e-07\n", "1e-07,"},
        ValueCase{"RealTooSmall", "real", "1e-400", "E.real = 0\n", "0.0,"},
        ValueCase{"RealFromText", "real", "\"2.5\"", "E.real = 2.5\n", "2.5,"},
        ValueCase{"IntegerLeftOut", "integer", "", "E.integer = (unset)\n", "null"},
        ValueCase{"Integer", "integer", "-7", "E.integer = -7\n", "-7,"},
        ValueCase{"IntegerGreatest", "integer", "2147483647", "E.integer = 2147483647\n", "2147483647,"},
        ValueCase{"IntegerLeast", "integer", "-2147483648", "E.integer = -2147483648\n", "-2147483648,"},
        ValueCase{"BooleanNull", "boolean", "null", "E.boolean = (unset)\n", "null"},
        ValueCase{"BooleanTrue", "boolean", "true", "E.boolean = true\n", "true,"},
        ValueCase{"BooleanFalse", "boolean", "false", "E.boolean = false\n", "false,"},
        ValueCase{"EnumerationNull", "enumeration", "null", "E.enumeration = (unset)\n", "null"},
        ValueCase{"Enumeration", "enumeration", "\"high\"", "E.enumeration = high\n", "\"high\","},
        ValueCase{"StringLeftOut", "string", "", "E.string = (unset)\n", "null"},
        ValueCase{"StringEmpty", "string", "\"\"", "E.string = \n", "\"\","},
        ValueCase{"String", "string", "\"a \\\"b\\\" \\\\ c\"", "E.string = a \"b\" \\ c\n", "\"a \\\"b\\\" \\\\ c\","},
        ValueCase{"StringThatLooksLikeANumber", "string", "\"1\"", "E.string = 1\n", "\"1\","},
        ValueCase{"StringOfEveryPlane", "string", "\"\\u00e4\\u6c34\\ud83c\\udf0a\"",
                  "E.string = \xC3\xA4\xE6\xB0\xB4\xF0\x9F\x8C\x8A\n", "\"\xC3\xA4\xE6\xB0\xB4\xF0\x9F\x8C\x8A\","},
        ValueCase{"StringWithZero", "string", "\"a\\u0000b\"", std::string("E.string = a\0b\n", 15), "\"a\\u0000b\","},
        ValueCase{"PresetLeftOut", "preset", "", "E.preset = given\n", "\"given\","},
        ValueCase{"PresetNull", "preset", "null", "E.preset = (unset)\n", "null,"},
        ValueCase{"PresetEmpty", "preset", "\"\"", "E.preset = \n", "\"\","},
        ValueCase{"RealsLeftOut", "reals", "", "E.reals has 2\n    1 1\n    2 2.5\n", "[1.0, 2.5],"},
        ValueCase{"RealsEmpty", "reals", "[]", "E.reals has 0\n", "[],"},
        ValueCase{"Reals", "reals", "[3, -0.5]", "E.reals has 2\n    1 3\n    2 -0.5\n", "[3.0, -0.5],"},
        ValueCase{"Integers", "integers", "[1, -2]", "E.integers has 2\n    1 1\n    2 -2\n", "[1, -2],"},
        ValueCase{"Booleans", "booleans", "[true, false]", "E.booleans has 2\n    1 true\n    2 false\n",
                  "[true, false],"},
        ValueCase{"Enumerations", "enumerations", "[\"high\", \"low\", \"high\"]",
                  "E.enumerations has 3\n    1 2\n    2 1\n    3 2\n", "[\"high\", \"low\", \"high\"],"},
        ValueCase{"StringsLeftOut", "strings", "", "E.strings has 0\n", "[],"},
        ValueCase{"Strings", "strings", "[\"a\", \"\", \"a\"]", "E.strings has 3\n    1 a\n    2 \n    3 a\n",
                  "[\"a\", \"\", \"a\"],"}),
    [](const testing::TestParamInfo<ValueCase>& iInfo) { return std::string(iInfo.param.what); });

class Reals : public testing::Test
{
protected:
    Reals() { TestCatalog::Declare(); }

    /// What is read of an attribute after the model has been saved and loaded.
    static double SavedAndLoaded(double iValue)
    {
        Model model;
        const ORXISpecAttrAccess_var access = model.Create("Everything", "E");
        const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("real"));
        EXPECT_EQ(access->SetDouble(key, iValue), S_OK);
        const Model loaded = Model::Parse(model.Text(), "saved");
        const ORXISpecAttrAccess_var again = loaded.Objects().front();
        return again->GetDouble(key);
    }
};

TEST_F(Reals, ComeBackBitByBit)
{
    std::mt19937_64 random(20);
    for (int i = 0; i < 500; ++i)
    {
        const std::uint64_t bits = random();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof(value));
        if (!std::isfinite(value))
            continue;
        const double back = SavedAndLoaded(value);
        EXPECT_EQ(std::memcmp(&value, &back, sizeof(value)), 0) << value << " came back as " << back;
    }
    for (const double value : {0.1, 1.0 / 3.0, 5e-324, 2.2250738585072011e-308, std::numeric_limits<double>::max()})
        EXPECT_EQ(SavedAndLoaded(value), value);
}
} // namespace
