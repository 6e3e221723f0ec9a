#include "ModelSurvey.h"

#include "AttributeReader.h"
#include "ListNames.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
namespace
{
ORXBaseUnknown* RootOf(const ORXISpecObject_var& iObject)
{
    return iObject->GetImpl(0);
}

/// A column stands as a value with its attribute.
bool StandsAlone(const ORXISpecObject_var& iObject)
{
    return !!iObject && !ORXISimBCDataTableColumn_var(iObject);
}
} // namespace

ModelSurvey::ModelSurvey(const VYRStandalone::Model& iModel)
{
    const std::vector<ORXISpecObject_var> objects = iModel.Objects();
    const std::vector<std::string> names = ListNames(objects);
    for (std::size_t i = 0; i < objects.size(); ++i)
        for (const Place& place : Descend({objects[i], names[i], names[i], 0}, {}))
            m_places.push_back(place);
    // Records are known by their objects, also where they stand in front of them.
    for (const Place& place : m_places)
        EnterRecords(place);
    for (const Place& place : m_places)
        m_paths.try_emplace(RootOf(place.object), place.path);
}

void ModelSurvey::EnterRecords(const Place& iOwner)
{
    const ORXISpecAttrAccess_var spAccess = DefaultManagementOf(iOwner.object);
    if (!spAccess)
        return;
    const std::string list = iOwner.path + "/" + DefaultManagement + "/" + RecordList + "/";
    const std::vector<ORXISpecObject_var> records = ReadObjects(spAccess, RecordList);
    for (std::size_t i = 0; i < records.size(); ++i)
    {
        if (!records[i] || !IsRecordType(records[i]))
            continue;
        m_records.insert(RootOf(records[i]));
        m_paths.try_emplace(RootOf(records[i]), list + std::to_string(i + 1));
    }
}

std::vector<Place> ModelSurvey::Places() const
{
    std::vector<Place> places;
    for (const Place& place : m_places)
        if (m_records.count(RootOf(place.object)) == 0)
            places.push_back(place);
    return places;
}

std::vector<Place> ModelSurvey::PlacesBelow(const ORXISpecObject_var& iObject, const std::string& iPath,
                                            const std::string& iAttribute) const
{
    const auto found = m_paths.find(RootOf(iObject));
    const std::string path = found != m_paths.end() ? found->second : iPath;
    return Descend({iObject, path, path, 0}, iAttribute);
}

std::string ModelSurvey::PathOf(const ORXISpecObject_var& iObject) const
{
    const auto found = m_paths.find(RootOf(iObject));
    return found != m_paths.end() ? found->second : VYRStandalone::PathOf(iObject);
}

ORXISpecAttrAccess_var ModelSurvey::DefaultManagementOf(const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrAccess_var spAccess = iObject;
    return !spAccess ? ORXISpecAttrAccess_var() : ORXISpecAttrAccess_var(ReadObject(spAccess, DefaultManagement));
}

bool ModelSurvey::IsRecordType(const ORXISpecObject_var& iObject)
{
    return iObject->IsSubTypeOf("VYRCfdConfigItem") != ORXFalse;
}

std::vector<Place> ModelSurvey::Descend(Place iRoot, const std::string& iAttribute)
{
    std::vector<Place> places;
    // Not recursive: a model may own objects to any depth.
    std::vector<Place> open{std::move(iRoot)};
    while (!open.empty())
    {
        const Place place = std::move(open.back());
        open.pop_back();
        const std::vector<Place> children = Children(place, places.empty() ? iAttribute : std::string());
        open.insert(open.end(), children.rbegin(), children.rend());
        places.push_back(place);
    }
    return places;
}

std::vector<Place> ModelSurvey::Children(const Place& iOwner, const std::string& iAttribute)
{
    std::vector<Place> children;
    const auto add = [&](const ORXISpecObject_var& iObject, const std::string& iLabel) {
        if (StandsAlone(iObject))
            children.push_back({iObject, iOwner.path + "/" + iLabel, iLabel, iOwner.depth + 1});
    };
    const ORXISpecAttrAccess_var spAccess = iOwner.object;
    if (!spAccess)
        return children;
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iOwner.object))
    {
        if (attribute.name == DefaultManagement || (!iAttribute.empty() && attribute.name != iAttribute))
            continue;
        if (attribute.type == tk_component)
            add(ReadObject(spAccess, attribute.name), attribute.name);
        if (attribute.type != tk_list || attribute.listType != tk_component)
            continue;
        const std::vector<ORXISpecObject_var> entries = ReadObjects(spAccess, attribute.name);
        const std::vector<std::string> names = ListNames(entries);
        for (std::size_t i = 0; i < entries.size(); ++i)
            add(entries[i], attribute.name + "/" + names[i]);
    }
    return children;
}
} // namespace Tool
