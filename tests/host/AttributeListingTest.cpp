/**
 * @file
 * What the stand-alone host tells of the attributes of an object.
 */

#include "HostTypes.h"

namespace
{
using AttributeListing = HostTest;

TEST_F(AttributeListing, HasDeclaredOnesFromTheRootTypeDownThenAddedOnes)
{
    const ORXISpecObject_var object = Make("HostDerived", "D");
    Add(object, "later", tk_integer);
    const std::vector<VYRStandalone::AttributeInfo> attributes = VYRStandalone::Attributes(object);
    ASSERT_EQ(attributes.size(), 18u);
    EXPECT_EQ(attributes[0].name, "ratio");
    EXPECT_EQ(attributes[0].declaredBy, "HostPlain");
    EXPECT_EQ(attributes[3].values, (std::vector<std::string>{"low", "high"}));
    EXPECT_EQ(attributes[9].listType, tk_enum);
    EXPECT_EQ(attributes[9].values, (std::vector<std::string>{"low", "high"}));
    EXPECT_EQ(attributes[16].name, "extra");
    EXPECT_EQ(attributes[16].declaredBy, "HostDerived");
    EXPECT_EQ(attributes[17].name, "later");
    EXPECT_EQ(attributes[17].type, tk_integer);
    EXPECT_EQ(attributes[17].declaredBy, "");
    EXPECT_TRUE(attributes[17].added);
}

TEST_F(AttributeListing, OfATableColumn_IsEmpty)
{
    EXPECT_TRUE(VYRStandalone::Attributes(VYRStandalone::MakeTableColumn()).empty());
}
} // namespace
