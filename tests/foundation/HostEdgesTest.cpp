/**
 * @file
 * What the module relies on in handles, lists and strings of its host, as far as it shows through the module.
 */

#include <vector>

#include "ModuleTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class HostEdges : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        Declare(R"({ "catalog": "HostEdges", "types": [ { "name": "HostEdgesPart",
                     "attributes": [ { "name": "zones", "kind": "list", "of": "component" } ] } ] })");
        m_part = Create("HostEdgesPart", "Part.1");
    }

    ORXISpecObject_var m_part;
};

TEST_F(HostEdges, EqualTo_WithOneNullIsTheNullTest)
{
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(nullptr, nullptr));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(m_part, nullptr));
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(nullptr, m_part));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(m_part, AccessOf(m_part))) << "one component through two interfaces";
    EXPECT_FALSE(ORXBaseUnknown_var::equal_to(m_part, Create("HostEdgesPart", "Part.2")));
}

/// Counts the requests that it gets, and offers attribute access no more than anything else.
class Probe : public ORXBaseUnknown
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        ++m_requests;
        return ORXBaseUnknown::QueryInterface(iInterface, oInterface);
    }
    int Requests() const { return m_requests; }

private:
    int m_requests = 0;
};

TEST_F(HostEdges, ACastOfNull_IsNullAndACastOfAComponentAsksItOnce)
{
    Probe* const probe = new Probe;
    const ORXBaseUnknown_var component = ORXBaseUnknown_var::Adopt(probe);
    const ORXBaseUnknown_var none;
    const ORXISpecAttrAccess_var ofNone = none;
    EXPECT_TRUE(!ofNone);
    EXPECT_EQ(probe->Requests(), 0);
    const ORXISpecAttrAccess_var ofComponent = component;
    EXPECT_TRUE(!ofComponent);
    EXPECT_EQ(probe->Requests(), 1);
    EXPECT_EQ(VYRStandalone::ReferenceCount(probe), 1U) << "a refused cast keeps nothing";
    EXPECT_TRUE(VYRCfdObjectAccess(component).IsNull());
}

TEST_F(HostEdges, ACallThroughANullHandle_DoesNotReturn)
{
    const ORXISpecObject_var none;
    EXPECT_THROW(none->GetName(), VYRStandalone::NullHandleError);
}

TEST_F(HostEdges, ListObjects_MayBeEmptyOrNull)
{
    const VYRCfdObjectAccess zones = Cursor(m_part)["zones"];
    const auto expectNothing = [&zones](const char* iWhat) {
        std::vector<VYRCfdObjectAccess> objects(1);
        EXPECT_EQ(zones.List(objects), S_OK) << iWhat;
        EXPECT_TRUE(objects.empty()) << iWhat;
        EXPECT_EQ(zones.SetList(objects), S_FALSE) << iWhat;
        EXPECT_EQ(zones.Remove(zones.Self()), S_FALSE) << iWhat;
        EXPECT_EQ(zones.CleanList(IID_ORXISpecObject), S_FALSE) << iWhat;
    };
    expectNothing("an empty list");
    MakeFail("ListObjects", "zones");
    expectNothing("null");
    EXPECT_EQ(VYRStandalone::FaultsHit(), 4);
}

TEST_F(HostEdges, AHitAtTheVeryStart_IsAHit)
{
    EXPECT_EQ(ORXUnicodeString("/a").SearchSubString("/", 0, 1), 0);
    ORXUnicodeString head("before");
    ORXUnicodeString tail("before");
    EXPECT_EQ(VYRCfdObjectAccess::SplitPath("/a", head, tail), S_OK);
    EXPECT_EQ(head, ORXUnicodeString());
    EXPECT_EQ(tail, ORXUnicodeString("a"));
}
} // namespace
