/**
 * @file
 * How objects end: what is seen of owners that have come to their end, trees that stand deep, and rings of objects that
 * have left their model.
 */

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "BoundedStack.h"
#include "ORXFillDictionary.h"
#include "ORXIParmPublisher.h"
#include "ORXISpecAttrAccess.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "VYRCfdExtension.h"
#include "VYRCfdTie.h"
#include "VYRStandaloneHost.h"

namespace
{
using Lines = std::vector<std::string>;

constexpr const char* types = R"({ "catalog": "ObjectEnd", "uses": ["VYRCfdBase"], "types": [
    { "name": "ObjectEndLeaf" },
    { "name": "ObjectEndPart", "attributes": [
        { "name": "leaf", "kind": "component", "type": "ObjectEndLeaf" },
        { "name": "next", "kind": "component" },
        { "name": "peer", "kind": "reference" } ] },
    { "name": "ObjectEndWhole", "base": "ObjectEndPart", "attributes": [
        { "name": "a", "kind": "component", "type": "ObjectEndPart" },
        { "name": "b", "kind": "component", "type": "ObjectEndPart" },
        { "name": "c", "kind": "component", "type": "ObjectEndPart" } ] } ] })";

/// Looks at some objects when it ends.
class EndWitness final : public VYRCfdExtension<EndWitness, ORXSimFeatureInstanceAdp>
{
public:
    static constexpr const char* ClassName = "ObjectEndWitness";
    static constexpr const char* LateType = "ObjectEndPart";
    static constexpr const char* Framework = "HostTests";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

    ~EndWitness() override
    {
        if (Watched().empty())
            return;
        std::string line;
        for (const ORXISpecObject_var& object : Watched())
        {
            const ORXISpecObject_var owner = ORXISpecObject_var::Adopt(object->GetOwner());
            line += (line.empty() ? "" : ", ") + VYRStandalone::PathOf(object) + " of " +
                    (!owner ? "none" : VYRStandalone::PathOf(owner)) + (!object->GetContainer() ? " outside" : "");
        }
        Seen().push_back(line);
    }

    static std::vector<ORXISpecObject_var>& Watched()
    {
        static std::vector<ORXISpecObject_var> watched;
        return watched;
    }
    static Lines& Seen()
    {
        static Lines seen;
        return seen;
    }
};

/// Holds every test to leaving nothing alive.
class ObjectEnd : public testing::Test
{
protected:
    void SetUp() override
    {
        VYRStandalone::DeclareCatalog(types, "ObjectEnd");
        ORXFillDictionary::Register(EndWitness::MetaObject(), ORXIInstance::MetaObject(),
                                    &TIEORXIInstance<EndWitness>::Create, nullptr, 1);
        m_alive = VYRStandalone::LiveComponents();
    }

    void TearDown() override
    {
        EndWitness::Watched().clear();
        EndWitness::Seen().clear();
        m_model.Close();
        EXPECT_EQ(VYRStandalone::LiveComponents(), m_alive)
            << testing::PrintToString(VYRStandalone::LiveComponentNames());
    }

    static ORXISpecObject_var Get(const ORXISpecObject_var& iObject, const char* iName)
    {
        const ORXISpecAttrAccess_var access = iObject;
        return ORXISpecObject_var::Adopt(
            access->GetSpecObject(ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName)), 0));
    }

    static void Set(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue)
    {
        const ORXISpecAttrAccess_var access = iObject;
        ASSERT_EQ(access->SetSpecObject(ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName)), iValue, 0), S_OK);
    }

    /// Gives the object a witness.
    static void Witness(const ORXISpecObject_var& iObject)
    {
        const ORXIInstance_var instance = iObject;
        ASSERT_FALSE(!instance);
    }

    static void Listen(const ORXISpecObject_var& iObject, const ORXISpecObject_var& iListener)
    {
        const ORXIInstance_var instance = iObject;
        ASSERT_FALSE(!instance);
        ASSERT_EQ(instance->AddInstanceListener(iListener), S_OK);
    }

    /// A top-level object that owns the next one, and so on. Made from the bottom, where each step is the same work.
    ORXISpecObject_var Tree(int iDepth)
    {
        ORXISpecObject_var top = m_model.Create("ObjectEndPart", "Node");
        for (int depth = 1; depth < iDepth; ++depth)
        {
            const ORXISpecObject_var above = m_model.Create("ObjectEndPart", "Node");
            Set(above, "next", top);
            top = above;
        }
        return top;
    }

    VYRStandalone::Model m_model;
    /// Components alive at the beginning of the test.
    int m_alive = 0;
};

// ---- owners ---------------------------------------------------------------------------------------------------------

TEST_F(ObjectEnd, OwnersThatHaveComeToTheirEnd_AreNoOwners)
{
    {
        const ORXISpecObject_var whole = m_model.Create("ObjectEndWhole", "Whole.1");
        Witness(whole);
        for (const char* name : {"a", "b", "c"})
        {
            Witness(Get(whole, name));
            EndWitness::Watched().push_back(Get(Get(whole, name), "leaf"));
        }
    }
    m_model.Close();
    // The whole goes first, with its parts still standing. Then one part after the other, when the whole has given
    // them all up: whichever is first, the others wait, and own nothing any more.
    const std::string whole = "a/leaf of a outside, b/leaf of b outside, c/leaf of c outside";
    const std::string part = "leaf of none outside, leaf of none outside, leaf of none outside";
    EXPECT_EQ(EndWitness::Seen(), (Lines{whole, part, part, part}));
}

TEST_F(ObjectEnd, OwnerThatWaitsToDie_IsNoOwnerToOneThatGoesBeforeIt)
{
    const ORXISpecObject_var keeper = m_model.Create("ObjectEndPart", "Keeper.1");
    {
        const ORXISpecObject_var middle = m_model.Create("ObjectEndPart", "Middle");
        const ORXISpecObject_var low = m_model.Create("ObjectEndPart", "Low");
        Set(middle, "next", low);
        Set(keeper, "next", middle);
        Witness(middle);
        Witness(low);
        EndWitness::Watched() = {Get(middle, "leaf"), Get(low, "leaf")};
    }
    Set(keeper, "next", {});
    EXPECT_EQ(EndWitness::Seen(),
              (Lines{"leaf of none outside, Low/leaf of Low outside", "leaf of none outside, leaf of none outside"}));
}

TEST_F(ObjectEnd, PartsThatAreHeld_LiveOnWithoutTheirOwner)
{
    ORXISpecObject_var part;
    {
        const ORXISpecObject_var whole = m_model.Create("ObjectEndWhole", "Whole.1");
        part = Get(whole, "b");
    }
    m_model.Close();
    EXPECT_TRUE(!ORXISpecObject_var::Adopt(part->GetOwner()));
    EXPECT_TRUE(!part->GetContainer());
    EXPECT_EQ(VYRStandalone::PathOf(part), "b");
    EXPECT_EQ(VYRStandalone::PathOf(Get(part, "leaf")), "b/leaf");
    // It may have another owner.
    const ORXISpecObject_var other = m_model.Create("ObjectEndPart", "Other.1");
    Set(other, "next", part);
    EXPECT_EQ(VYRStandalone::PathOf(Get(part, "leaf")), "Other.1/next/leaf");
}

// ---- deep trees -----------------------------------------------------------------------------------------------------

constexpr int Deep = 20000;

TEST_F(ObjectEnd, DeepTree_EndsWithItsModelWithinASmallStack)
{
    const int before = VYRStandalone::LiveComponents();
    Tree(Deep);
    ASSERT_GE(VYRStandalone::LiveComponents(), before + Deep);
    OnBoundedStack(256, [this] { m_model.Close(); });
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(ObjectEnd, DeepTreeThatIsTakenOut_EndsWithinASmallStack)
{
    const ORXISpecObject_var keeper = m_model.Create("ObjectEndPart", "Keeper.1");
    Witness(keeper);
    const int before = VYRStandalone::LiveComponents();
    Set(keeper, "next", Tree(Deep));
    ASSERT_GE(VYRStandalone::LiveComponents(), before + Deep);
    OnBoundedStack(256, [&] { Set(keeper, "next", {}); });
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(ObjectEnd, DeepTreeOutsideEveryModel_EndsWithItsLastHandleWithinASmallStack)
{
    const int before = VYRStandalone::LiveComponents();
    ORXISpecObject_var top = Tree(Deep);
    m_model.Close();
    ASSERT_GE(VYRStandalone::LiveComponents(), before + Deep);
    OnBoundedStack(256, [&] { top = {}; });
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

// ---- rings ----------------------------------------------------------------------------------------------------------

/// Two objects that hold each other, which have been components of the model and are none any more.
class RingEnd : public ObjectEnd
{
protected:
    void SetUp() override
    {
        ObjectEnd::SetUp();
        m_keeper = m_model.Create("ObjectEndPart", "Keeper.1");
        Witness(m_keeper);
        m_before = VYRStandalone::LiveComponents();
        m_one = m_model.Create("ObjectEndPart", "One");
        m_other = m_model.Create("ObjectEndPart", "Other");
    }

    void TearDown() override
    {
        m_keeper = {};
        m_one = {};
        m_other = {};
        ObjectEnd::TearDown();
    }

    void LeaveTheModel(const ORXISpecObject_var& iObject)
    {
        Set(m_keeper, "next", iObject);
        Set(m_keeper, "next", {});
        ASSERT_TRUE(!iObject->GetContainer());
    }

    /// Lets the ring go, which lives on until the model ends.
    void ExpectEndWithTheModel()
    {
        LeaveTheModel(m_one);
        LeaveTheModel(m_other);
        m_one = {};
        m_other = {};
        EXPECT_GE(VYRStandalone::LiveComponents(), m_before + 2) << "the two hold each other";
        m_keeper = {};
        m_model.Close();
        EXPECT_EQ(VYRStandalone::LiveComponents(), m_alive);
    }

    ORXISpecObject_var m_keeper;
    ORXISpecObject_var m_one;
    ORXISpecObject_var m_other;
    int m_before = 0;
};

TEST_F(RingEnd, ReferencesToEachOther_EndWithTheModel)
{
    Set(m_one, "peer", m_other);
    Set(m_other, "peer", m_one);
    ExpectEndWithTheModel();
}

TEST_F(RingEnd, ListeningToEachOther_EndsWithTheModel)
{
    Listen(m_one, m_other);
    Listen(m_other, m_one);
    ExpectEndWithTheModel();
}

TEST_F(RingEnd, ReferenceOneWayAndListeningTheOther_EndWithTheModel)
{
    Set(m_one, "peer", m_other);
    Listen(m_other, m_one);
    ExpectEndWithTheModel();
}

TEST_F(RingEnd, ObjectsThatHoldThemselves_EndWithTheModel)
{
    Set(m_one, "peer", m_one);
    Listen(m_other, m_other);
    ExpectEndWithTheModel();
}

TEST_F(RingEnd, RingThatIsBroken_EndsAtOnce)
{
    Set(m_one, "peer", m_other);
    Set(m_other, "peer", m_one);
    LeaveTheModel(m_one);
    LeaveTheModel(m_other);
    Set(m_one, "peer", {});
    m_one = {};
    m_other = {};
    EXPECT_EQ(VYRStandalone::LiveComponents(), m_before);
}

TEST_F(RingEnd, RingThatIsHeld_OutlivesTheModelAndEndsWithItsHandle)
{
    Set(m_one, "peer", m_other);
    Set(m_other, "peer", m_one);
    LeaveTheModel(m_one);
    LeaveTheModel(m_other);
    m_other = {};
    m_keeper = {};
    m_model.Close();
    EXPECT_TRUE(!Get(m_one, "peer")) << "the end of the model has broken the ring";
    m_one = {};
    EXPECT_EQ(VYRStandalone::LiveComponents(), m_alive);
}
} // namespace
