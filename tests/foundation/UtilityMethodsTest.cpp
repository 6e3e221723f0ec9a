/**
 * @file
 * Text utilities: splitting, converting, identifiers, paths.
 */

#include <cstdio>
#include <locale>
#include <set>
#include <string>
#include <vector>

#include "ModuleTest.h"
#include "VYRCfdUtilityMethods.h"

namespace
{
using Utilities = VYRCfdUtilityMethods;

class UtilityMethods : public ModuleTest
{
};

struct SplitCase
{
    const char* text;
    const char* delimiter;
    std::vector<ORXUnicodeString> tokens;
};

const SplitCase SplitCases[] = {
    {"a, b c ,d", ",", {"a", "bc", "d"}},
    {"", ",", {""}},
    {"a", ",", {"a"}},
    {"a,", ",", {"a", ""}},
    {",a", ",", {"", "a"}},
    {",", ",", {"", ""}},
    {" , ", ",", {"", ""}},
    {"   ", ",", {""}},
    {"a,,b", ",", {"a", "", "b"}},
    {"a;b", ",", {"a;b"}},
    // Blanks go, other white space stays.
    {"\ta\t, b\n", ",", {"\ta\t", "b\n"}},
    // The next token starts one character behind the hit, so a longer delimiter leaves its tail.
    {"a;;b", ";;", {"a", ";b"}},
    {"a;;;b", ";;", {"a", "", ";b"}},
    {"a<->b<->c", "<->", {"a", "->b", "->c"}},
    {"\xC3\xA9 \xC3\xA8,\xE2\x82\xAC", ",", {"\xC3\xA9\xC3\xA8", "\xE2\x82\xAC"}},
};

TEST_F(UtilityMethods, ConvertStringToVector_SplitsAndRemovesEveryBlank)
{
    for (const SplitCase& row : SplitCases)
    {
        std::vector<ORXUnicodeString> tokens;
        EXPECT_EQ(Utilities::ConvertStringToVector(row.text, tokens, row.delimiter), S_OK) << row.text;
        EXPECT_EQ(tokens, row.tokens) << row.text;
    }
}

TEST_F(UtilityMethods, ConvertStringToList_SplitsAlike)
{
    for (const SplitCase& row : SplitCases)
    {
        ORXListValORXUnicodeString list;
        EXPECT_EQ(Utilities::ConvertStringToList(row.text, list, row.delimiter), S_OK) << row.text;
        std::vector<ORXUnicodeString> tokens;
        for (int at = 1; at <= list.Size(); ++at)
            tokens.push_back(list[at]);
        EXPECT_EQ(tokens, row.tokens) << row.text;
    }
}

TEST_F(UtilityMethods, Splitting_AppendsBehindWhatTheContainerHolds)
{
    std::vector<ORXUnicodeString> tokens = {"old"};
    EXPECT_EQ(Utilities::ConvertStringToVector("a,b", tokens, ","), S_OK);
    EXPECT_EQ(tokens, (std::vector<ORXUnicodeString>{"old", "a", "b"}));
    ORXListValORXUnicodeString list;
    list.Append("old");
    EXPECT_EQ(Utilities::ConvertStringToList("", list, ","), S_OK);
    ASSERT_EQ(list.Size(), 2);
    EXPECT_EQ(list[1], ORXUnicodeString("old"));
    EXPECT_EQ(list[2], ORXUnicodeString());
}

TEST_F(UtilityMethods, ConvertStringToVector_SplitsAtCommasByDefault)
{
    std::vector<ORXUnicodeString> tokens;
    EXPECT_EQ(Utilities::ConvertStringToVector("a;b,c", tokens), S_OK);
    EXPECT_EQ(tokens, (std::vector<ORXUnicodeString>{"a;b", "c"}));
}

// ---- booleans -------------------------------------------------------------------------------------------------------

constexpr Utilities::VYRCfdBooleanConvertType ConvertTypes[] = {
    Utilities::VYRCfdEmptyIsFalse, Utilities::VYRCfdEmptyIsTrue, Utilities::VYRCfdEmptyIsInvalid,
    static_cast<Utilities::VYRCfdBooleanConvertType>(3)};

TEST_F(UtilityMethods, ConvertTypes_HaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(Utilities::VYRCfdEmptyIsFalse), 0);
    EXPECT_EQ(static_cast<int>(Utilities::VYRCfdEmptyIsTrue), 1);
    EXPECT_EQ(static_cast<int>(Utilities::VYRCfdEmptyIsInvalid), 2);
}

TEST_F(UtilityMethods, ConvertToBoolean_ReadsItsWordsInAnyCase)
{
    const std::pair<bool, std::vector<const char*>> cases[] = {
        {true, {"t", "T", "y", "Y", "true", "TRUE", "TrUe", "yes", "YES", "on", "On", "ON", "1"}},
        {false, {"f", "F", "n", "N", "false", "FALSE", "fAlSe", "no", "NO", "off", "OFF", "0"}},
    };
    for (const auto& [expected, texts] : cases)
        for (const char* text : texts)
            for (const auto type : ConvertTypes)
            {
                bool value = !expected;
                EXPECT_EQ(Utilities::ConvertToBoolean(text, value, type), S_OK) << text;
                EXPECT_EQ(value, expected) << text;
            }
}

TEST_F(UtilityMethods, ConvertToBoolean_RefusesAnythingElseAndLeavesTheValue)
{
    for (const char* text : {"2", " true", "true ", " ", "tr", "truee", "00", "01", "-1", "1.0", "wahr", "oui", "y\n"})
        for (const auto type : ConvertTypes)
            for (const bool before : {true, false})
            {
                bool value = before;
                EXPECT_EQ(Utilities::ConvertToBoolean(text, value, type), E_FAIL) << text;
                EXPECT_EQ(value, before) << text;
            }
}

TEST_F(UtilityMethods, ConvertToBoolean_ReadsAnEmptyTextByItsType)
{
    bool value = true;
    EXPECT_EQ(Utilities::ConvertToBoolean("", value, Utilities::VYRCfdEmptyIsFalse), S_OK);
    EXPECT_FALSE(value);
    EXPECT_EQ(Utilities::ConvertToBoolean("", value, Utilities::VYRCfdEmptyIsTrue), S_OK);
    EXPECT_TRUE(value);
    EXPECT_EQ(Utilities::ConvertToBoolean("", value, Utilities::VYRCfdEmptyIsInvalid), E_FAIL);
    EXPECT_EQ(Utilities::ConvertToBoolean("", value, ConvertTypes[3]), E_FAIL);
    EXPECT_TRUE(value);
}

// ---- numbers --------------------------------------------------------------------------------------------------------

/// Makes the comma the decimal separator of every stream that asks for no locale of its own.
class CommaLocale
{
public:
    CommaLocale() : m_before(std::locale::global(std::locale(std::locale::classic(), new Comma))) {}
    ~CommaLocale() { std::locale::global(m_before); }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    class Comma : public std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::locale m_before;
};

template <class Number> struct NumberCase
{
    const char* text;
    HRESULT status;
    Number value;
};

// The value goes to the stream as it is, and holds what the extraction leaves there: 0 where characters stand that are
// no number, the nearest number where it is out of range, and what was there before where no character stands.
constexpr double Before = 99.0;

constexpr NumberCase<double> DoubleCases[] = {
    {"1.5", S_OK, 1.5},       {"  1.5e3x", S_OK, 1500.0}, {"1,5", S_OK, 1.0},         {"-2", S_OK, -2.0},
    {"+3.25", S_OK, 3.25},    {".5", S_OK, 0.5},          {"5.", S_OK, 5.0},          {"1e-3", S_OK, 0.001},
    {"\t\n 7 8", S_OK, 7.0},  {"12abc", S_OK, 12.0},      {"1.234.567", S_OK, 1.234}, {"0", S_OK, 0.0},
    {"1234.5", S_OK, 1234.5}, {"", E_FAIL, Before},       {"abc", E_FAIL, 0.0},       {".", E_FAIL, 0.0},
    {"   ", E_FAIL, Before},  {",5", E_FAIL, 0.0},        {"-", E_FAIL, 0.0},         {"e5", E_FAIL, 0.0},
};

TEST_F(UtilityMethods, ConvertToDouble_ReadsTheNumberAtTheHead)
{
    for (const auto& row : DoubleCases)
    {
        double value = Before;
        EXPECT_EQ(Utilities::ConvertToDouble(row.text, value), row.status) << row.text;
        EXPECT_EQ(value, row.value) << row.text;
    }
    double value = 0.0;
    EXPECT_EQ(Utilities::ConvertToDouble("1e999", value), E_FAIL);
}

TEST_F(UtilityMethods, ConvertToDouble_KeepsThePointUnderALocaleWithADecimalComma)
{
    const CommaLocale locale;
    for (const auto& row : DoubleCases)
    {
        double value = Before;
        EXPECT_EQ(Utilities::ConvertToDouble(row.text, value), row.status) << row.text;
        EXPECT_EQ(value, row.value) << row.text;
    }
}

constexpr NumberCase<int> IntegerCases[] = {
    {"12", S_OK, 12},
    {"12abc", S_OK, 12},
    {"12.7", S_OK, 12},
    {" -5", S_OK, -5},
    {"+5", S_OK, 5},
    {"010", S_OK, 10},
    {"0x10", S_OK, 0},
    {"1.234", S_OK, 1},
    {"2147483647", S_OK, 2147483647},
    {"-2147483648", S_OK, -2147483647 - 1},
    {"", E_FAIL, static_cast<int>(Before)},
    {"abc", E_FAIL, 0},
    {".5", E_FAIL, 0},
    {"2147483648", E_FAIL, 2147483647},
    {"-2147483649", E_FAIL, -2147483647 - 1},
    {"99999999999999999999", E_FAIL, 2147483647},
};

TEST_F(UtilityMethods, ConvertToInteger_ReadsTheNumberAtTheHead)
{
    for (const bool withComma : {false, true})
    {
        const std::locale before = std::locale();
        {
            const CommaLocale comma;
            if (!withComma)
                std::locale::global(std::locale::classic());
            for (const auto& row : IntegerCases)
            {
                int value = static_cast<int>(Before);
                EXPECT_EQ(Utilities::ConvertToInteger(row.text, value), row.status) << row.text;
                EXPECT_EQ(value, row.value) << row.text;
            }
        }
        EXPECT_EQ(std::locale(), before);
    }
}

// ---- identifiers ----------------------------------------------------------------------------------------------------

TEST_F(UtilityMethods, GenerateUUID_GivesFourGroupsOfHexadecimalDigitsWithoutPadding)
{
    std::set<std::string> seen;
    bool isShorter = false;
    for (int round = 0; round < 2000; ++round)
    {
        const std::string text = Utilities::GenerateUUID().CastToCharPtr();
        unsigned int words[4] = {};
        int length = 0;
        ASSERT_EQ(std::sscanf(text.c_str(), "%x_%x_%x_%x%n", &words[0], &words[1], &words[2], &words[3], &length), 4)
            << text;
        char printed[40];
        std::snprintf(printed, sizeof(printed), "%x_%x_%x_%x", words[0], words[1], words[2], words[3]);
        EXPECT_EQ(text, printed) << "lower case, no zeros in front, nothing behind";
        EXPECT_LE(text.size(), 35U);
        isShorter = isShorter || text.size() < 35;
        EXPECT_TRUE(seen.insert(text).second) << text << " was given before";
    }
    EXPECT_TRUE(isShorter) << "of so many some have a group with a leading zero";
}

// ---- paths ----------------------------------------------------------------------------------------------------------

TEST_F(UtilityMethods, NormalizePath_ResolvesDotsAndDropsEmptyComponents)
{
    const std::pair<const char*, const char*> cases[] = {
        {"a/b", "a/b"},
        {"a//b", "a/b"},
        {"/a/./b/", "a/b"},
        {"a/../b", "b"},
        {"a/b/../../c", "c"},
        {"a/b/../..", ""},
        {"a/..", ""},
        {"", ""},
        {"/", ""},
        {"///", ""},
        {".", ""},
        {"./a/.", "a"},
        {"a/b/..", "a"},
        {" a / b ", " a / b "},
        {" ", " "},
        {"...", "..."},
        {"a/.../b", "a/.../b"},
        {".a/..b", ".a/..b"},
        {"a/ ../b", "a/ ../b"},
        {"a/b/../c/../d", "a/d"},
    };
    for (const auto& [path, expected] : cases)
    {
        ORXUnicodeString normalized("before");
        EXPECT_EQ(Utilities::NormalizePath(path, normalized), S_OK) << path;
        EXPECT_EQ(normalized, ORXUnicodeString(expected)) << path;
    }
}

TEST_F(UtilityMethods, NormalizePath_AboveTheStart_FailsWithAnEmptyResult)
{
    for (const char* path : {"..", "../a", "/../a", "a/../..", "a/../../b", "./..", "a/b/../../../c/d"})
    {
        ORXUnicodeString normalized("before");
        EXPECT_EQ(Utilities::NormalizePath(path, normalized), E_FAIL) << path;
        EXPECT_EQ(normalized, ORXUnicodeString()) << path;
    }
}

TEST_F(UtilityMethods, SplitAttr_CutsAtTheFirstSlashAndLeavesTheTailWhereNothingFollows)
{
    struct Case
    {
        const char* path;
        const char* head;
        const char* tail;
    };
    constexpr Case cases[] = {
        {"a/b/c", "a", "b/c"}, {"/a", "", "a"},     {"a/", "a", "before"}, {"a", "a", "before"},
        {"", "", "before"},    {"/", "", "before"}, {"a//b", "a", "/b"},   {"\xC3\xA9/b", "\xC3\xA9", "b"},
    };
    for (const Case& row : cases)
    {
        ORXUnicodeString head("before");
        ORXUnicodeString tail("before");
        EXPECT_EQ(Utilities::SplitAttr(row.path, head, tail), S_OK) << row.path;
        EXPECT_EQ(head, ORXUnicodeString(row.head)) << row.path;
        EXPECT_EQ(tail, ORXUnicodeString(row.tail)) << row.path;
    }
}
} // namespace
