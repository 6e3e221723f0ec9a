/**
 * @file
 * How an error travels along a chain and where it is reported, for every operation of the cursor.
 */

#include <functional>
#include <string>
#include <vector>

#include "CursorTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class ErrorConvention : public CursorTest
{
};

/// One move of the cursor.
struct Move
{
    const char* name;
    std::function<VYRCfdObjectAccess(const VYRCfdObjectAccess&)> go;
};

const Move Moves[] = {
    {"Get(name)", [](const VYRCfdObjectAccess& iCursor) { return iCursor.Get("title"); }},
    {"Get(name, index)", [](const VYRCfdObjectAccess& iCursor) { return iCursor.Get("title", 0); }},
    {"Get(key, index)",
     [](const VYRCfdObjectAccess& iCursor) { return iCursor.Get(static_cast<ORXISpecAttrKey*>(nullptr), 0); }},
    {"Get(key function, index)",
     [](const VYRCfdObjectAccess& iCursor) { return iCursor.Get(VYRCFDBASE(Choice, value), 0); }},
    {"Get(index)", [](const VYRCfdObjectAccess& iCursor) { return iCursor.Get(1); }},
    {"[name]", [](const VYRCfdObjectAccess& iCursor) { return iCursor["title"]; }},
    {"[index]", [](const VYRCfdObjectAccess& iCursor) { return iCursor[1]; }},
    {"[key]", [](const VYRCfdObjectAccess& iCursor) { return iCursor[static_cast<ORXISpecAttrKey*>(nullptr)]; }},
    {"[key function]", [](const VYRCfdObjectAccess& iCursor) { return iCursor[VYRCFDBASE(Choice, value)]; }},
    {"Ref(name)", [](const VYRCfdObjectAccess& iCursor) { return iCursor.Ref("title"); }},
    {"Ref(key)", [](const VYRCfdObjectAccess& iCursor) { return iCursor.Ref(static_cast<ORXISpecAttrKey*>(nullptr)); }},
    {"Ref(key function)", [](const VYRCfdObjectAccess& iCursor) { return iCursor.Ref(VYRCFDBASE(Choice, value)); }},
    {"GetByPath", [](const VYRCfdObjectAccess& iCursor) { return iCursor.GetByPath("title/x"); }},
    {"GetByPath, empty", [](const VYRCfdObjectAccess& iCursor) { return iCursor.GetByPath(""); }},
    {"GetParent", [](const VYRCfdObjectAccess& iCursor) { return iCursor.GetParent(); }},
};

/// An operation that answers a status or a boolean, with what it reports on a cursor with an error and on one that
/// stands nowhere.
struct Operation
{
    const char* name;
    std::function<HRESULT(const VYRCfdObjectAccess&)> call;
    /// Nothing, the cursor's own text, the text of a failed check, or a message.
    enum class On
    {
        Silence,
        Text,
        Check,
        Message
    } onError;
    const char* errorCheck;
    On onNowhere;
    const char* nowhereCheck;
};

using On = Operation::On;

/// E_FAIL for false, so that all operations compare alike.
HRESULT Truth(bool iAnswer)
{
    return iAnswer ? S_OK : E_FAIL;
}

template <class Value> auto Read(HRESULT (VYRCfdObjectAccess::*iRead)(Value&) const)
{
    return [iRead](const VYRCfdObjectAccess& iCursor) {
        Value value{};
        return (iCursor.*iRead)(value);
    };
}

template <class Value> auto ReadEntry(HRESULT (VYRCfdObjectAccess::*iRead)(Value&, int) const)
{
    return [iRead](const VYRCfdObjectAccess& iCursor) {
        Value value{};
        return (iCursor.*iRead)(value, 1);
    };
}

auto Test(bool (VYRCfdObjectAccess::*iTest)() const)
{
    return [iTest](const VYRCfdObjectAccess& iCursor) { return Truth((iCursor.*iTest)()); };
}

using Access = VYRCfdObjectAccess;
using Text = ORXUnicodeString;

const Operation Operations[] = {
    {"GetPlainString", Read<Text>(&Access::GetPlainString), On::Text, "", On::Check, "_spAttr"},
    {"SetPlainString", [](const Access& iCursor) { return iCursor.SetPlainString("x"); }, On::Text, "", On::Check,
     "_spAttr"},
    {"GetString", Read<Text>(&Access::GetString), On::Text, "", On::Check, "_spAttr"},
    {"GetString", ReadEntry<Text>(&Access::GetString), On::Text, "", On::Check, "_spAttr"},
    {"SetString", [](const Access& iCursor) { return iCursor.SetString("x"); }, On::Check, "spParm", On::Check,
     "spParm"},
    {"SetString", [](const Access& iCursor) { return iCursor.SetString("x", 1); }, On::Text, "", On::Check, "_spAttr"},
    {"GetInteger", Read<int>(&Access::GetInteger), On::Text, "", On::Check, "_spAttr"},
    {"GetInteger", ReadEntry<int>(&Access::GetInteger), On::Text, "", On::Check, "_spAttr"},
    {"SetInteger", [](const Access& iCursor) { return iCursor.SetInteger(1); }, On::Check, "spParm", On::Check,
     "spParm"},
    {"SetInteger", [](const Access& iCursor) { return iCursor.SetInteger(1, 1); }, On::Text, "", On::Check, "_spAttr"},
    {"GetDouble", Read<double>(&Access::GetDouble), On::Text, "", On::Check, "_spAttr"},
    {"GetDouble", ReadEntry<double>(&Access::GetDouble), On::Text, "", On::Check, "_spAttr"},
    {"SetDouble", [](const Access& iCursor) { return iCursor.SetDouble(1.0); }, On::Text, "", On::Check, "_spAttr"},
    {"SetDouble", [](const Access& iCursor) { return iCursor.SetDouble(1.0, 1); }, On::Text, "", On::Check, "_spAttr"},
    {"GetBoolean", Read<bool>(&Access::GetBoolean), On::Text, "", On::Check, "_spAttr"},
    {"GetBoolean", ReadEntry<bool>(&Access::GetBoolean), On::Text, "", On::Check, "_spAttr"},
    {"SetBoolean", [](const Access& iCursor) { return iCursor.SetBoolean(true); }, On::Check, "spParm", On::Check,
     "spParm"},
    {"SetBoolean", [](const Access& iCursor) { return iCursor.SetBoolean(true, 1); }, On::Text, "", On::Check,
     "_spAttr"},
    {"IsString", Test(&Access::IsString), On::Check, "_error.IsNull()", On::Check, "_spAttr"},
    {"IsInteger", Test(&Access::IsInteger), On::Check, "_error.IsNull()", On::Check, "_spAttr"},
    {"IsDouble", Test(&Access::IsDouble), On::Check, "_error.IsNull()", On::Check, "_spAttr"},
    {"IsBoolean", Test(&Access::IsBoolean), On::Silence, "", On::Check, "_spAttr"},
    {"IsEnum", Test(&Access::IsEnum), On::Silence, "", On::Check, "_spAttr"},
    {"IsList", Test(&Access::IsList), On::Silence, "", On::Silence, ""},
    {"IsObject", Test(&Access::IsObject), On::Silence, "", On::Silence, ""},
    {"IsObjectList", Test(&Access::IsObjectList), On::Silence, "", On::Silence, ""},
    {"IsSubTypeOf", [](const Access& iCursor) { return Truth(iCursor.IsSubTypeOf("CursorPart")); }, On::Silence, "",
     On::Silence, ""},
    {"GetParm", [](const Access& iCursor) { return Truth(!!iCursor.GetParm()); }, On::Silence, "", On::Silence, ""},
    {"GetListSize", Read<int>(&Access::GetListSize), On::Text, "", On::Message, "null attribute"},
    {"GetStrings", Read<std::vector<Text>>(&Access::GetStrings), On::Text, "", On::Check, "_spAttr"},
    {"GetStrings", Read<ORXListValORXUnicodeString>(&Access::GetStrings), On::Text, "", On::Check, "_spAttr"},
    {"GetIntegers", Read<std::vector<int>>(&Access::GetIntegers), On::Text, "", On::Check, "_spAttr"},
    {"GetDoubles", Read<std::vector<double>>(&Access::GetDoubles), On::Text, "", On::Check, "_spAttr"},
    {"GetBooleans", Read<std::vector<bool>>(&Access::GetBooleans), On::Text, "", On::Check, "_spAttr"},
    {"SetStrings", [](const Access& iCursor) { return iCursor.SetStrings(std::vector<Text>{"x"}); }, On::Text, "",
     On::Check, "_spAttr"},
    {"SetStrings", [](const Access& iCursor) { return iCursor.SetStrings(ORXListValORXUnicodeString()); }, On::Text, "",
     On::Check, "_spAttr"},
    {"List",
     [](const Access& iCursor) {
         std::vector<Access> objects;
         return iCursor.List(objects);
     },
     On::Text, "", On::Silence, ""},
    {"SetList", [](const Access& iCursor) { return iCursor.SetList(std::vector<Access>()); }, On::Text, "", On::Silence,
     ""},
    {"SetList",
     [](const Access& iCursor) {
         ORXListValORXBaseUnknown_var objects;
         return iCursor.SetList(objects);
     },
     On::Text, "", On::Silence, ""},
    {"SetObject", [](const Access& iCursor) { return iCursor.SetObject(ORXBaseUnknown_var(), 0); }, On::Text, "",
     On::Silence, ""},
    {"SetObject", [](const Access& iCursor) { return iCursor.SetObject(Access(), 0); }, On::Text, "", On::Silence, ""},
    {"Remove", [](const Access& iCursor) { return iCursor.Remove(ORXBaseUnknown_var()); }, On::Text, "", On::Silence,
     ""},
    {"RemoveAll", [](const Access& iCursor) { return iCursor.RemoveAll(); }, On::Text, "", On::Silence, ""},
    {"RemovePosition", [](const Access& iCursor) { return iCursor.RemovePosition(1); }, On::Text, "", On::Silence, ""},
    {"CleanList", [](const Access& iCursor) { return iCursor.CleanList(IID_ORXISpecObject); }, On::Text, "",
     On::Silence, ""},
};

/// What an operation is expected to report.
Records Expected(const Operation& iOperation, On iOn, const char* iCheck, const char* iText)
{
    switch (iOn)
    {
    case On::Silence:
        return {};
    case On::Text:
        return {Error(iText, In(iOperation.name))};
    case On::Check:
        return {Assertion(iCheck, In(iOperation.name))};
    case On::Message:
        return {Error(iCheck, In(iOperation.name))};
    }
    return {};
}

TEST_F(ErrorConvention, Moves_OnACursorWithAnError_HandItsTextOnAndReportNothing)
{
    const VYRCfdObjectAccess broken = Broken();
    for (const Move& move : Moves)
        EXPECT_TRUE(IsError(move.go(broken), BrokenText)) << move.name;
    EXPECT_TRUE(IsError(broken, BrokenText));
}

TEST_F(ErrorConvention, Moves_OfACursorThatStandsNowhere_AreNullObject)
{
    for (const Move& move : Moves)
        EXPECT_TRUE(IsError(move.go(Empty()), "Null object")) << move.name;
}

TEST_F(ErrorConvention, FirstFailure_GoesThroughAChainOfAnyLengthWordForWord)
{
    VYRCfdObjectAccess cursor = Part()["no such"];
    for (int round = 0; round < 100; ++round)
        for (const Move& move : Moves)
            cursor = move.go(cursor);
    EXPECT_TRUE(IsError(cursor, "No attribute no such"));
    EXPECT_EQ(Reported(), Records{}) << "no move reports";

    double value = 4.5;
    EXPECT_EQ(cursor.GetDouble(value), E_FAIL);
    EXPECT_EQ(value, 4.5);
    EXPECT_EQ(Reported(), (Records{Error("No attribute no such", In("GetDouble"))}));
}

TEST_F(ErrorConvention, Operations_OnACursorWithAnError_ReportAsEachIsMade)
{
    const VYRCfdObjectAccess broken = Broken();
    for (const Operation& operation : Operations)
    {
        EXPECT_EQ(operation.call(broken), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), Expected(operation, operation.onError, operation.errorCheck, BrokenText))
            << operation.name;
    }
    EXPECT_TRUE(IsError(broken, BrokenText)) << "a report does not clear the error";
}

TEST_F(ErrorConvention, Operations_OnACursorThatStandsNowhere_ReportAsEachIsMade)
{
    for (const Operation& operation : Operations)
    {
        EXPECT_EQ(operation.call(Empty()), E_FAIL) << operation.name;
        EXPECT_EQ(Reported(), Expected(operation, operation.onNowhere, operation.nowhereCheck, "")) << operation.name;
    }
}

TEST_F(ErrorConvention, ListIntoAHostList_OfACursorWithAnError_ReportsTheTextAndTheCall)
{
    ORXListValORXBaseUnknown_var objects;
    EXPECT_EQ(Broken().List(objects), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error(BrokenText, In("List")), FailedCall("List(objects)", In("List"))}));
    EXPECT_EQ(Empty().List(objects), E_FAIL);
    EXPECT_EQ(Reported(), (Records{FailedCall("List(objects)", In("List"))}));
    EXPECT_EQ(objects.Size(), 0);
}

TEST_F(ErrorConvention, Texts_OnACursorWithAnError_AreEmpty)
{
    for (const VYRCfdObjectAccess& cursor : {Broken(), Empty()})
    {
        EXPECT_EQ(cursor.GetName(), ORXUnicodeString());
        EXPECT_EQ(cursor.GetID(), ORXUnicodeString());
        EXPECT_EQ(cursor.GetType(), ORXUnicodeString());
    }
}

TEST_F(ErrorConvention, Outputs_OfAFailedRead_StayAsTheyWere)
{
    const VYRCfdObjectAccess cursors[] = {Broken(), Empty(), Part(), At("zones")};
    for (const VYRCfdObjectAccess& cursor : cursors)
    {
        ORXUnicodeString text("before");
        int number = 41;
        double real = 4.1;
        bool flag = true;
        EXPECT_EQ(cursor.GetPlainString(text), E_FAIL);
        EXPECT_EQ(cursor.GetString(text), E_FAIL);
        EXPECT_EQ(cursor.GetString(text, 1), E_FAIL);
        EXPECT_EQ(cursor.GetInteger(number), E_FAIL);
        EXPECT_EQ(cursor.GetInteger(number, 1), E_FAIL);
        EXPECT_EQ(cursor.GetDouble(real), E_FAIL);
        EXPECT_EQ(cursor.GetDouble(real, 1), E_FAIL);
        EXPECT_EQ(cursor.GetBoolean(flag), E_FAIL);
        EXPECT_EQ(cursor.GetBoolean(flag, 1), E_FAIL);
        EXPECT_EQ(text, ORXUnicodeString("before"));
        EXPECT_EQ(number, 41);
        EXPECT_EQ(real, 4.1);
        EXPECT_TRUE(flag);
        EXPECT_EQ(Reported().size(), 9U) << "each reports once";
    }
}

// A message without arguments is text: a name may hold what a format would read.
TEST_F(ErrorConvention, PercentSignsInNames_AreReportedWordForWord)
{
    ORXUnicodeString text;
    EXPECT_EQ(Part()["100%s of %n%d"].GetString(text), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("No attribute 100%s of %n%d", In("GetString"))}));
    EXPECT_EQ(Part().Get("rate%s%n", 1).GetString(text), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("rate%s%n not a list", In("GetString"))}));
    EXPECT_EQ(Part()["codes%d"]["x"].GetString(text), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("codes%dNot a list of objects", In("GetString"))}));
    EXPECT_EQ(Part()["rate%s%n"].GetString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("100%"));
}
} // namespace
