/**
 * @file
 * The small value classes of the host: lists, collections, narrow strings, identifiers.
 */

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ORXListValORXUnicodeString.h"
#include "ORXRawColldouble.h"
#include "ORXString.h"
#include "ORXUuid.h"

namespace
{
std::vector<std::string> TextsOf(const ORXListValORXUnicodeString& iList)
{
    std::vector<std::string> texts;
    for (int i = 1; i <= iList.Size(); ++i)
        texts.emplace_back(iList[i].View());
    return texts;
}

TEST(ListOfStrings, Positions_CountFromOne)
{
    ORXListValORXUnicodeString list;
    EXPECT_EQ(list.Size(), 0);
    for (const char* text : {"a", "b", "c"})
        list.Append(text);
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"a", "b", "c"}));
    list[2] = "B";
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"a", "B", "c"}));
    list.RemovePosition(1);
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"B", "c"}));
    list.RemovePosition(2);
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"B"}));
    list.RemovePosition(1);
    EXPECT_EQ(list.Size(), 0);
}

TEST(CollectionOfReals, Positions_CountFromOne)
{
    ORXRawColldouble reals(0);
    EXPECT_EQ(reals.Size(), 0);
    reals.Append(1.5);
    reals.Append(2.5);
    reals[1] = -1.5;
    EXPECT_EQ(reals.Size(), 2);
    EXPECT_EQ(reals[1], -1.5);
    EXPECT_EQ(reals[2], 2.5);
}

TEST(CollectionOfReals, MadeWithASize_HoldsZeros)
{
    const ORXRawColldouble reals(3);
    ASSERT_EQ(reals.Size(), 3);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(reals[i], 0.0);
}

TEST(NarrowString, AppendsAndAnswersItsText)
{
    const ORXString text = ORXString("CFD_") + "DEBUG";
    EXPECT_STREQ(text.CastToCharPtr(), "CFD_DEBUG");
    EXPECT_STREQ(text, "CFD_DEBUG");
    EXPECT_STREQ(ORXString().CastToCharPtr(), "");
    EXPECT_STREQ(ORXString(nullptr).CastToCharPtr(), "");
}

TEST(Uuid, EachObject_IsANewIdentifier)
{
    std::set<std::array<unsigned char, 16>> seen;
    std::array<unsigned char, 16> everyBit{};
    for (int i = 0; i < 1000; ++i)
    {
        const ORXUuid uuid;
        std::array<unsigned char, 16> bytes{};
        std::array<unsigned char, 16> again{};
        uuid.get(bytes.data());
        uuid.get(again.data());
        EXPECT_EQ(bytes, again);
        EXPECT_TRUE(seen.insert(bytes).second);
        std::transform(
            bytes.begin(), bytes.end(), everyBit.begin(), everyBit.begin(),
            [](unsigned char iLeft, unsigned char iRight) { return static_cast<unsigned char>(iLeft | iRight); });
    }
    // Of a thousand random identifiers every bit is set in some.
    for (const unsigned char byte : everyBit)
        EXPECT_EQ(byte, 0xFF);
}
} // namespace
