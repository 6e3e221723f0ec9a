/**
 * @file
 * Scalars on the knowledge road: through the parameter of the attribute.
 */

#include <functional>
#include <string>

#include "CursorTest.h"
#include "ORXISpecAttribute.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class Scalars : public CursorTest
{
protected:
    std::string TextOf(const char* iAttribute)
    {
        ORXUnicodeString text("not read");
        EXPECT_EQ(At(iAttribute).GetString(text), S_OK) << iAttribute;
        return text.CastToCharPtr();
    }
};

TEST_F(Scalars, AreReadAsTheirOwnType)
{
    ORXUnicodeString text;
    EXPECT_EQ(At("title").GetString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("cavity"));
    int number = 0;
    EXPECT_EQ(At("iterations").GetInteger(number), S_OK);
    EXPECT_EQ(number, 500);
    double real = 0.0;
    EXPECT_EQ(At("relaxation").GetDouble(real), S_OK);
    EXPECT_EQ(real, 0.7);
    bool flag = false;
    EXPECT_EQ(At("steady").GetBoolean(flag), S_OK);
    EXPECT_TRUE(flag);
}

/// The cursor tests no type: it hands over what the value gives.
TEST_F(Scalars, AreReadAsEveryTypeThatTheValueGives)
{
    for (const char* attribute : {"relaxation", "iterations", "steady", "scheme", "title", "note"})
    {
        const ORXIValue_var value = At(attribute).GetParm()->GetValue();
        ORXUnicodeString text("not read");
        int number = -7;
        double real = -7.5;
        bool flag = value->AsBoolean() == 0;
        EXPECT_EQ(At(attribute).GetString(text), S_OK) << attribute;
        EXPECT_EQ(At(attribute).GetInteger(number), S_OK) << attribute;
        EXPECT_EQ(At(attribute).GetDouble(real), S_OK) << attribute;
        EXPECT_EQ(At(attribute).GetBoolean(flag), S_OK) << attribute;
        EXPECT_EQ(text, value->AsString()) << attribute;
        EXPECT_EQ(number, value->AsInteger()) << attribute;
        EXPECT_EQ(real, value->AsReal()) << attribute;
        EXPECT_EQ(flag, value->AsBoolean() != 0) << attribute;
    }
}

TEST_F(Scalars, OfAnEnumeration_AreItsNumberAndItsText)
{
    int number = 0;
    EXPECT_EQ(At("scheme").GetInteger(number), S_OK);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(TextOf("scheme"), "central");
}

TEST_F(Scalars, AreWritten)
{
    EXPECT_EQ(At("title").SetString("channel"), S_OK);
    EXPECT_EQ(TextOf("title"), "channel");
    EXPECT_EQ(At("relaxation").SetDouble(0.25), S_OK);
    EXPECT_EQ(TextOf("relaxation"), "0.25");
    EXPECT_EQ(At("iterations").SetInteger(-3), S_OK);
    EXPECT_EQ(TextOf("iterations"), "-3");
    EXPECT_EQ(At("scheme").SetInteger(1), S_OK);
    EXPECT_EQ(TextOf("scheme"), "upwind");

    bool flag = true;
    EXPECT_EQ(At("steady").SetBoolean(false), S_OK);
    EXPECT_EQ(At("steady").GetBoolean(flag), S_OK);
    EXPECT_FALSE(flag);
    EXPECT_EQ(At("steady").SetBoolean(true), S_OK);
    EXPECT_EQ(At("steady").GetBoolean(flag), S_OK);
    EXPECT_TRUE(flag);
}

TEST_F(Scalars, OfARealType_TakeAText)
{
    EXPECT_EQ(TextOf("relaxation"), "0.7");
    EXPECT_EQ(At("relaxation").SetString("0.125"), S_OK);
    double real = 0.0;
    EXPECT_EQ(At("relaxation").GetDouble(real), S_OK);
    EXPECT_EQ(real, 0.125);
    EXPECT_TRUE(At("relaxation").IsDouble());
    EXPECT_FALSE(At("relaxation").IsInteger());
}

// What the host makes of a text is not looked at.
TEST_F(Scalars, OfARealType_TakeATextThatTheHostRefusesAsSuccess)
{
    EXPECT_EQ(At("relaxation").SetString("abc"), S_OK);
    EXPECT_EQ(TextOf("relaxation"), "0.7");
}

TEST_F(Scalars, WritesOfAnotherKind_AreRefusedAndChangeNothing)
{
    struct Case
    {
        const char* attribute;
        std::function<HRESULT(const VYRCfdObjectAccess&)> write;
        Record report;
    };
    const auto setString = [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetString("1"); };
    const auto setInteger = [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetInteger(1); };
    const auto setDouble = [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetDouble(1.0); };
    const auto setBoolean = [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetBoolean(false); };
    const Record noString = Error("SetString on a non-string/real", In("SetString"));
    const Record noInteger = Assertion("IsInteger()", In("SetInteger"));
    const Record noReal = Assertion("!!spType && spType->IsaKindOf(\"Real\")", In("SetDouble"));
    const Record noBoolean = Assertion("!!spType && spType->IsaBoolean()", In("SetBoolean"));
    const Case cases[] = {
        {"iterations", setString, noString},   {"steady", setString, noString},       {"scheme", setString, noString},
        {"relaxation", setInteger, noInteger}, {"steady", setInteger, noInteger},     {"title", setInteger, noInteger},
        {"iterations", setDouble, noReal},     {"steady", setDouble, noReal},         {"scheme", setDouble, noReal},
        {"title", setDouble, noReal},          {"iterations", setBoolean, noBoolean}, {"scheme", setBoolean, noBoolean},
        {"relaxation", setBoolean, noBoolean}, {"title", setBoolean, noBoolean},
    };
    for (const Case& row : cases)
    {
        const std::string before = TextOf(row.attribute);
        VYRStandalone::CallRecorder calls;
        EXPECT_EQ(row.write(At(row.attribute)), E_FAIL) << row.attribute;
        EXPECT_EQ(Reported(), Records{row.report}) << row.attribute;
        EXPECT_EQ(calls.Take(), std::vector<std::string>{}) << row.attribute;
        EXPECT_EQ(TextOf(row.attribute), before);
    }
}

/// The road of a scalar without an index, by the operation's name.
struct Road
{
    const char* name;
    /// Attribute on which the operation succeeds.
    const char* attribute;
    std::function<HRESULT(const VYRCfdObjectAccess&)> call;
    /// What an object cursor reports.
    const char* onObject;
    /// What a missing type reports.
    const char* withoutType;
    bool isRead;
};

const Road Roads[] = {
    {"GetString", "title",
     [](const VYRCfdObjectAccess& iCursor) {
         ORXUnicodeString value;
         return iCursor.GetString(value);
     },
     "_spKey", "!!spType", true},
    {"GetInteger", "iterations",
     [](const VYRCfdObjectAccess& iCursor) {
         int value = 0;
         return iCursor.GetInteger(value);
     },
     "_spKey", "!!spType", true},
    {"GetDouble", "relaxation",
     [](const VYRCfdObjectAccess& iCursor) {
         double value = 0.0;
         return iCursor.GetDouble(value);
     },
     "spTableColumn", "!!spType", true},
    {"GetBoolean", "steady",
     [](const VYRCfdObjectAccess& iCursor) {
         bool value = false;
         return iCursor.GetBoolean(value);
     },
     "_spKey", "!!spType", true},
    {"SetString", "title", [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetString("x"); }, "spParm",
     "!!spType", false},
    {"SetDouble", "relaxation", [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetDouble(1.0); },
     "spTableColumn", "!!spType && spType->IsaKindOf(\"Real\")", false},
    {"SetBoolean", "steady", [](const VYRCfdObjectAccess& iCursor) { return iCursor.SetBoolean(true); }, "spParm",
     "!!spType && spType->IsaBoolean()", false},
};

TEST_F(Scalars, OnAnObjectCursor_ReportAsEachIsMade)
{
    for (const Road& road : Roads)
    {
        EXPECT_EQ(road.call(Part()), E_FAIL) << road.name;
        EXPECT_EQ(Reported(), (Records{Assertion(road.onObject, In(road.name))})) << road.name;
    }
    EXPECT_EQ(Part().SetInteger(1), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", In("SetInteger"))}));
}

TEST_F(Scalars, OnAListOrAnObjectValue_ReportTheMissingParameter)
{
    const VYRCfdObjectAccess cursors[] = {At("levels"), At("monitors"), At("zones"), Part().Ref("material")};
    for (const VYRCfdObjectAccess& cursor : cursors)
    {
        for (const Road& road : Roads)
        {
            EXPECT_EQ(road.call(cursor), E_FAIL) << road.name;
            EXPECT_EQ(Reported(), (Records{Assertion("spParm", In(road.name))})) << road.name;
        }
        EXPECT_EQ(cursor.SetInteger(1), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Assertion("spParm", In("SetInteger"))}));
    }
}

TEST_F(Scalars, WithoutAParameter_ReportIt)
{
    for (const Road& road : Roads)
    {
        EXPECT_EQ(road.call(At(road.attribute)), S_OK) << road.name;
        MakeFail("GetParm", road.attribute);
        EXPECT_EQ(road.call(At(road.attribute)), E_FAIL) << road.name;
        EXPECT_EQ(Reported(), (Records{Assertion("spParm", In(road.name))})) << road.name;
        VYRStandalone::ClearFaults();
    }
}

TEST_F(Scalars, WithoutAKnowledgeType_ReportIt)
{
    for (const Road& road : Roads)
    {
        MakeFail("GetType", road.attribute);
        EXPECT_EQ(road.call(At(road.attribute)), E_FAIL) << road.name;
        EXPECT_EQ(Reported(), (Records{Assertion(road.withoutType, In(road.name))})) << road.name;
        EXPECT_GT(VYRStandalone::FaultsHit(), 0) << road.name;
        VYRStandalone::ClearFaults();
    }
}

TEST_F(Scalars, WithoutAValue_ReportItWhenRead)
{
    for (const Road& road : Roads)
    {
        MakeFail("GetValue", road.attribute);
        EXPECT_EQ(road.call(At(road.attribute)), road.isRead ? E_FAIL : S_OK) << road.name;
        EXPECT_EQ(Reported(), road.isRead ? Records{Assertion("spVal", In(road.name))} : Records{}) << road.name;
        VYRStandalone::ClearFaults();
    }
}

TEST_F(Scalars, OutputOfAReadWithoutAValue_StaysAsItWas)
{
    for (const char* fault : {"GetParm", "GetType", "GetValue"})
    {
        MakeFail(fault, "");
        ORXUnicodeString text("before");
        int number = 41;
        double real = 4.1;
        bool flag = false;
        EXPECT_EQ(At("title").GetString(text), E_FAIL) << fault;
        EXPECT_EQ(At("iterations").GetInteger(number), E_FAIL) << fault;
        EXPECT_EQ(At("relaxation").GetDouble(real), E_FAIL) << fault;
        EXPECT_EQ(At("steady").GetBoolean(flag), E_FAIL) << fault;
        EXPECT_EQ(text, ORXUnicodeString("before"));
        EXPECT_EQ(number, 41);
        EXPECT_EQ(real, 4.1);
        EXPECT_FALSE(flag);
        VYRStandalone::ClearFaults();
        EXPECT_EQ(Reported().size(), 4U);
    }
}

// It asks for the type by its own test, which reports as well.
TEST_F(Scalars, SetIntegerWithoutAKnowledgeType_ReportsTheTestAndItself)
{
    MakeFail("GetType", "iterations");
    EXPECT_EQ(At("iterations").SetInteger(1), E_FAIL);
    EXPECT_EQ(Reported(),
              (Records{Assertion("!!spType", In("IsInteger")), Assertion("IsInteger()", In("SetInteger"))}));
}

TEST_F(Scalars, OfAnUnsetAttribute_ReadAsEmpty)
{
    ORXUnicodeString text("before");
    EXPECT_EQ(At("note").GetString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString());
    EXPECT_EQ(At("note").GetParm()->GetValue()->IsValuated(), 0);
}

TEST_F(Scalars, GetParm_IsTheParameterOfTheAttribute)
{
    const ORXICkeParm_var parm = At("title").GetParm();
    ASSERT_FALSE(!parm);
    EXPECT_EQ(parm->GetValue()->AsString(), ORXUnicodeString("cavity"));
    EXPECT_TRUE(!Part().GetParm());
    EXPECT_TRUE(!At("zones").GetParm());
    EXPECT_TRUE(!Part().Ref("material").GetParm());
}

TEST_F(Scalars, OfAnAddedAttribute_AreReadAndWrittenLikeDeclaredOnes)
{
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(m_part->AddAttribute("extra%s", tk_boolean, 0));
    ASSERT_FALSE(!added);
    EXPECT_EQ(Part()["extra%s"].SetBoolean(true), S_OK);
    bool flag = false;
    EXPECT_EQ(Part()["extra%s"].GetBoolean(flag), S_OK);
    EXPECT_TRUE(flag);
    EXPECT_TRUE(Part()["extra%s"].IsBoolean());
}

// ---- tests of the type ----------------------------------------------------------------------------------------------

class TypeTests : public CursorTest
{
};

struct TypeRow
{
    const char* attribute;
    bool isString;
    bool isInteger;
    bool isDouble;
    bool isBoolean;
    bool isEnum;
};

constexpr TypeRow TypeRows[] = {
    {"title", true, false, false, false, false},
    {"note", true, false, false, false, false},
    {"iterations", false, true, false, false, false},
    {"relaxation", false, false, true, false, false},
    {"steady", false, false, false, true, false},
    // An enumeration counts as an integer as well.
    {"scheme", false, true, false, false, true},
};

TEST_F(TypeTests, AnswerByTheKnowledgeTypeOfTheAttribute)
{
    for (const TypeRow& row : TypeRows)
    {
        const VYRCfdObjectAccess cursor = At(row.attribute);
        EXPECT_EQ(cursor.IsString(), row.isString) << row.attribute;
        EXPECT_EQ(cursor.IsInteger(), row.isInteger) << row.attribute;
        EXPECT_EQ(cursor.IsDouble(), row.isDouble) << row.attribute;
        EXPECT_EQ(cursor.IsBoolean(), row.isBoolean) << row.attribute;
        EXPECT_EQ(cursor.IsEnum(), row.isEnum) << row.attribute;
    }
}

TEST_F(TypeTests, WithoutADictionary_AskTheTypeItself)
{
    MakeFail("GetParmDictionary", "");
    for (const TypeRow& row : TypeRows)
    {
        const VYRCfdObjectAccess cursor = At(row.attribute);
        const ORXICkeType_var type = cursor.GetParm()->GetType();
        EXPECT_EQ(cursor.IsString(), row.isString) << row.attribute;
        EXPECT_EQ(cursor.IsInteger(), type->IsaInteger() != 0) << row.attribute;
        EXPECT_EQ(cursor.IsDouble(), row.isDouble) << row.attribute;
        EXPECT_EQ(cursor.IsBoolean(), row.isBoolean) << row.attribute;
        EXPECT_FALSE(cursor.IsEnum()) << row.attribute;
    }
    EXPECT_FALSE(At("scheme").IsInteger()) << "the type of an enumeration is no integer's";
    EXPECT_TRUE(At("iterations").IsInteger());
}

TEST_F(TypeTests, OfAString_AskNoDictionary)
{
    MakeFail("GetParmDictionary", "");
    EXPECT_TRUE(At("title").IsString());
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
    EXPECT_FALSE(At("title").IsEnum());
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

TEST_F(TypeTests, WithoutADictionary_AnEnumerationCannotBeWrittenByNumber)
{
    MakeFail("GetParmDictionary", "");
    EXPECT_EQ(At("scheme").SetInteger(1), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("IsInteger()", In("SetInteger"))}));
    EXPECT_EQ(At("iterations").SetInteger(1), S_OK);
}

struct TestRow
{
    const char* name;
    bool (VYRCfdObjectAccess::*test)() const;
    /// Attribute for which it is true.
    const char* attribute;
    const char* onObject;
};

constexpr TestRow TestRows[] = {
    {"IsString", &VYRCfdObjectAccess::IsString, "title", "_spKey"},
    {"IsInteger", &VYRCfdObjectAccess::IsInteger, "iterations", "_spKey"},
    {"IsDouble", &VYRCfdObjectAccess::IsDouble, "relaxation", "spTableColumn"},
    {"IsBoolean", &VYRCfdObjectAccess::IsBoolean, "steady", "_spKey"},
    {"IsEnum", &VYRCfdObjectAccess::IsEnum, "scheme", "_spKey"},
};

TEST_F(TypeTests, ThatCannotAnswer_AreFalseAndReportWhatIsMissing)
{
    for (const TestRow& row : TestRows)
    {
        EXPECT_TRUE((At(row.attribute).*row.test)()) << row.name;
        EXPECT_FALSE((Part().*row.test)()) << row.name;
        EXPECT_EQ(Reported(), (Records{Assertion(row.onObject, In(row.name))})) << row.name;

        for (const VYRCfdObjectAccess& cursor : {At("levels"), At("zones"), Part().Ref("peer")})
        {
            EXPECT_FALSE((cursor.*row.test)()) << row.name;
            EXPECT_EQ(Reported(), (Records{Assertion("spParm", In(row.name))})) << row.name;
        }

        MakeFail("GetParm", row.attribute);
        EXPECT_FALSE((At(row.attribute).*row.test)()) << row.name;
        EXPECT_EQ(Reported(), (Records{Assertion("spParm", In(row.name))})) << row.name;
        VYRStandalone::ClearFaults();

        MakeFail("GetType", row.attribute);
        EXPECT_FALSE((At(row.attribute).*row.test)()) << row.name;
        EXPECT_EQ(Reported(), (Records{Assertion("!!spType", In(row.name))})) << row.name;
        VYRStandalone::ClearFaults();
    }
}
} // namespace
