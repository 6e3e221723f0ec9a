/**
 * @file
 * Reading whole lists: the objects, the number of entries, and all values at once.
 */

#include "ListFixture.h"
#include "ListOperations.h"
#include "VYRStandaloneInstruments.h"

namespace
{
using Strings = std::vector<ORXUnicodeString>;
using Doubles = std::vector<double>;
using Integers = std::vector<int>;
using Booleans = std::vector<bool>;

class ListReadTest : public ListFixture
{
protected:
    void SetUp() override
    {
        ListFixture::SetUp();
        Load(R"({ "titles": ["one", "two", "three"], "title": "Wing", "ratios": [1.5, -0.25], "ratio": 3.25,
                  "counts": [5, -6], "count": 7, "schemes": ["central", "upwind"], "scheme": "central",
                  "flags": [true, false], "flag": true })");
    }
};

/// The names of the objects at which cursors stand; the errors of those that stand nowhere.
Names Standing(const std::vector<VYRCfdObjectAccess>& iCursors)
{
    Names names;
    for (const VYRCfdObjectAccess& cursor : iCursors)
    {
        const ORXISpecObject_var object = cursor.Self();
        names.emplace_back(!object ? cursor.GetError().CastToCharPtr() : object->GetName().CastToCharPtr());
    }
    return names;
}

TEST_F(ListReadTest, List_KeepsEmptyEntriesAsErrorCursorsInTheirPlaces)
{
    for (const char* list : {"parts", "references"})
    {
        Fill(list, {"A", "", "B", ""});
        std::vector<VYRCfdObjectAccess> objects = Parts({"Old"});
        EXPECT_EQ(At(list).List(objects, false), S_OK);
        EXPECT_EQ(Standing(objects), (Names{"A", "Null initialization c", "B", "Null initialization c"})) << list;
        EXPECT_TRUE(objects[1].IsNull());
        Fill(list, {});
    }
}

TEST_F(ListReadTest, List_WithSkipNull_DropsEmptyEntries)
{
    Fill("references", {"", "A", "", "A", "B", ""});
    std::vector<VYRCfdObjectAccess> objects = Parts({"Old"});
    EXPECT_EQ(At("references").List(objects, true), S_OK);
    EXPECT_EQ(Standing(objects), (Names{"A", "A", "B"}));
}

TEST_F(ListReadTest, List_WithoutSkipNull_IsTheDefault)
{
    Fill("references", {"", "A"});
    std::vector<VYRCfdObjectAccess> objects;
    EXPECT_EQ(At("references").List(objects), S_OK);
    EXPECT_EQ(objects.size(), 2U);
}

TEST_F(ListReadTest, List_OfAnEmptyList_EmptiesWhatWasThere)
{
    std::vector<VYRCfdObjectAccess> objects = Parts({"Old"});
    EXPECT_EQ(At("references").List(objects), S_OK);
    EXPECT_TRUE(objects.empty());
}

TEST_F(ListReadTest, List_WhereTheHostGivesNull_IsEmptyAndNoFailure)
{
    Fill("references", {"A"});
    std::vector<VYRCfdObjectAccess> objects = Parts({"Old"});
    MakeFail("ListObjects", "references", E_FAIL, 1, 1);
    EXPECT_EQ(At("references").List(objects), S_OK);
    EXPECT_TRUE(objects.empty());
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

TEST_F(ListReadTest, List_OnAListOfValues_HasEmptiedTheResultBeforeItFails)
{
    std::vector<VYRCfdObjectAccess> objects = Parts({"Old"});
    EXPECT_EQ(At("titles").List(objects), E_FAIL);
    EXPECT_TRUE(objects.empty());
    EXPECT_EQ(Reported(), (Records{Assertion(NoObjectList, "VYRCfdObjectAccess::List")}));
}

TEST_F(ListReadTest, List_OnAnObjectCursor_LeavesTheResultAlone)
{
    std::vector<VYRCfdObjectAccess> objects = Parts({"Old"});
    EXPECT_EQ(Cursor(m_owner).List(objects), E_FAIL);
    EXPECT_EQ(Standing(objects), (Names{"Old"}));
}

TEST_F(ListReadTest, List_GivesBackEveryReferenceThatItTook)
{
    Fill("references", {"A", "B", "A"});
    const unsigned int references = VYRStandalone::ReferenceCount(Part("A"));
    const int alive = VYRStandalone::LiveComponents();
    {
        std::vector<VYRCfdObjectAccess> objects;
        EXPECT_EQ(At("references").List(objects), S_OK);
        EXPECT_EQ(VYRStandalone::ReferenceCount(Part("A")), references + 2);
    }
    EXPECT_EQ(VYRStandalone::ReferenceCount(Part("A")), references);
    EXPECT_EQ(VYRStandalone::LiveComponents(), alive);
}

TEST_F(ListReadTest, ListToHostList_AppendsHandlesBehindWhatIsThere)
{
    Fill("references", {"A", "", "B"});
    ORXListValORXBaseUnknown_var objects = HandleList({Unknown("Old")});
    EXPECT_EQ(At("references").List(objects), S_OK);
    ASSERT_EQ(objects.Size(), 4);
    EXPECT_TRUE(objects[1] == Unknown("Old"));
    EXPECT_TRUE(objects[2] == Unknown("A"));
    EXPECT_TRUE(objects[3] == NULL_var);
    EXPECT_TRUE(objects[4] == Unknown("B"));
}

TEST_F(ListReadTest, ListToHostList_ThatFails_ReportsTheCallAndAppendsNothing)
{
    ORXListValORXBaseUnknown_var objects = HandleList({Unknown("Old")});
    EXPECT_EQ(At("titles").List(objects), E_FAIL);
    EXPECT_EQ(objects.Size(), 1);
    EXPECT_EQ(Reported(), (Records{Assertion(NoObjectList, "VYRCfdObjectAccess::List"),
                                   FailedCall("List(objects)", "VYRCfdObjectAccess::List")}));
}

TEST_F(ListReadTest, GetListSize_CountsEntriesOfEveryKind)
{
    Fill("references", {"A", "", "B"});
    int size = -1;
    EXPECT_EQ(At("references").GetListSize(size), S_OK);
    EXPECT_EQ(size, 3);
    EXPECT_EQ(At("titles").GetListSize(size), S_OK);
    EXPECT_EQ(size, 3);
    EXPECT_EQ(At("parts").GetListSize(size), S_OK);
    EXPECT_EQ(size, 0);
}

TEST_F(ListReadTest, GetListSize_ThatFails_LeavesTheResultAlone)
{
    int size = 42;
    EXPECT_EQ(At("title").GetListSize(size), E_FAIL);
    EXPECT_EQ(Cursor(m_owner).GetListSize(size), E_FAIL);
    EXPECT_EQ(size, 42);
    EXPECT_EQ(Reported(), (Records{Assertion("type == tk_list", "VYRCfdObjectAccess::GetListSize"),
                                   Error("null key", "VYRCfdObjectAccess::GetListSize")}));
}

TEST_F(ListReadTest, GetStrings_AppendsAllEntriesBehindWhatIsThere)
{
    Strings values{"old"};
    EXPECT_EQ(At("titles").GetStrings(values), S_OK);
    EXPECT_EQ(values, (Strings{"old", "one", "two", "three"}));

    ORXListValORXUnicodeString list;
    list.Append("old");
    EXPECT_EQ(At("titles").GetStrings(list), S_OK);
    ASSERT_EQ(list.Size(), 4);
    EXPECT_EQ(list[1], ORXUnicodeString("old"));
    EXPECT_EQ(list[2], ORXUnicodeString("one"));
    EXPECT_EQ(list[4], ORXUnicodeString("three"));
}

TEST_F(ListReadTest, GetStrings_OfAString_AppendsItAsOneEntry)
{
    Strings values{"old"};
    EXPECT_EQ(At("title").GetStrings(values), S_OK);
    EXPECT_EQ(values, (Strings{"old", "Wing"}));

    ORXListValORXUnicodeString list;
    EXPECT_EQ(At("title").GetStrings(list), S_OK);
    ASSERT_EQ(list.Size(), 1);
    EXPECT_EQ(list[1], ORXUnicodeString("Wing"));
}

TEST_F(ListReadTest, GetDoubles_StartsFromEmpty)
{
    Doubles values{9.0};
    EXPECT_EQ(At("ratios").GetDoubles(values), S_OK);
    EXPECT_EQ(values, (Doubles{1.5, -0.25}));

    EXPECT_EQ(At("ratio").GetDoubles(values), S_OK);
    EXPECT_EQ(values, (Doubles{3.25}));
}

TEST_F(ListReadTest, GetDoubles_HasEmptiedTheResultAlsoWhereItFailsAtTheKind)
{
    Doubles values{9.0};
    EXPECT_EQ(At("count").GetDoubles(values), E_FAIL);
    EXPECT_TRUE(values.empty());
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey->GetType() == tk_double", "VYRCfdObjectAccess::GetDoubles")}));

    values = {9.0};
    EXPECT_EQ(Cursor(m_owner).GetDoubles(values), E_FAIL);
    EXPECT_TRUE(values.empty());
    EXPECT_EQ(Reported(), (Records{Assertion("spTableColumn", "VYRCfdObjectAccess::GetDoubles")}));
}

TEST_F(ListReadTest, GetDoubles_WithoutObject_LeavesTheResultAlone)
{
    Doubles values{9.0};
    EXPECT_EQ(VYRCfdObjectAccess(ORXUnicodeString()).GetDoubles(values), E_FAIL);
    EXPECT_EQ(VYRCfdObjectAccess("an error").GetDoubles(values), E_FAIL);
    EXPECT_EQ(values, (Doubles{9.0}));
    EXPECT_EQ(Reported(), (Records{Assertion("_spAttr", "VYRCfdObjectAccess::GetDoubles"),
                                   Error("an error", "VYRCfdObjectAccess::GetDoubles")}));
}

TEST_F(ListReadTest, GetDoubles_OnAnObjectCursor_ReadsTheColumn_WhereOtherReadersWantAKey)
{
    const ORXISpecObject_var column = VYRStandalone::MakeTableColumn();
    const VYRCfdObjectAccess cursor = Cursor(column);
    ASSERT_EQ(cursor.SetDouble(1.5, 1), S_OK);
    ASSERT_EQ(cursor.SetDouble(2.5, 2), S_OK);

    Doubles values{9.0};
    EXPECT_EQ(cursor.GetDoubles(values), S_OK);
    EXPECT_EQ(values, (Doubles{1.5, 2.5}));

    Integers integers{9};
    EXPECT_EQ(cursor.GetIntegers(integers), E_FAIL);
    EXPECT_EQ(integers, (Integers{9}));
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey", "VYRCfdObjectAccess::GetIntegers")}));
}

TEST_F(ListReadTest, GetDoubles_OfAColumnWithoutRows_IsEmptyAndNoFailure)
{
    Doubles values{9.0};
    EXPECT_EQ(Cursor(VYRStandalone::MakeTableColumn()).GetDoubles(values), S_OK);
    EXPECT_TRUE(values.empty());
}

TEST_F(ListReadTest, GetIntegers_ReadsIntegersAndEnumerations_AndAppends)
{
    Integers values{9};
    for (const char* attribute : {"counts", "schemes", "count", "scheme"})
        EXPECT_EQ(At(attribute).GetIntegers(values), S_OK) << attribute;
    EXPECT_EQ(values, (Integers{9, 5, -6, 2, 1, 7, 2}));
}

TEST_F(ListReadTest, GetBooleans_ReadsAListAndAScalar_AndAppends)
{
    Booleans values{false};
    EXPECT_EQ(At("flags").GetBooleans(values), S_OK);
    EXPECT_EQ(At("flag").GetBooleans(values), S_OK);
    EXPECT_EQ(values, (Booleans{false, true, false, true}));
}

TEST_F(ListReadTest, Readers_OfAnEmptyList_LeaveTheResultAlone)
{
    Load("{}");
    Strings strings{"old"};
    EXPECT_EQ(At("titles").GetStrings(strings), S_OK);
    EXPECT_EQ(strings, (Strings{"old"}));
    Integers integers{9};
    EXPECT_EQ(At("counts").GetIntegers(integers), S_OK);
    EXPECT_EQ(integers, (Integers{9}));
    Booleans booleans{true};
    EXPECT_EQ(At("flags").GetBooleans(booleans), S_OK);
    EXPECT_EQ(booleans, (Booleans{true}));
}

TEST_F(ListReadTest, Readers_ThatFail_LeaveTheResultAlone)
{
    Strings strings{"old"};
    EXPECT_EQ(At("counts").GetStrings(strings), E_FAIL);
    EXPECT_EQ(strings, (Strings{"old"}));
    ORXListValORXUnicodeString list;
    EXPECT_EQ(At("count").GetStrings(list), E_FAIL);
    EXPECT_EQ(list.Size(), 0);
    Integers integers{9};
    EXPECT_EQ(At("ratios").GetIntegers(integers), E_FAIL);
    EXPECT_EQ(integers, (Integers{9}));
    Booleans booleans{true};
    EXPECT_EQ(At("count").GetBooleans(booleans), E_FAIL);
    EXPECT_EQ(booleans, (Booleans{true}));
    EXPECT_EQ(Reported().size(), 4U);
}
} // namespace
