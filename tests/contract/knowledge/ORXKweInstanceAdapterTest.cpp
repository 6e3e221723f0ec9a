/**
 * @file
 * The knowledge side of an object, as extension classes inherit it.
 */

#include "ContractExtensions.h"
#include "ContractTest.h"
#include "EventListener.h"

namespace
{
class Adapter : public ContractTest
{
protected:
    Adapter() : m_object(Make("ContractDeepListening", "A")), m_instance(m_object) {}
    ~Adapter() override { ContractInstance::s_onAdvise = nullptr; }

    const ORXISpecObject_var m_object;
    const ORXIInstance_var m_instance;
};

TEST_F(Adapter, LogicalName_IsTheObjectsUntilOneIsSet)
{
    ORXUnicodeString name;
    EXPECT_EQ(m_instance->GetLogicalName(name), S_OK);
    EXPECT_EQ(Narrow(name), "A");
    EXPECT_EQ(m_instance->SetLogicalName("other"), S_OK);
    EXPECT_EQ(m_instance->GetLogicalName(name), S_OK);
    EXPECT_EQ(Narrow(name), "other");
}

TEST_F(Adapter, LogicalName_IsOfTheObjectAndHoldsEveryPlane)
{
    for (const std::string& character : CharactersOfEveryPlane())
    {
        EXPECT_EQ(m_instance->SetLogicalName(character.c_str()), S_OK);
        ORXUnicodeString name("before");
        EXPECT_EQ(ORXIInstance_var(m_object)->GetLogicalName(name), S_OK);
        EXPECT_EQ(Narrow(name), character);
    }
    EXPECT_EQ(Narrow(m_object->GetName()), "A");
    EXPECT_EQ(m_instance->SetLogicalName(""), S_OK);
    ORXUnicodeString name;
    EXPECT_EQ(m_instance->GetLogicalName(name), S_OK);
    EXPECT_EQ(Narrow(name), "A") << "taken away again";
}

TEST_F(Adapter, TellsOwnerTypesAndThatItIsPublic)
{
    EXPECT_TRUE(!m_instance->GetOwner());
    const ORXISpecObject_var owner = Make("ContractPlain", "O");
    Set(owner, "loose", m_object);
    EXPECT_TRUE(m_instance->GetOwner() == owner);
    ORXListValORXUnicodeString types;
    types.Append("first");
    EXPECT_EQ(m_instance->ListSupportedTypes(types), S_OK);
    ASSERT_EQ(types.Size(), 4);
    EXPECT_EQ(Narrow(types[1]), "first");
    EXPECT_EQ(Narrow(types[2]), "ContractDeepListening");
    EXPECT_EQ(Narrow(types[3]), "ContractListening");
    EXPECT_EQ(Narrow(types[4]), "ContractPlain");
    EXPECT_TRUE(m_instance->IsPublic());
    EXPECT_TRUE(!m_instance->Type());
    EXPECT_FALSE(m_instance->IsSupporting(ParmOf(m_object, "ratio")->GetType()));
}

TEST_F(Adapter, ReadsAndWritesAttributesByName)
{
    EXPECT_EQ(m_instance->GetValue("ratio")->AsReal(), 0.5);
    EXPECT_EQ(m_instance->SetValue("ratio", m_instance->GetValue("count")), S_OK);
    EXPECT_EQ(TextOf(m_object, "ratio"), "3");
    EXPECT_TRUE(!m_instance->GetValue("nothing"));
    EXPECT_EQ(m_instance->SetValue("nothing", m_instance->GetValue("count")), E_FAIL);
}

TEST_F(Adapter, SetValue_TellsAsEveryWriteDoes)
{
    std::vector<std::string> told;
    ContractInstance::s_onAdvise = [&](ORXBaseUnknown*, const ORXUnicodeString& iName, const ORXIValue_var& iValue) {
        told.push_back(Narrow(iName) + '=' + Narrow(iValue->AsString()));
        return S_OK;
    };
    EXPECT_EQ(m_instance->SetValue("ratio", m_instance->GetValue("count")), S_OK);
    EXPECT_EQ(m_instance->SetValue("nothing", m_instance->GetValue("count")), E_FAIL);
    EXPECT_EQ(m_instance->SetValue("ratio", NULL_var), S_OK) << "null does nothing";
    EXPECT_EQ(told, (std::vector<std::string>{"ratio=3"}));
}

TEST_F(Adapter, TellsItsListenersInTheOrderOfSubscriptionUntilTheyLeave)
{
    const ORXISpecObject_var first = Make("ContractListening", "B");
    const ORXISpecObject_var second = Make("ContractListening", "C");
    EXPECT_EQ(m_instance->AddInstanceListener(first), S_OK);
    EXPECT_EQ(m_instance->AddInstanceListener(second), S_OK);
    EXPECT_EQ(m_instance->AddInstanceListener(NULL_var), E_FAIL);
    EXPECT_EQ(m_instance->AddInstanceListener(Make("ContractPlain", "P")), E_FAIL);

    std::vector<std::string> log;
    ContractInstance::s_onAdvise = [&](ORXBaseUnknown* iRoot, const ORXUnicodeString& iName,
                                       const ORXIValue_var& iValue) {
        const ORXISpecObject_var object = ORXISpecObject_var::Cast(iRoot);
        log.push_back(Narrow(object->GetName()) + '.' + Narrow(iName) + '=' + Narrow(iValue->AsString()));
        return S_OK;
    };
    const auto write = [&](int iValue) {
        log.clear();
        ParmOf(m_object, "count")->Valuate(iValue);
        return log;
    };
    using Lines = std::vector<std::string>;
    EXPECT_EQ(write(1), (Lines{"A.count=1", "B.count=1", "C.count=1"}));
    EXPECT_EQ(m_instance->RemoveInstanceListener(first), S_OK);
    EXPECT_EQ(m_instance->RemoveInstanceListener(first), S_FALSE);
    EXPECT_EQ(m_instance->RemoveInstanceListener(NULL_var), S_FALSE);
    EXPECT_EQ(write(2), (Lines{"A.count=2", "C.count=2"}));

    // Who leaves while listeners are being told is still told: they are told from a snapshot.
    EXPECT_EQ(m_instance->AddInstanceListener(first), S_OK);
    ContractInstance::s_onAdvise = [&](ORXBaseUnknown* iRoot, const ORXUnicodeString&, const ORXIValue_var&) {
        log.push_back(Narrow(ORXISpecObject_var::Cast(iRoot)->GetName()));
        if (iRoot == second->GetImpl(0))
            m_instance->RemoveInstanceListener(first);
        return S_OK;
    };
    EXPECT_EQ(write(3), (Lines{"A", "C", "B"}));
    EXPECT_EQ(write(4), (Lines{"A", "C"}));
    EXPECT_EQ(m_instance->RemoveInstanceListener(second), S_OK);
}

TEST_F(Adapter, HandsOnEveryEvent)
{
    const EventListener_var first = EventListener_var::Adopt(new EventListener);
    const EventListener_var second = EventListener_var::Adopt(new EventListener);
    EXPECT_EQ(m_instance->AddInstanceListener(first), S_OK);
    EXPECT_EQ(m_instance->AddInstanceListener(second), S_OK);
    EXPECT_EQ(m_instance->AdviseDynamicAttributeAdded("a"), S_OK);
    EXPECT_EQ(m_instance->AdviseDynamicAttributeRemoved("b"), S_OK);
    EXPECT_EQ(m_instance->AdviseDynamicAttributeRenamed("c", "d"), S_OK);
    EXPECT_EQ(m_instance->AdviseRemoved(), S_OK);
    EXPECT_EQ(m_instance->AdviseModification(), S_OK);
    EXPECT_EQ(m_instance->AdviseTypeChanged(ParmOf(m_object, "ratio")->GetType()), S_OK);
    EXPECT_EQ(m_instance->AdviseSpecificEvent("e"), S_OK);
    EXPECT_EQ(m_instance->AdviseAttributeChanged("f", m_instance->GetValue("count")), S_OK);
    const std::vector<std::string> wanted = {"added a",  "removed b",    "renamed c d", "removed",
                                             "modified", "type changed", "event e",     "changed f=3"};
    EXPECT_EQ(first->Told(), wanted);
    EXPECT_EQ(second->Told(), wanted) << "also when the first answers a failure";
    EXPECT_EQ(m_instance->RemoveInstanceListener(first), S_OK);
    EXPECT_EQ(m_instance->RemoveInstanceListener(second), S_OK);
}

TEST_F(Adapter, HoldsItsListenersUntilTheyAreRemoved)
{
    const EventListener_var listener = EventListener_var::Adopt(new EventListener);
    EXPECT_EQ(m_instance->AddInstanceListener(listener), S_OK);
    EXPECT_EQ(m_instance->AddInstanceListener(listener), S_OK);
    EXPECT_EQ(CountOf(listener), 3u);
    m_instance->AdviseModification();
    EXPECT_EQ(listener->Told(), (std::vector<std::string>{"modified", "modified"})) << "subscribed twice, told twice";
    EXPECT_EQ(m_instance->RemoveInstanceListener(listener), S_OK);
    EXPECT_EQ(CountOf(listener), 2u);
    m_instance->AdviseModification();
    EXPECT_EQ(listener->Told(), (std::vector<std::string>{"modified"}));
    EXPECT_EQ(m_instance->RemoveInstanceListener(listener), S_OK);
    EXPECT_EQ(m_instance->RemoveInstanceListener(listener), S_FALSE);
    EXPECT_EQ(CountOf(listener), 1u);
}

TEST_F(Adapter, LetsItsListenersGoWithTheModel)
{
    const EventListener_var listener = EventListener_var::Adopt(new EventListener);
    {
        const HostUnderTest::Model model;
        ORXIInstance_var(MakeIn(model, "ContractListening", "B"))->AddInstanceListener(listener);
        EXPECT_EQ(CountOf(listener), 2u);
    }
    EXPECT_EQ(CountOf(listener), 1u);
}
} // namespace
