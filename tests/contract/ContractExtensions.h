#ifndef ContractExtensions_H
#define ContractExtensions_H

#include <functional>
#include <string>
#include <vector>

#include "ORXIInstance.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "ORXTie.h"

/**
 * @file
 * Extension classes of the suite on "ContractListening": `ContractInstance`, reached by ties, and `ContractGreeting`,
 * reached directly; on "ContractDeepListening" `ContractDeepGreeting`, which stands in for the latter.
 */

/// Offered by a tie that is made at each request.
class ContractINumber : public ORXBaseUnknown
{
public:
    virtual int Number() = 0;
    static const IID& ClassId() noexcept;
    static ORXMetaClass* MetaObject();
};
using ContractINumber_var = ORXHandle<ContractINumber>;

/// Offered directly.
class ContractIGreeting : public ORXBaseUnknown
{
public:
    virtual std::string Greet() = 0;
    static const IID& ClassId() noexcept;
    static ORXMetaClass* MetaObject();
};
using ContractIGreeting_var = ORXHandle<ContractIGreeting>;

/// A test sets what happens inside a notification; every test begins and ends without.
class ContractInstance : public ORXSimFeatureInstanceAdp
{
public:
    ContractInstance();
    ~ContractInstance() override;
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

class ContractGreeting : public ContractIGreeting
{
public:
    ContractGreeting();
    ~ContractGreeting() override;
    std::string Greet() override;

    static ORXMetaClass* Meta();
    /// Called by the constructor.
    static std::function<void(ContractGreeting& iSelf)> s_onConstruct;
    static int s_alive;
};

class ContractDeepGreeting : public ContractIGreeting
{
public:
    std::string Greet() override { return "deep"; }
    static ORXMetaClass* Meta();
};

/// The registration entries that have been run, in their order.
const std::vector<std::string>& RegistrationRuns();

#endif
