/**
 * @file
 * What a condition gives on an attribute of each kind.
 */

#include <limits>

#include "ConditionFixture.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class ConditionEvaluationTest : public ConditionFixture
{
};

/// A condition on the attribute of that kind.
struct EvaluationCase
{
    const char* kind;
    /// What the attribute holds, as text; null for an attribute that is unset.
    const char* value;
    const char* text;
    bool holds;
};

constexpr EvaluationCase Integers[] = {
    {"integer", "1", "integer==1", true},
    {"integer", "1", "integer=1", true},
    {"integer", "1", "integer==2", false},
    // The number ends where it cannot go on, and what follows is no error.
    {"integer", "1", "integer==1.0", true},
    {"integer", "3", "integer==3.7", true},
    {"integer", "12", "integer==12abc", true},
    {"integer", "1", "integer==1e3", true},
    {"integer", "0", "integer==0x10", true},
    {"integer", "1", "integer==1,000", true},
    {"integer", "5", "integer==5 6", true},
    {"integer", "5", "integer==5==6", true},
    // White space in front is skipped.
    {"integer", "5", "integer== 5", true},
    {"integer", "5", "integer==\t\n5 ", true},
    {"integer", "5", "integer==+5", true},
    {"integer", "-5", "integer==-5", true},
    {"integer", "5", "integer==005", true},
    // What is no integer meets nothing, not even "different".
    {"integer", "5", "integer==abc", false},
    {"integer", "5", "integer!=abc", false},
    {"integer", "5", "integer>=abc", false},
    {"integer", "5", "integer== ", false},
    {"integer", "5", "integer!= ", false},
    {"integer", "5", "integer==.5", false},
    {"integer", "5", "integer==--5", false},
    {"integer", "5", "integer==\"5\"", false},
    {"integer", "5", "integer!=\"5\"", false},
    // The least integer marks a value that is none.
    {"integer", "-2147483648", "integer==-2147483648", false},
    {"integer", "5", "integer!=-2147483648", false},
    {"integer", "5", "integer>-2147483648", false},
    {"integer", "-2147483647", "integer==-2147483647", true},
    {"integer", "-2147483648", "integer<-2147483647", true},
    // Beyond the range the read fails.
    {"integer", "2147483647", "integer==2147483647", true},
    {"integer", "2147483647", "integer==2147483648", false},
    {"integer", "0", "integer==4294967296", false},
    {"integer", "0", "integer!=4294967296", false},
    {"integer", "-2147483648", "integer==-2147483649", false},
    // Signed.
    {"integer", "-1", "integer<1", true},
    {"integer", "-1", "integer>1", false},
    // Unset reads as 0.
    {"integer", nullptr, "integer==0", true},
    {"integer", nullptr, "integer!=0", false},
};

constexpr EvaluationCase Reals[] = {
    {"real", "2.5", "real==2.5", true},
    {"real", "2.5", "real==2.50", true},
    {"real", "2.5", "real==25e-1", true},
    {"real", "2.5", "real== +2.5", true},
    {"real", "2.5", "real==2.5mm", true},
    {"real", "2.5", "real==2.5 mm", true},
    {"real", "2", "real==2,5", true},
    {"real", "2.5", "real==2,5", false},
    {"real", "0.5", "real==.5", true},
    {"real", "5", "real==5.", true},
    {"real", "-0.001", "real==-1E-3", true},
    {"real", "0", "real==-0.0", true},
    // Exact, with no tolerance.
    {"real", "0.30000000000000004", "real==0.3", false},
    {"real", "0.30000000000000004", "real!=0.3", true},
    {"real", "0.30000000000000004", "real>0.3", true},
    {"real", "0.1", "real==0.1", true},
    // A real has no use for the integer's mark and range.
    {"real", "-2147483648", "real==-2147483648", true},
    {"real", "4294967296", "real==4294967296", true},
    {"real", "1e300", "real>1e299", true},
    // What is no real meets nothing.
    {"real", "2.5", "real==abc", false},
    {"real", "2.5", "real!=abc", false},
    {"real", "2.5", "real< ", false},
    {"real", "2.5", "real!= ", false},
    {"real", "2.5", "real!=\"2.5\"", false},
    {"real", "2.5", "real!=nan", false},
    {"real", "2.5", "real!=-", false},
    {"real", "2.5", "real<1e400", false},
    {"real", "2.5", "real!=1e400", false},
    {"real", nullptr, "real==0", true},
    {"real", nullptr, "real<1e-300", true},
};

constexpr EvaluationCase Strings[] = {
    {"string", "wing", "string==wing", true},
    {"string", "wing", "string=wing", true},
    {"string", "wing", "string!=wing", false},
    {"string", "wing", "string==tail", false},
    {"string", "wing", "string!=tail", true},
    // Character by character: case, blanks and quotation marks count.
    {"string", "wing", "string==Wing", false},
    {"string", "wing", "string!=Wing", true},
    {"string", "x", "string== x", false},
    {"string", " x", "string== x", true},
    {"string", "x", "string==x ", false},
    {"string", "x ", "string==x ", true},
    {"string", " ", "string== ", true},
    {"string", "x", "string== ", false},
    {"string", "wing", "string==\"wing\"", false},
    {"string", "\"wing\"", "string==\"wing\"", true},
    {"string", "wing", "string!='wing'", true},
    // No numbers.
    {"string", "5", "string==5", true},
    {"string", "5.0", "string==5", false},
    {"string", "5.0", "string!=5", true},
    // Everything behind the operator.
    {"string", "a=b", "string==a=b", true},
    {"string", "=b", "string===b", true},
    {"string", "a/b", "string==a/b", true},
    // No order.
    {"string", "b", "string<c", false},
    {"string", "b", "string<=b", false},
    {"string", "b", "string>a", false},
    {"string", "b", "string>=b", false},
    // Beyond ASCII, and beyond what a string holds inside.
    {"string", "\xC3\xA4", "string==\xC3\xA4", true},
    {"string", "\xC3\xA4", "string!=\xC3\xB6", true},
    {"string", "a title of more than 23 bytes", "string==a title of more than 23 bytes", true},
    {"string", "", "string!=x", true},
    {"string", nullptr, "string!=x", true},
    {"string", nullptr, "string==x", false},
};

/// The number of the text, from 1.
constexpr EvaluationCase Enumerations[] = {
    {"enumeration", "central", "enumeration==2", true},       {"enumeration", "central", "enumeration==1", false},
    {"enumeration", "central", "enumeration>1", true},        {"enumeration", "upwind", "enumeration!=2", true},
    {"enumeration", "central", "enumeration==2.9", true},     {"enumeration", "central", "enumeration==central", false},
    {"enumeration", "central", "enumeration!=upwind", false}, {"enumeration", nullptr, "enumeration==0", true},
};

TEST_F(ConditionEvaluationTest, Verdicts_ByKindAndText)
{
    const auto evaluate = [this](const auto& iCases) {
        for (const EvaluationCase& row : iCases)
        {
            Write(row.kind, row.value);
            const VYRCfdObjectCondition condition(Object(), row.text);
            const std::string what = std::string(row.text) + " on " + (row.value != nullptr ? row.value : "nothing");
            EXPECT_EQ(condition.GetError(), ORXUnicodeString()) << what;
            EXPECT_EQ(static_cast<bool>(condition), row.holds) << what;
        }
    };
    evaluate(Integers);
    evaluate(Reals);
    evaluate(Strings);
    evaluate(Enumerations);
}

TEST_F(ConditionEvaluationTest, Operators_TakeTheAttributeAsTheLeftOperand)
{
    struct OperatorCase
    {
        const char* text;
        bool less;
        bool equal;
        bool greater;
    };
    const OperatorCase cases[] = {
        {"==", false, true, false}, {"=", false, true, false}, {"!=", true, false, true}, {"<", true, false, false},
        {"<=", true, true, false},  {">", false, false, true}, {">=", false, true, true},
    };
    for (const char* kind : {"integer", "real"})
    {
        Write(kind, "5");
        for (const OperatorCase& row : cases)
        {
            const std::string left = std::string(kind) + row.text;
            EXPECT_EQ(Holds((left + "6").c_str()), row.less) << left << 6;
            EXPECT_EQ(Holds((left + "5").c_str()), row.equal) << left << 5;
            EXPECT_EQ(Holds((left + "4").c_str()), row.greater) << left << 4;
        }
    }
}

TEST_F(ConditionEvaluationTest, OnABoolean_OperatorAndValuePlayNoPart)
{
    for (const char* value : {"true", "false"})
    {
        Write("boolean", value);
        const bool holds = std::string(value) == "true";
        for (const char* text : {"boolean==true", "boolean==false", "boolean=1", "boolean=0", "boolean!=true",
                                 "boolean!=false", "boolean<true", "boolean>=false", "boolean== ", "boolean>x"})
            EXPECT_EQ(Holds(text), holds) << text << " on " << value;
    }
    Write("boolean", nullptr);
    EXPECT_FALSE(Holds("boolean==false"));
}

TEST_F(ConditionEvaluationTest, OnANumberThatIsNone_OnlyDifferentHolds)
{
    EXPECT_EQ(Object().Get("real", 0).SetDouble(std::numeric_limits<double>::quiet_NaN()), S_OK);
    EXPECT_TRUE(Holds("real!=1"));
    for (const char* text : {"real==1", "real=1", "real<1", "real<=1", "real>1", "real>=1"})
        EXPECT_FALSE(Holds(text)) << text;
}

TEST_F(ConditionEvaluationTest, NumbersEndAtAZero_StringsDoNot)
{
    const ORXUnicodeString integer("integer==7\0"
                                   "8",
                                   12);
    const ORXUnicodeString string("string==7\0"
                                  "8",
                                  11);
    Write("integer", "7");
    EXPECT_TRUE(VYRCfdObjectCondition(Object(), integer));
    EXPECT_EQ(Object()
                  .Get("string", 0)
                  .SetString(ORXUnicodeString("7\0"
                                              "8",
                                              3)),
              S_OK);
    EXPECT_TRUE(VYRCfdObjectCondition(Object(), string));
    Write("string", "7");
    EXPECT_FALSE(VYRCfdObjectCondition(Object(), string));
}

TEST_F(ConditionEvaluationTest, OnATableColumn_TheFirstRowCounts)
{
    const VYRCfdObjectAccess columns = ColumnNamed("speed", {2.0, 9.0});
    EXPECT_TRUE(VYRCfdObjectCondition(columns, "speed==2"));
    EXPECT_FALSE(VYRCfdObjectCondition(columns, "speed==9"));
    EXPECT_TRUE(VYRCfdObjectCondition(columns[1], "/==2")) << "the column itself";
}

TEST_F(ConditionEvaluationTest, TheModelIsReadAnewEachTime_TheTextIsNot)
{
    const VYRCfdObjectCondition condition(Object(), "integer==5");
    Write("integer", "4");
    EXPECT_FALSE(condition);
    Write("integer", "5");
    EXPECT_TRUE(condition);
    EXPECT_TRUE(condition) << "a second time";

    const VYRCfdObjectCondition onEntry(Object(), "columns/1==2");
    EXPECT_FALSE(onEntry) << "no entry yet";
    ColumnNamed("speed", {2.0});
    EXPECT_TRUE(onEntry);
    ColumnNamed("other", {3.0});
    EXPECT_FALSE(onEntry) << "the path is walked anew";
}

TEST_F(ConditionEvaluationTest, WithoutADictionary_EnumerationsMatchNoKind)
{
    Write("integer", "5");
    Write("real", "2.5");
    Write("boolean", "true");
    Write("enumeration", "central");
    MakeFail("GetParmDictionary", "");
    EXPECT_TRUE(Holds("integer==5"));
    EXPECT_TRUE(Holds("real==2.5"));
    EXPECT_TRUE(Holds("boolean==x"));
    EXPECT_FALSE(Holds("enumeration==2"));
    EXPECT_FALSE(Holds("enumeration!=1"));
}

TEST_F(ConditionEvaluationTest, AConditionHoldsItsObject)
{
    VYRStandalone::Model model;
    ORXISpecObject_var object = model.Create("ConditionFixtureObject", "Held");
    ASSERT_EQ(Cursor(object).Get("integer", 0).SetInteger(5), S_OK);
    const VYRCfdObjectCondition condition(Cursor(object), "integer==5");
    object = NULL_var;
    model.Close();
    EXPECT_TRUE(condition);
}
} // namespace
