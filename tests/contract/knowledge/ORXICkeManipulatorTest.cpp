/**
 * @file
 * What a panel offers for a parameter.
 */

#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"

namespace
{
class Manipulators : public ListeningTest
{
protected:
    static std::vector<std::string> AllowedBy(const ORXICkeManipulator_var& iManipulator)
    {
        ORXListValORXUnicodeString found = ListOf({"old", "older"});
        EXPECT_EQ(iManipulator->GetAllowedValues(found), S_OK);
        return TextsOf(found);
    }

    ORXISpecObject_var m_object = Make("ContractListening", "A");
};

TEST_F(Manipulators, AreThereOnceOneWasMade)
{
    EXPECT_TRUE(!ParmOf(m_object, "title")->GetManipulator());
    const ORXICkeManipulator_var made = ParmOf(m_object, "title")->CreateManipulator();
    ASSERT_FALSE(!made);
    EXPECT_TRUE(ParmOf(m_object, "title")->GetManipulator() == made);
    EXPECT_TRUE(!ParmOf(m_object, "mode")->GetManipulator());
    EXPECT_EQ(AllowedBy(made), Lines{});
}

TEST_F(Manipulators, KeepTheTextsAndTheirOrder)
{
    ORXListValORXUnicodeString allowed = ListOf({"b", "", "a", "a"});
    for (const std::string& character : CharactersOfEveryPlane())
        allowed.Append(character.c_str());
    EXPECT_EQ(ParmOf(m_object, "title")->CreateManipulator()->SetAllowedValues(allowed), S_OK);
    EXPECT_EQ(AllowedBy(ParmOf(m_object, "title")->GetManipulator()), TextsOf(allowed));
    const std::vector<std::string> before = TextsOf(allowed);
    allowed.Append("later");
    EXPECT_EQ(AllowedBy(ParmOf(m_object, "title")->GetManipulator()), before) << "a copy is kept";
}

TEST_F(Manipulators, SetAgain_ReplaceTheTexts)
{
    const ORXICkeManipulator_var manipulator = ParmOf(m_object, "title")->CreateManipulator();
    manipulator->SetAllowedValues(ListOf({"a", "b"}));
    EXPECT_EQ(manipulator->SetAllowedValues(ListOf({"c"})), S_OK);
    EXPECT_EQ(AllowedBy(manipulator), Lines{"c"});
    EXPECT_EQ(manipulator->SetAllowedValues(ListOf({})), S_OK);
    EXPECT_EQ(AllowedBy(manipulator), Lines{});
}

TEST_F(Manipulators, MadeAgain_StartEmptyInThePlaceOfTheFormer)
{
    const ORXICkeManipulator_var former = ParmOf(m_object, "title")->CreateManipulator();
    former->SetAllowedValues(ListOf({"a"}));
    const ORXICkeManipulator_var newer = ParmOf(m_object, "title")->CreateManipulator();
    EXPECT_FALSE(newer == former);
    EXPECT_TRUE(ParmOf(m_object, "title")->GetManipulator() == newer);
    EXPECT_EQ(AllowedBy(newer), Lines{});
    EXPECT_EQ(AllowedBy(former), Lines{"a"});
}

TEST_F(Manipulators, RestrictNothingAndTellNobody)
{
    ParmOf(m_object, "title")->CreateManipulator()->SetAllowedValues(ListOf({"a", "b"}));
    EXPECT_EQ(Told(), Lines{});
    ParmOf(m_object, "title")->Valuate(ORXUnicodeString("c"));
    EXPECT_EQ(TextOf(m_object, "title"), "c");
}

TEST_F(Manipulators, OutliveTheirParameter)
{
    ORXICkeManipulator_var ofAttribute;
    ORXICkeManipulator_var ofVolatile;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "B");
        ofAttribute = ParmOf(object, "title")->CreateManipulator();
        ofVolatile = ORXCkeGlobalFunctions::GetVolatileFactory()
                         ->CreateParm(ParmOf(object, "title")->GetType(), "t")
                         ->CreateManipulator();
    }
    for (const ORXICkeManipulator_var& manipulator : {ofAttribute, ofVolatile})
    {
        EXPECT_EQ(manipulator->SetAllowedValues(ListOf({"a"})), S_OK);
        EXPECT_EQ(AllowedBy(manipulator), Lines{"a"});
    }
}
} // namespace
