/**
 * @file
 * Extensions that a model lets go, and how the census names what is alive.
 */

#include "HostTypes.h"
#include "ORXIInstance.h"
#include "TestExtensions.h"

namespace
{
class Extensions : public HostTest
{
protected:
    Extensions() : m_object(Make("HostListening", "E")) {}

    const ORXISpecObject_var m_object;
};

TEST_F(Extensions, DropExtensions_LetsAllGoAndTheyAreMadeAnew)
{
    const ORXISpecObject_var part = Make("HostListening", "P");
    const int before = TestInstance::s_alive;
    Set(m_object, "loose", part);
    TestINumber_var{m_object};
    ORXIInstance_var{part};
    EXPECT_EQ(TestInstance::s_alive, before + 2);
    m_model.DropExtensions();
    EXPECT_EQ(TestInstance::s_alive, before);
    EXPECT_EQ(TestINumber_var(m_object)->Number(), 42);
    EXPECT_EQ(TestINumber_var(part)->Number(), 42);
    EXPECT_EQ(TestInstance::s_alive, before + 2);
}

TEST_F(Extensions, AreNamedInTheCensusWithTheirTies)
{
    const ORXIInstance_var instance = m_object;
    const ORXIInstance_var again = m_object;
    const TestINumber_var number = m_object;
    EXPECT_EQ(VYRStandalone::LiveComponentNames(),
              (std::vector<std::string>{"Container 1", "Extension 1", "FeatureObject 3", "Tie 2"}));
}

/// A component of its own.
class Plain : public ORXBaseUnknown
{
};

TEST_F(Extensions, ComponentsOfSomebodyElses_AreNamedToo)
{
    const ORXBaseUnknown_var own = ORXBaseUnknown_var::Adopt(new Plain);
    EXPECT_EQ(VYRStandalone::LiveComponentNames(),
              (std::vector<std::string>{"Container 1", "FeatureObject 3", "Component 1"}));
}
} // namespace
