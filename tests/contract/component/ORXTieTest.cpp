/**
 * @file
 * Extensions and ties: one instance per object and class, linked before its constructor, alive until the object dies.
 */

#include <stdexcept>

#include "ContractExtensions.h"
#include "ContractTest.h"

namespace
{
class Extensions : public ContractTest
{
protected:
    ~Extensions() override { ContractGreeting::s_onConstruct = nullptr; }

    const ORXISpecObject_var m_object = Make("ContractListening", "E");
};

TEST_F(Extensions, AreMadeOnDemandAndLiveUntilTheObjectDies)
{
    const int before = ContractInstance::s_alive;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractListening", "X");
        EXPECT_EQ(ContractInstance::s_alive, before);
        const unsigned int references = CountOf(object);
        EXPECT_FALSE(!ContractINumber_var(object));
        EXPECT_EQ(ContractInstance::s_alive, before + 1) << "also when every tie to it has gone";
        EXPECT_EQ(CountOf(object), references);
    }
    EXPECT_EQ(ContractInstance::s_alive, before);
}

TEST_F(Extensions, AllInterfacesOfAClass_ReachOneInstance)
{
    const int before = ContractInstance::s_made;
    const ORXIInstance_var instance = m_object;
    const ContractINumber_var number = m_object;
    const ContractINumber_var again = instance;
    EXPECT_EQ(number->Number(), 42);
    EXPECT_EQ(ContractInstance::s_made, before + 1);
    EXPECT_TRUE(number == instance);
    EXPECT_EQ(number->GetImpl(0), m_object->GetImpl(0));
    EXPECT_EQ(instance->GetImpl(0), m_object->GetImpl(0));
}

TEST_F(Extensions, OfTwoObjects_AreTwo)
{
    const int before = ContractInstance::s_alive;
    const ORXISpecObject_var other = Make("ContractListening", "F");
    EXPECT_FALSE(ContractINumber_var(m_object) == ContractINumber_var(other));
    EXPECT_EQ(ContractInstance::s_alive, before + 2);
    EXPECT_EQ(ContractIGreeting_var(m_object)->Greet(), "hello E");
    EXPECT_EQ(ContractIGreeting_var(other)->Greet(), "hello F");
}

TEST_F(Extensions, SharedTie_IsFoundAgainAndTheOtherKindIsMadeAnew)
{
    const ORXIInstance_var instance = m_object;
    EXPECT_EQ(ORXIInstance_var(m_object).Pointer(), instance.Pointer());
    const ContractINumber_var number = m_object;
    EXPECT_NE(ContractINumber_var(m_object).Pointer(), number.Pointer());
    // A tie answers for its own interface itself.
    EXPECT_EQ(ContractINumber_var::Cast(number).Pointer(), number.Pointer());
}

TEST_F(Extensions, SharedTie_IsMadeAnewOnceNobodyHoldsIt)
{
    const int before = HostUnderTest::LiveComponents();
    EXPECT_FALSE(!ORXIInstance_var(m_object));
    const int withInstance = HostUnderTest::LiveComponents();
    EXPECT_EQ(withInstance, before + 1) << "the extension stays, its tie does not";
    {
        const ORXIInstance_var first = m_object;
        const ORXIInstance_var second = m_object;
        EXPECT_EQ(HostUnderTest::LiveComponents(), withInstance + 1);
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), withInstance);
}

TEST_F(Extensions, Ties_HoldTheObject)
{
    const unsigned int before = CountOf(m_object);
    const int live = HostUnderTest::LiveComponents();
    {
        const ORXIInstance_var instance = m_object;
        const ORXIInstance_var copy = instance;
        EXPECT_EQ(CountOf(m_object), before + 1) << "once, however often they are held";
        const ContractINumber_var number = m_object;
        EXPECT_EQ(CountOf(m_object), before + 2);
        EXPECT_EQ(HostUnderTest::LiveComponents(), live + 3) << "one extension and two ties";
    }
    EXPECT_EQ(CountOf(m_object), before);
}

TEST_F(Extensions, Ties_CountTheirReferences)
{
    const ContractINumber_var number = m_object;
    EXPECT_EQ(number->AddRef(), 2u);
    EXPECT_EQ(number->Release(), 1u);
    const ORXIInstance_var instance = m_object;
    const ORXIInstance_var again = m_object;
    EXPECT_EQ(instance->AddRef(), 3u);
    EXPECT_EQ(instance->Release(), 2u);
}

TEST_F(Extensions, TieAlone_KeepsTheObjectAlive)
{
    ORXIInstance_var instance;
    const int before = HostUnderTest::LiveComponents();
    {
        const HostUnderTest::Model model;
        instance = MakeIn(model, "ContractListening", "X");
    }
    EXPECT_EQ(Narrow(ORXISpecObject_var(instance)->GetName()), "X");
    instance = NULL_var;
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}

TEST_F(Extensions, DirectExtension_IsTheInstanceItselfAndCountsTheObject)
{
    const ContractIGreeting_var greeting = m_object;
    EXPECT_EQ(greeting->Greet(), "hello E");
    EXPECT_EQ(ContractIGreeting_var(m_object).Pointer(), greeting.Pointer());
    EXPECT_TRUE(greeting == m_object);
    EXPECT_TRUE(ORXISpecObject_var(greeting).Pointer() == m_object.Pointer());
    EXPECT_TRUE(!ORXICkeParm_var(greeting));
    const unsigned int before = CountOf(m_object);
    const ContractIGreeting_var copy = greeting;
    EXPECT_EQ(CountOf(m_object), before + 1);
}

TEST_F(Extensions, AreLinkedBeforeTheirConstructorRuns)
{
    ORXBaseUnknown* root = nullptr;
    std::string name;
    bool isOffered = true;
    unsigned int inside = 0;
    ContractGreeting::s_onConstruct = [&](ContractGreeting& iSelf) {
        // As an extension's constructor does: a temporary reference on itself.
        const ORXBaseUnknown_var self = ORXBaseUnknown_var::Share(&iSelf);
        root = iSelf.GetImpl(0);
        name = Narrow(ORXISpecObject_var(self)->GetName());
        isOffered = !!ContractIGreeting_var::Cast(root);
        inside = CountOf(m_object);
    };
    const unsigned int before = CountOf(m_object);
    const ContractIGreeting_var greeting = m_object;
    EXPECT_EQ(root, m_object->GetImpl(0));
    EXPECT_EQ(name, "E");
    // Under construction it does not offer itself, so that asking for it does not go round in a circle.
    EXPECT_FALSE(isOffered);
    EXPECT_EQ(inside, before + 1);
    EXPECT_EQ(greeting->Greet(), "hello E");
    EXPECT_EQ(CountOf(m_object), before + 1);
}

TEST_F(Extensions, ConstructorMayAskForOtherExtensionsAndMakeComponents)
{
    ContractGreeting::s_onConstruct = [&](ContractGreeting& iSelf) {
        EXPECT_EQ(ContractINumber_var::Cast(&iSelf)->Number(), 42);
        EXPECT_EQ(Narrow(Make("ContractPlain", "Made")->GetName()), "Made");
    };
    EXPECT_EQ(ContractIGreeting_var(m_object)->Greet(), "hello E");
}

TEST_F(Extensions, ThrowingConstructor_LeavesNothingAndCanBeTriedAgain)
{
    const unsigned int before = CountOf(m_object);
    const int live = HostUnderTest::LiveComponents();
    ContractGreeting::s_onConstruct = [](ContractGreeting&) { throw std::runtime_error("no"); };
    // A test that sees the exception keeps the count of instances itself: the destructor does not run.
    EXPECT_THROW(ContractIGreeting_var{m_object}, std::runtime_error);
    --ContractGreeting::s_alive;
    EXPECT_EQ(CountOf(m_object), before);
    EXPECT_EQ(HostUnderTest::LiveComponents(), live);
    ContractGreeting::s_onConstruct = nullptr;
    EXPECT_EQ(ContractIGreeting_var(m_object)->Greet(), "hello E");
}

TEST_F(Extensions, TieLink_FindsTheSharedTieWithANewReference)
{
    ORXBaseUnknown* const root = m_object->GetImpl(0);
    EXPECT_EQ(Tie_Link(root, nullptr, IID_ORXIInstance), nullptr) << "nobody has asked yet";
    const ORXIInstance_var instance = m_object;
    ORXBaseUnknown* const found = Tie_Link(root, nullptr, IID_ORXIInstance);
    EXPECT_EQ(found, static_cast<ORXBaseUnknown*>(instance.Pointer()));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->Release(), 1u);
    const ContractINumber_var number = m_object;
    EXPECT_EQ(Tie_Link(root, nullptr, ContractINumber::ClassId()), nullptr) << "the other kind is not known";
}

TEST_F(Extensions, TieReleasedThroughItsRecord_SaysWhenItIsToBeDeleted)
{
    ORXTieRecord record;
    record.count = 1;
    EXPECT_EQ(Tie_AddRef(record), 2u);
    int mustDelete = 7;
    EXPECT_EQ(Tie_Release(&mustDelete, record, ORXTieClass), 1u);
    EXPECT_EQ(mustDelete, 0);
    EXPECT_EQ(Tie_Release(&mustDelete, record, ORXTieClass), 0u);
    EXPECT_EQ(mustDelete, 1);
}

TEST_F(Extensions, OfAComponent_LiveWithIt)
{
    const int before = ContractInstance::s_alive;
    const ORXISpecObject_var owner = Make("ContractPlain", "O");
    {
        const ORXISpecObject_var part = Make("ContractListening", "P");
        Set(owner, "loose", part);
        EXPECT_FALSE(!ContractINumber_var(part));
    }
    EXPECT_EQ(ContractInstance::s_alive, before + 1);
    Set(owner, "loose", NULL_var);
    EXPECT_EQ(ContractInstance::s_alive, before);
}
} // namespace
