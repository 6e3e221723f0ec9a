/**
 * @file
 * Reading what is declared.
 */

#include "ManagerTest.h"

namespace
{
class AllChoicesTest : public ManagerTest
{
protected:
    /// What is declared, the default last.
    Lines All()
    {
        std::vector<ORXUnicodeString> choices;
        ORXUnicodeString value("former");
        EXPECT_EQ(m_manager->GetAllChoices(choices, value), S_OK);
        Lines all;
        for (const ORXUnicodeString& choice : choices)
            all.push_back(choice.CastToCharPtr());
        all.push_back(value.CastToCharPtr());
        return all;
    }
};

const Lines declaredAll{"alpha", "beta", "gamma", "alpha"};

TEST_F(AllChoicesTest, AreTheDeclaredOnesAndTheDeclaredDefault)
{
    EXPECT_EQ(All(), declaredAll);
}

TEST_F(AllChoicesTest, AreTheSameWhateverBecameOfTheChoice)
{
    ASSERT_EQ(ProhibitAll({"alpha", "beta"}), S_OK);
    EXPECT_EQ(All(), declaredAll);
    ASSERT_EQ(Configure({"beta"}, "beta", "One"), S_OK);
    EXPECT_EQ(All(), declaredAll);
    ASSERT_EQ(ChoiceOf(m_choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(All(), declaredAll);
}

TEST_F(AllChoicesTest, OfATypeThatDeclaresNothing_AreNone)
{
    m_manager = ManagerOf(Create("ChoiceTestHooked", "Empty.1"));
    EXPECT_EQ(All(), (Lines{""}));
}

TEST_F(AllChoicesTest, StandBehindWhatTheListHolds)
{
    std::vector<ORXUnicodeString> choices{"first"};
    ORXUnicodeString value;
    EXPECT_EQ(m_manager->GetAllChoices(choices, value), S_OK);
    EXPECT_EQ(choices, Texts({"first", "alpha", "beta", "gamma"}));
}

TEST_F(AllChoicesTest, ChangeNothing)
{
    VYRStandalone::CallRecorder calls;
    All();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(AllChoicesTest, ThatCannotBeRead_FailWithTheStatusOfTheRead)
{
    MakeCastFail("ORXISpecAttrAccess", StartupPath());
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value("former");
    EXPECT_EQ(m_manager->GetAllChoices(choices, value), E_FAIL);
    EXPECT_TRUE(choices.empty());
    EXPECT_EQ(value, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::GetStrings"),
                                   FailedCall("startup[VYRCFDBASE(Choice, choices)].GetStrings(oChoices)", GetAll)}));
}

TEST_F(AllChoicesTest, WithADefaultThatCannotBeRead_FailHalfFilled)
{
    Plant("GetParm", "value", StartupPath().c_str());
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value("former");
    EXPECT_EQ(m_manager->GetAllChoices(choices, value), E_FAIL);
    EXPECT_EQ(choices, Texts({"alpha", "beta", "gamma"}));
    EXPECT_EQ(value, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(),
              (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                       FailedCall("startup[VYRCFDBASE(Choice, value)].GetString(oDefaultChoice)", GetAll)}));
}
} // namespace
