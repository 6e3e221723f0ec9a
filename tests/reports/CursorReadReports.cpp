#include "CursorReports.h"

namespace
{
using Texts = std::vector<ORXUnicodeString>;

template <class Value, HRESULT (VYRCfdObjectAccess::*Read)(Value&) const>
std::string Get(const VYRCfdObjectAccess& iCursor)
{
    Value value{};
    return AnswerOf((iCursor.*Read)(value));
}

template <class Value, HRESULT (VYRCfdObjectAccess::*Read)(Value&, int) const, int Index>
std::string Entry(const VYRCfdObjectAccess& iCursor)
{
    Value value{};
    return AnswerOf((iCursor.*Read)(value, Index));
}

template <bool (VYRCfdObjectAccess::*Ask)() const> std::string Asked(const VYRCfdObjectAccess& iCursor)
{
    return AnswerOf((iCursor.*Ask)());
}

/// The first entry, one behind the last, and none at all.
template <class Value, HRESULT (VYRCfdObjectAccess::*Read)(Value&, int) const>
CursorCases EntryCases(const char* iList, const char* iOther, const char* iListType)
{
    return {{Assertion_, "index > 0", iList, &Entry<Value, Read, 0>},
            {Assertion_, "_spKey->GetType() == tk_list", "title", &Entry<Value, Read, 1>},
            {Assertion_, iListType, iOther, &Entry<Value, Read, 1>},
            {Assertion_, "index <= size", iList, &Entry<Value, Read, 3>}};
}

/// A scalar, read through its parameter.
CursorCases ParameterCases(CursorCall iCall, const char* iScalar)
{
    return {{Error_, BrokenText, "(error)", iCall},
            {Assertion_, "_spAttr", "(nothing)", iCall},
            {Assertion_, "_spKey", "(object)", iCall},
            {Assertion_, "spParm", "titles", iCall},
            {Assertion_, "!!spType", iScalar, iCall, "GetType"},
            {Assertion_, "spVal", iScalar, iCall, "GetValue"}};
}

void AddScalars(ReportRows& ioRows)
{
    using Cursor = VYRCfdObjectAccess;
    const CursorCall plain = &Get<ORXUnicodeString, &Cursor::GetPlainString>;
    AddCursorRows(ioRows, "GetPlainString",
                  {{Error_, BrokenText, "(error)", plain},
                   {Assertion_, "_spAttr", "(nothing)", plain},
                   {Assertion_, "_spKey", "(object)", plain},
                   {Error_, "Not a string", "ratio", plain}});

    AddCursorRows(ioRows, "GetString", ParameterCases(&Get<ORXUnicodeString, &Cursor::GetString>, "title"));
    AddCursorRows(ioRows, "GetString",
                  EntryCases<ORXUnicodeString, &Cursor::GetString>("titles", "ratios",
                                                                   "_spKey->GetListType() == tk_string"));
    AddCursorRows(ioRows, "GetInteger", ParameterCases(&Get<int, &Cursor::GetInteger>, "count"));
    AddCursorRows(ioRows, "GetInteger",
                  EntryCases<int, &Cursor::GetInteger>(
                      "counts", "titles",
                      "(_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum)"));
    AddCursorRows(ioRows, "GetBoolean", ParameterCases(&Get<bool, &Cursor::GetBoolean>, "flag"));
    AddCursorRows(
        ioRows, "GetBoolean",
        EntryCases<bool, &Cursor::GetBoolean>("flags", "counts", "_spKey->GetListType() == tk_boolean"));
}

/// Reals, which also stand in table columns.
void AddReals(ReportRows& ioRows)
{
    using Cursor = VYRCfdObjectAccess;
    const CursorCall get = &Get<double, &Cursor::GetDouble>;
    const CursorCall first = &Entry<double, &Cursor::GetDouble, 1>;
    AddCursorRows(ioRows, "GetDouble",
                  {{Error_, BrokenText, "(error)", get},
                   {Assertion_, "_spAttr", "(nothing)", get},
                   {Assertion_, "spTableColumn", "(object)", get},
                   {FailedCall_, "spTableColumn->GetValue(0, oValue)", "(column)", get, "GetValue"},
                   {FailedCall_, "spTableColumn->GetValue(index, oValue)", "(column)", first, "GetValue"},
                   {Assertion_, "spParm", "titles", get},
                   {Assertion_, "!!spType", "ratio", get, "GetType"},
                   {Assertion_, "spVal", "ratio", get, "GetValue"}});
    AddCursorRows(ioRows, "GetDouble",
                  EntryCases<double, &Cursor::GetDouble>("ratios", "counts", "_spKey->GetListType() == tk_double"));
}

/// What an attribute is.
void AddQuestions(ReportRows& ioRows)
{
    using Cursor = VYRCfdObjectAccess;
    constexpr const char* early = "The error of a cursor is looked at before, by another check.";
    for (const auto& [name, ask] : {std::pair<const char*, CursorCall>{"IsString", &Asked<&Cursor::IsString>},
                                    {"IsInteger", &Asked<&Cursor::IsInteger>},
                                    {"IsDouble", &Asked<&Cursor::IsDouble>},
                                    {"IsBoolean", &Asked<&Cursor::IsBoolean>},
                                    {"IsEnum", &Asked<&Cursor::IsEnum>}})
    {
        const std::string operation = name;
        const bool isQuiet = operation == "IsBoolean" || operation == "IsEnum";
        CursorCases cases{{Assertion_, "_spAttr", "(nothing)", ask},
                          {Assertion_, "spParm", "titles", ask},
                          {Assertion_, "!!spType", "title", ask, "GetType"}};
        if (!isQuiet)
            cases.push_back({Assertion_, "_error.IsNull()", "(error)", ask});
        cases.push_back({Assertion_, operation == "IsDouble" ? "spTableColumn" : "_spKey", "(object)", ask});
        AddCursorRows(ioRows, name, cases, "false");
        ioRows.push_back({Error(BrokenText, In(name)), {}, "", {}, {}, "_error",
                          isQuiet ? "A cursor with an error answers before, in silence." : early});
    }
}

/// Whole lists of values.
void AddLists(ReportRows& ioRows)
{
    using Cursor = VYRCfdObjectAccess;
    const CursorCall strings = &Get<Texts, &Cursor::GetStrings>;
    const CursorCall doubles = &Get<std::vector<double>, &Cursor::GetDoubles>;
    const CursorCall integers = &Get<std::vector<int>, &Cursor::GetIntegers>;
    const CursorCall booleans = &Get<std::vector<bool>, &Cursor::GetBooleans>;
    const auto add = [&ioRows](const char* iName, CursorCall iCall, const char* iType, const char* iListType) {
        AddCursorRows(ioRows, iName,
                      {{Error_, BrokenText, "(error)", iCall},
                       {Assertion_, "_spAttr", "(nothing)", iCall},
                       {Assertion_, iType, "peer", iCall},
                       {Assertion_, iListType, "peers", iCall}});
    };
    add("GetStrings", strings, "_spKey->GetType() == tk_string", "_spKey->GetListType() == tk_string");
    add("GetDoubles", doubles, "_spKey->GetType() == tk_double", "_spKey->GetListType() == tk_double");
    add("GetIntegers", integers, "(_spKey->GetType() == tk_integer || _spKey->GetType() == tk_enum)",
        "(_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum)");
    add("GetBooleans", booleans, "_spKey->GetType() == tk_boolean", "_spKey->GetListType() == tk_boolean");
    AddCursorRows(ioRows, "GetStrings", {{Assertion_, "_spKey", "(object)", strings}});
    AddCursorRows(ioRows, "GetDoubles", {{Assertion_, "spTableColumn", "(object)", doubles}});
    AddCursorRows(ioRows, "GetIntegers", {{Assertion_, "_spKey", "(object)", integers}});
    AddCursorRows(ioRows, "GetBooleans", {{Assertion_, "_spKey", "(object)", booleans}});
}
} // namespace

void AddCursorReadReports(ReportRows& ioRows)
{
    AddScalars(ioRows);
    AddReals(ioRows);
    AddQuestions(ioRows);
    AddLists(ioRows);
}
