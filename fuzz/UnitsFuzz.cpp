/**
 * @file
 * Reals with units. The first line of the input is a value, the second one, if there is one, a unit that a catalog
 * declares for an attribute.
 *
 * A text that is taken gives a number, and the value as text gives the very same number again.
 */

#include <cmath>
#include <cstring>

#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "ORXICkeParm.h"
#include "ORXISpecAttrAccess.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"

namespace
{
using VYRStandalone::Model;

constexpr char Catalog[] = R"({"catalog": "Quantities", "types": [{"name": "Quantities", "attributes": [
    {"name": "number", "kind": "real"}, {"name": "one", "kind": "real", "unit": "1"},
    {"name": "length", "kind": "real", "unit": "m"}, {"name": "temperature", "kind": "real", "unit": "K"},
    {"name": "angle", "kind": "real", "unit": "rad"}, {"name": "pressure", "kind": "real", "unit": "Pa"},
    {"name": "rate", "kind": "real", "unit": "kg/s"}, {"name": "heat", "kind": "real", "unit": "kJ/kg"},
    {"name": "time", "kind": "real", "unit": "hour"}, {"name": "volume", "kind": "real", "unit": "litre"}]}]})";

constexpr double Before = 1.25;

void Declare()
{
    static const bool isDeclared = [] {
        VYRStandalone::DeclareCatalog(Catalog, "Quantities");
        UseForeignNumbers();
        return true;
    }();
    static_cast<void>(isDeclared);
}

/// The value that the attribute has after it was given the text.
double Given(const ORXISpecAttrAccess_var& iAccess, const ORXISpecAttrKey_var& iKey, const ORXUnicodeString& iText)
{
    iAccess->SetDouble(iKey, Before);
    ORXCke_GetParm(iAccess, iKey, 1)->ValuateFromString(iText);
    return iAccess->GetDouble(iKey);
}

void GiveToAll(const ORXISpecObject_var& iObject, const std::string& iText)
{
    const ORXISpecAttrAccess_var access = iObject;
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iObject))
    {
        const auto key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(attribute.name.c_str()));
        const double value = Given(access, key, ORXUnicodeString(iText.data(), iText.size()));
        Demand(std::isfinite(value), "a value is finite", attribute.unit + ": " + JsonText(iText));
        const ORXUnicodeString text = ORXCke_GetParm(access, key, 1)->GetValue()->AsString();
        const double again = Given(access, key, text);
        Demand(std::memcmp(&value, &again, sizeof value) == 0, "a value as text reads as the same value",
               attribute.unit + ": " + JsonText(iText) + " is " + std::string(text.View()));
    }
}

/// @return the name of a type with an attribute of the unit, empty when there is no such unit
std::string DeclareUnit(const std::string& iUnit)
{
    static int count = 0;
    const std::string name = "Unit" + std::to_string(++count);
    try
    {
        VYRStandalone::DeclareCatalog(R"({"catalog": ")" + name + R"(", "types": [{"name": ")" + name +
                                          R"(", "attributes": [{"name": "value", "kind": "real", "unit": )" +
                                          JsonText(iUnit) + "}]}]}",
                                      name);
        return name;
    }
    catch (const VYRStandalone::DocumentError&)
    {
        return {};
    }
}
} // namespace

void RunInput(std::string_view iInput)
{
    Declare();
    const TwoTexts texts = SplitInput(iInput);
    Model model;
    GiveToAll(model.Create("Quantities", "Q"), texts.first);
    const std::string type = texts.hasSecond ? DeclareUnit(texts.second) : std::string();
    if (!type.empty())
        GiveToAll(model.Create(type.c_str(), "U"), texts.first);
    FuzzTypes::DemandRoundTrip(model);
}
