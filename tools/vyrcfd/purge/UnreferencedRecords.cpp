#include "UnreferencedRecords.h"

#include <unordered_map>
#include <unordered_set>

#include "AttributeReader.h"
#include "ModelSurvey.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
namespace
{
using Roots = std::unordered_set<ORXBaseUnknown*>;

ORXBaseUnknown* RootOf(const ORXISpecObject_var& iObject)
{
    return iObject->GetImpl(0);
}

/// The top-level object that an object is a part of.
ORXBaseUnknown* TopOf(ORXISpecObject_var iObject)
{
    while (ORXISpecObject_var spOwner = ORXISpecObject_var::Adopt(iObject->GetOwner()))
        iObject = spOwner;
    return RootOf(iObject);
}

/// What the attributes of one object hold.
struct Holdings
{
    std::vector<ORXISpecObject_var> parts;
    std::vector<ORXISpecObject_var> references;
};

Holdings HoldingsOf(const ORXISpecObject_var& iObject)
{
    Holdings holdings;
    const ORXISpecAttrAccess_var spAccess = iObject;
    if (!spAccess)
        return holdings;
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iObject))
    {
        const bool isList = attribute.type == tk_list;
        const int type = isList ? attribute.listType : attribute.type;
        if (type != tk_component && type != tk_specobject)
            continue;
        std::vector<ORXISpecObject_var> objects;
        if (isList)
            objects = ReadObjects(spAccess, attribute.name);
        else
            objects.push_back(ReadObject(spAccess, attribute.name));
        std::vector<ORXISpecObject_var>& list = type == tk_component ? holdings.parts : holdings.references;
        for (const ORXISpecObject_var& object : objects)
            if (!!object)
                list.push_back(object);
    }
    return holdings;
}

/// Enters the top-level objects that one refers to, itself left out.
void EnterReferences(const ORXISpecObject_var& iTop, Roots& ioReferenced)
{
    // Not recursive: a model may own objects to any depth.
    std::vector<ORXISpecObject_var> open{iTop};
    while (!open.empty())
    {
        const ORXISpecObject_var object = open.back();
        open.pop_back();
        const Holdings holdings = HoldingsOf(object);
        open.insert(open.end(), holdings.parts.begin(), holdings.parts.end());
        for (const ORXISpecObject_var& reference : holdings.references)
            if (ORXBaseUnknown* const top = TopOf(reference); top != RootOf(iTop))
                ioReferenced.insert(top);
    }
}

/// What the records hold, by their roots; those in lists of records are not among them.
std::unordered_map<ORXBaseUnknown*, RecordSnapshot> RecordTexts(const VYRStandalone::Model& iModel)
{
    std::unordered_map<ORXBaseUnknown*, RecordSnapshot> texts;
    for (const ObjectSnapshot& object : TakeSnapshot(iModel))
        if (object.depth == 0 && ModelSurvey::IsRecordType(object.object))
            texts.try_emplace(RootOf(object.object),
                              RecordSnapshot{object.object, object.path, object.type, object.attributes});
    return texts;
}
} // namespace

RecordCensus CountRecords(const VYRStandalone::Model& iModel)
{
    const std::vector<ORXISpecObject_var> objects = iModel.Objects();
    Roots referenced;
    for (const ORXISpecObject_var& object : objects)
        EnterReferences(object, referenced);

    const auto texts = RecordTexts(iModel);
    RecordCensus census;
    for (std::size_t i = 0; i < objects.size(); ++i)
    {
        if (!ModelSurvey::IsRecordType(objects[i]))
            continue;
        if (referenced.count(RootOf(objects[i])) != 0)
            ++census.referenced;
        else
            census.unreferenced.push_back({i + 1, texts.at(RootOf(objects[i]))});
    }
    return census;
}
} // namespace Tool
