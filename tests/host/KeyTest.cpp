/**
 * @file
 * Keys: of declared attributes, of inherited ones, of added ones, and foreign ones.
 */

#include "HostTypes.h"
#include "ORXSpecAttrKeyServices.h"

namespace
{
/// A key that is not the host's, though it says that it stands for "ratio".
class ForeignKey : public ORXISpecAttrKey
{
public:
    int GetListType() override { return 0; }
    int GetType() override { return tk_double; }
    ORXUnicodeString GetName() override { return "ratio"; }
};

using Keys = HostTest;

struct DeclaredKind
{
    const char* name;
    int type;
    int listType;
};

class DeclaredKinds : public HostTest, public testing::WithParamInterface<DeclaredKind>
{
};

TEST_P(DeclaredKinds, KeyTellsNameAndCodes)
{
    const ORXISpecAttrKey_var key = KeyOf(Make("HostPlain", "A"), GetParam().name);
    EXPECT_EQ(Narrow(key->GetName()), GetParam().name);
    EXPECT_EQ(key->GetType(), GetParam().type);
    EXPECT_EQ(key->GetListType(), GetParam().listType);
}

INSTANTIATE_TEST_SUITE_P(Keys, DeclaredKinds,
                         testing::Values(DeclaredKind{"ratio", 7, 0}, DeclaredKind{"on", 8, 0},
                                         DeclaredKind{"mode", 17, 0}, DeclaredKind{"title", 18, 0},
                                         DeclaredKind{"ref", 23, 0}, DeclaredKind{"part", 26, 0},
                                         DeclaredKind{"count", 28, 0}, DeclaredKind{"reals", 25, 7},
                                         DeclaredKind{"flags", 25, 8}, DeclaredKind{"modes", 25, 17},
                                         DeclaredKind{"names", 25, 18}, DeclaredKind{"refs", 25, 23},
                                         DeclaredKind{"parts", 25, 26}, DeclaredKind{"counts", 25, 28}));

TEST_F(Keys, UnknownNames_HaveNone)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    EXPECT_TRUE(!KeyOf(object, "nothing"));
    EXPECT_TRUE(!KeyOf(object, ""));
    EXPECT_EQ(AccessOf(object)->GetAttrKey(nullptr), nullptr);
    EXPECT_TRUE(!KeyOf(object, "extra"));
}

TEST_F(Keys, InheritedAttribute_HasOneKeyOnAllTypes)
{
    const ORXISpecObject_var base = Make("HostPlain", "A");
    const ORXISpecObject_var derived = Make("HostDerived", "B");
    const ORXISpecAttrKey_var key = KeyOf(base, "ratio");
    EXPECT_EQ(key.Pointer(), KeyOf(derived, "ratio").Pointer());
    EXPECT_TRUE(AccessOf(derived)->HasAttribute(key));
    EXPECT_EQ(AccessOf(derived)->SetDouble(key, 0.25), S_OK);
    EXPECT_EQ(AccessOf(base)->GetDouble(key), 0.5);
    EXPECT_EQ(AccessOf(derived)->GetDouble(key), 0.25);
}

TEST_F(Keys, OfTypesThatTheObjectIsNotOf_ReadAsNothingAndRefuseWrites)
{
    const ORXISpecObject_var plain = Make("HostPlain", "A");
    const ORXISpecObject_var derived = Make("HostDerived", "B");
    const ORXISpecObject_var other = Make("HostOther", "C");
    const ORXISpecAttrKey_var extra = KeyOf(derived, "extra");
    EXPECT_FALSE(AccessOf(plain)->HasAttribute(extra));
    EXPECT_EQ(AccessOf(plain)->SetString(extra, "y"), E_FAIL);
    EXPECT_TRUE(AccessOf(plain)->GetString(extra).IsEmpty());
    // The same name and kind on an unrelated type is another attribute.
    const ORXISpecAttrKey_var ratio = KeyOf(other, "ratio");
    EXPECT_FALSE(AccessOf(plain)->HasAttribute(ratio));
    EXPECT_EQ(AccessOf(plain)->GetDouble(ratio), 0.0);
    EXPECT_EQ(AccessOf(plain)->SetDouble(ratio, 9.0), E_FAIL);
    EXPECT_EQ(ratio->IsEqual(KeyOf(plain, "ratio")), 0);
    EXPECT_TRUE(!ORXCke_GetParm(AccessOf(plain), ratio, 1));
    EXPECT_EQ(TextOf(plain, "ratio"), "0.5");
}

TEST_F(Keys, Null_ReadsAsNothingAndRefusesWrites)
{
    const ORXISpecAttrAccess_var access = AccessOf(Make("HostPlain", "A"));
    EXPECT_FALSE(access->HasAttribute(nullptr));
    EXPECT_EQ(access->SetDouble(nullptr, 1.0), E_FAIL);
    EXPECT_EQ(access->GetInteger(nullptr), 0);
    EXPECT_EQ(access->GetListSize(nullptr), 0);
    EXPECT_EQ(access->GetSpecObject(nullptr), nullptr);
    EXPECT_EQ(access->RemoveAll(nullptr), E_FAIL);
    EXPECT_TRUE(!ORXCke_GetParm(access, nullptr, 1));
    EXPECT_TRUE(!ORXCke_GetParm(nullptr, nullptr, 1));
}

TEST_F(Keys, Foreign_ReadAsNothingAndRefuseWrites)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecAttrKey_var foreign = ORXISpecAttrKey_var::Adopt(new ForeignKey);
    EXPECT_FALSE(AccessOf(object)->HasAttribute(foreign));
    EXPECT_EQ(AccessOf(object)->GetDouble(foreign), 0.0);
    EXPECT_EQ(AccessOf(object)->SetDouble(foreign, 2.0), E_FAIL);
    EXPECT_EQ(KeyOf(object, "ratio")->IsEqual(foreign), 0);
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
}

TEST_F(Keys, OfAddedAttributes_AreThereOnObjectsThatCarryThem)
{
    const ORXISpecObject_var first = Make("HostPlain", "A");
    const ORXISpecObject_var second = Make("HostPlain", "B");
    const ORXISpecObject_var third = Make("HostPlain", "C");
    EXPECT_TRUE(!!ORXISpecAttribute_var::Adopt(first->AddAttribute("flag_isset", tk_boolean, 0)));
    EXPECT_TRUE(!!ORXISpecAttribute_var::Adopt(second->AddAttribute("flag_isset", tk_boolean, 1)));
    EXPECT_TRUE(!!ORXISpecAttribute_var::Adopt(third->AddAttribute("flag_isset", tk_string, 0)));
    const ORXISpecAttrKey_var key = KeyOf(first, "flag_isset");
    EXPECT_TRUE(!KeyOf(Make("HostPlain", "D"), "flag_isset"));

    EXPECT_NE(key.Pointer(), KeyOf(second, "flag_isset").Pointer());
    EXPECT_EQ(key->IsEqual(KeyOf(second, "flag_isset")), 1);
    EXPECT_EQ(key->IsEqual(KeyOf(third, "flag_isset")), 0);

    // A key of one object serves on another that carries an equal one.
    EXPECT_TRUE(AccessOf(second)->HasAttribute(key));
    EXPECT_EQ(AccessOf(second)->SetBoolean(key, ORXTrue), S_OK);
    EXPECT_FALSE(AccessOf(third)->HasAttribute(key));
    EXPECT_EQ(TextOf(first, "flag_isset"), "(none)");
    EXPECT_EQ(TextOf(second, "flag_isset"), "true");
}

TEST_F(Keys, OfAddedAttributes_OutliveTheirObject)
{
    ORXISpecAttrKey_var key;
    {
        VYRStandalone::Model model;
        const ORXISpecObject_var object = model.Create("HostPlain", "A");
        Add(object, "late", tk_double);
        key = KeyOf(object, "late");
    }
    EXPECT_EQ(Narrow(key->GetName()), "late");
    EXPECT_EQ(key->GetType(), tk_double);
    const ORXISpecObject_var other = Make("HostPlain", "B");
    EXPECT_FALSE(AccessOf(other)->HasAttribute(key));
    Add(other, "late", tk_double);
    EXPECT_EQ(AccessOf(other)->SetDouble(key, 2.0), S_OK);
    EXPECT_EQ(TextOf(other, "late"), "2");
}

TEST_F(Keys, AHundredAddedFlags_AreAllFound)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    for (int index = 0; index < 100; ++index)
    {
        const std::string name = "flag" + std::to_string(index);
        const ORXISpecAttribute_var flag =
            ORXISpecAttribute_var::Adopt(object->AddAttribute(name.c_str(), tk_boolean, 0));
        ASSERT_EQ(flag->SetBoolean(index % 2 == 0 ? ORXTrue : ORXFalse), S_OK);
    }
    for (int index = 0; index < 100; ++index)
    {
        const std::string name = "flag" + std::to_string(index);
        ASSERT_EQ(TextOf(object, name.c_str()), index % 2 == 0 ? "true" : "false");
    }
}

TEST_F(Keys, Services_FindTheDeclaredKeyThroughAnyObjectOfTheType)
{
    ORXSpecAttrKeyServices record{"HostTests", "HostPlain", "ratio", nullptr};
    const ORXISpecObject_var other = Make("HostOther", "O");
    EXPECT_EQ(record.Get(AccessOf(other)), nullptr);
    EXPECT_EQ(record.Get(nullptr), nullptr);
    EXPECT_EQ(record.key, nullptr);
    const ORXISpecObject_var derived = Make("HostDerived", "D");
    EXPECT_EQ(record.Get(AccessOf(derived)), KeyOf(derived, "ratio").Pointer());
    EXPECT_EQ(record.key, KeyOf(derived, "ratio").Pointer());
    // A key that is kept is not given for an object of a foreign type.
    EXPECT_EQ(record.Get(AccessOf(other)), nullptr);
    EXPECT_EQ(record.Get(nullptr), nullptr);
}

TEST_F(Keys, Services_KnowOnlyWhatTheTypeDeclares)
{
    const ORXISpecObject_var derived = Make("HostDerived", "D");
    Add(derived, "added", tk_boolean);
    ORXSpecAttrKeyServices ofDerived{"HostTests", "HostPlain", "extra", nullptr};
    ORXSpecAttrKeyServices ofObject{"HostTests", "HostDerived", "added", nullptr};
    ORXSpecAttrKeyServices ofNoType{"HostTests", "NoType", "ratio", nullptr};
    EXPECT_EQ(ofDerived.Get(AccessOf(derived)), nullptr);
    EXPECT_EQ(ofObject.Get(AccessOf(derived)), nullptr);
    EXPECT_EQ(ofNoType.Get(AccessOf(derived)), nullptr);
}

TEST_F(Keys, Attributes_ListsDeclaredOnesFromTheRootTypeDownThenAddedOnes)
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

struct CodeOfAddition
{
    int code;
    bool isTaken;
};

class CodesOfAddition : public HostTest, public testing::WithParamInterface<CodeOfAddition>
{
};

TEST_P(CodesOfAddition, OnlyScalarCodesAreTaken)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", GetParam().code, 0));
    EXPECT_EQ(!added, GetParam().isTaken ? 0 : 1);
    EXPECT_EQ(!KeyOf(object, "x"), GetParam().isTaken ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Keys, CodesOfAddition,
                         testing::Values(CodeOfAddition{tk_double, true}, CodeOfAddition{tk_boolean, true},
                                         CodeOfAddition{tk_string, true}, CodeOfAddition{tk_integer, true},
                                         CodeOfAddition{tk_specobject, true}, CodeOfAddition{tk_component, true},
                                         CodeOfAddition{tk_list, false}, CodeOfAddition{0, false},
                                         CodeOfAddition{99, false}));

TEST_F(Keys, AddAttribute_GivesTheSameAgainAndRefusesAnotherKind)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 0));
    EXPECT_EQ(TextOf(object, "x"), "(none)");
    EXPECT_EQ(added->SetBoolean(ORXTrue), S_OK);
    const ORXISpecAttribute_var again = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 1));
    EXPECT_EQ(again.Pointer(), added.Pointer());
    EXPECT_EQ(TextOf(object, "x"), "true");
    EXPECT_EQ(object->AddAttribute("x", tk_double, 0), nullptr);
    EXPECT_EQ(object->AddAttribute("", tk_double, 0), nullptr);
    EXPECT_EQ(object->AddAttribute("ratio", tk_boolean, 0), nullptr);
    EXPECT_EQ(added->SetBoolean(ORXTrue, 1), E_FAIL);
}

TEST_F(Keys, AddAttribute_OfADeclaredAttribute_GivesThatAttribute)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const std::size_t attributes = VYRStandalone::Attributes(object).size();
    const ORXISpecAttribute_var declared = ORXISpecAttribute_var::Adopt(object->AddAttribute("on", tk_boolean, 0));
    ASSERT_FALSE(!declared);
    EXPECT_EQ(declared->SetBoolean(ORXTrue), S_OK);
    EXPECT_EQ(TextOf(object, "on"), "true");
    EXPECT_EQ(VYRStandalone::Attributes(object).size(), attributes);
    EXPECT_EQ(object->AddAttribute("on", tk_string, 0), nullptr);
}

TEST_F(Keys, Services_WithAKeptKey_StillAskForTheTypeOfTheRecord)
{
    ORXSpecAttrKeyServices record{"HostTests", "HostDerived", "ratio", nullptr};
    const ORXISpecObject_var derived = Make("HostDerived", "D");
    const ORXISpecObject_var base = Make("HostPlain", "B");
    EXPECT_EQ(record.Get(AccessOf(derived)), KeyOf(derived, "ratio").Pointer());
    // The base type has the very key, but is no type of the record.
    EXPECT_EQ(record.Get(AccessOf(base)), nullptr);
}
} // namespace
