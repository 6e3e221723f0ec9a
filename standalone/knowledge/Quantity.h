#ifndef Quantity_H
#define Quantity_H

#include <string>
#include <string_view>

union ut_unit;

namespace VYRStandalone
{
/**
 * What a real measures, in the terms of the units library: a coherent SI unit, in which values are kept, and all units
 * that convert to it. Immortal; one for each SI unit text. The library keeps state of its own, so that every use of it
 * stands under one lock; what has been converted once is remembered.
 */
class Quantity
{
public:
    /**
     * The quantity of a unit, such as that of pressures for "Pa", "kPa" and "atm". Borrowed, valid until the process
     * ends. @param oWhy receives what is wrong, when this gives null
     */
    static const Quantity* OfUnit(const std::string& iUnit, std::string& oWhy);

    /// As it stands behind numbers; empty for a number without dimension. A coherent unit keeps the text that it was
    /// named by, so that "W m-2" does not become "kg.s-3".
    const std::string& SiUnit() const noexcept { return m_siUnit; }

    /// Reads a number with or without a unit; without one it is in SI. False for no number, an unknown unit, and a unit
    /// of another quantity.
    bool Read(std::string_view iText, double& oValue) const;

    /// True when both are measured in the same units.
    bool IsSame(const Quantity& iOther) const noexcept { return m_dimension == iOther.m_dimension; }

private:
    Quantity(const std::string& iSiUnit, const std::string& iDimension, ut_unit* iUnit)
        : m_siUnit(iSiUnit), m_dimension(iDimension), m_unit(iUnit)
    {
    }

    bool Convert(std::string_view iUnit, double iNumber, double& oValue) const;

    std::string m_siUnit;
    /// The unit in base units.
    std::string m_dimension;
    ut_unit* m_unit;
};
} // namespace VYRStandalone

#endif
