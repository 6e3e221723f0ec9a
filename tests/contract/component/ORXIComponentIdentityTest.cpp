/**
 * @file
 * Identities that can be hashed. A host may leave them out; what it tells has to be true.
 */

#include "ORXIComponentIdentity.h"
#include "ContractExtensions.h"
#include "ContractTest.h"
#include "ORXIAlias.h"
#include "OwnComponent.h"

namespace
{
class Identities : public ContractTest
{
protected:
    void SetUp() override
    {
        m_object = Make("ContractListening", "A");
        m_other = Make("ContractPlain", "B");
        if (!ORXIComponentIdentity_var(m_object))
            GTEST_SKIP() << "this host tells no identities";
    }

    void TearDown() override
    {
        m_object = NULL_var;
        m_other = NULL_var;
    }

    /// As the one object tells it of any component.
    const void* IdentityOf(const ORXBaseUnknown* iComponent) const
    {
        return ORXIComponentIdentity_var(m_object)->IdentityOf(iComponent);
    }

    ORXISpecObject_var m_object;
    ORXISpecObject_var m_other;
};

TEST_F(Identities, AreOfferedByEveryObjectWithAttributes)
{
    const ORXISpecObject_var part = ObjectOf(m_other, "part");
    for (const ORXISpecObject_var& object : {m_other, part, StartupOf(m_other)})
        EXPECT_FALSE(!ORXIComponentIdentity_var(object)) << Narrow(object->GetName());
}

TEST_F(Identities, AreKnownOfObjects_AndTheSameThroughEachInterface)
{
    HostUnderTest::GiveAlias(m_object, "Main");
    const void* const identity = IdentityOf(m_object);
    ASSERT_NE(identity, nullptr);
    const ORXISpecAttrAccess_var access = m_object;
    const ORXIAlias_var alias = m_object;
    const ORXIComponentIdentity_var own = m_object;
    const ContractINumber_var extension = m_object;
    for (const ORXBaseUnknown* const facet : std::initializer_list<const ORXBaseUnknown*>{
             access.Pointer(), alias.Pointer(), own.Pointer(), extension.Pointer(), m_object->GetImpl(0)})
        EXPECT_EQ(IdentityOf(facet), identity);
    EXPECT_EQ(IdentityOf(m_object), identity) << "it stays";
}

TEST_F(Identities, AreToldByEveryObjectAlike)
{
    const ORXIComponentIdentity_var other = m_other;
    EXPECT_EQ(other->IdentityOf(m_object), IdentityOf(m_object));
    EXPECT_EQ(other->IdentityOf(m_other), IdentityOf(m_other));
}

TEST_F(Identities, AgreeWithIsEqual_WhereTheyAreKnown)
{
    int alive = 0;
    const ORXHandle<OwnComponent> foreign = ORXHandle<OwnComponent>::Adopt(new OwnComponent(alive));
    const ORXISpecObject_var part = ObjectOf(m_object, "part");
    const ORXISpecObject_var startup = StartupOf(m_object);
    const ORXISpecAttrAccess_var access = m_object;
    const ORXISpecAttrKey_var key = KeyOf(m_object, "ratio");
    const ORXICkeParm_var parm = ParmOf(m_object, "ratio");
    const std::vector<const ORXBaseUnknown*> components{m_object.Pointer(), m_other.Pointer(), part.Pointer(),
                                                        startup.Pointer(),  access.Pointer(),  key.Pointer(),
                                                        parm.Pointer(),     foreign.Pointer()};
    for (const ORXBaseUnknown* const left : components)
        for (const ORXBaseUnknown* const right : components)
            if (IdentityOf(left) != nullptr && IdentityOf(right) != nullptr)
            {
                EXPECT_EQ(IdentityOf(left) == IdentityOf(right), left->IsEqual(right) != 0);
            }
}

TEST_F(Identities, OfNullAreNone)
{
    EXPECT_EQ(IdentityOf(nullptr), nullptr);
}

TEST_F(Identities, AreOneComponentWithTheirObject)
{
    const unsigned int before = CountOf(m_object);
    {
        const ORXIComponentIdentity_var identity = m_object;
        EXPECT_TRUE(identity == m_object);
        EXPECT_EQ(identity->GetImpl(0), m_object->GetImpl(0));
        EXPECT_TRUE(ORXISpecObject_var(identity).Pointer() == m_object.Pointer());
        EXPECT_EQ(CountOf(m_object), before + 1);
        identity->IdentityOf(m_object);
        EXPECT_EQ(CountOf(m_object), before + 1) << "asking takes no reference";
    }
    EXPECT_EQ(CountOf(m_object), before);
}

TEST_F(Identities, KeepTheObjectAlive)
{
    ORXIComponentIdentity_var identity;
    {
        const HostUnderTest::Model model;
        identity = MakeIn(model, "ContractPlain", "C");
    }
    EXPECT_EQ(Narrow(ORXISpecObject_var(identity)->GetName()), "C");
}
} // namespace
