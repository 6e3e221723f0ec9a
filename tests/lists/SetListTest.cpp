/**
 * @file
 * `SetList`: what it asks of the host in the cases that a caller relies on. SetListScanTest.cpp has the rest.
 */

#include "ListFixture.h"
#include "ORXISimBCDataTableColumn.h"
#include "VYRStandaloneInstruments.h"

namespace
{
using Calls = std::vector<std::string>;
using VYRStandalone::CallRecorder;

constexpr char Function[] = "VYRCfdObjectAccess::SetList";
constexpr char Wanted[] = "iObjects[i-1].Self()";
constexpr char Move[] = "_spAttr->MoveInPosition(_spKey, (*pVals)[j], i)";
constexpr char Insert[] = "_spAttr->InsertAtPosition(_spKey, spSpec, i)";

class SetListTest : public ListFixture
{
};

struct ScanCase
{
    const char* what;
    Names stored;
    Names wanted;
    HRESULT status;
    Calls calls;
};

TEST_F(SetListTest, Scan_AsksTheHostForAsLittleAsItCan)
{
    const ScanCase cases[] = {
        {"equal", {"A", "B", "C"}, {"A", "B", "C"}, S_FALSE, {}},
        {"nothing wanted of nothing", {}, {}, S_FALSE, {}},
        {"two swapped", {"A", "B", "C"}, {"B", "A", "C"}, S_OK, {"move Owner.references[1] = B"}},
        {"last to the front", {"A", "B", "C"}, {"C", "A", "B"}, S_OK, {"move Owner.references[1] = C"}},
        {"first to the end",
         {"A", "B", "C"},
         {"B", "C", "A"},
         S_OK,
         {"move Owner.references[1] = B", "move Owner.references[2] = C"}},
        {"nothing wanted",
         {"A", "B", "C"},
         {},
         S_OK,
         {"remove Owner.references[3]", "remove Owner.references[2]", "remove Owner.references[1]"}},
        {"a shorter list", {"A", "B", "C"}, {"A"}, S_OK, {"remove Owner.references[3]", "remove Owner.references[2]"}},
        {"the first gone", {"A", "B"}, {"B"}, S_OK, {"move Owner.references[1] = B", "remove Owner.references[2]"}},
        {"new ones",
         {"A"},
         {"B", "A", "C"},
         S_OK,
         {"insert Owner.references[1] = B", "insert Owner.references[3] = C"}},
        {"all new",
         {},
         {"A", "B", "C"},
         S_OK,
         {"insert Owner.references[1] = A", "insert Owner.references[2] = B", "insert Owner.references[3] = C"}},
        {"empty entries go to the end and out",
         {"", "A", ""},
         {"A"},
         S_OK,
         {"move Owner.references[1] = A", "remove Owner.references[3]", "remove Owner.references[2]"}},
        {"twice wanted: no look back at the first", {"A"}, {"A", "A"}, S_OK, {"insert Owner.references[2] = A"}},
    };
    for (const ScanCase& row : cases)
    {
        Fill("references", row.stored);
        CallRecorder calls;
        EXPECT_EQ(At("references").SetList(Parts(row.wanted)), row.status) << row.what;
        EXPECT_EQ(calls.Take(), row.calls) << row.what;
        EXPECT_EQ(Held("references"), row.wanted) << row.what;
    }
}

TEST_F(SetListTest, Scan_DoesNotStopAtAHit_SoARepeatedObjectIsMovedEvenInAnEqualList)
{
    Fill("references", {"A", "B", "A"});
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts({"A", "B", "A"})), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"move Owner.references[1] = A", "move Owner.references[2] = B"}));
    EXPECT_EQ(Held("references"), (Names{"A", "B", "A"}));
}

TEST_F(SetListTest, Scan_OfNeighbouringRepetitions_MovesTheSecondToTheFirst)
{
    Fill("references", {"A", "A", "B"});
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts({"A", "A", "B"})), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"move Owner.references[1] = A"}));
    EXPECT_EQ(Held("references"), (Names{"A", "A", "B"}));
}

TEST_F(SetListTest, ComponentsAreGivenTheirOwner_AndThoseThatLeaveLoseIt)
{
    Fill("parts", {"A", "B"});
    EXPECT_EQ(At("parts").SetList(Parts({"C", "A"})), S_OK);
    EXPECT_EQ(Held("parts"), (Names{"C", "A"}));
    EXPECT_TRUE(Cursor(Part("C")).GetParent() == Cursor(m_owner));
    EXPECT_EQ(Cursor(Part("B")).GetParent().GetError(), ORXUnicodeString("Null initialization c"));
}

TEST_F(SetListTest, WhereTheHostListsNothing_InsertsAllFromTheFirstPositionOn)
{
    MakeFail("ListObjects", "references", E_FAIL, 1, 1);
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts({"A", "B", "A"})), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"insert Owner.references[1] = A", "insert Owner.references[2] = B",
                                   "insert Owner.references[3] = A"}));
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(Held("references"), (Names{"A", "B", "A"}));

    MakeFail("ListObjects", "references", E_FAIL, 1, 1);
    EXPECT_EQ(At("references").SetList(std::vector<VYRCfdObjectAccess>{}), S_FALSE) << "nothing was seen";
    EXPECT_EQ(Held("references"), (Names{"A", "B", "A"}));
}

TEST_F(SetListTest, AnErrorCursorAtTheSecondPlace_StopsWithTheFirstPlaceSettled)
{
    Fill("references", {"A", "B", "C"});
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts({"C", "", "A"})), E_FAIL);
    EXPECT_EQ(calls.Take(), (Calls{"move Owner.references[1] = C"}));
    EXPECT_EQ(Held("references"), (Names{"C", "A", "B"}));
    EXPECT_EQ(Reported(), (Records{Assertion(Wanted, Function)}));
}

TEST_F(SetListTest, TheEmptyCursor_StopsAsAnErrorCursorDoes)
{
    EXPECT_EQ(At("references").SetList(std::vector<VYRCfdObjectAccess>{VYRCfdObjectAccess(ORXUnicodeString())}),
              E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion(Wanted, Function)}));
}

TEST_F(SetListTest, AnAttributeCursorInTheInput_StandsForItsObject)
{
    EXPECT_EQ(At("references").SetList(std::vector<VYRCfdObjectAccess>{At("title")}), S_OK);
    EXPECT_EQ(Held("references"), (Names{"Owner"}));
}

TEST_F(SetListTest, AComponentThatIsNoSpecObject_IsReportedWhenItWouldBeInserted)
{
    const VYRCfdObjectAccess wanted = Cursor(Part("A"));
    MakeFail("QueryInterface", "ORXISpecObject");
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(std::vector<VYRCfdObjectAccess>{wanted}), E_FAIL);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(calls.Take(), Calls{});
    EXPECT_EQ(Reported(), (Records{Assertion("spSpec", Function)}));
}

TEST_F(SetListTest, AMoveThatFails_StopsAndUndoesNothing)
{
    Fill("references", {"A", "B", "C"});
    MakeFail("MoveInPosition", "references", E_NOTIMPL, 2);
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts({"C", "B", "A"})), E_NOTIMPL);
    EXPECT_EQ(calls.Take(), (Calls{"move Owner.references[1] = C", "move Owner.references[2] = B"}));
    EXPECT_EQ(Held("references"), (Names{"C", "A", "B"}));
    EXPECT_EQ(Reported(), (Records{FailedCall(Move, Function, E_NOTIMPL)}));
}

TEST_F(SetListTest, AnInsertThatFails_StopsAndUndoesNothing)
{
    Fill("references", {"A"});
    MakeFail("InsertAtPosition", "references", E_NOTIMPL, 2);
    EXPECT_EQ(At("references").SetList(Parts({"B", "A", "C", "D"})), E_NOTIMPL);
    EXPECT_EQ(Held("references"), (Names{"B", "A"}));
    EXPECT_EQ(Reported(), (Records{FailedCall(Insert, Function, E_NOTIMPL)}));
}

TEST_F(SetListTest, ARemovalThatFails_IsNotLookedAt)
{
    Fill("references", {"A", "B", "C"});
    MakeFail("RemovePosition", "references", E_FAIL, 1, 1);
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts({"A"})), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"remove Owner.references[3]", "remove Owner.references[2]"}));
    EXPECT_EQ(Held("references"), (Names{"A", "C"}));
}

TEST_F(SetListTest, AStatusThatIsNoFailure_CountsAsDone)
{
    MakeFail("InsertAtPosition", "references", S_FALSE);
    EXPECT_EQ(At("references").SetList(Parts({"A"})), S_OK);
    EXPECT_EQ(Held("references"), Names{});
}

TEST_F(SetListTest, FromAHostList_WorksAsFromCursors)
{
    Fill("references", {"A", "B"});
    ORXListValORXBaseUnknown_var wanted = HandleList({Unknown("B"), Unknown("A")});
    EXPECT_EQ(At("references").SetList(wanted), S_OK);
    EXPECT_EQ(Held("references"), (Names{"B", "A"}));
    EXPECT_EQ(At("references").SetList(wanted), S_FALSE);

    ORXListValORXBaseUnknown_var nothing;
    EXPECT_EQ(At("references").SetList(nothing), S_OK);
    EXPECT_EQ(Held("references"), Names{});
    EXPECT_EQ(At("references").SetList(nothing), S_FALSE);
}

TEST_F(SetListTest, FromAHostList_ANullEntryStopsThere)
{
    ORXListValORXBaseUnknown_var wanted = HandleList({Unknown("A"), ORXBaseUnknown_var(), Unknown("B")});
    EXPECT_EQ(At("references").SetList(wanted), E_FAIL);
    EXPECT_EQ(Held("references"), (Names{"A"}));
    EXPECT_EQ(Reported(), (Records{Assertion(Wanted, Function)}));
}

TEST_F(SetListTest, GivesBackEveryReferenceThatItTook)
{
    Fill("references", {"A", "B"});
    const unsigned int references = VYRStandalone::ReferenceCount(Part("A"));
    EXPECT_EQ(At("references").SetList(Parts({"B", "A", "A"})), S_OK);
    EXPECT_EQ(VYRStandalone::ReferenceCount(Part("A")), references + 1) << "one entry more";
    EXPECT_EQ(At("references").SetList(Parts({"B"})), S_OK);
    EXPECT_EQ(VYRStandalone::ReferenceCount(Part("A")), references - 1);
}
} // namespace
