#include "ModelDump.h"

#include <memory>
#include <sstream>

#include "ORXIAlias.h"
#include "ORXICkeParm.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXISpecAttrAccess.h"
#include "VYRIFldIdentifier.h"
#include "VYRStandaloneCatalog.h"

namespace
{
using VYRStandalone::AttributeInfo;

std::string PathOf(const ORXISpecObject_var& iObject)
{
    return !iObject ? "(null)" : VYRStandalone::PathOf(iObject);
}

class Dumper
{
public:
    std::string Whole(const VYRStandalone::Model& iModel)
    {
        for (const ORXISpecObject_var& object : iModel.Objects())
            DumpObject(object);
        return m_text.str();
    }

    std::string Attribute(const ORXISpecObject_var& iObject, const std::string& iName)
    {
        for (const AttributeInfo& info : VYRStandalone::Attributes(iObject))
            if (info.name == iName)
                DumpAttribute(iObject, info);
        return m_text.str();
    }

private:
    void DumpObject(const ORXISpecObject_var& iObject);
    void DumpColumn(const ORXISimBCDataTableColumn_var& iColumn);
    void DumpAttribute(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo);
    void DumpChildOrReference(const std::string& iPlace, const ORXISpecObject_var& iValue, bool iIsComponent);

    std::ostringstream m_text;
};

void Dumper::DumpObject(const ORXISpecObject_var& iObject)
{
    m_text << PathOf(iObject) << " [" << iObject->GetType().View() << "] name=" << iObject->GetName().View();
    if (const ORXIAlias_var alias = iObject; alias != NULL_var)
        m_text << " alias=" << alias->GetAlias().View();
    if (const VYRIFldIdentifier_var identified = iObject; identified != NULL_var)
    {
        ORXUnicodeString identifier;
        identified->GetIdentifier(identifier);
        m_text << " identifier=" << identifier.View();
    }
    const ORXISpecObject_var owner = ORXISpecObject_var::Adopt(iObject->GetOwner());
    m_text << " owner=" << PathOf(owner) << '\n';
    if (const ORXISimBCDataTableColumn_var column = iObject; column != NULL_var)
        DumpColumn(column);
    for (const AttributeInfo& info : VYRStandalone::Attributes(iObject))
        DumpAttribute(iObject, info);
}

void Dumper::DumpColumn(const ORXISimBCDataTableColumn_var& iColumn)
{
    ORXRawColldouble rows(0);
    iColumn->GetValues(rows);
    m_text << "    rows";
    for (int i = 1; i <= rows.Size(); ++i)
        m_text << ' ' << rows[i];
    m_text << '\n';
}

void Dumper::DumpChildOrReference(const std::string& iPlace, const ORXISpecObject_var& iValue, bool iIsComponent)
{
    m_text << iPlace << " -> " << PathOf(iValue) << '\n';
    if (iIsComponent && iValue != NULL_var)
        DumpObject(iValue);
}

void Dumper::DumpAttribute(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iInfo.name.c_str()));
    const std::string place = PathOf(iObject) + "." + iInfo.name + (iInfo.added ? " (added)" : "");
    const int type = iInfo.type == tk_list ? iInfo.listType : iInfo.type;
    const bool isObject = type == tk_component || type == tk_specobject;
    const auto object = [&](int iIndex) { return ORXISpecObject_var::Adopt(access->GetSpecObject(key, iIndex)); };
    if (iInfo.type != tk_list && isObject)
        DumpChildOrReference(place, object(0), type == tk_component);
    else if (iInfo.type != tk_list)
    {
        const ORXIValue_var value = ORXCke_GetParm(access, key, 1)->GetValue();
        m_text << place << " = " << (value->IsValuated() != 0 ? value->AsString().View() : "(unset)") << '\n';
    }
    else
    {
        const int size = access->GetListSize(key);
        m_text << place << " has " << size << '\n';
        for (int i = 1; i <= size; ++i)
        {
            const std::string entry = "    " + std::to_string(i);
            if (isObject)
                DumpChildOrReference(entry, object(i), type == tk_component);
            else if (type == tk_double)
                m_text << entry << ' ' << access->GetDouble(key, i) << '\n';
            else if (type == tk_string)
                m_text << entry << ' ' << access->GetString(key, i).View() << '\n';
            else if (type == tk_boolean)
                m_text << entry << ' ' << (access->GetBoolean(key, i) != 0 ? "true" : "false") << '\n';
            else
                m_text << entry << ' ' << access->GetInteger(key, i) << '\n';
        }
    }
}
} // namespace

std::string Dump(const VYRStandalone::Model& iModel)
{
    return Dumper().Whole(iModel);
}

std::string DumpOf(const VYRStandalone::Model& iModel, const std::string& iAttribute)
{
    return Dumper().Attribute(iModel.Objects().front(), iAttribute);
}
