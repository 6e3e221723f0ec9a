/**
 * @file
 * Every operation that may fail can be told to.
 */

#include <functional>

#include "HostTypes.h"
#include "JIStream.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXEnvironment.h"
#include "ORXICkeManipulator.h"
#include "ORXIContainer.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXSimBCInitializeServices.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "ORXSpecAttrKeyServices.h"

namespace
{
/// What the calls below work on.
struct Subject
{
    ORXISpecObject_var object;
    ORXISpecAttrAccess_var access;
    ORXIContainer_var container;
    ORXISpecObject_var part;

    ORXISpecAttrKey_var Key(const char* iName) const { return ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName)); }
    ORXICkeParm_var Parm(const char* iName) const { return ORXCke_GetParm(access, Key(iName), 1); }
};

/// The adapter alone, which stands for an extension of no object.
class Adapter final : public ORXSimFeatureInstanceAdp
{
};

struct FaultPoint
{
    const char* operation;
    /// True when the operation did its work, as far as it tells.
    std::function<bool(const Subject&)> works;

    friend void PrintTo(const FaultPoint& iPoint, std::ostream* ioStream) { *ioStream << iPoint.operation; }
};

class FaultPoints : public HostTest, public testing::WithParamInterface<FaultPoint>
{
protected:
    ~FaultPoints() override { VYRStandalone::ClearFaults(); }
};

TEST_P(FaultPoints, AnOperationThatMayFailFailsOnceWhenItIsToldTo)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const Subject subject{object, AccessOf(object), m_model.Container(), Make("HostLeaf", "L")};
    subject.Parm("ratio")->CreateManipulator();
    Insert(object, "refs", subject.part, 1);
    Set(object, "ref", subject.part);
    VYRStandalone::PlantFault({GetParam().operation, "", "", 1, 1, E_FAIL});
    EXPECT_FALSE(GetParam().works(subject));
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_TRUE(GetParam().works(subject));
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

template <class Call> FaultPoint Status(const char* iOperation, const Call& iCall)
{
    return {iOperation, [iCall](const Subject& s) { return iCall(s) >= 0; }};
}

template <class Call> FaultPoint Handle(const char* iOperation, const Call& iCall)
{
    return {iOperation, [iCall](const Subject& s) { return !!iCall(s); }};
}

/// A value of a parameter is written, and read again.
template <class Call> FaultPoint Written(const char* iOperation, const char* iText, const Call& iCall)
{
    return {iOperation, [iText, iCall](const Subject& s) {
                iCall(*s.Parm("ratio").Pointer());
                return s.Parm("ratio")->GetValue()->AsString() == iText;
            }};
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, FaultPoints,
    testing::Values(
        Handle("GetAttrKey", [](const Subject& s) { return s.Key("ratio"); }),
        FaultPoint{"HasAttribute", [](const Subject& s) { return s.access->HasAttribute(s.Key("ratio")) != 0; }},
        Status("SetDouble", [](const Subject& s) { return s.access->SetDouble(s.Key("ratio"), 2.0, 0); }),
        Status("SetInteger", [](const Subject& s) { return s.access->SetInteger(s.Key("count"), 2, 0); }),
        Status("SetBoolean", [](const Subject& s) { return s.access->SetBoolean(s.Key("on"), 1, 0); }),
        Status("SetString", [](const Subject& s) { return s.access->SetString(s.Key("title"), "x", 0); }),
        Status("SetStringList", [](const Subject& s) { return s.access->SetStringList(s.Key("names"), {}); }),
        Status("SetSpecObject", [](const Subject& s) { return s.access->SetSpecObject(s.Key("ref"), s.part, 0, 0); }),
        Status("RemovePosition", [](const Subject& s) { return s.access->RemovePosition(s.Key("names"), 1); }),
        Status("RemoveAll", [](const Subject& s) { return s.access->RemoveAll(s.Key("names")); }),
        Status("InsertAtPosition",
               [](const Subject& s) { return s.access->InsertAtPosition(s.Key("refs"), s.part, 1); }),
        Status("MoveInPosition", [](const Subject& s) { return s.access->MoveInPosition(s.Key("refs"), s.part, 1); }),
        Handle("GetSpecObject",
               [](const Subject& s) { return ORXISpecObject_var::Adopt(s.access->GetSpecObject(s.Key("ref"), 0)); }),
        FaultPoint{"ListObjects",
                   [](const Subject& s) {
                       const std::unique_ptr<ORXListValORXBaseUnknown_var> list(
                           s.access->ListObjects(s.Key("refs"), 0));
                       return list != nullptr;
                   }},
        FaultPoint{"RemoveObject", [](const Subject& s) {
                       s.access->RemoveObject(s.Key("ref"), s.part);
                       return !ORXISpecObject_var::Adopt(s.access->GetSpecObject(s.Key("ref"), 0));
                   }}));

INSTANTIATE_TEST_SUITE_P(
    Objects, FaultPoints,
    testing::Values(
        Handle("GetStartup", [](const Subject& s) { return ORXISpecObject_var::Adopt(s.object->GetStartup()); }),
        Handle("GetOwner",
               [](const Subject& s) {
                   const auto part = ORXISpecObject_var::Adopt(s.access->GetSpecObject(s.Key("part"), 0));
                   return ORXISpecObject_var::Adopt(part->GetOwner());
               }),
        Handle("GetContainer", [](const Subject& s) { return s.object->GetContainer(); }),
        Handle("AddAttribute",
               [](const Subject& s) {
                   return ORXISpecAttribute_var::Adopt(s.object->AddAttribute("x", tk_boolean, 0));
               }),
        Handle("QueryInterface", [](const Subject& s) { return ORXISpecAttrAccess_var(s.object); }),
        Status("CreateBasicComponent",
               [](const Subject& s) {
                   ORXIContainer_var container = s.container;
                   ORXISpecObject_var made;
                   return ORXSimBCInitializeServices::CreateBasicComponent("HostLeaf", "New", container, made);
               }),
        FaultPoint{"ListMembers", [](const Subject& s) {
                       const std::unique_ptr<ORXListValORXBaseUnknown_var> list(s.container->ListMembers(""));
                       return list != nullptr;
                   }}));

/// A cast that asks the component, whatever the handle knows of it.
template <class Interface, class Component> bool Casts(const Component& iComponent)
{
    void* given = nullptr;
    if (iComponent->QueryInterface(Interface::ClassId(), &given) < 0)
        return given != nullptr;
    static_cast<Interface*>(given)->Release();
    return true;
}

INSTANTIATE_TEST_SUITE_P(
    Casts, FaultPoints,
    testing::Values(
        FaultPoint{"QueryInterface", [](const Subject& s) { return Casts<ORXICkeParm>(s.Parm("ratio")); }},
        FaultPoint{"QueryInterface", [](const Subject& s) { return Casts<ORXIValue>(s.Parm("ratio")->GetValue()); }},
        FaultPoint{"QueryInterface", [](const Subject& s) { return Casts<ORXICkeType>(s.Parm("ratio")->GetType()); }},
        FaultPoint{"QueryInterface", [](const Subject& s) { return Casts<ORXISpecAttrKey>(s.Key("ratio")); }},
        FaultPoint{"QueryInterface", [](const Subject& s) { return Casts<ORXIContainer>(s.container); }},
        FaultPoint{"QueryInterface",
                   [](const Subject& s) { return Casts<ORXICkeManipulator>(s.Parm("ratio")->GetManipulator()); }},
        FaultPoint{
            "QueryInterface",
            [](const Subject&) { return Casts<ORXIParmDictionary>(ORXCkeGlobalFunctions::GetParmDictionary()); }},
        FaultPoint{"QueryInterface", [](const Subject&) {
                       return Casts<ORXICkeParmFactory>(ORXCkeGlobalFunctions::GetVolatileFactory());
                   }}));

INSTANTIATE_TEST_SUITE_P(
    Knowledge, FaultPoints,
    testing::Values(
        Handle("GetParm", [](const Subject& s) { return s.Parm("ratio"); }),
        Handle("GetType", [](const Subject& s) { return s.Parm("ratio")->GetType(); }),
        Handle("GetValue", [](const Subject& s) { return s.Parm("ratio")->GetValue(); }),
        Written("Valuate", "4", [](ORXICkeParm& ioParm) { ioParm.Valuate(4.0); }),
        Written("Valuate", "5", [](ORXICkeParm& ioParm) { ioParm.Valuate(5); }),
        Written("Valuate", "6", [](ORXICkeParm& ioParm) { ioParm.Valuate(ORXUnicodeString("6")); }),
        Written("ValuateFromString", "7", [](ORXICkeParm& ioParm) { ioParm.ValuateFromString("7"); }),
        FaultPoint{"ValuateFromValue",
                   [](const Subject& s) {
                       s.Parm("ratio")->ValuateFromValue(s.Parm("count")->GetValue());
                       return s.Parm("ratio")->GetValue()->AsString() == "3";
                   }},
        Handle("CreateManipulator", [](const Subject& s) { return s.Parm("title")->CreateManipulator(); }),
        Handle("GetManipulator", [](const Subject& s) { return s.Parm("ratio")->GetManipulator(); }),
        Status("SetAllowedValues",
               [](const Subject& s) { return s.Parm("ratio")->GetManipulator()->SetAllowedValues({}); }),
        Status("GetAllowedValues",
               [](const Subject& s) {
                   ORXListValORXUnicodeString values;
                   return s.Parm("ratio")->GetManipulator()->GetAllowedValues(values);
               }),
        Handle("GetParmDictionary", [](const Subject&) { return ORXCkeGlobalFunctions::GetParmDictionary(); }),
        Handle("GetRealType", [](const Subject&) { return ORXCkeGlobalFunctions::GetParmDictionary()->GetRealType(); }),
        Handle("GetIntegerType",
               [](const Subject&) { return ORXCkeGlobalFunctions::GetParmDictionary()->GetIntegerType(); }),
        Handle("GetBooleanType",
               [](const Subject&) { return ORXCkeGlobalFunctions::GetParmDictionary()->GetBooleanType(); }),
        Handle("GetEnumType", [](const Subject&) { return ORXCkeGlobalFunctions::GetParmDictionary()->GetEnumType(); }),
        Handle("GetVolatileFactory", [](const Subject&) { return ORXCkeGlobalFunctions::GetVolatileFactory(); }),
        Handle("CreateParm", [](const Subject& s) {
            return ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(s.Parm("ratio")->GetType(), "name");
        })));

/// An operation of the adapter, on one that stands alone.
template <class Call> FaultPoint OfAdapter(const char* iOperation, const Call& iCall)
{
    return Status(iOperation, [iCall](const Subject&) {
        const auto adapter = ORXHandle<Adapter>::Adopt(new Adapter);
        return iCall(*adapter.Pointer());
    });
}

INSTANTIATE_TEST_SUITE_P(
    Adapters, FaultPoints,
    testing::Values(
        OfAdapter("AdviseAttributeChanged", [](Adapter& a) { return a.AdviseAttributeChanged("x", NULL_var); }),
        OfAdapter("AdviseDynamicAttributeAdded", [](Adapter& a) { return a.AdviseDynamicAttributeAdded("x"); }),
        OfAdapter("AdviseDynamicAttributeRemoved", [](Adapter& a) { return a.AdviseDynamicAttributeRemoved("x"); }),
        OfAdapter("AdviseDynamicAttributeRenamed",
                  [](Adapter& a) { return a.AdviseDynamicAttributeRenamed("x", "y"); }),
        OfAdapter("AdviseRemoved", [](Adapter& a) { return a.AdviseRemoved(); }),
        OfAdapter("AdviseModification", [](Adapter& a) { return a.AdviseModification(); }),
        OfAdapter("AdviseTypeChanged", [](Adapter& a) { return a.AdviseTypeChanged(NULL_var); }),
        OfAdapter("AdviseSpecificEvent", [](Adapter& a) { return a.AdviseSpecificEvent("x"); }),
        OfAdapter("SetLogicalName", [](Adapter& a) { return a.SetLogicalName("x"); }),
        OfAdapter("RemoveInstanceListener", [](Adapter& a) { return a.RemoveInstanceListener(NULL_var); })));

/// A table column with one row.
ORXISimBCDataTableColumn_var Column()
{
    const ORXISimBCDataTableColumn_var column = VYRStandalone::MakeTableColumn();
    column->SetValue(1, 1.0);
    return column;
}

INSTANTIATE_TEST_SUITE_P(Columns, FaultPoints,
                         testing::Values(FaultPoint{"SetValue",
                                                    [](const Subject&) {
                                                        const ORXISimBCDataTableColumn_var column = Column();
                                                        return column->GetRowCount() == 1;
                                                    }},
                                         Status("GetValue", [](const Subject&) {
                                             double value = 0.0;
                                             return Column()->GetValue(1, value);
                                         })));

INSTANTIATE_TEST_SUITE_P(
    Services, FaultPoints,
    testing::Values(FaultPoint{"GetEnv", [](const Subject&) { return ORXGetEnv("PATH") != nullptr; }},
                    FaultPoint{"GetOfficialVariable",
                               [](const Subject&) {
                                   VYRStandalone::SetOfficialVariable("FaultPoint", "x");
                                   return ORXGetOfficialVariable("FaultPoint") != nullptr;
                               }},
                    FaultPoint{"FindPath",
                               [](const Subject&) { return ORXFindPath("README.md", VYR_SAMPLES_DIR) != nullptr; }},
                    FaultPoint{"ParseFile",
                               [](const Subject&) {
                                   return JSON::JIStream().ParseFile(
                                       VYR_SAMPLES_DIR "/catalogs/FlowCommon.catalog.json", true);
                               }},
                    FaultPoint{"Get", [](const Subject& s) {
                                   ORXSpecAttrKeyServices record{"HostTests", "HostPlain", "ratio", nullptr};
                                   return record.Get(s.access) != nullptr;
                               }}));
} // namespace
