/**
 * @file
 * Planted faults and the record of host calls.
 */

#include <functional>
#include <memory>

#include "HostTypes.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXSimBCInitializeServices.h"
#include "ORXSpecAttrKeyServices.h"
#include "TestExtensions.h"

namespace
{
using VYRStandalone::CallRecorder;
using VYRStandalone::Fault;

void Plant(const char* iOperation, const char* iSubject = "", const char* iObject = "", int iCall = 1, int iTimes = 1,
           HRESULT iStatus = E_FAIL)
{
    VYRStandalone::PlantFault(Fault{iOperation, iSubject, iObject, iCall, iTimes, iStatus});
}

class Faults : public HostTest
{
protected:
    Faults() : m_object(Make("HostListening", "F")) {}
    ~Faults() override { VYRStandalone::ClearFaults(); }

    ORXISpecObject_var m_object;
};

struct StatusCall
{
    const char* operation;
    const char* attribute;
    std::function<HRESULT(ORXISpecAttrAccess&, ORXISpecAttrKey*, const ORXISpecObject_var&)> call;
};

class FaultsOfStatuses : public Faults, public testing::WithParamInterface<StatusCall>
{
};

TEST_P(FaultsOfStatuses, AnswerThePlantedStatusDoNothingAndTellNobody)
{
    const ORXISpecObject_var leaf = Make("HostLeaf", "L");
    Insert(m_object, "refs", leaf, 1);
    const std::string before = m_model.Text();
    Plant(GetParam().operation, GetParam().attribute, "F", 1, 1, -7);
    ORXISpecAttrAccess& access = *AccessOf(m_object).Pointer();
    const ORXISpecAttrKey_var key = KeyOf(m_object, GetParam().attribute);
    int told = 0;
    TestInstance::s_onAdvise = [&](ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var&) {
        ++told;
        return S_OK;
    };
    EXPECT_EQ(GetParam().call(access, key, leaf), -7);
    EXPECT_EQ(told, 0);
    EXPECT_EQ(m_model.Text(), before);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(GetParam().call(access, key, leaf), S_OK);
    EXPECT_EQ(told, 1);
    TestInstance::s_onAdvise = nullptr;
}

INSTANTIATE_TEST_SUITE_P(
    Instruments, FaultsOfStatuses,
    testing::Values(
        StatusCall{"SetDouble", "ratio", [](auto& a, auto* k, auto&) { return a.SetDouble(k, 2.0); }},
        StatusCall{"SetInteger", "count", [](auto& a, auto* k, auto&) { return a.SetInteger(k, 2); }},
        StatusCall{"SetBoolean", "on", [](auto& a, auto* k, auto&) { return a.SetBoolean(k, 1); }},
        StatusCall{"SetString", "title", [](auto& a, auto* k, auto&) { return a.SetString(k, "x"); }},
        StatusCall{"SetStringList", "names", [](auto& a, auto* k, auto&) { return a.SetStringList(k, {}); }},
        StatusCall{"SetSpecObject", "ref", [](auto& a, auto* k, auto& o) { return a.SetSpecObject(k, o); }},
        StatusCall{"RemovePosition", "refs", [](auto& a, auto* k, auto&) { return a.RemovePosition(k, 1); }},
        StatusCall{"RemoveAll", "refs", [](auto& a, auto* k, auto&) { return a.RemoveAll(k); }},
        StatusCall{"MoveInPosition", "refs", [](auto& a, auto* k, auto& o) { return a.MoveInPosition(k, o, 1); }},
        StatusCall{"InsertAtPosition", "refs", [](auto& a, auto* k, auto& o) { return a.InsertAtPosition(k, o, 1); }}),
    [](const testing::TestParamInfo<StatusCall>& iInfo) { return std::string(iInfo.param.operation); });

TEST_F(Faults, WhereAPointerOrAHandleIsAnswered_GiveNull)
{
    const ORXISpecAttrKey_var ratio = KeyOf(m_object, "ratio");
    const ORXISpecAttrKey_var ref = KeyOf(m_object, "ref");
    const ORXICkeParm_var parm = ParmOf(m_object, "ratio");
    Set(m_object, "ref", m_object);
    Plant("", "", "", 1, 0);
    EXPECT_EQ(AccessOf(m_object).Pointer(), nullptr);
    VYRStandalone::ClearFaults();
    const ORXISpecAttrAccess_var access = m_object;
    const ORXIParmDictionary_var dictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    const ORXICkeParmFactory_var factory = ORXCkeGlobalFunctions::GetVolatileFactory();
    const ORXICkeType_var type = parm->GetType();
    ORXSpecAttrKeyServices record{"HostTests", "HostPlain", "ratio", nullptr};
    Plant("", "", "", 1, 0);
    EXPECT_EQ(access->GetAttrKey("ratio"), nullptr);
    EXPECT_EQ(access->HasAttribute(ratio), ORXFalse);
    EXPECT_EQ(access->GetSpecObject(ref), nullptr);
    EXPECT_EQ(access->ListObjects(ref), nullptr);
    EXPECT_EQ(m_object->GetStartup(), nullptr);
    EXPECT_EQ(m_object->GetOwner(), nullptr);
    EXPECT_EQ(m_object->GetContainer().Pointer(), nullptr);
    EXPECT_EQ(m_object->AddAttribute("x", tk_boolean, 0), nullptr);
    EXPECT_EQ(ORXCke_GetParm(access, ratio, 1).Pointer(), nullptr);
    EXPECT_EQ(parm->GetType().Pointer(), nullptr);
    EXPECT_EQ(parm->GetValue().Pointer(), nullptr);
    EXPECT_EQ(parm->CreateManipulator().Pointer(), nullptr);
    EXPECT_EQ(parm->GetManipulator().Pointer(), nullptr);
    EXPECT_EQ(ORXCkeGlobalFunctions::GetParmDictionary().Pointer(), nullptr);
    EXPECT_EQ(ORXCkeGlobalFunctions::GetVolatileFactory().Pointer(), nullptr);
    EXPECT_EQ(dictionary->GetRealType().Pointer(), nullptr);
    EXPECT_EQ(dictionary->GetEnumType().Pointer(), nullptr);
    EXPECT_EQ(factory->CreateParm(type, "tempName").Pointer(), nullptr);
    EXPECT_EQ(record.Get(access), nullptr);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 19);
    VYRStandalone::ClearFaults();
    EXPECT_FALSE(!KeyOf(m_object, "ratio"));
    EXPECT_TRUE(!KeyOf(m_object, "x"));
}

TEST_F(Faults, ThatUnset_AnswerAValueWithoutAnyAndMeetNoOtherCall)
{
    Fault fault;
    fault.isUnset = true;
    VYRStandalone::PlantFault(fault);
    const int alive = VYRStandalone::LiveComponents();
    {
        const ORXICkeParm_var ofAttribute = ORXCke_GetParm(AccessOf(m_object), KeyOf(m_object, "ratio"), 1);
        const ORXICkeParm_var free =
            ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(ofAttribute->GetType(), "free");
        free->Valuate(2.5);
        for (const ORXICkeParm_var& parm : {ofAttribute, free})
        {
            VYRStandalone::ClearFaults();
            VYRStandalone::PlantFault(fault);
            const ORXIValue_var unset = parm->GetValue();
            ASSERT_FALSE(!unset);
            EXPECT_EQ(unset->IsValuated(), 0);
            EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
            EXPECT_EQ(parm->GetValue()->IsValuated(), 1);
        }
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), alive);
}

TEST_F(Faults, Valuate_DoesNothing)
{
    const ORXICkeParm_var parm = ParmOf(m_object, "ratio");
    Plant("Valuate", "ratio");
    Plant("ValuateFromValue", "ratio");
    Plant("ValuateFromString", "ratio");
    parm->Valuate(9.0);
    parm->ValuateFromString("9");
    parm->ValuateFromValue(ParmOf(m_object, "count")->GetValue());
    EXPECT_EQ(TextOf(m_object, "ratio"), "0.5");
    EXPECT_EQ(VYRStandalone::FaultsHit(), 3);
    parm->Valuate(9.0);
    EXPECT_EQ(TextOf(m_object, "ratio"), "9");
}

TEST_F(Faults, MeetTheNumberedCallsThatAgree)
{
    Plant("SetDouble", "ratio", "F", 2, 2);
    const ORXISpecObject_var other = Make("HostPlain", "G");
    const ORXISpecAttrKey_var key = KeyOf(m_object, "ratio");
    const auto set = [&](const ORXISpecObject_var& iObject) { return AccessOf(iObject)->SetDouble(key, 1.0); };
    EXPECT_EQ(set(m_object), S_OK);
    EXPECT_EQ(set(other), S_OK);
    EXPECT_EQ(set(m_object), E_FAIL);
    EXPECT_EQ(set(other), S_OK);
    EXPECT_EQ(set(m_object), E_FAIL);
    EXPECT_EQ(set(m_object), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 2);
    VYRStandalone::ClearFaults();
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
}

TEST_F(Faults, MeetObjectsByTheirPath)
{
    const ORXISpecObject_var part = ObjectOf(m_object, "part");
    Plant("SetDouble", "", "F/part", 1, 0);
    EXPECT_EQ(AccessOf(part)->SetDouble(KeyOf(part, "size"), 3.0), E_FAIL);
    const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(m_object->GetStartup());
    Plant("GetParm", "count", "[HostListening]");
    EXPECT_FALSE(!ParmOf(m_object, "count"));
    EXPECT_TRUE(!ParmOf(startup, "count"));
}

TEST_F(Faults, OfTheAddedAttribute_AreThoseOfTheObject)
{
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(m_object->AddAttribute("x", tk_boolean, 0));
    Plant("SetBoolean", "x");
    EXPECT_EQ(added->SetBoolean(ORXTrue), E_FAIL);
    EXPECT_EQ(added->SetBoolean(ORXTrue), S_OK);
}

TEST_F(Faults, OfCreation_MayAnswerSuccessWithoutAnObject)
{
    ORXIContainer_var container = m_model.Container();
    ORXISpecObject_var made;
    Plant("CreateBasicComponent", "HostLeaf", "", 1, 1, S_OK);
    Plant("CreateBasicComponent", "HostLeaf", "", 2, 1, E_FAIL);
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("HostPlain", "A", container, made), S_OK);
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("HostLeaf", "B", container, made), S_OK);
    EXPECT_TRUE(!made);
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("HostLeaf", "C", container, made), E_FAIL);
    EXPECT_TRUE(!made);
    EXPECT_EQ(TopLevel(), "F A");
}

TEST_F(Faults, OfCasts_MeetInterfacesByName)
{
    Plant("QueryInterface", "TestINumber");
    EXPECT_FALSE(!ORXISpecAttrAccess_var(m_object));
    EXPECT_TRUE(!TestINumber_var(m_object));
    EXPECT_FALSE(!TestINumber_var(m_object));
}

class Recorder : public HostTest
{
protected:
    Recorder() : m_object(Make("HostListening", "R")) {}

    ORXISpecObject_var m_object;
};

using Lines = std::vector<std::string>;

TEST_F(Recorder, WritesOfEveryRoad)
{
    const ORXISpecObject_var plain = Make("HostPlain", "P");
    const ORXISpecAttrAccess_var access = plain;
    const ORXIValue_var none = ParmOf(plain, "on")->GetValue();
    CallRecorder recorder;
    access->SetDouble(KeyOf(plain, "ratio"), 0.7);
    access->SetInteger(KeyOf(plain, "mode"), 2);
    access->SetInteger(KeyOf(plain, "mode"), 9);
    access->SetBoolean(KeyOf(plain, "on"), ORXTrue);
    access->SetString(KeyOf(plain, "names"), "lift", 2);
    ParmOf(plain, "ratio")->Valuate(1);
    ParmOf(plain, "mode")->Valuate(ORXUnicodeString("abc"));
    ParmOf(plain, "ratio")->ValuateFromValue(none);
    ParmOf(plain, "ratio")->ValuateFromValue(NULL_var);
    ParmOf(ObjectOf(plain, "part"), "size")->Valuate(2.0);
    EXPECT_EQ(recorder.Take(), (Lines{"write P.ratio = 0.7", "write P.mode = high", "write P.mode = 9",
                                      "write P.on = true", "write P.names[2] = lift", "write P.ratio = 1",
                                      "write P.mode = abc", "write P.ratio = (none)", "write P/part.size = 2"}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(Recorder, ObjectsAndLists)
{
    const ORXISpecObject_var plain = Make("HostPlain", "P");
    const ORXISpecObject_var zone = Make("HostLeaf", "Z");
    const ORXISpecAttrAccess_var access = plain;
    ORXListValORXUnicodeString texts;
    texts.Append("lift");
    texts.Append("drag");
    ORXIContainer_var container = m_model.Container();
    ORXISpecObject_var made;
    CallRecorder recorder;
    access->SetStringList(KeyOf(plain, "names"), texts);
    Set(plain, "ref", zone);
    Set(plain, "ref", NULL_var);
    Insert(plain, "refs", zone, 1);
    Insert(plain, "refs", NULL_var, 2);
    Set(plain, "refs", zone, 2);
    access->MoveInPosition(KeyOf(plain, "refs"), zone, 1);
    access->RemovePosition(KeyOf(plain, "refs"), 3);
    access->RemoveObject(KeyOf(plain, "refs"), zone);
    access->RemoveAll(KeyOf(plain, "refs"));
    Add(plain, "x_isset", tk_boolean);
    ORXSimBCInitializeServices::CreateBasicComponent("HostLeaf", "New", container, made);
    EXPECT_EQ(recorder.Take(),
              (Lines{"write P.names = [lift, drag]", "write P.ref = Z", "write P.ref = (null)", "insert P.refs[1] = Z",
                     "insert P.refs[2] = (null)", "write P.refs[2] = Z", "move P.refs[1] = Z", "remove P.refs[3]",
                     "take P.refs = Z", "clear P.refs", "add P.x_isset", "create HostLeaf New"}));
}

TEST_F(Recorder, NotificationsBracketWhatHappensInside)
{
    TestInstance::s_onAdvise = [this](ORXBaseUnknown*, const ORXUnicodeString& iName, const ORXIValue_var&) {
        if (iName == "ratio")
            ParmOf(m_object, "count")->Valuate(1);
        return S_OK;
    };
    CallRecorder recorder;
    ParmOf(m_object, "ratio")->Valuate(0.7);
    AccessOf(m_object)->RemovePosition(KeyOf(m_object, "names"), 1);
    Set(m_object, "part", NULL_var);
    TestInstance::s_onAdvise = nullptr;
    EXPECT_EQ(recorder.Take(),
              (Lines{"write R.ratio = 0.7", "advise R.ratio = 0.7", "write R.count = 1", "advise R.count = 1",
                     "done R.count", "done R.ratio", "remove R.names[1]", "advise R.names = [b]", "done R.names",
                     "write R.part = (null)", "advise R.part = (none)", "done R.part"}));
}

TEST_F(Recorder, EmptyTextsOfAList_KeepTheirCommas)
{
    const ORXISpecObject_var plain = Make("HostListening", "L");
    const ORXISpecAttrAccess_var access = plain;
    ORXListValORXUnicodeString texts;
    texts.Append("");
    texts.Append("lift");
    CallRecorder recorder;
    access->SetStringList(KeyOf(plain, "names"), texts);
    EXPECT_EQ(recorder.Take(), (Lines{"write L.names = [, lift]", "advise L.names = [, lift]", "done L.names"}));
}

TEST_F(Recorder, FailingCalls_AreRecorded)
{
    Plant("SetDouble", "ratio");
    CallRecorder recorder;
    AccessOf(m_object)->SetDouble(KeyOf(m_object, "ratio"), 1.0);
    AccessOf(m_object)->SetDouble(KeyOf(m_object, "ratio"), 1.0, 3);
    EXPECT_EQ(recorder.Take(), (Lines{"write R.ratio = 1", "write R.ratio[3] = 1"}));
}

TEST_F(Recorder, Nested_HaveTheirOwnLines)
{
    const ORXISpecObject_var plain = Make("HostPlain", "P");
    CallRecorder outer;
    ParmOf(plain, "count")->Valuate(1);
    {
        CallRecorder inner;
        ParmOf(plain, "count")->Valuate(2);
        EXPECT_EQ(inner.Take(), Lines{"write P.count = 2"});
    }
    ParmOf(plain, "count")->Valuate(3);
    EXPECT_EQ(outer.Take(), (Lines{"write P.count = 1", "write P.count = 2", "write P.count = 3"}));
}
} // namespace
