/**
 * @file
 * Defaults out of the records of configurations.
 */

#include "FlowTest.h"
#include "StandingAdapter.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr const char* IsConfigured = "VYRCfdDefaultManagementAdp::isConfigured";
constexpr const char* GetDefault = "VYRCfdDefaultManagementAdp::GetDefault";

class RecordDefaultTest : public FlowTest
{
protected:
    std::string HasCustomDefault(const char* iName) const
    {
        unsigned char has = 7;
        EXPECT_EQ(DefaultManagement()->HasCustomDefault(iName, has), S_OK);
        return has != ORXFalse ? "true" : "false";
    }

    ORXISpecObject_var RecordAt(int iPosition) const
    {
        return At(m_solver, ("defaultManagement/configuration/" + std::to_string(iPosition)).c_str());
    }
};

struct Conversion
{
    const char* name;
    const char* attribute;
    const char* text;
    /// The default by a record of this text, and by a custom default of this text.
    const char* byRecord;
    const char* byCustomDefault;
};

class ConversionTest : public RecordDefaultTest, public testing::WithParamInterface<Conversion>
{
};

TEST_P(ConversionTest, Text_OfARecord)
{
    AddRecord(m_model, m_solver, GetParam().attribute, GetParam().text);
    EXPECT_EQ(DefaultOf(m_solver, GetParam().attribute), GetParam().byRecord);
    EXPECT_EQ(HasCustomDefault(GetParam().attribute), "true");
}

TEST_P(ConversionTest, Text_OfACustomDefault)
{
    ORXUnicodeString text(GetParam().text);
    EXPECT_EQ(DefaultManagement()->SetCustomDefault(GetParam().attribute, text), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, GetParam().attribute), GetParam().byCustomDefault);
    EXPECT_EQ(HasCustomDefault(GetParam().attribute), "true");
    EXPECT_EQ(ValueOf(m_solver, GetParam().attribute), GetParam().byCustomDefault) << "what is not set follows";
}

const Conversion conversions[] = {
    {"Integer", "iterations", "40", "40", "40"},
    {"IntegerWithATail", "iterations", "40.9 steps", "40", "40"},
    {"IntegerThatIsNone", "iterations", "abc", "(none)", "(none)"},
    {"IntegerOutOfRange", "iterations", "99999999999", "(none)", "(none)"},
    {"IntegerWithoutText", "seed", "x", "(none)", "(none)"},
    {"Real", "relaxation", "0.5", "0.5", "0.5"},
    {"RealWithAnExponent", "relaxation", "1e-3", "0.001", "0.001"},
    // A record gives the number, whatever follows; a custom default is written from the text, which is not all number.
    {"RealWithATail", "relaxation", "5 parsecs", "5", "(none)"},
    {"RealThatIsNone", "relaxation", "abc", "(none)", "(none)"},
    {"String", "title", "jet", "jet", "jet"},
    {"StringOfDigits", "title", "007", "007", "007"},
    {"EmptyString", "title", "", "", ""},
    // Records read no other types.
    {"Boolean", "steady", "false", "(none)", "false"},
    {"BooleanThatIsNone", "steady", "maybe", "(none)", "(none)"},
    {"Enumeration", "scheme", "central", "(none)", "central"},
    {"EnumerationThatIsNone", "scheme", "sideways", "(none)", "(none)"},
};

INSTANTIATE_TEST_SUITE_P(Texts, ConversionTest, testing::ValuesIn(conversions),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(RecordDefaultTest, FirstLook_KeepsTheDefault_AndLaterChangesOfTheRecordAreNotSeen)
{
    AddRecord(m_model, m_solver, "iterations", "40");
    EXPECT_EQ(HasCustomDefault("iterations"), "false");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");
    EXPECT_EQ(HasCustomDefault("iterations"), "true");
    Write(RecordAt(1), "default", "50");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");

    ASSERT_EQ(DefaultManagement()->RemoveCustomDefault("iterations"), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "50");
    Write(RecordAt(1), "default", "60");
    ASSERT_EQ(DefaultManagement()->RemoveAllCustomDefaults(), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "60");
}

TEST_F(RecordDefaultTest, Look_LeavesTheAttributeAlone)
{
    AddRecord(m_model, m_solver, "iterations", "40");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "absent");
}

TEST_F(RecordDefaultTest, TwoRecordsOfOnePath_TheFirstCounts)
{
    AddRecord(m_model, m_solver, "relaxation", "0.1");
    AddRecord(m_model, m_solver, "iterations", "40");
    AddRecord(m_model, m_solver, "iterations", "50");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");
}

TEST_F(RecordDefaultTest, TwoRecordsOfOnePath_TheFirstCountsAlsoWhenItsTextIsNoNumber)
{
    AddRecord(m_model, m_solver, "iterations", "abc");
    AddRecord(m_model, m_solver, "iterations", "50");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "(none)");
}

TEST_F(RecordDefaultTest, Path_IsComparedExactly)
{
    for (const char* path : {"Iterations", "iterations ", "/iterations", "iterations/", "iteration", ""})
        AddRecord(m_model, m_solver, path, "40");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
    EXPECT_EQ(HasCustomDefault("iterations"), "false");
}

TEST_F(RecordDefaultTest, RecordOfAConditionalConfiguration_CountsAndHasNoValue)
{
    AddRecord(m_model, m_solver, "iterations", nullptr);
    Write(RecordAt(1), "condition", "steady=true");
    Write(RecordAt(1), "config", "any");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "(none)");
    EXPECT_EQ(HasCustomDefault("iterations"), "true");
}

TEST_F(RecordDefaultTest, EmptyEntryOfTheList_IsPassedOverWithItsReport)
{
    AddRecord(m_model, m_solver, "relaxation", "0.1");
    AddRecord(m_model, m_solver, "iterations", "40");
    const ORXISpecAttrAccess_var access = AccessOf(SubFeature());
    ASSERT_EQ(access->SetSpecObject(ORXISpecAttrKey_var::Adopt(access->GetAttrKey("configuration")), NULL_var, 1),
              S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");
    EXPECT_EQ(Reported(), (Records{Error("Null initialization c", "VYRCfdObjectAccess::GetPlainString")}));
}

TEST_F(RecordDefaultTest, AttributeWithoutParameter_IsReportedWhenThereAreRecords)
{
    AddRecord(m_model, m_solver, "iterations", "40");
    ORXICkeInst_var value;
    EXPECT_EQ(DefaultManagement()->GetDefault("monitors", value), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", IsConfigured), Assertion("defaultParm", GetDefault)}));
    EXPECT_EQ(DefaultManagement()->GetDefault("missing", value), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", IsConfigured), Assertion("key", GetDefault)}));
}

struct FailingCall
{
    const char* name;
    const char* operation;
    const char* subject;
    const char* object;
    const char* text;
};

class RecordFaultTest : public RecordDefaultTest, public testing::WithParamInterface<FailingCall>
{
};

TEST_P(RecordFaultTest, FailingHostCall_IsReportedAndTheStartUpAnswers)
{
    const FailingCall& row = GetParam();
    AddRecord(m_model, m_solver, "iterations", "40");
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant(row.operation, row.subject, row.object);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(Reported(), (Records{Assertion(row.text, IsConfigured)}));
    EXPECT_EQ(HasCustomDefault("iterations"), "false");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40") << "the next look finds it";
}

TEST_P(RecordFaultTest, WithoutRecords_TheCallIsNotMade)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant(GetParam().operation, GetParam().subject, GetParam().object);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
}

const FailingCall failingCalls[] = {
    {"Parameter", "GetParm", "iterations", "Solver.1", "spParm"},
    {"Type", "GetType", "iterations", "Solver.1", "spType"},
    {"Factory", "GetVolatileFactory", "", "", "spParmFactory"},
    {"VolatileParameter", "CreateParm", "", "", "spTempParm"},
};

INSTANTIATE_TEST_SUITE_P(Calls, RecordFaultTest, testing::ValuesIn(failingCalls),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(RecordDefaultTest, NullList_IsAnEmptyOne)
{
    AddRecord(m_model, m_solver, "iterations", "40");
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant("ListObjects", "configuration");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

TEST_F(RecordDefaultTest, isConfigured_OfAnEmptyName_IsFalseWithoutAReport)
{
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(m_solver));
    ORXICkeInst_var value;
    EXPECT_EQ(adapter->isConfigured("", value), ORXFalse);
    EXPECT_EQ(TextOf(value), "(null)");
}

TEST_F(RecordDefaultTest, isConfigured_WithoutSubFeature_ReportsIt)
{
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(m_solver));
    ORXICkeInst_var value;
    EXPECT_EQ(adapter->isConfigured("iterations", value), ORXFalse);
    EXPECT_EQ(TextOf(value), "(null)");
    EXPECT_EQ(Reported(), (Records{Assertion("m_defMgmt", IsConfigured)}));
}

TEST_F(RecordDefaultTest, isConfigured_LeavesTheArgumentAloneWhereItIsFalse)
{
    AddRecord(m_model, m_solver, "relaxation", "0.1");
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(m_solver, Cursor(SubFeature())));
    ORXICkeInst_var value = UnsetValue(m_solver, "iterations");
    EXPECT_EQ(adapter->isConfigured("iterations", value), ORXFalse);
    EXPECT_EQ(TextOf(value), "(none)");
    EXPECT_EQ(adapter->isConfigured("relaxation", value), ORXTrue);
    EXPECT_EQ(TextOf(value), "0.1");
}
} // namespace
