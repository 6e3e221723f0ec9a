/**
 * @file
 * Numbers at every edge, texts with zero bytes and texts that are no UTF-8, keys that stand twice: what is taken is
 * kept to the last bit, what is not is refused where it stands.
 */

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ExactDump.h"
#include "ORXIAlias.h"
#include "ORXISimBCDataTableColumn.h"
#include "RoundTrip.h"
#include "TemporaryFolder.h"
#include "TestCatalog.h"
#include "VYRIFldIdentifier.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"
#include "VYRStandaloneServices.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

class Edges : public testing::Test
{
protected:
    Edges() { TestCatalog::Declare(); }

    static std::string ErrorOf(const std::string& iModel)
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

    static std::string CatalogError(const std::string& iCatalog)
    {
        try
        {
            VYRStandalone::DeclareCatalog(iCatalog, "c.json");
        }
        catch (const DocumentError& error)
        {
            return error.what();
        }
        return {};
    }
};

/// Places for a number in a document, "@" where it stands, and what the host tells of it.
struct NumberPlace
{
    const char* what;
    const char* object;
    /// Where an error is said to be.
    const char* path;
};

const NumberPlace realPlaces[] = {
    {"Real", R"({"type": "Rich", "name": "R", "values": {"real": @}})", "/objects/0/values/real"},
    {"Length", R"({"type": "Rich", "name": "R", "values": {"length": @}})", "/objects/0/values/length"},
    {"Reals", R"({"type": "Rich", "name": "R", "values": {"reals": [1, @]}})", "/objects/0/values/reals/1"},
    {"Optional", R"({"type": "Rich", "name": "R", "added": {"mayReal": {"kind": "real", "value": @}}})",
     "/objects/0/added/mayReal/value"},
    {"Added", R"({"type": "Part", "name": "R", "added": {"own": {"kind": "real", "value": @}}})",
     "/objects/0/added/own/value"},
    {"Column", R"({"type": "Rich", "name": "R", "values": {"anything": {"column": [@]}}})",
     "/objects/0/values/anything/column/0"},
};

const NumberPlace integerPlaces[] = {
    {"Integer", R"({"type": "Rich", "name": "R", "values": {"integer": @}})", "/objects/0/values/integer"},
    {"Integers", R"({"type": "Rich", "name": "R", "values": {"integers": [0, @]}})", "/objects/0/values/integers/1"},
    {"Optional", R"({"type": "Rich", "name": "R", "added": {"mayInteger": {"kind": "integer", "value": @}}})",
     "/objects/0/added/mayInteger/value"},
    {"Added", R"({"type": "Part", "name": "R", "added": {"own": {"kind": "integer", "value": @}}})",
     "/objects/0/added/own/value"},
    {"Flag", R"({"type": "Part", "name": "R", "added": {"own": {"kind": "real", "flag": @}}})",
     "/objects/0/added/own/flag"},
};

std::string With(const NumberPlace& iPlace, const std::string& iNumber)
{
    std::string object = iPlace.object;
    object.replace(object.find('@'), 1, iNumber);
    return TestCatalog::Model(object);
}

/// As the exact dump gives a real.
std::string Bits(double iValue)
{
    char text[48];
    std::snprintf(text, sizeof(text), " %a", iValue);
    return text;
}

TEST_F(Edges, Integers_AreKeptUpToBothEnds)
{
    for (const NumberPlace& place : integerPlaces)
        for (const char* number : {"2147483647", "-2147483648", "-1", "1"})
        {
            const Model model = Model::Parse(With(place, number), "test");
            EXPECT_NE(model.Text().find(number), std::string::npos) << place.what << ' ' << number;
            ExpectRoundTrip(model);
        }
}

TEST_F(Edges, Integers_BeyondTheEndsAreRefused)
{
    for (const NumberPlace& place : integerPlaces)
    {
        const std::string at = std::string("m.json: ") + place.path + ": ";
        for (const char* number :
             {"2147483648", "-2147483649", "4294967295", "4294967296", "9223372036854775807", "-9223372036854775808"})
            EXPECT_EQ(ErrorOf(With(place, number)), at + "out of the range of an integer, which has 32 bits")
                << place.what << ' ' << number;
        for (const char* number : {"9223372036854775808", "18446744073709551615", "18446744073709551616", "1.0", "1e3",
                                   "-0.0", "1e400", "\"1\"", "null,1"})
            EXPECT_NE(ErrorOf(With(place, number)), "") << place.what << ' ' << number;
    }
}

TEST_F(Edges, Ids_HaveSixtyFourBits)
{
    for (const char* id : {"9223372036854775807", "-9223372036854775808", "0"})
    {
        const Model model =
            Model::Parse(TestCatalog::Model(std::string(R"({"type": "Everything", "name": "E", "id": )") + id +
                                            R"(, "values": {"other": {"ref": )" + id + "}}}"),
                         "test");
        EXPECT_EQ(ObjectAt(model.Find("E"), "other"), model.Find("E")) << id;
        ExpectRoundTrip(model);
    }
    for (const char* id : {"9223372036854775808", "-9223372036854775809", "1.0", "1e400"})
        EXPECT_NE(ErrorOf(TestCatalog::Model(std::string(R"({"type": "Part", "name": "P", "id": )") + id + "}")), "")
            << id;
}

TEST_F(Edges, Reals_AreKeptToTheLastBit)
{
    const double tiny = std::numeric_limits<double>::denorm_min();
    const double least = std::numeric_limits<double>::min();
    const double most = std::numeric_limits<double>::max();
    const struct
    {
        const char* text;
        double value;
    } rows[] = {{"0.0", 0.0},
                {"-0.0", -0.0},
                {"-0", 0.0}, // an integer, which has one zero
                {"0", 0.0},
                {"5e-324", tiny},
                {"4.9406564584124654e-324", tiny},
                {"-4.9406564584124654e-324", -tiny},
                {"2.4703282292062329e-324", tiny},
                {"2.4703282292062327e-324", 0.0},
                {"1e-400", 0.0},
                {"-1e-400", -0.0},
                {"2.2250738585072014e-308", least},
                {"2.2250738585072011e-308", std::nextafter(least, 0.0)},
                {"1.7976931348623157e308", most},
                {"1.7976931348623158e308", most},
                {"-1.7976931348623157e308", -most},
                {"0.1", 0.1},
                {"0.10000000000000001", 0.1},
                {"0.30000000000000004", 0.1 + 0.2},
                {"9007199254740992", 9007199254740992.0},
                {"9007199254740993", 9007199254740992.0},
                {"9007199254740993.0000000000000000000000000000001", 9007199254740994.0},
                {"18446744073709551615", 18446744073709551616.0},
                {"100000000000000000000000", 1e23},
                {"1e22", 1e22},
                {"1e23", 1e23},
                {"123456789012345678", 123456789012345680.0}};
    for (const NumberPlace& place : realPlaces)
        for (const auto& row : rows)
        {
            const Model model = Model::Parse(With(place, row.text), "test");
            EXPECT_NE(ExactDump(model).find(Bits(row.value) + "\n"), std::string::npos)
                << place.what << ' ' << row.text << " must be" << Bits(row.value);
            ExpectRoundTrip(model);
        }
}

TEST_F(Edges, Reals_BeyondTheLargestAndNoNumbersAreRefused)
{
    for (const NumberPlace& place : realPlaces)
        for (const char* number : {"1.7976931348623159e308",
                                   "-1.7976931348623159e308",
                                   "1e309",
                                   "-1e309",
                                   "1e999999999999",
                                   "NaN",
                                   "Infinity",
                                   "-Infinity",
                                   "nan",
                                   "inf",
                                   "+1",
                                   ".5",
                                   "1.",
                                   "01",
                                   "0x10",
                                   "1e",
                                   "--1",
                                   "1_000",
                                   "1,5",
                                   "\"nan\"",
                                   "\"inf\"",
                                   "\"1e309\"",
                                   "\"\"",
                                   "\"1 2\"",
                                   "true",
                                   "[]"})
        {
            // A list takes this as two numbers.
            const std::string what = place.what;
            if ((what == "Reals" || what == "Column") && number == std::string("1,5"))
                continue;
            EXPECT_NE(ErrorOf(With(place, number)), "") << what << ' ' << number;
        }
}

/// The C library's scan is the measure.
TEST_F(Edges, Reals_OfManyDigitsAreReadAsTheNearest)
{
    std::mt19937 random(17);
    for (int i = 0; i < 3000; ++i)
    {
        std::string number = random() % 2 == 0 ? "-" : "";
        number += static_cast<char>('1' + random() % 9);
        for (int left = static_cast<int>(random() % 20); left > 0; --left)
            number += static_cast<char>('0' + random() % 10);
        number += '.';
        for (int left = 1 + static_cast<int>(random() % (i % 10 == 0 ? 800 : 25)); left > 0; --left)
            number += static_cast<char>('0' + random() % 10);
        number += 'e' + std::to_string(static_cast<int>(random() % 640) - 345);
        const double wanted = std::strtod(number.c_str(), nullptr);
        if (!std::isfinite(wanted))
        {
            EXPECT_NE(ErrorOf(TestCatalog::ModelOfValues("\"real\": " + number)), "") << number;
            continue;
        }
        const Model model = Model::Parse(TestCatalog::ModelOfValues("\"real\": " + number), "test");
        const ORXISpecAttrAccess_var access = model.Find("E");
        const double read = access->GetDouble(KeyOf(model.Find("E"), "real"));
        EXPECT_EQ(std::memcmp(&read, &wanted, sizeof(read)), 0) << number << " was read as" << Bits(read);
    }
}

/// Half-way between two neighbours, and a last digit to either side of it.
TEST_F(Edges, Reals_HalfWayBetweenNeighboursGoToTheEvenOne)
{
    const struct
    {
        const char* half;
        double even;
        double below;
        double above;
    } rows[] = {
        {"9007199254740993", 9007199254740992.0, 9007199254740992.0, 9007199254740994.0},
        {"9007199254740995", 9007199254740996.0, 9007199254740994.0, 9007199254740996.0},
        {"1.00000000000000011102230246251565404236316680908203125", 1.0, 1.0, 1.0 + 0x1p-52},
        {"1.00000000000000033306690738754696212708950042724609375", 1.0 + 0x1p-51, 1.0 + 0x1p-52, 1.0 + 0x1p-51},
    };
    const auto read = [](const std::string& iNumber) {
        const Model model = Model::Parse(TestCatalog::ModelOfValues("\"real\": " + iNumber), "test");
        const ORXISpecAttrAccess_var access = model.Find("E");
        return access->GetDouble(KeyOf(model.Find("E"), "real"));
    };
    for (const auto& row : rows)
    {
        const std::string half = row.half;
        const std::string whole = half.find('.') == std::string::npos ? half + ".0" : half;
        EXPECT_EQ(read(half), row.even) << half;
        EXPECT_EQ(read(whole + std::string(60, '0') + "1"), row.above) << half;
        std::string less = whole.substr(0, whole.find_last_of("13579"));
        less += static_cast<char>(whole[less.size()] - 1);
        less += (less.find('.') == std::string::npos ? "." : "") + std::string(60, '9');
        EXPECT_EQ(read(less), row.below) << less;
    }
}

TEST_F(Edges, ZeroBytes_AreKeptWhereverATextStands)
{
    const ORXUnicodeString text("\0a\0\0", 4);
    Model model;
    const ORXISpecObject_var object = model.Create("Rich", text);
    VYRStandalone::SetAlias(object, text);
    VYRStandalone::SetIdentifier(object, text);
    WriteText(object, "string", text);
    ORXListValORXUnicodeString texts;
    texts.Append(text);
    texts.Append(ORXUnicodeString("\0", 1));
    texts.Append("");
    EXPECT_EQ(ORXISpecAttrAccess_var(object)->SetStringList(KeyOf(object, "strings"), texts), S_OK);
    ASSERT_TRUE(Add(object, text, tk_string));
    ExpectRoundTrip(model);
    const Model again = Model::Parse(model.Text(), "saved");
    const ORXISpecObject_var loaded = again.Objects().front();
    EXPECT_EQ(loaded->GetName().View(), text.View());
    EXPECT_EQ(ORXIAlias_var(loaded)->GetAlias().View(), text.View());
    ORXUnicodeString identifier;
    VYRIFldIdentifier_var(loaded)->GetIdentifier(identifier);
    EXPECT_EQ(identifier.View(), text.View());
    const ORXISpecAttrAccess_var access = loaded;
    EXPECT_EQ(access->GetString(KeyOf(loaded, "string")).View(), text.View());
    EXPECT_EQ(access->GetString(KeyOf(loaded, "strings"), 2).View(), std::string_view("\0", 1));
    EXPECT_EQ(VYRStandalone::Attributes(loaded).back().name, std::string(text.View()));

    // A name is told apart from one that ends at its zero byte.
    const Model referring = Model::Parse(TestCatalog::Model(R"({"type": "Part", "name": "P"},
        {"type": "Part", "name": "P\u0000"}, {"type": "Everything", "name": "E", "values": {"other": {"ref": "P\u0000"}}})"),
                                         "test");
    EXPECT_EQ(ObjectAt(referring.Find("E"), "other"), referring.Objects()[1]);
}

TEST_F(Edges, ZeroBytes_AsTheyAreHaveNoPlaceInADocument)
{
    const std::string whole = TestCatalog::ModelOfValues("\"string\": \"ab\"");
    ASSERT_EQ(ErrorOf(whole), "");
    for (std::size_t at = 0; at <= whole.size(); ++at)
    {
        std::string text = whole;
        text.insert(at, 1, '\0');
        EXPECT_EQ(ErrorOf(text), "m.json:1:" + std::to_string(at + 1) + ": A zero byte has no place in JSON.");
    }
    EXPECT_EQ(CatalogError(std::string("{\"catalog\": \"Zero\", \"types\": []}\0", 33)),
              "c.json:1:33: A zero byte has no place in JSON.");
}

TEST_F(Edges, ZeroBytes_InAnErrorDoNotEndIt)
{
    EXPECT_EQ(ErrorOf(TestCatalog::ModelOfValues(R"("other": {"ref": "a\u0000b"})")),
              "m.json: /objects/0/values/other/ref: no object has the identifier or the name \"a b\"");
    EXPECT_EQ(ErrorOf(TestCatalog::Model(R"({"type": "Part", "name": "P", "values": {"a\u0000b": 1}})")),
              "m.json: /objects/0/values/a b: type \"Part\" has no attribute \"a b\"; there are \"size\", \"label\", "
              "\"inside\"");
}

/// Every place of a document where one key may stand twice, also under two writings.
TEST_F(Edges, KeysThatStandTwice_AreRefusedEverywhere)
{
    const struct
    {
        const char* model;
        const char* path;
    } rows[] = {
        {R"({"model": 1, "model": 1, "objects": []})", "/model"},
        {R"({"model": 1, "objects": [], "objects": []})", "/objects"},
        {R"({"model": 1, "objects": [], "\u006fbjects": []})", "/objects"},
        {R"({"model": 1, "objects": [{"type": "Part", "type": "Part", "name": "P"}]})", "/objects/0/type"},
        {R"({"model": 1, "objects": [{"type": "Part", "name": "P", "values": {}, "values": {}}]})",
         "/objects/0/values"},
        {R"({"model": 1, "objects": [{"type": "Part", "name": "P", "values": {"size": 1, "size": 1}}]})",
         "/objects/0/values/size"},
        {R"({"model": 1, "objects": [{"type": "Part", "name": "P", "values": {"size": 1, "s\u0069ze": 1}}]})",
         "/objects/0/values/size"},
        {R"({"model": 1, "objects": [{"type": "Part", "name": "P", "added": {"a": {"kind": "real"},
             "a": {"kind": "real"}}}]})",
         "/objects/0/added/a"},
        {R"({"model": 1, "objects": [{"type": "Part", "name": "P", "added": {"a": {"kind": "real", "kind": "real"}}}]})",
         "/objects/0/added/a/kind"},
        {R"({"model": 1, "objects": [{"type": "Everything", "name": "E", "values": {"part": {"values": {}, "values": {}}}}]})",
         "/objects/0/values/part/values"},
        {R"({"model": 1, "objects": [{"type": "Everything", "name": "E", "values": {"anything": {"column": [],
             "column": []}}}]})",
         "/objects/0/values/anything/column"},
        {R"({"model": 1, "objects": [{"type": "Everything", "name": "E", "id": 1, "values": {"other": {"ref": 1,
             "ref": 1}}}]})",
         "/objects/0/values/other/ref"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ErrorOf(row.model), std::string("m.json: ") + row.path + ": stands twice");
    const struct
    {
        const char* catalog;
        const char* path;
    } catalogs[] = {
        {R"({"catalog": "Twice", "catalog": "Twice", "types": []})", "/catalog"},
        {R"({"catalog": "Twice", "types": [{"name": "TwiceA", "name": "TwiceB"}]})", "/types/0/name"},
        {R"({"catalog": "Twice", "types": [{"name": "TwiceA", "attributes": [{"name": "a", "kind": "real",
             "kind": "real"}]}]})",
         "/types/0/attributes/0/kind"},
        {R"({"catalog": "Twice", "types": [{"name": "TwiceA", "base": "Part", "startup": {"size": 1, "size": 2}}]})",
         "/types/0/startup/size"},
    };
    for (const auto& row : catalogs)
        EXPECT_EQ(CatalogError(row.catalog), std::string("c.json: ") + row.path + ": stands twice");
}

/// Objects of every size; the first key that stands behind itself is told, not the first by the alphabet.
TEST_F(Edges, DoubledKeysAmongFewAndMany_AreToldInTheOrderOfTheDocument)
{
    for (const int others : {0, 1, 29, 30, 31, 60, 500})
    {
        std::string keys;
        for (int i = 0; i < others; ++i)
            keys += "\"m" + std::to_string((i * 7919) % 1000) + "\": {}, ";
        const std::string object = R"({"type": "Part", "name": "P", "added": {)";
        const std::string doubled = R"("z": {}, "a": {}, )" + keys + R"("z": {}, "a": {}, "a": {}}})";
        EXPECT_EQ(ErrorOf(TestCatalog::Model(object + doubled)), "m.json: /objects/0/added/z: stands twice") << others;
        const std::string single = R"("z": {}, "a": {}, )" + keys + R"("zz": {}}})";
        EXPECT_EQ(ErrorOf(TestCatalog::Model(object + single)), "m.json: /objects/0/added/z/kind: is missing")
            << others;
    }
}

/// Bytes that are no UTF-8: lone and missing continuations, longer forms than needed, halves of surrogate pairs, and
/// what lies beyond the last character.
const std::vector<std::string> noUtf8 = {"\x80",
                                         "\xBF",
                                         "\xC3",
                                         "\xC3(",
                                         "\xC0\x80",
                                         "\xC1\xBF",
                                         "\xE2\x82",
                                         "\xE0\x80\xAF",
                                         "\xED\xA0\x80",
                                         "\xED\xBF\xBF",
                                         "\xF0\x9F\x8C",
                                         "\xF0\x80\x80\xAF",
                                         "\xF4\x90\x80\x80",
                                         "\xF8\x88\x80\x80\x80",
                                         "\xFE",
                                         "\xFF",
                                         "\xE4"};

TEST_F(Edges, TextsThatAreNoUtf8_AreRefusedInDocuments)
{
    const char* const places[] = {
        R"({"model": 1, "objects": [{"type": "Part", "name": "a@b"}]})",
        R"({"model": 1, "objects": [{"type": "Part", "name": "P", "alias": "a@b"}]})",
        R"({"model": 1, "objects": [{"type": "Part", "name": "P", "values": {"label": "a@b"}}]})",
        R"({"model": 1, "objects": [{"type": "Part", "name": "P", "values": {"a@b": 1}}]})",
        R"({"model": 1, "objects": [{"type": "Part", "name": "P", "added": {"a@b": {"kind": "real"}}}]})",
        R"({"model": 1, "objects": [{"type": "Part", "name": "P", "added": {"a": {"kind": "string", "value": "@"}}}]})",
        R"({"model": 1, "catalogs": ["a@b"], "objects": []})",
    };
    for (const char* place : places)
        for (const std::string& bytes : noUtf8)
        {
            std::string text = place;
            text.replace(text.find('@'), 1, bytes);
            const std::string error = ErrorOf(text);
            EXPECT_EQ(error.find("m.json:1:"), 0U) << error;
            EXPECT_NE(error.find(": Invalid encoding in string."), std::string::npos) << place << ": " << error;
        }
    for (const std::string& bytes : noUtf8)
    {
        const TemporaryFolder folder;
        EXPECT_NE(CatalogError("{\"catalog\": \"" + bytes + "\", \"types\": []}").find("Invalid encoding"),
                  std::string::npos);
        const std::string file = folder.Write("c.json", "{\"configurations\": [{\"name\": \"" + bytes + "\"}]}");
        EXPECT_THROW(VYRStandalone::CheckJson(file), DocumentError);
    }
}

TEST_F(Edges, TextsThatAreNoUtf8_CannotBeSaved)
{
    const TemporaryFolder folder;
    const std::string file = folder.Write("m.json", "old");
    const auto saveError = [&](const Model& iModel) {
        try
        {
            iModel.Save(file);
        }
        catch (const DocumentError& error)
        {
            return std::string(error.what()).substr(file.size());
        }
        return std::string();
    };
    const std::string said = ": a text that is no UTF-8 cannot be saved";
    for (const std::string& bytes : noUtf8)
    {
        const ORXUnicodeString text(bytes.data(), bytes.size());
        Model named;
        named.Create("Part", text);
        EXPECT_EQ(saveError(named), ": /objects/0/name" + said);
        Model model;
        const ORXISpecObject_var object = model.Create("Everything", "E");
        VYRStandalone::SetAlias(object, text);
        EXPECT_EQ(saveError(model), ": /objects/0/alias" + said);
        VYRStandalone::SetAlias(object, "");
        VYRStandalone::SetIdentifier(object, text);
        EXPECT_EQ(saveError(model), ": /objects/0/identifier" + said);
        VYRStandalone::SetIdentifier(object, "");
        WriteText(object, "string", text);
        EXPECT_EQ(saveError(model), ": /objects/0/values/string" + said);
        WriteText(object, "string", "");
        ORXListValORXUnicodeString texts;
        texts.Append("a");
        texts.Append(text);
        EXPECT_EQ(ORXISpecAttrAccess_var(object)->SetStringList(KeyOf(object, "strings"), texts), S_OK);
        EXPECT_EQ(saveError(model).find(": /objects/0/values/strings"), 0U) << saveError(model);
        EXPECT_EQ(ORXISpecAttrAccess_var(object)->RemoveAll(KeyOf(object, "strings")), S_OK);
        EXPECT_EQ(saveError(model), "");
        folder.Write("m.json", "old");
        ASSERT_TRUE(Add(object, text, tk_string));
        EXPECT_NE(saveError(model).find("the name of an attribute is no UTF-8 and cannot be saved"), std::string::npos);
        EXPECT_EQ(folder.Read("m.json"), "old");
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"m.json"});
    }
}

TEST_F(Edges, TextsOfEveryLengthOfUtf8_AreKept)
{
    const std::string text = "\x01\x1F \x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\xF0\x90"
                             "\x80\x80\xF4\x8F\xBF\xBF\xE2\x80\xA8\xEF\xBB\xBF";
    Model model;
    const ORXISpecObject_var object = model.Create("Everything", text.c_str());
    WriteText(object, "string", text.c_str());
    ASSERT_TRUE(Add(object, text.c_str(), tk_string));
    ExpectRoundTrip(model);
    EXPECT_EQ(Model::Parse(model.Text(), "saved").Objects().front()->GetName().View(), text);
}
} // namespace
