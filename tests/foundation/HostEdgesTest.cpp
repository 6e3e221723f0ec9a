/**
 * @file
 * What the module relies on in lists and strings of its host, as far as it shows through the module.
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

/// A component that offers attribute access no more than anything else.
class Plain : public ORXBaseUnknown
{
};

TEST_F(HostEdges, ACursorOnWhatIsNoFeatureObject_IsNullAndKeepsNothing)
{
    const ORXBaseUnknown_var component = ORXBaseUnknown_var::Adopt(new Plain);
    EXPECT_TRUE(VYRCfdObjectAccess(component).IsNull());
    EXPECT_EQ(VYRStandalone::ReferenceCount(component), 1U);
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
    ORXUnicodeString head("before");
    ORXUnicodeString tail("before");
    EXPECT_EQ(VYRCfdObjectAccess::SplitPath("/a", head, tail), S_OK);
    EXPECT_EQ(head, ORXUnicodeString());
    EXPECT_EQ(tail, ORXUnicodeString("a"));
}
} // namespace
