#include "TestExtensions.h"

#include <iterator>

#include "VYRCfdTie.h"

namespace
{
constexpr IID IID_TestINumber = ORXInterfaceIds::Make(0x00009001);

class NumberTie final : public VYRCfdTie<NumberTie, TestINumber, TestInstance, ORXTieClass>
{
public:
    static constexpr const char* InterfaceName = "TestINumber";
    int Number() override { return Instance()->Number(); }
};

/// The library's one module object, defined below.
ORXOMModule* Module();

ORXOMModule* EnterInstance()
{
    ORXFillDictionary::Register(TestInstance::MetaObject(), ORXIInstance::MetaObject(),
                                &TIEORXIInstance<TestInstance>::Create);
    return Module();
}

ORXOMModule* EnterNumber()
{
    ORXFillDictionary::Register(TestInstance::MetaObject(), TestINumber::MetaObject(), &NumberTie::Create);
    return Module();
}

const ORXOMModuleEntry entries[] = {&EnterInstance, &EnterNumber};

ORXOMModule module(ORXOMModuleInfo{std::begin(entries), std::end(entries)});

ORXOMModule* Module()
{
    return &module;
}
} // namespace

std::function<HRESULT(ORXBaseUnknown*, const ORXUnicodeString&, const ORXIValue_var&)> TestInstance::s_onAdvise;
int TestInstance::s_alive = 0;

const IID& TestINumber::ClassId() noexcept
{
    return IID_TestINumber;
}

ORXMetaClass* TestINumber::MetaObject()
{
    static ORXMetaClass meta("TestINumber", ORXInterfaceClass, IID_TestINumber, nullptr, nullptr);
    return &meta;
}

HRESULT TestInstance::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    const HRESULT status = s_onAdvise ? s_onAdvise(GetImpl(0), iName, iValue) : S_OK;
    ORXSimFeatureInstanceAdp::AdviseAttributeChanged(iName, iValue);
    return status;
}
