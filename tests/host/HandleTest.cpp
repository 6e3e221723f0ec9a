/**
 * @file
 * Handles: the exact count behind every operation, identity, and the reaction to null.
 */

#include "HostTypes.h"
#include "ORXOmxInternals.h"

namespace
{
/// A component of its own, which overrides nothing, and tells of its end.
class Plain : public ORXBaseUnknown
{
public:
    explicit Plain(int& ioAlive) : m_alive(ioAlive) { ++m_alive; }
    ~Plain() override { --m_alive; }

private:
    int& m_alive;
};

class Handles : public HostTest
{
protected:
    Handles() : m_object(Make("HostPlain", "A")), m_before(CountOf(m_object)) {}

    /// References that have come since the test began.
    int Gained() const { return static_cast<int>(CountOf(m_object)) - static_cast<int>(m_before); }

    const ORXISpecObject_var m_object;
    const unsigned int m_before;
};

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
    const ORXISpecObject_var other = Make("HostPlain", "B");
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

TEST_F(Handles, CastingInPlace_ReleasesTheOldValue)
{
    ORXISpecAttrAccess_var access = m_object;
    access.__CastTo(nullptr);
    EXPECT_TRUE(!access);
    EXPECT_EQ(Gained(), 0);
}

TEST_F(Handles, CastToWhatIsNotOffered_GivesNullAndNoReference)
{
    const ORXICkeParm_var parm = m_object;
    EXPECT_TRUE(!parm);
    EXPECT_EQ(Gained(), 0);
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

TEST_F(Handles, Parameters_CountTheirObject)
{
    {
        const ORXICkeParm_var parm = ParmOf(m_object, "ratio");
        EXPECT_EQ(Gained(), 1);
        const ORXICkeParm_var again = ParmOf(m_object, "ratio");
        EXPECT_EQ(again.Pointer(), parm.Pointer());
        EXPECT_EQ(Gained(), 2);
    }
    EXPECT_EQ(Gained(), 0);
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

TEST_F(Handles, CallThroughNull_Throws)
{
    const ORXISpecObject_var null;
    EXPECT_THROW(null->GetName(), VYRStandalone::NullHandleError);
    EXPECT_THROW(ORXOmx::Internals::NullPointerAssertion(), VYRStandalone::NullPointerError);
}

TEST_F(Handles, EqualTo_ComparesComponentsAndTestsForNull)
{
    const ORXISpecAttrAccess_var access = m_object;
    const ORXISpecObject_var other = Make("HostPlain", "B");
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(nullptr, nullptr));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(m_object, nullptr));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(nullptr, m_object));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(m_object, access));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(m_object, other));
    EXPECT_TRUE(access == m_object);
    EXPECT_TRUE(access != other);
    EXPECT_EQ(m_object->IsEqual(access.Pointer()), 1);
    EXPECT_EQ(m_object->IsEqual(nullptr), 0);
    EXPECT_EQ(access->GetImpl(0), m_object->GetImpl(0));
    EXPECT_EQ(access->GetImpl(1), nullptr);
}

TEST_F(Handles, QueryInterfaceByName_AsksLikeTheIdentifier)
{
    void* access = nullptr;
    EXPECT_EQ(m_object->QueryInterface("ORXISpecAttrAccess", &access), S_OK);
    const ORXISpecAttrAccess_var held = ORXISpecAttrAccess_var::Adopt(static_cast<ORXISpecAttrAccess*>(access));
    EXPECT_TRUE(held == m_object);
    EXPECT_EQ(Gained(), 1);
    void* nothing = &access;
    EXPECT_EQ(m_object->QueryInterface("NoSuchInterface", &nothing), E_NOINTERFACE);
    EXPECT_EQ(nothing, nullptr);
}

TEST(OwnComponents, StartWithOneReferenceAndDieWithTheLast)
{
    int alive = 0;
    const int before = VYRStandalone::LiveComponents();
    {
        const ORXBaseUnknown_var handle = ORXBaseUnknown_var::Adopt(new Plain(alive));
        EXPECT_EQ(VYRStandalone::ReferenceCount(handle), 1u);
        EXPECT_EQ(VYRStandalone::LiveComponents(), before + 1);
        EXPECT_EQ(VYRStandalone::LiveComponentNames(), std::vector<std::string>{"Component 1"});
        const ORXBaseUnknown_var copy = handle;
        EXPECT_EQ(VYRStandalone::ReferenceCount(handle), 2u);
        EXPECT_EQ(handle->GetImpl(0), handle.Pointer());
        EXPECT_STREQ(handle->IsA(), "ORXBaseUnknown");
        EXPECT_EQ(handle->IsNull(), 0);
    }
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST(OwnComponents, OfferOnlyTheRootInterface)
{
    int alive = 0;
    const ORXBaseUnknown_var handle = ORXBaseUnknown_var::Adopt(new Plain(alive));
    EXPECT_TRUE(ORXBaseUnknown_var::Cast(handle) == handle);
    EXPECT_TRUE(!ORXISpecObject_var::Cast(handle));
    EXPECT_EQ(handle->ChangeComponentState(0, 0, nullptr), E_NOTIMPL);
}
} // namespace
