/**
 * @file
 * Containers: what they list, in which order.
 */

#include <memory>

#include "ContractTest.h"

namespace
{
class Containers : public ContractTest
{
protected:
    std::string Names(const char* iType) const
    {
        const std::unique_ptr<ORXListValORXBaseUnknown_var> list(m_model.Container()->ListMembers(iType));
        std::string text;
        for (int position = 1; position <= list->Size(); ++position)
            text += Narrow(ORXISpecObject_var((*list)[position])->GetName());
        return text;
    }
};

TEST_F(Containers, ListMembers_FiltersByTypeAndDerivedTypes)
{
    EXPECT_EQ(Names(""), "");
    Make("ContractPlain", "A");
    Make("ContractLeaf", "B");
    Make("ContractDerived", "C");
    EXPECT_EQ(Names(""), "ABC");
    EXPECT_EQ(Names("ContractPlain"), "AC");
    EXPECT_EQ(Names("ContractDerived"), "C");
    EXPECT_EQ(Names("ContractLeaf"), "B");
    EXPECT_EQ(Names("ContractOther"), "");
    EXPECT_EQ(Names("NoType"), "");
    EXPECT_EQ(Names("contractPlain"), "") << "names are exact";
}

TEST_F(Containers, ListMembers_HasTopLevelObjectsOnlyInTheOrderInWhichTheyCame)
{
    const ORXISpecObject_var first = Make("ContractPlain", "A");
    for (const char* name : {"B", "C", "D"})
        Make("ContractLeaf", name);
    EXPECT_EQ(Names("ContractPart"), "") << "components are not in it";
    const std::unique_ptr<ORXListValORXBaseUnknown_var> before(m_model.Container()->ListMembers(""));
    EXPECT_EQ(Set(first, "loose", ORXISpecObject_var((*before)[3])), S_OK);
    EXPECT_EQ(Names(""), "ABD");
    EXPECT_EQ(before->Size(), 4) << "a list that was given stays as it is";
}

TEST_F(Containers, ListMembers_HoldsWhatItLists)
{
    const ORXISpecObject_var object = Make("ContractLeaf", "A");
    const unsigned int before = CountOf(object);
    {
        const std::unique_ptr<ORXListValORXBaseUnknown_var> list(m_model.Container()->ListMembers(""));
        EXPECT_EQ(CountOf(object), before + 1);
    }
    EXPECT_EQ(CountOf(object), before);
}

TEST_F(Containers, AreOneComponentEach)
{
    const HostUnderTest::Model other;
    EXPECT_TRUE(m_model.Container() == m_model.Container());
    EXPECT_FALSE(m_model.Container() == other.Container());
    EXPECT_TRUE(ORXIContainer_var::Cast(m_model.Container()) == m_model.Container());
    EXPECT_TRUE(!ORXISpecObject_var(m_model.Container()));
}

TEST_F(Containers, LiveAsLongAsTheyAreHeld)
{
    ORXIContainer_var container;
    {
        const HostUnderTest::Model model;
        container = model.Container();
        MakeIn(model, "ContractLeaf", "A");
    }
    const std::unique_ptr<ORXListValORXBaseUnknown_var> list(container->ListMembers(""));
    EXPECT_EQ(list->Size(), 0) << "the objects have gone with their model";
}
} // namespace
