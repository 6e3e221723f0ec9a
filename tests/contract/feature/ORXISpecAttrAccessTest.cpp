/**
 * @file
 * The attribute store: scalar values, and keys that fit or do not. Lists and objects have files of their own beside
 * this one.
 */

#include "ContractTest.h"
#include "ForeignKey.h"
#include "ORXICkeParm.h"

namespace
{
class AttrAccess : public ContractTest
{
protected:
    AttrAccess() : m_object(Make("ContractPlain", "A")), m_access(m_object) {}

    ORXISpecObject_var m_object;
    ORXISpecAttrAccess_var m_access;
};

TEST_F(AttrAccess, GetAttrKey_OfUnknownNames_IsNull)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_TRUE(!KeyOf(object, "nothing"));
    EXPECT_TRUE(!KeyOf(object, ""));
    EXPECT_EQ(AccessOf(object)->GetAttrKey(nullptr), nullptr);
    EXPECT_TRUE(!KeyOf(object, "extra"));
}

TEST_F(AttrAccess, GetAttrKey_IsExactAboutNames)
{
    for (const char* name : {"Ratio", "rati", "ratio ", " ratio", "ratio/", "part/size", "ratio_isset"})
        EXPECT_TRUE(!KeyOf(m_object, name)) << name;
}

TEST_F(AttrAccess, GetAttrKey_FindsTheFirstAndTheLastAttributeAndThoseOfTheBase)
{
    const ORXISpecObject_var derived = Make("ContractDerived", "D");
    for (const char* name : {"ratio", "refs", "extra"})
    {
        const ORXISpecAttrKey_var key = KeyOf(derived, name);
        ASSERT_FALSE(!key) << name;
        EXPECT_EQ(Narrow(key->GetName()), name);
    }
}

TEST_F(AttrAccess, GetAttrKey_GivesANewReference)
{
    Add(m_object, "own", tk_integer);
    const ORXISpecAttrKey_var first = KeyOf(m_object, "own");
    const unsigned int before = CountOf(first);
    {
        const ORXISpecAttrKey_var second = KeyOf(m_object, "own");
        EXPECT_EQ(CountOf(first), before + 1);
        EXPECT_EQ(second->IsEqual(first), 1);
    }
    EXPECT_EQ(CountOf(first), before);
}

TEST_F(AttrAccess, GetAttrKey_TakesNamesOfEveryPlane)
{
    for (const std::string& character : CharactersOfEveryPlane())
    {
        const std::string name = "n" + character + character;
        Add(m_object, name.c_str(), tk_integer);
        EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, name.c_str()), 5), S_OK) << name;
        EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, name.c_str())), 5) << name;
        EXPECT_TRUE(!KeyOf(m_object, ("n" + character).c_str())) << name;
    }
}

TEST_F(AttrAccess, HasAttribute_TellsWhatTheObjectCarries)
{
    EXPECT_EQ(m_access->HasAttribute(KeyOf(m_object, "ratio")), ORXTrue);
    EXPECT_EQ(m_access->HasAttribute(KeyOf(m_object, "refs")), ORXTrue);
    EXPECT_EQ(m_access->HasAttribute(KeyOf(m_object, "on")), ORXTrue) << "also without a value";
    EXPECT_EQ(m_access->HasAttribute(nullptr), ORXFalse);
}

TEST_F(AttrAccess, IsTheObjectItself)
{
    EXPECT_TRUE(m_access == m_object);
    EXPECT_EQ(m_access->GetImpl(0), m_object->GetImpl(0));
    EXPECT_EQ(m_access->IsEqual(m_object.Pointer()), 1);
    EXPECT_EQ(ORXISpecAttrAccess_var(m_object).Pointer(), m_access.Pointer());
    EXPECT_TRUE(ORXISpecObject_var(m_access).Pointer() == m_object.Pointer());
}

TEST_F(AttrAccess, InheritedAttribute_HasOneKeyOnAllTypes)
{
    const ORXISpecObject_var base = Make("ContractPlain", "A");
    const ORXISpecObject_var derived = Make("ContractDerived", "B");
    const ORXISpecAttrKey_var key = KeyOf(base, "ratio");
    EXPECT_EQ(key.Pointer(), KeyOf(derived, "ratio").Pointer());
    EXPECT_TRUE(AccessOf(derived)->HasAttribute(key));
    EXPECT_EQ(AccessOf(derived)->SetDouble(key, 0.25), S_OK);
    EXPECT_EQ(AccessOf(base)->GetDouble(key), 0.5);
    EXPECT_EQ(AccessOf(derived)->GetDouble(key), 0.25);
}

TEST_F(AttrAccess, KeysOfTypesThatTheObjectIsNotOf_ReadAsNothingAndRefuseWrites)
{
    const ORXISpecObject_var plain = Make("ContractPlain", "A");
    const ORXISpecObject_var derived = Make("ContractDerived", "B");
    const ORXISpecObject_var other = Make("ContractOther", "C");
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

TEST_F(AttrAccess, NullKey_ReadsAsNothingAndRefusesWrites)
{
    EXPECT_EQ(m_access->SetDouble(nullptr, 1.0), E_FAIL);
    EXPECT_EQ(m_access->SetInteger(nullptr, 1), E_FAIL);
    EXPECT_EQ(m_access->SetBoolean(nullptr, ORXTrue), E_FAIL);
    EXPECT_EQ(m_access->SetString(nullptr, "x"), E_FAIL);
    EXPECT_EQ(m_access->SetSpecObject(nullptr, m_object), E_FAIL);
    EXPECT_EQ(m_access->SetStringList(nullptr, {}), E_FAIL);
    EXPECT_EQ(m_access->RemovePosition(nullptr, 1), E_FAIL);
    EXPECT_EQ(m_access->RemoveAll(nullptr), E_FAIL);
    EXPECT_EQ(m_access->MoveInPosition(nullptr, m_object, 1), E_FAIL);
    EXPECT_EQ(m_access->InsertAtPosition(nullptr, m_object, 1), E_FAIL);
    m_access->RemoveObject(nullptr, m_object);
    EXPECT_EQ(m_access->GetDouble(nullptr), 0.0);
    EXPECT_EQ(m_access->GetInteger(nullptr), 0);
    EXPECT_EQ(m_access->GetBoolean(nullptr), ORXFalse);
    EXPECT_TRUE(m_access->GetString(nullptr).IsEmpty());
    EXPECT_EQ(m_access->GetSpecObject(nullptr), nullptr);
    EXPECT_EQ(m_access->GetListSize(nullptr), 0);
}

TEST_F(AttrAccess, KeysThatAreNotTheHosts_ReadAsNothingAndRefuseWrites)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrKey_var foreign = ORXISpecAttrKey_var::Adopt(new ForeignKey);
    EXPECT_FALSE(AccessOf(object)->HasAttribute(foreign));
    EXPECT_EQ(AccessOf(object)->GetDouble(foreign), 0.0);
    EXPECT_EQ(AccessOf(object)->SetDouble(foreign, 2.0), E_FAIL);
    EXPECT_EQ(KeyOf(object, "ratio")->IsEqual(foreign), 0);
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
}

TEST_F(AttrAccess, KeysOfAddedAttributes_AreThereOnObjectsThatCarryThem)
{
    const ORXISpecObject_var first = Make("ContractPlain", "A");
    const ORXISpecObject_var second = Make("ContractPlain", "B");
    const ORXISpecObject_var third = Make("ContractPlain", "C");
    EXPECT_TRUE(!!ORXISpecAttribute_var::Adopt(first->AddAttribute("flag_isset", tk_boolean, 0)));
    EXPECT_TRUE(!!ORXISpecAttribute_var::Adopt(second->AddAttribute("flag_isset", tk_boolean, 1)));
    EXPECT_TRUE(!!ORXISpecAttribute_var::Adopt(third->AddAttribute("flag_isset", tk_string, 0)));
    const ORXISpecAttrKey_var key = KeyOf(first, "flag_isset");
    EXPECT_TRUE(!KeyOf(Make("ContractPlain", "D"), "flag_isset"));

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

TEST_F(AttrAccess, AHundredAddedFlags_AreAllFound)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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

TEST_F(AttrAccess, Reads_OfAnotherTypeOrIndexGiveNothing)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXISpecAttrKey_var ratio = KeyOf(object, "ratio");
    EXPECT_EQ(access->GetDouble(ratio), 0.5);
    EXPECT_EQ(access->GetDouble(ratio, 1), 0.0);
    EXPECT_EQ(access->GetInteger(ratio), 0);
    EXPECT_EQ(access->GetBoolean(ratio), ORXFalse);
    EXPECT_TRUE(access->GetString(ratio).IsEmpty());
    EXPECT_EQ(access->GetSpecObject(ratio), nullptr);
    EXPECT_EQ(access->GetListSize(ratio), 0);
    EXPECT_EQ(access->GetDouble(KeyOf(object, "count")), 0.0);
    EXPECT_EQ(access->GetInteger(KeyOf(object, "mode")), 1);
    EXPECT_EQ(access->GetBoolean(KeyOf(object, "on")), ORXFalse);
}

TEST_F(AttrAccess, Writes_OfAnotherTypeOrIndexFailAndChangeNothing)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXISpecAttrKey_var ratio = KeyOf(object, "ratio");
    EXPECT_EQ(access->SetDouble(ratio, 2.0, 1), E_FAIL);
    EXPECT_EQ(access->SetInteger(ratio, 2), E_FAIL);
    EXPECT_EQ(access->SetBoolean(ratio, ORXTrue), E_FAIL);
    EXPECT_EQ(access->SetString(ratio, "2"), E_FAIL);
    EXPECT_EQ(access->SetStringList(ratio, {}), E_FAIL);
    EXPECT_EQ(access->SetSpecObject(ratio, object), E_FAIL);
    EXPECT_EQ(access->RemoveAll(ratio), E_FAIL);
    EXPECT_EQ(access->RemovePosition(ratio, 0), E_FAIL);
    EXPECT_EQ(access->SetDouble(KeyOf(object, "count"), 2.0), E_FAIL);
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
    EXPECT_EQ(TextOf(object, "count"), "3");
}

TEST_F(AttrAccess, Writes_AreReadBack_TheSecondTimeToo)
{
    for (const int round : {1, 2})
    {
        const double real = round + 0.25;
        const ORXUnicodeString text =
            round == 1 ? "first" : "second, which is longer than what is held without the heap";
        EXPECT_EQ(m_access->SetDouble(KeyOf(m_object, "ratio"), real), S_OK);
        EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "count"), -round), S_OK);
        EXPECT_EQ(m_access->SetBoolean(KeyOf(m_object, "on"), round == 1 ? ORXTrue : ORXFalse), S_OK);
        EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "pace"), round), S_OK);
        EXPECT_EQ(m_access->SetString(KeyOf(m_object, "title"), text), S_OK);
        EXPECT_EQ(m_access->GetDouble(KeyOf(m_object, "ratio")), real);
        EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "count")), -round);
        EXPECT_EQ(m_access->GetBoolean(KeyOf(m_object, "on")), round == 1 ? ORXTrue : ORXFalse);
        EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "pace")), round);
        EXPECT_EQ(m_access->GetString(KeyOf(m_object, "title")), text);
    }
}

TEST_F(AttrAccess, Boolean_IsTrueForEverythingButZero)
{
    const ORXISpecAttrKey_var on = KeyOf(m_object, "on");
    for (const int value : {1, 2, 128, 255})
    {
        EXPECT_EQ(m_access->SetBoolean(on, static_cast<ORXBoolean>(value)), S_OK);
        EXPECT_EQ(m_access->GetBoolean(on), ORXTrue) << value;
    }
    EXPECT_EQ(m_access->SetBoolean(on, ORXFalse), S_OK);
    EXPECT_EQ(m_access->GetBoolean(on), ORXFalse);
}

TEST_F(AttrAccess, Strings_AreKeptByteForByte)
{
    const ORXISpecAttrKey_var title = KeyOf(m_object, "title");
    ORXUnicodeString all;
    for (const std::string& character : CharactersOfEveryPlane())
        all.Append(character.c_str());
    for (const ORXUnicodeString& text :
         {ORXUnicodeString(), ORXUnicodeString("a\0b", 3), ORXUnicodeString("\x80\xFF", 2), all})
    {
        EXPECT_EQ(m_access->SetString(title, text), S_OK);
        EXPECT_EQ(m_access->GetString(title).View(), text.View());
        EXPECT_EQ(m_access->GetString(title).GetLengthInChar(), text.GetLengthInChar());
    }
}

TEST_F(AttrAccess, Enumeration_TakesNumbersOfItsTextsOnly)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXISpecAttrKey_var mode = KeyOf(object, "mode");
    EXPECT_EQ(access->SetInteger(mode, 2), S_OK);
    EXPECT_EQ(TextOf(object, "mode"), "high");
    EXPECT_EQ(access->SetInteger(mode, 0), E_FAIL);
    EXPECT_EQ(access->SetInteger(mode, 3), E_FAIL);
    EXPECT_EQ(TextOf(object, "mode"), "high");
}

TEST_F(AttrAccess, Unset_IsSomethingElseThanAnEmptyText)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
    EXPECT_TRUE(AccessOf(object)->GetString(KeyOf(object, "title")).IsEmpty());
    EXPECT_EQ(AccessOf(object)->SetString(KeyOf(object, "title"), ""), S_OK);
    EXPECT_EQ(TextOf(object, "title"), "");
}
} // namespace
