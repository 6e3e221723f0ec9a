/**
 * @file
 * Creation of feature objects.
 */

#include "ORXSimBCInitializeServices.h"
#include "ContractTest.h"

namespace
{
class Creation : public ListeningTest
{
protected:
    /// Makes an object in the test's container, or reports why not.
    HRESULT Create(const char* iType, const ORXUnicodeString& iName, ORXISpecObject_var& oObject)
    {
        ORXIContainer_var container = m_model.Container();
        return ORXSimBCInitializeServices::CreateBasicComponent(iType, iName, container, oObject);
    }
};

TEST_F(Creation, PutsTheObjectAtTheEndOfItsContainer)
{
    Make("ContractPlain", "A");
    ORXISpecObject_var made;
    EXPECT_EQ(Create("ContractLeaf", "L", made), S_OK);
    EXPECT_EQ(Narrow(made->GetName()), "L");
    EXPECT_EQ(Narrow(made->GetType()), "ContractLeaf");
    EXPECT_EQ(TextOf(made, "mark"), "7");
    EXPECT_TRUE(made->GetContainer() == m_model.Container());
    EXPECT_EQ(made->GetOwner(), nullptr);
    EXPECT_EQ(TopLevel(), "A L");
    EXPECT_EQ(CountOf(made), 2u) << "held by its container and by this test";
}

TEST_F(Creation, OfAnUnknownTypeOrInNoContainer_FailsWithoutAnObject)
{
    ORXISpecObject_var made = Make("ContractPlain", "A");
    for (const char* type : {"NoType", "", "contractLeaf", "ContractLeaf "})
    {
        EXPECT_EQ(Create(type, "N", made), E_FAIL) << type;
        EXPECT_TRUE(!made) << type;
    }
    ORXIContainer_var null;
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent("ContractLeaf", "N", null, made), E_FAIL);
    EXPECT_TRUE(!made);
    EXPECT_EQ(TopLevel(), "A");
}

TEST_F(Creation, OfTheSameNameTwice_MakesTwo)
{
    ORXISpecObject_var first;
    ORXISpecObject_var second;
    EXPECT_EQ(Create("ContractLeaf", "L", first), S_OK);
    EXPECT_EQ(Create("ContractLeaf", "L", second), S_OK);
    EXPECT_FALSE(first == second);
    EXPECT_EQ(TopLevel(), "L L");
}

TEST_F(Creation, TellsNobody)
{
    ORXISpecObject_var made;
    EXPECT_EQ(Create("ContractListening", "L", made), S_OK);
    EXPECT_EQ(Told(), Lines{});
    ParmOf(made, "ratio")->Valuate(1.0);
    EXPECT_EQ(Told(), Lines{"L.ratio=1"});
}

TEST_F(Creation, InAnotherContainer_LeavesThisOneAlone)
{
    const HostUnderTest::Model other;
    EXPECT_TRUE(MakeIn(other, "ContractLeaf", "L")->GetContainer() == other.Container());
    EXPECT_EQ(TopLevel(), "");
}
} // namespace
