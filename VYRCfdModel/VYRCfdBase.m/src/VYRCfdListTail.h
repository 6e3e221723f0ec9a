#ifndef VYRCfdListTail_H
#define VYRCfdListTail_H

/**
 * @file
 * The part of a list of objects that has still to be put in order.
 */

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "VYRCfdBaseExport.h"

/**
 * Says for each object that is put in its place how many of its entries a scan of the rest of the list would meet, and
 * whether the first of them stands in place already.
 *
 * That needs no positions. The scan moves every entry of the object that it meets to the front, one after the other,
 * the last into its place: the first time an object is placed, all its entries leave the order in which the list was
 * stored, and all but one stand together in a run at the front of the rest. From then on they stay together, and with
 * each further time they come to the front again. So the rest is a pile of runs, the latest on top, and below it
 * the stored order without the objects that were placed. All costs are linear in entries and calls.
 */
class VYRCfdBaseLocal VYRCfdListTail
{
public:
    /// Of an object that is not stored.
    static constexpr int None = -1;

    /// Room for as many stored entries.
    explicit VYRCfdListTail(std::size_t iEntries);

    /// Adds the next stored entry, before the list is indexed. @param iIdentity not null
    void Append(const void* iIdentity) noexcept { m_identities[m_size++] = iIdentity; }

    /// Makes what is added known, before anything is placed.
    void Index();

    /// Whether an object is stored more than once.
    bool HasRepeated() const noexcept { return m_hasRepeated; }

    /// As stored. @param iEntry counted from 0
    const void* IdentityOf(std::size_t iEntry) const noexcept { return m_identities[iEntry]; }

    /// Places the objects of as many entries at the front at once, before anything else is placed. No object is
    /// repeated.
    void PlaceFront(std::size_t iEntries) noexcept { m_front = m_expected = iEntries; }

    /// Number of an object that is stored; `None` if it is not.
    int Find(const void* iIdentity) noexcept;

    /// One of the stored entries of an object, counted from 1.
    static int Position(int iObject) noexcept { return iObject + 1; }

    /// Whether the rest holds the object.
    bool Holds(int iObject) const noexcept
    {
        // An object that was placed in the order in which it stands is not touched: it is seen by where it stands.
        return IsAsStored(Offset(iObject)) ? Offset(iObject) >= m_front : m_entries[Offset(iObject)].more >= 0;
    }

    /// Takes one entry of an object that the rest holds out of it. @return the moves to the front that this takes
    int Place(int iObject)
    {
        // Mostly nothing changes: the object stands in front and nowhere else.
        if (!m_runs.empty() || Offset(iObject) != m_front || !IsAsStored(Offset(iObject)))
            return PlaceOutOfOrder(iObject);
        ++m_front;
        return 0;
    }

private:
    /// Values of `Entry::run` that are no index. The last is that of an entry that is not its object's first.
    static constexpr int InStoredOrder = -1;
    static constexpr int InNoRun = -2;
    static constexpr int Repeated = -3;

    /// A stored entry. An object has the number of its first, counted from 0, and stands there.
    struct Entry
    {
        /// Entries of the object in the rest beyond one; of a repeated entry the object.
        int more = 0;
        /// The latest of the object's runs.
        int run = InStoredOrder;
    };

    static std::size_t Offset(int iNumber) noexcept { return static_cast<std::size_t>(iNumber); }
    static std::uint64_t Hash(const void* iIdentity) noexcept
    {
        // Components stand at even distances in memory, which one product alone would carry on.
        const std::uint64_t mixed = reinterpret_cast<std::uintptr_t>(iIdentity) * std::uint64_t{0x9e3779b97f4a7c15};
        return (mixed ^ (mixed >> 32)) * std::uint64_t{0xd6e8feb86659fd93};
    }
    /// The highest bits are the best mixed ones.
    std::size_t Chain(std::uint64_t iHash) const noexcept { return static_cast<std::size_t>(iHash >> m_chainShift); }
    int Search(std::uint64_t iHash, const void* iIdentity) const noexcept;
    /// Whether the entry is not that of an object that stands before it. If it is, that is noted.
    bool IsFirst(std::size_t iEntry, std::uint64_t iHash);
    int ObjectAt(std::size_t iEntry) const noexcept;
    /// Whether an entry is its object's only one, and the object was not placed out of order.
    bool IsAsStored(std::size_t iEntry) const noexcept
    {
        return m_entries.empty() || (m_entries[iEntry].more == 0 && m_entries[iEntry].run == InStoredOrder);
    }
    Entry& EntryOf(std::size_t iNumber);
    int PlaceOutOfOrder(int iObject);
    bool IsInFront(int iObject);

    std::size_t m_size = 0;
    std::unique_ptr<const void*[]> m_identities;
    /// Made for the first object that is repeated or placed out of order.
    std::vector<Entry> m_entries;

    /// The hash table: the first object of each chain and, for each object, the next one, counted from 1; 0 ends a
    /// chain. In arrays of their own, since here entries are met in no order, and what a long list costs is decided by
    /// how much of it stays in the processor's caches.
    std::vector<int> m_heads;
    std::unique_ptr<int[]> m_nexts;
    int m_chainShift;

    bool m_hasRepeated = false;
    /// The entry that is asked for next if nothing has changed.
    std::size_t m_expected = 0;

    /// Objects. Those that have another run above, or no entries any more, count no longer.
    std::vector<int> m_runs;
    /// What stands before was placed.
    std::size_t m_front = 0;
};

#endif
