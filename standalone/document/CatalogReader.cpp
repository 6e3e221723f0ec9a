#include "CatalogReader.h"

#include <algorithm>
#include <set>

#include "DocumentNode.h"
#include "FeatureType.h"
#include "KindNames.h"
#include "MeantConfigurations.h"
#include "ORXTypeCode.h"
#include "ObjectWalk.h"
#include "TypeRegistry.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace VYRStandalone
{
namespace
{
/// Reads one type; values go behind one another with their places.
class TypeReader
{
public:
    TypeReader(TypeDeclaration& oType, std::vector<std::string>& oValuePaths, std::vector<MeantConfiguration>& oMeant)
        : m_type(oType), m_valuePaths(oValuePaths), m_meant(oMeant)
    {
    }

    void Read(const DocumentNode& iType);

private:
    void ReadName(const DocumentNode& iName);
    void ReadAttribute(const DocumentNode& iAttribute);
    void ReadKind(const DocumentNode& iAttribute, AttributeDeclaration& oAttribute);
    void ReadTexts(const DocumentNode& iAttribute, AttributeDeclaration& oAttribute);
    void ReadUnit(const DocumentNode& iAttribute, AttributeDeclaration& oAttribute);
    void ReadDefault(const DocumentNode& iDefault, const AttributeDeclaration& iAttribute);
    static void CheckDefault(const DocumentNode& iValue, const AttributeDeclaration& iAttribute, int iCode);
    void ReadStartup(const DocumentNode& iMembers, const std::vector<std::string>& iPath);
    void AddValue(const DocumentNode& iValue, const std::vector<std::string>& iPath);

    TypeDeclaration& m_type;
    std::set<std::string> m_names;
    std::vector<std::string>& m_valuePaths;
    std::vector<MeantConfiguration>& m_meant;
};

bool EndsWith(std::string_view iText, std::string_view iEnd)
{
    return iText.size() >= iEnd.size() && iText.substr(iText.size() - iEnd.size()) == iEnd;
}

int ReadKindName(const DocumentNode& iKind, bool iWithList)
{
    const std::string name = iKind.Text();
    const std::optional<int> code = TypeCodeOfKind(name);
    if (!code || (*code == tk_list && !iWithList))
        iKind.Fail("unknown kind " + Quoted(name) + InsteadOf(name, KindNames(iWithList)));
    return *code;
}

bool IsObjectCode(int iCode)
{
    return iCode == tk_component || iCode == tk_specobject;
}

/// A path has to be able to name an attribute, a condition to compare it, and its flags to have names of their own.
void CheckAttributeName(const DocumentNode& iName)
{
    const std::string name = iName.NonEmptyText();
    if (name.find_first_of("/=!<>") != std::string::npos)
        iName.Fail("the name of an attribute holds no \"/\", \"=\", \"!\", \"<\" or \">\"");
    if (EndsWith(name, "_isset") || EndsWith(name, "_isauto"))
        iName.Fail("the name of an attribute does not end in \"_isset\" or \"_isauto\": these are names of flags");
}

void TypeReader::Read(const DocumentNode& iType)
{
    iType.ExpectKeys({"name", "base", "attributes", "startup", "configurations", "manager"});
    ReadName(iType.Require("name"));
    if (const auto base = iType.Find("base"))
        m_type.base = base->NonEmptyText();
    if (const auto configurations = iType.Find("configurations"))
        for (const DocumentNode& one : configurations->Elements())
            m_meant.push_back({m_type.name, one.NonEmptyText(), one.File(), one.Path()});
    if (const auto manager = iType.Find("manager"))
        m_type.isManaged = manager->Boolean();
    if (const auto attributes = iType.Find("attributes"))
        for (const DocumentNode& attribute : attributes->Elements())
            ReadAttribute(attribute);
    if (const auto startup = iType.Find("startup"))
        ReadStartup(*startup, {});
}

void TypeReader::ReadName(const DocumentNode& iName)
{
    m_type.name = iName.NonEmptyText();
    if (m_type.name.find_first_of(" ,") != std::string::npos)
        iName.Fail("the name of a type holds no blank and no comma");
}

void TypeReader::ReadAttribute(const DocumentNode& iAttribute)
{
    iAttribute.ExpectKeys({"name", "kind", "of", "values", "type", "default", "unit", "optional"});
    AttributeDeclaration attribute;
    const DocumentNode name = iAttribute.Require("name");
    CheckAttributeName(name);
    attribute.name = name.Text();
    if (!m_names.insert(attribute.name).second)
        name.Fail("the type has an attribute " + Quoted(attribute.name) + " already");
    ReadKind(iAttribute, attribute);
    ReadTexts(iAttribute, attribute);
    if (const auto type = iAttribute.Find("type"))
    {
        if (attribute.type != tk_component)
            type->Fail("belongs to kind \"component\" only");
        attribute.componentType = type->NonEmptyText();
    }
    ReadUnit(iAttribute, attribute);
    if (const auto optional = iAttribute.Find("optional"))
    {
        attribute.isOptional = optional->Boolean();
        if (attribute.isOptional && attribute.type == tk_component)
            optional->Fail("a component comes into being with its owner and cannot be optional");
    }
    m_type.attributes.push_back(attribute);
    if (const auto value = iAttribute.Find("default"))
        ReadDefault(*value, attribute);
}

void TypeReader::ReadKind(const DocumentNode& iAttribute, AttributeDeclaration& oAttribute)
{
    oAttribute.type = ReadKindName(iAttribute.Require("kind"), true);
    if (oAttribute.type == tk_list)
        oAttribute.listType = ReadKindName(iAttribute.Require("of"), false);
    else if (const auto of = iAttribute.Find("of"))
        of->Fail("belongs to kind \"list\" only");
}

void TypeReader::ReadTexts(const DocumentNode& iAttribute, AttributeDeclaration& oAttribute)
{
    const bool isEnumeration = oAttribute.type == tk_enum || oAttribute.listType == tk_enum;
    if (!isEnumeration)
    {
        if (const auto values = iAttribute.Find("values"))
            values->Fail("belongs to kind \"enumeration\" only");
        return;
    }
    const DocumentNode values = iAttribute.Require("values");
    std::set<std::string> seen;
    for (const DocumentNode& value : values.Elements())
    {
        const std::string text = value.NonEmptyText();
        if (!seen.insert(text).second)
            value.Fail(Quoted(text) + " stands twice");
        oAttribute.texts.push_back(text);
    }
    if (oAttribute.texts.empty())
        values.Fail("an enumeration has at least one text");
}

void TypeReader::ReadUnit(const DocumentNode& iAttribute, AttributeDeclaration& oAttribute)
{
    const auto unit = iAttribute.Find("unit");
    if (!unit)
        return;
    if (oAttribute.type != tk_double && oAttribute.listType != tk_double)
        unit->Fail("belongs to kind \"real\" only");
    oAttribute.unit = unit->NonEmptyText();
    std::string why;
    if (KnowledgeType::RealOfUnit(oAttribute.unit, why) == nullptr)
        unit->Fail(why);
}

void TypeReader::ReadDefault(const DocumentNode& iDefault, const AttributeDeclaration& iAttribute)
{
    if (IsObjectCode(iAttribute.type) || IsObjectCode(iAttribute.listType))
        iDefault.Fail("an attribute of objects has no default");
    if (iAttribute.type == tk_list && !iDefault.IsArray())
        iDefault.Fail("the default of a list is an array");
    if (iAttribute.type != tk_list && iDefault.IsArray())
        iDefault.Fail("only the default of a list is an array");
    if (iAttribute.type != tk_list)
        CheckDefault(iDefault, iAttribute, iAttribute.type);
    else
        for (const DocumentNode& element : iDefault.Elements())
            CheckDefault(element, iAttribute, iAttribute.listType);
    AddValue(iDefault, {iAttribute.name});
}

/// What can be said better here than when the value is declared.
void TypeReader::CheckDefault(const DocumentNode& iValue, const AttributeDeclaration& iAttribute, int iCode)
{
    const DeclaredScalar value = iValue.Single();
    if (iCode == tk_integer && iValue.IsWhole() && !std::holds_alternative<int>(value))
        iValue.Fail("out of the range of an integer, which has 32 bits");
    const auto* text = std::get_if<std::string>(&value);
    if (iCode == tk_enum && text != nullptr &&
        std::find(iAttribute.texts.begin(), iAttribute.texts.end(), *text) == iAttribute.texts.end())
        iValue.Fail("no text of the enumeration: " + Quoted(*text) + InsteadOf(*text, iAttribute.texts));
}

void TypeReader::ReadStartup(const DocumentNode& iMembers, const std::vector<std::string>& iPath)
{
    if (iPath.size() > DeepestNesting)
        iMembers.Fail("components stand inside each other more than " + std::to_string(DeepestNesting) + " deep");
    iMembers.ExpectObject();
    for (const DocumentNode& member : iMembers.Members())
    {
        std::vector<std::string> path = iPath;
        path.emplace_back(member.Key());
        if (member.IsObject())
            ReadStartup(member, path);
        else
            AddValue(member, path);
    }
}

void TypeReader::AddValue(const DocumentNode& iValue, const std::vector<std::string>& iPath)
{
    PrototypeValue value;
    value.path = iPath;
    value.isList = iValue.IsArray();
    if (value.isList)
        for (const DocumentNode& element : iValue.Elements())
            value.entries.push_back(element.Single());
    else
        value.entries.push_back(iValue.Single());
    m_type.values.push_back(std::move(value));
    m_valuePaths.push_back(iValue.Path());
}
} // namespace

CatalogDocument ReadCatalog(std::string_view iJson, const std::string& iFile)
{
    rapidjson::Document json;
    DocumentNode::Parse(iJson, iFile, json);
    const DocumentNode root(iFile, json);
    root.ExpectKeys({"catalog", "uses", "types"});

    CatalogDocument catalog;
    catalog.file = iFile;
    catalog.declaration.name = root.Require("catalog").NonEmptyText();
    if (const auto uses = root.Find("uses"))
        catalog.uses = uses->Texts();
    const DocumentNode types = root.Require("types");
    std::set<std::string> names;
    for (const DocumentNode& type : types.Elements())
    {
        catalog.valuePaths.emplace_back();
        TypeReader(catalog.declaration.types.emplace_back(), catalog.valuePaths.back(), catalog.meantConfigurations)
            .Read(type);
        if (!names.insert(catalog.declaration.types.back().name).second)
            type.FailAt("name", "the catalog has a type " + Quoted(catalog.declaration.types.back().name) + " already");
    }
    return catalog;
}

void CatalogDocument::CheckTypeNames() const
{
    std::vector<std::string> known;
    for (const FeatureType* type : TypeRegistry::Instance().Types())
        known.push_back(type->Name());
    for (const TypeDeclaration& type : declaration.types)
        known.push_back(type.name);
    const auto check = [&](const std::string& iName, const std::string& iPath) {
        if (!iName.empty() && std::find(known.begin(), known.end(), iName) == known.end())
            throw DocumentError(file, iPath, "unknown type " + Quoted(iName) + InsteadOf(iName, known));
    };
    for (std::size_t i = 0; i < declaration.types.size(); ++i)
    {
        const TypeDeclaration& type = declaration.types[i];
        const std::string path = "/types/" + std::to_string(i);
        check(type.base, path + "/base");
        for (std::size_t j = 0; j < type.attributes.size(); ++j)
            check(type.attributes[j].componentType, path + "/attributes/" + std::to_string(j) + "/type");
    }
}

void CatalogDocument::Declare() const
{
    CheckTypeNames();
    // Whatever may fail comes before the types stand.
    std::vector<MeantConfiguration> meant = meantConfigurations;
    std::vector<MeantConfiguration>& kept = MeantConfigurationTable::Instance().ListOf(declaration.name, file);
    try
    {
        TypeRegistry::Instance().Declare(declaration);
    }
    catch (const DeclarationError& error)
    {
        std::string path = "/types/" + std::to_string(error.type);
        if (error.value != DeclarationError::None)
            path = valuePaths.at(error.type).at(error.value);
        else if (error.attribute != DeclarationError::None)
            path += "/attributes/" + std::to_string(error.attribute);
        throw DocumentError(file, path, error.what());
    }
    kept.swap(meant);
}
} // namespace VYRStandalone
