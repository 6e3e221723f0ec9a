/**
 * @file
 * The second host, held to those groups of the contract suite that are named in CMakeLists.txt. What the other groups
 * need beyond host/ is not offered.
 */

#include "HostUnderTest.h"
#include "SecondHost.h"

namespace HostUnderTest
{
namespace
{
[[noreturn]] void NotOffered(const char* iWhat)
{
    throw SecondHost::FatalError(SecondHost::Fault::NotOffered, iWhat);
}

bool EndsBy(SecondHost::Fault iFault, const std::function<void()>& iCall)
{
    try
    {
        iCall();
    }
    catch (const SecondHost::FatalError& error)
    {
        return error.fault == iFault;
    }
    return false;
}
} // namespace

/// Without the types that derive and measure, and without enumerations: the groups that run do not use them.
void DeclareTypes()
{
    SecondHost::Declare("ContractLeaf", "", {{"mark", tk_integer}});
    SecondHost::Declare("ContractPart", "", {{"size", tk_double}, {"inner", tk_component, 0, "ContractLeaf"}});
    SecondHost::Declare("ContractPlain", "",
                        {{"ratio", tk_double},
                         {"count", tk_integer},
                         {"on", tk_boolean},
                         {"title", tk_string},
                         {"reals", tk_list, tk_double},
                         {"counts", tk_list, tk_integer},
                         {"flags", tk_list, tk_boolean},
                         {"names", tk_list, tk_string},
                         {"part", tk_component, 0, "ContractPart"},
                         {"loose", tk_component},
                         {"parts", tk_list, tk_component},
                         {"ref", tk_specobject},
                         {"refs", tk_list, tk_specobject}});
}

class Model::Content
{
public:
    const ORXIContainer_var container = SecondHost::MakeContainer();
};

Model::Model() : m_content(std::make_unique<Content>()) {}

Model::~Model() = default;

ORXIContainer_var Model::Container() const
{
    return m_content->container;
}

void Model::Close()
{
    SecondHost::Close(m_content->container);
}

ORXISpecObject_var MakeColumn()
{
    NotOffered("columns");
}

void GiveAlias(const ORXISpecObject_var&, const ORXUnicodeString&)
{
    NotOffered("display names");
}

void GiveIdentifier(const ORXISpecObject_var&, const ORXUnicodeString&)
{
    NotOffered("identifiers");
}

int LiveComponents()
{
    return SecondHost::LiveComponents();
}

unsigned int ReferencesOn(ORXBaseUnknown* iComponent)
{
    iComponent->AddRef();
    return iComponent->Release();
}

bool EndsByNullHandle(const std::function<void()>& iCall)
{
    return EndsBy(SecondHost::Fault::NullHandle, iCall);
}

bool EndsByNullPointer(const std::function<void()>& iCall)
{
    return EndsBy(SecondHost::Fault::NullPointer, iCall);
}

class Subscription::Content
{
};

Subscription::Subscription(const ORXBaseUnknown_var&, Callback)
{
    NotOffered("subscriptions");
}

Subscription::~Subscription() = default;

std::vector<std::string> TakeReports()
{
    return SecondHost::TakeReports();
}

unsigned char ErrorStatus()
{
    NotOffered("the status byte");
}

void SetOfficialVariable(const std::string&, const std::string&)
{
    NotOffered("variables of the installation");
}

void UnsetOfficialVariable(const std::string&)
{
    NotOffered("variables of the installation");
}

void RedirectTraces(std::function<void(const std::string&)>)
{
    NotOffered("redirected traces");
}
} // namespace HostUnderTest
