#ifndef ORXListValORXUnicodeString_H
#define ORXListValORXUnicodeString_H

/**
 * @file
 * List of strings, 1-based. A value class.
 */

#include <vector>

#include "ORXUnicodeString.h"

/// The first entry is at 1, the last at `Size()`. A position out of range is the caller's fault.
class ORXListValORXUnicodeString
{
public:
    int Size() const noexcept { return static_cast<int>(m_entries.size()); }

    ORXUnicodeString& operator[](int iPosition) { return m_entries[Offset(iPosition)]; }
    const ORXUnicodeString& operator[](int iPosition) const { return m_entries[Offset(iPosition)]; }

    void Append(const ORXUnicodeString& iEntry) { m_entries.push_back(iEntry); }

    /// Takes the entry out; those behind it move down by one.
    void RemovePosition(int iPosition) { m_entries.erase(m_entries.begin() + (iPosition - 1)); }

private:
    static std::size_t Offset(int iPosition) noexcept { return static_cast<std::size_t>(iPosition) - 1; }

    std::vector<ORXUnicodeString> m_entries;
};

#endif
