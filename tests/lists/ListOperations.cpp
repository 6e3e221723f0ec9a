#include "ListOperations.h"

#include "ORXInterfaceIds.h"

namespace
{
using Cursor = VYRCfdObjectAccess;

HRESULT ListToVector(const Cursor& iCursor, const Cursor&)
{
    std::vector<VYRCfdObjectAccess> objects;
    return iCursor.List(objects, false);
}

HRESULT ListToHostList(const Cursor& iCursor, const Cursor&)
{
    ORXListValORXBaseUnknown_var objects;
    return iCursor.List(objects);
}

HRESULT GetListSize(const Cursor& iCursor, const Cursor&)
{
    int size = 0;
    return iCursor.GetListSize(size);
}

HRESULT GetStringsToVector(const Cursor& iCursor, const Cursor&)
{
    std::vector<ORXUnicodeString> values;
    return iCursor.GetStrings(values);
}

HRESULT GetStringsToHostList(const Cursor& iCursor, const Cursor&)
{
    ORXListValORXUnicodeString values;
    return iCursor.GetStrings(values);
}

HRESULT GetDoubles(const Cursor& iCursor, const Cursor&)
{
    std::vector<double> values;
    return iCursor.GetDoubles(values);
}

HRESULT GetIntegers(const Cursor& iCursor, const Cursor&)
{
    std::vector<int> values;
    return iCursor.GetIntegers(values);
}

HRESULT GetBooleans(const Cursor& iCursor, const Cursor&)
{
    std::vector<bool> values;
    return iCursor.GetBooleans(values);
}

HRESULT SetStringsFromVector(const Cursor& iCursor, const Cursor&)
{
    return iCursor.SetStrings(std::vector<ORXUnicodeString>{"a"});
}

HRESULT SetStringsFromHostList(const Cursor& iCursor, const Cursor&)
{
    return iCursor.SetStrings(ORXListValORXUnicodeString());
}

HRESULT SetListFromVector(const Cursor& iCursor, const Cursor& iPart)
{
    return iCursor.SetList(std::vector<VYRCfdObjectAccess>{iPart});
}

HRESULT SetListFromHostList(const Cursor& iCursor, const Cursor& iPart)
{
    ORXListValORXBaseUnknown_var objects;
    objects.Append(iPart.Self());
    return iCursor.SetList(objects);
}

HRESULT SetObjectFromHandle(const Cursor& iCursor, const Cursor& iPart)
{
    return iCursor.SetObject(iPart.Self(), 1);
}

HRESULT SetObjectFromCursor(const Cursor& iCursor, const Cursor& iPart)
{
    return iCursor.SetObject(iPart, 1);
}

HRESULT Remove(const Cursor& iCursor, const Cursor& iPart)
{
    return iCursor.Remove(iPart.Self());
}

HRESULT RemoveAll(const Cursor& iCursor, const Cursor&)
{
    return iCursor.RemoveAll();
}

HRESULT RemovePosition(const Cursor& iCursor, const Cursor&)
{
    return iCursor.RemovePosition(1);
}

HRESULT CleanList(const Cursor& iCursor, const Cursor&)
{
    return iCursor.CleanList(IID_ORXISpecObject);
}

/// A failure that nobody is told of.
const Outcome Silent{E_FAIL, {}};
const Outcome Taken{S_OK, {}};

constexpr char NoList[] = "type == tk_list";
constexpr char NoObjects[] = "listType == tk_component || listType == tk_specobject";

/// Operations that read all values: they want an object and a key, and a kind.
ListOperation Reader(const char* iName, const char* iFunction,
                     HRESULT (*iCall)(const VYRCfdObjectAccess&, const VYRCfdObjectAccess&), const char* iKeyText,
                     const char* iScalar, const char* iScalarText, const char* iList, const char* iListText,
                     const char* iFits)
{
    return {iName,
            iFunction,
            iCall,
            {E_FAIL, {Assertion("_spAttr", iFunction)}},
            {E_FAIL, {Assertion(iKeyText, iFunction)}},
            iScalar,
            {E_FAIL, {Assertion(iScalarText, iFunction)}},
            iList,
            {E_FAIL, {Assertion(iListText, iFunction)}},
            {},
            false,
            iFits,
            {std::string("> ") + iFunction + " [25]"}};
}

/// Operations on a list of objects: they fail in silence without an object or a key.
ListOperation Writer(const char* iName, const char* iFunction,
                     HRESULT (*iCall)(const VYRCfdObjectAccess&, const VYRCfdObjectAccess&))
{
    return {iName,
            iFunction,
            iCall,
            Silent,
            Silent,
            "material",
            {E_FAIL, {Assertion(NoList, iFunction)}},
            "titles",
            {E_FAIL, {Assertion(NoObjects, iFunction)}},
            {},
            true,
            "references",
            {std::string("> ") + iFunction + " [20]"}};
}

std::vector<ListOperation> MakeReaders()
{
    static constexpr char list[] = "VYRCfdObjectAccess::List";
    static constexpr char size[] = "VYRCfdObjectAccess::GetListSize";
    static constexpr char strings[] = "VYRCfdObjectAccess::GetStrings";
    static constexpr char integers[] = "(_spKey->GetType() == tk_integer || _spKey->GetType() == tk_enum)";
    static constexpr char integerEntries[] =
        "(_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum)";
    const Record call = FailedCall("List(objects)", list);
    return {
        {"List",
         list,
         ListToVector,
         Silent,
         Silent,
         "material",
         {E_FAIL, {Assertion(NoObjectList, list)}},
         "titles",
         {E_FAIL, {Assertion(NoObjectList, list)}},
         {},
         true,
         "references",
         {"> VYRCfdObjectAccess::List [30]"}},
        // Over the vector form, whose scope is the only one.
        {"ListToHostList",
         list,
         ListToHostList,
         {E_FAIL, {call}},
         {E_FAIL, {call}},
         "material",
         {E_FAIL, {Assertion(NoObjectList, list), call}},
         "titles",
         {E_FAIL, {Assertion(NoObjectList, list), call}},
         {call},
         true,
         "references",
         {"> VYRCfdObjectAccess::List [30]"}},
        {"GetListSize",
         size,
         GetListSize,
         {E_FAIL, {Error("null attribute", size)}},
         {E_FAIL, {Error("null key", size)}},
         "title",
         {E_FAIL, {Assertion(NoList, size)}},
         "titles",
         Taken,
         {},
         false,
         "titles",
         {"> VYRCfdObjectAccess::GetListSize [25]"}},
        Reader("GetStrings", strings, GetStringsToVector, "_spKey", "ratio", "_spKey->GetType() == tk_string", "ratios",
               "_spKey->GetListType() == tk_string", "titles"),
        Reader("GetStringsToHostList", strings, GetStringsToHostList, "_spKey", "scheme",
               "_spKey->GetType() == tk_string", "schemes", "_spKey->GetListType() == tk_string", "titles"),
        Reader("GetDoubles", "VYRCfdObjectAccess::GetDoubles", GetDoubles, "spTableColumn", "count",
               "_spKey->GetType() == tk_double", "counts", "_spKey->GetListType() == tk_double", "ratios"),
        Reader("GetIntegers", "VYRCfdObjectAccess::GetIntegers", GetIntegers, "_spKey", "ratio", integers, "flags",
               integerEntries, "counts"),
        Reader("GetBooleans", "VYRCfdObjectAccess::GetBooleans", GetBooleans, "_spKey", "count",
               "_spKey->GetType() == tk_boolean", "counts", "_spKey->GetListType() == tk_boolean", "flags"),
    };
}

std::vector<ListOperation> MakeWriters()
{
    static constexpr char strings[] = "VYRCfdObjectAccess::SetStrings";
    static constexpr char setList[] = "VYRCfdObjectAccess::SetList";
    static constexpr char setObject[] = "VYRCfdObjectAccess::SetObject";

    ListOperation setStrings =
        Reader("SetStrings", strings, SetStringsFromVector, "_spKey", "title", "_spKey->GetType() == tk_list", "ratios",
               "_spKey->GetListType() == tk_string", "titles");
    setStrings.scopes = {"> VYRCfdObjectAccess::SetStrings [20]"};
    ListOperation setStringsFromHostList = setStrings;
    setStringsFromHostList.name = "SetStringsFromHostList";
    setStringsFromHostList.call = SetStringsFromHostList;

    // Over the vector form, inside a scope of its own.
    ListOperation setListFromHostList = Writer("SetListFromHostList", setList, SetListFromHostList);
    setListFromHostList.scopes = {"> VYRCfdObjectAccess::SetList [20]", "  > VYRCfdObjectAccess::SetList [20]"};

    ListOperation setObjectFromHandle = Writer("SetObject", setObject, SetObjectFromHandle);
    setObjectFromHandle.scalar = "title";
    setObjectFromHandle.onScalar = {E_FAIL, {Error("incorrect attr type", setObject)}};
    ListOperation setObjectFromCursor = setObjectFromHandle;
    setObjectFromCursor.name = "SetObjectFromCursor";
    setObjectFromCursor.call = SetObjectFromCursor;
    setObjectFromCursor.scopes = {"> VYRCfdObjectAccess::SetObject [20]", "  > VYRCfdObjectAccess::SetObject [20]"};

    // Empties a list of any kind.
    ListOperation removeAll = Writer("RemoveAll", "VYRCfdObjectAccess::RemoveAll", RemoveAll);
    removeAll.onList = Taken;

    return {
        setStrings,
        setStringsFromHostList,
        Writer("SetList", setList, SetListFromVector),
        setListFromHostList,
        setObjectFromHandle,
        setObjectFromCursor,
        Writer("Remove", "VYRCfdObjectAccess::Remove", Remove),
        removeAll,
        Writer("RemovePosition", "VYRCfdObjectAccess::RemovePosition", RemovePosition),
        Writer("CleanList", "VYRCfdObjectAccess::CleanList", CleanList),
    };
}
} // namespace

const std::vector<ListOperation>& ListOperations()
{
    static const std::vector<ListOperation> operations = [] {
        std::vector<ListOperation> all = MakeReaders();
        for (ListOperation& writer : MakeWriters())
            all.push_back(std::move(writer));
        return all;
    }();
    return operations;
}
