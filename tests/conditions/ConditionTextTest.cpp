/**
 * @file
 * How the text of a condition is cut into path, operator and value.
 */

#include "ConditionFixture.h"

namespace
{
class ConditionTextTest : public ConditionFixture
{
};

TEST_F(ConditionTextTest, TextsWithoutAComparison_AreBadConditions)
{
    Write("integer", "5");
    Write("boolean", "true");
    for (const char* text : {
             "integer",
             "boolean",
             "5",
             " ",
             "integer 5",
             "integer!5",
             "!",
             "/",
             // An operator at the very start does not count, and no later text is found.
             "=5",
             "==5",
             "<5",
             ">5",
             "=",
             "==",
             "<",
             ">",
             "=integer",
             "==a=b",
             "<a<b",
             ">a>b",
             "===",
             // Nothing behind the operator.
             "integer=",
             "integer==",
             "integer!=",
             "integer<",
             "integer<=",
             "integer>",
             "integer>=",
             "integer=<",
             "boolean==",
             "integer<5==",
         })
    {
        const VYRCfdObjectCondition condition(Object(), text);
        EXPECT_TRUE(condition.HasError()) << text;
        EXPECT_EQ(condition.GetError(), ORXUnicodeString("Bad condition: ") + text);
        EXPECT_FALSE(condition) << text;
        EXPECT_FALSE(condition.IsNull()) << text;
    }
}

struct PathCase
{
    /// Display name of the one column, which is the path that the text is to have.
    const char* path;
    const char* text;
    bool holds;
};

TEST_F(ConditionTextTest, TheFirstOperatorOfTheSearchOrder_CutsTheText)
{
    // The column holds 3.
    const PathCase cases[] = {
        {"a", "a==3", true},
        {"a", "a=3", true},
        {"a", "a!=4", true},
        {"a", "a<=3", true},
        {"a", "a>=3", true},
        {"a", "a<4", true},
        {"a", "a>2", true},
        // "==" is searched over the whole text before any other.
        {"a!=b", "a!=b==3", true},
        {"a!=b", "a!=b==4", false},
        {"a<b", "a<b==3", true},
        {"a=b", "a=b==3", true},
        {"a>=b", "a>=b==3", true},
        // "!=" before what is behind it in the order, wherever it stands.
        {"a<=b", "a<=b!=4", true},
        {"a<b", "a<b!=4", true},
        {"a=b", "a=b!=4", true},
        // "<=" before ">=", and "<" before ">".
        {"a>=b", "a>=b<=3", true},
        {"x>1", "x>1<4", true},
        {"x>1", "x>1<3", false},
        // The single "=" comes last.
        {"a=", "a=<4", true},
        {"a=", "a=<3", false},
        {"a=b", "a=b>2", true},
        {"=a", "=a>2", true},
        // At the start "==", "<=", ">=" and "!=" do not count, but the "=" inside the last three does.
        {"<a<5", "<a<5=3", true},
        {"<", "<=3", true},
        {">", ">=3", true},
        {"!", "!=3", true},
        {"!", "!=4", false},
        // Of the same operator the first hit cuts; the rest is the value.
        {"a", "a===3", false},
        {"a", "a==3==4", true},
        {"a", "a<4<2", true},
        // Blanks belong to the path, and are not taken away.
        {"a ", "a ==3", true},
        {" a", " a==3", true},
        {"a", "a ==3", false},
        {"a b", "a b==3", true},
        // Positions count characters.
        {"\xC3\xA4\xE2\x82\xAC", "\xC3\xA4\xE2\x82\xAC>=3", true},
        {"\xC3\xA4<\xC3\xB6", "\xC3\xA4<\xC3\xB6!=4", true},
    };
    for (const PathCase& row : cases)
    {
        const VYRCfdObjectCondition condition(ColumnNamed(row.path, {3.0}), row.text);
        EXPECT_EQ(condition.GetError(), ORXUnicodeString()) << row.text;
        EXPECT_EQ(static_cast<bool>(condition), row.holds) << row.text;
    }
}

TEST_F(ConditionTextTest, ThePath_IsWalked)
{
    EXPECT_EQ(Object()["component"]["inner"].SetInteger(7), S_OK);
    EXPECT_TRUE(Holds("component/inner==7"));
    EXPECT_FALSE(Holds("component/inner==8"));
    EXPECT_TRUE(Holds("component/inner/==7")) << "a slash at the end adds nothing";

    ColumnNamed("speed", {1.5, 2.5});
    EXPECT_TRUE(Holds("columns/speed==1.5")) << "a column is its first row";
    EXPECT_TRUE(Holds("columns/1<2"));
}

TEST_F(ConditionTextTest, AnEmptyText_IsNoCondition_AndHolds)
{
    const VYRCfdObjectCondition condition(Object(), "");
    EXPECT_FALSE(condition.HasError());
    EXPECT_TRUE(condition);
}

TEST_F(ConditionTextTest, TheErrorText_HoldsTheConditionWordForWord)
{
    EXPECT_EQ(VYRCfdObjectCondition(Object(), "100% %s").GetError(), ORXUnicodeString("Bad condition: 100% %s"));
}
} // namespace
