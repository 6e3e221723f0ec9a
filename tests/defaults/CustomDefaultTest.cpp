/**
 * @file
 * Custom defaults: how they are given, kept and taken away. What texts they read stands with those of records.
 */

#include "FlowTest.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr const char* SetCustomDefault = "VYRCfdDefaultManagementAdp::SetCustomDefault";
constexpr const char* IsSet = "VYRCfdDefaultManagementAdp::IsSet";
constexpr const char* Unset = "VYRCfdDefaultManagementAdp::Unset";

class CustomDefaultTest : public FlowTest
{
protected:
    HRESULT Set(const char* iName, const char* iText) const
    {
        ORXUnicodeString text(iText);
        const HRESULT status = DefaultManagement()->SetCustomDefault(iName, text);
        EXPECT_EQ(text, ORXUnicodeString(iText)) << "the text is not changed";
        return status;
    }

    std::string Has(const char* iName) const
    {
        unsigned char has = 7;
        EXPECT_EQ(DefaultManagement()->HasCustomDefault(iName, has), S_OK);
        return has == ORXTrue ? "true" : has == ORXFalse ? "false" : "neither";
    }
};

TEST_F(CustomDefaultTest, Text_OnAnAttributeThatIsNotSet_ChangesItsValue)
{
    EXPECT_EQ(Set("iterations", "12"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "12");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "12");
    EXPECT_EQ(Has("iterations"), "true");
}

TEST_F(CustomDefaultTest, Text_OnASetAttribute_ChangesTheDefaultOnly)
{
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(Set("iterations", "12"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "12");
}

TEST_F(CustomDefaultTest, Text_ThatCannotBeRead_EmptiesAnAttributeThatIsNotSet)
{
    EXPECT_EQ(Set("iterations", "abc"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "(none)");
    EXPECT_EQ(Has("iterations"), "true");
}

TEST_F(CustomDefaultTest, Text_ReplacesAnEarlierDefault)
{
    EXPECT_EQ(Set("iterations", "12"), S_OK);
    EXPECT_EQ(Set("iterations", "13"), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "13");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "13");
}

TEST_F(CustomDefaultTest, Value_TouchesNoAttributeWhateverTheFlags)
{
    Write(m_solver, "relaxation", "0.25");
    ORXICkeInst_var value;
    ASSERT_EQ(DefaultManagement()->GetDefault("relaxation", value), S_OK);
    VYRStandalone::CallRecorder calls;
    for (const char* name : {"relaxation", "turbulence", "iterations", "no attribute at all"})
    {
        EXPECT_EQ(DefaultManagement()->SetCustomDefault(name, value), S_OK);
        EXPECT_EQ(Has(name), "true");
        EXPECT_EQ(DefaultOf(m_solver, name), "0.7") << "of whatever kind the attribute is";
    }
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(CustomDefaultTest, Value_ThatIsNull_IsKeptAsOne)
{
    ORXICkeInst_var null;
    EXPECT_EQ(DefaultManagement()->SetCustomDefault("iterations", null), S_OK);
    EXPECT_EQ(Has("iterations"), "true");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "(null)");
}

TEST_F(CustomDefaultTest, Has_WithoutOne_IsFalse)
{
    EXPECT_EQ(Has("iterations"), "false");
}

TEST_F(CustomDefaultTest, Remove_LeavesTheAttributeAloneAndGivesTheDeclaredDefaultBack)
{
    Set("iterations", "12");
    Set("relaxation", "0.1");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->RemoveCustomDefault("iterations"), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(Has("iterations"), "false");
    EXPECT_EQ(Has("relaxation"), "true");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "12");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
}

TEST_F(CustomDefaultTest, Remove_OfAnAbsentName_Succeeds)
{
    EXPECT_EQ(DefaultManagement()->RemoveCustomDefault("iterations"), S_OK);
    EXPECT_EQ(DefaultManagement()->RemoveCustomDefault("missing"), S_OK);
}

TEST_F(CustomDefaultTest, RemoveAll_TakesAllAndLeavesTheAttributesAlone)
{
    Set("iterations", "12");
    Set("relaxation", "0.1");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->RemoveAllCustomDefaults(), S_OK);
    EXPECT_EQ(DefaultManagement()->RemoveAllCustomDefaults(), S_OK);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(Has("iterations"), "false");
    EXPECT_EQ(Has("relaxation"), "false");
    EXPECT_EQ(ValueOf(m_solver, "relaxation"), "0.1");
}

TEST_F(CustomDefaultTest, Defaults_AreLostWithTheExtension)
{
    Set("iterations", "12");
    m_model.DropExtensions();
    EXPECT_EQ(Has("iterations"), "false");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
}

TEST_F(CustomDefaultTest, Text_OnAnAttributeOfThisObjectAlone_IsKeptAndFollowed)
{
    ASSERT_FALSE(!ORXISpecAttribute_var::Adopt(m_solver->AddAttribute("extra", tk_integer, 0)));
    EXPECT_EQ(Set("extra", "12"), S_OK);
    EXPECT_EQ(ValueOf(m_solver, "extra"), "12");
}

TEST_F(CustomDefaultTest, Text_OfANameWithoutParameter_IsReportedAndNotKept)
{
    for (const char* name : {"missing", "monitors", "zone", "zone/temperature"})
    {
        EXPECT_EQ(Set(name, "12"), E_FAIL) << name;
        EXPECT_EQ(Reported(), (Records{Assertion("spParm", SetCustomDefault)})) << name;
        EXPECT_EQ(Has(name), "false") << name;
        EXPECT_EQ(SetFlagOf(m_solver, name), "absent") << name;
    }
}

struct FailingCall
{
    const char* name;
    const char* operation;
    const char* subject;
    const char* object;
    Records reports;
    /// Whether the default has been stored by then.
    const char* has;
};

class CustomDefaultFaultTest : public CustomDefaultTest, public testing::WithParamInterface<FailingCall>
{
};

TEST_P(CustomDefaultFaultTest, FailingHostCall_IsReported)
{
    const FailingCall& row = GetParam();
    ASSERT_FALSE(!DefaultManagement());
    Plant(row.operation, row.subject, row.object);
    EXPECT_EQ(Set("iterations", "12"), E_FAIL);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(Reported(), row.reports);
    EXPECT_EQ(Has("iterations"), row.has);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
}

const FailingCall failingCalls[] = {
    {"Parameter", "GetParm", "iterations", "Solver.1", {Assertion("spParm", SetCustomDefault)}, "false"},
    {"Type", "GetType", "iterations", "Solver.1", {Assertion("spType", SetCustomDefault)}, "false"},
    {"Factory", "GetVolatileFactory", "", "", {Assertion("spParmFactory", SetCustomDefault)}, "false"},
    {"VolatileParameter", "CreateParm", "", "", {Assertion("spTempParm", SetCustomDefault)}, "false"},
    {"SetFlag",
     "AddAttribute",
     "iterations_isset",
     "",
     {Assertion("pAttr", IsSet), FailedCall("IsSet(iAttrName, isSet)", SetCustomDefault)},
     "true"},
    {"CurrentValue",
     "GetValue",
     "iterations",
     "Solver.1",
     {Assertion("spVal", Unset), FailedCall("Unset(iAttrName)", SetCustomDefault)},
     "true"},
};

INSTANTIATE_TEST_SUITE_P(Calls, CustomDefaultFaultTest, testing::ValuesIn(failingCalls),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
