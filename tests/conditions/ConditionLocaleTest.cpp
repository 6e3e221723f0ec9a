/**
 * @file
 * Numbers in conditions are read with a full stop, whatever the user's locale is.
 */

#include <clocale>
#include <locale>
#include <sstream>

#include "ConditionFixture.h"

namespace
{
/// Writes one and a half thousand as "1.500,00".
class CommaPunctuation : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/// Runs under a locale with a decimal comma, for the streams and, where one is installed, for the C library as well.
class ConditionLocaleTest : public ConditionFixture
{
protected:
    void SetUp() override
    {
        ConditionFixture::SetUp();
        Write("real", "1.5");
        Write("integer", "1500");
        m_stream = std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
        m_library = std::setlocale(LC_NUMERIC, nullptr);
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8", "fr_FR"})
            if (std::setlocale(LC_NUMERIC, name) != nullptr)
                break;
    }

    void TearDown() override
    {
        std::locale::global(m_stream);
        std::setlocale(LC_NUMERIC, m_library.c_str());
        ConditionFixture::TearDown();
    }

private:
    std::locale m_stream;
    std::string m_library;
};

TEST_F(ConditionLocaleTest, TheDecimalPoint_IsAFullStop)
{
    double number = 0.0;
    std::istringstream("1,5") >> number;
    ASSERT_EQ(number, 1.5) << "the locale is not the one that this test is about";

    EXPECT_TRUE(Holds("real==1.5"));
    EXPECT_TRUE(Holds("real>1,75")) << "the number ends at the comma";
    EXPECT_FALSE(Holds("real==1,5"));
}

TEST_F(ConditionLocaleTest, ThousandsAreNotParted)
{
    EXPECT_TRUE(Holds("integer==1500"));
    EXPECT_FALSE(Holds("integer==1.500"));
    EXPECT_TRUE(Holds("integer>1.500")) << "the number ends at the full stop";
}
} // namespace
