/**
 * @file
 * Attributes of a Choice whose keys cannot be found. Each test fails the first look-up of a key in its process, so that
 * the tests of this program depend on their order when they are run in one process, and nothing else may ask for the
 * keys before.
 */

#include "ChoiceTest.h"
#include "ORXKeySetVYRCfdBase.h"

namespace
{
constexpr const char* Configure = "VYRCfdChoiceInstanceAdp::Configure";

class ChoiceKeysTest : public ChoiceTest
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        m_choice = Make(ThreeChoices());
        m_instance = &TestChoice::Of(m_choice);
    }

    ORXISpecObject_var m_choice;
    TestChoice* m_instance = nullptr;
};

TEST_F(ChoiceKeysTest, Choices_ThatCannotBeRead_AreReported)
{
    ASSERT_EQ(VYRCFDBASE(Choice, choices)(nullptr), nullptr) << "found before";
    MakeFail("Get", "choices");
    ChoiceRecorder recorder;
    EXPECT_EQ(m_instance->Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null key", "VYRCfdObjectAccess::GetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].GetStrings(choices)", Update)}));
    std::vector<ORXUnicodeString> choices = Texts({"former"});
    EXPECT_EQ(m_instance->GetListOfChoices(choices), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null key", "VYRCfdObjectAccess::GetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].GetStrings(oListChoices)",
                                              "VYRCfdChoiceInstanceAdp::GetListOfChoices")}));
    EXPECT_EQ(choices, Texts({"former"}));
    EXPECT_EQ(m_instance->Configure(Texts({"omega"}), {}, "", ""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null key", "VYRCfdObjectAccess::SetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, choices)].SetStrings(iChoices)", Configure)}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceKeysTest, Startups_ThatCannotBeRead_AreReported)
{
    ASSERT_EQ(VYRCFDBASE(Choice, Startups)(nullptr), nullptr) << "found before";
    MakeFail("Get", "Startups");
    ChoiceRecorder recorder;
    EXPECT_EQ(m_instance->Update(""), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null key", "VYRCfdObjectAccess::GetStrings"),
                                   FailedCall("access[VYRCFDBASE(Choice, Startups)].GetStrings(startups)", Update)}));
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceKeysTest, Startups_ThatCannotBeWritten_AreReportedAndTheChoicesStay)
{
    ASSERT_EQ(VYRCFDBASE(Choice, Startups)(nullptr), nullptr) << "found before";
    MakeFail("Get", "Startups");
    ASSERT_EQ(m_instance->StartConfiguration(), S_OK);
    ChoiceRecorder recorder;
    EXPECT_EQ(m_instance->Configure(Texts({"omega"}), Texts({"TypeAlpha"}), "omega", "Kind"), E_FAIL);
    EXPECT_EQ(Reported(),
              (Records{Error("Null key", "VYRCfdObjectAccess::SetStrings"),
                       FailedCall("access[VYRCFDBASE(Choice, Startups)].SetStrings(iStartups)", Configure)}));
    EXPECT_EQ(Only(recorder.Take(), {"write"}), (Lines{"write Choice.1.choices = [omega]"}));
}

TEST_F(ChoiceKeysTest, Display_IsReported)
{
    ASSERT_EQ(VYRCFDBASE(Choice, display)(nullptr), nullptr) << "found before";
    MakeFail("Get", "display");
    ORXUnicodeString display = "former";
    EXPECT_EQ(m_instance->GetDefaultDisplay(display), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Null key", "VYRCfdObjectAccess::GetString"),
                                   FailedCall("access[VYRCFDBASE(Choice, display)].GetString(defaultDisplay)",
                                              "VYRCfdChoiceInstanceAdp::GetDefaultDisplay")}));
    EXPECT_EQ(display, ORXUnicodeString("former"));
}

TEST_F(ChoiceKeysTest, DefaultManagement_LeavesNoRecordsToApply)
{
    ASSERT_EQ(VYRCFDBASE(DefaultManagement, configuration)(nullptr), nullptr) << "found before";
    KeepDefault(m_choice, "alpha");
    MakeFail("Get", "configuration");
    EXPECT_EQ(m_instance->Update(""), S_OK);
    EXPECT_EQ(Reported(), (Records{Error("Null key", "VYRCfdObjectAccess::List")}));
    EXPECT_EQ(DataTypeOf(m_choice), "TypeAlpha");
}
} // namespace
