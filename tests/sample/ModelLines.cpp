#include "ModelLines.h"

#include <charconv>
#include <functional>
#include <map>

#include "FlowTest.h"
#include "ORXISimBCDataTableColumn.h"
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

/// The shortest text that reads back the same.
std::string RealText(double iValue)
{
    char text[64];
    return {text, std::to_chars(text, text + sizeof(text), iValue).ptr};
}

std::string EntryText(const ORXISpecAttrAccess_var& iAccess, const ORXISpecAttrKey_var& iKey, int iPosition,
                      const AttributeInfo& iInfo)
{
    switch (iInfo.listType)
    {
    case tk_double:
        return RealText(iAccess->GetDouble(iKey, iPosition)) + (iInfo.unit.empty() ? "" : " " + iInfo.unit);
    case tk_boolean:
        return iAccess->GetBoolean(iKey, iPosition) != ORXFalse ? "true" : "false";
    case tk_enum:
        return iInfo.values.at(static_cast<std::size_t>(iAccess->GetInteger(iKey, iPosition)) - 1);
    case tk_string:
        return iAccess->GetString(iKey, iPosition).CastToCharPtr();
    default:
        return std::to_string(iAccess->GetInteger(iKey, iPosition));
    }
}

std::string ListText(const ORXISpecObject_var& iObject, const AttributeInfo& iInfo)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    const ORXISpecAttrKey_var key = KeyOf(iObject, iInfo);
    std::vector<std::string> texts;
    for (int i = 1; i <= access->GetListSize(key); ++i)
        texts.push_back(EntryText(access, key, i, iInfo));
    return Joined(texts);
}

std::string ColumnText(const ORXISimBCDataTableColumn_var& iColumn)
{
    std::vector<std::string> texts;
    for (int row = 1; row <= iColumn->GetRowCount(); ++row)
    {
        double value = 0.0;
        EXPECT_EQ(iColumn->GetValue(row, value), S_OK) << row;
        texts.push_back(RealText(value));
    }
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
    return iInfo.type == tk_list ? ListText(iObject, iInfo) : ValueOf(iObject, iInfo.name.c_str());
}

void AddLines(const ORXISpecObject_var& iObject, std::vector<std::string>& oLines)
{
    const std::string path = PathOf(iObject);
    if (const ORXISimBCDataTableColumn_var column = iObject; column != NULL_var)
    {
        oLines.push_back(path + " = column " + ColumnText(column));
        return;
    }
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
/// What a line is about, and what it says of that. All of a record is the first.
std::pair<std::string, std::string> SplitLine(const std::string& iLine)
{
    const std::size_t sign = iLine.find(iLine.find(" -> ") < iLine.find(" = ") ? " -> " : " = ");
    if (sign == std::string::npos || iLine.find(" record: ") != std::string::npos)
        return {iLine, ""};
    const std::size_t value = iLine.find(' ', sign + 1) + 1;
    return {iLine.substr(0, value), iLine.substr(value)};
}

/// A line with what it is about, and which it is of all those about the same: entries of a list share their path.
struct Told
{
    std::string line;
    std::string value;
    std::pair<std::string, int> subject;
};

std::vector<Told> Tell(const std::vector<std::string>& iLines)
{
    std::map<std::string, int> counts;
    std::vector<Told> told;
    for (const std::string& line : iLines)
    {
        auto [subject, value] = SplitLine(line);
        const int count = ++counts[subject];
        told.push_back({line, std::move(value), {std::move(subject), count}});
    }
    return told;
}

std::map<std::pair<std::string, int>, std::string> BySubject(const std::vector<Told>& iTold)
{
    std::map<std::pair<std::string, int>, std::string> values;
    for (const Told& told : iTold)
        values.emplace(told.subject, told.value);
    return values;
}

std::string WithoutRoot(const std::string& iLine, const std::string& iRoot)
{
    return IsBelow(iLine, iRoot) ? iLine.substr(iRoot.size()) : iLine;
}
} // namespace

ORXISpecObject_var ObjectAt(const VYRStandalone::Model& iModel, const std::string& iPath)
{
    const std::size_t slash = iPath.find('/');
    const ORXISpecObject_var object = iModel.Find(iPath.substr(0, slash).c_str());
    return slash == std::string::npos ? object : At(object, iPath.substr(slash + 1).c_str());
}

bool IsBelow(const std::string& iLine, const std::string& iPath)
{
    return iLine.starts_with(iPath) && std::string("./ ").find(iLine[iPath.size()]) != std::string::npos;
}

std::vector<std::string> DifferencesOf(const std::vector<std::string>& iBefore, const std::vector<std::string>& iAfter,
                                       const std::string& iRoot)
{
    const std::vector<Told> linesBefore = Tell(iBefore);
    const std::vector<Told> linesAfter = Tell(iAfter);
    const auto before = BySubject(linesBefore);
    const auto after = BySubject(linesAfter);
    std::vector<std::string> differences;
    for (const Told& told : linesAfter)
    {
        const auto old = before.find(told.subject);
        if (old == before.end())
            differences.push_back("+ " + WithoutRoot(told.line, iRoot));
        else if (old->second != told.value)
            differences.push_back(WithoutRoot(told.line, iRoot) + " <- " + old->second);
    }
    for (const Told& told : linesBefore)
        if (!after.contains(told.subject))
            differences.push_back("- " + WithoutRoot(told.line, iRoot));
    return differences;
}

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
