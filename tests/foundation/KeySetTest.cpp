/**
 * @file
 * The generated keys. They are found once a process: what is to be seen of the first look-up stands in the first test.
 */

#include <string>

#include "ModuleTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class KeySet : public ModuleTest
{
};

struct Accessor
{
    const char* type;
    const char* attribute;
    VYRCfdKeyFunction function;
    int kind;
};

constexpr Accessor Accessors[] = {
    {"VYRCfdChoice", "Data", VYRCFDBASE(Choice, Data), tk_component},
    {"VYRCfdChoice", "Startups", VYRCFDBASE(Choice, Startups), tk_list},
    {"VYRCfdChoice", "choices", VYRCFDBASE(Choice, choices), tk_list},
    {"VYRCfdChoice", "dataName", VYRCFDBASE(Choice, dataName), tk_string},
    {"VYRCfdChoice", "defaultManagement", VYRCFDBASE(Choice, defaultManagement), tk_component},
    {"VYRCfdChoice", "display", VYRCFDBASE(Choice, display), tk_string},
    {"VYRCfdChoice", "value", VYRCFDBASE(Choice, value), tk_string},
    {"VYRCfdDefaultManagement", "configuration", VYRCFDBASE(DefaultManagement, configuration), tk_list},
    {"VYRCfdValues", "defaultManagement", VYRCFDBASE(Values, defaultManagement), tk_component},
};

/// A type with attributes of all these names, which are none of these keys.
constexpr const char* ForeignCatalog = R"({ "catalog": "KeySetTest", "types": [ { "name": "KeySetForeign",
  "attributes": [ { "name": "Data", "kind": "component" }, { "name": "Startups", "kind": "list", "of": "string" },
                  { "name": "choices", "kind": "list", "of": "string" }, { "name": "dataName", "kind": "string" },
                  { "name": "defaultManagement", "kind": "component" }, { "name": "display", "kind": "string" },
                  { "name": "value", "kind": "string" },
                  { "name": "configuration", "kind": "list", "of": "reference" } ] } ] })";

TEST_F(KeySet, FirstCalls_FindTheKeyOnceAndKeepNoNull)
{
    Declare(ForeignCatalog);
    const ORXISpecObject_var foreign = Create("KeySetForeign", "Foreign.1");
    for (const Accessor& accessor : Accessors)
    {
        SCOPED_TRACE(std::string(accessor.type) + "." + accessor.attribute);
        const ORXISpecObject_var object = Create(accessor.type, "Object.1");
        EXPECT_EQ(accessor.function(nullptr), nullptr) << "nothing was asked for before";
        EXPECT_EQ(accessor.function(AccessOf(foreign)), nullptr) << "an attribute of that name is not enough";

        ORXISpecAttrKey* const key = accessor.function(AccessOf(object));
        ASSERT_NE(key, nullptr) << "the null was not kept";
        EXPECT_EQ(accessor.function(nullptr), key) << "the argument is not used any more";
        EXPECT_EQ(accessor.function(AccessOf(foreign)), key);
    }
}

TEST_F(KeySet, Keys_AreThoseOfTheirTypes)
{
    for (const Accessor& accessor : Accessors)
    {
        SCOPED_TRACE(std::string(accessor.type) + "." + accessor.attribute);
        const ORXISpecObject_var object = Create(accessor.type, "Object.1");
        ORXISpecAttrKey* const key = accessor.function(AccessOf(object));
        ASSERT_NE(key, nullptr);
        EXPECT_EQ(key->GetName(), ORXUnicodeString(accessor.attribute));
        EXPECT_EQ(key->GetType(), accessor.kind);
        EXPECT_NE(AccessOf(object)->HasAttribute(key), ORXFalse);
        const ORXISpecAttrKey_var byName = ORXISpecAttrKey_var::Adopt(AccessOf(object)->GetAttrKey(accessor.attribute));
        EXPECT_NE(key->IsEqual(byName), 0);
    }
}

TEST_F(KeySet, KeysOfTwoTypes_AreTwoKeysAlsoWithOneName)
{
    ORXISpecAttrKey* const ofChoice =
        VYRCFDBASE(Choice, defaultManagement)(AccessOf(Create("VYRCfdChoice", "Choice.1")));
    ORXISpecAttrKey* const ofValues =
        VYRCFDBASE(Values, defaultManagement)(AccessOf(Create("VYRCfdValues", "Values.1")));
    ASSERT_NE(ofChoice, nullptr);
    ASSERT_NE(ofValues, nullptr);
    EXPECT_EQ(ofChoice->IsEqual(ofValues), 0);
    EXPECT_EQ(ofChoice->GetName(), ofValues->GetName());
}

TEST_F(KeySet, AKey_ServesEveryObjectOfItsTypeAndOfWhatDerivesFromIt)
{
    Declare(R"({ "catalog": "KeySetDerived", "uses": ["VYRCfdBase"],
                 "types": [ { "name": "KeySetValues", "base": "VYRCfdValues" } ] })");
    ORXISpecAttrKey* const key = VYRCFDBASE(Values, defaultManagement)(AccessOf(Create("KeySetValues", "Values.1")));
    ASSERT_NE(key, nullptr);
    for (const char* type : {"VYRCfdValues", "KeySetValues"})
    {
        const ORXISpecObject_var object = Create(type, "Values.2");
        EXPECT_NE(AccessOf(object)->HasAttribute(key), ORXFalse);
        EXPECT_EQ(Cursor(object)[key].GetType(), ORXUnicodeString("VYRCfdDefaultManagement"));
    }
}

TEST_F(KeySet, Accessors_AddNoReferences)
{
    const ORXISpecObject_var object = Create("VYRCfdChoice", "Choice.1");
    const ORXISpecAttrAccess_var access = AccessOf(object);
    ORXISpecAttrKey* const key = VYRCFDBASE(Choice, value)(access);
    const unsigned int keyCount = VYRStandalone::ReferenceCount(key);
    const unsigned int count = VYRStandalone::ReferenceCount(object);
    for (int round = 0; round < 1000; ++round)
        EXPECT_EQ(VYRCFDBASE(Choice, value)(access), key);
    EXPECT_EQ(VYRStandalone::ReferenceCount(key), keyCount);
    EXPECT_EQ(VYRStandalone::ReferenceCount(object), count);
}

TEST_F(KeySet, Assignment_DoesNothingAndReturnsTheObject)
{
    ORXKeySetVYRCfdBase left;
    ORXKeySetVYRCfdBase right;
    EXPECT_EQ(&(left = right), &left);
    EXPECT_EQ(&(left = std::move(right)), &left);
}
} // namespace
