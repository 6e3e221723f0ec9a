/**
 * @file
 * Paths of objects.
 */

#include "HostTypes.h"

namespace
{
class Paths : public HostTest
{
protected:
    static std::string PathOf(const ORXISpecObject_var& iObject) { return VYRStandalone::PathOf(iObject); }
    static std::string PathOfStartup(const ORXISpecObject_var& iObject)
    {
        return PathOf(ORXISpecObject_var::Adopt(iObject->GetStartup()));
    }
};

TEST_F(Paths, GoFromTheTopLevelObjectDown)
{
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    const ORXISpecObject_var part = Make("HostPart", "P");
    EXPECT_EQ(PathOf(owner), "O");
    EXPECT_EQ(PathOf(part), "P");
    Set(owner, "loose", part);
    EXPECT_EQ(PathOf(part), "O/loose");
    EXPECT_EQ(PathOf(ObjectOf(part, "inner")), "O/loose/inner");
    Insert(owner, "parts", part, 1);
    EXPECT_EQ(PathOf(part), "O/parts") << "from one attribute to another";
}

TEST_F(Paths, OfWhatHasLostItsOwner_AreItsName)
{
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    const ORXISpecObject_var former = ObjectOf(owner, "part");
    Set(owner, "part", NULL_var);
    EXPECT_EQ(PathOf(former), "part");
}

TEST_F(Paths, OfStartups_BeginWithTheirTypeInBrackets)
{
    const ORXISpecObject_var object = Make("HostDerived", "D");
    EXPECT_EQ(PathOfStartup(object), "[HostDerived]");
    EXPECT_EQ(PathOfStartup(ObjectOf(ObjectOf(object, "part"), "inner")), "[HostDerived]/part/inner");
    const ORXISpecObject_var part = Make("HostPart", "P");
    Set(object, "part", part);
    EXPECT_EQ(PathOfStartup(part), "[HostPart]");
}
} // namespace
