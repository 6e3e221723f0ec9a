#include "VYRCfdListTail.h"

#include <algorithm>
#include <cstdint>

// One bucket there is always.
VYRCfdListTail::VYRCfdListTail(std::size_t iEntries)
    : m_entries(std::max<std::size_t>(iEntries, 1), Entry{nullptr, 0, Repeated, None, None})
{
}

VYRCfdListTail::Entry& VYRCfdListTail::Bucket(const void* iIdentity) noexcept
{
    // Components stand at even distances in memory, which one product alone would carry on into the buckets.
    std::uint64_t mixed = reinterpret_cast<std::uintptr_t>(iIdentity) * std::uint64_t{0x9e3779b97f4a7c15};
    mixed = (mixed ^ (mixed >> 32)) * std::uint64_t{0xd6e8feb86659fd93};
    // The highest bits are the best mixed ones.
    return m_entries[static_cast<std::size_t>(((mixed >> 32) * m_entries.size()) >> 32)];
}

int VYRCfdListTail::Search(const Entry& iBucket, const void* iIdentity) const noexcept
{
    int object = iBucket.head;
    while (object != None && m_entries[Offset(object)].identity != iIdentity)
        object = m_entries[Offset(object)].next;
    return object;
}

int VYRCfdListTail::ObjectAt(std::size_t iEntry) const noexcept
{
    const Entry& entry = m_entries[iEntry];
    return entry.run == Repeated ? entry.count : static_cast<int>(iEntry);
}

void VYRCfdListTail::Append(const void* iIdentity)
{
    Entry& bucket = Bucket(iIdentity);
    const int object = Search(bucket, iIdentity);
    Entry& added = m_entries[m_size];
    added.identity = iIdentity;
    if (object != None)
    {
        ++m_entries[Offset(object)].count;
        added.count = object;
    }
    else
    {
        added.count = 1;
        added.run = InStoredOrder;
        added.next = bucket.head;
        bucket.head = static_cast<int>(m_size);
    }
    ++m_size;
}

int VYRCfdListTail::Find(const void* iIdentity) noexcept
{
    if (m_expected < m_size && m_entries[m_expected].identity == iIdentity)
        return ObjectAt(m_expected++);
    const int found = Search(Bucket(iIdentity), iIdentity);
    if (found != None)
        m_expected = Offset(found) + 1;
    return found;
}

int VYRCfdListTail::PlaceOutOfOrder(int iObject)
{
    const bool isInFront = IsInFront(iObject);
    Entry& object = m_entries[Offset(iObject)];
    const int moves = object.count - (isInFront ? 1 : 0);
    --object.count;
    object.run = InNoRun;
    if (object.count > 0)
    {
        object.run = static_cast<int>(m_runs.size());
        m_runs.push_back(iObject);
    }
    return moves;
}

bool VYRCfdListTail::IsInFront(int iObject)
{
    while (!m_runs.empty())
    {
        const int latest = m_runs.back();
        if (m_entries[Offset(latest)].run == static_cast<int>(m_runs.size()) - 1)
            return latest == iObject;
        m_runs.pop_back();
    }
    while (m_front < m_size && m_entries[Offset(ObjectAt(m_front))].run != InStoredOrder)
        ++m_front;
    return m_front < m_size && ObjectAt(m_front) == iObject;
}
