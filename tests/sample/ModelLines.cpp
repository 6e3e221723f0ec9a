#include "ModelLines.h"

#include <functional>

#include "FlowTest.h"
#include "VYRStandaloneCatalog.h"

namespace
{
using VYRStandalone::AttributeInfo;
using Visitor = std::function<void(const ORXISpecObject_var&)>;

constexpr const char* Management = "defaultManagement";

std::string PathOf(const ORXISpecObject_var& iObject)
{
    return !iObject ? "(none)" : VYRStandalone::PathOf(iObject);
}

ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    return ORXISpecAttrKey_var::Adopt(AccessOf(iObject)->GetAttrKey(iInfo.name.c_str()));
}

/// The objects that a component, a reference, or a list of either holds.
std::vector<ORXISpecObject_var> ObjectsIn(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    const ORXISpecAttrKey_var key = KeyOf(iObject, iInfo);
    std::vector<ORXISpecObject_var> objects;
    if (iInfo.type != tk_list)
        objects.push_back(ORXISpecObject_var::Adopt(access->GetSpecObject(key, 0)));
    else
        for (int i = 1; i <= access->GetListSize(key); ++i)
            objects.push_back(ORXISpecObject_var::Adopt(access->GetSpecObject(key, i)));
    return objects;
}

int EntryType(const AttributeInfo& iInfo)
{
    return iInfo.type == tk_list ? iInfo.listType : iInfo.type;
}

/// An empty text stands in quotation marks, so that it is seen.
std::string Joined(const std::vector<std::string>& iTexts)
{
    std::string joined;
    for (std::size_t i = 0; i < iTexts.size(); ++i)
        joined += (i == 0 ? "" : ", ") + (iTexts[i].empty() ? "\"\"" : iTexts[i]);
    return iTexts.empty() ? "(empty)" : joined;
}

std::string Numbers(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    const ORXISpecAttrKey_var key = KeyOf(iObject, iInfo);
    std::vector<std::string> texts;
    for (int i = 1; i <= access->GetListSize(key); ++i)
        texts.push_back(iInfo.listType == tk_double ? std::to_string(access->GetDouble(key, i))
                                                    : std::to_string(access->GetInteger(key, i)));
    return Joined(texts);
}

std::string Flags(const ORXISpecObject_var& iObject, const char* iName)
{
    if (!At(iObject, Management))
        return "";
    const std::string isAuto = AutoFlagOf(iObject, iName);
    return std::string(SetFlagOf(iObject, iName) == "true" ? " [set]" : "") + (isAuto == "true"    ? " [auto]"
                                                                               : isAuto == "false" ? " [not auto]"
                                                                                                   : "");
}

class Walk
{
public:
    explicit Walk(Visitor iVisitor) : m_visitor(std::move(iVisitor)) {}

    void Visit(const VYRStandalone::Model& iModel)
    {
        for (const ORXISpecObject_var& object : iModel.Objects())
            if (object->IsSubTypeOf("VYRCfdConfigItem") == ORXFalse)
                Visit(object);
    }

    void Visit(const ORXISpecObject_var& iObject)
    {
        m_visitor(iObject);
        for (const AttributeInfo& info : VYRStandalone::Attributes(iObject))
            if (EntryType(info) == tk_component && info.name != Management)
                for (const ORXISpecObject_var& part : ObjectsIn(iObject, info))
                    if (part != NULL_var)
                        Visit(part);
    }

private:
    Visitor m_visitor;
};

std::string ValueText(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const char* name = iInfo.name.c_str();
    if (iInfo.type != tk_list)
        return ValueOf(iObject, name);
    return iInfo.listType == tk_string ? Joined(TextsOf(iObject, name)) : Numbers(iObject, iInfo);
}

void AddLines(const ORXISpecObject_var& iObject, std::vector<std::string>& oLines)
{
    const std::string path = PathOf(iObject);
    oLines.push_back(path + " = " + iObject->GetType().CastToCharPtr() + " " + iObject->GetName().CastToCharPtr());
    for (const AttributeInfo& info : VYRStandalone::Attributes(iObject))
    {
        const std::string place = path + "." + info.name;
        if (EntryType(info) == tk_component || EntryType(info) == tk_specobject)
        {
            std::vector<std::string> paths;
            for (const ORXISpecObject_var& object : ObjectsIn(iObject, info))
                paths.push_back(PathOf(object));
            if (info.name != Management)
                oLines.push_back(place + " -> " + Joined(paths));
        }
        else
            oLines.push_back(place + " = " + ValueText(iObject, info) + Flags(iObject, info.name.c_str()));
    }
    if (At(iObject, Management) != NULL_var)
        for (const std::string& record : RecordsOf(iObject))
            oLines.push_back(path + " record: " + record);
}
} // namespace

std::vector<std::string> LinesOf(const VYRStandalone::Model& iModel)
{
    std::vector<std::string> lines;
    Walk([&](const ORXISpecObject_var& iObject) { AddLines(iObject, lines); }).Visit(iModel);
    return lines;
}

std::vector<std::string> PathsOf(const VYRStandalone::Model& iModel, const char* iType)
{
    std::vector<std::string> paths;
    Walk([&](const ORXISpecObject_var& iObject) {
        if (iObject->IsSubTypeOf(iType) != ORXFalse)
            paths.push_back(PathOf(iObject));
    }).Visit(iModel);
    return paths;
}
