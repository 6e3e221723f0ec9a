#include "ExactDump.h"

#include <cstdio>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ORXIAlias.h"
#include "ORXICkeParm.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXISpecAttrAccess.h"
#include "VYRIFldIdentifier.h"
#include "VYRStandaloneCatalog.h"

namespace
{
using VYRStandalone::AttributeInfo;

std::string Quoted(const ORXUnicodeString& iText)
{
    std::string quoted = "\"";
    for (const char byte : iText.View())
    {
        char escaped[8];
        const auto code = static_cast<unsigned char>(byte);
        std::snprintf(escaped, sizeof(escaped), "\\x%02X", code);
        if (code < 0x20 || code > 0x7E || byte == '"' || byte == '\\')
            quoted += escaped;
        else
            quoted += byte;
    }
    return quoted + '"';
}

std::string Bits(double iValue)
{
    char text[48];
    std::snprintf(text, sizeof(text), "%a", iValue);
    return text;
}

ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = iObject;
    return ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iInfo.name.c_str()));
}

bool HoldsObjects(const AttributeInfo& iInfo, int iCode)
{
    return iInfo.type == iCode || iInfo.listType == iCode;
}

class Dumper
{
public:
    std::string Whole(const VYRStandalone::Model& iModel)
    {
        m_container = iModel.Container();
        for (const ORXISpecObject_var& object : iModel.Objects())
            Number(object);
        for (std::size_t i = 0; i < m_objects.size(); ++i)
            DumpObject(m_objects[i]);
        return std::move(m_text);
    }

private:
    /// The object and what stands inside it, unless it has its number already. One after the other, since components
    /// may stand deep inside each other.
    void Number(const ORXISpecObject_var& iObject);
    static std::vector<ORXISpecObject_var> ObjectsOf(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo);
    std::string NumberOf(const ORXISpecObject_var& iObject) const;
    void DumpObject(const ORXISpecObject_var& iObject);
    void DumpColumn(const ORXISimBCDataTableColumn_var& iColumn);
    void DumpAttribute(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo);
    void DumpScalar(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo);
    void DumpEntry(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo, int iIndex);

    ORXIContainer_var m_container;
    std::vector<ORXISpecObject_var> m_objects;
    std::unordered_map<const ORXBaseUnknown*, std::size_t> m_numbers;
    std::string m_text;
};

void Dumper::Number(const ORXISpecObject_var& iObject)
{
    std::vector<ORXISpecObject_var> coming{iObject};
    while (!coming.empty())
    {
        const ORXISpecObject_var object = coming.back();
        coming.pop_back();
        if (!m_numbers.try_emplace(object->GetImpl(0), m_objects.size()).second)
            continue;
        m_objects.push_back(object);
        std::vector<ORXISpecObject_var> components;
        for (const AttributeInfo& info : VYRStandalone::Attributes(object))
            if (HoldsObjects(info, tk_component))
                for (const ORXISpecObject_var& component : ObjectsOf(object, info))
                    if (component != NULL_var)
                        components.push_back(component);
        coming.insert(coming.end(), components.rbegin(), components.rend());
    }
}

/// Null for empty entries.
std::vector<ORXISpecObject_var> Dumper::ObjectsOf(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXISpecAttrKey_var key = KeyOf(iObject, iInfo);
    const int first = iInfo.type == tk_list ? 1 : 0;
    const int last = iInfo.type == tk_list ? access->GetListSize(key) : 0;
    std::vector<ORXISpecObject_var> objects;
    for (int i = first; i <= last; ++i)
        objects.push_back(ORXISpecObject_var::Adopt(access->GetSpecObject(key, i)));
    return objects;
}

std::string Dumper::NumberOf(const ORXISpecObject_var& iObject) const
{
    if (!iObject)
        return "null";
    const auto found = m_numbers.find(iObject->GetImpl(0));
    return found != m_numbers.end() ? "#" + std::to_string(found->second) : "outside";
}

void Dumper::DumpObject(const ORXISpecObject_var& iObject)
{
    m_text += NumberOf(iObject) + ' ' + Quoted(iObject->GetType()) + ' ' + Quoted(iObject->GetName());
    if (const ORXIAlias_var alias = iObject; alias != NULL_var)
        m_text += " alias " + Quoted(alias->GetAlias());
    if (const VYRIFldIdentifier_var identified = iObject; identified != NULL_var)
    {
        ORXUnicodeString identifier;
        identified->GetIdentifier(identifier);
        m_text += " identifier " + Quoted(identifier);
    }
    m_text += " owner " + NumberOf(ORXISpecObject_var::Adopt(iObject->GetOwner()));
    const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(iObject->GetStartup());
    m_text += " startup " + (!startup ? "null" : VYRStandalone::PathOf(startup));
    m_text += iObject->GetContainer() == m_container ? "\n" : " elsewhere\n";
    if (const ORXISimBCDataTableColumn_var column = iObject; column != NULL_var)
        DumpColumn(column);
    for (const AttributeInfo& info : VYRStandalone::Attributes(iObject))
        DumpAttribute(iObject, info);
}

void Dumper::DumpColumn(const ORXISimBCDataTableColumn_var& iColumn)
{
    ORXRawColldouble rows(0);
    iColumn->GetValues(rows);
    m_text += "  column";
    for (int i = 1; i <= rows.Size(); ++i)
        m_text += ' ' + Bits(rows[i]);
    m_text += '\n';
}

void Dumper::DumpAttribute(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = iObject;
    m_text += "  " + Quoted(ORXUnicodeString(iInfo.name.data(), iInfo.name.size())) + ' ' + std::to_string(iInfo.type) +
              '/' + std::to_string(iInfo.listType) + (iInfo.optional ? " optional" : "") +
              (iInfo.added ? " added" : "");
    if (!iInfo.unit.empty())
        m_text += " in " + iInfo.unit;
    for (const std::string& text : iInfo.values)
        m_text += " | " + Quoted(ORXUnicodeString(text.data(), text.size()));
    const ORXISpecAttrKey_var key = KeyOf(iObject, iInfo);
    if (!key)
    {
        // A name with a zero byte in it: the host's interfaces take names up to the first.
        m_text += " unreachable\n";
        return;
    }
    if (access->HasAttribute(key) == ORXFalse)
        m_text += " not carried";
    m_text += " =";
    if (iInfo.type == tk_list && !HoldsObjects(iInfo, tk_component) && !HoldsObjects(iInfo, tk_specobject))
    {
        const int size = access->GetListSize(key);
        for (int i = 1; i <= size; ++i)
            DumpEntry(iObject, iInfo, i);
    }
    else if (HoldsObjects(iInfo, tk_component) || HoldsObjects(iInfo, tk_specobject))
        for (const ORXISpecObject_var& object : ObjectsOf(iObject, iInfo))
            m_text += ' ' + NumberOf(object);
    else
        DumpScalar(iObject, iInfo);
    m_text += '\n';
}

void Dumper::DumpScalar(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXIValue_var value = ORXCke_GetParm(access, KeyOf(iObject, iInfo), 1)->GetValue();
    if (value->IsValuated() == 0)
        m_text += " unset";
    else
        DumpEntry(iObject, iInfo, 0);
}

void Dumper::DumpEntry(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo, int iIndex)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXISpecAttrKey_var key = KeyOf(iObject, iInfo);
    switch (iInfo.type == tk_list ? iInfo.listType : iInfo.type)
    {
    case tk_double:
        m_text += ' ' + Bits(access->GetDouble(key, iIndex));
        break;
    case tk_boolean:
        m_text += access->GetBoolean(key, iIndex) != ORXFalse ? " true" : " false";
        break;
    case tk_string:
        m_text += ' ' + Quoted(access->GetString(key, iIndex));
        break;
    default:
        m_text += ' ' + std::to_string(access->GetInteger(key, iIndex));
        break;
    }
}
} // namespace

std::string ExactDump(const VYRStandalone::Model& iModel)
{
    return Dumper().Whole(iModel);
}
