/**
 * @file
 * Comma lists, numbers and truth values. The input is one text; with a second line, the first one also parts the second
 * as a delimiter.
 *
 * Lists are those of the naive splitting. Numbers are read as the standard streams read them under the classic locale,
 * and as the C library scans them: the same acceptance, the same value, and the same target when nothing is read.
 */

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "FuzzTarget.h"
#include "NaiveText.h"
#include "VYRCfdUtilityMethods.h"

namespace
{
ORXUnicodeString Unicode(const std::string& iText)
{
    return ORXUnicodeString(iText.data(), iText.size());
}

bool IsSame(double iLeft, double iRight)
{
    return std::memcmp(&iLeft, &iRight, sizeof iLeft) == 0;
}

void DemandTokens(const std::vector<std::string>& iExpected, const std::vector<ORXUnicodeString>& iTokens)
{
    Demand(iTokens.size() == iExpected.size() + 1 && iTokens[0] == "before", "tokens go behind what the list holds");
    for (std::size_t i = 0; i < iExpected.size(); ++i)
        DemandSame(iTokens[i + 1].View(), iExpected[i], "the tokens of a comma list");
}

void SplitList(const std::string& iText, const std::string& iDelimiter)
{
    const std::vector<std::string> expected = Naive::Split(iText, iDelimiter);
    std::vector<ORXUnicodeString> tokens{"before"};
    Demand(VYRCfdUtilityMethods::ConvertStringToVector(Unicode(iText), tokens, Unicode(iDelimiter)) == S_OK,
           "every text is a list");
    DemandTokens(expected, tokens);

    ORXListValORXUnicodeString list;
    list.Append("before");
    Demand(VYRCfdUtilityMethods::ConvertStringToList(Unicode(iText), list, Unicode(iDelimiter)) == S_OK,
           "every text is a list");
    std::vector<ORXUnicodeString> entries;
    for (int position = 1; position <= list.Size(); ++position)
        entries.push_back(list[position]);
    DemandTokens(expected, entries);
}

void ReadByStream(const std::string& iText)
{
    double expectedReal = 4.25;
    double real = 4.25;
    const bool isReal = Naive::Extract(iText, expectedReal);
    Demand((VYRCfdUtilityMethods::ConvertToDouble(Unicode(iText), real) == S_OK) == isReal, "the same texts are reals",
           JsonText(iText));
    Demand(IsSame(real, expectedReal), "a real is what the stream reads", JsonText(iText));

    int expectedInteger = 42;
    int integer = 42;
    const bool isInteger = Naive::Extract(iText, expectedInteger);
    Demand((VYRCfdUtilityMethods::ConvertToInteger(Unicode(iText), integer) == S_OK) == isInteger,
           "the same texts are integers", JsonText(iText));
    Demand(integer == expectedInteger, "an integer is what the stream reads", JsonText(iText));
}

void ReadByScan(const std::string& iText)
{
    char* end = nullptr;
    errno = 0;
    const long long whole = std::strtoll(iText.c_str(), &end, 10);
    const bool isInteger = end != iText.c_str() && errno == 0 && whole >= std::numeric_limits<int>::min() &&
                           whole <= std::numeric_limits<int>::max();
    int integer = 42;
    Demand((Unicode(iText).ConvertToNum(&integer, "%d") != 0) == isInteger, "the scan takes the same integers",
           JsonText(iText));
    Demand(integer == (isInteger ? whole : 42), "an integer is what the scan reads", JsonText(iText));

    double expected = 0.0;
    errno = 0;
    const bool isScanned = std::sscanf(iText.c_str(), "%le", &expected) == 1;
    const bool isReal = isScanned && !(errno == ERANGE && std::abs(expected) > 1.0);
    double real = 4.25;
    Demand((Unicode(iText).ConvertToNum(&real, "%le") != 0) == isReal, "the scan takes the same reals",
           JsonText(iText));
    Demand(IsSame(real, isReal ? expected : 4.25), "a real is what the scan reads", JsonText(iText));
}

void ReadTruth(const std::string& iText)
{
    std::string lower = iText;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char iByte) { return iByte >= 'A' && iByte <= 'Z' ? static_cast<char>(iByte + 32) : iByte; });
    for (const int empty : {0, 1, 2})
    {
        const auto isOneOf = [&](std::initializer_list<const char*> iWords, int iWhenEmpty) {
            return std::find(iWords.begin(), iWords.end(), lower) != iWords.end() ||
                   (lower.empty() && empty == iWhenEmpty);
        };
        const bool isTrue = isOneOf({"t", "y", "true", "yes", "on", "1"}, 1);
        const bool isFalse = isOneOf({"f", "n", "false", "no", "off", "0"}, 0);
        for (const bool before : {false, true})
        {
            bool value = before;
            const auto type = static_cast<VYRCfdUtilityMethods::VYRCfdBooleanConvertType>(empty);
            const bool isRead = VYRCfdUtilityMethods::ConvertToBoolean(Unicode(iText), value, type) == S_OK;
            Demand(isRead == (isTrue || isFalse), "the same texts are truth values", JsonText(iText));
            Demand(value == (isRead ? isTrue : before), "a truth value is what the word says", JsonText(iText));
        }
    }
}
} // namespace

void RunInput(std::string_view iInput)
{
    static const bool isForeign = (UseForeignNumbers(), true);
    static_cast<void>(isForeign);
    const std::string text(iInput);
    SplitList(text, ",");
    if (const TwoTexts texts = SplitInput(iInput); texts.hasSecond)
        SplitList(texts.second, texts.first);
    ReadByStream(text);
    ReadByScan(text);
    ReadTruth(text);
}
