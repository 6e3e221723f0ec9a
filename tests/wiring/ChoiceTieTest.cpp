/**
 * @file
 * Every operation of the ties to a Choice reaches the operation of the same name, with its arguments and its answer.
 */

#include "ChoiceTest.h"

namespace
{
/// "Choice.1" is extended by the module's own class, and offers alpha, beta and gamma.
class ChoiceTieTest : public ChoiceTest
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        m_object = MakeOwn({{"alpha", "beta", "gamma"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "alpha", "Three", ""});
        m_choice = ChoiceOf(m_object);
        m_configurable = ConfigurableOf(m_object);
        ASSERT_FALSE(!m_choice);
        ASSERT_FALSE(!m_configurable);
    }

    ORXISpecObject_var m_object;
    VYRICfdChoice_var m_choice;
    VYRICfdConfigurable_var m_configurable;
};

constexpr const char* Adapter = "VYRCfdChoiceInstanceAdp::";

TEST_F(ChoiceTieTest, ConfigureWithStartups)
{
    EXPECT_EQ(m_choice->Configure(Texts({"a", "b"}), Texts({"TypeBeta", "TypeAlpha"}), "b", "Two"), S_OK);
    EXPECT_EQ(TextsOf(m_object, "choices"), (Lines{"a", "b"}));
    EXPECT_EQ(TextsOf(m_object, "Startups"), (Lines{"TypeBeta", "TypeAlpha"}));
    EXPECT_EQ(ValueOf(m_object, "value"), "b");
    EXPECT_EQ(ValueOf(m_object, "display"), "Two");
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", std::string(Adapter) + "Update")}));

    EXPECT_EQ(m_choice->Configure(Texts({"a", "b"}), Texts({"TypeBeta"}), "b", "Two"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("iStartups.size() == 0 || iStartups.size() == iChoices.size()",
                                             std::string(Adapter) + "Configure")}));
}

TEST_F(ChoiceTieTest, ConfigureWithoutStartups)
{
    EXPECT_EQ(m_choice->Configure(Texts({"a", "b", "c"}), "b", "Without"), S_OK);
    EXPECT_EQ(TextsOf(m_object, "choices"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(TextsOf(m_object, "Startups"), Lines{});
    EXPECT_EQ(ValueOf(m_object, "value"), "b");
    EXPECT_EQ(ValueOf(m_object, "display"), "Without");

    ASSERT_EQ(m_configurable->StartConfiguration(), S_OK);
    EXPECT_EQ(m_choice->Configure(Texts({"a"}), "a", ""), S_FALSE);
}

TEST_F(ChoiceTieTest, SetChoice)
{
    EXPECT_EQ(m_choice->SetChoice("gamma"), S_OK);
    EXPECT_EQ(ValueOf(m_object, "value"), "gamma");
    EXPECT_EQ(SetFlagOf(m_object, "value"), "true");
    MakeFail("GetParm", "value");
    EXPECT_EQ(m_choice->SetChoice("beta"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::SetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, value)].SetString(iChoice)",
                                              std::string(Adapter) + "SetChoice")}));
}

TEST_F(ChoiceTieTest, GetChoice)
{
    ORXUnicodeString choice("former");
    EXPECT_EQ(m_choice->GetChoice(choice), S_OK);
    EXPECT_EQ(choice, ORXUnicodeString("alpha"));
    MakeFail("GetParm", "value");
    choice = "former";
    EXPECT_EQ(m_choice->GetChoice(choice), E_FAIL);
    EXPECT_EQ(choice, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, value)].GetString(choice)",
                                              std::string(Adapter) + "GetChoice")}));
}

TEST_F(ChoiceTieTest, GetListOfChoices)
{
    std::vector<ORXUnicodeString> choices{"first"};
    EXPECT_EQ(m_choice->GetListOfChoices(choices), S_OK);
    EXPECT_EQ(choices, Texts({"first", "alpha", "beta", "gamma"}));
}

TEST_F(ChoiceTieTest, GetListOfChoicesNLS)
{
    std::vector<ORXUnicodeString> choices{"first"};
    VYRStandalone::SetErrorStatus(3);
    EXPECT_EQ(m_choice->GetListOfChoicesNLS(choices), E_NOTIMPL);
    EXPECT_EQ(choices, Texts({"first"}));
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 3);
}

TEST_F(ChoiceTieTest, GetDefaultDisplay)
{
    ORXUnicodeString display("former");
    EXPECT_EQ(m_choice->GetDefaultDisplay(display), S_OK);
    EXPECT_EQ(display, ORXUnicodeString("Three"));
    MakeFail("GetParm", "display");
    display = "former";
    EXPECT_EQ(m_choice->GetDefaultDisplay(display), E_FAIL);
    EXPECT_EQ(display, ORXUnicodeString("former"));
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, display)].GetString(defaultDisplay)",
                                              std::string(Adapter) + "GetDefaultDisplay")}));
}

TEST_F(ChoiceTieTest, Update_HandsOnNoDefault)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(m_choice->Update(), S_OK);
    EXPECT_EQ(
        Only(calls.Take(), {"create", "allow", "add", "dispatch"}),
        (Lines{"create TypeAlpha TypeAlphaInst", "allow Choice.1.value = [alpha, beta, gamma]", "dispatch Choice.1"}));
    EXPECT_FALSE(HasCustomDefault(m_object));
    WriteTexts(m_object, "Startups", {"TypeAlpha"});
    EXPECT_EQ(m_choice->Update(), E_FAIL);
    const Record unequal = Assertion("choices.size() == startups.size()", std::string(Adapter) + "Update");
    EXPECT_EQ(Reported(), (Records{unequal, unequal})) << "by the write, and by the call";
}

TEST_F(ChoiceTieTest, StartConfiguration)
{
    EXPECT_EQ(m_configurable->StartConfiguration(), S_OK);
    EXPECT_EQ(m_configurable->StartConfiguration(), S_FALSE);
}

TEST_F(ChoiceTieTest, CompleteConfiguration)
{
    ASSERT_EQ(m_configurable->StartConfiguration(), S_OK);
    EXPECT_EQ(m_choice->Update(), S_FALSE);
    EXPECT_EQ(m_configurable->CompleteConfiguration(), S_OK);
    EXPECT_EQ(DataTypeOf(m_object), "TypeAlpha");
    WriteTexts(m_object, "choices", {});
    Reported();
    EXPECT_EQ(m_configurable->CompleteConfiguration(), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", std::string(Adapter) + "Update")}));
}
} // namespace
