/**
 * @file
 * The stand-alone host, held to the contract suite.
 */

#include <utility>

#include "HostUnderTest.h"
#include "VYRStandaloneHost.h"

namespace HostUnderTest
{
namespace
{
constexpr const char* catalog = R"({
  "catalog": "Contract",
  "types": [
    { "name": "ContractPlain", "attributes": [
        { "name": "ratio", "kind": "real", "default": 0.5 },
        { "name": "count", "kind": "integer", "default": 3 },
        { "name": "on", "kind": "boolean" },
        { "name": "mode", "kind": "enumeration", "values": ["low", "high"], "default": "low" },
        { "name": "pace", "kind": "enumeration", "values": ["low", "high"] },
        { "name": "title", "kind": "string" },
        { "name": "reals", "kind": "list", "of": "real", "default": [1.5, 2.5] },
        { "name": "counts", "kind": "list", "of": "integer", "default": [4, 5] },
        { "name": "flags", "kind": "list", "of": "boolean", "default": [true, false] },
        { "name": "modes", "kind": "list", "of": "enumeration", "values": ["low", "high"], "default": ["high"] },
        { "name": "names", "kind": "list", "of": "string", "default": ["a", "b"] },
        { "name": "part", "kind": "component", "type": "ContractPart" },
        { "name": "loose", "kind": "component" },
        { "name": "parts", "kind": "list", "of": "component" },
        { "name": "ref", "kind": "reference" },
        { "name": "refs", "kind": "list", "of": "reference" } ] },
    { "name": "ContractPart", "attributes": [
        { "name": "size", "kind": "real", "default": 1.0 },
        { "name": "inner", "kind": "component", "type": "ContractLeaf" } ] },
    { "name": "ContractLeaf", "attributes": [ { "name": "mark", "kind": "integer", "default": 7 } ] },
    { "name": "ContractDerived", "base": "ContractPlain",
      "attributes": [ { "name": "extra", "kind": "string", "default": "x" } ],
      "startup": { "ratio": 0.75, "names": ["c"], "part": { "size": 2.0, "inner": { "mark": 8 } } } },
    { "name": "ContractListening", "base": "ContractPlain" },
    { "name": "ContractDeepListening", "base": "ContractListening" },
    { "name": "ContractOther", "attributes": [ { "name": "ratio", "kind": "real" },
                                               { "name": "part", "kind": "component" } ] },
    { "name": "ContractMeasured", "base": "ContractListening", "attributes": [
        { "name": "length", "kind": "real", "unit": "mm", "default": "5 mm" },
        { "name": "span", "kind": "real", "unit": "km" },
        { "name": "depth", "kind": "real", "unit": "m", "default": 2 },
        { "name": "pressure", "kind": "real", "unit": "kPa", "default": "1 atm" },
        { "name": "temperature", "kind": "real", "unit": "K" },
        { "name": "angle", "kind": "real", "unit": "rad" },
        { "name": "share", "kind": "real", "unit": "percent" },
        { "name": "lengths", "kind": "list", "of": "real", "unit": "m", "default": ["1 mm", 2] } ] },
    { "name": "ContractOptional", "base": "ContractListening", "attributes": [
        { "name": "oreal", "kind": "real", "optional": true, "default": 1.5 },
        { "name": "ointeger", "kind": "integer", "optional": true },
        { "name": "oboolean", "kind": "boolean", "optional": true },
        { "name": "oenumeration", "kind": "enumeration", "values": ["low", "high"], "optional": true },
        { "name": "ostring", "kind": "string", "optional": true },
        { "name": "oref", "kind": "reference", "optional": true },
        { "name": "onames", "kind": "list", "of": "string", "optional": true, "default": ["a"] },
        { "name": "orefs", "kind": "list", "of": "reference", "optional": true } ] } ] })";

template <class Error> bool EndsBy(const std::function<void()>& iCall)
{
    try
    {
        iCall();
    }
    catch (const Error&)
    {
        return true;
    }
    return false;
}

const char* KindOf(const VYRStandalone::Report& iReport)
{
    switch (iReport.kind)
    {
    case VYRStandalone::Report::Kind::Assertion:
        return "assertion";
    case VYRStandalone::Report::Kind::Error:
        return "error";
    case VYRStandalone::Report::Kind::FailedCall:
        return "call";
    }
    return "?";
}
} // namespace

void DeclareTypes()
{
    VYRStandalone::DeclareCatalog(catalog, "Contract");
}

class Model::Content
{
public:
    VYRStandalone::Model model;
};

Model::Model() : m_content(std::make_unique<Content>()) {}

Model::~Model() = default;

ORXIContainer_var Model::Container() const
{
    return m_content->model.Container();
}

void Model::Close()
{
    m_content->model.Close();
}

ORXISpecObject_var MakeColumn()
{
    return VYRStandalone::MakeTableColumn();
}

void GiveAlias(const ORXISpecObject_var& iObject, const ORXUnicodeString& iAlias)
{
    VYRStandalone::SetAlias(iObject, iAlias);
}

void GiveIdentifier(const ORXISpecObject_var& iObject, const ORXUnicodeString& iIdentifier)
{
    VYRStandalone::SetIdentifier(iObject, iIdentifier);
}

int LiveComponents()
{
    return VYRStandalone::LiveComponents();
}

unsigned int ReferencesOn(ORXBaseUnknown* iComponent)
{
    return VYRStandalone::ReferenceCount(iComponent);
}

bool EndsByNullHandle(const std::function<void()>& iCall)
{
    return EndsBy<VYRStandalone::NullHandleError>(iCall);
}

bool EndsByNullPointer(const std::function<void()>& iCall)
{
    return EndsBy<VYRStandalone::NullPointerError>(iCall);
}

class Subscription::Content
{
public:
    Content(const ORXBaseUnknown_var& iObject, Callback iCallback) : subscription(iObject, std::move(iCallback)) {}

    VYRStandalone::Subscription subscription;
};

Subscription::Subscription(const ORXBaseUnknown_var& iObject, Callback iCallback)
    : m_content(std::make_unique<Content>(iObject, std::move(iCallback)))
{
}

Subscription::~Subscription() = default;

std::vector<std::string> TakeReports()
{
    std::vector<std::string> lines;
    for (const VYRStandalone::Report& report : VYRStandalone::TakeReports())
        lines.push_back(std::string(KindOf(report)) + " \"" + report.text + "\" " + report.function + ' ' +
                        report.file + ':' + std::to_string(report.line) + ' ' + std::to_string(report.status));
    return lines;
}

unsigned char ErrorStatus()
{
    return VYRStandalone::ErrorStatus();
}

void SetOfficialVariable(const std::string& iName, const std::string& iValue)
{
    VYRStandalone::SetOfficialVariable(iName, iValue);
}

void UnsetOfficialVariable(const std::string& iName)
{
    VYRStandalone::ResetOfficialVariable(iName);
}

void RedirectTraces(std::function<void(const std::string& iText)> iSink)
{
    VYRStandalone::RedirectTraces(std::move(iSink));
}
} // namespace HostUnderTest
