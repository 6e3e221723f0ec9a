/**
 * @file
 * What the evaluation of a condition reports, and how it sits in a chain of a cursor.
 */

#include "ConditionFixture.h"
#include "EnteredScopes.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr char Bool[] = "VYRCfdObjectCondition::operator bool";

class ConditionReportTest : public ConditionFixture
{
};

/// What the four tests of a value report, each with its text.
Records AllKindsReport(const char* iDouble, const char* iOthers)
{
    return {Assertion(iDouble, "VYRCfdObjectAccess::IsDouble"), Assertion(iOthers, "VYRCfdObjectAccess::IsInteger"),
            Assertion(iOthers, "VYRCfdObjectAccess::IsString"), Assertion(iOthers, "VYRCfdObjectAccess::IsBoolean")};
}

TEST_F(ConditionReportTest, APathThatLeadsNowhere_IsFalseInSilence)
{
    for (const char* text : {"nothing==1", "component/nothing==1", "nothing/inner==1", "reference==1",
                             "reference/inner!=1", "objects/1==1", "objects/name==1", "integer/name==1", "!=5"})
    {
        const VYRCfdObjectCondition condition(Object(), text);
        EXPECT_FALSE(condition) << text;
        EXPECT_FALSE(condition.HasError()) << text;
    }
}

TEST_F(ConditionReportTest, OnAnObject_EveryTestReportsWhatItMisses)
{
    for (const char* text : {"component==1", "component!=1", "component/==1", "/integer==1"})
    {
        EXPECT_FALSE(Holds(text)) << text;
        EXPECT_EQ(Reported(), AllKindsReport("spTableColumn", "_spKey")) << text;
    }
}

TEST_F(ConditionReportTest, OnAList_EveryTestReportsTheMissingParameter)
{
    for (const char* text : {"objects==1", "reals==1"})
    {
        EXPECT_FALSE(Holds(text)) << text;
        EXPECT_EQ(Reported(), AllKindsReport("spParm", "spParm")) << text;
    }
}

TEST_F(ConditionReportTest, WithoutAParameter_EveryTestReportsIt)
{
    Write("integer", "5");
    MakeFail("GetParm", "integer");
    EXPECT_FALSE(Holds("integer==5"));
    EXPECT_EQ(Reported(), AllKindsReport("spParm", "spParm"));
}

TEST_F(ConditionReportTest, OnAColumnWithoutRows_TheTestForARealIsFalseWithoutAReport)
{
    const VYRCfdObjectAccess columns = ColumnNamed("speed", {});
    EXPECT_FALSE(VYRCfdObjectCondition(columns, "speed==0"));
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey", "VYRCfdObjectAccess::IsInteger"),
                                   Assertion("_spKey", "VYRCfdObjectAccess::IsString"),
                                   Assertion("_spKey", "VYRCfdObjectAccess::IsBoolean")}));
}

TEST_F(ConditionReportTest, AReadThatFails_IsReportedAsAFailedCall_AndFalse)
{
    struct ReadCase
    {
        const char* kind;
        const char* value;
        const char* reader;
        const char* call;
    };
    const ReadCase cases[] = {
        {"real", "5", "VYRCfdObjectAccess::GetDouble", "varAccess.GetDouble(value)"},
        {"integer", "5", "VYRCfdObjectAccess::GetInteger", "varAccess.GetInteger(value)"},
        {"enumeration", "central", "VYRCfdObjectAccess::GetInteger", "varAccess.GetInteger(value)"},
        {"string", "5", "VYRCfdObjectAccess::GetString", "varAccess.GetString(value)"},
        {"boolean", "true", "VYRCfdObjectAccess::GetBoolean", "varAccess.GetBoolean(value)"},
    };
    for (const ReadCase& row : cases)
    {
        Write(row.kind, row.value);
        const VYRCfdObjectCondition condition(Object(), ORXUnicodeString(row.kind) + "!=1");
        MakeFail("GetValue", row.kind);
        EXPECT_FALSE(condition) << row.kind;
        EXPECT_EQ(Reported(), (Records{Assertion("spVal", row.reader), FailedCall(row.call, Bool)})) << row.kind;
        EXPECT_FALSE(condition.HasError()) << row.kind;
        VYRStandalone::ClearFaults();
        EXPECT_TRUE(condition) << row.kind;
    }
}

TEST_F(ConditionReportTest, AColumnReadThatFails_HandsTheStatusToTheReport)
{
    const VYRCfdObjectCondition condition(ColumnNamed("speed", {2.0}), "speed==2");
    MakeFail("GetValue", "", E_NOTIMPL);
    EXPECT_FALSE(condition);
    EXPECT_EQ(Reported(),
              (Records{FailedCall("spTableColumn->GetValue(0, oValue)", "VYRCfdObjectAccess::GetDouble", E_NOTIMPL),
                       FailedCall("varAccess.GetDouble(value)", Bool, E_NOTIMPL)}));
}

TEST_F(ConditionReportTest, AValueThatIsNoNumber_IsNotEvenRead)
{
    Write("real", "5");
    Write("integer", "5");
    MakeFail("GetValue", "");
    EXPECT_FALSE(Holds("real==abc"));
    EXPECT_FALSE(Holds("integer==abc"));
    EXPECT_FALSE(Holds("integer==-2147483648"));
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
}

TEST_F(ConditionReportTest, ABrokenCondition_DoesNotTouchTheModel)
{
    const VYRCfdObjectAccess object = Object();
    MakeFail("", "");
    const VYRCfdObjectCondition bad(object, "integer==");
    EXPECT_FALSE(bad);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
}

TEST_F(ConditionReportTest, Evaluation_TakesAnErrorStatusBack_AlsoOfABrokenCondition)
{
    Write("string", "x");
    const VYRCfdObjectCondition sound(Object(), "string==x");
    const VYRCfdObjectCondition broken(Object(), "string");
    const VYRCfdObjectCondition null;
    const VYRCfdObjectCondition none(Object(), "");
    for (const VYRCfdObjectCondition* condition : {&sound, &broken, &null, &none})
    {
        VYRStandalone::SetErrorStatus(7);
        static_cast<void>(static_cast<bool>(*condition));
        EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    }
}

TEST_F(ConditionReportTest, Making_LeavesTheErrorStatusAlone)
{
    VYRStandalone::SetErrorStatus(7);
    const VYRCfdObjectCondition condition(Object(), "string==x");
    EXPECT_EQ(VYRCfdObjectCondition(condition).GetError(), ORXUnicodeString());
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 7);
}

TEST_F(ConditionReportTest, ApplyCondition_ThatHolds_GivesTheSameCursor)
{
    Write("integer", "5");
    for (const char* text : {"integer==5", ""})
    {
        const VYRCfdObjectAccess applied = Object().ApplyCondition(text);
        EXPECT_TRUE(applied == Object()) << text;
        EXPECT_FALSE(applied.HasError()) << text;
    }
    const VYRCfdObjectAccess attribute = Object().Get("integer", 0);
    EXPECT_TRUE(attribute.ApplyCondition("/==5") == attribute) << "it stays at its attribute";
    EXPECT_TRUE(Object().ApplyCondition("integer==5")["component"] == Object()["component"]) << "in a chain";
}

TEST_F(ConditionReportTest, ApplyCondition_ThatDoesNotHold_GivesAnErrorCursor)
{
    Write("integer", "5");
    for (const char* text : {"integer==6", "integer==", "nothing==1", "integer==abc"})
    {
        const VYRCfdObjectAccess applied = Object().ApplyCondition(text);
        EXPECT_TRUE(applied.IsNull()) << text;
        EXPECT_EQ(applied.GetError(), ORXUnicodeString("Condition not met")) << text;
    }
    EXPECT_EQ(Object().ApplyCondition("integer==6")["component"].GetByPath("inner").GetError(),
              ORXUnicodeString("Condition not met"));
}

TEST_F(ConditionReportTest, ApplyCondition_ReplacesTheErrorOfItsCursor)
{
    for (const char* text : {"integer==5", "", "bad"})
    {
        EXPECT_EQ(VYRCfdObjectAccess("an error").ApplyCondition(text).GetError(),
                  ORXUnicodeString("Condition not met"));
        EXPECT_EQ(VYRCfdObjectAccess(ORXUnicodeString()).ApplyCondition(text).GetError(),
                  ORXUnicodeString("Condition not met"));
    }
}

TEST_F(ConditionReportTest, Scopes_OfMakingAndParsing)
{
    using Scopes = std::vector<std::string>;
    const char* const make = "> VYRCfdObjectCondition::VYRCfdObjectCondition [20]";
    const char* const parse = "  > VYRCfdObjectCondition::ParseCondition [20]";
    const char* const end = "> VYRCfdObjectCondition::~VYRCfdObjectCondition [20]";
    const VYRCfdObjectAccess object = Object();
    Write("integer", "5");

    EXPECT_EQ(EnteredScopes(20, [] { VYRCfdObjectCondition(); }),
              (Scopes{"> VYRCfdObjectCondition::VYRCfdObjectCondition [10]", end}));
    EXPECT_EQ(EnteredScopes(20, [] { VYRCfdObjectCondition("an error"); }), (Scopes{make, end}));
    EXPECT_EQ(EnteredScopes(20, [&] { VYRCfdObjectCondition(object, "integer==5"); }), (Scopes{make, parse, end}));
    EXPECT_EQ(EnteredScopes(20, [&] { VYRCfdObjectCondition(object, ""); }), (Scopes{make, end}));
    EXPECT_EQ(EnteredScopes(20, [&] { VYRCfdObjectCondition(VYRCfdObjectAccess("an error"), "a==1"); }),
              (Scopes{make, parse, end}))
        << "the parser itself looks at the cursor";
    const VYRCfdObjectCondition condition(object, "integer==5");
    EXPECT_EQ(EnteredScopes(20, [&] { VYRCfdObjectCondition{condition}; }), (Scopes{make, end}));
}

TEST_F(ConditionReportTest, Scopes_OfEvaluationAreThoseOfTheCursor)
{
    using Scopes = std::vector<std::string>;
    Write("integer", "5");
    const VYRCfdObjectCondition condition(Object(), "integer==5");
    EXPECT_EQ(EnteredScopes(20, [&] { EXPECT_TRUE(condition); }), Scopes{});

    const Scopes entered = EnteredScopes(25, [&] { EXPECT_TRUE(condition); });
    ASSERT_FALSE(entered.empty());
    EXPECT_EQ(entered.front(), "> VYRCfdObjectAccess::GetByPath [25]");

    const VYRCfdObjectAccess object = Object();
    const Scopes applied = EnteredScopes(25, [&] { EXPECT_FALSE(object.ApplyCondition("integer==5").IsNull()); });
    ASSERT_GE(applied.size(), 2U);
    EXPECT_EQ(applied[0], "> VYRCfdObjectAccess::ApplyCondition [25]");
    EXPECT_EQ(applied[1], "  > VYRCfdObjectCondition::VYRCfdObjectCondition [20]");
}
} // namespace
