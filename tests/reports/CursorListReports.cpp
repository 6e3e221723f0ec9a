#include "CursorReports.h"

#include "ORXInterfaceIds.h"

namespace
{
using Cursor = VYRCfdObjectAccess;
using Cursors = std::vector<Cursor>;

constexpr const char* IsList = "type == tk_list";
constexpr const char* IsObjectList = "listType == tk_component || listType == tk_specobject";

std::string Size(const Cursor& iCursor)
{
    int size = 0;
    return AnswerOf(iCursor.GetListSize(size));
}

std::string List(const Cursor& iCursor)
{
    Cursors objects;
    return AnswerOf(iCursor.List(objects));
}

std::string ListHandles(const Cursor& iCursor)
{
    ORXListValORXBaseUnknown_var objects;
    return AnswerOf(iCursor.List(objects));
}

std::string SetTexts(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetStrings(std::vector<ORXUnicodeString>{"duct"}));
}

std::string Empty(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetList(Cursors{}));
}

/// The entries in the other order.
std::string Turn(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetList(Cursors{iCursor.Get(2), iCursor.Get(1)}));
}

std::string SetBroken(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetList(Cursors{Cursor(ORXUnicodeString("broken"))}));
}

std::string PutNull(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetObject(ORXBaseUnknown_var(), 0));
}

std::string PutNullAt(const Cursor& iCursor)
{
    return AnswerOf(iCursor.SetObject(ORXBaseUnknown_var(), 1));
}

std::string RemoveSelf(const Cursor& iCursor)
{
    return AnswerOf(iCursor.Remove(iCursor.Self()));
}

std::string RemoveNull(const Cursor& iCursor)
{
    return AnswerOf(iCursor.Remove(ORXBaseUnknown_var()));
}

std::string RemoveAll(const Cursor& iCursor)
{
    return AnswerOf(iCursor.RemoveAll());
}

std::string RemoveFirst(const Cursor& iCursor)
{
    return AnswerOf(iCursor.RemovePosition(1));
}

std::string RemoveThird(const Cursor& iCursor)
{
    return AnswerOf(iCursor.RemovePosition(3));
}

std::string Clean(const Cursor& iCursor)
{
    return AnswerOf(iCursor.CleanList(IID_ORXISpecObject));
}

void AddReads(ReportRows& ioRows)
{
    AddCursorRows(ioRows, "GetListSize",
                  {{Error_, BrokenText, "(error)", &Size},
                   {Error_, "null attribute", "(nothing)", &Size},
                   {Error_, "null key", "(object)", &Size},
                   {Assertion_, IsList, "title", &Size}});
    const char* condition = "_spKey->GetType() == tk_list && (_spKey->GetListType() == tk_component || "
                            "_spKey->GetListType() == tk_specobject)";
    AddCursorRows(
        ioRows, "List",
        {{Error_, BrokenText, "(error)", &List},
         {Assertion_, condition, "titles", &List},
         {FailedCall_, "List(objects)", "titles", &ListHandles, "", {Assertion(condition, In("List"))}}});
}

void AddWrites(ReportRows& ioRows)
{
    AddCursorRows(ioRows, "SetStrings",
                  {{Error_, BrokenText, "(error)", &SetTexts},
                   {Assertion_, "_spAttr", "(nothing)", &SetTexts},
                   {Assertion_, "_spKey", "(object)", &SetTexts},
                   {Assertion_, "_spKey->GetType() == tk_list", "title", &SetTexts},
                   {Assertion_, "_spKey->GetListType() == tk_string", "ratios", &SetTexts}});
    AddCursorRows(ioRows, "SetList",
                  {{Error_, BrokenText, "(error)", &Empty},
                   {Assertion_, IsList, "title", &Empty},
                   {Assertion_, IsObjectList, "titles", &Empty},
                   {Assertion_, "iObjects[i-1].Self()", "peers", &SetBroken},
                   {FailedCall_, "_spAttr->MoveInPosition(_spKey, (*pVals)[j], i)", "peers", &Turn, "MoveInPosition"}});
    AddCursorRows(ioRows, "SetObject",
                  {{Error_, BrokenText, "(error)", &PutNull},
                   {Assertion_, IsObjectList, "titles", &PutNullAt},
                   {Assertion_, "index == 0", "peer", &PutNullAt},
                   {Error_, "incorrect attr type", "title", &PutNull},
                   {FailedCall_, "_spAttr->SetSpecObject(_spKey, iObject, index)", "peer", &PutNull, "SetSpecObject"}});
}

/// Lists that take an object which they have not held.
void AddInsertions(ReportRows& ioRows)
{
    const auto insert = [](ReportBench& ioBench, const char* iFault, const char* iSubject, const char* iObject) {
        const ORXISpecObject_var zone = ioBench.Create("ReportZone", "Zone.3");
        const Cursor cursor = ioBench.At("peers");
        const Cursors wanted{::Cursor(zone)};
        FailCall(iFault, iSubject, iObject, Handed);
        return AnswerOf(cursor.SetList(wanted));
    };
    ioRows.push_back({FailedCall("_spAttr->InsertAtPosition(_spKey, spSpec, i)", In("SetList"), Handed),
                      [insert](ReportBench& ioBench) { return insert(ioBench, "InsertAtPosition", "peers", ""); },
                      HandedAnswer});
    ioRows.push_back(
        {Assertion("spSpec", In("SetList")),
         [insert](ReportBench& ioBench) { return insert(ioBench, "QueryInterface", "ORXISpecObject", "Zone.3"); },
         "E_FAIL"});
}

void AddRemovals(ReportRows& ioRows)
{
    AddCursorRows(ioRows, "Remove",
                  {{Error_, BrokenText, "(error)", &RemoveNull},
                   {Assertion_, "iObject", "peers", &RemoveNull},
                   {Assertion_, IsList, "title", &RemoveSelf},
                   {Assertion_, IsObjectList, "titles", &RemoveSelf}});
    AddCursorRows(ioRows, "RemoveAll",
                  {{Error_, BrokenText, "(error)", &RemoveAll},
                   {Assertion_, IsList, "title", &RemoveAll},
                   {FailedCall_, "_spAttr->RemoveAll(_spKey)", "peers", &RemoveAll, "RemoveAll"}});
    AddCursorRows(
        ioRows, "RemovePosition",
        {{Error_, BrokenText, "(error)", &RemoveFirst},
         {Assertion_, IsList, "title", &RemoveFirst},
         {Assertion_, IsObjectList, "titles", &RemoveFirst},
         {Assertion_, "index > 0 && index <= size", "peers", &RemoveThird},
         {FailedCall_, "_spAttr->RemovePosition(_spKey, index)", "peers", &RemoveFirst, "RemovePosition"}});
    AddCursorRows(ioRows, "CleanList",
                  {{Error_, BrokenText, "(error)", &Clean},
                   {Assertion_, IsList, "title", &Clean},
                   {Assertion_, IsObjectList, "titles", &Clean}});
}
} // namespace

void AddCursorListReports(ReportRows& ioRows)
{
    AddReads(ioRows);
    AddWrites(ioRows);
    AddInsertions(ioRows);
    AddRemovals(ioRows);
}
