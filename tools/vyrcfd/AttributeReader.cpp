#include "AttributeReader.h"

#include "ListNames.h"
#include "ORXICkeParm.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXTypeCode.h"

namespace Tool
{
namespace
{
ORXISpecAttrKey_var KeyOf(const ORXISpecAttrAccess_var& iAccess, const std::string& iAttribute)
{
    return ORXISpecAttrKey_var::Adopt(iAccess->GetAttrKey(iAttribute.c_str()));
}

Value ColumnRows(const ORXISimBCDataTableColumn_var& iColumn)
{
    std::vector<double> rows;
    for (int i = 1; i <= iColumn->GetRowCount(); ++i)
    {
        double row = 0.0;
        iColumn->GetValue(i, row);
        rows.push_back(row);
    }
    return Value::Column(rows);
}

Value ObjectValue(const ORXISpecObject_var& iObject, const PathOfObject& iPathOf)
{
    if (!iObject)
        return Value::Nothing();
    // A column has no attributes that could stand elsewhere.
    if (const ORXISimBCDataTableColumn_var spColumn = iObject; !!spColumn)
        return ColumnRows(spColumn);
    return Value::Word(iPathOf(iObject));
}

Value EnumerationEntry(int iNumber, const std::vector<std::string>& iTexts)
{
    const bool isKnown = iNumber >= 1 && static_cast<std::size_t>(iNumber) <= iTexts.size();
    return isKnown ? Value::Word(iTexts[static_cast<std::size_t>(iNumber) - 1]) : Value::Of(iNumber);
}

Value ReadEntry(const ORXISpecAttrAccess_var& iAccess, const ORXISpecAttrKey_var& iKey, int iIndex,
                const VYRStandalone::AttributeInfo& iAttribute, const PathOfObject& iPathOf)
{
    switch (iAttribute.listType)
    {
    case tk_double:
        return Value::Of(iAccess->GetDouble(iKey, iIndex));
    case tk_integer:
        return Value::Of(iAccess->GetInteger(iKey, iIndex));
    case tk_boolean:
        return Value::Of(iAccess->GetBoolean(iKey, iIndex) != ORXFalse);
    case tk_enum:
        return EnumerationEntry(iAccess->GetInteger(iKey, iIndex), iAttribute.values);
    case tk_string:
        return Value::String(TextOf(iAccess->GetString(iKey, iIndex)));
    default:
        break;
    }
    return ObjectValue(ORXISpecObject_var::Adopt(iAccess->GetSpecObject(iKey, iIndex)), iPathOf);
}
} // namespace

Value ValueOf(const ORXICkeInst_var& iValue, int iType)
{
    if (!iValue || iValue->IsValuated() == 0)
        return {};
    switch (iType)
    {
    case tk_double:
        return Value::Of(iValue->AsReal());
    case tk_integer:
        return Value::Of(iValue->AsInteger());
    case tk_boolean:
        return Value::Of(iValue->IsTrue());
    case tk_enum:
        return Value::Word(TextOf(iValue->AsString()));
    default:
        break;
    }
    return Value::String(TextOf(iValue->AsString()));
}

Value ReadAttribute(const ORXISpecAttrAccess_var& iAccess, const VYRStandalone::AttributeInfo& iAttribute,
                    const PathOfObject& iPathOf)
{
    const ORXISpecAttrKey_var spKey = KeyOf(iAccess, iAttribute.name);
    if (!spKey || iAccess->HasAttribute(spKey) == ORXFalse)
        return {};
    if (iAttribute.type == tk_list)
    {
        std::vector<Value> entries;
        for (int i = 1; i <= iAccess->GetListSize(spKey); ++i)
            entries.push_back(ReadEntry(iAccess, spKey, i, iAttribute, iPathOf));
        return Value::List(std::move(entries));
    }
    if (!IsScalar(iAttribute.type))
        return ObjectValue(ReadObject(iAccess, iAttribute.name), iPathOf);
    const ORXICkeParm_var spParm = ORXCke_GetParm(iAccess, spKey, 1);
    return !spParm ? Value() : ValueOf(spParm->GetValue(), iAttribute.type);
}

ORXISpecObject_var ReadObject(const ORXISpecAttrAccess_var& iAccess, const std::string& iAttribute)
{
    const ORXISpecAttrKey_var spKey = KeyOf(iAccess, iAttribute);
    return !spKey ? ORXISpecObject_var() : ORXISpecObject_var::Adopt(iAccess->GetSpecObject(spKey, 0));
}

std::vector<ORXISpecObject_var> ReadObjects(const ORXISpecAttrAccess_var& iAccess, const std::string& iAttribute)
{
    std::vector<ORXISpecObject_var> objects;
    const ORXISpecAttrKey_var spKey = KeyOf(iAccess, iAttribute);
    if (!spKey)
        return objects;
    for (int i = 1; i <= iAccess->GetListSize(spKey); ++i)
        objects.push_back(ORXISpecObject_var::Adopt(iAccess->GetSpecObject(spKey, i)));
    return objects;
}

bool IsScalar(int iType)
{
    return iType != tk_list && iType != tk_component && iType != tk_specobject;
}
} // namespace Tool
