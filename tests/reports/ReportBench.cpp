#include "ReportBench.h"

#include "TestManager.h"

namespace
{
constexpr const char* Types = R"({ "catalog": "ReportBench", "uses": ["VYRCfdBase"], "types": [
    { "name": "ReportZone" },
    { "name": "ReportPart", "base": "VYRCfdValues", "attributes": [
        { "name": "title", "kind": "string", "default": "cavity" },
        { "name": "ratio", "kind": "real", "default": 0.5 },
        { "name": "count", "kind": "integer", "default": 4 },
        { "name": "flag", "kind": "boolean", "default": true },
        { "name": "scheme", "kind": "enumeration", "values": ["upwind", "central"], "default": "central" },
        { "name": "zone", "kind": "component" },
        { "name": "peer", "kind": "reference" },
        { "name": "titles", "kind": "list", "of": "string", "default": ["lift", "drag"] },
        { "name": "ratios", "kind": "list", "of": "real", "default": [1.5, 2.5] },
        { "name": "counts", "kind": "list", "of": "integer", "default": [10, 20] },
        { "name": "flags", "kind": "list", "of": "boolean", "default": [true, false] },
        { "name": "schemes", "kind": "list", "of": "enumeration", "values": ["upwind", "central"],
          "default": ["central", "upwind"] },
        { "name": "zones", "kind": "list", "of": "component" },
        { "name": "peers", "kind": "list", "of": "reference" } ] } ] })";

void Append(const ORXISpecObject_var& iOwner, const char* iList, const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrAccess_var access = AccessOf(iOwner);
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iList));
    ASSERT_EQ(access->InsertAtPosition(key, iObject, access->GetListSize(key) + 1), S_OK);
}
} // namespace

void ReportBench::SetUp()
{
    ChoiceTest::SetUp();
    TestManager::Register();
    Declare(Types);
    m_part = Create("ReportPart", "Part.1");
    for (const char* name : {"Zone.1", "Zone.2"})
        Append(m_part, "zones", Create("ReportZone", name));
    for (const char* name : {"Peer.1", "Peer.2"})
        Append(m_part, "peers", Create("ReportZone", name));
    m_column = VYRStandalone::MakeTableColumn();
}

void ReportBench::TearDown()
{
    TestManager::Hooks() = {};
    ChoiceTest::TearDown();
}

void ReportBench::LetGo()
{
    m_part = {};
    m_column = {};
    const VYRStandalone::Model gone(std::move(m_model));
}

VYRCfdObjectAccess ReportBench::At(const std::string& iPlace)
{
    if (iPlace == "(error)")
        return VYRCfdObjectAccess(ORXUnicodeString("broken link %s%n"));
    if (iPlace == "(nothing)")
        return VYRCfdObjectAccess(ORXUnicodeString());
    if (iPlace == "(object)")
        return Cursor(m_part);
    if (iPlace == "(column)")
        return Cursor(m_column);
    // By the key, which stays at the attribute of an empty object as well.
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(AccessOf(m_part)->GetAttrKey(iPlace.c_str()));
    return iPlace == "zone" || iPlace == "peer" ? Cursor(m_part).Ref(key.Pointer())
                                                : Cursor(m_part).Get(key.Pointer(), 0);
}

ORXISpecObject_var ReportBench::Choice(const ChoiceDeclaration& iDeclaration)
{
    return Make(iDeclaration);
}

HRESULT ReportBench::Apply(const ORXBaseUnknown_var& iObject, const std::string& iItems)
{
    return static_cast<HRESULT>(Configurations({Configuration("test", iItems)}).Apply(iObject, "test"));
}

std::string StartupPathOf(const ORXISpecObject_var& iObject)
{
    return VYRStandalone::PathOf(ORXISpecObject_var::Adopt(iObject->GetStartup()));
}

void FailCall(const char* iOperation, const char* iSubject, const std::string& iObject, HRESULT iStatus, int iCall)
{
    VYRStandalone::Fault fault;
    fault.operation = iOperation;
    fault.subject = iSubject;
    fault.object = iObject;
    fault.status = iStatus;
    fault.call = iCall;
    VYRStandalone::PlantFault(fault);
}
