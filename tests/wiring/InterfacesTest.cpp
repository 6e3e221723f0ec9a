/**
 * @file
 * Which interfaces features of the late types give, beyond their own.
 */

#include <ostream>

#include "FlowTest.h"
#include "ORXIInstance.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRICfdConfigurable.h"
#include "VYRIMpaDefaultManagement.h"

namespace
{
struct Offer
{
    const char* name;
    const char* type;
    bool hasDefaultManagement;
    bool hasInstance;
    bool isChoice = false;
};

void PrintTo(const Offer& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class InterfacesTest : public FlowTest, public testing::WithParamInterface<Offer>
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        Declare(R"({ "catalog": "WiringTest", "uses": ["VYRCfdBase"], "types": [
            { "name": "WiringTestChoice", "base": "VYRCfdChoice" },
            { "name": "WiringTestDeepChoice", "base": "WiringTestChoice" } ] })");
    }
};

TEST_P(InterfacesTest, Feature_OffersWhatItsTypeIsExtendedBy)
{
    const ORXISpecObject_var object = Create(GetParam().type, "Object.1");
    EXPECT_EQ(!VYRIMpaDefaultManagement_var(object), !GetParam().hasDefaultManagement);
    EXPECT_EQ(!VYRIMpaDefaultManagementProtected_var(object), !GetParam().hasDefaultManagement);
    EXPECT_EQ(!ORXIInstance_var(object), !GetParam().hasInstance);
    EXPECT_EQ(!VYRICfdChoice_var(object), !GetParam().isChoice);
    EXPECT_EQ(!VYRICfdConfigurable_var(object), !GetParam().isChoice);
    EXPECT_TRUE(!VYRICfdChoiceMgr_var(object)) << "no class of the module is a manager";
}

TEST_P(InterfacesTest, Feature_AnswersTheSameByClassName)
{
    const ORXISpecObject_var object = Create(GetParam().type, "Object.1");
    const struct
    {
        const char* name;
        bool isOffered;
    } interfaces[] = {{"VYRIMpaDefaultManagement", GetParam().hasDefaultManagement},
                      {"VYRIMpaDefaultManagementProtected", GetParam().hasDefaultManagement},
                      {"ORXIInstance", GetParam().hasInstance},
                      {"VYRICfdChoice", GetParam().isChoice},
                      {"VYRICfdConfigurable", GetParam().isChoice},
                      {"VYRICfdChoiceMgr", false},
                      {"ORXISamAnalysisEntityInit", false},
                      {"ORXIParmPublisher", false}};
    for (const auto& asked : interfaces)
    {
        void* answer = nullptr;
        EXPECT_EQ(object->QueryInterface(asked.name, &answer), asked.isOffered ? S_OK : E_NOINTERFACE) << asked.name;
        EXPECT_EQ(answer != nullptr, asked.isOffered) << asked.name;
        if (answer != nullptr)
            static_cast<ORXBaseUnknown*>(answer)->Release();
    }
}

const Offer offers[] = {
    {"Values", "VYRCfdValues", true, true},
    {"DerivedFromValues", "FlowTestSolver", true, true},
    {"DerivedTwice", "FlowTestSteadySolver", true, true},
    {"Choice", "VYRCfdChoice", true, true, true},
    {"DerivedFromChoice", "WiringTestChoice", true, true, true},
    {"DerivedFromChoiceTwice", "WiringTestDeepChoice", true, true, true},
    // A sub-feature has no default management of its own.
    {"DefaultManagement", "VYRCfdDefaultManagement", false, true},
    {"Record", "VYRCfdConfigItem", false, false},
    {"PlainFeature", "FlowTestMaterial", false, false},
};

INSTANTIATE_TEST_SUITE_P(Types, InterfacesTest, testing::ValuesIn(offers),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

class ComponentInterfacesTest : public FlowTest
{
};

TEST_F(ComponentInterfacesTest, Components_AreExtendedLikeTopLevelObjects)
{
    EXPECT_FALSE(!VYRIMpaDefaultManagementProtected_var(At(m_solver, "zone")));
    EXPECT_FALSE(!ORXIInstance_var(At(m_solver, "zone")));
    EXPECT_FALSE(!ORXIInstance_var(SubFeature()));
    EXPECT_TRUE(!VYRIMpaDefaultManagement_var(SubFeature()));
}

TEST_F(ComponentInterfacesTest, DerivedType_IsManagedByTheSameClass)
{
    const ORXISpecObject_var steady = Create("FlowTestSteadySolver", "Solver.2");
    EXPECT_STREQ(DefaultManagementOf(steady)->IsA(), "VYRECfdValuesDefaultManagement");
    Write(steady, "pseudoTimeStep", "0.5");
    Write(steady, "iterations", "40");
    EXPECT_EQ(SetFlagOf(steady, "pseudoTimeStep"), "true");
    EXPECT_EQ(SetFlagOf(steady, "iterations"), "true");
    TakeAway(steady, "pseudoTimeStep");
    EXPECT_EQ(ValueOf(steady, "pseudoTimeStep"), "0.25");
}
} // namespace
