/**
 * @file
 * Attributes as objects, which `AddAttribute` gives.
 */

#include "ContractTest.h"

namespace
{
class Attributes : public ListeningTest
{
protected:
    Attributes()
        : m_object(Make("ContractListening", "A")),
          m_attribute(ORXISpecAttribute_var::Adopt(m_object->AddAttribute("x", tk_boolean, 0)))
    {
    }

    ORXISpecObject_var m_object;
    ORXISpecAttribute_var m_attribute;
};

TEST_F(Attributes, SetBoolean_WritesAndTells)
{
    EXPECT_EQ(m_attribute->SetBoolean(ORXTrue), S_OK);
    EXPECT_EQ(TextOf(m_object, "x"), "true");
    EXPECT_EQ(m_attribute->SetBoolean(2), S_OK);
    EXPECT_EQ(TextOf(m_object, "x"), "true");
    EXPECT_EQ(m_attribute->SetBoolean(ORXFalse), S_OK);
    EXPECT_EQ(TextOf(m_object, "x"), "false");
    EXPECT_EQ(Told(), (Lines{"A.x=true", "A.x=true", "A.x=false"}));
}

TEST_F(Attributes, SetBoolean_WithAnIndex_FailsAndTellsNobody)
{
    for (const int index : {-1, 1, 2})
        EXPECT_EQ(m_attribute->SetBoolean(ORXTrue, index), E_FAIL) << index;
    EXPECT_EQ(TextOf(m_object, "x"), "(none)");
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(Attributes, SetBoolean_OfAnotherKind_FailsAndTellsNobody)
{
    for (const int code : {tk_double, tk_integer, tk_string})
    {
        const std::string name = "of" + std::to_string(code);
        const ORXISpecAttribute_var other = ORXISpecAttribute_var::Adopt(m_object->AddAttribute(name.c_str(), code, 0));
        EXPECT_EQ(other->SetBoolean(ORXTrue), E_FAIL) << code;
        EXPECT_EQ(TextOf(m_object, name.c_str()), "(none)") << code;
    }
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(Attributes, HoldTheirObject)
{
    ORXISpecAttribute_var alone;
    ORXISpecAttribute_var ofDeclared;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "B");
        alone = ORXISpecAttribute_var::Adopt(object->AddAttribute("x", tk_boolean, 0));
        ofDeclared =
            ORXISpecAttribute_var::Adopt(MakeIn(model, "ContractPlain", "C")->AddAttribute("on", tk_boolean, 0));
    }
    EXPECT_EQ(alone->SetBoolean(ORXTrue), S_OK);
    EXPECT_EQ(ofDeclared->SetBoolean(ORXTrue), S_OK);
}

TEST_F(Attributes, OfferTheirInterfaceOnly)
{
    const ORXISpecAttribute_var declared = ORXISpecAttribute_var::Adopt(m_object->AddAttribute("on", tk_boolean, 0));
    for (const ORXISpecAttribute_var& attribute : {m_attribute, declared})
    {
        EXPECT_TRUE(ORXISpecAttribute_var::Cast(attribute) == attribute);
        EXPECT_TRUE(ORXBaseUnknown_var::Cast(attribute) == attribute);
        EXPECT_TRUE(!ORXISpecObject_var::Cast(attribute));
        EXPECT_EQ(attribute->IsEqual(m_object.Pointer()), 0);
    }
    EXPECT_EQ(m_attribute->IsEqual(declared.Pointer()), 0);
}
} // namespace
