/**
 * @file
 * Start-ups of the stand-alone host: what they refuse, and those of the types that come with it.
 */

#include "HostTypes.h"

namespace
{
using Startups = HostTest;

TEST_F(Startups, TakeNoObjectsAndNoAdditions)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(object->GetStartup());
    EXPECT_EQ(Set(startup, "ref", object), E_FAIL);
    EXPECT_EQ(Set(startup, "part", NULL_var), E_FAIL);
    EXPECT_EQ(Insert(startup, "refs", object, 1), E_FAIL);
    EXPECT_EQ(startup->AddAttribute("x", tk_boolean, 0), nullptr);
    EXPECT_EQ(Set(object, "loose", startup), E_FAIL);
    EXPECT_EQ(Set(object, "ref", startup), S_OK);
}

TEST_F(Startups, OfTheBuiltInTypes)
{
    const ORXISpecObject_var choice = Make("VYRCfdChoice", "C");
    EXPECT_EQ(TextOf(choice, "value"), "(none)");
    EXPECT_EQ(AccessOf(choice)->GetListSize(KeyOf(choice, "choices")), 0);
    EXPECT_TRUE(!ObjectOf(choice, "Data"));
    EXPECT_EQ(Narrow(ObjectOf(choice, "defaultManagement")->GetType()), "VYRCfdDefaultManagement");
    EXPECT_EQ(KeyOf(ObjectOf(choice, "defaultManagement"), "configuration")->GetListType(), tk_specobject);
    EXPECT_EQ(Narrow(ObjectOf(Make("VYRCfdValues", "V"), "defaultManagement")->GetType()), "VYRCfdDefaultManagement");
    const ORXISpecObject_var item = Make("VYRCfdConfigItem", "I");
    for (const char* name : {"type", "path", "default", "defaultAutoKey", "condition", "config"})
    {
        EXPECT_EQ(TextOf(item, name), "(none)") << name;
        EXPECT_TRUE(AccessOf(item)->GetString(KeyOf(item, name)).IsEmpty()) << name;
    }
}
} // namespace
