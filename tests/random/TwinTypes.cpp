/**
 * @file
 * The types of the twin: what stands in the catalog of RandomTypes.cpp, once more.
 */

#include "TwinHost.h"

namespace Twin
{
Host::Host()
{
    DeclareBuiltIn();
    DeclareTypes();
}

Object& Host::Declare(const std::string& iName, const std::string& iBase)
{
    Declared& declared = m_types[iName];
    declared.base = iBase;
    declared.startup = std::make_unique<Object>();
    Object& type = *declared.startup;
    if (!iBase.empty())
    {
        type.attributes = m_types.at(iBase).startup->attributes;
        for (auto& [name, attribute] : type.attributes)
            if (attribute.object != nullptr)
                attribute.object = Copy(*attribute.object, &type, name, false);
    }
    type.type = iName;
    return type;
}

Attribute& Host::Scalar(Object& ioType, const std::string& iName, Kind iKind)
{
    Attribute& attribute = ioType.attributes[iName];
    attribute.name = iName;
    attribute.kind = iKind;
    attribute.value.kind = iKind;
    return attribute;
}

Attribute& Host::ListOf(Object& ioType, const std::string& iName, Kind iEntry)
{
    Attribute& attribute = ioType.attributes[iName];
    attribute.name = iName;
    attribute.kind = Kind::List;
    attribute.entry = iEntry;
    return attribute;
}

void Host::Part(Object& ioType, const std::string& iName, const std::string& iPartType)
{
    Attribute& attribute = Scalar(ioType, iName, Kind::Component);
    attribute.object = Copy(*m_types.at(iPartType).startup, &ioType, iName, false);
}

void Host::Offer(Object& ioType, const Texts& iChoices, const Texts& iStartups, const std::string& iValue,
                 const std::string& iDisplay)
{
    for (const auto& [list, texts] : {std::pair("choices", &iChoices), std::pair("Startups", &iStartups)})
    {
        Attribute& attribute = *Find(&ioType, list);
        attribute.values.clear();
        for (const std::string& text : *texts)
            attribute.values.push_back(Of(text));
    }
    Find(&ioType, "value")->value = Of(iValue);
    if (!iDisplay.empty())
        Find(&ioType, "display")->value = Of(iDisplay);
}

void Host::DeclareBuiltIn()
{
    ListOf(Declare("VYRCfdDefaultManagement", ""), "configuration", Kind::Reference);

    Object& choice = Declare("VYRCfdChoice", "");
    for (const char* name : {"value", "dataName", "display"})
        Scalar(choice, name, Kind::String);
    for (const char* name : {"choices", "Startups"})
        ListOf(choice, name, Kind::String);
    Scalar(choice, "Data", Kind::Component);
    Part(choice, "defaultManagement", "VYRCfdDefaultManagement");

    Part(Declare("VYRCfdValues", ""), "defaultManagement", "VYRCfdDefaultManagement");

    Object& item = Declare("VYRCfdConfigItem", "");
    for (const char* name : {"type", "path", "default", "defaultAutoKey", "condition", "config"})
        Scalar(item, name, Kind::String);
}

void Host::DeclareTypes()
{
    const auto real = [](Object& ioType, const char* iName, double iValue, const char* iUnit = "") {
        Attribute& attribute = Scalar(ioType, iName, Kind::Real);
        attribute.value = Of(iValue);
        attribute.unit = attribute.value.unit = iUnit;
    };
    const auto integer = [](Object& ioType, const char* iName, int iValue) {
        Scalar(ioType, iName, Kind::Integer).value = Of(iValue);
    };
    const auto text = [](Object& ioType, const char* iName, const char* iValue) {
        Scalar(ioType, iName, Kind::String).value = Of(std::string(iValue));
    };

    Object& material = Declare("RandomMaterial", "");
    real(material, "density", 1.2);
    text(material, "label", "air");
    real(Declare("RandomBare", ""), "size", 0.5);

    Object& alpha = Declare("RandomAlpha", "VYRCfdValues");
    real(alpha, "size", 1.5);
    integer(alpha, "count", 2);
    text(alpha, "label", "a");
    Object& beta = Declare("RandomBeta", "VYRCfdValues");
    real(beta, "size", 2.5);
    integer(beta, "count", 3);
    text(beta, "label", "b");
    Part(beta, "inner", "VYRCfdChoice");
    Offer(*Find(&beta, "inner")->object, {"x", "y"}, {"RandomAlpha", ""}, "x", "");
    integer(Declare("RandomGamma", "VYRCfdValues"), "count", 4);

    Declare("RandomManaged", "VYRCfdChoice");
    Offer(Declare("RandomChoice", "RandomManaged"), {"alpha", "beta", "gamma", "delta"},
          {"RandomAlpha", "RandomBeta", "RandomGamma", ""}, "alpha", "Model");
    Offer(Declare("RandomSimple", "RandomManaged"), {"one", "two", "three"}, {}, "two", "");

    Declare("ChoiceTestHooked", "VYRCfdChoice");
    Offer(Declare("RandomHooked", "ChoiceTestHooked"), {"alpha", "beta", "gamma"},
          {"RandomAlpha", "RandomBeta", "NoType"}, "beta", "");

    Object& zone = Declare("RandomZone", "VYRCfdValues");
    real(zone, "temperature", 300.0, "K");
    integer(zone, "layers", 3);
    ListOf(zone, "outputs", Kind::String);
    Part(zone, "mode", "RandomSimple");

    Object& solver = Declare("RandomSolver", "VYRCfdValues");
    integer(solver, "iterations", 500);
    real(solver, "relaxation", 0.7);
    real(solver, "length", 1.5, "m");
    Attribute& scheme = Scalar(solver, "scheme", Kind::Enumeration);
    scheme.texts = {"upwind", "central", "blended"};
    scheme.value = Of(std::string("upwind"));
    scheme.value.kind = Kind::Enumeration;
    scheme.value.integer = 1;
    Scalar(solver, "steady", Kind::Boolean).value = Of(true);
    text(solver, "title", "flow");
    Scalar(solver, "seed", Kind::Integer);
    Scalar(solver, "note", Kind::String);
    ListOf(solver, "monitors", Kind::String).values = {Of(std::string("mass"))};
    ListOf(solver, "ratios", Kind::Real).values = {Of(0.5), Of(1.0)};
    ListOf(solver, "counts", Kind::Integer).values = {Of(1), Of(2), Of(3)};
    ListOf(solver, "switches", Kind::Boolean).values = {Of(true), Of(false)};
    Attribute& schemes = ListOf(solver, "schemes", Kind::Enumeration);
    schemes.texts = {"fine", "coarse"};
    for (const int number : {2, 1, 1})
    {
        schemes.values.push_back(Of(schemes.texts[static_cast<std::size_t>(number - 1)]));
        schemes.values.back().kind = Kind::Enumeration;
        schemes.values.back().integer = number;
    }
    Part(solver, "zone", "RandomZone");
    Find(Find(&solver, "zone")->object, "temperature")->value.real = 320.0;
    ListOf(solver, "zones", Kind::Component);
    ListOf(solver, "links", Kind::Reference);
    Scalar(solver, "material", Kind::Reference);
    Scalar(solver, "part", Kind::Component);
    Part(solver, "turbulence", "RandomChoice");
    Offer(*Find(&solver, "turbulence")->object, {"laminar", "kOmega", "sst"},
          {"RandomGamma", "RandomAlpha", "RandomBeta"}, "kOmega", "Turbulence");
    Part(solver, "kind", "VYRCfdChoice");
    Offer(*Find(&solver, "kind")->object, {"one", "two"}, {}, "one", "");

    Object& derived = Declare("RandomDerived", "RandomSolver");
    integer(derived, "iterations", 50);
    Find(&derived, "monitors")->values.clear();
    Find(Find(&derived, "turbulence")->object, "value")->value = Of(std::string("sst"));
    real(derived, "extra", 0.25);
}
} // namespace Twin
