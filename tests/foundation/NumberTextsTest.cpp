/**
 * @file
 * Numbers are read from texts exactly as a stream with the classic locale extracts them: acceptance, value, and what
 * becomes of the target where there is no number.
 */

#include "NumberTexts.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <locale>
#include <sstream>

#include "ModuleTest.h"
#include "VYRCfdUtilityMethods.h"

namespace
{
using Utilities = VYRCfdUtilityMethods;

constexpr int Texts = 300000;
constexpr std::uint64_t Seed = 20261121;

/// A number as a stream extracts it, or as a conversion reads it.
template <class Number> struct Extracted
{
    bool isRead = false;
    Number number = Number(42);

    /// Bit by bit: the sign of zero counts.
    bool operator==(const Extracted& iOther) const
    {
        if constexpr (sizeof(Number) == sizeof(std::uint64_t))
            return isRead == iOther.isRead &&
                   std::bit_cast<std::uint64_t>(number) == std::bit_cast<std::uint64_t>(iOther.number);
        else
            return isRead == iOther.isRead && number == iOther.number;
    }
};

template <class Number> std::ostream& operator<<(std::ostream& ioStream, const Extracted<Number>& iExtracted)
{
    ioStream.precision(std::numeric_limits<double>::max_digits10);
    return ioStream << (iExtracted.isRead ? "read, " : "refused, ") << iExtracted.number;
}

template <class Number> Extracted<Number> ByStream(const std::string& iText)
{
    Extracted<Number> extracted;
    std::istringstream stream(iText);
    stream.imbue(std::locale::classic());
    stream >> extracted.number;
    extracted.isRead = !stream.fail() && !stream.bad();
    return extracted;
}

Extracted<double> Real(const std::string& iText)
{
    Extracted<double> extracted;
    extracted.isRead = Utilities::ConvertToDouble(iText.c_str(), extracted.number) == S_OK;
    return extracted;
}

Extracted<int> Integer(const std::string& iText)
{
    Extracted<int> extracted;
    extracted.isRead = Utilities::ConvertToInteger(iText.c_str(), extracted.number) == S_OK;
    return extracted;
}

void CheckText(const std::string& iText)
{
    ASSERT_EQ(Real(iText), ByStream<double>(iText)) << testing::PrintToString(iText);
    ASSERT_EQ(Integer(iText), ByStream<int>(iText)) << testing::PrintToString(iText);
}

class NumberTextsTest : public ModuleTest
{
};

TEST_F(NumberTextsTest, EveryShortText_IsReadAsTheStreamReadsIt)
{
    static constexpr char Characters[] = "019.eE+-x,i \t";
    static constexpr std::size_t Count = sizeof(Characters) - 1;
    CheckText("");
    for (std::size_t length = 1, all = Count; length <= 4; ++length, all *= Count)
        for (std::size_t number = 0; number < all; ++number)
        {
            std::string text;
            for (std::size_t rest = number; text.size() < length; rest /= Count)
                text += Characters[rest % Count];
            CheckText(text);
            if (HasFatalFailure())
                return;
        }
}

TEST_F(NumberTextsTest, GeneratedTexts_AreReadAsTheStreamReadsThem)
{
    NumberTexts texts(Seed);
    int reals = 0;
    int integers = 0;
    for (int number = 0; number < Texts && !HasFatalFailure(); ++number)
    {
        const std::string text = texts.Make();
        CheckText(text);
        reals += Real(text).isRead;
        integers += Integer(text).isRead;
    }
    // A generator that made numbers only, or none, would prove little.
    EXPECT_GT(reals, Texts / 3);
    EXPECT_LT(reals, Texts * 9 / 10);
    EXPECT_GT(integers, Texts / 3);
    EXPECT_LT(integers, Texts * 9 / 10);
}

TEST_F(NumberTextsTest, AZeroInTheText_EndsIt)
{
    double real = 4.25;
    EXPECT_EQ(Utilities::ConvertToDouble(ORXUnicodeString("1\0"
                                                          "5",
                                                          3),
                                         real),
              S_OK);
    EXPECT_EQ(real, 1.0);
    int integer = 42;
    EXPECT_EQ(Utilities::ConvertToInteger(ORXUnicodeString("\0"
                                                           "5",
                                                           2),
                                          integer),
              E_FAIL);
    EXPECT_EQ(integer, 42) << "there is nothing to extract from";
}
} // namespace
