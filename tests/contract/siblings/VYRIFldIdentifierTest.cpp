/**
 * @file
 * Identifiers of objects.
 */

#include "VYRIFldIdentifier.h"
#include "ContractTest.h"
#include "ORXIAlias.h"

namespace
{
class Identifiers : public ContractTest
{
protected:
    static std::string IdentifierOf(const ORXBaseUnknown_var& iObject)
    {
        const VYRIFldIdentifier_var identified = iObject;
        if (!identified)
            return "(none)";
        ORXUnicodeString identifier("before");
        identified->GetIdentifier(identifier);
        return Narrow(identifier);
    }
};

TEST_F(Identifiers, AreOfferedOnlyByObjectsThatWereGivenOne)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_EQ(IdentifierOf(object), "(none)");
    HostUnderTest::GiveIdentifier(object, "S-1");
    EXPECT_EQ(IdentifierOf(object), "S-1");
    EXPECT_EQ(IdentifierOf(ObjectOf(object, "part")), "(none)");
    EXPECT_TRUE(!ORXIAlias_var(object)) << "an identifier is no alias";
    HostUnderTest::GiveIdentifier(object, "S-2");
    EXPECT_EQ(IdentifierOf(object), "S-2");
    HostUnderTest::GiveIdentifier(object, "");
    EXPECT_EQ(IdentifierOf(object), "(none)");
}

TEST_F(Identifiers, AndAliases_StandBesideEachOther)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    HostUnderTest::GiveIdentifier(object, "S-1");
    HostUnderTest::GiveAlias(object, "Main");
    EXPECT_EQ(IdentifierOf(object), "S-1");
    EXPECT_EQ(Narrow(ORXIAlias_var(object)->GetAlias()), "Main");
    HostUnderTest::GiveIdentifier(object, "");
    EXPECT_EQ(Narrow(ORXIAlias_var(object)->GetAlias()), "Main");
}

TEST_F(Identifiers, AreOneComponentWithTheirObject)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    HostUnderTest::GiveIdentifier(object, "S-1");
    const unsigned int before = CountOf(object);
    {
        const VYRIFldIdentifier_var identified = object;
        EXPECT_TRUE(identified == object);
        EXPECT_EQ(identified->GetImpl(0), object->GetImpl(0));
        EXPECT_TRUE(ORXISpecObject_var(identified).Pointer() == object.Pointer());
        EXPECT_EQ(CountOf(object), before + 1);
    }
    EXPECT_EQ(CountOf(object), before);
}

TEST_F(Identifiers, HoldEveryPlane)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const std::string& character : CharactersOfEveryPlane())
    {
        HostUnderTest::GiveIdentifier(object, character.c_str());
        EXPECT_EQ(IdentifierOf(object), character);
    }
}

TEST_F(Identifiers, KeepTheObjectAlive)
{
    VYRIFldIdentifier_var identified;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "A");
        HostUnderTest::GiveIdentifier(object, "S-1");
        identified = object;
    }
    EXPECT_EQ(IdentifierOf(identified), "S-1");
}
} // namespace
