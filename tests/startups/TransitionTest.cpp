/**
 * @file
 * What becomes of the data object for each startup and each object that stands there.
 */

#include <ostream>

#include "StartupTest.h"

namespace
{
struct Transition
{
    const char* name;
    const char* startup;
    /// Type of the object that stands there; empty for none.
    const char* former;
    std::string after;
    bool dataChange;
    Lines calls;
};

void PrintTo(const Transition& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class TransitionTest : public StartupTest, public testing::WithParamInterface<Transition>
{
protected:
    void SetUp() override
    {
        StartupTest::SetUp();
        if (*GetParam().former != '\0')
            GiveData(GetParam().former);
    }
};

TEST_P(TransitionTest, Startup_MakesTheDataMatch)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(UpdateTo(GetParam().startup), (Outcome{S_OK, GetParam().dataChange}));
    EXPECT_EQ(calls.Take(), GetParam().calls);
    EXPECT_EQ(DataTypeOf(m_choice), GetParam().after);
}

TEST_P(TransitionTest, DataChange_IsNeverCleared)
{
    EXPECT_EQ(UpdateTo(GetParam().startup, true), (Outcome{S_OK, true}));
}

TEST_P(TransitionTest, ErrorStatus_IsReset)
{
    VYRStandalone::SetErrorStatus(3);
    UpdateTo(GetParam().startup);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
}

const Transition transitions[] = {
    {"NoneOnNone", "", "", "", false, {}},
    {"NoneOnSome",
     "",
     "TypeAlpha",
     "",
     true,
     {"take Choice.1.Data = Former", "advise Choice.1.Data = (none)", "done Choice.1.Data"}},
    {"TypeOnItself", "TypeAlpha", "TypeAlpha", "TypeAlpha", false, {}},
    {"TypeOnNone",
     "TypeAlpha",
     "",
     "TypeAlpha",
     true,
     {"name TypeAlpha", "create TypeAlpha TypeAlphaInst", "write Choice.1.Data = TypeAlphaInst",
      "advise Choice.1.Data = TypeAlphaInst", "done Choice.1.Data"}},
    // The former object goes by the write, and is not taken out before.
    {"TypeOnAnother",
     "TypeBeta",
     "TypeAlpha",
     "TypeBeta",
     true,
     {"name TypeBeta", "create TypeBeta TypeBetaInst", "write Choice.1.Data = TypeBetaInst",
      "advise Choice.1.Data = TypeBetaInst", "done Choice.1.Data"}},
    // Types are compared by their names alone: what derives from the startup is something else.
    {"TypeOnADerivedOne",
     "ChoiceTestChoice",
     "ChoiceTestThree",
     "ChoiceTestChoice",
     true,
     {"name ChoiceTestChoice", "create ChoiceTestChoice ChoiceTestChoiceInst",
      "write Choice.1.Data = ChoiceTestChoiceInst", "advise Choice.1.Data = ChoiceTestChoiceInst",
      "done Choice.1.Data"}},
    {"RefusedOnNone", "NoSuchType", "", "", true, {"name NoSuchType", "create NoSuchType NoSuchTypeInst"}},
    {"RefusedOnSome",
     "NoSuchType",
     "TypeAlpha",
     "",
     true,
     {"name NoSuchType", "create NoSuchType NoSuchTypeInst", "take Choice.1.Data = Former",
      "advise Choice.1.Data = (none)", "done Choice.1.Data"}},
    {"OtherCase",
     "typealpha",
     "TypeAlpha",
     "",
     true,
     {"name typealpha", "create typealpha typealphaInst", "take Choice.1.Data = Former",
      "advise Choice.1.Data = (none)", "done Choice.1.Data"}},
};

INSTANTIATE_TEST_SUITE_P(Transitions, TransitionTest, testing::ValuesIn(transitions),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

class DataObjectTest : public StartupTest
{
};

TEST_F(DataObjectTest, OfTheRightType_StaysTheSameObjectWithAllThatWasSetOnIt)
{
    UpdateTo("TypeAlpha");
    const ORXISpecObject_var data = DataOf(m_choice);
    Write(data, "size", "7.5");
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, false}));
    EXPECT_TRUE(DataOf(m_choice) == data);
    EXPECT_EQ(ValueOf(data, "size"), "7.5");
    EXPECT_EQ(SetFlagOf(data, "size"), "true");
}

TEST_F(DataObjectTest, OfANewType_TakesNothingOver)
{
    UpdateTo("TypeAlpha");
    Write(DataOf(m_choice), "size", "7.5");
    Write(DataOf(m_choice), "label", "mine");
    UpdateTo("TypeBeta");
    EXPECT_EQ(ValueOf(DataOf(m_choice), "size"), "2.5");
    EXPECT_EQ(ValueOf(DataOf(m_choice), "label"), "b");
    EXPECT_EQ(SetFlagOf(DataOf(m_choice), "size"), "absent");
}

TEST_F(DataObjectTest, ThatGaveWay_LeavesTheModelAndIsNewWhenItsTypeComesBack)
{
    UpdateTo("TypeAlpha");
    const ORXISpecObject_var former = DataOf(m_choice);
    UpdateTo("TypeBeta");
    EXPECT_TRUE(!ORXISpecObject_var::Adopt(former->GetOwner()));
    EXPECT_TRUE(!m_model.Find("TypeAlphaInst"));
    UpdateTo("TypeAlpha");
    EXPECT_FALSE(DataOf(m_choice) == former);
}

TEST_F(DataObjectTest, ThatWasRemovedAndIsHeldByNobody_Dies)
{
    UpdateTo("");
    const int before = VYRStandalone::LiveComponents();
    UpdateTo("TypeAlpha");
    EXPECT_GT(VYRStandalone::LiveComponents(), before);
    UpdateTo("");
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(DataObjectTest, BelongsToTheChoiceAndToItsContainer)
{
    UpdateTo("TypeAlpha");
    const ORXISpecObject_var data = DataOf(m_choice);
    EXPECT_TRUE(ORXISpecObject_var::Adopt(data->GetOwner()) == m_choice);
    EXPECT_TRUE(data->GetContainer() == m_model.Container());
    EXPECT_TRUE(!m_model.Find("TypeAlphaInst")) << "what has an owner is no top-level object";
}

TEST_F(DataObjectTest, OfAChoiceInsideAnOwner_IsMadeInTheOwnersContainer)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    m_choice = At(owner, "model");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(UpdateTo("TypeAlpha"), (Outcome{S_OK, true}));
    EXPECT_EQ(calls.Take(),
              (Lines{"name TypeAlpha", "create TypeAlpha TypeAlphaInst", "write Owner.1/model.Data = TypeAlphaInst",
                     "advise Owner.1/model.Data = TypeAlphaInst", "done Owner.1/model.Data"}));
    EXPECT_TRUE(DataOf(m_choice)->GetContainer() == m_model.Container());
}

TEST_F(DataObjectTest, WriteOfData_IsNoNewsForTheChoice)
{
    // Neither a flag nor an update comes of it.
    VYRStandalone::CallRecorder calls;
    WriteObject(m_choice, "Data", Create("TypeGamma", "Mine"));
    EXPECT_EQ(calls.Take(), (Lines{"write Choice.1.Data = Mine", "advise Choice.1.Data = Mine", "done Choice.1.Data"}));
    EXPECT_EQ(SetFlagOf(m_choice, "Data"), "absent");
}
} // namespace
