/**
 * @file
 * Data objects whose steps do what they should not to the Choice that they are made for: nothing breaks, and nothing
 * stays behind.
 */

#include <ostream>

#include "ChoiceLeakTest.h"
#include "EntityInit.h"

namespace
{
/// The step that does it.
struct Step
{
    const char* name;
    std::function<void()> EntitySteps::*step;

    bool IsInit() const { return step == &EntitySteps::init; }
};

void PrintTo(const Step& iStep, std::ostream* ioStream)
{
    *ioStream << iStep.name;
}

const Step stepsThere[] = {{"Init", &EntitySteps::init}, {"PostInit", &EntitySteps::postInit}};

/// "Choice.1" offers plain, entity and last; entity is the one whose data takes steps.
class HostileInitTest : public ChoiceLeakTest, public testing::WithParamInterface<Step>
{
protected:
    void SetUp() override
    {
        ChoiceLeakTest::SetUp();
        EntityInit::Register();
        m_choice =
            MakeUpdated({{"plain", "entity", "last"}, {"TypeAlpha", "StartupTestEntity", "TypeBeta"}, "plain", "", ""});
    }

    void TearDown() override
    {
        EntityInit::Steps() = {};
        m_choice = NULL_var;
        ChoiceLeakTest::TearDown();
    }

    /// What is done once, when the step is reached.
    void AtStep(std::function<void()> iDeed)
    {
        EntityInit::Steps().*GetParam().step = [this, iDeed] {
            if (m_deeds++ == 0)
                iDeed();
        };
    }

    HRESULT Choose(const char* iValue) { return ChoiceOf(m_choice)->SetChoice(iValue); }

    /// Creations, steps, writes but those of flags, and what is told.
    static Lines StepsOf(VYRStandalone::CallRecorder& ioCalls)
    {
        Lines lines = Only(ioCalls.Take(), {"create", "init", "write", "take", "postinit", "complete", "dispatch"});
        std::erase_if(lines, [](const std::string& iLine) { return iLine.find("_isset") != std::string::npos; });
        return lines;
    }

    ORXISpecObject_var m_choice;
    int m_deeds = 0;
};

INSTANTIATE_TEST_SUITE_P(Steps, HostileInitTest, testing::ValuesIn(stepsThere),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_P(HostileInitTest, ModelClosed)
{
    AtStep([this] { m_model.Close(); });
    EXPECT_EQ(Choose("entity"), S_OK);
    EXPECT_EQ(m_deeds, 1);
    EXPECT_TRUE(m_model.Objects().empty());
    // Both objects are held, and get together outside every model.
    EXPECT_EQ(DataTypeOf(m_choice), "StartupTestEntity");
    EXPECT_TRUE(!m_choice->GetContainer());
}

TEST_P(HostileInitTest, ModelClosed_WithNobodyElseHoldingTheChoice)
{
    AtStep([this] { m_model.Close(); });
    const ORXICkeParm_var parameter = Cursor(m_choice)["value"].GetParm();
    m_choice = NULL_var;
    parameter->Valuate(ORXUnicodeString("entity"));
    EXPECT_EQ(m_deeds, 1);
    EXPECT_TRUE(m_model.Objects().empty());
}

TEST_P(HostileInitTest, DataThrownAway)
{
    AtStep([this] { WriteObject(m_choice, "Data", NULL_var); });
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Choose("entity"), S_OK);
    EXPECT_EQ(StepsOf(calls),
              (GetParam().IsInit()
                   ? Lines{"write Choice.1.value = entity", "create StartupTestEntity StartupTestEntityInst",
                           "init StartupTestEntityInst", "write Choice.1.Data = (null)",
                           "write Choice.1.Data = StartupTestEntityInst", "postinit Choice.1/Data",
                           "complete true true", "dispatch Choice.1"}
                   : Lines{"write Choice.1.value = entity", "create StartupTestEntity StartupTestEntityInst",
                           "init StartupTestEntityInst", "write Choice.1.Data = StartupTestEntityInst",
                           "postinit Choice.1/Data", "write Choice.1.Data = (null)", "complete true true",
                           "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(m_choice), GetParam().IsInit() ? "StartupTestEntity" : "");
    // The next update makes good what is missing.
    EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(m_choice), "StartupTestEntity");
    EXPECT_EQ(m_deeds, GetParam().IsInit() ? 1 : 2);
}

TEST_P(HostileInitTest, DataReplacedByAForeignObject)
{
    AtStep([this] { WriteObject(m_choice, "Data", Create("TypeGamma", "Foreign.1")); });
    EXPECT_EQ(Choose("entity"), S_OK);
    EXPECT_EQ(DataTypeOf(m_choice), GetParam().IsInit() ? "StartupTestEntity" : "TypeGamma");
    EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(m_choice), "StartupTestEntity");
    EXPECT_EQ(m_model.Objects().size(), 1U);
}

TEST_P(HostileInitTest, ValueWrittenAgain)
{
    AtStep([this] { Choose("last"); });
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Choose("entity"), S_OK);
    EXPECT_EQ(StepsOf(calls),
              (GetParam().IsInit()
                   ? Lines{"write Choice.1.value = entity", "create StartupTestEntity StartupTestEntityInst",
                           "init StartupTestEntityInst", "write Choice.1.value = last", "create TypeBeta TypeBetaInst",
                           "write Choice.1.Data = TypeBetaInst", "complete true true", "dispatch Choice.1",
                           "write Choice.1.Data = StartupTestEntityInst", "postinit Choice.1/Data",
                           "complete false true", "dispatch Choice.1"}
                   : Lines{"write Choice.1.value = entity", "create StartupTestEntity StartupTestEntityInst",
                           "init StartupTestEntityInst", "write Choice.1.Data = StartupTestEntityInst",
                           "postinit Choice.1/Data", "write Choice.1.value = last", "create TypeBeta TypeBetaInst",
                           "write Choice.1.Data = TypeBetaInst", "complete true true", "dispatch Choice.1",
                           "complete false true", "dispatch Choice.1"}));
    // The outer run goes on with the startup that it had read, and attaches what it has made.
    EXPECT_EQ(ValueOf(m_choice, "value"), "last");
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "true");
    EXPECT_EQ(DataTypeOf(m_choice), GetParam().IsInit() ? "StartupTestEntity" : "TypeBeta");
    EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    EXPECT_EQ(DataTypeOf(m_choice), "TypeBeta");
}

TEST_P(HostileInitTest, SameValueWrittenAgain)
{
    AtStep([this] { Choose("entity"); });
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Choose("entity"), S_OK);
    EXPECT_EQ(StepsOf(calls),
              (GetParam().IsInit()
                   ? Lines{"write Choice.1.value = entity", "create StartupTestEntity StartupTestEntityInst",
                           "init StartupTestEntityInst", "write Choice.1.value = entity",
                           "create StartupTestEntity StartupTestEntityInst", "init StartupTestEntityInst",
                           "write Choice.1.Data = StartupTestEntityInst", "postinit Choice.1/Data",
                           "complete true true", "dispatch Choice.1", "write Choice.1.Data = StartupTestEntityInst",
                           "postinit Choice.1/Data", "complete false true", "dispatch Choice.1"}
                   : Lines{"write Choice.1.value = entity", "create StartupTestEntity StartupTestEntityInst",
                           "init StartupTestEntityInst", "write Choice.1.Data = StartupTestEntityInst",
                           "postinit Choice.1/Data", "write Choice.1.value = entity", "complete true false",
                           "dispatch Choice.1", "complete false true", "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(m_choice), "StartupTestEntity");
    EXPECT_EQ(m_model.Objects().size(), 1U) << "no data object is left over";
}

TEST_P(HostileInitTest, ConfiguredAnew)
{
    AtStep([this] { ChoiceOf(m_choice)->Configure(Texts({"one", "two"}), {}, "two", ""); });
    EXPECT_EQ(Choose("entity"), S_OK);
    // The new choices beside the old startups.
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    EXPECT_EQ(ValueOf(m_choice, "value"), "two");
    EXPECT_EQ(DataTypeOf(m_choice), "");
    EXPECT_EQ(m_model.Objects().size(), 1U);
}

TEST_P(HostileInitTest, Exception)
{
    AtStep([] { throw Thrown(); });
    EXPECT_THROW(Choose("entity"), Thrown);
    EXPECT_EQ(SetFlagOf(m_choice, "value"), "true");
    EXPECT_EQ(DataTypeOf(m_choice), GetParam().IsInit() ? "TypeAlpha" : "StartupTestEntity");
    // What has not been attached stays in the model by itself, as after a failure.
    EXPECT_EQ(m_model.Objects().size(), GetParam().IsInit() ? 2U : 1U);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    EXPECT_EQ(StepsOf(calls),
              (GetParam().IsInit() ? Lines{"create StartupTestEntity StartupTestEntityInst",
                                           "init StartupTestEntityInst", "write Choice.1.Data = StartupTestEntityInst",
                                           "postinit Choice.1/Data", "complete true true", "dispatch Choice.1"}
                                   : Lines{"complete true false", "dispatch Choice.1"}));
    EXPECT_EQ(DataTypeOf(m_choice), "StartupTestEntity");
}
} // namespace
