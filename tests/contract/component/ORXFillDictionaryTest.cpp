/**
 * @file
 * The dictionary: which extension class answers for which object, and how libraries bring their entries in.
 */

#include <iterator>
#include <memory>

#include "ContractExtensions.h"
#include "ContractTest.h"
#include "ORXIParmPublisher.h"
#include "ORXMetaClass.h"

namespace
{
class Dictionary : public ContractTest
{
protected:
    const ORXISpecObject_var m_object = Make("ContractListening", "E");
};

TEST_F(Dictionary, MostDerivedType_ComesFirst)
{
    const ORXISpecObject_var deep = Make("ContractDeepListening", "D");
    EXPECT_EQ(ContractIGreeting_var(deep)->Greet(), "deep");
    EXPECT_EQ(ContractINumber_var(deep)->Number(), 42) << "of the base type";
    EXPECT_EQ(ContractIGreeting_var(m_object)->Greet(), "hello E");
    EXPECT_TRUE(!ContractIGreeting_var(Make("ContractPlain", "P")));
    EXPECT_TRUE(!ContractIGreeting_var(Make("ContractOther", "O")));
}

TEST_F(Dictionary, PairThatStands_IsLeftAsItIs)
{
    // Its entry registers the pair twice, the second time with another creator.
    EXPECT_EQ(ContractINumber_var(m_object)->Number(), 42);
}

TEST_F(Dictionary, RegistrationTable_IsRunOnceAndInItsOrder)
{
    EXPECT_FALSE(!ContractINumber_var(m_object));
    EXPECT_EQ(RegistrationRuns(), (std::vector<std::string>{"instance", "number", "greetings"}));
}

TEST_F(Dictionary, IsNotAskedByStartups)
{
    EXPECT_TRUE(!ContractIGreeting_var(StartupOf(m_object)));
}

/// A second library, which comes late. Its interface is offered by a class of its own.
constexpr IID IID_LateInterface = ORXInterfaceIds::Make(0x0000A001);

class LateInterface : public ORXBaseUnknown
{
public:
    static const IID& ClassId() noexcept { return IID_LateInterface; }
    static ORXMetaClass* MetaObject()
    {
        static ORXMetaClass meta("LateInterface", ORXInterfaceClass, IID_LateInterface, nullptr, nullptr);
        return &meta;
    }
    static ORXMetaClass* ExtensionMeta()
    {
        static ORXMetaClass* const meta = qlx::internal::fct_RetrieveMetaObject(
            "LateExtension", ORXExtensionClass, MetaObject(), "ContractListening", "Contract", sizeof(LateInterface));
        return meta;
    }
    static ORXBaseUnknown* Construct() { return new LateInterface; }
    static ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
    {
        return ToCreateBOA(iExtended, iExtension, ExtensionMeta(), IID_LateInterface, &Construct);
    }
};

using LateInterface_var = ORXHandle<LateInterface>;

int lateRuns = 0;

ORXOMModule* EnterLate()
{
    ++lateRuns;
    ORXFillDictionary::Register(LateInterface::ExtensionMeta(), LateInterface::MetaObject(), &LateInterface::Create);
    return nullptr;
}

const ORXOMModuleEntry lateEntries[] = {&EnterLate};

TEST_F(Dictionary, ModuleThatGoesBeforeTheNextRequest_IsNeverRunAndOneThatStaysIsRunOnDemand)
{
    EXPECT_TRUE(!LateInterface_var(m_object));
    {
        const ORXOMModule gone(ORXOMModuleInfo{std::begin(lateEntries), std::end(lateEntries)});
    }
    EXPECT_TRUE(!LateInterface_var(m_object));
    EXPECT_EQ(lateRuns, 0);
    // Static, since what it enters stays for the process.
    static const ORXOMModule late(ORXOMModuleInfo{std::begin(lateEntries), std::end(lateEntries)});
    EXPECT_EQ(lateRuns, 0) << "not before a request needs it";
    EXPECT_FALSE(!LateInterface_var(m_object)) << "also on objects that were there before";
    EXPECT_FALSE(!LateInterface_var(Make("ContractDeepListening", "D")));
    EXPECT_EQ(lateRuns, 1);
}
} // namespace
