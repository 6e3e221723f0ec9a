#include "ModelReader.h"

#include "CatalogLoader.h"
#include "Container.h"
#include "FeatureObject.h"
#include "KindNames.h"
#include "ObjectWalk.h"
#include "TypeRegistry.h"
#include "ValueReader.h"
#include "Wording.h"

namespace VYRStandalone
{
namespace
{
constexpr std::int64_t FormatVersion = 1;

FeatureType& ReadType(const DocumentNode& iNode)
{
    const TypeRegistry& registry = TypeRegistry::Instance();
    const std::string name = iNode.Text();
    if (FeatureType* type = registry.Find(name))
        return *type;
    std::vector<std::string> known;
    for (const FeatureType* type : registry.Types())
        known.push_back(type->Name());
    iNode.Fail("unknown type " + Quoted(name) + InsteadOf(name, known));
}

/// Names of the attributes that the type declares.
std::vector<std::string> AttributeNames(const FeatureType& iType)
{
    std::vector<std::string> names;
    for (const FeatureKey* key : iType.Keys())
        names.emplace_back(key->Name().View());
    return names;
}

ORXUnicodeString KeyText(const DocumentNode& iMember)
{
    return ORXUnicodeString(iMember.Key().data(), iMember.Key().size());
}

ORXISpecObject_var Adopted(FeatureObject* iNewReference)
{
    return ORXISpecObject_var::Adopt(iNewReference);
}

FeatureObject& Behind(const ORXISpecObject_var& iObject)
{
    return static_cast<FeatureObject&>(*iObject.Pointer());
}
} // namespace

std::vector<std::string> ModelReader::Read(std::string_view iJson, const std::string& iBeside,
                                           const std::vector<std::string>& iFolders)
{
    rapidjson::Document json;
    DocumentNode::Parse(iJson, m_file, json);
    const DocumentNode root(m_file, json);
    root.ExpectKeys({"model", "catalogs", "objects"});
    const DocumentNode version = root.Require("model");
    if (version.Whole() != FormatVersion)
        version.Fail("unknown version " + std::to_string(version.Whole()) + " of the format; there is " +
                     std::to_string(FormatVersion));
    const DocumentNode objects = root.Require("objects");
    std::vector<std::string> catalogs = ReadCatalogs(root, iBeside, iFolders);
    for (const DocumentNode& object : objects.Elements())
        ReadTopLevel(object);
    m_references.Resolve(m_file, m_container);
    return catalogs;
}

std::vector<std::string> ModelReader::ReadCatalogs(const DocumentNode& iRoot, const std::string& iBeside,
                                                   const std::vector<std::string>& iFolders)
{
    const auto names = iRoot.Find("catalogs");
    if (!names)
        return {};
    CatalogLoader loader(iFolders);
    for (const DocumentNode& name : names->Elements())
        loader.AddNamed(name.NonEmptyText(), iBeside, name);
    loader.DeclareAll();
    return names->Texts();
}

void ModelReader::ReadTopLevel(const DocumentNode& iObject)
{
    iObject.ExpectKeys({"type", "name", "alias", "identifier", "id", "values", "added"});
    FeatureType& type = ReadType(iObject.Require("type"));
    FeatureObject* object = m_container.Create(type, iObject.Require("name").UnicodeText());
    ReadBody(iObject, *object, 0);
}

void ModelReader::ReadBody(const DocumentNode& iNode, FeatureObject& ioObject, std::size_t iDepth)
{
    if (iDepth > DeepestNesting)
        iNode.Fail("components stand inside each other more than " + std::to_string(DeepestNesting) + " deep");
    if (const auto alias = iNode.Find("alias"))
        ioObject.SetAlias(alias->UnicodeText());
    if (const auto identifier = iNode.Find("identifier"))
        ioObject.SetIdentifier(identifier->UnicodeText());
    if (const auto id = iNode.Find("id"))
        m_references.AddId(*id, ioObject);
    if (const auto added = iNode.Find("added"))
        ReadAdded(*added, ioObject, iDepth);
    if (const auto values = iNode.Find("values"))
        ReadValues(*values, ioObject, iDepth);
}

void ModelReader::ReadAdded(const DocumentNode& iNode, FeatureObject& ioObject, std::size_t iDepth)
{
    iNode.ExpectObject();
    for (const DocumentNode& member : iNode.Members())
    {
        member.ExpectKeys({"kind", "values", "flag", "value"});
        const FeatureKey* key = ioObject.Type().FindKey(member.Key());
        if (key == nullptr)
            key = &AddAttribute(member, ioObject);
        else
            AddDeclared(member, ioObject, *key);
        if (const auto value = member.Find("value"))
            ReadValue(*value, ioObject, *key, iDepth);
    }
}

/// An attribute of the object alone.
const FeatureKey& ModelReader::AddAttribute(const DocumentNode& iMember, FeatureObject& ioObject)
{
    const DocumentNode kind = iMember.Require("kind");
    const std::optional<int> code = TypeCodeOfKind(kind.Text());
    if (!code || *code == tk_list)
        kind.Fail("unknown kind " + Quoted(kind.Text()) + " of an added attribute" +
                  InsteadOf(kind.Text(), KindNames(false)));
    std::vector<std::string> texts;
    if (*code == tk_enum)
        texts = iMember.Require("values").Texts();
    else if (const auto values = iMember.Find("values"))
        values->Fail("belongs to kind \"enumeration\" only");
    int flag = 0;
    if (const auto node = iMember.Find("flag"))
    {
        const std::int64_t whole = node->Whole();
        flag = static_cast<int>(whole);
        if (flag != whole)
            node->Fail("out of the range of an integer, which has 32 bits");
    }
    const AddedAttribute* attribute = ioObject.AddAttributeSilently(KeyText(iMember), *code, flag, texts);
    if (attribute == nullptr)
        iMember.Fail("cannot be added");
    return attribute->Key();
}

/// An optional attribute of the type that has been added to the object.
void ModelReader::AddDeclared(const DocumentNode& iMember, FeatureObject& ioObject, const FeatureKey& iKey)
{
    if (!iKey.IsOptional())
        iMember.Fail("type " + Quoted(ioObject.Type().Name()) + " declares this attribute: it belongs to \"values\"");
    const DocumentNode kind = iMember.Require("kind");
    if (kind.Text() != KindOfTypeCode(iKey.TypeCode()))
        kind.Fail("the attribute is declared as " + Quoted(KindOfTypeCode(iKey.TypeCode())));
    if (const auto values = iMember.Find("values"))
        values->Fail("the type declares the texts of the enumeration");
    if (const auto flag = iMember.Find("flag"))
        flag->Fail("belongs to attributes of one object alone");
    ioObject.MakeOptional(iKey);
}

void ModelReader::ReadValues(const DocumentNode& iNode, FeatureObject& ioObject, std::size_t iDepth)
{
    iNode.ExpectObject();
    const FeatureType& type = ioObject.Type();
    for (const DocumentNode& member : iNode.Members())
    {
        const FeatureKey* key = type.FindKey(member.Key());
        if (key == nullptr && ioObject.FindKey(member.Key()) != nullptr)
            member.Fail("an added attribute has its value in \"added\"");
        if (key == nullptr)
            member.Fail("type " + Quoted(type.Name()) + " has no attribute " + Quoted(member.Key()) +
                        InsteadOf(member.Key(), AttributeNames(type)));
        if (!ioObject.IsMade(*key))
            member.Fail("an optional attribute has its value in \"added\"");
        ReadValue(member, ioObject, *key, iDepth);
    }
}

void ModelReader::ReadValue(const DocumentNode& iNode, FeatureObject& ioObject, const FeatureKey& iKey,
                            std::size_t iDepth)
{
    switch (iKey.Slot())
    {
    case SlotKind::Value:
        ioObject.StoreValue(iKey, ReadScalar(iNode, *iKey.Knowledge()));
        break;
    case SlotKind::Object:
        ReadObjectValue(iNode, ioObject, iKey, iDepth);
        break;
    case SlotKind::List:
        if (iKey.IsListOfObjects())
            ReadObjectList(iNode, ioObject, iKey, iDepth);
        else
            ioObject.StoreEntries(iKey, ReadEntries(iNode, *iKey.Knowledge()));
        break;
    }
}

void ModelReader::ReadObjectValue(const DocumentNode& iNode, FeatureObject& ioObject, const FeatureKey& iKey,
                                  std::size_t iDepth)
{
    if (iNode.IsNull())
        ioObject.StoreObject(iKey, nullptr);
    else if (!iKey.Owns())
        m_references.AddReference(iNode, ioObject, iKey);
    else
    {
        FeatureObject* before = ioObject.Object(iKey);
        const ORXISpecObject_var component = ReadComponent(iNode, iKey, before, iDepth);
        if (&Behind(component) != before)
            ioObject.StoreObject(iKey, &Behind(component));
    }
}

void ModelReader::ReadObjectList(const DocumentNode& iNode, FeatureObject& ioObject, const FeatureKey& iKey,
                                 std::size_t iDepth)
{
    const std::vector<DocumentNode> elements = iNode.Elements();
    // Entries that refer stay empty until all objects are there.
    std::vector<FeatureObject*> entries(elements.size(), nullptr);
    std::vector<ORXISpecObject_var> held;
    for (std::size_t i = 0; i < elements.size(); ++i)
    {
        const DocumentNode& element = elements[i];
        if (element.IsNull())
            continue;
        const bool refers = !iKey.Owns() || (element.IsObject() && element.Find("ref"));
        if (refers)
        {
            m_references.AddReference(element, ioObject, iKey, i);
            continue;
        }
        held.push_back(ReadComponent(element, iKey, nullptr, iDepth));
        entries[i] = &Behind(held.back());
    }
    ioObject.StoreObjects(iKey, entries);
}

ORXISpecObject_var ModelReader::ReadComponent(const DocumentNode& iNode, const FeatureKey& iKey, FeatureObject* iBefore,
                                              std::size_t iDepth)
{
    iNode.ExpectObject();
    if (iNode.Find("column"))
        return ReadColumn(iNode, iDepth);
    if (iNode.Find("ref"))
        iNode.Fail("a component stands inside its owner; \"ref\" is for attributes of kind \"reference\"");
    iNode.ExpectKeys({"type", "name", "alias", "identifier", "id", "values", "added"});

    FeatureType* type = iBefore != nullptr ? &iBefore->Type() : iKey.ComponentType();
    if (const auto typeNode = iNode.Find("type"))
        type = &ReadType(*typeNode);
    if (type == nullptr)
        iNode.FailAt("type", "is missing: the attribute names no type of its own");
    ORXUnicodeString name = iBefore != nullptr ? iBefore->Name() : iKey.Name();
    if (const auto nameNode = iNode.Find("name"))
        name = nameNode->UnicodeText();

    const bool isLaidOver = iBefore != nullptr && &iBefore->Type() == type;
    FeatureObject* startup = isLaidOver ? iBefore->Startup() : nullptr;
    ORXISpecObject_var component;
    if (isLaidOver && iBefore->Name() == name)
        component = ORXISpecObject_var::Share(iBefore);
    else if (startup != nullptr)
        // An object's name is for life, so that another name is another object after the same start-up.
        component = Adopted(FeatureObject::MakeAfter(*startup, name));
    else
        component = Adopted(FeatureObject::Make(*type, name));
    ReadBody(iNode, Behind(component), iDepth + 1);
    return component;
}

ORXISpecObject_var ModelReader::ReadColumn(const DocumentNode& iNode, std::size_t iDepth)
{
    iNode.ExpectKeys({"column", "alias", "identifier", "id", "added"});
    ORXISpecObject_var column = Adopted(FeatureObject::MakeColumn());
    std::vector<double>& rows = *Behind(column).ColumnRows();
    const DocumentNode rowNodes = iNode.Require("column");
    for (const DocumentNode& row : rowNodes.Elements())
        rows.push_back(row.Number());
    ReadBody(iNode, Behind(column), iDepth + 1);
    return column;
}
} // namespace VYRStandalone
