#include "Difference.h"

#include <algorithm>
#include <unordered_map>

#include "ModelSurvey.h"

namespace Tool
{
namespace
{
using ByObject = std::unordered_map<ORXBaseUnknown*, const ObjectSnapshot*>;
using ByPlace = std::unordered_map<std::string, const ObjectSnapshot*>;
using Records = std::vector<const RecordSnapshot*>;

/// Records that no object refers to are counted, not told one by one.
bool IsUnreferenced(const ObjectSnapshot& iObject)
{
    return iObject.depth == 0 && ModelSurvey::IsRecordType(iObject.object);
}

ByObject Index(const Snapshot& iSnapshot)
{
    ByObject index;
    for (const ObjectSnapshot& object : iSnapshot)
        index.try_emplace(object.object->GetImpl(0), &object);
    return index;
}

/// Flags of default management that belong to no attribute change like attributes.
std::vector<const AttributeSnapshot*> All(const ObjectSnapshot& iObject)
{
    std::vector<const AttributeSnapshot*> all;
    for (const auto* list : {&iObject.attributes, &iObject.otherFlags})
        for (const AttributeSnapshot& attribute : *list)
            all.push_back(&attribute);
    return all;
}

const AttributeSnapshot* Find(const std::vector<const AttributeSnapshot*>& iAttributes, const std::string& iName)
{
    for (const AttributeSnapshot* attribute : iAttributes)
        if (attribute->info.name == iName)
            return attribute;
    return nullptr;
}

bool IsSame(const AttributeSnapshot& iBefore, const AttributeSnapshot& iAfter)
{
    return iBefore.value == iAfter.value && iBefore.set == iAfter.set && iBefore.automatic == iAfter.automatic;
}

/// Attributes that differ; of objects of different types, which hold nothing in common, all.
std::vector<AttributeChange> CompareAttributes(const ObjectSnapshot& iBefore, const ObjectSnapshot& iAfter)
{
    const bool isOtherType = iBefore.type != iAfter.type;
    std::vector<AttributeChange> changes;
    const std::vector<const AttributeSnapshot*> before = All(iBefore);
    const std::vector<const AttributeSnapshot*> after = All(iAfter);
    for (const AttributeSnapshot* attribute : after)
    {
        const AttributeSnapshot* old = Find(before, attribute->info.name);
        if (isOtherType || old == nullptr || !IsSame(*old, *attribute))
            changes.push_back({old, attribute});
    }
    for (const AttributeSnapshot* attribute : before)
        if (Find(after, attribute->info.name) == nullptr)
            changes.push_back({attribute, nullptr});
    return changes;
}

Records Pointers(const std::vector<RecordSnapshot>& iRecords)
{
    Records pointers;
    for (const RecordSnapshot& record : iRecords)
        if (!!record.object)
            pointers.push_back(&record);
    return pointers;
}

/// Takes the pairs out of both lists of which the test holds, each record once. @return how many
template <class Test> std::size_t TakePairs(Records& ioBefore, Records& ioAfter, Test iTest)
{
    std::size_t pairs = 0;
    for (auto after = ioAfter.begin(); after != ioAfter.end();)
    {
        const auto before = std::find_if(ioBefore.begin(), ioBefore.end(),
                                         [&](const RecordSnapshot* iBefore) { return iTest(*iBefore, **after); });
        if (before == ioBefore.end())
        {
            ++after;
            continue;
        }
        ioBefore.erase(before);
        after = ioAfter.erase(after);
        ++pairs;
    }
    return pairs;
}

void CompareRecords(const ObjectSnapshot& iBefore, const ObjectSnapshot& iAfter, ObjectChange& oChange)
{
    oChange.goneRecords = Pointers(iBefore.records);
    oChange.newRecords = Pointers(iAfter.records);
    TakePairs(oChange.goneRecords, oChange.newRecords, [](const RecordSnapshot& iOld, const RecordSnapshot& iNew) {
        return iOld.object->IsEqual(iNew.object) != 0;
    });
    oChange.remadeRecords =
        TakePairs(oChange.goneRecords, oChange.newRecords, [](const RecordSnapshot& iOld, const RecordSnapshot& iNew) {
            return iOld.Shown() == iNew.Shown() && iOld.Text("type") == iNew.Text("type");
        });
}

/// What is not there any more, by where it stood.
ByPlace PlacesOfGone(const Snapshot& iBefore, const ByObject& iAfter)
{
    ByPlace places;
    for (const ObjectSnapshot& object : iBefore)
        if (!IsUnreferenced(object) && iAfter.count(object.object->GetImpl(0)) == 0)
            places.try_emplace(object.path, &object);
    return places;
}

/// What stood at a place; null for nothing.
const ObjectSnapshot* Take(ByPlace& ioPlaces, const std::string& iPath)
{
    const auto found = ioPlaces.find(iPath);
    if (found == ioPlaces.end())
        return nullptr;
    const ObjectSnapshot* const object = found->second;
    ioPlaces.erase(found);
    return object;
}

ObjectChange ChangeOf(const ObjectSnapshot& iBefore, const ObjectSnapshot& iAfter)
{
    ObjectChange change;
    change.object = &iAfter;
    change.attributes = CompareAttributes(iBefore, iAfter);
    CompareRecords(iBefore, iAfter, change);
    return change;
}

/// Where there is no object; changes refer to it.
const ObjectSnapshot& NoObject()
{
    static const ObjectSnapshot none;
    return none;
}

/// @param iReplaced what stood at the object's place before; null for nothing
ObjectChange ChangeOfNew(const ObjectSnapshot& iObject, const ObjectSnapshot* iReplaced)
{
    ObjectChange change = ChangeOf(iReplaced != nullptr ? *iReplaced : NoObject(), iObject);
    change.replaced = iReplaced;
    change.isNew = iReplaced == nullptr;
    return change;
}

ObjectChange ChangeOfGone(const ObjectSnapshot& iObject)
{
    ObjectChange change = ChangeOf(iObject, NoObject());
    change.object = &iObject;
    change.isGone = true;
    return change;
}
} // namespace

bool ObjectChange::IsOfAnother() const
{
    return isNew || isGone || (replaced != nullptr && replaced->type != object->type);
}

bool ObjectChange::IsEmpty() const
{
    return !isNew && !isGone && replaced == nullptr && attributes.empty() && newRecords.empty() &&
           goneRecords.empty() && remadeRecords == 0;
}

std::size_t Difference::ChangedAttributes() const
{
    std::size_t count = 0;
    for (const ObjectChange& change : objects)
        count += change.IsOfAnother() ? 0 : change.attributes.size();
    return count;
}

std::size_t Difference::NewRecords() const
{
    std::size_t count = 0;
    for (const ObjectChange& change : objects)
        count += change.newRecords.size() + change.remadeRecords;
    return count;
}

Difference Compare(const Snapshot& iBefore, const Snapshot& iAfter)
{
    Difference difference;
    const ByObject before = Index(iBefore);
    const ByObject after = Index(iAfter);
    ByPlace gonePlaces = PlacesOfGone(iBefore, after);
    for (const ObjectSnapshot& object : iAfter)
    {
        if (IsUnreferenced(object))
        {
            ++difference.unreferencedRecords;
            continue;
        }
        const auto old = before.find(object.object->GetImpl(0));
        ObjectChange change =
            old != before.end() ? ChangeOf(*old->second, object) : ChangeOfNew(object, Take(gonePlaces, object.path));
        if (!change.IsEmpty())
            difference.objects.push_back(std::move(change));
    }
    for (const ObjectSnapshot& object : iBefore)
    {
        if (IsUnreferenced(object))
            --difference.unreferencedRecords;
        else if (const auto gone = gonePlaces.find(object.path); gone != gonePlaces.end() && gone->second == &object)
            difference.objects.push_back(ChangeOfGone(object));
    }
    return difference;
}
} // namespace Tool
