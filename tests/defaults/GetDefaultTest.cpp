/**
 * @file
 * How a default is resolved: custom default, record, start-up.
 */

#include "FlowTest.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "StandingAdapter.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr const char* GetDefault = "VYRCfdDefaultManagementAdp::GetDefault";

class GetDefaultTest : public FlowTest
{
protected:
    bool HasCustomDefault(const char* iName) const
    {
        unsigned char has = 7;
        EXPECT_EQ(DefaultManagement()->HasCustomDefault(iName, has), S_OK);
        return has != ORXFalse;
    }
};

TEST_F(GetDefaultTest, Declared_IsTheStartUpsValueAndIsNotKept)
{
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
    EXPECT_EQ(DefaultOf(m_solver, "relaxation"), "0.7");
    EXPECT_EQ(DefaultOf(m_solver, "scheme"), "upwind");
    EXPECT_EQ(DefaultOf(m_solver, "steady"), "true");
    EXPECT_EQ(DefaultOf(m_solver, "title"), "flow");
    EXPECT_FALSE(HasCustomDefault("iterations"));
}

TEST_F(GetDefaultTest, Declared_WithoutAValue_IsNotValuated)
{
    EXPECT_EQ(DefaultOf(m_solver, "seed"), "(none)");
}

TEST_F(GetDefaultTest, Declared_DoesNotLookAtTheObjectsOwnValue)
{
    Write(m_solver, "iterations", "40");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "500");
}

TEST_F(GetDefaultTest, Declared_HoldsForDerivedTypesAndComponents)
{
    EXPECT_EQ(DefaultOf(Create("FlowTestSteadySolver", "Solver.2"), "iterations"), "500");
    EXPECT_EQ(DefaultOf(At(m_solver, "zone"), "temperature"), "300");
}

TEST_F(GetDefaultTest, Record_ComesBeforeTheStartUp_AndACustomDefaultBeforeBoth)
{
    AddRecord(m_model, m_solver, "iterations", "40");
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");
    ORXUnicodeString text("7");
    ASSERT_EQ(DefaultManagement()->SetCustomDefault("iterations", text), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "7");
    ASSERT_EQ(DefaultManagement()->RemoveCustomDefault("iterations"), S_OK);
    EXPECT_EQ(DefaultOf(m_solver, "iterations"), "40");
}

TEST_F(GetDefaultTest, NameThatIsNoAttribute_HasNoDefault)
{
    ORXICkeInst_var value;
    EXPECT_EQ(DefaultManagement()->GetDefault("missing", value), E_FAIL);
    EXPECT_EQ(TextOf(value), "(null)");
    EXPECT_EQ(Reported(), (Records{Assertion("key", GetDefault)}));
}

TEST_F(GetDefaultTest, AttributeOfThisObjectAlone_HasNoDefault)
{
    ASSERT_FALSE(!ORXISpecAttribute_var::Adopt(m_solver->AddAttribute("extra", tk_integer, 0)));
    ORXICkeInst_var value;
    EXPECT_EQ(DefaultManagement()->GetDefault("extra", value), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("key", GetDefault)}));
}

TEST_F(GetDefaultTest, AttributesThatAreNoScalars_HaveNoDefault)
{
    for (const char* name : {"monitors", "zone", "zones", "material", "defaultManagement"})
    {
        ORXICkeInst_var value;
        EXPECT_EQ(DefaultManagement()->GetDefault(name, value), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Assertion("defaultParm", GetDefault)})) << name;
    }
}

TEST_F(GetDefaultTest, Failure_LeavesTheArgumentAlone)
{
    ORXICkeInst_var value = UnsetValue(m_solver, "iterations");
    EXPECT_EQ(DefaultManagement()->GetDefault("missing", value), E_FAIL);
    EXPECT_EQ(TextOf(value), "(none)");
    Reported();
}

struct FailingCall
{
    const char* name;
    const char* operation;
    const char* subject;
    const char* object;
    const char* text;
};

class GetDefaultFaultTest : public GetDefaultTest, public testing::WithParamInterface<FailingCall>
{
};

TEST_P(GetDefaultFaultTest, FailingHostCall_IsReported)
{
    const FailingCall& row = GetParam();
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant(row.operation, row.subject, row.object);
    ORXICkeInst_var value;
    EXPECT_EQ(management->GetDefault("iterations", value), E_FAIL);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(TextOf(value), "(null)");
    EXPECT_EQ(Reported(), (Records{Assertion(row.text, GetDefault)}));
}

const FailingCall failingCalls[] = {
    {"SubFeatureWithoutAttributes", "QueryInterface", "ORXISpecAttrAccess", "Solver.1/defaultManagement", "spAttr"},
    {"SubFeatureThatIsNoFeature", "QueryInterface", "ORXISpecObject", "Solver.1/defaultManagement", "spSpec"},
    {"ObjectThatIsNoFeature", "QueryInterface", "ORXISpecObject", "Solver.1", "spParent"},
    {"NoStartUp", "GetStartup", "", "Solver.1", "parentSU"},
    {"StartUpWithoutAttributes", "QueryInterface", "ORXISpecAttrAccess", "[FlowTestSolver]", "parentSUAttr"},
    {"StartUpWithoutKey", "GetAttrKey", "iterations", "[FlowTestSolver]", "key"},
    {"StartUpWithoutParameter", "GetParm", "iterations", "[FlowTestSolver]", "defaultParm"},
};

INSTANTIATE_TEST_SUITE_P(Calls, GetDefaultFaultTest, testing::ValuesIn(failingCalls),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(GetDefaultTest, NullValueOfTheStartUp_IsHandedOn)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant("GetValue", "iterations", "[FlowTestSolver]");
    ORXICkeInst_var value = UnsetValue(m_solver, "iterations");
    EXPECT_EQ(management->GetDefault("iterations", value), S_OK);
    EXPECT_EQ(TextOf(value), "(null)");
}

TEST_F(GetDefaultTest, CustomDefault_OfAnAdapterWithoutSubFeature_IsNotReached)
{
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(m_solver));
    ORXICkeInst_var custom = UnsetValue(m_solver, "iterations");
    ASSERT_EQ(adapter->SetCustomDefault("iterations", custom), S_OK);
    ORXICkeInst_var value;
    EXPECT_EQ(adapter->GetDefault("iterations", value), E_FAIL);
    EXPECT_EQ(TextOf(value), "(null)");
    EXPECT_EQ(Reported(), (Records{Assertion("spAttr", GetDefault)}));
}

TEST_F(GetDefaultTest, ExtendedObjectThatIsNull_IsReported)
{
    const StandingAdapter_var adapter = StandingAdapter_var::Adopt(new StandingAdapter(NULL_var, Cursor(SubFeature())));
    ORXICkeInst_var value;
    EXPECT_EQ(adapter->GetDefault("iterations", value), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParent", GetDefault)}));
}
} // namespace
