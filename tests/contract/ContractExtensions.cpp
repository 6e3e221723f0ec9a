#include "ContractExtensions.h"

#include "ORXIParmPublisher.h"
#include "ORXISpecObject.h"

namespace
{
constexpr IID IID_ContractINumber = ORXInterfaceIds::Make(0x00009001);
constexpr IID IID_ContractIGreeting = ORXInterfaceIds::Make(0x00009002);

/// What the registration entries have noted of their runs.
std::vector<std::string>& Runs()
{
    static std::vector<std::string> runs;
    return runs;
}

ORXMetaClass* Retrieve(ORXMetaClass*& ioSlot, const char* iName, ORXMetaClass* iBase, const char* iLateType,
                       std::size_t iSize)
{
    if (ioSlot == nullptr)
    {
        const qlx::internal::om_guard guard;
        if (ioSlot == nullptr)
            ioSlot =
                qlx::internal::fct_RetrieveMetaObject(iName, ORXExtensionClass, iBase, iLateType, "Contract", iSize);
    }
    return ioSlot;
}

ORXBaseUnknown* NewInstance()
{
    return new ContractInstance;
}

ORXBaseUnknown* NewGreeting()
{
    return new ContractGreeting;
}

ORXBaseUnknown* NewDeepGreeting()
{
    return new ContractDeepGreeting;
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
                                              Interface::MetaObject(), ContractInstance::Meta(), TieKind);
        Tie_Construct(m_record, this, meta, iExtended, Interface::ClassId(), ContractInstance::Meta()->Kind(),
                      &sharedSlot, &NewInstance, iExtension);
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
    ContractInstance& Instance() { return *static_cast<ContractInstance*>(m_record.instance); }

private:
    ORXTieRecord m_record;
};

class NumberTie final : public Tie<ContractINumber, ORXTieClass>
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
    return ToCreateBOA(iExtended, iExtension, ContractGreeting::Meta(), IID_ContractIGreeting, &NewGreeting);
}

ORXBaseUnknown* CreateDeepGreeting(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, ContractDeepGreeting::Meta(), IID_ContractIGreeting, &NewDeepGreeting);
}

/// The library's one module object, defined below.
ORXOMModule* Module();

ORXOMModule* EnterInstance()
{
    Runs().push_back("instance");
    ORXFillDictionary::Register(ContractInstance::Meta(), ORXIInstance::MetaObject(), &CreateInstanceTie, nullptr, 1);
    return Module();
}

ORXOMModule* EnterNumber()
{
    Runs().push_back("number");
    // Twice, and the second time with another creator: the pair that stands is left as it is.
    ORXFillDictionary::Register(ContractInstance::Meta(), ContractINumber::MetaObject(), &CreateNumberTie, nullptr, 1);
    ORXFillDictionary::Register(ContractInstance::Meta(), ContractINumber::MetaObject(), &CreateGreeting, nullptr, 1);
    return Module();
}

ORXOMModule* EnterGreetings()
{
    Runs().push_back("greetings");
    ORXFillDictionary::Register(ContractGreeting::Meta(), ContractIGreeting::MetaObject(), &CreateGreeting, nullptr, 1);
    ORXFillDictionary::Register(ContractDeepGreeting::Meta(), ContractIGreeting::MetaObject(), &CreateDeepGreeting,
                                nullptr, 1);
    return Module();
}

const ORXOMModuleEntry entries[] = {&EnterInstance, &EnterNumber, &EnterGreetings};

ORXOMModule module(ORXOMModuleInfo{std::begin(entries), std::end(entries)});

ORXOMModule* Module()
{
    return &module;
}
} // namespace

std::function<HRESULT(ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var&)> ContractInstance::s_onAdvise;
int ContractInstance::s_alive = 0;
int ContractInstance::s_made = 0;
std::function<void(ContractGreeting&)> ContractGreeting::s_onConstruct;
int ContractGreeting::s_alive = 0;

const IID& ContractINumber::ClassId() noexcept
{
    return IID_ContractINumber;
}

ORXMetaClass* ContractINumber::MetaObject()
{
    static ORXMetaClass meta("ContractINumber", ORXInterfaceClass, IID_ContractINumber, nullptr, nullptr);
    return &meta;
}

const IID& ContractIGreeting::ClassId() noexcept
{
    return IID_ContractIGreeting;
}

ORXMetaClass* ContractIGreeting::MetaObject()
{
    static ORXMetaClass meta("ContractIGreeting", ORXInterfaceClass, IID_ContractIGreeting, nullptr, nullptr);
    return &meta;
}

ContractInstance::ContractInstance()
{
    ++s_alive;
    ++s_made;
}

ContractInstance::~ContractInstance()
{
    --s_alive;
}

HRESULT ContractInstance::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    const HRESULT status = s_onAdvise ? s_onAdvise(GetImpl(0), iName, iValue) : S_OK;
    ORXSimFeatureInstanceAdp::AdviseAttributeChanged(iName, iValue);
    return status;
}

int ContractInstance::Number()
{
    return 42;
}

ORXMetaClass* ContractInstance::GetMetaObject() const
{
    return Meta();
}

ORXMetaClass* ContractInstance::Meta()
{
    static ORXMetaClass* slot = nullptr;
    return Retrieve(slot, "ContractInstance", ORXIParmPublisher::MetaObject(), "ContractListening",
                    sizeof(ContractInstance));
}

ContractGreeting::ContractGreeting()
{
    ++s_alive;
    if (s_onConstruct)
        s_onConstruct(*this);
}

ContractGreeting::~ContractGreeting()
{
    --s_alive;
}

std::string ContractGreeting::Greet()
{
    const ORXISpecObject_var object = ORXISpecObject_var::Cast(this);
    return "hello " + std::string(object->GetName().View());
}

ORXMetaClass* ContractGreeting::Meta()
{
    static ORXMetaClass* slot = nullptr;
    return Retrieve(slot, "ContractGreeting", ContractIGreeting::MetaObject(), "ContractListening",
                    sizeof(ContractGreeting));
}

ORXMetaClass* ContractDeepGreeting::Meta()
{
    static ORXMetaClass* slot = nullptr;
    return Retrieve(slot, "ContractDeepGreeting", ContractIGreeting::MetaObject(), "ContractDeepListening",
                    sizeof(ContractDeepGreeting));
}

const std::vector<std::string>& RegistrationRuns()
{
    return Runs();
}
