/**
 * @file
 * Paths: how they are cut, and how they are walked.
 */

#include <string>

#include "BoundedStack.h"
#include "CursorTest.h"

namespace
{
class Paths : public CursorTest
{
protected:
    void SetUp() override
    {
        CursorTest::SetUp();
        m_inlet = AddZone("Zone.1", "Inlet");
        m_wall = AddZone("Zone.2", "Bottom", "CursorWall");
        Put(m_part, "peer", m_part);
    }

    ORXISpecObject_var m_inlet;
    ORXISpecObject_var m_wall;
};

TEST_F(Paths, SplitPath_CutsAtTheFirstSlash)
{
    struct Case
    {
        const char* path;
        const char* head;
        /// "before" where the tail is left alone.
        const char* tail;
    };
    constexpr Case cases[] = {
        {"a", "a", "before"},
        {"", "", "before"},
        {"a/b", "a", "b"},
        {"a/b/c", "a", "b/c"},
        {"a/", "a", "before"},
        {"/", "", "before"},
        {"/a", "", "a"},
        {"//", "", "/"},
        {"a//b", "a", "/b"},
        {" a / b ", " a ", " b "},
        {"\xC3\xA9/\xC3\xA8", "\xC3\xA9", "\xC3\xA8"},
    };
    for (const Case& row : cases)
    {
        ORXUnicodeString head("before");
        ORXUnicodeString tail("before");
        EXPECT_EQ(VYRCfdObjectAccess::SplitPath(row.path, head, tail), S_OK) << row.path;
        EXPECT_EQ(head, ORXUnicodeString(row.head)) << row.path;
        EXPECT_EQ(tail, ORXUnicodeString(row.tail)) << row.path;
    }
}

/// Compares a walk with one that is cut by `SplitPath`.
void ExpectWalked(const VYRCfdObjectAccess& iStart, const ORXUnicodeString& iPath)
{
    VYRCfdObjectAccess expected = iStart;
    ORXUnicodeString left(iPath);
    ORXUnicodeString head;
    while (true)
    {
        ORXUnicodeString tail;
        VYRCfdObjectAccess::SplitPath(left, head, tail);
        if (head.IsEmpty())
            break;
        expected = expected.Get(head);
        left = tail;
    }
    const VYRCfdObjectAccess walked = iStart.GetByPath(iPath);
    EXPECT_TRUE(walked == expected) << iPath;
    EXPECT_EQ(walked.GetError(), expected.GetError()) << iPath;
}

/// In a text that is no UTF-8 a byte that continues a character belongs to the one before it, also to a slash.
TEST_F(Paths, GetByPath_CutsWhereSplitPathDoes)
{
    for (const char* const path : {"peer/\x80/x", "\x80/peer", "/\x80", "peer/\x80", "peer//\x80/y", "no/\xC3\xA9",
                                   "no\x80/peer", "peer/no/peer"})
        ExpectWalked(Part(), path);
}

/// A zero byte makes up for a character of two bytes: the text then has as many characters as bytes in front of it.
TEST_F(Paths, WithZeroBytes_AreCutWhereSplitPathCuts)
{
    for (const std::string& path :
         {std::string("peer/\x80title\0", 12), std::string("peer/\xC3\xA9/\xC3\xA9\0x", 12),
          std::string("peer/\xC3\xA9/title\0", 14), std::string("peer/title\0", 11), std::string("peer\0/title", 11)})
        ExpectWalked(Part(), ORXUnicodeString(path.data(), path.size()));
}

// Characters are counted from somewhere near: from the beginning of such a path it would take an hour.
TEST_F(Paths, OfManySegments_OneOfThemNotAscii_AreWalkedInTime)
{
    std::string path;
    for (int segment = 0; segment < 200000; ++segment)
        path += "peer/";
    path += "\xC3\xA9";
    EXPECT_TRUE(IsError(Part().GetByPath(path.c_str()), "No attribute \xC3\xA9"));
}

TEST_F(Paths, AreWalkedByAllMeaningsOfAName)
{
    EXPECT_TRUE(StandsAt(Part().GetByPath("title"), m_part, "title"));
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones/Inlet"), m_inlet));
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones/Zone.2"), m_wall));
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones/CursorWall"), m_wall));
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones/2/area"), m_wall, "area"));
    EXPECT_TRUE(StandsAt(Part().GetByPath("peer/peer/zones/1/area"), m_inlet, "area"));
    EXPECT_TRUE(StandsAt(At("zones").GetByPath("Inlet/area"), m_inlet, "area"));
}

TEST_F(Paths, Empty_AreThisCursor)
{
    EXPECT_TRUE(StandsAt(Part().GetByPath(""), m_part));
    EXPECT_TRUE(StandsAt(At("title").GetByPath(""), m_part, "title"));
    EXPECT_TRUE(StandsAt(Part().GetByPath("/"), m_part));
}

// The empty first segment ends the walk, whatever follows.
TEST_F(Paths, WithALeadingSlash_AreThisCursorWithoutAnError)
{
    EXPECT_TRUE(StandsAt(Part().GetByPath("/title"), m_part));
    EXPECT_TRUE(StandsAt(Part().GetByPath("/no such/x"), m_part));
    EXPECT_TRUE(StandsAt(At("title").GetByPath("/note"), m_part, "title"));
}

TEST_F(Paths, WithTwoSlashesInARow_StopInFrontOfThem)
{
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones//Inlet"), m_part, "zones"));
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones/Inlet//no such"), m_inlet));
}

TEST_F(Paths, WithATrailingSlash_AreAsWithoutIt)
{
    EXPECT_TRUE(StandsAt(Part().GetByPath("title/"), m_part, "title"));
    EXPECT_TRUE(StandsAt(Part().GetByPath("zones/Inlet/"), m_inlet));
}

TEST_F(Paths, AreNotTrimmed)
{
    EXPECT_TRUE(IsError(Part().GetByPath("zones /Inlet"), "No attribute zones "));
    EXPECT_TRUE(IsError(Part().GetByPath("zones/ Inlet"), "No matching object to  Inlet"));
    EXPECT_TRUE(IsError(Part().GetByPath("./title"), "No attribute ."));
}

TEST_F(Paths, ErrorOfASegment_PassesThroughTheRest)
{
    EXPECT_TRUE(IsError(Part().GetByPath("no such/title"), "No attribute no such"));
    EXPECT_TRUE(IsError(Part().GetByPath("zones/Outlet/area/x"), "No matching object to Outlet"));
    EXPECT_TRUE(IsError(Part().GetByPath("solver/x"), "Null initialization c"));
    EXPECT_TRUE(IsError(Part().GetByPath("title/x"), "Get by name on a non-list"));
    EXPECT_TRUE(IsError(Part().GetByPath("title/x//y"), "Get by name on a non-list"));
    EXPECT_TRUE(IsError(Part().GetByPath("monitors/lift"), "monitorsNot a list of objects"));
    EXPECT_EQ(Reported(), Records{});
}

// A path may be as long as the file that holds it.
TEST_F(Paths, OfTenThousandSegments_NeedNoDeepStack)
{
    std::string path;
    for (int segment = 0; segment < 10000; ++segment)
        path += "peer/";
    path += "title";
    const ORXUnicodeString longPath(path.c_str());
    OnBoundedStack(256, [&] { EXPECT_TRUE(StandsAt(Part().GetByPath(longPath), m_part, "title")); });
}
} // namespace
