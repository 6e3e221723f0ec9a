/**
 * @file
 * Where the operations on whole lists do not fit: on cursors that stand elsewhere, and on attributes of other kinds.
 */

#include <ostream>

#include "EnteredScopes.h"
#include "ListFixture.h"
#include "ListOperations.h"

/// For the names of failed cases.
void PrintTo(const ListOperation& iOperation, std::ostream* ioStream)
{
    *ioStream << iOperation.name;
}

namespace
{
class ListOperationTest : public ListFixture, public testing::WithParamInterface<ListOperation>
{
protected:
    void SetUp() override
    {
        ListFixture::SetUp();
        Fill("references", {"A", "B"});
    }

    HRESULT Call(const VYRCfdObjectAccess& iCursor) { return GetParam().call(iCursor, Cursor(Part("A"))); }

    void ExpectOutcome(const VYRCfdObjectAccess& iCursor, const Outcome& iExpected)
    {
        EXPECT_EQ(Call(iCursor), iExpected.status);
        EXPECT_EQ(Reported(), iExpected.reports);
    }
};

TEST_P(ListOperationTest, OnAnErrorCursor_ReportsItsTextWordForWord)
{
    Outcome expected{E_FAIL, {Error("100% of it %s", GetParam().function)}};
    expected.reports.insert(expected.reports.end(), GetParam().behindError.begin(), GetParam().behindError.end());
    ExpectOutcome(VYRCfdObjectAccess("100% of it %s"), expected);
}

TEST_P(ListOperationTest, OnTheEmptyCursor_MissesTheObject)
{
    ExpectOutcome(VYRCfdObjectAccess(ORXUnicodeString()), GetParam().onNothing);
}

TEST_P(ListOperationTest, OnAnObjectCursor_MissesTheKey)
{
    ExpectOutcome(Cursor(m_owner), GetParam().onObject);
}

TEST_P(ListOperationTest, OnAnAttributeThatIsNoList_TellsWhatItWants)
{
    ExpectOutcome(At(GetParam().scalar), GetParam().onScalar);
}

TEST_P(ListOperationTest, OnAListOfOtherEntries_TellsWhatItWants)
{
    ExpectOutcome(At(GetParam().list), GetParam().onList);
}

TEST_P(ListOperationTest, OnAListThatFits_ReportsNothing)
{
    EXPECT_GE(Call(At(GetParam().fits)), 0);
}

TEST_P(ListOperationTest, TakesAnErrorStatusBackOrLeavesIt)
{
    const unsigned char left = GetParam().resets ? 0 : 7;
    VYRStandalone::SetErrorStatus(7);
    Call(At(GetParam().fits));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), left);

    VYRStandalone::SetErrorStatus(7);
    Call(VYRCfdObjectAccess("an error"));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), left);
    Reported();
}

TEST_P(ListOperationTest, Scopes_AreThoseOfReadersAndWriters)
{
    const VYRCfdObjectAccess cursor = At(GetParam().fits);
    const VYRCfdObjectAccess part = Cursor(Part("A"));
    const Names scopes = EnteredScopes(30, [&] { GetParam().call(cursor, part); });
    EXPECT_EQ(scopes, GetParam().scopes);
}

INSTANTIATE_TEST_SUITE_P(Lists, ListOperationTest, testing::ValuesIn(ListOperations()),
                         [](const testing::TestParamInfo<ListOperation>& iInfo) {
                             return std::string(iInfo.param.name);
                         });
} // namespace
