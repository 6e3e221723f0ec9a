#include "VYRCfdListTail.h"

#include <bit>

// At least two chains, so that a hash has bits that give one.
VYRCfdListTail::VYRCfdListTail(std::size_t iEntries)
    : m_identities(std::make_unique_for_overwrite<const void*[]>(iEntries)), m_heads(std::bit_ceil(iEntries + 2)),
      m_nexts(std::make_unique_for_overwrite<int[]>(iEntries)), m_chainShift(64 - std::countr_zero(m_heads.size()))
{
}

void VYRCfdListTail::Index()
{
    // A bit for each hash that was met, so that hardly any chain is looked through. Few enough to stay near.
    constexpr std::size_t BitsAnEntry = 16;
    constexpr std::size_t BitsAWord = 64;
    std::vector<std::uint64_t> met(m_heads.size() * BitsAnEntry / BitsAWord);
    const std::size_t bits = met.size() * BitsAWord;
    for (std::size_t entry = 0; entry < m_size; ++entry)
    {
        const std::uint64_t hash = Hash(m_identities[entry]);
        std::uint64_t& word = met[static_cast<std::size_t>(hash & (bits - 1)) / BitsAWord];
        const std::uint64_t bit = std::uint64_t{1} << (hash % BitsAWord);
        if ((word & bit) != 0 && !IsFirst(entry, hash))
            continue;
        word |= bit;
        int& head = m_heads[Chain(hash)];
        m_nexts[entry] = head;
        head = static_cast<int>(entry) + 1;
    }
}

int VYRCfdListTail::Search(std::uint64_t iHash, const void* iIdentity) const noexcept
{
    int number = m_heads[Chain(iHash)];
    while (number != 0 && m_identities[Offset(number - 1)] != iIdentity)
        number = m_nexts[Offset(number - 1)];
    // The number 0 becomes None.
    return number - 1;
}

bool VYRCfdListTail::IsFirst(std::size_t iEntry, std::uint64_t iHash)
{
    const int object = Search(iHash, m_identities[iEntry]);
    if (object == None)
        return true;
    ++EntryOf(Offset(object)).more;
    EntryOf(iEntry) = {object, Repeated};
    m_hasRepeated = true;
    return false;
}

VYRCfdListTail::Entry& VYRCfdListTail::EntryOf(std::size_t iNumber)
{
    if (m_entries.empty())
        m_entries.resize(m_size);
    return m_entries[iNumber];
}

int VYRCfdListTail::ObjectAt(std::size_t iEntry) const noexcept
{
    const bool isRepeated = !m_entries.empty() && m_entries[iEntry].run == Repeated;
    return isRepeated ? m_entries[iEntry].more : static_cast<int>(iEntry);
}

int VYRCfdListTail::Find(const void* iIdentity) noexcept
{
    if (m_expected < m_size && m_identities[m_expected] == iIdentity)
        return ObjectAt(m_expected++);
    const int found = Search(Hash(iIdentity), iIdentity);
    if (found != None)
        m_expected = Offset(found) + 1;
    return found;
}

int VYRCfdListTail::PlaceOutOfOrder(int iObject)
{
    const bool isInFront = IsInFront(iObject);
    Entry& object = EntryOf(Offset(iObject));
    const int moves = object.more + (isInFront ? 0 : 1);
    --object.more;
    object.run = InNoRun;
    // What follows it mostly stands in place again.
    if (Offset(iObject) == m_front)
        ++m_front;
    if (object.more >= 0)
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
    while (m_front < m_size && !m_entries.empty() && m_entries[Offset(ObjectAt(m_front))].run != InStoredOrder)
        ++m_front;
    return m_front < m_size && ObjectAt(m_front) == iObject;
}
