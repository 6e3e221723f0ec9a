/**
 * @file
 * Names as the user sees them.
 */

#include "ORXIAlias.h"
#include "ContractTest.h"

namespace
{
using Aliases = ContractTest;

TEST_F(Aliases, AreOfferedOnlyByObjectsThatWereGivenOne)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_TRUE(!ORXIAlias_var(object));
    HostUnderTest::GiveAlias(object, "Main");
    ASSERT_FALSE(!ORXIAlias_var(object));
    EXPECT_EQ(Narrow(ORXIAlias_var(object)->GetAlias()), "Main");
    EXPECT_TRUE(!ORXIAlias_var(ObjectOf(object, "part")));
    HostUnderTest::GiveAlias(object, "");
    EXPECT_TRUE(!ORXIAlias_var(object));
}

TEST_F(Aliases, AreOneComponentWithTheirObject)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    HostUnderTest::GiveAlias(object, "Main");
    const unsigned int before = CountOf(object);
    {
        const ORXIAlias_var alias = object;
        EXPECT_TRUE(alias == object);
        EXPECT_EQ(alias->GetImpl(0), object->GetImpl(0));
        EXPECT_TRUE(ORXISpecObject_var(alias).Pointer() == object.Pointer());
        EXPECT_EQ(CountOf(object), before + 1);
    }
    EXPECT_EQ(CountOf(object), before);
}

TEST_F(Aliases, HoldEveryPlaneAndChange)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const std::string& character : CharactersOfEveryPlane())
    {
        HostUnderTest::GiveAlias(object, character.c_str());
        EXPECT_EQ(Narrow(ORXIAlias_var(object)->GetAlias()), character);
        EXPECT_EQ(Narrow(object->GetName()), "A") << "the internal name is another";
    }
}

TEST_F(Aliases, KeepTheObjectAlive)
{
    ORXIAlias_var alias;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "A");
        HostUnderTest::GiveAlias(object, "Main");
        alias = object;
    }
    EXPECT_EQ(Narrow(alias->GetAlias()), "Main");
    EXPECT_EQ(Narrow(ORXISpecObject_var(alias)->GetName()), "A");
}
} // namespace
