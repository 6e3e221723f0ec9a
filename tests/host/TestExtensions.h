#ifndef TestExtensions_H
#define TestExtensions_H

#include <functional>

#include "ORXIParmPublisher.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "VYRCfdExtension.h"

/**
 * @file
 * The extension class of these tests on "HostListening": its `ORXIInstance` by a shared tie, its `TestINumber` by one
 * that is made at each request.
 */

class TestINumber : public ORXBaseUnknown
{
public:
    virtual int Number() = 0;
    static const IID& ClassId() noexcept;
    static ORXMetaClass* MetaObject();
};
using TestINumber_var = ORXHandle<TestINumber>;

/// A test sets what happens inside a notification; every test begins and ends without.
class TestInstance final : public VYRCfdExtension<TestInstance, ORXSimFeatureInstanceAdp>
{
public:
    static constexpr const char* ClassName = "TestInstance";
    static constexpr const char* LateType = "HostListening";
    static constexpr const char* Framework = "HostTests";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

    TestInstance() { ++s_alive; }
    ~TestInstance() override { --s_alive; }
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;
    int Number() const { return 42; }

    /// Called with the extended object's root.
    static std::function<HRESULT(ORXBaseUnknown* iRoot, const ORXUnicodeString& iName, const ORXIValue_var& iValue)>
        s_onAdvise;
    /// Instances alive, over all objects.
    static int s_alive;
};

#endif
