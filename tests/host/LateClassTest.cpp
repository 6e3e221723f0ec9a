/**
 * @file
 * A library that is loaded late and brings a class for a derived type: objects that were told of writes before are told
 * through it from then on.
 */

#include <gtest/gtest.h>

#include "ORXIParmPublisher.h"
#include "ORXISpecAttrAccess.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "VYRCfdExtension.h"
#include "VYRCfdTie.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"

namespace
{
template <class Class> class Told : public VYRCfdExtension<Class, ORXSimFeatureInstanceAdp>
{
public:
    static constexpr const char* Framework = "HostTests";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

    HRESULT AdviseAttributeChanged(const ORXUnicodeString&, const ORXIValue_var&) override
    {
        ++s_told;
        return S_OK;
    }

    static void Register()
    {
        ORXFillDictionary::Register(Class::MetaObject(), ORXIInstance::MetaObject(), &TIEORXIInstance<Class>::Create,
                                    nullptr, 1);
    }

    static inline int s_told = 0;
};

class FirstClass final : public Told<FirstClass>
{
public:
    static constexpr const char* ClassName = "LateClassFirst";
    static constexpr const char* LateType = "LateClassPart";
};

class SecondClass final : public Told<SecondClass>
{
public:
    static constexpr const char* ClassName = "LateClassSecond";
    static constexpr const char* LateType = "LateClassDeepPart";
};

TEST(LateClass, RegisteredBetweenTwoWrites_IsToldOfTheSecond)
{
    VYRStandalone::DeclareCatalog(R"({ "catalog": "LateClass", "types": [
        { "name": "LateClassPart", "attributes": [ { "name": "size", "kind": "real" } ] },
        { "name": "LateClassDeepPart", "base": "LateClassPart" } ] })",
                                  "LateClass");
    FirstClass::Register();
    const int alive = VYRStandalone::LiveComponents();
    {
        VYRStandalone::Model model;
        const ORXISpecAttrAccess_var access = model.Create("LateClassDeepPart", "P");
        const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("size"));
        access->SetDouble(key, 1.0, 0);
        EXPECT_EQ(FirstClass::s_told, 1);
        SecondClass::Register();
        access->SetDouble(key, 2.0, 0);
        access->SetDouble(key, 3.0, 0);
        EXPECT_EQ(FirstClass::s_told, 1);
        EXPECT_EQ(SecondClass::s_told, 2);
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), alive);
}
} // namespace
