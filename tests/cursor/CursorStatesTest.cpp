/**
 * @file
 * What a cursor is: how its states come about, how it is asked for them, and how it is compared.
 */

#include <utility>
#include <vector>

#include "CursorTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class CursorStates : public CursorTest
{
};

TEST_F(CursorStates, DefaultConstructed_IsAnErrorCursorAndNotAnEmptyOne)
{
    const VYRCfdObjectAccess cursor;
    EXPECT_TRUE(cursor.IsNull());
    EXPECT_TRUE(cursor.HasError());
    EXPECT_TRUE(IsError(cursor, "Null initialization b"));
}

TEST_F(CursorStates, ConstructedFromAnObject_StandsAtIt)
{
    const VYRCfdObjectAccess cursor{ORXBaseUnknown_var(m_part)};
    EXPECT_TRUE(StandsAt(cursor, m_part));
    EXPECT_FALSE(!cursor);
    EXPECT_EQ(cursor.GetError(), ORXUnicodeString());
}

TEST_F(CursorStates, ConstructedFromNull_IsAnError)
{
    EXPECT_TRUE(IsError(VYRCfdObjectAccess(ORXBaseUnknown_var()), "Null initialization c"));
}

TEST_F(CursorStates, ConstructedFromAComponentWithoutAttributes_IsTheSameErrorAsForNull)
{
    EXPECT_TRUE(IsError(VYRCfdObjectAccess(BareComponent::Make()), "Null initialization c"));
}

TEST_F(CursorStates, ConstructedFromAText_IsAnErrorCursorWithThatText)
{
    EXPECT_TRUE(IsError(VYRCfdObjectAccess(ORXUnicodeString("50% of %s")), "50% of %s"));
}

TEST_F(CursorStates, ConstructedFromAnEmptyText_IsAnEmptyCursor)
{
    const VYRCfdObjectAccess cursor{ORXUnicodeString()};
    EXPECT_FALSE(cursor.HasError());
    EXPECT_TRUE(cursor.IsNull());
    EXPECT_TRUE(!cursor);
    EXPECT_TRUE(!cursor.Self());
}

TEST_F(CursorStates, Copied_StandsWhereTheOtherStands)
{
    EXPECT_TRUE(StandsAt(VYRCfdObjectAccess(Part()), m_part));
    const VYRCfdObjectAccess attribute = At("title");
    const VYRCfdObjectAccess copy(attribute);
    EXPECT_TRUE(StandsAt(copy, m_part, "title"));
    const VYRCfdObjectAccess broken = Broken();
    const VYRCfdObjectAccess brokenCopy(broken);
    EXPECT_TRUE(IsError(brokenCopy, BrokenText));
}

TEST_F(CursorStates, AssignedACursor_TakesObjectAttributeAndError)
{
    const VYRCfdObjectAccess states[] = {Part(), At("title"), Broken(), Empty()};
    for (const VYRCfdObjectAccess& from : states)
        for (const VYRCfdObjectAccess& to : states)
        {
            VYRCfdObjectAccess cursor = to;
            EXPECT_EQ(&(cursor = from), &cursor);
            EXPECT_EQ(cursor.GetError(), from.GetError());
            EXPECT_TRUE(ORXBaseUnknown_var::equal_to(cursor.Self(), from.Self()));
            EXPECT_EQ(cursor.GetName(), from.GetName());
            EXPECT_EQ(cursor.GetType(), from.GetType());
        }
}

TEST_F(CursorStates, AssignedToItself_StaysWhereItIs)
{
    VYRCfdObjectAccess cursor = At("title");
    const VYRCfdObjectAccess& same = cursor;
    cursor = same;
    EXPECT_TRUE(StandsAt(cursor, m_part, "title"));
    cursor = cursor.Self();
    EXPECT_TRUE(StandsAt(cursor, m_part));
}

TEST_F(CursorStates, AssignedAnObject_LosesItsErrorAndItsAttribute)
{
    VYRCfdObjectAccess cursor = Broken();
    EXPECT_EQ(&(cursor = ORXBaseUnknown_var(m_part)), &cursor);
    EXPECT_TRUE(StandsAt(cursor, m_part));
    cursor = At("title");
    cursor = ORXBaseUnknown_var(m_part);
    EXPECT_TRUE(StandsAt(cursor, m_part));
}

TEST_F(CursorStates, AssignedNull_IsAnErrorOfItsOwn)
{
    for (VYRCfdObjectAccess cursor : {Part(), At("title"), Broken(), Empty()})
    {
        cursor = ORXBaseUnknown_var();
        EXPECT_TRUE(IsError(cursor, "Null initialization a"));
    }
}

// The constructor looks at what the cast gave, the assignment at its argument.
TEST_F(CursorStates, AssignedAComponentWithoutAttributes_IsEmptyWithoutAnErrorUnlikeTheConstructor)
{
    const ORXBaseUnknown_var component = BareComponent::Make();
    for (VYRCfdObjectAccess cursor : {Part(), At("title"), Broken()})
    {
        cursor = component;
        EXPECT_TRUE(cursor.IsNull());
        EXPECT_FALSE(cursor.HasError());
        EXPECT_TRUE(!cursor.Self());
        EXPECT_EQ(cursor.GetName(), ORXUnicodeString());
    }
}

TEST_F(CursorStates, IsNull_OfAnAttributeThatTheObjectDoesNotCarry_IsTrueWithoutAnError)
{
    const ORXISpecObject_var zone = Create("CursorZone", "Zone.1");
    const VYRCfdObjectAccess foreign = Part().Get(KeyOf(zone, "area").Pointer(), 0);
    EXPECT_TRUE(foreign.IsNull());
    EXPECT_TRUE(!foreign);
    EXPECT_FALSE(foreign.HasError());
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(foreign.Self(), m_part));

    const VYRCfdObjectAccess title = At("title");
    EXPECT_FALSE(title.IsNull());
    MakeFail("HasAttribute", "title", E_FAIL, 1, 1);
    EXPECT_TRUE(title.IsNull());
    EXPECT_FALSE(title.IsNull()) << "nothing is remembered";
}

TEST_F(CursorStates, Self_OfAnAttributeCursor_IsItsObject)
{
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(At("title").Self(), Part().Self()));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(At("title").Self(), m_part));
    EXPECT_TRUE(!Broken().Self());
    EXPECT_TRUE(!Empty().Self());
}

TEST_F(CursorStates, Conversions_GiveTheObjectAndIgnoreTheAttribute)
{
    VYRCfdObjectAccess attribute = At("title");
    const ORXBaseUnknown_var handle = attribute.operator ORXBaseUnknown_var();
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(handle, m_part));
    ORXBaseUnknown* const borrowed = attribute;
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(borrowed, m_part));
    EXPECT_EQ(attribute.Access(), AccessOf(m_part));

    VYRCfdObjectAccess broken = Broken();
    EXPECT_TRUE(!broken.operator ORXBaseUnknown_var());
    EXPECT_EQ(broken.operator ORXBaseUnknown*(), nullptr);
    EXPECT_TRUE(!broken.Access());
}

TEST_F(CursorStates, PointerConversion_IsNotTheSameTestAsIsNull)
{
    const ORXISpecObject_var zone = Create("CursorZone", "Zone.1");
    VYRCfdObjectAccess foreign = Part().Get(KeyOf(zone, "area").Pointer(), 0);
    EXPECT_TRUE(foreign.IsNull());
    EXPECT_NE(foreign.operator ORXBaseUnknown*(), nullptr);
}

TEST_F(CursorStates, Equality_ComparesWhereTwoCursorsStand)
{
    const ORXISpecObject_var other = Create("CursorPart", "Part.2");
    struct Case
    {
        const char* what;
        VYRCfdObjectAccess left;
        VYRCfdObjectAccess right;
        bool isEqual;
    };
    const Case cases[] = {
        {"the same object", Part(), Part(), true},
        {"two objects", Part(), Cursor(other), false},
        {"the same attribute", At("title"), At("title"), true},
        {"two attributes of one object", At("title"), At("note"), false},
        {"one attribute of two objects", At("title"), Cursor(other)["title"], false},
        {"an object and its attribute", Part(), At("title"), false},
        {"an error and an object", Broken(), Part(), false},
        {"an error and an attribute", Broken(), At("title"), false},
        {"two errors with different texts", Broken(), VYRCfdObjectAccess(), true},
        {"an error and an empty cursor", Broken(), Empty(), true},
        {"two empty cursors", Empty(), Empty(), true},
        {"an empty cursor and an object", Empty(), Part(), false},
    };
    for (const Case& row : cases)
    {
        EXPECT_EQ(row.left == row.right, row.isEqual) << row.what;
        EXPECT_EQ(row.right == row.left, row.isEqual) << row.what << ", turned round";
        EXPECT_EQ(row.left != row.right, !row.isEqual) << row.what;
        EXPECT_EQ(row.right != row.left, !row.isEqual) << row.what << ", turned round";
    }
}

// Identity is that of the component, through whichever interface it is reached.
TEST_F(CursorStates, Equality_OfOneObjectThroughTwoInterfaces_Holds)
{
    const VYRCfdObjectAccess throughAttributes{ORXBaseUnknown_var(AccessOf(m_part))};
    EXPECT_TRUE(throughAttributes == Part());
    EXPECT_FALSE(throughAttributes != Part());
}

TEST_F(CursorStates, Cursors_LiveInVectors)
{
    std::vector<VYRCfdObjectAccess> cursors(3);
    cursors[1] = At("title");
    cursors.push_back(Part());
    cursors.erase(cursors.begin());
    EXPECT_TRUE(StandsAt(cursors[0], m_part, "title"));
    EXPECT_TRUE(IsError(cursors[1], "Null initialization b"));
    EXPECT_TRUE(StandsAt(cursors[2], m_part));
}

/// Copies nothing and writes nothing: asking a cursor for its state.
TEST_F(CursorStates, AskingForTheState_ReportsNothingAndKeepsTheErrorStatus)
{
    VYRStandalone::SetErrorStatus(7);
    for (VYRCfdObjectAccess cursor : {Part(), At("title"), Broken(), Empty()})
    {
        static_cast<void>(cursor.IsNull());
        static_cast<void>(!cursor);
        static_cast<void>(cursor.HasError());
        static_cast<void>(cursor.GetError());
        static_cast<void>(cursor.Self());
        static_cast<void>(cursor.Access());
        static_cast<void>(cursor == Part());
        static_cast<void>(cursor != Part());
    }
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 7);
    EXPECT_EQ(Reported(), Records{});
}
} // namespace
