#include "Snapshot.h"

#include <set>

#include "AttributeKind.h"
#include "AttributeReader.h"
#include "ListNames.h"
#include "ModelSurvey.h"
#include "ORXTypeCode.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char SetSuffix[] = "_isset";
constexpr char AutoSuffix[] = "_isauto";

/// A flag that default management holds; nothing where there is none.
std::optional<bool> ReadFlag(const ORXISpecAttrAccess_var& iFlags, const std::string& iName)
{
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(iFlags->GetAttrKey(iName.c_str()));
    if (!spKey || iFlags->HasAttribute(spKey) == ORXFalse)
        return std::nullopt;
    return iFlags->GetBoolean(spKey, 0) != ORXFalse;
}

/// Reads what stands at the places of a survey.
class Reader
{
public:
    explicit Reader(const ModelSurvey& iSurvey)
        : m_pathOf([&iSurvey](const ORXISpecObject_var& iObject) { return iSurvey.PathOf(iObject); })
    {
    }

    ObjectSnapshot Read(const Place& iPlace, const std::string& iAttribute) const;

private:
    std::vector<AttributeSnapshot> ReadAll(const ORXISpecObject_var& iObject) const;
    void ReadDefaultManagement(ObjectSnapshot& ioObject) const;
    RecordSnapshot ReadRecord(const ORXISpecObject_var& iRecord) const;

    PathOfObject m_pathOf;
};

std::vector<AttributeSnapshot> Reader::ReadAll(const ORXISpecObject_var& iObject) const
{
    std::vector<AttributeSnapshot> attributes;
    const ORXISpecAttrAccess_var spAccess = iObject;
    if (!spAccess)
        return attributes;
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(iObject))
        attributes.push_back({info, ReadAttribute(spAccess, info, m_pathOf), std::nullopt, std::nullopt});
    return attributes;
}

RecordSnapshot Reader::ReadRecord(const ORXISpecObject_var& iRecord) const
{
    RecordSnapshot record;
    record.object = iRecord;
    if (!iRecord)
        return record;
    record.path = m_pathOf(iRecord);
    record.type = TextOf(iRecord->GetType());
    if (ModelSurvey::IsRecordType(iRecord))
        record.attributes = ReadAll(iRecord);
    return record;
}

void Reader::ReadDefaultManagement(ObjectSnapshot& ioObject) const
{
    const ORXISpecAttrAccess_var spFlags = ModelSurvey::DefaultManagementOf(ioObject.object);
    if (!spFlags)
        return;
    std::set<std::string> shown{ModelSurvey::RecordList};
    for (AttributeSnapshot& attribute : ioObject.attributes)
    {
        const std::string set = attribute.info.name + SetSuffix;
        const std::string automatic = attribute.info.name + AutoSuffix;
        // Without a flag an attribute is not set.
        attribute.set = ReadFlag(spFlags, set).value_or(false);
        attribute.automatic = ReadFlag(spFlags, automatic);
        shown.insert({set, automatic});
    }
    for (const AttributeSnapshot& flag : ReadAll(spFlags))
        if (shown.count(flag.info.name) == 0)
            ioObject.otherFlags.push_back(flag);
    for (const ORXISpecObject_var& record : ReadObjects(spFlags, ModelSurvey::RecordList))
        ioObject.records.push_back(ReadRecord(record));
}

ObjectSnapshot Reader::Read(const Place& iPlace, const std::string& iAttribute) const
{
    ObjectSnapshot object;
    object.object = iPlace.object;
    object.path = iPlace.path;
    object.label = iPlace.label;
    object.depth = iPlace.depth;
    object.type = TextOf(iPlace.object->GetType());
    object.name = TextOf(iPlace.object->GetName());
    object.alias = AliasOf(iPlace.object);
    object.identifier = IdentifierOf(iPlace.object);
    object.attributes = ReadAll(iPlace.object);
    const bool hasDefaultManagement = !!ModelSurvey::DefaultManagementOf(iPlace.object);
    std::erase_if(object.attributes, [&](const AttributeSnapshot& iOne) {
        return hasDefaultManagement && iOne.info.name == ModelSurvey::DefaultManagement;
    });
    ReadDefaultManagement(object);
    if (!iAttribute.empty())
    {
        std::erase_if(object.attributes, [&](const AttributeSnapshot& iOne) { return iOne.info.name != iAttribute; });
        object.otherFlags.clear();
        object.records.clear();
    }
    return object;
}
} // namespace

std::string AttributeSnapshot::KindText() const
{
    return info.type == tk_list ? std::string("list of ") + NameOfKind(info.listType) : NameOfKind(info.type);
}

const char* AttributeSnapshot::KindName() const
{
    return NameOfKind(info.type);
}

std::string RecordSnapshot::Text(const std::string& iAttribute) const
{
    for (const AttributeSnapshot& attribute : attributes)
        if (attribute.info.name == iAttribute)
            return attribute.value.Text();
    return {};
}

std::string RecordSnapshot::Shown() const
{
    if (!object)
        return "(empty)";
    if (attributes.empty())
        return OneLine(path) + " (" + type + ")";
    const std::string about = Text("path");
    std::vector<std::string> parts;
    if (const std::string text = Text("default"); !text.empty())
        parts.push_back("default " + Quoted(text));
    if (const std::string key = Text("defaultAutoKey"); !key.empty())
        parts.push_back("automatic by " + Quoted(key));
    if (const std::string config = Text("config"); !config.empty())
        parts.push_back("configuration " + Quoted(config));
    if (const std::string condition = Text("condition"); !condition.empty())
        parts.push_back("on condition " + Quoted(condition));
    std::string line;
    for (const std::string& part : parts)
        line += (line.empty() ? "" : ", ") + part;
    return (about.empty() ? "(the object itself)" : OneLine(about)) + ": " + (line.empty() ? "nothing" : line);
}

Snapshot TakeSnapshot(const VYRStandalone::Model& iModel)
{
    const ModelSurvey survey(iModel);
    const Reader reader(survey);
    Snapshot snapshot;
    for (const Place& place : survey.Places())
        snapshot.push_back(reader.Read(place, {}));
    return snapshot;
}

Snapshot TakeSnapshot(const VYRStandalone::Model& iModel, const ORXISpecObject_var& iObject, const std::string& iPath,
                      const std::string& iAttribute)
{
    const ModelSurvey survey(iModel);
    const Reader reader(survey);
    Snapshot snapshot;
    for (const Place& place : survey.PlacesBelow(iObject, iPath, iAttribute))
        snapshot.push_back(reader.Read(place, snapshot.empty() ? iAttribute : std::string()));
    return snapshot;
}
} // namespace Tool
