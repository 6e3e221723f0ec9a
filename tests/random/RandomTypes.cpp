#include "RandomTypes.h"

#include "Configurations.h"
#include "ORXFillDictionary.h"
#include "ORXTie.h"
#include "TemporaryFolder.h"
#include "TestChoice.h"
#include "VYRCfdChoiceMgrAdp.h"
#include "VYRCfdExtension.h"
#include "VYRCfdObjectAccess.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneServices.h"

namespace
{
constexpr const char* Types = R"({ "catalog": "Random", "uses": ["VYRCfdBase"], "types": [
    { "name": "RandomMaterial", "attributes": [
        { "name": "density", "kind": "real", "default": 1.2 },
        { "name": "label", "kind": "string", "default": "air" } ] },
    { "name": "RandomBare", "attributes": [ { "name": "size", "kind": "real", "default": 0.5 } ] },
    { "name": "RandomAlpha", "base": "VYRCfdValues", "attributes": [
        { "name": "size", "kind": "real", "default": 1.5 },
        { "name": "count", "kind": "integer", "default": 2 },
        { "name": "label", "kind": "string", "default": "a" } ] },
    { "name": "RandomBeta", "base": "VYRCfdValues", "attributes": [
        { "name": "size", "kind": "real", "default": 2.5 },
        { "name": "count", "kind": "integer", "default": 3 },
        { "name": "label", "kind": "string", "default": "b" },
        { "name": "inner", "kind": "component", "type": "VYRCfdChoice" } ],
      "startup": { "inner": { "choices": ["x", "y"], "Startups": ["RandomAlpha", ""], "value": "x" } } },
    { "name": "RandomGamma", "base": "VYRCfdValues", "attributes": [
        { "name": "count", "kind": "integer", "default": 4 } ] },
    { "name": "RandomManaged", "base": "VYRCfdChoice", "manager": true },
    { "name": "RandomChoice", "base": "RandomManaged", "startup": {
        "choices": ["alpha", "beta", "gamma", "delta"],
        "Startups": ["RandomAlpha", "RandomBeta", "RandomGamma", ""], "value": "alpha", "display": "Model" } },
    { "name": "RandomSimple", "base": "RandomManaged", "startup": {
        "choices": ["one", "two", "three"], "value": "two" } },
    { "name": "ChoiceTestHooked", "base": "VYRCfdChoice" },
    { "name": "RandomHooked", "base": "ChoiceTestHooked", "startup": {
        "choices": ["alpha", "beta", "gamma"], "Startups": ["RandomAlpha", "RandomBeta", "NoType"],
        "value": "beta" } },
    { "name": "RandomZone", "base": "VYRCfdValues", "attributes": [
        { "name": "temperature", "kind": "real", "unit": "K", "default": 300.0 },
        { "name": "layers", "kind": "integer", "default": 3 },
        { "name": "outputs", "kind": "list", "of": "string" },
        { "name": "mode", "kind": "component", "type": "RandomSimple" } ] },
    { "name": "RandomSolver", "base": "VYRCfdValues", "attributes": [
        { "name": "iterations", "kind": "integer", "default": 500 },
        { "name": "relaxation", "kind": "real", "default": 0.7 },
        { "name": "length", "kind": "real", "unit": "m", "default": 1.5 },
        { "name": "scheme", "kind": "enumeration", "values": ["upwind", "central", "blended"], "default": "upwind" },
        { "name": "steady", "kind": "boolean", "default": true },
        { "name": "title", "kind": "string", "default": "flow" },
        { "name": "seed", "kind": "integer" },
        { "name": "note", "kind": "string" },
        { "name": "monitors", "kind": "list", "of": "string", "default": ["mass"] },
        { "name": "ratios", "kind": "list", "of": "real", "default": [0.5, 1.0] },
        { "name": "counts", "kind": "list", "of": "integer", "default": [1, 2, 3] },
        { "name": "switches", "kind": "list", "of": "boolean", "default": [true, false] },
        { "name": "schemes", "kind": "list", "of": "enumeration", "values": ["fine", "coarse"],
          "default": ["coarse", "fine", "fine"] },
        { "name": "zone", "kind": "component", "type": "RandomZone" },
        { "name": "zones", "kind": "list", "of": "component" },
        { "name": "links", "kind": "list", "of": "reference" },
        { "name": "material", "kind": "reference" },
        { "name": "part", "kind": "component" },
        { "name": "turbulence", "kind": "component", "type": "RandomChoice" },
        { "name": "kind", "kind": "component", "type": "VYRCfdChoice" } ],
      "startup": {
        "zone": { "temperature": 320.0 },
        "turbulence": { "choices": ["laminar", "kOmega", "sst"],
                        "Startups": ["RandomGamma", "RandomAlpha", "RandomBeta"],
                        "value": "kOmega", "display": "Turbulence" },
        "kind": { "choices": ["one", "two"], "value": "one" } } },
    { "name": "RandomDerived", "base": "RandomSolver", "attributes": [
        { "name": "extra", "kind": "real", "default": 0.25 } ],
      "startup": { "iterations": 50, "monitors": [], "turbulence": { "value": "sst" } } } ] })";

class RandomManager final : public VYRCfdExtension<RandomManager, VYRCfdChoiceMgrAdp>
{
public:
    static constexpr const char* ClassName = "RandomManager";
    static constexpr const char* LateType = "RandomManaged";
    static constexpr const char* Framework = "Test";
    static ORXMetaClass* BaseMeta() { return VYRICfdChoiceMgr::MetaObject(); }

    static void Register()
    {
        ORXFillDictionary::Register(MetaObject(), VYRICfdChoiceMgr::MetaObject(), &Create, nullptr, 1);
    }

private:
    static ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
    {
        return ToCreateBOA(iExtended, iExtension, MetaObject(), VYRICfdChoiceMgr::ClassId(), &Construct);
    }
};

/// A hooked Choice that shows the text "keep" keeps a value that is none of its choices.
bool KeepsNothing(TestChoice& ioSelf)
{
    ORXUnicodeString display;
    VYRCfdObjectAccess(ORXBaseUnknown_var::Share(ioSelf.GetImpl(0)))["display"].GetString(display);
    return !(display == "keep");
}

std::string Json(const RandomItem& iItem)
{
    std::string text;
    for (const auto& [key, value] : iItem.keys)
        text += (text.empty() ? "\"" : ", \"") + key + "\": \"" + value + "\"";
    return "{ " + text + (iItem.isList ? ", \"list\": true" : "") + " }";
}

std::string Json(const RandomConfiguration& iConfiguration)
{
    std::string items;
    for (const RandomItem& item : iConfiguration.items)
        items += (items.empty() ? "" : ",\n    ") + Json(item);
    return R"({ "name": ")" + iConfiguration.name + R"(", "config": [)" + items + "] }";
}

/// Lives as long as the process, as what was loaded from it does.
const TemporaryFolder& Installation()
{
    static const TemporaryFolder folder;
    static const bool isWritten = [] {
        std::string text;
        for (const RandomConfiguration& configuration : RandomConfigurations())
            text += (text.empty() ? "" : ",\n") + Json(configuration);
        WriteInstallation(folder, text);
        return true;
    }();
    static_cast<void>(isWritten);
    return folder;
}
} // namespace

bool RandomItem::Has(const std::string& iKey) const
{
    for (const auto& [key, value] : keys)
        if (key == iKey)
            return true;
    return false;
}

std::string RandomItem::Text(const std::string& iKey) const
{
    for (const auto& [key, value] : keys)
        if (key == iKey)
            return value;
    return "";
}

const std::vector<RandomConfiguration>& RandomConfigurations()
{
    static const std::vector<RandomConfiguration> configurations = {
        {"none", {}},
        {"lists",
         {{{{"path", "monitors"}, {"value", "lift, dr ag,"}}, true},
          {{{"path", "title"}, {"value", "skipped"}, {"default", "skipped"}}}}},
        {"listOfOutputs", {{{{"path", "outputs"}, {"value", "p"}}, true}}},
        {"wrongList",
         {{{{"path", "iterations"}, {"type", "integer"}, {"default", "7"}}},
          {{{"path", "title"}, {"value", "a,b"}}, true},
          {{{"path", "relaxation"}, {"type", "real"}, {"default", "0.1"}}}}},
        {"missingList", {{{{"path", "nothing"}, {"value", "a"}}, true}}},
        {"defaults",
         {{{{"path", "iterations"}, {"type", "integer"}, {"default", "40"}}},
          {{{"path", "relaxation"}, {"type", "real"}, {"default", "0.25"}}},
          {{{"path", "length"}, {"type", "real"}, {"default", "5 mm"}}},
          {{{"path", "scheme"}, {"type", "string"}, {"default", "central"}}},
          {{{"path", "steady"}, {"type", "boolean"}, {"default", "false"}}},
          {{{"path", "title"}, {"type", "string"}, {"default", "made"}}},
          {{{"path", "seed"}, {"type", "integer"}, {"default", "abc"}}}}},
        {"twice", {{{{"path", "iterations"}, {"default", "41"}}}, {{{"path", "iterations"}, {"default", "42"}}}}},
        {"autos",
         {{{{"path", "iterations"}, {"type", "integer"}, {"default", "60"}, {"defaultAutoKey", "auto"}}},
          {{{"path", "relaxation"}, {"type", "real"}, {"default", "12abc"}, {"defaultAutoKey", "auto"}}},
          {{{"path", "note"}, {"type", "string"}, {"default", "by default"}, {"defaultAutoKey", "auto"}}},
          {{{"path", "title"}, {"defaultAutoKey", "alone"}}}}},
        {"autoCount", {{{{"path", "count"}, {"default", "9"}, {"defaultAutoKey", "auto"}}}}},
        {"unknown", {{{{"path", "nothing"}, {"default", "1"}}}}},
        {"unnamed", {{{{"default", "1"}}}}},
        {"count", {{{{"path", "count"}, {"type", "integer"}, {"default", "40"}}}}},
        {"countAndLabel", {{{{"path", "count"}, {"default", "50"}}}, {{{"path", "label"}, {"default", "made"}}}}},
        {"label", {{{{"path", "label"}, {"type", "string"}, {"default", "labelled"}}}}},
        {"zone",
         {{{{"path", "temperature"}, {"type", "real"}, {"default", "350"}}},
          {{{"path", "layers"}, {"type", "integer"}, {"default", "5"}}}}},
        {"data",
         {{{{"path", "Data"}, {"condition", "value==alpha"}, {"config", "count"}}},
          {{{"path", "Data"}, {"condition", "value==beta"}, {"config", "countAndLabel"}}},
          {{{"path", "data"}, {"condition", "value==gamma"}, {"config", "count"}}},
          {{{"path", "Data"}, {"condition", "Data/count>3"}, {"config", "label"}}}}},
        {"turbulenceData",
         {{{{"path", "Data"}, {"condition", "value!=laminar"}, {"config", "countAndLabel"}}},
          {{{"path", "Data"}, {"condition", "value=laminar"}, {"config", "autoCount"}}},
          {{{"path", "Data"}, {"condition", "noOperator"}, {"config", "count"}}}}},
        {"nested",
         {{{{"path", "zone"}, {"config", "zone"}}},
          {{{"path", "turbulence"}, {"config", "turbulenceData"}}},
          {{{"path", "nothing"}, {"config", "count"}}},
          {{{"path", "part"}, {"config", "none"}}},
          {{{"path", ""}, {"config", "twice"}}},
          {{{"path", "zone"}, {"config", "unheardOf"}}},
          {{{"path", "zone/temperature"}, {"config", "listOfOutputs"}}},
          {{{"path", "turbulence/kOmega"}, {"config", "count"}}},
          {{{"path", "kind"}, {"config", "offerTwo"}}}}},
        {"conditional",
         {{{{"path", "zone"}, {"condition", "iterations==500"}, {"config", "zone"}}},
          {{{"path", "zone/mode"}, {"condition", "scheme=2"}, {"config", "offerTwo"}}},
          {{{"path", ""}, {"condition", "relaxation<0.5"}, {"config", "lists"}}},
          {{{"path", "turbulence"}, {"condition", "steady==false"}, {"config", "offer"}}},
          {{{"path", "nothing"}, {"condition", "title!=x"}, {"config", "lists"}}},
          {{{"path", "zone"}, {"condition", "nothing==1"}, {"config", "lists"}}},
          {{{"path", "zone"}, {"condition", "zone==1"}, {"config", "lists"}}}}},
        {"offer",
         {{{{"choices", "alpha, beta, gamma"},
            {"Startups", "RandomAlpha, RandomBeta, RandomGamma"},
            {"default", "beta"},
            {"display", "Offered"}}}}},
        {"offerUneven",
         {{{{"choices", "alpha,beta,gamma"}, {"Startups", "RandomAlpha,RandomBeta"}, {"default", "beta"}}},
          {{{"path", "value"}, {"default", "alpha"}}}}},
        {"offerBad",
         {{{{"choices", "alpha,beta,gamma"}, {"Startups", "NoType,RandomBare,RandomChoice"}, {"default", "alpha"}}}}},
        {"offerManaged", {{{{"choices", "gamma,alpha"}, {"default", "gamma"}, {"display", "Less"}, {"path", "a/b"}}}}},
        {"offerTwo", {{{{"choices", "two,one"}, {"default", "two"}, {"type", "integer"}}}}},
        {"offerWithout", {{{{"choices", "one, two"}}}}},
        {"offerTwice",
         {{{{"choices", "alpha,alpha,beta"},
            {"Startups", "RandomAlpha,RandomBeta,RandomGamma"},
            {"default", "alpha"}}}}},
        {"offerNothing", {{{{"choices", ""}, {"Startups", ""}, {"value", "x"}}, true}}},
        {"offerAndDefault",
         {{{{"choices", "alpha,beta"}, {"Startups", "RandomAlpha,RandomGamma"}, {"default", "delta"}}},
          {{{"path", "value"}, {"default", "beta"}}},
          {{{"path", "display"}, {"default", "By default"}, {"defaultAutoKey", "auto"}}},
          {{{"path", "Data"}, {"condition", "value!=alpha"}, {"config", "autoCount"}}}}},
        {"all",
         {{{{"path", ""}, {"config", "defaults"}}},
          {{{"path", ""}, {"config", "lists"}}},
          {{{"path", ""}, {"config", "conditional"}}},
          {{{"path", "title"}, {"default", "last"}}}}},
    };
    return configurations;
}

void SetUpRandomTypes()
{
    VYRStandalone::DeclareCatalog(Types, "random");
    static const bool isRegistered = [] {
        RandomManager::Register();
        TestChoice::Register();
        TestChoice::Hooks().fix = KeepsNothing;
        return true;
    }();
    static_cast<void>(isRegistered);
    VYRStandalone::SetOfficialVariable("ORXInstallPath", Installation().Path());
}

const std::vector<std::string>& RandomObjects()
{
    static const std::vector<std::string> types = [] {
        std::vector<std::string> list;
        for (const auto& [type, count] : std::vector<std::pair<const char*, int>>{{"RandomSolver", 9},
                                                                                  {"RandomDerived", 4},
                                                                                  {"RandomZone", 6},
                                                                                  {"RandomChoice", 10},
                                                                                  {"RandomSimple", 6},
                                                                                  {"VYRCfdChoice", 6},
                                                                                  {"RandomManaged", 2},
                                                                                  {"RandomHooked", 6},
                                                                                  {"RandomAlpha", 3},
                                                                                  {"RandomBeta", 3},
                                                                                  {"VYRCfdValues", 2},
                                                                                  {"RandomMaterial", 4},
                                                                                  {"RandomBare", 3}})
            list.insert(list.end(), static_cast<std::size_t>(count), type);
        return list;
    }();
    return types;
}
