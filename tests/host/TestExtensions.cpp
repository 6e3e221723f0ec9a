#include "TestExtensions.h"

#include "ORXIParmPublisher.h"
#include "ORXISpecObject.h"

namespace
{
constexpr IID IID_TestINumber = ORXInterfaceIds::Make(0x00009001);
constexpr IID IID_TestIGreeting = ORXInterfaceIds::Make(0x00009002);

int registrationRuns = 0;

ORXMetaClass* Retrieve(ORXMetaClass*& ioSlot, const char* iName, ORXMetaClass* iBase, const char* iLateType,
                       std::size_t iSize)
{
    if (ioSlot == nullptr)
    {
        const qlx::internal::om_guard guard;
        if (ioSlot == nullptr)
            ioSlot =
                qlx::internal::fct_RetrieveMetaObject(iName, ORXExtensionClass, iBase, iLateType, "HostTests", iSize);
    }
    return ioSlot;
}

ORXBaseUnknown* NewInstance()
{
    return new TestInstance;
}

ORXBaseUnknown* NewGreeting()
{
    return new TestGreeting;
}

ORXBaseUnknown* NewDeepGreeting()
{
    return new TestDeepGreeting;
}

void* sharedSlot = nullptr;

/// What all ties have in common: counting and linking.
template <class Interface, ENUMTypeOfClass TieKind> class Tie : public Interface
{
public:
    Tie(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
    {
        static ORXMetaClass* const meta =
            qlx::internal::Tie_InitMetaObject(Interface::ClassId(), Interface::MetaObject()->ClassName(),
                                              Interface::MetaObject(), TestInstance::Meta(), TieKind);
        Tie_Construct(m_record, this, meta, iExtended, Interface::ClassId(), TieKind, TestInstance::Meta(), &sharedSlot,
                      &NewInstance, iExtension);
    }
    ~Tie() override { Tie_Destruct(m_record, TieKind); }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        return Tie_Query(m_record, iInterface, oInterface);
    }
    unsigned int AddRef() override { return Tie_AddRef(m_record); }
    unsigned int Release() override
    {
        int mustDelete = 0;
        const unsigned int left = Tie_Release(&mustDelete, m_record, TieKind);
        if (mustDelete != 0)
            delete this;
        return left;
    }

protected:
    TestInstance& Instance() { return *static_cast<TestInstance*>(m_record.instance); }

private:
    ORXTieRecord m_record;
};

class NumberTie final : public Tie<TestINumber, ORXTieClass>
{
public:
    using Tie::Tie;
    int Number() override { return Instance().Number(); }
};

class InstanceTie final : public Tie<ORXIInstance, ORXSharedTieClass>
{
public:
    using Tie::Tie;
    HRESULT GetLogicalName(ORXUnicodeString& oName) override { return Instance().GetLogicalName(oName); }
    HRESULT SetLogicalName(const ORXUnicodeString& iName) override { return Instance().SetLogicalName(iName); }
    ORXCke::Boolean IsPublic() override { return Instance().IsPublic(); }
    ORXICkeType_var Type() override { return Instance().Type(); }
    ORXCke::Boolean IsSupporting(const ORXICkeType_var& iType) override { return Instance().IsSupporting(iType); }
    HRESULT ListSupportedTypes(ORXListValORXUnicodeString& oTypes) override
    {
        return Instance().ListSupportedTypes(oTypes);
    }
    HRESULT AddInstanceListener(const ORXBaseUnknown_var& iListener) override
    {
        return Instance().AddInstanceListener(iListener);
    }
    HRESULT RemoveInstanceListener(const ORXBaseUnknown_var& iListener) override
    {
        return Instance().RemoveInstanceListener(iListener);
    }
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override
    {
        return Instance().AdviseAttributeChanged(iName, iValue);
    }
    HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString& iName) override
    {
        return Instance().AdviseDynamicAttributeAdded(iName);
    }
    HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName) override
    {
        return Instance().AdviseDynamicAttributeRemoved(iName);
    }
    HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName, const ORXUnicodeString& iNewName) override
    {
        return Instance().AdviseDynamicAttributeRenamed(iOldName, iNewName);
    }
    HRESULT AdviseRemoved() override { return Instance().AdviseRemoved(); }
    HRESULT AdviseModification() override { return Instance().AdviseModification(); }
    HRESULT AdviseTypeChanged(const ORXICkeType_var& iType) override { return Instance().AdviseTypeChanged(iType); }
    HRESULT SetValue(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override
    {
        return Instance().SetValue(iName, iValue);
    }
    ORXIValue_var GetValue(const ORXUnicodeString& iName) override { return Instance().GetValue(iName); }
    ORXBaseUnknown_var GetOwner() override { return Instance().GetOwner(); }
    HRESULT AdviseSpecificEvent(const ORXUnicodeString& iEvent) override
    {
        return Instance().AdviseSpecificEvent(iEvent);
    }
};

ORXBaseUnknown* CreateInstanceTie(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    if (ORXBaseUnknown* const linked = Tie_Link(iExtended, iExtension, IID_ORXIInstance))
        return linked;
    return new InstanceTie(iExtended, iExtension);
}

ORXBaseUnknown* CreateNumberTie(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return new NumberTie(iExtended, iExtension);
}

ORXBaseUnknown* CreateGreeting(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, TestGreeting::Meta(), IID_TestIGreeting, &NewGreeting);
}

ORXBaseUnknown* CreateDeepGreeting(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, TestDeepGreeting::Meta(), IID_TestIGreeting, &NewDeepGreeting);
}

/// The library's one module object, defined below.
ORXOMModule* Module();

ORXOMModule* EnterInstance()
{
    ++registrationRuns;
    ORXFillDictionary::Register(TestInstance::Meta(), ORXIInstance::MetaObject(), &CreateInstanceTie, nullptr, 1);
    return Module();
}

ORXOMModule* EnterNumber()
{
    // Twice, and the second time with another creator: the pair that stands is left as it is.
    ORXFillDictionary::Register(TestInstance::Meta(), TestINumber::MetaObject(), &CreateNumberTie, nullptr, 1);
    ORXFillDictionary::Register(TestInstance::Meta(), TestINumber::MetaObject(), &CreateGreeting, nullptr, 1);
    return Module();
}

ORXOMModule* EnterGreetings()
{
    ORXFillDictionary::Register(TestGreeting::Meta(), TestIGreeting::MetaObject(), &CreateGreeting, nullptr, 1);
    ORXFillDictionary::Register(TestDeepGreeting::Meta(), TestIGreeting::MetaObject(), &CreateDeepGreeting, nullptr, 1);
    return Module();
}

const ORXOMModuleEntry entries[] = {&EnterInstance, &EnterNumber, &EnterGreetings};

ORXOMModule module(ORXOMModuleInfo{std::begin(entries), std::end(entries)});

ORXOMModule* Module()
{
    return &module;
}
} // namespace

std::function<HRESULT(ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var&)> TestInstance::s_onAdvise;
int TestInstance::s_alive = 0;
int TestInstance::s_made = 0;
std::function<void(TestGreeting&)> TestGreeting::s_onConstruct;
int TestGreeting::s_alive = 0;

const IID& TestINumber::ClassId() noexcept
{
    return IID_TestINumber;
}

ORXMetaClass* TestINumber::MetaObject()
{
    static ORXMetaClass meta("TestINumber", ORXInterfaceClass, IID_TestINumber, nullptr, nullptr);
    return &meta;
}

const IID& TestIGreeting::ClassId() noexcept
{
    return IID_TestIGreeting;
}

ORXMetaClass* TestIGreeting::MetaObject()
{
    static ORXMetaClass meta("TestIGreeting", ORXInterfaceClass, IID_TestIGreeting, nullptr, nullptr);
    return &meta;
}

TestInstance::TestInstance()
{
    ++s_alive;
    ++s_made;
}

TestInstance::~TestInstance()
{
    --s_alive;
}

HRESULT TestInstance::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    const HRESULT status = s_onAdvise ? s_onAdvise(GetImpl(0), iName, iValue) : S_OK;
    ORXSimFeatureInstanceAdp::AdviseAttributeChanged(iName, iValue);
    return status;
}

int TestInstance::Number()
{
    return 42;
}

ORXMetaClass* TestInstance::GetMetaObject() const
{
    return Meta();
}

ORXMetaClass* TestInstance::Meta()
{
    static ORXMetaClass* slot = nullptr;
    return Retrieve(slot, "TestInstance", ORXIParmPublisher::MetaObject(), "HostListening", sizeof(TestInstance));
}

TestGreeting::TestGreeting()
{
    ++s_alive;
    if (s_onConstruct)
        s_onConstruct(*this);
}

TestGreeting::~TestGreeting()
{
    --s_alive;
}

std::string TestGreeting::Greet()
{
    const ORXISpecObject_var object = ORXISpecObject_var::Cast(this);
    return "hello " + std::string(object->GetName().View());
}

ORXMetaClass* TestGreeting::Meta()
{
    static ORXMetaClass* slot = nullptr;
    return Retrieve(slot, "TestGreeting", TestIGreeting::MetaObject(), "HostListening", sizeof(TestGreeting));
}

ORXMetaClass* TestDeepGreeting::Meta()
{
    static ORXMetaClass* slot = nullptr;
    return Retrieve(slot, "TestDeepGreeting", TestIGreeting::MetaObject(), "HostDeepListening",
                    sizeof(TestDeepGreeting));
}

int RegistrationRuns()
{
    return registrationRuns;
}
