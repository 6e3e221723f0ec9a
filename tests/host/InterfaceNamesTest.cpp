/**
 * @file
 * Interfaces asked for by their names.
 */

#include "HostTypes.h"
#include "ORXICkeManipulator.h"
#include "ORXISamAnalysisEntityInit.h"
#include "ORXMetaClass.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRICfdConfigurable.h"

namespace
{
/// Keeps the identifier that it was asked for.
class Asked : public ORXBaseUnknown
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        wasAsked = true;
        identifier = iInterface;
        *oInterface = nullptr;
        return E_NOINTERFACE;
    }

    bool wasAsked = false;
    IID identifier{};
};

struct NamedInterface
{
    const char* name;
    const IID& identifier;
    ORXMetaClass* (*meta)();
};

class InterfaceNamesTest : public testing::TestWithParam<NamedInterface>
{
};

TEST_P(InterfaceNamesTest, Name_IsTheSameAsItsIdentifier)
{
    const ORXHandle<Asked> component = ORXHandle<Asked>::Adopt(new Asked);
    void* answer = &answer;
    EXPECT_EQ(component->QueryInterface(GetParam().name, &answer), E_NOINTERFACE);
    EXPECT_EQ(answer, nullptr);
    ASSERT_TRUE(component->wasAsked);
    EXPECT_TRUE(component->identifier == GetParam().identifier);
}

TEST_P(InterfaceNamesTest, MetaClass_TellsNameAndIdentifier)
{
    const ORXMetaClass* const meta = GetParam().meta();
    ASSERT_NE(meta, nullptr);
    EXPECT_STREQ(meta->ClassName(), GetParam().name);
    EXPECT_EQ(meta->Kind(), ORXInterfaceClass);
    EXPECT_TRUE(meta->InterfaceId() == GetParam().identifier);
    EXPECT_NE(meta->IsAKindOf(GetParam().name), 0);
    EXPECT_EQ(GetParam().meta(), meta) << "one for the process";
}

const NamedInterface interfaces[] = {
    {"VYRICfdChoice", IID_VYRICfdChoice, &VYRICfdChoice::MetaObject},
    {"VYRICfdChoiceMgr", IID_VYRICfdChoiceMgr, &VYRICfdChoiceMgr::MetaObject},
    {"VYRICfdConfigurable", IID_VYRICfdConfigurable, &VYRICfdConfigurable::MetaObject},
    {"ORXISamAnalysisEntityInit", IID_ORXISamAnalysisEntityInit, &ORXISamAnalysisEntityInit::MetaObject},
};

INSTANTIATE_TEST_SUITE_P(Names, InterfaceNamesTest, testing::ValuesIn(interfaces),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST(InterfaceNames, OfAnInterfaceThatIsNeverRegistered_IsKnown)
{
    const ORXHandle<Asked> component = ORXHandle<Asked>::Adopt(new Asked);
    void* answer = nullptr;
    EXPECT_EQ(component->QueryInterface("ORXICkeManipulator", &answer), E_NOINTERFACE);
    ASSERT_TRUE(component->wasAsked);
    EXPECT_TRUE(component->identifier == IID_ORXICkeManipulator);
}

TEST(InterfaceNames, UnknownName_AsksNobody)
{
    const ORXHandle<Asked> component = ORXHandle<Asked>::Adopt(new Asked);
    for (const char* name : {"VYRICfdChoices", "vyricfdchoice", "", "VYRICfdChoice "})
    {
        void* answer = &answer;
        EXPECT_EQ(component->QueryInterface(name, &answer), E_NOINTERFACE) << name;
        EXPECT_EQ(answer, nullptr) << name;
    }
    EXPECT_FALSE(component->wasAsked);
}
} // namespace
