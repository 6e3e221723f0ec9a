/**
 * @file
 * Optional attributes: declared by the type, carried only by objects that they have been added to.
 */

#include <memory>
#include <ostream>

#include "ContractTest.h"

namespace
{
struct Optional
{
    const char* name;
    int type;
    int listType;
    /// Another type than its own.
    int other;
};

std::ostream& operator<<(std::ostream& ioStream, const Optional& iOptional)
{
    return ioStream << iOptional.name;
}

class Optionals : public ListeningTest, public testing::WithParamInterface<Optional>
{
protected:
    Optionals() : m_object(Make("ContractOptional", "O")), m_access(m_object), m_key(KeyOf(m_object, GetParam().name))
    {
    }

    /// Whether some write of each kind succeeds.
    bool IsWritten()
    {
        const ORXISpecObject_var target = Make("ContractLeaf", "T");
        const bool wasWritten[] = {m_access->SetDouble(m_key, 2.5) == S_OK,
                                   m_access->SetInteger(m_key, 2) == S_OK,
                                   m_access->SetBoolean(m_key, ORXTrue) == S_OK,
                                   m_access->SetString(m_key, "x") == S_OK,
                                   m_access->SetSpecObject(m_key, target) == S_OK,
                                   m_access->SetStringList(m_key, ListOf({"x"})) == S_OK,
                                   m_access->InsertAtPosition(m_key, target, 1) == S_OK};
        bool any = false;
        for (const bool was : wasWritten)
            any = any || was;
        return any;
    }

    ORXISpecObject_var m_object;
    ORXISpecAttrAccess_var m_access;
    ORXISpecAttrKey_var m_key;
};

TEST_P(Optionals, HaveAKeyWhileTheObjectDoesNotCarryThem)
{
    ASSERT_FALSE(!m_key);
    EXPECT_EQ(Narrow(m_key->GetName()), GetParam().name);
    EXPECT_EQ(m_key->GetType(), GetParam().type);
    EXPECT_EQ(m_key->GetListType(), GetParam().listType);
    EXPECT_EQ(m_access->HasAttribute(m_key), ORXFalse);
    EXPECT_EQ(m_key->IsEqual(KeyOf(Make("ContractOptional", "P"), GetParam().name)), 1);
}

TEST_P(Optionals, ReadAsNothingAndRefuseWritesUntilTheyAreAdded)
{
    EXPECT_EQ(m_access->GetDouble(m_key), 0.0);
    EXPECT_EQ(m_access->GetInteger(m_key), 0);
    EXPECT_EQ(m_access->GetBoolean(m_key), ORXFalse);
    EXPECT_TRUE(m_access->GetString(m_key).IsEmpty());
    EXPECT_TRUE(m_access->GetString(m_key, 1).IsEmpty());
    EXPECT_EQ(m_access->GetSpecObject(m_key), nullptr);
    EXPECT_EQ(m_access->GetListSize(m_key), 0);
    const std::unique_ptr<ORXListValORXBaseUnknown_var> list(m_access->ListObjects(m_key));
    EXPECT_TRUE(list == nullptr || list->Size() == 0);
    EXPECT_TRUE(!ORXCke_GetParm(m_access, m_key, 1));
    EXPECT_FALSE(IsWritten());
    EXPECT_EQ(m_access->RemoveAll(m_key), E_FAIL);
    EXPECT_EQ(m_access->RemovePosition(m_key, 1), E_FAIL);
    EXPECT_EQ(Told(), Lines{});
    EXPECT_EQ(m_access->HasAttribute(m_key), ORXFalse) << "a refused write adds nothing";
}

TEST_P(Optionals, AddAttribute_MakesThemReal_InSilence)
{
    EXPECT_FALSE(!ORXISpecAttribute_var::Adopt(m_object->AddAttribute(GetParam().name, GetParam().type, 0)));
    EXPECT_EQ(m_access->HasAttribute(m_key), ORXTrue);
    EXPECT_EQ(Told(), Lines{});
    EXPECT_EQ(KeyOf(m_object, GetParam().name)->IsEqual(m_key), 1) << "the key is the same";
    EXPECT_EQ(m_access->HasAttribute(KeyOf(Make("ContractOptional", "P"), GetParam().name)), ORXTrue);
    EXPECT_TRUE(IsWritten());
    EXPECT_GT(Told().size(), 0U);
}

TEST_P(Optionals, AddAttribute_OnOneObject_LeavesOthersWithout)
{
    Add(m_object, GetParam().name, GetParam().type);
    const ORXISpecAttrAccess_var other = Make("ContractOptional", "P");
    EXPECT_EQ(other->HasAttribute(m_key), ORXFalse);
}

TEST_P(Optionals, AddAttribute_OfAnotherKind_IsNullAndChangesNothing)
{
    EXPECT_EQ(m_object->AddAttribute(GetParam().name, GetParam().other, 0), nullptr);
    EXPECT_EQ(m_access->HasAttribute(m_key), ORXFalse);
    Add(m_object, GetParam().name, GetParam().type);
    EXPECT_EQ(m_object->AddAttribute(GetParam().name, GetParam().other, 0), nullptr);
    EXPECT_EQ(m_access->HasAttribute(m_key), ORXTrue);
}

TEST_P(Optionals, AddAttribute_ASecondTime_KeepsTheValue)
{
    Add(m_object, GetParam().name, GetParam().type);
    ASSERT_TRUE(IsWritten());
    Told();
    Add(m_object, GetParam().name, GetParam().type);
    EXPECT_EQ(Told(), Lines{});
    const bool isKept = m_access->GetDouble(m_key) == 2.5 || m_access->GetInteger(m_key) == 2 ||
                        m_access->GetBoolean(m_key) == ORXTrue || m_access->GetString(m_key) == "x" ||
                        m_access->GetString(m_key, 1) == "x" || !!ObjectOf(m_object, GetParam().name) ||
                        !!ObjectOf(m_object, GetParam().name, 1);
    EXPECT_TRUE(isKept);
}

INSTANTIATE_TEST_SUITE_P(
    SpecObjects, Optionals,
    testing::Values(Optional{"oreal", tk_double, 0, tk_integer}, Optional{"ointeger", tk_integer, 0, tk_double},
                    Optional{"oboolean", tk_boolean, 0, tk_string}, Optional{"oenumeration", tk_enum, 0, tk_integer},
                    Optional{"ostring", tk_string, 0, tk_boolean}, Optional{"oref", tk_specobject, 0, tk_component},
                    Optional{"onames", tk_list, tk_string, tk_string},
                    Optional{"orefs", tk_list, tk_specobject, tk_specobject}),
    [](const auto& iInfo) { return std::string(iInfo.param.name); });

using OptionalValues = ContractTest;

TEST_F(OptionalValues, AddedAttribute_ComesWithTheDefaultOfItsType)
{
    const ORXISpecObject_var object = Make("ContractOptional", "O");
    Add(object, "oreal", tk_double);
    Add(object, "ostring", tk_string);
    EXPECT_EQ(TextOf(object, "oreal"), "1.5");
    EXPECT_EQ(TextOf(object, "ostring"), "(none)");
}

TEST_F(OptionalValues, AddedBoolean_IsWrittenThroughItsAttribute)
{
    const ORXISpecObject_var object = Make("ContractOptional", "O");
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(object->AddAttribute("oboolean", tk_boolean, 0));
    EXPECT_EQ(added->SetBoolean(ORXTrue), S_OK);
    EXPECT_EQ(TextOf(object, "oboolean"), "true");
}

TEST_F(OptionalValues, AddedReference_HoldsItsTargetUntilItIsTakenOut)
{
    const ORXISpecObject_var object = Make("ContractOptional", "O");
    const ORXISpecObject_var target = Make("ContractLeaf", "T");
    const unsigned int before = CountOf(target);
    Add(object, "oref", tk_specobject);
    Add(object, "orefs", tk_list);
    Set(object, "oref", target);
    Insert(object, "orefs", target, 1);
    EXPECT_EQ(CountOf(target), before + 2);
    Set(object, "oref", NULL_var);
    AccessOf(object)->RemoveAll(KeyOf(object, "orefs"));
    EXPECT_EQ(CountOf(target), before);
    Set(object, "oref", object);
}

TEST_F(OptionalValues, EnumerationThatWasAdded_KnowsItsTexts)
{
    const ORXISpecObject_var object = Make("ContractOptional", "O");
    Add(object, "oenumeration", tk_enum);
    ParmOf(object, "oenumeration")->Valuate(ORXUnicodeString("high"));
    EXPECT_EQ(AccessOf(object)->GetInteger(KeyOf(object, "oenumeration")), 2);
    EXPECT_EQ(AccessOf(object)->SetInteger(KeyOf(object, "oenumeration"), 3), E_FAIL);
}
} // namespace
