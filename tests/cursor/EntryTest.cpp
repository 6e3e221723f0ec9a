/**
 * @file
 * Entries of lists of values, read and written straight in the attribute store, and the rows of a table column.
 */

#include <functional>
#include <string>
#include <vector>

#include "CursorTest.h"
#include "ORXISimBCDataTableColumn.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class Entries : public CursorTest
{
};

TEST_F(Entries, AreReadByTheirPosition)
{
    ORXUnicodeString text;
    EXPECT_EQ(At("monitors").GetString(text, 1), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("lift"));
    EXPECT_EQ(At("monitors").GetString(text, 3), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("heat"));
    int number = 0;
    EXPECT_EQ(At("counts").GetInteger(number, 2), S_OK);
    EXPECT_EQ(number, 20);
    EXPECT_EQ(At("schemes").GetInteger(number, 1), S_OK);
    EXPECT_EQ(number, 2) << "an entry of enumerations is the number of its text";
    double real = 0.0;
    EXPECT_EQ(At("levels").GetDouble(real, 3), S_OK);
    EXPECT_EQ(real, 3.5);
    bool flag = true;
    EXPECT_EQ(At("switches").GetBoolean(flag, 2), S_OK);
    EXPECT_FALSE(flag);
    EXPECT_EQ(At("switches").GetBoolean(flag, 3), S_OK);
    EXPECT_TRUE(flag);
}

TEST_F(Entries, AreWrittenByTheirPosition)
{
    EXPECT_EQ(At("monitors").SetString("mass", 2), S_OK);
    EXPECT_EQ(At("counts").SetInteger(-1, 3), S_OK);
    EXPECT_EQ(At("schemes").SetInteger(1, 1), S_OK);
    EXPECT_EQ(At("levels").SetDouble(9.5, 1), S_OK);
    EXPECT_EQ(At("switches").SetBoolean(true, 2), S_OK);

    std::vector<ORXUnicodeString> texts;
    EXPECT_EQ(At("monitors").GetStrings(texts), S_OK);
    EXPECT_EQ(texts, (std::vector<ORXUnicodeString>{"lift", "mass", "heat"}));
    std::vector<int> numbers;
    EXPECT_EQ(At("counts").GetIntegers(numbers), S_OK);
    EXPECT_EQ(At("schemes").GetIntegers(numbers), S_OK);
    EXPECT_EQ(numbers, (std::vector<int>{10, 20, -1, 1, 1, 2}));
    std::vector<double> reals;
    EXPECT_EQ(At("levels").GetDoubles(reals), S_OK);
    EXPECT_EQ(reals, (std::vector<double>{9.5, 2.5, 3.5}));
    std::vector<bool> flags;
    EXPECT_EQ(At("switches").GetBooleans(flags), S_OK);
    EXPECT_EQ(flags, (std::vector<bool>{true, true, true}));
    EXPECT_EQ(At("switches").SetBoolean(false, 1), S_OK);
    bool flag = true;
    EXPECT_EQ(At("switches").GetBoolean(flag, 1), S_OK);
    EXPECT_FALSE(flag);
}

TEST_F(Entries, NeedNoParameter)
{
    MakeFail("GetParm", "");
    ORXUnicodeString text;
    EXPECT_EQ(At("monitors").GetString(text, 1), S_OK);
    EXPECT_EQ(At("monitors").SetString("x", 1), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
}

/// An operation with an index.
struct Indexed
{
    const char* name;
    /// A list for which it is made.
    const char* list;
    std::function<HRESULT(const VYRCfdObjectAccess&, int)> call;
    const char* entryCheck;
    bool isRead;
};

constexpr const char* StringCheck = "_spKey->GetListType() == tk_string";
constexpr const char* IntegerCheck = "(_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum)";
constexpr const char* DoubleCheck = "_spKey->GetListType() == tk_double";
constexpr const char* BooleanCheck = "_spKey->GetListType() == tk_boolean";
constexpr const char* ListCheck = "_spKey->GetType() == tk_list";

template <class Value> auto Read(HRESULT (VYRCfdObjectAccess::*iRead)(Value&, int) const)
{
    return [iRead](const VYRCfdObjectAccess& iCursor, int iIndex) {
        Value value{};
        return (iCursor.*iRead)(value, iIndex);
    };
}

const Indexed Operations[] = {
    {"GetString", "monitors", Read<ORXUnicodeString>(&VYRCfdObjectAccess::GetString), StringCheck, true},
    {"GetInteger", "counts", Read<int>(&VYRCfdObjectAccess::GetInteger), IntegerCheck, true},
    {"GetDouble", "levels", Read<double>(&VYRCfdObjectAccess::GetDouble), DoubleCheck, true},
    {"GetBoolean", "switches", Read<bool>(&VYRCfdObjectAccess::GetBoolean), BooleanCheck, true},
    {"SetString", "monitors",
     [](const VYRCfdObjectAccess& iCursor, int iIndex) { return iCursor.SetString("x", iIndex); }, StringCheck, false},
    {"SetInteger", "counts",
     [](const VYRCfdObjectAccess& iCursor, int iIndex) { return iCursor.SetInteger(1, iIndex); }, IntegerCheck, false},
    {"SetDouble", "levels",
     [](const VYRCfdObjectAccess& iCursor, int iIndex) { return iCursor.SetDouble(1.0, iIndex); }, DoubleCheck, false},
    {"SetBoolean", "switches",
     [](const VYRCfdObjectAccess& iCursor, int iIndex) { return iCursor.SetBoolean(true, iIndex); }, BooleanCheck,
     false},
};

// Index 0 is not the scalar here.
TEST_F(Entries, OfAnIndexBelowOne_AreRefused)
{
    for (const Indexed& operation : Operations)
        for (const int index : {0, -1})
        {
            EXPECT_EQ(operation.call(At(operation.list), index), E_FAIL) << operation.name;
            EXPECT_EQ(Reported(), (Records{Assertion("index > 0", In(operation.name))})) << operation.name;
        }
}

TEST_F(Entries, OfAnIndexAboveTheSize_AreRefused)
{
    for (const Indexed& operation : Operations)
    {
        EXPECT_EQ(operation.call(At(operation.list), 3), S_OK) << operation.name;
        for (const int index : {4, 5, 2147483647})
        {
            EXPECT_EQ(operation.call(At(operation.list), index), E_FAIL) << operation.name;
            EXPECT_EQ(Reported(), (Records{Assertion("index <= size", In(operation.name))})) << operation.name;
        }
    }
}

// It decides which text is reported for a call that is wrong in two ways.
TEST_F(Entries, Readers_LookAtTheIndexBeforeTheListAndWritersTheOtherWayRound)
{
    for (const Indexed& operation : Operations)
    {
        EXPECT_EQ(operation.call(At("title"), 0), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), (Records{Assertion(operation.isRead ? "index > 0" : ListCheck, In(operation.name))}))
            << operation.name;
        EXPECT_EQ(operation.call(At("title"), 1), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), (Records{Assertion(ListCheck, In(operation.name))})) << operation.name;
        // Both look at the index before the entries.
        EXPECT_EQ(operation.call(At("zones"), 0), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), (Records{Assertion("index > 0", In(operation.name))})) << operation.name;
        // And at the entries before the size.
        EXPECT_EQ(operation.call(At("zones"), 9), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), (Records{Assertion(operation.entryCheck, In(operation.name))})) << operation.name;
    }
}

TEST_F(Entries, OfAnotherType_AreRefused)
{
    for (const Indexed& operation : Operations)
        for (const std::string list : {"monitors", "counts", "levels", "switches", "schemes", "zones", "related"})
        {
            const bool isEnumeration = list == "schemes" && operation.entryCheck == IntegerCheck;
            if (list == operation.list || isEnumeration)
            {
                EXPECT_EQ(operation.call(At(list.c_str()), 1), S_OK) << operation.name << " of " << list;
                continue;
            }
            EXPECT_EQ(operation.call(At(list.c_str()), 1), E_FAIL) << operation.name << " of " << list;
            EXPECT_EQ(Reported(), (Records{Assertion(operation.entryCheck, In(operation.name))}))
                << operation.name << " of " << list;
        }
}

TEST_F(Entries, OnAnObjectCursor_ReportTheKeyOrTheColumn)
{
    for (const Indexed& operation : Operations)
    {
        const bool isDouble = operation.entryCheck == DoubleCheck;
        EXPECT_EQ(operation.call(Part(), 1), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), (Records{Assertion(isDouble ? "spTableColumn" : "_spKey", In(operation.name))}))
            << operation.name;
    }
}

// The text decides what the caller hears of the host.
TEST_F(Entries, StatusOfTheHostsWrite_IsHandedOnForAStringOnly)
{
    for (const Indexed& operation : Operations)
    {
        if (operation.isRead)
            continue;
        MakeFail(operation.name, operation.list, E_NOTIMPL);
        const bool isString = operation.entryCheck == StringCheck;
        EXPECT_EQ(operation.call(At(operation.list), 1), isString ? E_NOTIMPL : S_OK) << operation.name;
        EXPECT_EQ(VYRStandalone::FaultsHit(), 1) << operation.name;
        EXPECT_EQ(Reported(), Records{}) << operation.name;
        VYRStandalone::ClearFaults();
    }
}

TEST_F(Entries, RefusedWrites_ReachNoHost)
{
    VYRStandalone::CallRecorder calls;
    for (const Indexed& operation : Operations)
        for (const int index : {0, 4})
            EXPECT_EQ(operation.call(At(operation.list), index), E_FAIL);
    EXPECT_EQ(calls.Take(), std::vector<std::string>{});
    EXPECT_EQ(Reported().size(), 16U);
}

// ---- table columns --------------------------------------------------------------------------------------------------

class Columns : public CursorTest
{
protected:
    void SetUp() override
    {
        CursorTest::SetUp();
        m_column = VYRStandalone::MakeTableColumn();
    }

    VYRCfdObjectAccess Column() const { return Cursor(m_column); }

    void Fill(const std::vector<double>& iRows)
    {
        const ORXISimBCDataTableColumn_var column = m_column;
        for (std::size_t row = 0; row < iRows.size(); ++row)
            ASSERT_EQ(column->SetValue(static_cast<int>(row) + 1, iRows[row]), S_OK);
    }

    std::vector<double> Rows() const
    {
        std::vector<double> rows;
        EXPECT_EQ(Column().GetDoubles(rows), S_OK);
        return rows;
    }

    ORXISpecObject_var m_column;
};

TEST_F(Columns, RowsAreReadAndWritten)
{
    Fill({1.5, 2.5});
    double value = 0.0;
    EXPECT_EQ(Column().GetDouble(value, 2), S_OK);
    EXPECT_EQ(value, 2.5);
    EXPECT_EQ(Column().SetDouble(9.5, 2), S_OK);
    EXPECT_EQ(Rows(), (std::vector<double>{1.5, 9.5}));
}

TEST_F(Columns, WithoutAnIndex_AreOneValue)
{
    Fill({1.5, 2.5});
    double value = 0.0;
    EXPECT_EQ(Column().GetDouble(value), S_OK);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(Column().SetDouble(7.5), S_OK);
    EXPECT_EQ(Rows(), (std::vector<double>{7.5, 2.5}));
}

// The reader tests the index, the writer hands it on.
TEST_F(Columns, RowZero_CanBeWrittenAndNotRead)
{
    Fill({1.5, 2.5});
    double value = 4.5;
    EXPECT_EQ(Column().GetDouble(value, 0), E_FAIL);
    EXPECT_EQ(value, 4.5);
    EXPECT_EQ(Reported(), (Records{Assertion("index > 0", In("GetDouble"))}));
    EXPECT_EQ(Column().SetDouble(7.5, 0), S_OK);
    EXPECT_EQ(Rows(), (std::vector<double>{7.5, 2.5}));
}

TEST_F(Columns, RowsOutOfRange_AreReportedAsFailedCalls)
{
    Fill({1.5});
    double value = 4.5;
    EXPECT_EQ(Column().GetDouble(value, 2), E_FAIL);
    EXPECT_EQ(value, 4.5);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->GetValue(index, oValue)", In("GetDouble"))}));
    EXPECT_EQ(Column().SetDouble(1.0, 3), E_FAIL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->SetValue(index, iValue)", In("SetDouble"))}));
    EXPECT_EQ(Column().SetDouble(1.0, -1), E_FAIL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->SetValue(index, iValue)", In("SetDouble"))}));
}

TEST_F(Columns, StatusOfTheHost_IsReportedAndReturned)
{
    Fill({1.5});
    double value = 4.5;
    MakeFail("GetValue", "", E_NOTIMPL);
    EXPECT_EQ(Column().GetDouble(value), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->GetValue(0, oValue)", In("GetDouble"), E_NOTIMPL)}));
    EXPECT_EQ(Column().GetDouble(value, 1), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->GetValue(index, oValue)", In("GetDouble"), E_NOTIMPL)}));
    EXPECT_EQ(value, 4.5);
    MakeFail("SetValue", "", E_NOTIMPL);
    EXPECT_EQ(Column().SetDouble(1.0), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->SetValue(0, iValue)", In("SetDouble"), E_NOTIMPL)}));
    EXPECT_EQ(Column().SetDouble(1.0, 1), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->SetValue(index, iValue)", In("SetDouble"), E_NOTIMPL)}));
}

TEST_F(Columns, WithoutRows_AreNoReal)
{
    EXPECT_FALSE(Column().IsDouble());
    EXPECT_EQ(Reported(), Records{});
    double value = 4.5;
    EXPECT_EQ(Column().GetDouble(value), E_FAIL);
    EXPECT_EQ(value, 4.5);
    EXPECT_EQ(Reported(), (Records{FailedCall("spTableColumn->GetValue(0, oValue)", In("GetDouble"))}));
    EXPECT_EQ(Column().SetDouble(2.5), S_OK);
    EXPECT_TRUE(Column().IsDouble());
    EXPECT_EQ(Rows(), (std::vector<double>{2.5}));
}

/// Only reals know columns.
TEST_F(Columns, AsAnythingElse_HaveNoKey)
{
    Fill({1.5});
    int number = 0;
    EXPECT_EQ(Column().GetInteger(number), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey", In("GetInteger"))}));
    EXPECT_FALSE(Column().IsInteger());
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey", In("IsInteger"))}));
}
} // namespace
