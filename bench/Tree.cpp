#include "Tree.h"

#include <charconv>

namespace Bench
{
namespace
{
constexpr std::size_t Target = 11;

std::vector<Entry> Fillers()
{
    using Kind = Entry::Kind;
    return {{"density", Kind::Real, 1.225},
            {"viscosity", Kind::Real, 1.8e-5},
            {"temperature", Kind::Real, 288.15},
            {"iterations", Kind::Integer, 500},
            {"title", Kind::String, 0, "Main stream"},
            {"steady", Kind::Boolean, 1},
            {"pressure", Kind::Real, 101325},
            {"relaxation", Kind::Real, 0.7},
            {"scheme", Kind::String, 0, "upwind"},
            {"layers", Kind::Integer, 12},
            {"growth", Kind::Real, 1.2},
            {"velocity", Kind::Real, 68},
            {"angleOfAttack", Kind::Real, 2.5},
            {"compressible", Kind::Boolean, 0},
            {"molarMass", Kind::Real, 0.02896},
            {"report", Kind::String, 0, "coefficients"},
            {"heatCapacity", Kind::Real, 1004.7},
            {"conductivity", Kind::Real, 0.0257},
            {"outputInterval", Kind::Integer, 250}};
}

std::string NumberText(double iNumber)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof(text), iNumber).ptr;
    std::string made(text, end);
    return made.find_first_of(".e") == std::string::npos ? made + ".0" : made;
}
} // namespace

Level Nested(const std::vector<std::string>& iNames, double iValue)
{
    Level made{Fillers()};
    Entry target{iNames.front(), Entry::Kind::Real, iValue};
    if (iNames.size() > 1)
    {
        target.kind = Entry::Kind::Level;
        target.level = std::make_shared<const Level>(Nested({iNames.begin() + 1, iNames.end()}, iValue));
    }
    made.entries.insert(made.entries.begin() + Target, target);
    return made;
}

Level PathTree()
{
    return Nested({"boundary", "inflow", "turbulence", "intensity"}, PathValue);
}

Level ValuesLevel()
{
    return Nested({"intensity"}, PathValue);
}

Level ConditionTree()
{
    return Nested({"a", "b"}, 1.5);
}

std::string JsonOf(const Level& iLevel)
{
    std::string made = "{";
    for (const Entry& entry : iLevel.entries)
    {
        made += made.size() > 1 ? ", \"" : "\"";
        made += entry.name + "\": ";
        switch (entry.kind)
        {
        case Entry::Kind::Real:
            made += NumberText(entry.number);
            break;
        case Entry::Kind::Integer:
            made += std::to_string(static_cast<int>(entry.number));
            break;
        case Entry::Kind::Boolean:
            made += entry.number != 0 ? "true" : "false";
            break;
        case Entry::Kind::String:
            made += '"' + entry.text + '"';
            break;
        case Entry::Kind::Level:
            made += JsonOf(*entry.level);
            break;
        }
    }
    return made + "}";
}
} // namespace Bench
