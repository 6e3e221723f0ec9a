#ifndef ORXRawColldouble_H
#define ORXRawColldouble_H

/**
 * @file
 * Collection of reals, 1-based. A value class.
 */

#include <vector>

/// The first entry is at 1, the last at `Size()`. A position out of range is the caller's fault.
class ORXRawColldouble
{
public:
    /// Starts with `iSize` entries of 0.0.
    explicit ORXRawColldouble(int iSize) : m_entries(static_cast<std::size_t>(iSize)) {}
    ORXRawColldouble(const ORXRawColldouble&) = default;
    ORXRawColldouble(ORXRawColldouble&&) noexcept = default;
    ORXRawColldouble& operator=(const ORXRawColldouble&) = default;
    ORXRawColldouble& operator=(ORXRawColldouble&&) noexcept = default;
    virtual ~ORXRawColldouble() = default;

    int Size() const noexcept { return static_cast<int>(m_entries.size()); }

    double& operator[](int iPosition) { return m_entries[static_cast<std::size_t>(iPosition) - 1]; }
    double operator[](int iPosition) const { return m_entries[static_cast<std::size_t>(iPosition) - 1]; }

    void Append(double iEntry) { m_entries.push_back(iEntry); }

private:
    std::vector<double> m_entries;
};

#endif
