/**
 * @file
 * Notifications: who is told of what, when, with which value, and what a listener may do.
 */

#include <memory>
#include <optional>

#include "ContractExtensions.h"
#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXMetaClass.h"
#include "ORXSimBCInitializeServices.h"

namespace
{
class Notifications : public ContractTest
{
protected:
    Notifications() : m_object(Make("ContractListening", "N"))
    {
        ContractInstance::s_onAdvise = [this](ORXBaseUnknown* iRoot, const ORXUnicodeString& iName,
                                              const ORXIValue_var& iValue) {
            m_log.push_back(LineOfNotification(iRoot, iName, iValue));
            if (m_inside)
                m_inside();
            return m_status;
        };
    }

    ~Notifications() override { ContractInstance::s_onAdvise = nullptr; }

    std::vector<std::string> Take() { return std::exchange(m_log, {}); }

    using Lines = std::vector<std::string>;

    ORXISpecObject_var m_object;
    std::vector<std::string> m_log;
    std::function<void()> m_inside;
    HRESULT m_status = S_OK;
};

TEST_F(Notifications, EveryRoadOfAWrite_TellsOnceWithTheNewValue)
{
    const ORXISpecAttrAccess_var access = m_object;
    access->SetDouble(KeyOf(m_object, "ratio"), 1.5);
    access->SetInteger(KeyOf(m_object, "count"), 6);
    access->SetInteger(KeyOf(m_object, "mode"), 2);
    access->SetBoolean(KeyOf(m_object, "on"), ORXTrue);
    access->SetString(KeyOf(m_object, "title"), "a b");
    EXPECT_EQ(Take(), (Lines{"N.ratio=1.5", "N.count=6", "N.mode=high", "N.on=true", "N.title=a b"}));

    ParmOf(m_object, "ratio")->Valuate(2.5);
    ParmOf(m_object, "ratio")->Valuate(3);
    ParmOf(m_object, "ratio")->Valuate(ORXUnicodeString("4"));
    ParmOf(m_object, "ratio")->ValuateFromString("5");
    ParmOf(m_object, "ratio")->ValuateFromValue(ParmOf(m_object, "count")->GetValue());
    ParmOf(m_object, "on")->Valuate(ORXCke::False);
    EXPECT_EQ(Take(), (Lines{"N.ratio=2.5", "N.ratio=3", "N.ratio=4", "N.ratio=5", "N.ratio=6", "N.on=false"}));

    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(m_object->AddAttribute("x", tk_boolean, 0));
    added->SetBoolean(ORXTrue);
    EXPECT_EQ(Take(), (Lines{"N.x=true"}));
}

TEST_F(Notifications, EqualValue_TellsAllTheSame)
{
    ParmOf(m_object, "ratio")->Valuate(0.5);
    ParmOf(m_object, "ratio")->Valuate(0.5);
    EXPECT_EQ(Take(), (Lines{"N.ratio=0.5", "N.ratio=0.5"}));
}

TEST_F(Notifications, EqualListsAndObjects_TellAllTheSame)
{
    const ORXISpecAttrAccess_var access = m_object;
    const ORXISpecObject_var leaf = Make("ContractLeaf", "L");
    for (int round = 0; round < 2; ++round)
    {
        access->SetStringList(KeyOf(m_object, "names"), ListOf({"a", "b"}));
        access->SetDouble(KeyOf(m_object, "reals"), 1.5, 1);
        Set(m_object, "ref", leaf);
    }
    Insert(m_object, "refs", leaf, 1);
    access->MoveInPosition(KeyOf(m_object, "refs"), leaf, 1);
    Set(m_object, "refs", leaf, 1);
    EXPECT_EQ(
        Take(),
        (Lines{"N.names=", "N.reals=", "N.ref=", "N.names=", "N.reals=", "N.ref=", "N.refs=", "N.refs=", "N.refs="}));
}

TEST_F(Notifications, TakingAway_TellsOnlyWhereThereWasAValue)
{
    const ORXIValue_var unset = ParmOf(m_object, "on")->GetValue();
    ParmOf(m_object, "ratio")->ValuateFromValue(unset);
    ParmOf(m_object, "ratio")->ValuateFromValue(unset);
    EXPECT_EQ(Take(), (Lines{"N.ratio=(none)"}));

    Set(m_object, "ref", NULL_var);
    Set(m_object, "ref", Make("ContractLeaf", "L"));
    Set(m_object, "ref", NULL_var);
    AccessOf(m_object)->RemoveObject(KeyOf(m_object, "ref"), m_object);
    EXPECT_EQ(Take(), (Lines{"N.ref=", "N.ref=(none)"}));

    AccessOf(m_object)->RemoveAll(KeyOf(m_object, "refs"));
    Insert(m_object, "refs", NULL_var, 1);
    Set(m_object, "refs", NULL_var, 1);
    AccessOf(m_object)->RemoveAll(KeyOf(m_object, "refs"));
    EXPECT_EQ(Take(), (Lines{"N.refs=", "N.refs="}));
}

TEST_F(Notifications, WritesOfLists_TellTheNameWithAValue)
{
    const ORXISpecAttrAccess_var access = m_object;
    const ORXISpecObject_var leaf = Make("ContractLeaf", "L");
    ORXListValORXUnicodeString none;
    access->SetStringList(KeyOf(m_object, "names"), none);
    access->SetDouble(KeyOf(m_object, "reals"), 1.0, 1);
    access->SetBoolean(KeyOf(m_object, "flags"), ORXTrue, 1);
    access->RemovePosition(KeyOf(m_object, "reals"), 1);
    Insert(m_object, "parts", leaf, 1);
    Insert(m_object, "parts", leaf, 2);
    access->MoveInPosition(KeyOf(m_object, "parts"), leaf, 1);
    Set(m_object, "parts", NULL_var, 1);
    access->RemoveObject(KeyOf(m_object, "parts"), leaf);
    access->RemoveAll(KeyOf(m_object, "parts"));
    EXPECT_EQ(Take(), (Lines{"N.names=", "N.reals=", "N.flags=", "N.reals=", "N.parts=", "N.parts=", "N.parts=",
                             "N.parts=", "N.parts=", "N.parts="}));
}

TEST_F(Notifications, Values_AreNeverNullAndValuatedAsTheAttributeIs)
{
    std::vector<int> valuated;
    ContractInstance::s_onAdvise = [&](ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var& iValue) {
        valuated.push_back(!iValue ? -1 : iValue->IsValuated());
        return S_OK;
    };
    const ORXISpecObject_var leaf = Make("ContractLeaf", "L");
    ParmOf(m_object, "title")->Valuate(ORXUnicodeString());
    ParmOf(m_object, "title")->ValuateFromValue(ParmOf(m_object, "on")->GetValue());
    Set(m_object, "loose", leaf);
    Set(m_object, "loose", NULL_var);
    Insert(m_object, "refs", NULL_var, 1);
    AccessOf(m_object)->RemoveAll(KeyOf(m_object, "refs"));
    AccessOf(m_object)->RemoveAll(KeyOf(m_object, "names"));
    ASSERT_EQ(valuated.size(), 7U);
    const bool wanted[] = {true, false, true, false, true, true, true};
    for (std::size_t i = 0; i < 7; ++i)
    {
        EXPECT_NE(valuated[i], -1) << i;
        EXPECT_EQ(valuated[i] != 0, wanted[i]) << i;
    }
}

TEST_F(Notifications, FailedWrites_TellNobody)
{
    const ORXISpecAttrAccess_var access = m_object;
    access->SetDouble(KeyOf(m_object, "ratio"), 1.0, 1);
    access->SetInteger(KeyOf(m_object, "mode"), 9);
    access->SetString(KeyOf(m_object, "names"), "x", 9);
    access->RemovePosition(KeyOf(m_object, "names"), 9);
    access->MoveInPosition(KeyOf(m_object, "refs"), m_object, 1);
    Insert(m_object, "refs", m_object, 9);
    Set(m_object, "loose", m_object);
    ParmOf(m_object, "ratio")->Valuate(ORXUnicodeString("abc"));
    ParmOf(m_object, "ratio")->Valuate(ORXCke::True);
    ParmOf(m_object, "ratio")->ValuateFromValue(NULL_var);
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(Notifications, InstantiationAdditionPrototypesAndVolatileParameters_AreSilent)
{
    Make("ContractListening", "M");
    Add(m_object, "x", tk_boolean);
    const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(m_object->GetStartup());
    ParmOf(startup, "count")->Valuate(3);
    AccessOf(startup)->SetInteger(KeyOf(startup, "count"), 3);
    AccessOf(startup)->SetDouble(KeyOf(startup, "reals"), 1.5, 1);
    ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(ParmOf(m_object, "count")->GetType(), "t")->Valuate(1);
    ParmOf(m_object, "title")->CreateManipulator();
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(Notifications, AliasIdentifierAndReads_AreSilent)
{
    HostUnderTest::GiveAlias(m_object, "Main");
    HostUnderTest::GiveIdentifier(m_object, "I-1");
    TextOf(m_object, "ratio");
    NamesOf(m_object, "refs");
    ObjectOf(m_object, "part");
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(Notifications, TellTheWrittenObjectOnly)
{
    const ORXISpecObject_var part = Make("ContractListening", "P");
    Set(m_object, "loose", part);
    EXPECT_EQ(Take(), (Lines{"N.loose="}));
    ParmOf(part, "ratio")->Valuate(1.0);
    EXPECT_EQ(Take(), (Lines{"P.ratio=1"}));
    // The former owner loses its component in silence.
    const ORXISpecObject_var other = Make("ContractListening", "O");
    Set(other, "loose", part);
    EXPECT_EQ(Take(), (Lines{"O.loose="}));
    ParmOf(ObjectOf(m_object, "part"), "size")->Valuate(1.0);
    EXPECT_EQ(Take(), Lines{});
    // Neither are those told that are referred to.
    Set(m_object, "ref", other);
    ParmOf(other, "count")->Valuate(1);
    EXPECT_EQ(Take(), (Lines{"N.ref=", "O.count=1"}));
}

TEST_F(Notifications, ComeAfterTheStoreAndInsideTheWrite)
{
    std::string seen;
    m_inside = [&] { seen = TextOf(m_object, "ratio"); };
    ParmOf(m_object, "ratio")->Valuate(2.0);
    EXPECT_EQ(seen, "2");
}

TEST_F(Notifications, OfListsAndObjects_ComeAfterTheStore)
{
    std::vector<std::string> seen;
    m_inside = [&] { seen.push_back(NamesOf(m_object, "refs") + '|' + NamesOf(m_object, "parts")); };
    const ORXISpecObject_var leaf = Make("ContractLeaf", "L");
    Insert(m_object, "refs", leaf, 1);
    Insert(m_object, "parts", leaf, 1);
    Set(m_object, "parts", NULL_var, 1);
    AccessOf(m_object)->RemoveObject(KeyOf(m_object, "refs"), leaf);
    AccessOf(m_object)->RemoveAll(KeyOf(m_object, "parts"));
    EXPECT_EQ(seen, (Lines{"L|", "L|L", "L|(null)", "|(null)", "|"}));
}

TEST_F(Notifications, StatusThatComesBack_IsIgnored)
{
    m_status = E_FAIL;
    EXPECT_EQ(AccessOf(m_object)->SetDouble(KeyOf(m_object, "ratio"), 2.0), S_OK);
    EXPECT_EQ(Take(), (Lines{"N.ratio=2"}));
}

TEST_F(Notifications, NestedWrite_IsToldAtOnceAndTheOuterValueStays)
{
    std::optional<double> outer;
    ContractInstance::s_onAdvise = [&](ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var& iValue) {
        m_log.push_back(Narrow(iValue->AsString()));
        if (m_log.size() == 1)
        {
            ParmOf(m_object, "ratio")->Valuate(9.0);
            ParmOf(m_object, "ratio")->ValuateFromValue(ParmOf(m_object, "on")->GetValue());
            outer = iValue->AsReal();
        }
        return S_OK;
    };
    ParmOf(m_object, "ratio")->Valuate(1.0);
    EXPECT_EQ(Take(), (Lines{"1", "9", ""}));
    EXPECT_EQ(outer, 1.0);
    EXPECT_EQ(TextOf(m_object, "ratio"), "(none)");
}

TEST_F(Notifications, Object_IsHeldForTheLengthOfTheCall)
{
    std::unique_ptr<HostUnderTest::Model> model = std::make_unique<HostUnderTest::Model>();
    ORXISpecObject_var object = MakeIn(*model, "ContractListening", "X");
    ORXISpecAttrAccess* const access = AccessOf(object);
    const ORXISpecAttrKey_var key = KeyOf(object, "ratio");
    const int before = ContractInstance::s_alive;
    std::string inside;
    m_inside = [&] {
        object = NULL_var;
        model.reset();
        inside = "went on";
    };
    EXPECT_EQ(access->SetDouble(key, 2.0), S_OK);
    EXPECT_EQ(Take(), (Lines{"X.ratio=2"}));
    EXPECT_EQ(inside, "went on");
    EXPECT_EQ(ContractInstance::s_alive, before);
}

TEST_F(Notifications, ValueObjectAndAttribute_MayGoInsideTheListener)
{
    std::unique_ptr<HostUnderTest::Model> model = std::make_unique<HostUnderTest::Model>();
    ORXISpecObject_var object = MakeIn(*model, "ContractListening", "X");
    ORXISpecAttribute* const added = object->AddAttribute("x", tk_boolean, 0);
    added->Release();
    ORXIValue_var kept;
    ContractInstance::s_onAdvise = [&](ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var& iValue) {
        kept = iValue;
        object = NULL_var;
        model.reset();
        return S_OK;
    };
    EXPECT_EQ(added->SetBoolean(ORXTrue), S_OK);
    EXPECT_TRUE(kept->IsTrue());
}

TEST_F(Notifications, ThrowingListener_LeavesTheStoreAndTheCounts)
{
    const unsigned int before = CountOf(m_object);
    m_inside = [] { throw std::runtime_error("listener"); };
    EXPECT_THROW(ParmOf(m_object, "ratio")->Valuate(2.0), std::runtime_error);
    EXPECT_EQ(TextOf(m_object, "ratio"), "2");
    EXPECT_EQ(CountOf(m_object), before);
}

TEST_F(Notifications, DerivedTypes_AreToldByTheExtensionOfTheirBase)
{
    const ORXISpecObject_var derived = Make("ContractDeepListening", "D");
    ParmOf(derived, "count")->Valuate(1);
    EXPECT_EQ(Take(), (Lines{"D.count=1"}));
    ParmOf(Make("ContractPlain", "P"), "count")->Valuate(1);
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(Notifications, DestructionOfObjectsAndModels_IsSilent)
{
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractListening", "X");
        const ORXISpecObject_var part = MakeIn(model, "ContractListening", "P");
        Set(object, "loose", part);
        Set(object, "ref", part);
        Insert(object, "refs", object, 1);
        ParmOf(object, "ratio")->Valuate(1.0);
        Take();
    }
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(Notifications, MetaClassIsOneThatTellsNameAndIdentifier)
{
    const ORXMetaClass* const meta = ORXIInstance::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(ORXIInstance::MetaObject(), meta);
    EXPECT_STREQ(meta->ClassName(), "ORXIInstance");
    EXPECT_TRUE(meta->InterfaceId() == ORXIInstance::ClassId());
    EXPECT_EQ(meta->Kind(), ORXInterfaceClass);
}
} // namespace
