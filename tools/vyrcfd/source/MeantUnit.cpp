#include "MeantUnit.h"

#include <algorithm>
#include <vector>

#include "Wording.h"

namespace Tool
{
namespace
{
/// What engineers write; the host reads many more.
const std::vector<std::string>& UsualUnits()
{
    static const std::vector<std::string> units{
        "m",       "mm",     "cm",      "km",      "um",     "nm",      "in",     "ft",      "s",      "ms",
        "us",      "min",    "h",       "d",       "kg",     "g",       "mg",     "t",       "lb",     "Pa",
        "hPa",     "kPa",    "MPa",     "GPa",     "bar",    "mbar",    "atm",    "psi",     "torr",   "K",
        "degC",    "degF",   "N",       "kN",      "MN",     "J",       "kJ",     "MJ",      "cal",    "kcal",
        "eV",      "W",      "kW",      "MW",      "V",      "kV",      "A",      "mA",      "ohm",    "F",
        "Hz",      "kHz",    "mol",     "kmol",    "rad",    "rpm",     "L",      "l",       "ml",     "St",
        "T",       "%",      "metre",   "meter",   "second", "minute",  "hour",   "day",     "gram",   "kilogram",
        "pascal",  "kelvin", "celsius", "newton",  "joule",  "watt",    "volt",   "ampere",  "degree", "radian",
        "litre",   "liter",  "inch",    "foot",    "feet",   "percent", "poise",  "metres",  "meters", "seconds",
        "minutes", "hours",  "days",    "degrees", "grams",  "watts",   "joules", "newtons", "inches", "kilograms"};
    return units;
}

/// Whether the byte belongs to the name of a unit; all others part such names.
bool IsOfName(char iByte)
{
    constexpr std::string_view between = " \t./*^()+-0123456789";
    return between.find(iByte) == std::string_view::npos;
}
/// The number with a point in place of its only comma; empty for one without, or where the comma stands otherwise.
std::string WithPoint(std::string_view iNumber)
{
    constexpr std::string_view digits = "0123456789";
    const std::size_t comma = iNumber.find(',');
    if (comma == std::string_view::npos || comma == 0 || iNumber.find(',', comma + 1) != std::string_view::npos ||
        iNumber.find_first_not_of("+-0123456789") != comma || iNumber.find_first_of(digits, comma + 1) != comma + 1)
        return {};
    std::string number(iNumber);
    number[comma] = '.';
    return number;
}

/// What a number may be whose only comma may as well part thousands: three digits stand behind it, and some other than
/// zero in front. Empty for any other.
std::string ReadingsOf(std::string_view iNumber)
{
    const std::string withPoint = WithPoint(iNumber);
    const std::size_t comma = iNumber.find(',');
    if (withPoint.empty() || iNumber.find_first_of("123456789") > comma)
        return {};
    const std::size_t end = std::min(iNumber.find_first_not_of("0123456789", comma + 1), iNumber.size());
    if (end != comma + 4)
        return {};
    std::string whole(iNumber);
    whole.erase(comma, 1);
    return Quoted(withPoint) + " or " + Quoted(whole);
}
} // namespace

std::string MeantUnit::Remark() const
{
    if (!readings.empty())
        return "; it may be meant as " + readings;
    return strange.empty() ? std::string() : "; " + Quoted(strange) + " is like no usual unit";
}

MeantUnit MeantUnitOf(std::string_view iUnit)
{
    MeantUnit meant;
    for (auto at = iUnit.begin(); at != iUnit.end();)
    {
        const auto name = std::find_if(at, iUnit.end(), IsOfName);
        meant.text.append(at, name);
        at = std::find_if_not(name, iUnit.end(), IsOfName);
        if (name == at)
            continue;
        const std::string written(name, at);
        const bool isUsual = std::find(UsualUnits().begin(), UsualUnits().end(), written) != UsualUnits().end();
        const std::string usual = isUsual ? written : Nearest(written, UsualUnits());
        if (usual.empty())
            return {{}, written};
        meant.text += usual;
    }
    return meant.text == iUnit ? MeantUnit{} : meant;
}

MeantUnit MeantQuantityOf(std::string_view iNumberWithUnit)
{
    if (std::string readings = ReadingsOf(iNumberWithUnit); !readings.empty())
        return {{}, {}, std::move(readings)};
    if (std::string withPoint = WithPoint(iNumberWithUnit); !withPoint.empty())
    {
        const MeantUnit meant = MeantQuantityOf(withPoint);
        return meant.text.empty() ? MeantUnit{std::move(withPoint)} : meant;
    }
    const std::size_t end = iNumberWithUnit.find_first_not_of("+-.0123456789eE");
    const std::size_t unit = iNumberWithUnit.find_first_not_of(' ', std::min(end, iNumberWithUnit.size()));
    if (end == 0 || unit == std::string_view::npos)
        return {};
    MeantUnit meant = MeantUnitOf(iNumberWithUnit.substr(unit));
    if (!meant.text.empty())
        meant.text.insert(0, iNumberWithUnit.substr(0, unit));
    return meant;
}
} // namespace Tool
