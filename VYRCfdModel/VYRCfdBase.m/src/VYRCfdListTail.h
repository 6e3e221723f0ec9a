#ifndef VYRCfdListTail_H
#define VYRCfdListTail_H

/**
 * @file
 * The part of a list of objects that has still to be put in order.
 */

#include <cstddef>
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

    /// Adds the next stored entry, before anything is placed. @param iIdentity not null
    void Append(const void* iIdentity);

    /// Number of an object that is stored; `None` if it is not.
    int Find(const void* iIdentity) noexcept;

    /// One of the stored entries of an object, counted from 1.
    static int Position(int iObject) noexcept { return iObject + 1; }

    /// Whether the rest holds the object.
    bool Holds(int iObject) const noexcept { return m_entries[Offset(iObject)].count > 0; }

    /// Takes one entry of an object that the rest holds out of it. @return the moves to the front that this takes
    int Place(int iObject)
    {
        // Mostly nothing changes: the object stands in front and nowhere else.
        Entry& object = m_entries[Offset(iObject)];
        if (!m_runs.empty() || Offset(iObject) != m_front || object.count != 1 || object.run != InStoredOrder)
            return PlaceOutOfOrder(iObject);
        object.count = 0;
        object.run = InNoRun;
        ++m_front;
        return 0;
    }

private:
    /// Values of `Entry::run` that are no index. The last is that of an entry that is not its object's first.
    static constexpr int InStoredOrder = -1;
    static constexpr int InNoRun = -2;
    static constexpr int Repeated = -3;

    /// A stored entry. An object has the number of its first, counted from 0, and stands there. Few bytes: what a long
    /// list costs is decided by how much of it stays in the processor's caches.
    struct Entry
    {
        const void* identity;
        /// Entries of the object in the rest; of a repeated entry the object.
        int count;
        /// The latest of the object's runs.
        int run;
        /// The first object of the chain that begins here, and the next one of the chain in which this object is. Any
        /// hash that falls to this entry has its objects in the chain.
        int head;
        int next;
    };

    static std::size_t Offset(int iNumber) noexcept { return static_cast<std::size_t>(iNumber); }
    Entry& Bucket(const void* iIdentity) noexcept;
    int Search(const Entry& iBucket, const void* iIdentity) const noexcept;
    int ObjectAt(std::size_t iEntry) const noexcept;
    int PlaceOutOfOrder(int iObject);
    bool IsInFront(int iObject);

    /// All in one block, which is also the table of the hashes.
    std::vector<Entry> m_entries;
    std::size_t m_size = 0;
    /// The entry that is asked for next if nothing has changed.
    std::size_t m_expected = 0;

    /// Objects. Those that have another run above, or no entries any more, count no longer.
    std::vector<int> m_runs;
    /// What stands before was placed.
    std::size_t m_front = 0;
};

#endif
