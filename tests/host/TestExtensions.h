#ifndef TestExtensions_H
#define TestExtensions_H

#include <functional>
#include <string>

#include "ORXIInstance.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "ORXTie.h"

/**
 * @file
 * Extension classes of these tests on "HostListening": `TestInstance`, reached by ties, and `TestGreeting`, reached
 * directly; on "HostDeepListening" `TestDeepGreeting`, which stands in for the latter.
 */

/// Offered by a tie that is made at each request.
class TestINumber : public ORXBaseUnknown
{
public:
    virtual int Number() = 0;
    static const IID& ClassId() noexcept;
    static ORXMetaClass* MetaObject();
};
using TestINumber_var = ORXHandle<TestINumber>;

/// Offered directly.
class TestIGreeting : public ORXBaseUnknown
{
public:
    virtual std::string Greet() = 0;
    static const IID& ClassId() noexcept;
    static ORXMetaClass* MetaObject();
};
using TestIGreeting_var = ORXHandle<TestIGreeting>;

/// A test sets what happens inside a notification; every test begins and ends without.
class TestInstance : public ORXSimFeatureInstanceAdp
{
public:
    TestInstance();
    ~TestInstance() override;
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;
    int Number();
    ORXMetaClass* GetMetaObject() const override;

    static ORXMetaClass* Meta();
    /// Called with the extended object's root.
    static std::function<HRESULT(ORXBaseUnknown* iRoot, const ORXUnicodeString& iName, const ORXIValue_var& iValue)>
        s_onAdvise;
    /// Instances alive, over all objects.
    static int s_alive;
    static int s_made;
};

class TestGreeting : public TestIGreeting
{
public:
    TestGreeting();
    ~TestGreeting() override;
    std::string Greet() override;

    static ORXMetaClass* Meta();
    /// Called by the constructor.
    static std::function<void(TestGreeting& iSelf)> s_onConstruct;
    static int s_alive;
};

class TestDeepGreeting : public TestIGreeting
{
public:
    std::string Greet() override { return "deep"; }
    static ORXMetaClass* Meta();
};

/// How often the registration entries have been run.
int RegistrationRuns();

#endif
