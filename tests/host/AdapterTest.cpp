/**
 * @file
 * The knowledge side of an object, as extension classes inherit it.
 */

#include "HostTypes.h"
#include "TestExtensions.h"

namespace
{
class Adapter : public HostTest
{
protected:
    Adapter() : m_object(Make("HostDeepListening", "A")), m_instance(m_object) {}
    ~Adapter() override { TestInstance::s_onAdvise = nullptr; }

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

TEST_F(Adapter, TellsOwnerTypesAndThatItIsPublic)
{
    EXPECT_TRUE(!m_instance->GetOwner());
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    Set(owner, "loose", m_object);
    EXPECT_TRUE(m_instance->GetOwner() == owner);
    ORXListValORXUnicodeString types;
    types.Append("first");
    EXPECT_EQ(m_instance->ListSupportedTypes(types), S_OK);
    ASSERT_EQ(types.Size(), 4);
    EXPECT_EQ(Narrow(types[1]), "first");
    EXPECT_EQ(Narrow(types[2]), "HostDeepListening");
    EXPECT_EQ(Narrow(types[3]), "HostListening");
    EXPECT_EQ(Narrow(types[4]), "HostPlain");
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

TEST_F(Adapter, TellsItsListenersInTheOrderOfSubscriptionUntilTheyLeave)
{
    const ORXISpecObject_var first = Make("HostListening", "B");
    const ORXISpecObject_var second = Make("HostListening", "C");
    EXPECT_EQ(m_instance->AddInstanceListener(first), S_OK);
    EXPECT_EQ(m_instance->AddInstanceListener(second), S_OK);
    EXPECT_EQ(m_instance->AddInstanceListener(NULL_var), E_FAIL);
    EXPECT_EQ(m_instance->AddInstanceListener(Make("HostPlain", "P")), E_FAIL);

    std::vector<std::string> log;
    TestInstance::s_onAdvise = [&](ORXBaseUnknown* iRoot, const ORXUnicodeString& iName, const ORXIValue_var& iValue) {
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
    TestInstance::s_onAdvise = [&](ORXBaseUnknown* iRoot, const ORXUnicodeString&, const ORXIValue_var&) {
        log.push_back(Narrow(ORXISpecObject_var::Cast(iRoot)->GetName()));
        if (iRoot == second->GetImpl(0))
            m_instance->RemoveInstanceListener(first);
        return S_OK;
    };
    EXPECT_EQ(write(3), (Lines{"A", "C", "B"}));
    EXPECT_EQ(write(4), (Lines{"A", "C"}));
    EXPECT_EQ(m_instance->RemoveInstanceListener(second), S_OK);
}
} // namespace
