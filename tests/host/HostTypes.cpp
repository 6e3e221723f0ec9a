#include "HostTypes.h"

#include <memory>

namespace
{
constexpr const char* catalog = R"({
  "catalog": "HostTests", "uses": ["VYRCfdBase"],
  "types": [
    { "name": "HostPlain", "attributes": [
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
        { "name": "part", "kind": "component", "type": "HostPart" },
        { "name": "loose", "kind": "component" },
        { "name": "parts", "kind": "list", "of": "component" },
        { "name": "ref", "kind": "reference" },
        { "name": "refs", "kind": "list", "of": "reference" } ] },
    { "name": "HostPart", "attributes": [
        { "name": "size", "kind": "real", "default": 1.0 },
        { "name": "inner", "kind": "component", "type": "HostLeaf" } ] },
    { "name": "HostLeaf", "attributes": [ { "name": "mark", "kind": "integer", "default": 7 } ] },
    { "name": "HostDerived", "base": "HostPlain",
      "attributes": [ { "name": "extra", "kind": "string", "default": "x" } ],
      "startup": { "ratio": 0.75, "names": ["c"], "part": { "size": 2.0, "inner": { "mark": 8 } } } },
    { "name": "HostListening", "base": "HostPlain" },
    { "name": "HostDeepListening", "base": "HostListening" },
    { "name": "HostOther", "attributes": [ { "name": "ratio", "kind": "real" },
                                           { "name": "part", "kind": "component" } ] } ] })";
} // namespace

void DeclareHostTypes()
{
    VYRStandalone::DeclareCatalog(catalog, "HostTests");
}

HostTest::HostTest()
{
    DeclareHostTypes();
}

ORXISpecObject_var HostTest::Make(const char* iType, const char* iName)
{
    return m_model.Create(iType, iName);
}

ORXISpecAttrKey_var HostTest::KeyOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return ORXISpecAttrKey_var::Adopt(AccessOf(iObject)->GetAttrKey(iName));
}

ORXICkeParm_var HostTest::ParmOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return ORXCke_GetParm(AccessOf(iObject), KeyOf(iObject, iName), 1);
}

ORXISpecObject_var HostTest::ObjectOf(const ORXISpecObject_var& iObject, const char* iName, int iIndex)
{
    return ORXISpecObject_var::Adopt(AccessOf(iObject)->GetSpecObject(KeyOf(iObject, iName), iIndex));
}

std::string HostTest::TextOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXIValue_var value = ParmOf(iObject, iName)->GetValue();
    return value->IsValuated() != 0 ? Narrow(value->AsString()) : "(none)";
}

std::string HostTest::NamesOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const std::unique_ptr<ORXListValORXBaseUnknown_var> list(AccessOf(iObject)->ListObjects(KeyOf(iObject, iName)));
    std::string names;
    for (int position = 1; position <= list->Size(); ++position)
    {
        const ORXISpecObject_var entry = (*list)[position];
        names += (position > 1 ? " " : "") + (!entry ? std::string("(null)") : Narrow(entry->GetName()));
    }
    return names;
}

HRESULT HostTest::Set(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                      int iIndex)
{
    return AccessOf(iObject)->SetSpecObject(KeyOf(iObject, iName), iValue, iIndex);
}

HRESULT HostTest::Insert(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                         int iIndex)
{
    return AccessOf(iObject)->InsertAtPosition(KeyOf(iObject, iName), iValue, iIndex);
}

void HostTest::Add(const ORXISpecObject_var& iObject, const char* iName, int iTypeCode)
{
    EXPECT_FALSE(!ORXISpecAttribute_var::Adopt(iObject->AddAttribute(iName, iTypeCode, 0))) << iName;
}

std::string HostTest::TopLevel() const
{
    std::string names;
    for (const ORXISpecObject_var& object : m_model.Objects())
        names += (names.empty() ? "" : " ") + Narrow(object->GetName());
    return names;
}

std::string Narrow(const ORXUnicodeString& iText)
{
    return std::string(iText.View());
}

unsigned int CountOf(const ORXISpecObject_var& iObject)
{
    return VYRStandalone::ReferenceCount(iObject);
}
