/**
 * @file
 * The questions whether a cursor stands at a list, an object or a list of objects. They never report.
 */

#include "EnteredScopes.h"
#include "ListFixture.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class ListKindTest : public ListFixture
{
};

struct KindCase
{
    const char* attribute;
    bool isList;
    bool isObject;
    bool isObjectList;
};

TEST_F(ListKindTest, Kinds_OfAttributes_AreThoseOfTheirKeys)
{
    const KindCase cases[] = {
        {"title", false, false, false},   {"ratio", false, false, false},    {"count", false, false, false},
        {"flag", false, false, false},    {"scheme", false, false, false},   {"part", false, true, false},
        {"material", false, true, false}, {"titles", true, false, false},    {"ratios", true, false, false},
        {"counts", true, false, false},   {"flags", true, false, false},     {"schemes", true, false, false},
        {"parts", true, false, true},     {"references", true, false, true},
    };
    for (const KindCase& row : cases)
    {
        EXPECT_EQ(At(row.attribute).IsList(), row.isList) << row.attribute;
        EXPECT_EQ(At(row.attribute).IsObject(), row.isObject) << row.attribute;
        EXPECT_EQ(At(row.attribute).IsObjectList(), row.isObjectList) << row.attribute;
    }
}

TEST_F(ListKindTest, Kinds_OfCursorsWithoutKey_AreNoListAndAnObjectIfThereIsOne)
{
    Fill("references", {"A"});
    for (const VYRCfdObjectAccess& cursor : {Cursor(m_owner), At("references").Get(1)})
    {
        EXPECT_FALSE(cursor.IsList());
        EXPECT_TRUE(cursor.IsObject());
        EXPECT_FALSE(cursor.IsObjectList());
    }
}

TEST_F(ListKindTest, Kinds_OfCursorsThatStandNowhere_AreFalseInSilence)
{
    for (const VYRCfdObjectAccess& cursor : {VYRCfdObjectAccess(), VYRCfdObjectAccess(ORXUnicodeString())})
    {
        EXPECT_FALSE(cursor.IsList());
        EXPECT_FALSE(cursor.IsObject());
        EXPECT_FALSE(cursor.IsObjectList());
    }
}

TEST_F(ListKindTest, Kinds_LeaveTheErrorStatusAlone)
{
    VYRStandalone::SetErrorStatus(7);
    At("parts").IsList();
    At("parts").IsObject();
    At("parts").IsObjectList();
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 7);
}

TEST_F(ListKindTest, Scopes_OfTheKindsAreAtTheReadersLevel)
{
    const VYRCfdObjectAccess cursor = At("parts");
    const Names scopes = EnteredScopes(30, [&] {
        cursor.IsList();
        cursor.IsObject();
        cursor.IsObjectList();
    });
    EXPECT_EQ(scopes, (Names{"> VYRCfdObjectAccess::IsList [25]", "> VYRCfdObjectAccess::IsObject [25]",
                             "> VYRCfdObjectAccess::IsObjectList [25]"}));
}
} // namespace
