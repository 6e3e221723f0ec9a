/**
 * @file
 * Lists of strings.
 */

#include "ORXListValORXUnicodeString.h"
#include "ContractTest.h"

namespace
{
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

TEST(ListOfStrings, KeepsEveryPlaneEmptyTextsAndDoublets)
{
    ORXListValORXUnicodeString list;
    std::vector<std::string> wanted;
    for (const std::string& character : CharactersOfEveryPlane())
    {
        list.Append(character.c_str());
        list.Append("");
        list.Append(character.c_str());
        wanted.insert(wanted.end(), {character, "", character});
    }
    EXPECT_EQ(TextsOf(list), wanted);
    const ORXListValORXUnicodeString copy = list;
    list.RemovePosition(1);
    list[1] = "changed";
    EXPECT_EQ(TextsOf(copy), wanted) << "a copy is a list of its own";
}

TEST(ListOfStrings, AppendOfAnOwnEntry_Works)
{
    ORXListValORXUnicodeString list = ListOf({"a text that is far too long to be held inside"});
    for (int i = 0; i < 100; ++i)
        list.Append(list[1]);
    EXPECT_EQ(list.Size(), 101);
    EXPECT_EQ(list[101], list[1]);
}
} // namespace
