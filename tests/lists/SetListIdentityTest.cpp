/**
 * @file
 * `SetList` with and without a host that tells identities, and with components that it cannot tell them of.
 */

#include <algorithm>

#include "AccessOnly.h"
#include "ListFixture.h"
#include "ORXIComponentIdentity.h"
#include "VYRStandaloneInstruments.h"

namespace
{
using Calls = std::vector<std::string>;
using VYRStandalone::CallRecorder;

constexpr char Identity[] = "ORXIComponentIdentity";

/// A component of another host, which says that it is an object of this one.
class Double : public AccessOnly
{
public:
    Double(const ORXISpecObject_var& iOriginal, int& ioComparisons)
        : m_original(iOriginal), m_comparisons(ioComparisons)
    {
    }

    int IsEqual(const ORXBaseUnknown* iOther) const override
    {
        ++m_comparisons;
        return m_original->IsEqual(iOther);
    }

private:
    ORXISpecObject_var m_original;
    int& m_comparisons;
};

class SetListIdentityTest : public ListFixture
{
protected:
    /// Such a component, counting how often it is compared.
    VYRCfdObjectAccess DoubleOf(const std::string& iName)
    {
        return VYRCfdObjectAccess(ORXBaseUnknown_var::Adopt(new Double(Part(iName), m_comparisons)));
    }

    const Names m_stored{"A", "B", "C", "D", "E"};
    const Names m_wanted{"A", "B", "C", "E", "D"};
    int m_comparisons = 0;
};

TEST_F(SetListIdentityTest, OwnersOfLists_TellIdentities)
{
    const ORXIComponentIdentity_var identity = m_access;
    ASSERT_FALSE(!identity);
    EXPECT_NE(identity->IdentityOf(Part("A")), nullptr);
    MakeFail("QueryInterface", Identity);
    EXPECT_TRUE(!ORXIComponentIdentity_var(m_access)) << "taken away";
}

TEST_F(SetListIdentityTest, ALongerList_AsksForIdentitiesOnce_AndAShortOneDoesNot)
{
    Fill("references", m_stored);
    MakeFail("QueryInterface", Identity, E_NOINTERFACE, 1, 0);
    EXPECT_EQ(At("references").SetList(Parts(m_wanted)), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(At("references").SetList(Parts({"E", "D"})), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(Held("references"), (Names{"E", "D"}));
}

TEST_F(SetListIdentityTest, WithoutIdentities_AsksTheHostForTheSame)
{
    const auto calls = [this] {
        Fill("references", m_stored);
        CallRecorder recorder;
        EXPECT_EQ(At("references").SetList(Parts(m_wanted)), S_OK);
        EXPECT_EQ(Held("references"), m_wanted);
        return recorder.Take();
    };
    EXPECT_EQ(calls(), Calls{"move Owner.references[4] = E"});
    MakeFail("QueryInterface", Identity, E_NOINTERFACE, 1, 0);
    EXPECT_EQ(calls(), Calls{"move Owner.references[4] = E"});
}

TEST_F(SetListIdentityTest, AComponentOfUnknownIdentity_IsComparedWithTheStoredOnes)
{
    Fill("references", m_stored);
    std::vector<VYRCfdObjectAccess> wanted = Parts(m_wanted);
    wanted[3] = DoubleOf("E");
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(wanted), S_OK);
    EXPECT_EQ(calls.Take(), Calls{"move Owner.references[4] = E"});
    EXPECT_EQ(m_comparisons, 2) << "with what stands at the place and behind";
    EXPECT_EQ(Held("references"), m_wanted);
}

TEST_F(SetListIdentityTest, BehindAnErrorCursor_NoComponentIsLookedAt)
{
    Fill("references", m_stored);
    std::vector<VYRCfdObjectAccess> wanted = Parts({"B", "", "C", "D", "E"});
    wanted[4] = DoubleOf("E");
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(wanted), E_FAIL);
    EXPECT_EQ(calls.Take(), Calls{"move Owner.references[1] = B"});
    EXPECT_EQ(Reported(), (Records{Assertion("iObjects[i-1].Self()", "VYRCfdObjectAccess::SetList")}));
    EXPECT_EQ(m_comparisons, 0);
}
/// Objects are fetched ahead in a list of some length; nothing else is different.
TEST_F(SetListIdentityTest, AListOfFortyObjects_IsArrangedAsAShortOne)
{
    Names stored;
    for (int i = 0; i < 40; ++i)
        stored.push_back("P" + std::to_string(i));
    Fill("references", stored);
    EXPECT_EQ(At("references").SetList(Parts(stored)), S_FALSE);
    Names wanted = stored;
    std::rotate(wanted.begin() + 5, wanted.begin() + 30, wanted.begin() + 31);
    CallRecorder calls;
    EXPECT_EQ(At("references").SetList(Parts(wanted)), S_OK);
    EXPECT_EQ(calls.Take(), Calls{"move Owner.references[6] = P30"});
    EXPECT_EQ(Held("references"), wanted);
    EXPECT_EQ(m_comparisons, 0);
}
} // namespace
