/**
 * @file
 * The host's string: positions in characters, whatever their size, and texts around the size that is held without the
 * heap.
 */

#include <string>
#include <utility>

#include "ContractTest.h"

namespace
{
// One character of each size: a with diaeresis, a CJK character, a character of plane 1.
const char* const Two = "\xC3\xA4";
const char* const Three = "\xE6\xB0\xB4";
const char* const Four = "\xF0\x9F\x8C\x8A";

TEST(UnicodeString, DefaultMade_IsEmptyAndNull)
{
    const ORXUnicodeString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text.IsNull());
    EXPECT_EQ(text.GetLengthInChar(), 0);
    EXPECT_STREQ(text.CastToCharPtr(), "");
}

TEST(UnicodeString, NullPointer_GivesTheEmptyString)
{
    const char* const null = nullptr;
    ORXUnicodeString text(null);
    EXPECT_TRUE(text.IsEmpty());
    text = "something";
    text = null;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text == null);
    EXPECT_FALSE(ORXUnicodeString("a") == null);
}

/// Texts of up to 23 bytes are held without the heap; every operation has to work on both sides and across.
class StringsOfEachSize : public testing::TestWithParam<int>
{
protected:
    std::string Wanted() const
    {
        std::string text;
        for (int i = 0; i < GetParam(); ++i)
            text += static_cast<char>('a' + i % 26);
        return text;
    }
};

TEST_P(StringsOfEachSize, CopyMoveAndAssign_KeepTheText)
{
    const std::string wanted = Wanted();
    const ORXUnicodeString original(wanted.c_str());
    EXPECT_EQ(original.GetLengthInChar(), GetParam());
    EXPECT_EQ(original.View(), wanted);

    ORXUnicodeString copy(original);
    EXPECT_EQ(copy, original);
    ORXUnicodeString moved(std::move(copy));
    EXPECT_EQ(moved, original);

    for (const char* before : {"", "short", "a text that is far too long to be held inside"})
    {
        ORXUnicodeString assigned(before);
        assigned = original;
        EXPECT_EQ(assigned, original);
        const ORXUnicodeString& itself = assigned;
        assigned = itself;
        EXPECT_EQ(assigned, original);
        ORXUnicodeString moveAssigned(before);
        moveAssigned = std::move(assigned);
        EXPECT_EQ(moveAssigned, original);
        moveAssigned = before;
        EXPECT_STREQ(moveAssigned.CastToCharPtr(), before);
    }
    EXPECT_EQ(original.View(), wanted);
}

TEST_P(StringsOfEachSize, Append_OfEveryLength_GivesTheWholeText)
{
    const std::string head = Wanted();
    for (int length = 0; length <= 70; ++length)
    {
        const std::string tail(static_cast<std::size_t>(length), 'z');
        ORXUnicodeString text(head.c_str());
        ORXUnicodeString& result = text.Append(ORXUnicodeString(tail.c_str()));
        EXPECT_EQ(&result, &text);
        EXPECT_EQ(text.View(), head + tail);
        EXPECT_EQ(text.GetLengthInChar(), GetParam() + length);
        EXPECT_EQ(ORXUnicodeString(head.c_str()) + tail.c_str(), text);
        EXPECT_EQ(head.c_str() + ORXUnicodeString(tail.c_str()), text);
    }
}

TEST_P(StringsOfEachSize, Append_OfItself_DoublesTheText)
{
    ORXUnicodeString text(Wanted().c_str());
    text.Append(text);
    EXPECT_EQ(text.View(), Wanted() + Wanted());
}

INSTANTIATE_TEST_SUITE_P(UnicodeString, StringsOfEachSize,
                         testing::Values(0, 1, 11, 12, 17, 22, 23, 24, 25, 31, 32, 47, 63, 64, 1000));

TEST(UnicodeString, MovedFrom_IsEmptyAndUsable)
{
    ORXUnicodeString source("a text that is far too long to be held inside");
    const ORXUnicodeString target(std::move(source));
    EXPECT_TRUE(source.IsEmpty()); // NOLINT(bugprone-use-after-move): what it then is, is the question
    source.Append("again");
    EXPECT_STREQ(source.CastToCharPtr(), "again");
    EXPECT_STREQ(target.CastToCharPtr(), "a text that is far too long to be held inside");
}

TEST(UnicodeString, Append_ManyPieces_GivesTheWholeText)
{
    ORXUnicodeString text;
    std::string wanted;
    for (int i = 0; i < 2000; ++i)
    {
        text.Append(Three);
        wanted += Three;
        ASSERT_EQ(text.GetLengthInChar(), i + 1);
    }
    EXPECT_EQ(text.View(), wanted);
}

TEST(UnicodeString, PositionsOfEveryPlane_AreInCharacters)
{
    const std::vector<std::string>& characters = CharactersOfEveryPlane();
    ORXUnicodeString all;
    for (const std::string& character : characters)
        all.Append((character + "x").c_str());
    const int count = static_cast<int>(characters.size());
    EXPECT_EQ(all.GetLengthInChar(), 2 * count);
    for (int i = 0; i < count; ++i)
    {
        const ORXUnicodeString one(characters[static_cast<std::size_t>(i)].c_str());
        EXPECT_EQ(all.FindPosition(one), 2 * i);
        EXPECT_EQ(all.SearchSubString(one, 2 * i + 1, 1), -1);
        EXPECT_EQ(all.SubString(2 * i, 1), one);
        EXPECT_EQ(all.SubString(2 * i + 1, 1), ORXUnicodeString("x"));
        ORXUnicodeString replaced = all;
        replaced.ReplaceSubString(one, "");
        EXPECT_EQ(replaced.GetLengthInChar(), 2 * count - 1);
        replaced.ReplaceAll("x", one);
        EXPECT_EQ(replaced.GetLengthInChar(), 2 * count - 1);
        EXPECT_EQ(replaced.FindPosition("x"), -1);
        ORXUnicodeString lower = all;
        lower.ToLower();
        EXPECT_EQ(lower, all);
    }
}

TEST(UnicodeString, OrderOfEveryPlane_IsThatOfTheCodePoints)
{
    const std::vector<std::string>& characters = CharactersOfEveryPlane();
    for (std::size_t i = 1; i < characters.size(); ++i)
    {
        const ORXUnicodeString before(characters[i - 1].c_str());
        const ORXUnicodeString behind(characters[i].c_str());
        EXPECT_TRUE(before < behind) << i;
        EXPECT_FALSE(behind < before) << i;
        EXPECT_EQ(before.Compare(behind), 0) << i;
        EXPECT_EQ(behind.Compare(before), 1) << i;
    }
}

TEST(UnicodeString, EmbeddedZero_IsACharacter)
{
    const ORXUnicodeString text("a\0b", 3);
    EXPECT_EQ(text.GetLengthInChar(), 3);
    EXPECT_EQ(text.View(), std::string_view("a\0b", 3));
    EXPECT_FALSE(text == ORXUnicodeString("a"));
    EXPECT_FALSE(text == ORXUnicodeString("a\0c", 3));
    EXPECT_TRUE(text < ORXUnicodeString("a\0c", 3));
    EXPECT_EQ(text.FindPosition("b"), 2);
}

TEST(UnicodeString, EveryPlane_CountsOneCharacterEach)
{
    // The first and the last character of each of the 17 planes, but for the surrogates, which no text holds.
    ORXUnicodeString all;
    int count = 0;
    for (unsigned plane = 0; plane <= 16; ++plane)
    {
        for (const unsigned low : {0x0041U, 0x00FFU, 0x07FFU, 0x0800U, 0xD7FFU, 0xE000U, 0xFFFDU})
        {
            const std::string encoded = EncodeCodePoint(plane * 0x10000U + low);
            const ORXUnicodeString one(encoded.c_str());
            EXPECT_EQ(one.GetLengthInChar(), 1) << std::hex << plane * 0x10000U + low;
            all.Append(one);
            ++count;
            EXPECT_EQ(all.GetLengthInChar(), count);
            EXPECT_EQ(all.SubString(count - 1, 1), one);
        }
    }
    EXPECT_EQ(all.FindPosition(ORXUnicodeString(EncodeCodePoint(0x10FFFDU).c_str())), count - 1);
}

TEST(UnicodeString, BytesThatAreNoUtf8_AreKept)
{
    const ORXUnicodeString loose("\x80\x80z", 3);
    EXPECT_FALSE(loose.IsEmpty());
    EXPECT_EQ(loose.GetLengthInChar(), 2);
    EXPECT_EQ(loose.View(), std::string_view("\x80\x80z", 3));

    // A continuation byte belongs to the character before it, also when it comes later.
    ORXUnicodeString split("\xC3");
    split.Append("\xA4");
    EXPECT_EQ(split.GetLengthInChar(), 1);
    EXPECT_STREQ(split.CastToCharPtr(), Two);
}

TEST(UnicodeString, Comparison_IsExact)
{
    EXPECT_TRUE(ORXUnicodeString("abc") == ORXUnicodeString("abc"));
    EXPECT_TRUE(ORXUnicodeString("abc") == "abc");
    EXPECT_FALSE(ORXUnicodeString("abc") == "Abc");
    EXPECT_FALSE(ORXUnicodeString("abc") == "abcd");
    EXPECT_FALSE(ORXUnicodeString("abc") == "");
    // Composed and decomposed are two texts.
    EXPECT_FALSE(ORXUnicodeString(Two) == "a\xCC\x88");
}

struct OrderCase
{
    const char* left;
    const char* right;
    int compare;
};

TEST(UnicodeString, Compare_AnswersTwoForEqualOnly)
{
    const OrderCase cases[] = {
        {"", "", 2},
        {"a", "a", 2},
        {"", "a", 0},
        {"a", "", 1},
        {"a", "b", 0},
        {"b", "a", 1},
        {"a", "aa", 0},
        {"Z", "a", 0},
        {"z", Two, 0},
        {Two, Three, 0},
        {Three, Four, 0},
        {Four, Three, 1},
        {"same length", "same lengtH", 1},
        {"\xEF\xBF\xBD", Four, 0}, // by code points: U+FFFD stands before plane 1
    };
    for (const OrderCase& row : cases)
    {
        const ORXUnicodeString left(row.left);
        const ORXUnicodeString right(row.right);
        EXPECT_EQ(left.Compare(right), row.compare) << row.left << " | " << row.right;
        EXPECT_EQ(left < right, row.compare == 0) << row.left << " | " << row.right;
        EXPECT_EQ(left == right, row.compare == 2) << row.left << " | " << row.right;
    }
}

TEST(UnicodeString, ComputeHashKey_OfEqualTexts_IsEqual)
{
    const char* const texts[] = {"",
                                 "a",
                                 "b",
                                 "ab",
                                 "ba",
                                 "12345678",
                                 "123456789",
                                 "defaultManagement",
                                 "a text that is far too long to be held inside",
                                 Two,
                                 Three};
    for (const char* left : texts)
    {
        ORXUnicodeString appended;
        for (const char* byte = left; *byte != '\0'; ++byte)
            appended.Append(ORXUnicodeString(byte, 1));
        EXPECT_EQ(ORXUnicodeString(left).ComputeHashKey(), appended.ComputeHashKey()) << left;
        for (const char* right : texts)
            EXPECT_EQ(ORXUnicodeString(left).ComputeHashKey() == ORXUnicodeString(right).ComputeHashKey(),
                      std::string(left) == right)
                << left << " | " << right;
    }
}

struct SubStringCase
{
    int start;
    int length;
    const char* wanted;
};

TEST(UnicodeString, SubString_TakesCharactersAndLeavesOutWhatLiesOutside)
{
    const SubStringCase cases[] = {
        {0, 3, "abc"},
        {0, 0, ""},
        {1, 1, "b"},
        {2, 5, "c"},
        {3, 1, ""},
        {9, 1, ""},
        {-1, 2, "a"},
        {-5, 2, ""},
        {0, -1, ""},
        {1, -1, ""},
        {-1, 100, "abc"},
        {1, 2147483647, "bc"},
        {-2147483647, 2147483647, ""},
        {2147483647, 2147483647, ""},
    };
    for (const SubStringCase& row : cases)
        EXPECT_EQ(ORXUnicodeString("abc").SubString(row.start, row.length), ORXUnicodeString(row.wanted))
            << row.start << ", " << row.length;

    const ORXUnicodeString mixed = ORXUnicodeString("a") + Two + "b" + Three + Four + "c";
    ASSERT_EQ(mixed.GetLengthInChar(), 6);
    EXPECT_EQ(mixed.SubString(1, 1), ORXUnicodeString(Two));
    EXPECT_EQ(mixed.SubString(2, 1), ORXUnicodeString("b"));
    EXPECT_EQ(mixed.SubString(3, 2), ORXUnicodeString(Three) + Four);
    EXPECT_EQ(mixed.SubString(5, 9), ORXUnicodeString("c"));
    EXPECT_EQ(mixed.SubString(0, 6), mixed);
}

struct SearchCase
{
    std::string text;
    std::string wanted;
    int from;
    int position;
};

TEST(UnicodeString, Search_GivesPositionsInCharacters)
{
    const std::string mixed = std::string("a") + Two + "b" + Four + "b";
    const SearchCase cases[] = {
        {"abcabc", "abc", 0, 0}, {"abcabc", "abc", 1, 3}, {"abcabc", "abc", 4, -1}, {"abcabc", "abc", -3, 0},
        {"abcabc", "x", 0, -1},  {"abcabc", "c", 5, 5},   {"abcabc", "c", 6, -1},   {"abcabc", "c", 99, -1},
        {"abc", "abcd", 0, -1},  {"", "a", 0, -1},        {"", "", 0, -1},          {"abc", "", 0, -1},
        {"aaa", "aa", 0, 0},     {"aaa", "aa", 1, 1},     {mixed, "b", 0, 2},       {mixed, "b", 2, 2},
        {mixed, "b", 3, 4},      {mixed, Two, 0, 1},      {mixed, Two, 2, -1},      {mixed, Four, 0, 3},
        {mixed, "\xA4", 0, -1}, // half a character is not found
        {mixed, "\xC3", 0, -1},
    };
    for (const SearchCase& row : cases)
    {
        const ORXUnicodeString text(row.text.c_str());
        const ORXUnicodeString wanted(row.wanted.c_str());
        EXPECT_EQ(text.FindPosition(wanted, row.from), row.position) << row.text << " | " << row.wanted << row.from;
        EXPECT_EQ(text.SearchSubString(wanted, row.from, 1), row.position) << row.text << " | " << row.wanted;
        EXPECT_EQ(text.SearchSubString(wanted, row.from, 2), -1) << "only the forward mode is offered";
    }
}

struct ReplaceCase
{
    std::string text;
    std::string from;
    std::string to;
    std::string once;
    std::string all;
};

TEST(UnicodeString, Replace_TakesTheFirstOrEveryOccurrence)
{
    const ReplaceCase cases[] = {
        {"a b c", " ", "", "ab c", "abc"},
        {"   ", " ", "", "  ", ""},
        {"aaa", "aa", "b", "ba", "ba"},
        {"aaaa", "aa", "a", "aaa", "aa"}, // what was put in is not looked at again
        {"abc", "x", "y", "abc", "abc"},
        {"abc", "", "y", "abc", "abc"},
        {"", "a", "b", "", ""},
        {"abc", "abc", "", "", ""},
        {"x", "x", "a text that is far too long to be held inside", "a text that is far too long to be held inside",
         "a text that is far too long to be held inside"},
        {std::string(Two) + "a" + Two, Two, Four, std::string(Four) + "a" + Two, std::string(Four) + "a" + Four},
    };
    for (const ReplaceCase& row : cases)
    {
        ORXUnicodeString once(row.text.c_str());
        once.ReplaceSubString(row.from.c_str(), row.to.c_str());
        EXPECT_EQ(once.View(), row.once) << row.text;
        ORXUnicodeString all(row.text.c_str());
        all.ReplaceAll(row.from.c_str(), row.to.c_str());
        EXPECT_EQ(all.View(), row.all) << row.text;
        EXPECT_EQ(all, ORXUnicodeString(row.all.c_str())) << row.text;
        EXPECT_EQ(all.GetLengthInChar(), ORXUnicodeString(row.all.c_str()).GetLengthInChar()) << row.text;
    }
}

TEST(UnicodeString, Replace_OfAStringByItself_Works)
{
    ORXUnicodeString text("ab");
    text.ReplaceAll(text, text + text);
    EXPECT_EQ(text, ORXUnicodeString("abab"));
    text.ReplaceAll("b", text);
    EXPECT_EQ(text, ORXUnicodeString("aababaabab"));
    text.ReplaceSubString(text, text);
    EXPECT_EQ(text, ORXUnicodeString("aababaabab"));
}

TEST(UnicodeString, ToLower_MapsAsciiLettersOnly)
{
    ORXUnicodeString text = ORXUnicodeString("AZaz09_@[`{ ") + "\xC3\x84" + Four;
    text.ToLower();
    EXPECT_EQ(text, ORXUnicodeString("azaz09_@[`{ ") + "\xC3\x84" + Four);
    ORXUnicodeString longer("A TEXT THAT IS FAR TOO LONG TO BE HELD INSIDE");
    longer.ToLower();
    EXPECT_EQ(longer, ORXUnicodeString("a text that is far too long to be held inside"));
}

TEST(UnicodeString, NarrowText_EndsWithAZero)
{
    const ORXUnicodeString text("narrow");
    const char* const narrow = text;
    EXPECT_STREQ(narrow, "narrow");
    EXPECT_EQ(narrow, text.CastToCharPtr());
}
} // namespace
