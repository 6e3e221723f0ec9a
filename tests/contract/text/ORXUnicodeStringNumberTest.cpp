/**
 * @file
 * Numbers out of texts.
 */

#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "NumberTexts.h"
#include "ORXUnicodeString.h"
#include "TemporaryFolder.h"

namespace
{
constexpr int Untouched = -77;

struct IntegerCase
{
    const char* text;
    /// Nothing where the text holds no number.
    std::optional<int> wanted;
};

TEST(ConvertToNum, Integer_ReadsTheLongestPrefix)
{
    const IntegerCase cases[] = {
        {"0", 0},
        {"25", 25},
        {"-1", -1},
        {"+7", 7},
        {"007", 7},
        {" \t\n\v\f\r12", 12},
        {"12abc", 12},
        {"12.9", 12},
        {"1e3", 1},
        {"0x10", 0},
        {"2147483647", 2147483647},
        {"-2147483648", std::numeric_limits<int>::min()},
        {"2147483648", std::nullopt},
        {"-2147483649", std::nullopt},
        {"99999999999999999999999", std::nullopt},
        {"", std::nullopt},
        {" ", std::nullopt},
        {"abc", std::nullopt},
        {"E7", std::nullopt},
        {"-", std::nullopt},
        {"+", std::nullopt},
        {"+-5", std::nullopt},
        {"-+5", std::nullopt},
        {"--5", std::nullopt},
        {"- 5", std::nullopt},
        {".5", std::nullopt},
        {"\xC2\xA0"
         "5",
         std::nullopt}, // a no-break space is no white space of the C locale
    };
    for (const IntegerCase& row : cases)
    {
        int number = Untouched;
        const int answer = ORXUnicodeString(row.text).ConvertToNum(&number, "%d");
        EXPECT_EQ(answer != 0, row.wanted.has_value()) << row.text;
        EXPECT_EQ(number, row.wanted.value_or(Untouched)) << row.text;
    }
}

struct RealCase
{
    const char* text;
    std::optional<double> wanted;
};

const RealCase RealCases[] = {
    {"0", 0.0},
    {"1.5", 1.5},
    {"-2.5e-3", -2.5e-3},
    {"+4", 4.0},
    {".5", 0.5},
    {"5.", 5.0},
    {" \t\n\v\f\r1.5e3x", 1500.0},
    {"1,5", 1.0},
    {"1e", 1.0},
    {"1e+", 1.0},
    {"3 m", 3.0},
    {"0x1p4", 16.0},
    {"1e308", 1e308},
    {"1e-400", 0.0},
    {"4.9e-324", 4.9e-324},
    {"0.1", 0.1},
    {"1.7976931348623157e308", std::numeric_limits<double>::max()},
    {"1e309", std::nullopt},
    {"-1e309", std::nullopt},
    {"", std::nullopt},
    {" ", std::nullopt},
    {"abc", std::nullopt},
    {".", std::nullopt},
    {"-", std::nullopt},
    {"e5", std::nullopt},
    {",5", std::nullopt},
};

void CheckReals(const char* iFormat)
{
    for (const RealCase& row : RealCases)
    {
        double number = Untouched;
        const int answer = ORXUnicodeString(row.text).ConvertToNum(&number, iFormat);
        EXPECT_EQ(answer != 0, row.wanted.has_value()) << row.text << " by " << iFormat;
        EXPECT_EQ(number, row.wanted.value_or(Untouched)) << row.text << " by " << iFormat;
    }
}

TEST(ConvertToNum, Real_ReadsTheLongestPrefixByEachFormat)
{
    for (const char* format : {"%le", "%lf", "%lg", "%e", "%f", "%g"})
        CheckReals(format);
}

TEST(ConvertToNum, Real_KeepsTheSignOfZeroAndReadsInfinity)
{
    double number = 1.0;
    EXPECT_NE(ORXUnicodeString("-0.0").ConvertToNum(&number, "%le"), 0);
    EXPECT_TRUE(number == 0.0 && std::signbit(number));
    EXPECT_NE(ORXUnicodeString("inf").ConvertToNum(&number, "%le"), 0);
    EXPECT_TRUE(std::isinf(number));
}

/// Both are the same, also in the sign of zero, or no number.
bool IsSame(double iLeft, double iRight)
{
    return std::isnan(iLeft) ? std::isnan(iRight) : iLeft == iRight && std::signbit(iLeft) == std::signbit(iRight);
}

TEST(ConvertToNum, GeneratedTexts_AreReadAsTheScanReadsThem)
{
    constexpr int Texts = 300000;
    NumberTexts texts(20261122);
    int reals = 0;
    for (int made = 0; made < Texts; ++made)
    {
        const std::string text = texts.Make();
        const ORXUnicodeString given(text.c_str());

        char* end = nullptr;
        errno = 0;
        const long long whole = std::strtoll(text.c_str(), &end, 10);
        const bool isInteger = end != text.c_str() && errno == 0 && whole >= std::numeric_limits<int>::min() &&
                               whole <= std::numeric_limits<int>::max();
        int integer = Untouched;
        ASSERT_EQ(given.ConvertToNum(&integer, "%d") != 0, isInteger) << testing::PrintToString(text);
        ASSERT_EQ(integer, isInteger ? whole : Untouched) << testing::PrintToString(text);

        double scanned = 0.0;
        errno = 0;
        const bool isScanned = std::sscanf(text.c_str(), "%le", &scanned) == 1;
        const bool isReal = isScanned && !(errno == ERANGE && std::isinf(scanned));
        double real = Untouched;
        ASSERT_EQ(given.ConvertToNum(&real, "%le") != 0, isReal) << testing::PrintToString(text);
        ASSERT_TRUE(IsSame(real, isReal ? scanned : Untouched))
            << testing::PrintToString(text) << ": " << real << ", scanned " << scanned;
        reals += isReal;
    }
    EXPECT_GT(reals, Texts / 3);
    EXPECT_LT(reals, Texts * 9 / 10);
}

TEST(ConvertToNum, UnknownFormat_ReadsNothing)
{
    int integer = Untouched;
    double real = Untouched;
    const ORXUnicodeString text("5");
    for (const char* format : {"", "%s", "%x", "%i", "%ld", " %d", "%d ", "%le"})
        EXPECT_EQ(text.ConvertToNum(&integer, format), 0) << format;
    for (const char* format : {"", "%s", "%d", "%Lf", " %le", "%le "})
        EXPECT_EQ(text.ConvertToNum(&real, format), 0) << format;
    EXPECT_EQ(text.ConvertToNum(&integer, nullptr), 0);
    EXPECT_EQ(text.ConvertToNum(&real, nullptr), 0);
    EXPECT_EQ(integer, Untouched);
    EXPECT_EQ(real, Untouched);
}

/// A locale with a decimal comma, made for the test, since machines have different ones installed.
class CommaLocale
{
public:
    CommaLocale()
    {
        const std::string command =
            "localedef -i de_DE -f UTF-8 '" + m_folder.Path("de_DE.UTF-8") + "' >/dev/null 2>&1";
        if (std::system(command.c_str()) != 0)
            return;
        setenv("LOCPATH", m_folder.Path().c_str(), 1);
        m_set = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    }

    ~CommaLocale()
    {
        std::setlocale(LC_ALL, "C");
        unsetenv("LOCPATH");
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool IsSet() const { return m_set; }

private:
    TemporaryFolder m_folder;
    bool m_set = false;
};

TEST(ConvertToNum, UnderALocaleWithDecimalComma_ReadsTheSame)
{
    const CommaLocale locale;
    if (!locale.IsSet())
        GTEST_SKIP() << "localedef cannot make the locale de_DE here";
    ASSERT_EQ(std::strtod("1,5", nullptr), 1.5) << "the locale has no decimal comma";
    CheckReals("%le");
}
} // namespace
