#include "CursorReports.h"

namespace
{
using Cursor = VYRCfdObjectAccess;

std::string SetPlain(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetPlainString("duct"));
}

std::string SetText(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetString("duct"));
}

std::string SetNumber(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetInteger(7));
}

std::string SetReal(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetDouble(0.25));
}

std::string SetFlag(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetBoolean(false));
}

template <int Index> std::string SetTextAt(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetString("duct", Index));
}

template <int Index> std::string SetNumberAt(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetInteger(7, Index));
}

template <int Index> std::string SetRealAt(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetDouble(0.25, Index));
}

template <int Index> std::string SetFlagAt(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetBoolean(false, Index));
}

/// An entry of a list, written straight.
struct EntryWrite
{
    CursorCall none;
    CursorCall first;
    CursorCall behind;
    const char* list;
    const char* other;
    const char* listType;
};

CursorCases EntryCases(const EntryWrite& iWrite)
{
    return {{Error_, BrokenText, "(error)", iWrite.first},
            {Assertion_, "_spAttr", "(nothing)", iWrite.first},
            {Assertion_, "_spKey->GetType() == tk_list", "title", iWrite.first},
            {Assertion_, "index > 0", iWrite.list, iWrite.none},
            {Assertion_, iWrite.listType, iWrite.other, iWrite.first},
            {Assertion_, "index <= size", iWrite.list, iWrite.behind}};
}

void AddEntries(ReportRows& ioRows)
{
    const EntryWrite text{&SetTextAt<0>, &SetTextAt<1>, &SetTextAt<3>,
                          "titles",      "ratios",      "_spKey->GetListType() == tk_string"};
    const EntryWrite number{&SetNumberAt<0>,
                            &SetNumberAt<1>,
                            &SetNumberAt<3>,
                            "counts",
                            "titles",
                            "(_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum)"};
    const EntryWrite real{&SetRealAt<0>, &SetRealAt<1>, &SetRealAt<3>,
                          "ratios",      "counts",      "_spKey->GetListType() == tk_double"};
    const EntryWrite flag{&SetFlagAt<0>, &SetFlagAt<1>, &SetFlagAt<3>,
                          "flags",       "counts",      "_spKey->GetListType() == tk_boolean"};
    AddCursorRows(ioRows, "SetString", EntryCases(text));
    AddCursorRows(ioRows, "SetString", {{Assertion_, "_spKey", "(object)", text.first}});
    AddCursorRows(ioRows, "SetInteger", EntryCases(number));
    AddCursorRows(ioRows, "SetInteger", {{Assertion_, "_spKey", "(object)", number.first}});
    AddCursorRows(ioRows, "SetBoolean", EntryCases(flag));
    AddCursorRows(ioRows, "SetBoolean", {{Assertion_, "_spKey", "(object)", flag.first}});
    AddCursorRows(ioRows, "SetDouble", EntryCases(real));
    AddCursorRows(ioRows, "SetDouble",
                  {{FailedCall_, "spTableColumn->SetValue(index, iValue)", "(column)", real.first, "SetValue"}});
    ioRows.push_back({Assertion("_spKey", In("SetDouble")), {}, "", {}, {}, "",
                      "A cursor without attribute stands at a table column; that is looked at before."});
}

void AddScalars(ReportRows& ioRows)
{
    AddCursorRows(ioRows, "SetPlainString",
                  {{Error_, BrokenText, "(error)", &SetPlain},
                   {Assertion_, "_spAttr", "(nothing)", &SetPlain},
                   {Assertion_, "_spKey", "(object)", &SetPlain},
                   {Assertion_, "_spKey->GetType() == tk_string", "ratio", &SetPlain}});
    AddCursorRows(ioRows, "SetString",
                  {{Assertion_, "spParm", "(object)", &SetText},
                   {Assertion_, "!!spType", "title", &SetText, "GetType"},
                   {Error_, "SetString on a non-string/real", "count", &SetText}});
    AddCursorRows(ioRows, "SetInteger",
                  {{Assertion_, "spParm", "(object)", &SetNumber}, {Assertion_, "IsInteger()", "title", &SetNumber}});
    AddCursorRows(ioRows, "SetBoolean",
                  {{Assertion_, "spParm", "(object)", &SetFlag},
                   {Assertion_, "!!spType && spType->IsaBoolean()", "count", &SetFlag}});
    AddCursorRows(ioRows, "SetDouble",
                  {{Assertion_, "spTableColumn", "(object)", &SetReal},
                   {FailedCall_, "spTableColumn->SetValue(0, iValue)", "(column)", &SetReal, "SetValue"},
                   {Assertion_, "spParm", "titles", &SetReal},
                   {Assertion_, R"(!!spType && spType->IsaKindOf("Real"))", "count", &SetReal}});
}
} // namespace

void AddCursorWriteReports(ReportRows& ioRows)
{
    AddScalars(ioRows);
    AddEntries(ioRows);
}
