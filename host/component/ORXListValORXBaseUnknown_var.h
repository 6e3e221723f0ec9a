#ifndef ORXListValORXBaseUnknown_var_H
#define ORXListValORXBaseUnknown_var_H

/**
 * @file
 * List of component handles, 1-based. A value class.
 */

#include <utility>
#include <vector>

#include "ORXBaseUnknown.h"

/// The first entry is at 1, the last at `Size()`. Entries may be null. A position out of range is the caller's fault.
class ORXListValORXBaseUnknown_var
{
public:
    ORXListValORXBaseUnknown_var() = default;
    ORXListValORXBaseUnknown_var(const ORXListValORXBaseUnknown_var&) = default;
    ORXListValORXBaseUnknown_var(ORXListValORXBaseUnknown_var&&) noexcept = default;
    ORXListValORXBaseUnknown_var& operator=(const ORXListValORXBaseUnknown_var&) = default;
    ORXListValORXBaseUnknown_var& operator=(ORXListValORXBaseUnknown_var&&) noexcept = default;
    virtual ~ORXListValORXBaseUnknown_var() = default;

    int Size() const noexcept { return static_cast<int>(m_entries.size()); }

    ORXBaseUnknown_var& operator[](int iPosition) { return m_entries[Offset(iPosition)]; }
    const ORXBaseUnknown_var& operator[](int iPosition) const { return m_entries[Offset(iPosition)]; }

    void Append(const ORXBaseUnknown_var& iEntry) { m_entries.push_back(iEntry); }
    void Append(ORXBaseUnknown_var&& ioEntry) { m_entries.push_back(std::move(ioEntry)); }

    /// Takes memory for so many entries, for who is going to append them.
    void Reserve(int iEntries) { m_entries.reserve(static_cast<std::size_t>(iEntries)); }

    /// Takes the entry out; those behind it move down by one.
    void RemovePosition(int iPosition) { m_entries.erase(m_entries.begin() + (iPosition - 1)); }

    /// Afterwards the entry stands at the position; what stood there and behind moves up by one. The position may be
    /// one behind the last.
    void InsertAt(int iPosition, const ORXBaseUnknown_var& iEntry)
    {
        m_entries.insert(m_entries.begin() + (iPosition - 1), iEntry);
    }

private:
    static std::size_t Offset(int iPosition) noexcept { return static_cast<std::size_t>(iPosition) - 1; }

    std::vector<ORXBaseUnknown_var> m_entries;
};

#endif
