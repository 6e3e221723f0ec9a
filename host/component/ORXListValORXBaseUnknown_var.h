#ifndef ORXListValORXBaseUnknown_var_H
#define ORXListValORXBaseUnknown_var_H

/**
 * @file
 * List of component handles, 1-based. A value class.
 */

#include <utility>
#include <vector>

#include "ORXBaseUnknown.h"

/**
 * The first entry is at 1, the last at `Size()`. Entries may be null. A position out of range is the caller's fault.
 *
 * A list may be lent its entries by who holds the components anyway: then they are not counted once more, which is what
 * a long list costs, until the lender is about to let one go or the list itself is changed. Only their counts show it.
 * A list and its lender are used by one thread.
 */
class ORXListValORXBaseUnknown_var
{
public:
    ORXListValORXBaseUnknown_var() = default;
    ORXListValORXBaseUnknown_var(const ORXListValORXBaseUnknown_var& iOther) : m_entries(iOther.m_entries) {}
    ORXListValORXBaseUnknown_var(ORXListValORXBaseUnknown_var&& ioOther) noexcept
    {
        ioOther.Own();
        m_entries.swap(ioOther.m_entries);
    }
    /// One assignment for copy and move: the argument holds what is to be released.
    ORXListValORXBaseUnknown_var& operator=(ORXListValORXBaseUnknown_var iOther) noexcept
    {
        Own();
        m_entries.swap(iOther.m_entries);
        return *this;
    }
    virtual ~ORXListValORXBaseUnknown_var()
    {
        if (m_place == nullptr)
            return;
        for (ORXBaseUnknown_var& entry : m_entries)
            static_cast<void>(entry.GiveUp());
        LeaveLender();
    }

    int Size() const noexcept { return static_cast<int>(m_entries.size()); }

    ORXBaseUnknown_var& operator[](int iPosition)
    {
        Own();
        return m_entries[Offset(iPosition)];
    }
    const ORXBaseUnknown_var& operator[](int iPosition) const { return m_entries[Offset(iPosition)]; }

    void Append(const ORXBaseUnknown_var& iEntry)
    {
        Own();
        m_entries.push_back(iEntry);
    }
    void Append(ORXBaseUnknown_var&& ioEntry)
    {
        Own();
        m_entries.push_back(std::move(ioEntry));
    }

    /// Takes memory for so many entries, for who is going to append them.
    void Reserve(int iEntries) { m_entries.reserve(static_cast<std::size_t>(iEntries)); }

    /// Takes the entry out; those behind it move down by one.
    void RemovePosition(int iPosition)
    {
        Own();
        m_entries.erase(m_entries.begin() + (iPosition - 1));
    }

    /// Afterwards the entry stands at the position; what stood there and behind moves up by one. The position may be
    /// one behind the last.
    void InsertAt(int iPosition, const ORXBaseUnknown_var& iEntry)
    {
        Own();
        m_entries.insert(m_entries.begin() + (iPosition - 1), iEntry);
    }

    /// @name Lending, for hosts.
    /// @{

    /// The lists that one lender has lent entries to. Borrowed; they leave it by themselves.
    using Borrowers = ORXListValORXBaseUnknown_var*;

    /// An empty list becomes a borrower. @param iComponents null for an empty entry
    template <class Components> void Borrow(Borrowers& ioBorrowers, const Components& iComponents)
    {
        m_entries.reserve(iComponents.size());
        for (const auto component : iComponents)
            m_entries.push_back(ORXBaseUnknown_var::Adopt(component));
        m_place = &ioBorrowers;
        m_next = std::exchange(ioBorrowers, this);
        if (m_next != nullptr)
            m_next->m_place = &m_next;
    }
    /// Has all borrowers hold their entries themselves. Before the lender lets a component go.
    static void Settle(const Borrowers& iBorrowers) noexcept
    {
        while (iBorrowers != nullptr)
            iBorrowers->Own();
    }
    /// @}

private:
    static std::size_t Offset(int iPosition) noexcept { return static_cast<std::size_t>(iPosition) - 1; }

    /// Holds the entries itself.
    void Own() noexcept
    {
        if (m_place == nullptr)
            return;
        for (std::size_t i = 0; i < m_entries.size(); ++i)
        {
            // What a long list costs is waiting for the components that are counted.
            constexpr std::size_t Ahead = 16;
            if (i + Ahead < m_entries.size())
                __builtin_prefetch(m_entries[i + Ahead].Pointer(), 1);
            if (ORXBaseUnknown* const component = m_entries[i].Pointer())
                component->CountIn();
        }
        LeaveLender();
    }
    void LeaveLender() noexcept
    {
        *m_place = m_next;
        if (m_next != nullptr)
            m_next->m_place = m_place;
        m_place = nullptr;
        m_next = nullptr;
    }

    std::vector<ORXBaseUnknown_var> m_entries;
    /// Where the lender, or the borrower before, has this list; null for a list that holds its entries itself.
    Borrowers* m_place = nullptr;
    Borrowers m_next = nullptr;
};

#endif
