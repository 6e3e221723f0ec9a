/**
 * @file
 * Extensions and ties: one instance per object and class, linked before its constructor, found through the chain of
 * types, alive until the object dies.
 */

#include "HostTypes.h"
#include "ORXIParmPublisher.h"
#include "TestExtensions.h"
#include "VYRIMpaDefaultManagement.h"
#include "VYRIMpaDefaultManagementProtected.h"

namespace
{
class Extensions : public HostTest
{
protected:
    Extensions() : m_object(Make("HostListening", "E")) {}
    ~Extensions() override { TestGreeting::s_onConstruct = nullptr; }

    const ORXISpecObject_var m_object;
};

TEST_F(Extensions, AreMadeOnDemandAndLiveUntilTheObjectDies)
{
    const int before = TestInstance::s_alive;
    {
        VYRStandalone::Model model;
        const ORXISpecObject_var object = model.Create("HostListening", "X");
        EXPECT_EQ(TestInstance::s_alive, before);
        EXPECT_FALSE(!TestINumber_var(object));
        EXPECT_EQ(TestInstance::s_alive, before + 1);
        // Also when every tie to it has gone.
        EXPECT_EQ(CountOf(object), 2u);
    }
    EXPECT_EQ(TestInstance::s_alive, before);
}

TEST_F(Extensions, AllInterfacesOfAClass_ReachOneInstance)
{
    const int before = TestInstance::s_made;
    const ORXIInstance_var instance = m_object;
    const TestINumber_var number = m_object;
    const TestINumber_var again = instance;
    EXPECT_EQ(number->Number(), 42);
    EXPECT_EQ(TestInstance::s_made, before + 1);
    EXPECT_TRUE(number == instance);
    EXPECT_EQ(number->GetImpl(0), m_object->GetImpl(0));
    EXPECT_EQ(instance->GetImpl(0), m_object->GetImpl(0));
}

TEST_F(Extensions, SharedTie_IsFoundAgainAndTheOtherKindIsMadeAnew)
{
    const ORXIInstance_var instance = m_object;
    EXPECT_EQ(ORXIInstance_var(m_object).Pointer(), instance.Pointer());
    const TestINumber_var number = m_object;
    EXPECT_NE(TestINumber_var(m_object).Pointer(), number.Pointer());
    // A tie answers for its own interface itself.
    EXPECT_EQ(TestINumber_var::Cast(number).Pointer(), number.Pointer());
}

TEST_F(Extensions, Ties_HoldTheObject)
{
    const unsigned int before = CountOf(m_object);
    {
        const ORXIInstance_var instance = m_object;
        const ORXIInstance_var copy = instance;
        EXPECT_EQ(CountOf(m_object), before + 1);
        const TestINumber_var number = m_object;
        EXPECT_EQ(CountOf(m_object), before + 2);
        EXPECT_EQ(VYRStandalone::LiveComponentNames(),
                  (std::vector<std::string>{"Container 1", "Extension 1", "FeatureObject 3", "Tie 2"}));
    }
    EXPECT_EQ(CountOf(m_object), before);
}

TEST_F(Extensions, TieAlone_KeepsTheObjectAlive)
{
    ORXIInstance_var instance;
    const int before = VYRStandalone::LiveComponents();
    {
        VYRStandalone::Model model;
        instance = model.Create("HostListening", "X");
    }
    EXPECT_EQ(Narrow(ORXISpecObject_var(instance)->GetName()), "X");
    instance = NULL_var;
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(Extensions, DirectExtension_IsTheInstanceItselfAndCountsTheObject)
{
    const TestIGreeting_var greeting = m_object;
    EXPECT_EQ(greeting->Greet(), "hello E");
    EXPECT_EQ(TestIGreeting_var(m_object).Pointer(), greeting.Pointer());
    EXPECT_TRUE(greeting == m_object);
    EXPECT_TRUE(ORXISpecObject_var(greeting).Pointer() == m_object.Pointer());
    EXPECT_TRUE(!ORXICkeParm_var(greeting));
    const unsigned int before = CountOf(m_object);
    const TestIGreeting_var copy = greeting;
    EXPECT_EQ(CountOf(m_object), before + 1);
}

TEST_F(Extensions, AreLinkedBeforeTheirConstructorRuns)
{
    ORXBaseUnknown* root = nullptr;
    std::string name;
    bool isOffered = true;
    unsigned int inside = 0;
    TestGreeting::s_onConstruct = [&](TestGreeting& iSelf) {
        // As an extension's constructor does: a temporary reference on itself.
        const ORXBaseUnknown_var self = ORXBaseUnknown_var::Share(&iSelf);
        root = iSelf.GetImpl(0);
        name = Narrow(ORXISpecObject_var(self)->GetName());
        isOffered = !!TestIGreeting_var::Cast(root);
        inside = CountOf(m_object);
    };
    const unsigned int before = CountOf(m_object);
    const TestIGreeting_var greeting = m_object;
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
    TestGreeting::s_onConstruct = [&](TestGreeting& iSelf) {
        EXPECT_EQ(TestINumber_var::Cast(&iSelf)->Number(), 42);
        EXPECT_EQ(Narrow(Make("HostPlain", "Made")->GetName()), "Made");
    };
    EXPECT_EQ(TestIGreeting_var(m_object)->Greet(), "hello E");
}

TEST_F(Extensions, ThrowingConstructor_LeavesNothingAndCanBeTriedAgain)
{
    const unsigned int before = CountOf(m_object);
    const int live = VYRStandalone::LiveComponents();
    TestGreeting::s_onConstruct = [](TestGreeting&) { throw std::runtime_error("no"); };
    // A test that sees the exception keeps the count of instances itself: the destructor does not run.
    EXPECT_THROW(TestIGreeting_var{m_object}, std::runtime_error);
    --TestGreeting::s_alive;
    EXPECT_EQ(CountOf(m_object), before);
    EXPECT_EQ(VYRStandalone::LiveComponents(), live);
    TestGreeting::s_onConstruct = nullptr;
    EXPECT_EQ(TestIGreeting_var(m_object)->Greet(), "hello E");
}

TEST_F(Extensions, MostDerivedType_ComesFirst)
{
    const ORXISpecObject_var deep = Make("HostDeepListening", "D");
    EXPECT_EQ(TestIGreeting_var(deep)->Greet(), "deep");
    EXPECT_EQ(TestINumber_var(deep)->Number(), 42);
    EXPECT_EQ(TestIGreeting_var(m_object)->Greet(), "hello E");
    EXPECT_TRUE(!TestIGreeting_var(Make("HostPlain", "P")));
}

TEST_F(Extensions, AreNotAttachedToStartups)
{
    EXPECT_TRUE(!TestIGreeting_var(ORXISpecObject_var::Adopt(m_object->GetStartup())));
}

TEST_F(Extensions, AreFoundByTheNameOfTheirInterface)
{
    void* found = nullptr;
    EXPECT_EQ(m_object->QueryInterface("TestINumber", &found), S_OK);
    EXPECT_EQ(TestINumber_var::Adopt(static_cast<TestINumber*>(found))->Number(), 42);
}

TEST_F(Extensions, RegistrationTable_IsRunOnce)
{
    TestINumber_var{m_object};
    EXPECT_EQ(RegistrationRuns(), 1);
}

TEST_F(Extensions, DropExtensions_LetsAllGoAndTheyAreMadeAnew)
{
    const ORXISpecObject_var part = Make("HostListening", "P");
    const int before = TestInstance::s_alive;
    const int made = TestInstance::s_made;
    Set(m_object, "loose", part);
    TestINumber_var{m_object};
    ORXIInstance_var{part};
    TestIGreeting_var{part};
    EXPECT_EQ(TestInstance::s_alive, before + 2);
    m_model.DropExtensions();
    EXPECT_EQ(TestInstance::s_alive, before);
    EXPECT_EQ(TestGreeting::s_alive, 0);
    EXPECT_EQ(TestINumber_var(m_object)->Number(), 42);
    EXPECT_EQ(TestIGreeting_var(part)->Greet(), "hello P");
    EXPECT_EQ(TestInstance::s_made, made + 3);
}

TEST_F(Extensions, MetaClasses_TellClassAndBase)
{
    const ORXMetaClass* const meta = TestInstance::Meta();
    EXPECT_STREQ(meta->ClassName(), "TestInstance");
    EXPECT_EQ(meta->Kind(), ORXExtensionClass);
    EXPECT_STREQ(meta->LateType(), "HostListening");
    EXPECT_TRUE(meta->InterfaceId() == IID_ORXIParmPublisher);
    EXPECT_EQ(meta->IsAKindOf("TestInstance"), 1);
    EXPECT_EQ(meta->IsAKindOf("ORXIParmPublisher"), 1);
    EXPECT_EQ(meta->IsAKindOf("ORXIInstance"), 0);
    EXPECT_EQ(meta->IsAKindOf(nullptr), 0);
}

TEST_F(Extensions, MetaClassesOfInterfaces_AreOneEach)
{
    EXPECT_STREQ(ORXIInstance::MetaObject()->ClassName(), "ORXIInstance");
    EXPECT_TRUE(ORXIInstance::MetaObject()->InterfaceId() == IID_ORXIInstance);
    EXPECT_EQ(ORXIInstance::MetaObject(), ORXIInstance::MetaObject());
    EXPECT_STREQ(ORXIParmPublisher::MetaObject()->ClassName(), "ORXIParmPublisher");
    EXPECT_STREQ(VYRIMpaDefaultManagement::MetaObject()->ClassName(), "VYRIMpaDefaultManagement");
    EXPECT_STREQ(VYRIMpaDefaultManagementProtected::MetaObject()->ClassName(), "VYRIMpaDefaultManagementProtected");
}
} // namespace
