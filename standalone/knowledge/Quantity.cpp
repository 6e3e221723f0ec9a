#include "Quantity.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>

#include <udunits2.h>

#include "KnowledgeType.h"

namespace VYRStandalone
{
namespace
{
struct FreeUnit
{
    void operator()(ut_unit* iUnit) const { ut_free(iUnit); }
};
using UnitPtr = std::unique_ptr<ut_unit, FreeUnit>;

/// How a number in a unit becomes one in SI: the origin is added, then it is multiplied and divided.
struct Conversion
{
    double origin = 0.0;
    double multiplier = 1.0;
    double divisor = 1.0;
};

/// A number that is short in decimal, up to the rounding that it has gone through; 0 for any other.
double Short(double iNumber)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.13g", iNumber);
    const double rounded = std::strtod(text, nullptr);
    std::snprintf(text, sizeof text, "%.11g", iNumber);
    return rounded == std::strtod(text, nullptr) ? rounded : 0.0;
}

/// The factor that the units library keeps is rounded. What an engineer types should be what is read, so that the short
/// one of the factor and its inverse is used: 5 um are 5 / 1e6 m, and not 5 * 1e-6 m, which is 4.9999999999999996e-06.
Conversion ConversionBy(double iFactor, double iOrigin)
{
    Conversion conversion;
    conversion.origin = iOrigin;
    const double factor = Short(iFactor);
    const double inverse = Short(1.0 / iFactor);
    if (inverse != 0.0 && (factor == 0.0 || std::fabs(iFactor) < 1.0))
        conversion.divisor = inverse;
    else
        conversion.multiplier = factor != 0.0 ? factor : iFactor;
    return conversion;
}

constexpr std::size_t MostRemembered = 4096;

/// The units library and what this file keeps beside it. Everything in it belongs to who holds the lock.
struct UnitTable
{
    std::mutex mutex;
    ut_system* system = nullptr;
    bool isRead = false;
    std::map<std::string, const Quantity*> quantities;
    /// By SI unit, a line break and the unit. Nothing for a text that is no unit of the quantity: that is remembered
    /// too, since the library loses some memory at each of them.
    std::unordered_map<std::string, std::optional<Conversion>> conversions;

    /// Null when the library's own files are missing.
    ut_system* System()
    {
        if (!isRead)
        {
            ut_set_error_message_handler(ut_ignore);
            system = ut_read_xml(nullptr);
            isRead = true;
        }
        return system;
    }
};

UnitTable& Table()
{
    static UnitTable* const table = new UnitTable;
    return *table;
}

/// What a unit is made of: its coherent part, and how it converts to that.
struct Parts
{
    UnitPtr coherent;
    Conversion conversion;
};

ut_status TakeWhole(const ut_unit* iUnit, void* oParts)
{
    static_cast<Parts*>(oParts)->coherent.reset(ut_clone(iUnit));
    return UT_SUCCESS;
}

ut_status TakeBasic(const ut_unit* iUnit, void* oParts)
{
    return TakeWhole(iUnit, oParts);
}

ut_status TakeProduct(const ut_unit* iUnit, int, const ut_unit* const*, const int*, void* oParts)
{
    return TakeWhole(iUnit, oParts);
}

ut_status TakeScaled(const ut_unit*, double iScale, const ut_unit* iUnderlying, double iOrigin, void* oParts)
{
    Parts& parts = *static_cast<Parts*>(oParts);
    parts.coherent.reset(ut_clone(iUnderlying));
    parts.conversion = ConversionBy(iScale, iOrigin);
    return UT_SUCCESS;
}

ut_status RefuseTime(const ut_unit*, const ut_unit*, double, void*)
{
    return UT_SUCCESS;
}

ut_status RefuseLogarithm(const ut_unit*, double, const ut_unit*, void*)
{
    return UT_SUCCESS;
}

/// Without a coherent part for what is no unit of a scale: points in time, levels.
Parts Analyse(ut_system* iSystem, const std::string& iUnit)
{
    static const ut_visitor visitor = {TakeBasic, TakeProduct, TakeScaled, RefuseTime, RefuseLogarithm};
    Parts parts;
    const UnitPtr unit(ut_parse(iSystem, iUnit.c_str(), UT_UTF8));
    if (unit != nullptr)
        ut_accept_visitor(unit.get(), &visitor, &parts);
    return parts;
}

std::string Formatted(const ut_unit* iUnit, unsigned iOptions)
{
    char text[256];
    const int length = ut_format(iUnit, text, sizeof text, iOptions);
    return length > 0 && static_cast<std::size_t>(length) < sizeof text
               ? std::string(text, static_cast<std::size_t>(length))
               : std::string();
}

/// A unit's text does not begin as a number does, or "5 2 m" would be ten metres. Nor does it stand between blanks, as
/// the library would allow: what is read behind a number has none, and would be another unit.
bool LooksLikeUnit(std::string_view iText)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    if (iText.find_first_of(blanks) == 0 || (!iText.empty() && iText.find_last_of(blanks) == iText.size() - 1))
        return false;
    return iText.find_first_of("0123456789.+-") != 0 || iText.substr(0, 2) == "1/" || iText == "1";
}
} // namespace

const Quantity* Quantity::OfUnit(const std::string& iUnit, std::string& oWhy)
{
    UnitTable& table = Table();
    const std::lock_guard<std::mutex> lock(table.mutex);
    if (table.System() == nullptr)
    {
        oWhy = "units cannot be read: the files of the units library are missing";
        return nullptr;
    }
    Parts parts;
    if (!iUnit.empty() && LooksLikeUnit(iUnit))
        parts = Analyse(table.System(), iUnit);
    if (parts.coherent == nullptr)
    {
        oWhy = "unknown unit \"" + iUnit + '"';
        return nullptr;
    }
    const Conversion& conversion = parts.conversion;
    const bool isCoherent = conversion.multiplier == 1.0 && conversion.divisor == 1.0 && conversion.origin == 0.0;
    const bool isNumber = ut_is_dimensionless(parts.coherent.get()) != 0 &&
                          Formatted(parts.coherent.get(), UT_ASCII | UT_DEFINITION) == "1";
    // A named unit for a named one, as "Pa" for "kPa"; but "kJ/kg" has nothing to do with the name for its dimension.
    const bool isCompound = iUnit.find_first_of(" ./*^-0123456789") != std::string::npos;
    std::string siUnit = iUnit;
    if (!isCoherent)
        siUnit = Formatted(parts.coherent.get(), isCompound ? UT_ASCII | UT_DEFINITION : UT_ASCII);
    if (isNumber)
        siUnit.clear();
    const Quantity*& quantity = table.quantities[siUnit];
    if (quantity == nullptr)
    {
        const std::string dimension = Formatted(parts.coherent.get(), UT_ASCII | UT_DEFINITION);
        quantity = new Quantity(siUnit, dimension, parts.coherent.release());
    }
    return quantity;
}

bool Quantity::Read(std::string_view iText, double& oValue) const
{
    std::string_view unit;
    double number = 0.0;
    if (!ReadLeadingReal(iText, number, unit))
        return false;
    if (!unit.empty())
        return Convert(unit, number, oValue);
    oValue = number;
    return true;
}

bool Quantity::Convert(std::string_view iUnit, double iNumber, double& oValue) const
{
    if (!LooksLikeUnit(iUnit))
        return false;
    const std::string name(iUnit);
    const std::string entry = m_siUnit + '\n' + name;
    UnitTable& table = Table();
    const std::lock_guard<std::mutex> lock(table.mutex);
    auto known = table.conversions.find(entry);
    if (known == table.conversions.end())
    {
        const Parts parts = Analyse(table.System(), name);
        std::optional<Conversion> found;
        if (parts.coherent != nullptr && ut_compare(parts.coherent.get(), m_unit) == 0)
            found = parts.conversion;
        if (table.conversions.size() >= MostRemembered)
            table.conversions.clear();
        known = table.conversions.emplace(entry, found).first;
    }
    if (!known->second.has_value())
        return false;
    const Conversion& conversion = *known->second;
    // Adding nothing would take the sign of a negative zero away.
    const double shifted = conversion.origin != 0.0 ? iNumber + conversion.origin : iNumber;
    const double value = shifted * conversion.multiplier / conversion.divisor;
    if (!std::isfinite(value))
        return false;
    oValue = value;
    return true;
}
} // namespace VYRStandalone
