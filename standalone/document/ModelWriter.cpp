#include "ModelWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <unordered_map>
#include <unordered_set>

#include <rapidjson/prettywriter.h>
#include <simdjson.h>

#include "Container.h"
#include "FeatureObject.h"
#include "KindNames.h"
#include "ObjectWalk.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace VYRStandalone
{
namespace
{
constexpr const char* BuiltInCatalog = "VYRCfdBase";
constexpr unsigned BlanksPerStep = 2;

/// Strings of the host keep bytes of every kind; a document holds UTF-8 only.
bool IsUtf8(std::string_view iText)
{
    return simdjson::validate_utf8(iText.data(), iText.size());
}

/// Takes parts of the document that are JSON already, and puts them in as they are.
class DocumentWriter : public rapidjson::PrettyWriter<rapidjson::StringBuffer>
{
public:
    using rapidjson::PrettyWriter<rapidjson::StringBuffer>::PrettyWriter;

    void Ready(std::string_view iJson, rapidjson::Type iType)
    {
        PrettyPrefix(iType);
        std::memcpy(os_->Push(iJson.size()), iJson.data(), iJson.size());
        EndValue(true);
    }
};

/// What references need: the objects of the model, and numbers for those that something refers to.
class Identifiers
{
public:
    explicit Identifiers(const std::vector<FeatureObject*>& iObjects);

    /// 0 for an object that nothing refers to, or that is not in the model.
    int Of(const FeatureObject& iObject) const
    {
        const auto found = m_ids.find(&iObject);
        return found != m_ids.end() ? found->second : 0;
    }

private:
    using Targets = std::unordered_set<const FeatureObject*>;

    static void AddTargets(const FeatureObject& iObject, Targets& ioTargets);

    std::unordered_map<const FeatureObject*, int> m_ids;
};

Identifiers::Identifiers(const std::vector<FeatureObject*>& iObjects)
{
    Targets targets;
    for (const FeatureObject* object : iObjects)
        AddTargets(*object, targets);
    // Counted in the order of the document, so that they are the same in each save.
    for (const FeatureObject* object : iObjects)
        if (targets.count(object) != 0)
            m_ids.emplace(object, static_cast<int>(m_ids.size()) + 1);
}

void Identifiers::AddTargets(const FeatureObject& iObject, Targets& ioTargets)
{
    for (const FeatureKey* key : iObject.Keys())
    {
        if (key->Slot() == SlotKind::Object && !key->Owns())
            ioTargets.insert(iObject.Object(*key));
        if (!key->IsListOfObjects())
            continue;
        // A component that stands in its list again is referred to from there.
        Targets seen;
        for (const FeatureObject* entry : std::get<std::vector<FeatureObject*>>(iObject.Entries(*key)))
            if (!key->Owns() || !seen.insert(entry).second)
                ioTargets.insert(entry);
    }
}

/// Writes the text of one document.
class ModelWriter
{
public:
    ModelWriter(const std::string& iFile, const std::vector<FeatureObject*>& iAll)
        : m_file(iFile), m_identifiers(iAll), m_writer(m_buffer)
    {
        m_writer.SetIndent(' ', BlanksPerStep);
    }

    std::string Write(const Container& iContainer, const std::vector<std::string>& iCatalogs);

private:
    /// A member, or an element whose key has no data.
    struct Place
    {
        std::string_view key;
        std::size_t index;
    };

    /// One step of the place that is written, for errors.
    class Step
    {
    public:
        /// Under a key, which must outlive the step.
        Step(ModelWriter& ioWriter, std::string_view iKey) : m_places(ioWriter.m_places)
        {
            m_places.push_back({iKey, 0});
        }
        /// An element, counted from 0.
        Step(ModelWriter& ioWriter, std::size_t iIndex) : m_places(ioWriter.m_places)
        {
            m_places.push_back({{}, iIndex});
        }
        ~Step() { m_places.pop_back(); }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        std::vector<Place>& m_places;
    };

    [[noreturn]] void Fail(const std::string& iMessage) const;
    void WriteKey(std::string_view iKey);
    /// The keys of a type's attributes as they stand in documents, empty for a name that cannot be saved.
    const std::vector<std::string>& ReadyKeys(const FeatureType& iType);
    void WriteText(std::string_view iText);
    void WriteTextUnder(const char* iKey, std::string_view iText);
    void WriteReal(double iValue);
    /// Lists of plain values stand on one line.
    void StartShortList();
    void EndShortList();
    void WriteReals(const std::vector<double>& iValues);
    void WriteScalar(const Scalar& iValue, const KnowledgeType& iType);
    void WriteEntries(const ListEntries& iEntries, const KnowledgeType& iType);

    void WriteObject(FeatureObject& iObject, std::size_t iDepth);
    void WriteNames(const FeatureObject& iObject);
    void WriteValues(const FeatureObject& iObject, std::size_t iDepth);
    void WriteAdded(const FeatureObject& iObject, std::size_t iDepth);
    void WriteAddedAttribute(const FeatureObject& iObject, const FeatureKey& iKey, int iFlag, std::size_t iDepth);
    void WriteAttribute(const FeatureObject& iObject, const FeatureKey& iKey, std::size_t iDepth);
    void WriteObjectList(const FeatureObject& iObject, const FeatureKey& iKey, std::size_t iDepth);
    void WriteReference(const FeatureObject& iTarget);

    const std::string& m_file;
    Identifiers m_identifiers;
    rapidjson::StringBuffer m_buffer;
    DocumentWriter m_writer;
    std::vector<Place> m_places;
    std::unordered_map<const FeatureType*, std::vector<std::string>> m_readyKeys;
};

std::string ModelWriter::Write(const Container& iContainer, const std::vector<std::string>& iCatalogs)
{
    m_writer.StartObject();
    WriteKey("model");
    m_writer.Int(1);
    WriteKey("catalogs");
    StartShortList();
    for (const std::string& catalog : iCatalogs)
        WriteText(catalog);
    EndShortList();
    WriteKey("objects");
    m_writer.StartArray();
    const Step objects(*this, "objects");
    for (std::size_t i = 0; i < iContainer.Objects().size(); ++i)
    {
        const Step place(*this, i);
        WriteObject(*iContainer.Objects()[i], 0);
    }
    m_writer.EndArray();
    m_writer.EndObject();
    m_buffer.Put('\n');
    return std::string(m_buffer.GetString(), m_buffer.GetSize());
}

void ModelWriter::Fail(const std::string& iMessage) const
{
    std::string path;
    for (const Place& place : m_places)
        path += "/" + (place.key.data() != nullptr ? std::string(place.key) : std::to_string(place.index));
    throw DocumentError(m_file, path, iMessage);
}

void ModelWriter::WriteKey(std::string_view iKey)
{
    if (!IsUtf8(iKey))
        Fail("the name of an attribute is no UTF-8 and cannot be saved");
    m_writer.Key(iKey.data(), static_cast<rapidjson::SizeType>(iKey.size()));
}

const std::vector<std::string>& ModelWriter::ReadyKeys(const FeatureType& iType)
{
    const auto [place, isNew] = m_readyKeys.try_emplace(&iType);
    if (!isNew)
        return place->second;
    for (const FeatureKey* key : iType.Keys())
    {
        rapidjson::StringBuffer text;
        const std::string_view name = key->Name().View();
        if (IsUtf8(name))
            rapidjson::Writer<rapidjson::StringBuffer>(text).String(name.data(),
                                                                    static_cast<rapidjson::SizeType>(name.size()));
        place->second.emplace_back(text.GetString(), text.GetSize());
    }
    return place->second;
}

void ModelWriter::WriteText(std::string_view iText)
{
    if (!IsUtf8(iText))
        Fail("a text that is no UTF-8 cannot be saved");
    m_writer.String(iText.data(), static_cast<rapidjson::SizeType>(iText.size()));
}

void ModelWriter::WriteTextUnder(const char* iKey, std::string_view iText)
{
    WriteKey(iKey);
    const Step place(*this, iKey);
    WriteText(iText);
}

void ModelWriter::WriteReal(double iValue)
{
    if (!std::isfinite(iValue))
        Fail("a real that is infinite or no number cannot be saved");
    // The shortest text that reads back the same, and looks like a real.
    char text[64];
    char* end = std::to_chars(text, text + sizeof(text), iValue).ptr;
    if (std::find_if(text, end, [](char iLetter) { return iLetter == '.' || iLetter == 'e'; }) == end)
    {
        *end++ = '.';
        *end++ = '0';
    }
    m_writer.Ready({text, static_cast<std::size_t>(end - text)}, rapidjson::kNumberType);
}

void ModelWriter::StartShortList()
{
    m_writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
    m_writer.StartArray();
}

void ModelWriter::EndShortList()
{
    m_writer.EndArray();
    m_writer.SetFormatOptions(rapidjson::kFormatDefault);
}

void ModelWriter::WriteReals(const std::vector<double>& iValues)
{
    StartShortList();
    for (const double value : iValues)
        WriteReal(value);
    EndShortList();
}

void ModelWriter::WriteScalar(const Scalar& iValue, const KnowledgeType& iType)
{
    if (std::holds_alternative<std::monostate>(iValue))
        m_writer.Null();
    else if (const double* real = std::get_if<double>(&iValue))
        WriteReal(*real);
    else if (const bool* boolean = std::get_if<bool>(&iValue))
        m_writer.Bool(*boolean);
    else if (iType.Kind() == ValueKind::Enumeration)
        WriteText(iType.ToText(iValue).View());
    else if (const int* integer = std::get_if<int>(&iValue))
        m_writer.Int(*integer);
    else
        WriteText(std::get<ORXUnicodeString>(iValue).View());
}

void ModelWriter::WriteEntries(const ListEntries& iEntries, const KnowledgeType& iType)
{
    if (const auto* reals = std::get_if<std::vector<double>>(&iEntries))
    {
        WriteReals(*reals);
        return;
    }
    StartShortList();
    if (const auto* numbers = std::get_if<std::vector<int>>(&iEntries))
    {
        const bool isBoolean = iType.Kind() == ValueKind::Boolean;
        for (const int number : *numbers)
            WriteScalar(isBoolean ? Scalar(number != 0) : Scalar(number), iType);
    }
    else
        for (const ORXUnicodeString& text : std::get<std::vector<ORXUnicodeString>>(iEntries))
            WriteText(text.View());
    EndShortList();
}

void ModelWriter::WriteObject(FeatureObject& iObject, std::size_t iDepth)
{
    if (iDepth > DeepestNesting)
        Fail("components stand inside each other more than " + std::to_string(DeepestNesting) + " deep");
    m_writer.StartObject();
    if (const std::vector<double>* rows = iObject.ColumnRows())
    {
        WriteKey("column");
        const Step place(*this, "column");
        WriteReals(*rows);
        WriteNames(iObject);
    }
    else
    {
        WriteTextUnder("type", iObject.Type().Name());
        WriteTextUnder("name", iObject.Name().View());
        WriteNames(iObject);
        WriteValues(iObject, iDepth);
    }
    WriteAdded(iObject, iDepth);
    m_writer.EndObject();
}

void ModelWriter::WriteNames(const FeatureObject& iObject)
{
    if (const ORXUnicodeString* alias = iObject.Alias())
        WriteTextUnder("alias", alias->View());
    if (const ORXUnicodeString* identifier = iObject.Identifier())
        WriteTextUnder("identifier", identifier->View());
    if (const int id = m_identifiers.Of(iObject); id != 0)
    {
        WriteKey("id");
        m_writer.Int(id);
    }
}

void ModelWriter::WriteValues(const FeatureObject& iObject, std::size_t iDepth)
{
    WriteKey("values");
    const Step values(*this, "values");
    m_writer.StartObject();
    const auto& keys = iObject.Type().Keys();
    const std::vector<std::string>& readyKeys = ReadyKeys(iObject.Type());
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        const FeatureKey* key = keys[i];
        if (key->IsOptional())
            continue;
        const Step place(*this, key->Name().View());
        if (readyKeys[i].empty())
            WriteKey(key->Name().View());
        else
            m_writer.Ready(readyKeys[i], rapidjson::kStringType);
        WriteAttribute(iObject, *key, iDepth);
    }
    m_writer.EndObject();
}

/// The attributes of the object alone, and the optional ones that have been added to it.
void ModelWriter::WriteAdded(const FeatureObject& iObject, std::size_t iDepth)
{
    std::vector<const FeatureKey*> made;
    for (const FeatureKey* key : iObject.Type().Keys())
        if (key->IsOptional() && iObject.IsMade(*key))
            made.push_back(key);
    if (made.empty() && iObject.Added().empty())
        return;
    WriteKey("added");
    const Step added(*this, "added");
    m_writer.StartObject();
    for (const FeatureKey* key : made)
        WriteAddedAttribute(iObject, *key, 0, iDepth);
    for (const AddedAttribute* attribute : iObject.Added())
        WriteAddedAttribute(iObject, attribute->Key(), attribute->Flag(), iDepth);
    m_writer.EndObject();
}

void ModelWriter::WriteAddedAttribute(const FeatureObject& iObject, const FeatureKey& iKey, int iFlag,
                                      std::size_t iDepth)
{
    const Step place(*this, iKey.Name().View());
    WriteKey(iKey.Name().View());
    m_writer.StartObject();
    WriteTextUnder("kind", KindOfTypeCode(iKey.TypeCode()));
    if (iKey.TypeCode() == tk_enum && iKey.IsAdded())
    {
        WriteKey("values");
        WriteEntries(iKey.Knowledge()->Texts(), *KnowledgeType::String());
    }
    if (iFlag != 0)
    {
        WriteKey("flag");
        m_writer.Int(iFlag);
    }
    WriteKey("value");
    WriteAttribute(iObject, iKey, iDepth);
    m_writer.EndObject();
}

void ModelWriter::WriteAttribute(const FeatureObject& iObject, const FeatureKey& iKey, std::size_t iDepth)
{
    switch (iKey.Slot())
    {
    case SlotKind::Value:
        WriteScalar(iObject.Value(iKey), *iKey.Knowledge());
        break;
    case SlotKind::Object:
        if (FeatureObject* object = iObject.Object(iKey); object == nullptr)
            m_writer.Null();
        else if (iKey.Owns())
            WriteObject(*object, iDepth + 1);
        else
            WriteReference(*object);
        break;
    case SlotKind::List:
        if (iKey.IsListOfObjects())
            WriteObjectList(iObject, iKey, iDepth);
        else
            WriteEntries(iObject.Entries(iKey), *iKey.Knowledge());
        break;
    }
}

void ModelWriter::WriteObjectList(const FeatureObject& iObject, const FeatureKey& iKey, std::size_t iDepth)
{
    const auto& entries = std::get<std::vector<FeatureObject*>>(iObject.Entries(iKey));
    std::unordered_set<const FeatureObject*> written;
    m_writer.StartArray();
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        const Step place(*this, i);
        if (entries[i] == nullptr)
            m_writer.Null();
        else if (iKey.Owns() && written.insert(entries[i]).second)
            WriteObject(*entries[i], iDepth + 1);
        else
            WriteReference(*entries[i]);
    }
    m_writer.EndArray();
}

void ModelWriter::WriteReference(const FeatureObject& iTarget)
{
    const int id = m_identifiers.Of(iTarget);
    if (id == 0)
        Fail("refers to " + Quoted(iTarget.Path()) + ", which is not in the model");
    m_writer.StartObject();
    WriteKey("ref");
    m_writer.Int(id);
    m_writer.EndObject();
}

/// Those that are named, then those that say something of the types of the objects and that have to be found again. The
/// catalog that a base type comes from is used by that of the type itself.
std::vector<std::string> CatalogsOf(const std::vector<FeatureObject*>& iObjects, std::vector<std::string> iNamed)
{
    std::unordered_set<const FeatureType*> seen;
    for (const FeatureObject* object : iObjects)
    {
        if (!seen.insert(&object->Type()).second)
            continue;
        for (const FeatureType* type = &object->Type(); type != nullptr; type = type->Base())
        {
            const std::vector<std::string>& catalogs = type->Catalogs();
            for (std::size_t index = type == &object->Type() ? 0 : 1; index < catalogs.size(); ++index)
                if (catalogs[index] != BuiltInCatalog &&
                    std::find(iNamed.begin(), iNamed.end(), catalogs[index]) == iNamed.end())
                    iNamed.push_back(catalogs[index]);
        }
    }
    return iNamed;
}
} // namespace

std::string WriteModel(const Container& iContainer, const std::vector<std::string>& iCatalogs, const std::string& iFile)
{
    const std::vector<FeatureObject*> all = AllObjects(iContainer);
    return ModelWriter(iFile, all).Write(iContainer, CatalogsOf(all, iCatalogs));
}
} // namespace VYRStandalone
