#include "FlowTest.h"

#include <memory>

#include "ORXCkeGlobalFunctions.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr const char* FlowTypes = R"({ "catalog": "FlowTest", "uses": ["VYRCfdBase"], "types": [
    { "name": "FlowTestMaterial", "attributes": [ { "name": "density", "kind": "real", "default": 1.2 } ] },
    { "name": "FlowTestZone", "base": "VYRCfdValues", "attributes": [
        { "name": "temperature", "kind": "real", "default": 300.0 },
        { "name": "layers", "kind": "integer", "default": 3 },
        { "name": "outputs", "kind": "list", "of": "string" } ] },
    { "name": "FlowTestGroup", "attributes": [
        { "name": "zone", "kind": "component", "type": "FlowTestZone" },
        { "name": "flags", "kind": "component", "type": "VYRCfdDefaultManagement" } ] },
    { "name": "FlowTestForeign", "attributes": [
        { "name": "flags", "kind": "component", "type": "VYRCfdDefaultManagement" } ] },
    { "name": "FlowTestSolver", "base": "VYRCfdValues", "attributes": [
        { "name": "iterations", "kind": "integer", "default": 500 },
        { "name": "relaxation", "kind": "real", "default": 0.7 },
        { "name": "scheme", "kind": "enumeration", "values": ["upwind", "central"], "default": "upwind" },
        { "name": "steady", "kind": "boolean", "default": true },
        { "name": "title", "kind": "string", "default": "flow" },
        { "name": "seed", "kind": "integer" },
        { "name": "monitors", "kind": "list", "of": "string", "default": ["mass"] },
        { "name": "zone", "kind": "component", "type": "FlowTestZone" },
        { "name": "zones", "kind": "list", "of": "component" },
        { "name": "material", "kind": "reference" },
        { "name": "choice", "kind": "component", "type": "VYRCfdChoice" } ] },
    { "name": "FlowTestSteadySolver", "base": "FlowTestSolver", "attributes": [
        { "name": "pseudoTimeStep", "kind": "real", "default": 0.25 } ] } ] })";

ORXISpecAttrKey_var KeyOf(const ORXISpecAttrAccess_var& iAccess, const char* iName)
{
    return ORXISpecAttrKey_var::Adopt(iAccess->GetAttrKey(iName));
}

/// The parameter of a scalar attribute, without the module.
ORXICkeParm_var ParameterOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    return ORXCke_GetParm(access, KeyOf(access, iName), 1);
}

std::string FlagOf(const ORXISpecObject_var& iObject, const std::string& iName)
{
    const ORXISpecAttrAccess_var access =
        ORXISpecObject_var::Adopt(AccessOf(iObject)->GetSpecObject(KeyOf(AccessOf(iObject), "defaultManagement")));
    if (!access)
        return "no sub-feature";
    const ORXISpecAttrKey_var key = KeyOf(access, iName.c_str());
    if (!key || access->HasAttribute(key) == ORXFalse)
        return "absent";
    return access->GetBoolean(key) != ORXFalse ? "true" : "false";
}

std::string RecordText(const ORXISpecObject_var& iRecord)
{
    std::string text;
    for (const char* name : {"type", "path", "default", "defaultAutoKey", "condition", "config"})
    {
        const std::string value = ValueOf(iRecord, name);
        if (value != "(none)")
            text += (text.empty() ? "" : " ") + std::string(name) + "=" + value;
    }
    return text;
}
} // namespace

void FlowTest::SetUp()
{
    ModuleTest::SetUp();
    Declare(FlowTypes);
    m_solver = Create("FlowTestSolver", "Solver.1");
}

VYRIMpaDefaultManagementProtected_var FlowTest::DefaultManagement() const
{
    return DefaultManagementOf(m_solver);
}

ORXISpecObject_var FlowTest::SubFeature() const
{
    return At(m_solver, "defaultManagement");
}

ORXISpecObject_var At(const ORXISpecObject_var& iObject, const char* iPath)
{
    return Cursor(iObject).GetByPath(iPath).Self();
}

VYRIMpaDefaultManagementProtected_var DefaultManagementOf(const ORXISpecObject_var& iObject)
{
    return iObject;
}

std::string TextOf(const ORXICkeInst_var& iValue)
{
    if (!iValue)
        return "(null)";
    return iValue->IsValuated() != 0 ? iValue->AsString().CastToCharPtr() : "(none)";
}

std::string ValueOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXICkeParm_var parameter = ParameterOf(iObject, iName);
    return !parameter ? "(no parameter)" : TextOf(parameter->GetValue());
}

Lines TextsOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    const ORXISpecAttrKey_var key = KeyOf(access, iName);
    Lines texts;
    for (int i = 1; i <= access->GetListSize(key); ++i)
        texts.push_back(access->GetString(key, i).CastToCharPtr());
    return texts;
}

std::string DefaultOf(const ORXISpecObject_var& iObject, const char* iName)
{
    ORXICkeInst_var value;
    EXPECT_EQ(DefaultManagementOf(iObject)->GetDefault(iName, value), S_OK) << iName;
    return TextOf(value);
}

std::string SetFlagOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return FlagOf(iObject, std::string(iName) + "_isset");
}

std::string AutoFlagOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return FlagOf(iObject, std::string(iName) + "_isauto");
}

Lines RecordsOf(const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrAccess_var access = At(iObject, "defaultManagement");
    const ORXISpecAttrKey_var key = KeyOf(access, "configuration");
    Lines records;
    for (int i = 1; i <= access->GetListSize(key); ++i)
    {
        const ORXISpecObject_var record = ORXISpecObject_var::Adopt(access->GetSpecObject(key, i));
        records.push_back(!record ? "(null)" : RecordText(record));
    }
    return records;
}

int RecordsIn(const VYRStandalone::Model& iModel)
{
    const std::unique_ptr<ORXListValORXBaseUnknown_var> records(iModel.Container()->ListMembers("VYRCfdConfigItem"));
    return records->Size();
}

void AddRecord(VYRStandalone::Model& ioModel, const ORXISpecObject_var& iObject, const char* iPath,
               const char* iDefault)
{
    const ORXISpecObject_var record = ioModel.Create("VYRCfdConfigItem", "ConfigItem");
    Write(record, "path", iPath);
    if (iDefault != nullptr)
        Write(record, "default", iDefault);
    const ORXISpecAttrAccess_var access = At(iObject, "defaultManagement");
    const ORXISpecAttrKey_var key = KeyOf(access, "configuration");
    ASSERT_EQ(access->InsertAtPosition(key, record, access->GetListSize(key) + 1), S_OK);
}

void Write(const ORXISpecObject_var& iObject, const char* iName, const char* iValue)
{
    const ORXICkeParm_var parameter = ParameterOf(iObject, iName);
    ASSERT_FALSE(!parameter) << iName;
    parameter->Valuate(ORXUnicodeString(iValue));
}

void TakeAway(const ORXISpecObject_var& iObject, const char* iName)
{
    ParameterOf(iObject, iName)->ValuateFromValue(UnsetValue(iObject, iName));
}

HRESULT WriteObject(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    return access->SetSpecObject(KeyOf(access, iName), iValue);
}

ORXIValue_var UnsetValue(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXICkeType_var type = ParameterOf(iObject, iName)->GetType();
    return ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(type, "unset")->GetValue();
}

void Plant(const char* iOperation, const char* iSubject, const char* iObject, HRESULT iStatus)
{
    VYRStandalone::Fault fault{};
    fault.operation = iOperation;
    fault.subject = iSubject;
    fault.object = iObject;
    fault.status = iStatus;
    VYRStandalone::PlantFault(fault);
}
