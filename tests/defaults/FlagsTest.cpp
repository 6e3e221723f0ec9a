/**
 * @file
 * The set and auto flags: attributes of the sub-feature that come into being when they are first needed.
 */

#include "FlowTest.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr const char* Adp = "VYRCfdDefaultManagementAdp::";

class FlagsTest : public FlowTest
{
protected:
    Lines AddedFlags() const
    {
        Lines names;
        for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(SubFeature()))
            if (attribute.added)
            {
                EXPECT_EQ(attribute.type, tk_boolean);
                names.push_back(attribute.name);
            }
        return names;
    }
};

TEST_F(FlagsTest, FreshObject_HasNoFlags)
{
    EXPECT_EQ(AddedFlags(), Lines{});
}

TEST_F(FlagsTest, IsSet_OnAFreshObject_AnswersFalseAndLeavesTheFlag)
{
    unsigned char isSet = 7;
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->IsSet("iterations", isSet), S_OK);
    EXPECT_EQ(isSet, ORXFalse);
    EXPECT_EQ(calls.Take(), (Lines{
                                "add Solver.1/defaultManagement.iterations_isset",
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                            }));
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
    EXPECT_EQ(AddedFlags(), (Lines{"iterations_isset"}));

    isSet = 7;
    EXPECT_EQ(DefaultManagement()->IsSet("iterations", isSet), S_OK);
    EXPECT_EQ(isSet, ORXFalse);
    EXPECT_EQ(calls.Take(), Lines{}) << "the second call reads";
}

TEST_F(FlagsTest, IsSet_ReadsTheFlag)
{
    ASSERT_EQ(DefaultManagement()->SetIsSet("iterations", ORXTrue), S_OK);
    unsigned char isSet = 7;
    EXPECT_EQ(DefaultManagement()->IsSet("iterations", isSet), S_OK);
    EXPECT_EQ(isSet, ORXTrue);
}

TEST_F(FlagsTest, SetIsSet_MakesTheFlagWithItsValue_AndWritesItFromThenOn)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->SetIsSet("iterations", ORXTrue), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "add Solver.1/defaultManagement.iterations_isset",
                                "write Solver.1/defaultManagement.iterations_isset = true",
                                "advise Solver.1/defaultManagement.iterations_isset = true",
                                "done Solver.1/defaultManagement.iterations_isset",
                            }));
    EXPECT_EQ(DefaultManagement()->SetIsSet("iterations", ORXFalse), S_OK);
    EXPECT_EQ(calls.Take(), (Lines{
                                "write Solver.1/defaultManagement.iterations_isset = false",
                                "advise Solver.1/defaultManagement.iterations_isset = false",
                                "done Solver.1/defaultManagement.iterations_isset",
                            }));
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
}

TEST_F(FlagsTest, Flags_NeedNoAttributeOfTheirName)
{
    EXPECT_EQ(DefaultManagement()->SetIsSet("100% / nothing", ORXTrue), S_OK);
    EXPECT_EQ(SetFlagOf(m_solver, "100% / nothing"), "true");
}

TEST_F(FlagsTest, Flags_AreNamedByTheNameAndTheirEnding)
{
    unsigned char flag = 7;
    DefaultManagement()->IsSet("a", flag);
    DefaultManagement()->SetIsSet("a_isset", ORXTrue);
    DefaultManagement()->SetIsAuto("a", ORXTrue);
    EXPECT_EQ(AddedFlags(), (Lines{"a_isset", "a_isset_isset", "a_isauto"}));
}

TEST_F(FlagsTest, SetAndAuto_DoNotExcludeEachOther)
{
    DefaultManagement()->SetIsAuto("iterations", ORXTrue);
    DefaultManagement()->SetIsSet("iterations", ORXTrue);
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(FlagsTest, HasAutoAndGetIsAuto_MakeNoFlag)
{
    unsigned char hasAuto = 7;
    unsigned char isAuto = 7;
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(DefaultManagement()->HasAuto("iterations", hasAuto), S_OK);
    EXPECT_EQ(DefaultManagement()->GetIsAuto("iterations", isAuto), S_OK);
    EXPECT_EQ(hasAuto, ORXFalse);
    EXPECT_EQ(isAuto, ORXFalse);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(FlagsTest, HasAuto_IsTrueOnceThereIsAFlag_AlsoAFalseOne)
{
    for (const unsigned char value : {ORXFalse, ORXTrue})
    {
        ASSERT_EQ(DefaultManagement()->SetIsAuto("iterations", value), S_OK);
        unsigned char hasAuto = 7;
        unsigned char isAuto = 7;
        EXPECT_EQ(DefaultManagement()->HasAuto("iterations", hasAuto), S_OK);
        EXPECT_EQ(DefaultManagement()->GetIsAuto("iterations", isAuto), S_OK);
        EXPECT_EQ(hasAuto, ORXTrue);
        EXPECT_EQ(isAuto, value);
    }
}

TEST_F(FlagsTest, Flags_BelongToTheirObject)
{
    const ORXISpecObject_var other = Create("FlowTestSolver", "Solver.2");
    DefaultManagement()->SetIsSet("iterations", ORXTrue);
    EXPECT_EQ(SetFlagOf(other, "iterations"), "absent");
    EXPECT_EQ(SetFlagOf(At(m_solver, "zone"), "iterations"), "absent");
}

TEST_F(FlagsTest, Flags_OutliveTheExtensionThatMadeThem)
{
    DefaultManagement()->SetIsSet("iterations", ORXTrue);
    DefaultManagement()->SetIsAuto("iterations", ORXTrue);
    m_model.DropExtensions();
    unsigned char isSet = 7;
    unsigned char isAuto = 7;
    EXPECT_EQ(DefaultManagement()->IsSet("iterations", isSet), S_OK);
    EXPECT_EQ(DefaultManagement()->GetIsAuto("iterations", isAuto), S_OK);
    EXPECT_EQ(isSet, ORXTrue);
    EXPECT_EQ(isAuto, ORXTrue);
}

// ---- failing host calls ---------------------------------------------------------------------------------------------

TEST_F(FlagsTest, SetIsSet_HandsOnTheStatusOfAFailedWriteWithoutAReport)
{
    DefaultManagement()->SetIsSet("iterations", ORXFalse);
    Plant("SetBoolean", "iterations_isset", "Solver.1/defaultManagement", E_NOTIMPL);
    EXPECT_EQ(DefaultManagement()->SetIsSet("iterations", ORXTrue), E_NOTIMPL);
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(FlagsTest, FirstWriteOfANewFlag_IsNotLookedAt)
{
    unsigned char isSet = 7;
    VYRStandalone::Fault all{};
    all.operation = "SetBoolean";
    all.times = 0;
    VYRStandalone::PlantFault(all);
    EXPECT_EQ(DefaultManagement()->SetIsSet("iterations", ORXTrue), S_OK);
    EXPECT_EQ(DefaultManagement()->IsSet("relaxation", isSet), S_OK);
    EXPECT_EQ(DefaultManagement()->SetIsAuto("title", ORXTrue), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 3);
    EXPECT_EQ(isSet, ORXFalse);
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false") << "the flag is there, without a value";
}

struct FlagCall
{
    const char* name;
    HRESULT (*call)(const VYRIMpaDefaultManagementProtected_var&, unsigned char&);
    /// The operations that make a missing flag, and those with an out argument.
    bool isMaking;
    bool isAsking;
};

const FlagCall flagCalls[] = {
    {"IsSet",
     [](const VYRIMpaDefaultManagementProtected_var& management, unsigned char& oFlag) {
         return management->IsSet("iterations", oFlag);
     },
     true, true},
    {"SetIsSet",
     [](const VYRIMpaDefaultManagementProtected_var& management, unsigned char&) {
         return management->SetIsSet("iterations", ORXTrue);
     },
     true, false},
    {"HasAuto",
     [](const VYRIMpaDefaultManagementProtected_var& management, unsigned char& oFlag) {
         return management->HasAuto("iterations", oFlag);
     },
     false, true},
    {"GetIsAuto",
     [](const VYRIMpaDefaultManagementProtected_var& management, unsigned char& oFlag) {
         return management->GetIsAuto("iterations", oFlag);
     },
     false, true},
    {"SetIsAuto",
     [](const VYRIMpaDefaultManagementProtected_var& management, unsigned char&) {
         return management->SetIsAuto("iterations", ORXTrue);
     },
     true, false},
};

class FlagCallTest : public FlagsTest, public testing::WithParamInterface<FlagCall>
{
};

TEST_P(FlagCallTest, FailedAssertion_IsReportedUnderTheOperationAndLeavesFalse)
{
    struct
    {
        const char* interfaceName;
        const char* text;
    } const casts[] = {{"ORXISpecAttrAccess", "spAttr"}, {"ORXISpecObject", "spSpec"}};
    for (const auto& cast : casts)
    {
        const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
        Plant("QueryInterface", cast.interfaceName, "Solver.1/defaultManagement");
        unsigned char flag = 7;
        EXPECT_EQ(GetParam().call(management, flag), E_FAIL);
        EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
        EXPECT_EQ(Reported(), (Records{Assertion(cast.text, std::string(Adp) + GetParam().name)}));
        EXPECT_EQ(flag, GetParam().isAsking ? ORXFalse : 7);
        EXPECT_EQ(AddedFlags(), Lines{});
        VYRStandalone::ClearFaults();
    }
}

TEST_P(FlagCallTest, FailedAddAttribute_IsReportedByThoseThatMakeTheFlag)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    Plant("AddAttribute");
    unsigned char flag = 7;
    EXPECT_EQ(GetParam().call(management, flag), GetParam().isMaking ? E_FAIL : S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), GetParam().isMaking ? 1 : 0);
    EXPECT_EQ(Reported(),
              GetParam().isMaking ? (Records{Assertion("pAttr", std::string(Adp) + GetParam().name)}) : Records{});
    EXPECT_EQ(flag, GetParam().isAsking ? ORXFalse : 7);
}

TEST_P(FlagCallTest, FlagWhoseKeyIsThereButNotTheAttribute_DoesNotExist)
{
    const VYRIMpaDefaultManagementProtected_var management = DefaultManagement();
    management->SetIsSet("iterations", ORXTrue);
    management->SetIsAuto("iterations", ORXTrue);
    Plant("HasAttribute", "", "Solver.1/defaultManagement");
    VYRStandalone::CallRecorder calls;
    unsigned char flag = 7;
    EXPECT_EQ(GetParam().call(management, flag), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(flag, GetParam().isAsking ? ORXFalse : 7);
    const Lines lines = calls.Take();
    ASSERT_EQ(lines.empty(), !GetParam().isMaking);
    EXPECT_TRUE(lines.empty() || lines.front().starts_with("add Solver.1/defaultManagement.iterations_is"))
        << lines.front();
}

INSTANTIATE_TEST_SUITE_P(Operations, FlagCallTest, testing::ValuesIn(flagCalls),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(FlagsTest, AttributeOfAnotherKindUnderTheName_ReadsAsFalseAndRefusesWrites)
{
    ASSERT_FALSE(!ORXISpecAttribute_var::Adopt(SubFeature()->AddAttribute("iterations_isset", tk_integer, 0)));
    unsigned char isSet = 7;
    EXPECT_EQ(DefaultManagement()->IsSet("iterations", isSet), S_OK);
    EXPECT_EQ(isSet, ORXFalse);
    EXPECT_LT(DefaultManagement()->SetIsSet("iterations", ORXTrue), 0);
}
} // namespace
