/**
 * @file
 * Handles: the exact count behind every operation, identity, and the reaction to null.
 */

#include "ContractTest.h"
#include "OwnComponent.h"

namespace
{
class Handles : public ContractTest
{
protected:
    Handles() : m_object(Make("ContractPlain", "A")), m_before(CountOf(m_object)) {}

    /// References that have come since the test began.
    int Gained() const { return static_cast<int>(CountOf(m_object)) - static_cast<int>(m_before); }

    const ORXISpecObject_var m_object;
    const unsigned int m_before;
};

TEST_F(Handles, MadeOfNothing_AreNull)
{
    const ORXISpecObject_var none;
    const ORXISpecObject_var null = NULL_var;
    EXPECT_NE(!none, 0);
    EXPECT_NE(!null, 0);
    EXPECT_FALSE(static_cast<bool>(none));
    EXPECT_TRUE(none == NULL_var);
    EXPECT_FALSE(none != NULL_var);
    EXPECT_TRUE(none == null);
    EXPECT_EQ(none.Pointer(), nullptr);
    EXPECT_EQ(static_cast<ORXISpecObject*>(none), nullptr);
    EXPECT_EQ(!m_object, 0);
    EXPECT_TRUE(static_cast<bool>(m_object));
    EXPECT_TRUE(m_object != NULL_var);
    EXPECT_FALSE(m_object == none);
    EXPECT_TRUE(!ORXISpecObject_var::Adopt(nullptr));
    EXPECT_TRUE(!ORXISpecObject_var::Share(nullptr));
    EXPECT_TRUE(!ORXISpecObject_var::Cast(nullptr));
}

TEST_F(Handles, Copying_AddsOneReferenceAndGivesItBack)
{
    {
        const ORXISpecObject_var copy(m_object);
        EXPECT_EQ(Gained(), 1);
    }
    EXPECT_EQ(Gained(), 0);
}

TEST_F(Handles, Moving_TakesTheReferenceAndLeavesNull)
{
    ORXISpecObject_var source(m_object);
    const ORXISpecObject_var target(std::move(source));
    EXPECT_EQ(Gained(), 1);
    EXPECT_TRUE(!source);
    EXPECT_TRUE(target == m_object);
}

TEST_F(Handles, Assigning_ReleasesTheOldAndCountsTheNewOnce)
{
    const ORXISpecObject_var other = Make("ContractPlain", "B");
    const unsigned int otherBefore = CountOf(other);
    ORXISpecObject_var handle(m_object);
    handle = other;
    EXPECT_EQ(Gained(), 0);
    EXPECT_EQ(CountOf(other), otherBefore + 1);
    handle = NULL_var;
    EXPECT_EQ(CountOf(other), otherBefore);
}

TEST_F(Handles, AssigningToItself_ChangesNothing)
{
    ORXISpecObject_var handle(m_object);
    const ORXISpecObject_var& alias = handle;
    handle = alias;
    EXPECT_EQ(Gained(), 1);
    EXPECT_TRUE(handle == m_object);
}

TEST_F(Handles, MovingIntoAHandle_ReleasesTheOld)
{
    ORXISpecObject_var handle(m_object);
    handle = ORXISpecObject_var();
    EXPECT_EQ(Gained(), 0);
}

TEST_F(Handles, Assigning_StoresTheNewBeforeTheOldEnds)
{
    int alive = 0;
    ORXBaseUnknown_var handle;
    ORXBaseUnknown_var seen;
    OwnComponent* const former = new OwnComponent(alive);
    former->onEnd = [&](OwnComponent&) { seen = handle; };
    handle = ORXBaseUnknown_var::Adopt(former);
    const ORXBaseUnknown_var next = ORXBaseUnknown_var::Adopt(new OwnComponent(alive));
    handle = next;
    EXPECT_TRUE(seen == next);
    EXPECT_EQ(alive, 1);
}

TEST_F(Handles, Casting_AddsOneReferenceOnTheSameObject)
{
    {
        const ORXISpecAttrAccess_var access = m_object;
        EXPECT_EQ(Gained(), 1);
        const ORXISpecObject_var back = access;
        EXPECT_EQ(Gained(), 2);
        EXPECT_EQ(back.Pointer(), m_object.Pointer());
        const ORXBaseUnknown_var base = access;
        EXPECT_EQ(Gained(), 3);
    }
    EXPECT_EQ(Gained(), 0);
}

TEST_F(Handles, CastingInPlace_TakesTheNewValueAndReleasesTheOld)
{
    ORXISpecAttrAccess_var access = m_object;
    const ORXISpecObject_var other = Make("ContractPlain", "B");
    access.__CastTo(other);
    EXPECT_TRUE(access == other);
    EXPECT_EQ(Gained(), 0);
    access.__CastTo(nullptr);
    EXPECT_TRUE(!access);
    access.__CastTo(m_object);
    access.__CastTo(m_model.Container());
    EXPECT_TRUE(!access) << "a container offers no attributes";
    EXPECT_EQ(Gained(), 0);
}

TEST_F(Handles, CastToWhatIsNotOffered_GivesNullAndNoReference)
{
    const ORXICkeParm_var parm = m_object;
    EXPECT_TRUE(!parm);
    EXPECT_EQ(Gained(), 0);
}

/// Counts the requests that it gets.
class Probe : public ORXBaseUnknown
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        ++requests;
        return ORXBaseUnknown::QueryInterface(iInterface, oInterface);
    }
    int requests = 0;
};

TEST_F(Handles, CastOfNull_AsksNobodyAndCastOfAComponentAsksItOnce)
{
    const ORXHandle<Probe> probe = ORXHandle<Probe>::Adopt(new Probe);
    const ORXBaseUnknown_var none;
    const ORXISpecAttrAccess_var ofNone = none;
    EXPECT_TRUE(!ofNone);
    const ORXBaseUnknown_var component = probe;
    EXPECT_EQ(probe->requests, 0) << "to what it derives from nothing has to be asked";
    const ORXISpecAttrAccess_var ofComponent = component;
    EXPECT_TRUE(!ofComponent);
    EXPECT_EQ(probe->requests, 1);
    EXPECT_EQ(CountOf(probe), 2u) << "a refused cast keeps nothing";
}

TEST_F(Handles, AdoptAndShare_DifferByOneReference)
{
    const ORXISpecObject_var shared = ORXISpecObject_var::Share(m_object);
    EXPECT_EQ(Gained(), 1);
    m_object->AddRef();
    EXPECT_EQ(Gained(), 2);
    const ORXISpecObject_var adopted = ORXISpecObject_var::Adopt(m_object);
    EXPECT_EQ(Gained(), 2);
}

TEST_F(Handles, NavigatingAThousandTimes_LeavesEveryCountAsItWas)
{
    const ORXISpecObject_var part = ObjectOf(m_object, "part");
    const unsigned int partBefore = CountOf(part);
    for (int round = 0; round < 1000; ++round)
    {
        const ORXISpecObject_var found = ObjectOf(m_object, "part");
        const ORXISpecObject_var owner = ORXISpecObject_var::Adopt(found->GetOwner());
        const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(found->GetStartup());
        const ORXBaseUnknown_var container = found->GetContainer();
        ASSERT_TRUE(owner == m_object && !!startup && !!container);
        ASSERT_EQ(ParmOf(found, "size")->GetValue()->AsReal(), 1.0);
    }
    EXPECT_EQ(CountOf(part), partBefore);
    EXPECT_EQ(Gained(), 0);
}

TEST_F(Handles, CallThroughNull_EndsFatally)
{
    const ORXISpecObject_var null;
    EXPECT_TRUE(HostUnderTest::EndsByNullHandle([&] { null->GetName(); }));
    EXPECT_TRUE(HostUnderTest::EndsByNullHandle([] { ORXISpecObject_var::ThrowErrorNullVar(); }));
    EXPECT_FALSE(HostUnderTest::EndsByNullHandle([&] { m_object->GetName(); }));
}

TEST_F(Handles, EqualTo_ComparesComponentsAndTestsForNull)
{
    const ORXISpecAttrAccess_var access = m_object;
    const ORXISpecObject_var other = Make("ContractPlain", "B");
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(nullptr, nullptr));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(m_object, nullptr));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(nullptr, m_object));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(m_object, m_object));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(m_object, access));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(access, m_object));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(m_object, other));
    EXPECT_TRUE(access == m_object);
    EXPECT_FALSE(access != m_object);
    EXPECT_TRUE(access != other);
}
} // namespace
