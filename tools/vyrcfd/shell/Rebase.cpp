#include "Rebase.h"

#include <string>
#include <unordered_map>

namespace Tool
{
namespace
{
using Places = std::unordered_map<std::string, const ObjectSnapshot*>;

void RebaseRecords(std::vector<RecordSnapshot>& ioBefore, const std::vector<RecordSnapshot>& iAfter)
{
    // Each stands for one only.
    std::unordered_multimap<std::string, const RecordSnapshot*> open;
    for (const RecordSnapshot& record : iAfter)
        open.emplace(record.Shown(), &record);
    for (RecordSnapshot& record : ioBefore)
    {
        const auto same = open.find(record.Shown());
        if (same == open.end())
            continue;
        record.object = same->second->object;
        open.erase(same);
    }
}
} // namespace

void Rebase(Snapshot& ioBefore, const Snapshot& iAfter)
{
    Places places;
    for (const ObjectSnapshot& object : iAfter)
        places.try_emplace(object.path, &object);
    for (ObjectSnapshot& object : ioBefore)
    {
        const auto found = places.find(object.path);
        if (found == places.end() || found->second->type != object.type)
            continue;
        object.object = found->second->object;
        RebaseRecords(object.records, found->second->records);
    }
}
} // namespace Tool
