/**
 * @file
 * Values: reads and writes on both roads, conversions, snapshots, volatile parameters, knowledge types.
 */

#include <limits>

#include "HostTypes.h"
#include "ORXCkeGlobalFunctions.h"

namespace
{
using Values = HostTest;

TEST_F(Values, Reads_OfAnotherTypeOrIndexGiveNothing)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXISpecAttrKey_var ratio = KeyOf(object, "ratio");
    EXPECT_EQ(access->GetDouble(ratio), 0.5);
    EXPECT_EQ(access->GetDouble(ratio, 1), 0.0);
    EXPECT_EQ(access->GetInteger(ratio), 0);
    EXPECT_EQ(access->GetBoolean(ratio), ORXFalse);
    EXPECT_TRUE(access->GetString(ratio).IsEmpty());
    EXPECT_EQ(access->GetSpecObject(ratio), nullptr);
    EXPECT_EQ(access->GetListSize(ratio), 0);
    EXPECT_EQ(access->GetDouble(KeyOf(object, "count")), 0.0);
    EXPECT_EQ(access->GetInteger(KeyOf(object, "mode")), 1);
    EXPECT_EQ(access->GetBoolean(KeyOf(object, "on")), ORXFalse);
}

TEST_F(Values, Writes_OfAnotherTypeOrIndexFailAndChangeNothing)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXISpecAttrKey_var ratio = KeyOf(object, "ratio");
    EXPECT_EQ(access->SetDouble(ratio, 2.0, 1), E_FAIL);
    EXPECT_EQ(access->SetInteger(ratio, 2), E_FAIL);
    EXPECT_EQ(access->SetBoolean(ratio, ORXTrue), E_FAIL);
    EXPECT_EQ(access->SetString(ratio, "2"), E_FAIL);
    EXPECT_EQ(access->SetStringList(ratio, {}), E_FAIL);
    EXPECT_EQ(access->SetSpecObject(ratio, object), E_FAIL);
    EXPECT_EQ(access->RemoveAll(ratio), E_FAIL);
    EXPECT_EQ(access->RemovePosition(ratio, 0), E_FAIL);
    EXPECT_EQ(access->SetDouble(KeyOf(object, "count"), 2.0), E_FAIL);
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
    EXPECT_EQ(TextOf(object, "count"), "3");
}

TEST_F(Values, Enumeration_TakesNumbersOfItsTextsOnly)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    const ORXISpecAttrKey_var mode = KeyOf(object, "mode");
    EXPECT_EQ(access->SetInteger(mode, 2), S_OK);
    EXPECT_EQ(TextOf(object, "mode"), "high");
    EXPECT_EQ(access->SetInteger(mode, 0), E_FAIL);
    EXPECT_EQ(access->SetInteger(mode, 3), E_FAIL);
    EXPECT_EQ(TextOf(object, "mode"), "high");
}

TEST_F(Values, Unset_IsSomethingElseThanAnEmptyText)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
    EXPECT_TRUE(AccessOf(object)->GetString(KeyOf(object, "title")).IsEmpty());
    EXPECT_EQ(AccessOf(object)->SetString(KeyOf(object, "title"), ""), S_OK);
    EXPECT_EQ(TextOf(object, "title"), "");
}

TEST_F(Values, UnsetValue_ReadsAsNothing)
{
    const ORXIValue_var value = ParmOf(Make("HostPlain", "A"), "pace")->GetValue();
    EXPECT_EQ(value->IsValuated(), 0);
    EXPECT_EQ(value->AsInteger(), 0);
    EXPECT_EQ(value->AsReal(), 0.0);
    EXPECT_EQ(Narrow(value->AsString()), "");
    EXPECT_FALSE(value->AsBoolean());
    EXPECT_FALSE(value->IsTrue());
}

struct TextReading
{
    const char* attribute;
    const char* text;
    /// What the attribute holds afterwards.
    const char* result;
};

std::ostream& operator<<(std::ostream& ioStream, const TextReading& iReading)
{
    return ioStream << iReading.attribute << " from \"" << iReading.text << '"';
}

class TextReadings : public HostTest, public testing::WithParamInterface<TextReading>
{
};

TEST_P(TextReadings, ValuateReadsByKind)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    ParmOf(object, GetParam().attribute)->Valuate(ORXUnicodeString(GetParam().text));
    EXPECT_EQ(TextOf(object, GetParam().attribute), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Values, TextReadings,
    testing::Values(
        TextReading{"title", " 1 ", " 1 "}, TextReading{"title", "", ""}, TextReading{"ratio", "2", "2"},
        TextReading{"ratio", " -2.5e1 ", "-25"}, TextReading{"ratio", "+.5", "0.5"}, TextReading{"ratio", "1.", "1"},
        TextReading{"ratio", "0x1p3", "8"}, TextReading{"ratio", "0.1", "0.1"}, TextReading{"ratio", "-0x1p1", "-2"},
        TextReading{"ratio", "", "0.5"}, TextReading{"ratio", " ", "0.5"}, TextReading{"ratio", "abc", "0.5"},
        TextReading{"ratio", "1x", "0.5"}, TextReading{"ratio", "1 2", "0.5"}, TextReading{"ratio", "+-1", "0.5"},
        TextReading{"ratio", "--1", "0.5"}, TextReading{"ratio", "nan", "0.5"}, TextReading{"ratio", "inf", "0.5"},
        TextReading{"ratio", "1e999", "0.5"}, TextReading{"ratio", "1,5", "0.5"}, TextReading{"ratio", "0x", "0.5"},
        TextReading{"count", "12abc", "12"}, TextReading{"count", " -4", "-4"}, TextReading{"count", "abc", "3"},
        TextReading{"count", "", "3"}, TextReading{"count", "99999999999", "3"}, TextReading{"on", "TRUE", "true"},
        TextReading{"on", "False", "false"}, TextReading{"on", "1", "true"}, TextReading{"on", "0", "false"},
        TextReading{"on", "yes", "(none)"}, TextReading{"on", "", "(none)"}, TextReading{"on", "truer", "(none)"},
        TextReading{"mode", "high", "high"}, TextReading{"mode", "High", "low"}, TextReading{"mode", "2", "low"},
        TextReading{"mode", "", "low"}));

TEST_F(Values, ValuateFromString_ReadsRealsOnly)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    for (const char* attribute : {"ratio", "count", "on", "mode", "title"})
        ParmOf(object, attribute)->ValuateFromString("1");
    EXPECT_EQ(TextOf(object, "ratio"), "1");
    EXPECT_EQ(TextOf(object, "count"), "3");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
}

TEST_F(Values, Valuate_TakesAnIntegerForARealAndForAnEnumeration)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    for (const char* attribute : {"ratio", "count", "on", "mode", "title"})
        ParmOf(object, attribute)->Valuate(2);
    EXPECT_EQ(TextOf(object, "ratio"), "2");
    EXPECT_EQ(TextOf(object, "count"), "2");
    EXPECT_EQ(TextOf(object, "mode"), "high");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
}

TEST_F(Values, Valuate_OfWrongKindsChangesNothing)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    for (const char* attribute : {"count", "on", "mode", "title"})
        ParmOf(object, attribute)->Valuate(2.0);
    for (const char* attribute : {"ratio", "count", "mode", "title"})
        ParmOf(object, attribute)->Valuate(ORXCke::True);
    ParmOf(object, "mode")->Valuate(3);
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
    EXPECT_EQ(TextOf(object, "count"), "3");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(TextOf(object, "mode"), "low");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
}

struct RealTextCase
{
    double real;
    const char* text;
};

class RealTexts : public HostTest, public testing::WithParamInterface<RealTextCase>
{
};

TEST_P(RealTexts, AreTheShortestThatReadBackTheSame)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    ParmOf(object, "ratio")->Valuate(GetParam().real);
    EXPECT_EQ(TextOf(object, "ratio"), GetParam().text);
    ParmOf(object, "ratio")->Valuate(0.0);
    ParmOf(object, "ratio")->Valuate(ORXUnicodeString(GetParam().text));
    EXPECT_EQ(AccessOf(object)->GetDouble(KeyOf(object, "ratio")), GetParam().real);
}

INSTANTIATE_TEST_SUITE_P(Values, RealTexts,
                         testing::Values(RealTextCase{0.7, "0.7"}, RealTextCase{101325.0, "101325"},
                                         RealTextCase{-0.1, "-0.1"}, RealTextCase{1.0 / 3, "0.3333333333333333"},
                                         RealTextCase{1e300, "1e+300"}, RealTextCase{0.1 + 0.2, "0.30000000000000004"},
                                         RealTextCase{5e-324, "5e-324"}));

TEST_F(Values, Conversions_OfAReal)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXICkeParm_var parm = ParmOf(object, "ratio");
    parm->Valuate(-2.75);
    EXPECT_EQ(parm->GetValue()->AsInteger(), -2);
    EXPECT_FALSE(parm->GetValue()->IsTrue());
    parm->Valuate(1e20);
    EXPECT_EQ(parm->GetValue()->AsInteger(), std::numeric_limits<int>::max());
    parm->Valuate(-1e20);
    EXPECT_EQ(parm->GetValue()->AsInteger(), std::numeric_limits<int>::min());
}

TEST_F(Values, Conversions_OfOtherKinds)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    ParmOf(object, "on")->Valuate(ORXCke::True);
    const ORXIValue_var on = ParmOf(object, "on")->GetValue();
    EXPECT_EQ(on->AsInteger(), 1);
    EXPECT_EQ(on->AsReal(), 1.0);
    EXPECT_TRUE(on->AsBoolean());
    EXPECT_TRUE(on->IsTrue());
    const ORXIValue_var mode = ParmOf(object, "mode")->GetValue();
    EXPECT_EQ(mode->AsInteger(), 1);
    EXPECT_EQ(mode->AsReal(), 1.0);
    EXPECT_FALSE(mode->IsTrue());
    const ORXIValue_var count = ParmOf(object, "count")->GetValue();
    EXPECT_EQ(count->AsReal(), 3.0);
    EXPECT_FALSE(count->IsTrue());
}

TEST_F(Values, Snapshot_IsNotChangedByLaterWrites)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXICkeParm_var parm = ParmOf(object, "ratio");
    const ORXIValue_var first = parm->GetValue();
    parm->Valuate(1.0);
    const ORXIValue_var second = parm->GetValue();
    parm->Valuate(2.0);
    const ORXIValue_var third = parm->GetValue();
    EXPECT_EQ(first->AsReal(), 0.5);
    EXPECT_EQ(second->AsReal(), 1.0);
    EXPECT_EQ(third->AsReal(), 2.0);
    EXPECT_EQ(first->IsEqual(second), 0);
    EXPECT_EQ(third->IsEqual(parm->GetValue()), 1);
}

TEST_F(Values, WriteWhileNobodyHoldsTheValue_KeepsItsPlace)
{
    const ORXICkeParm_var parm = ParmOf(Make("HostPlain", "A"), "ratio");
    const ORXIValue* const before = parm->GetValue().Pointer();
    parm->Valuate(1.0);
    EXPECT_EQ(parm->GetValue().Pointer(), before);
}

TEST_F(Values, HeldValues_OutliveTheirObject)
{
    ORXIValue_var ofSlot;
    ORXIValue_var ofCell;
    const int before = VYRStandalone::LiveComponents();
    {
        VYRStandalone::Model model;
        const ORXISpecObject_var object = model.Create("HostPlain", "A");
        ofSlot = ParmOf(object, "ratio")->GetValue();
        ParmOf(object, "ratio")->Valuate(1.0);
        ofCell = ParmOf(object, "ratio")->GetValue();
    }
    EXPECT_EQ(ofSlot->AsReal(), 0.5);
    EXPECT_EQ(ofCell->AsReal(), 1.0);
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 2);
    ofSlot = NULL_var;
    ofCell = NULL_var;
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(Values, ValuateFromValue_OfNullDoesNothingAndOfUnsetEmpties)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXISpecObject_var other = Make("HostOther", "B");
    ParmOf(object, "ratio")->ValuateFromValue(NULL_var);
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
    ParmOf(object, "ratio")->ValuateFromValue(ParmOf(other, "ratio")->GetValue());
    EXPECT_EQ(TextOf(object, "ratio"), "(none)");
}

struct Copying
{
    const char* from;
    const char* to;
    const char* result;
};

class Copyings : public HostTest, public testing::WithParamInterface<Copying>
{
};

TEST_P(Copyings, ValuateFromValueTakesTheSameKindAndNumbers)
{
    const ORXISpecObject_var source = Make("HostPlain", "A");
    ParmOf(source, "ratio")->Valuate(1.5);
    ParmOf(source, "count")->Valuate(2);
    ParmOf(source, "on")->Valuate(ORXCke::True);
    ParmOf(source, "mode")->Valuate(2);
    ParmOf(source, "title")->Valuate(ORXUnicodeString("low"));
    const ORXISpecObject_var target = Make("HostPlain", "B");
    ParmOf(target, GetParam().to)->ValuateFromValue(ParmOf(source, GetParam().from)->GetValue());
    EXPECT_EQ(TextOf(target, GetParam().to), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Values, Copyings,
                         testing::Values(Copying{"ratio", "ratio", "1.5"}, Copying{"count", "ratio", "2"},
                                         Copying{"mode", "ratio", "0.5"}, Copying{"on", "ratio", "0.5"},
                                         Copying{"title", "ratio", "0.5"}, Copying{"count", "count", "2"},
                                         Copying{"ratio", "count", "3"}, Copying{"mode", "count", "3"},
                                         Copying{"on", "on", "true"}, Copying{"count", "on", "(none)"},
                                         Copying{"mode", "mode", "high"}, Copying{"count", "mode", "high"},
                                         Copying{"mode", "pace", "(none)"}, Copying{"title", "mode", "low"},
                                         Copying{"title", "title", "low"}, Copying{"ratio", "title", "(none)"}));

TEST_F(Values, Parameters_AreThereForScalarValuesOnly)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    for (const char* attribute : {"reals", "names", "part", "parts", "ref", "refs"})
        EXPECT_TRUE(!ParmOf(object, attribute)) << attribute;
    Add(object, "x", tk_double);
    Add(object, "y", tk_specobject);
    EXPECT_FALSE(!ParmOf(object, "x"));
    EXPECT_TRUE(!ParmOf(object, "y"));
}

TEST_F(Values, ParameterIsNoFacetOfItsObject)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXICkeParm_var parm = ParmOf(object, "ratio");
    EXPECT_TRUE(!ORXISpecObject_var(parm));
    EXPECT_EQ(parm->IsEqual(object.Pointer()), 0);
    EXPECT_EQ(parm->IsEqual(ParmOf(object, "ratio").Pointer()), 1);
    EXPECT_EQ(parm->IsEqual(ParmOf(object, "count").Pointer()), 0);
}

TEST_F(Values, Types_TellTheKindAndWhatTheyDeriveFrom)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXIParmDictionary_var dictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    const ORXICkeType_var real = ParmOf(object, "ratio")->GetType();
    const ORXICkeType_var mode = ParmOf(object, "mode")->GetType();
    const ORXICkeType_var pace = ParmOf(object, "pace")->GetType();
    EXPECT_TRUE(real->IsaReal());
    EXPECT_TRUE(real->IsaKindOf("Real"));
    EXPECT_TRUE(real->IsaKindOf(dictionary->GetRealType()));
    EXPECT_FALSE(real->IsaKindOf("Integer"));
    EXPECT_FALSE(real->IsaKindOf(NULL_var));
    EXPECT_TRUE(mode->IsaKindOf("Enum"));
    EXPECT_TRUE(mode->IsaKindOf(dictionary->GetEnumType()));
    EXPECT_TRUE(mode->IsaKindOf(mode));
    EXPECT_FALSE(mode->IsaKindOf(pace));
    EXPECT_FALSE(dictionary->GetEnumType()->IsaKindOf(mode));
    EXPECT_FALSE(mode->IsaInteger());
    EXPECT_TRUE(ParmOf(object, "count")->GetType()->IsaInteger());
    EXPECT_TRUE(ParmOf(object, "count")->GetType()->IsaKindOf(dictionary->GetIntegerType()));
    EXPECT_TRUE(ParmOf(object, "on")->GetType()->IsaBoolean());
    EXPECT_TRUE(ParmOf(object, "on")->GetType()->IsaKindOf(dictionary->GetBooleanType()));
    EXPECT_TRUE(ParmOf(object, "title")->GetType()->IsaString());
    EXPECT_TRUE(ParmOf(object, "title")->GetType()->IsaKindOf("String"));
}

TEST_F(Values, VolatileParameter_HoldsAValueOfItsTypeAndTellsNobody)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    const ORXICkeParmFactory_var factory = ORXCkeGlobalFunctions::GetVolatileFactory();
    const ORXICkeParm_var parm = factory->CreateParm(ParmOf(object, "mode")->GetType(), "tempName");
    EXPECT_EQ(parm->GetValue()->IsValuated(), 0);
    parm->Valuate(ORXUnicodeString("nothing"));
    EXPECT_EQ(parm->GetValue()->IsValuated(), 0);
    parm->Valuate(ORXUnicodeString("high"));
    const ORXIValue_var held = parm->GetValue();
    parm->Valuate(1);
    EXPECT_EQ(Narrow(held->AsString()), "high");
    EXPECT_EQ(Narrow(parm->GetValue()->AsString()), "low");
    EXPECT_TRUE(parm->GetType()->IsaKindOf(ParmOf(object, "mode")->GetType()));
    ParmOf(object, "mode")->ValuateFromValue(held);
    EXPECT_EQ(TextOf(object, "mode"), "high");
    EXPECT_TRUE(!factory->CreateParm(NULL_var, "tempName"));
}

TEST_F(Values, ValueOfAVolatileParameter_OutlivesIt)
{
    const ORXICkeType_var type = ParmOf(Make("HostPlain", "A"), "title")->GetType();
    ORXICkeParm_var parm = ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(type, "tempName");
    parm->Valuate(ORXUnicodeString("a text that is longer than what is held without the heap"));
    const ORXICkeInst_var value = parm->GetValue();
    parm = NULL_var;
    EXPECT_EQ(Narrow(value->AsString()), "a text that is longer than what is held without the heap");
    const ORXIValue_var cast = value;
    EXPECT_TRUE(cast == value);
}

TEST_F(Values, Manipulator_LivesWithTheAttributeAndRestrictsNothing)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    EXPECT_TRUE(!ParmOf(object, "title")->GetManipulator());
    ORXListValORXUnicodeString allowed;
    allowed.Append("a");
    allowed.Append("b");
    EXPECT_EQ(ParmOf(object, "title")->CreateManipulator()->SetAllowedValues(allowed), S_OK);
    ORXListValORXUnicodeString found;
    found.Append("old");
    EXPECT_EQ(ParmOf(object, "title")->GetManipulator()->GetAllowedValues(found), S_OK);
    ASSERT_EQ(found.Size(), 2);
    EXPECT_EQ(Narrow(found[2]), "b");
    ParmOf(object, "title")->Valuate(ORXUnicodeString("c"));
    EXPECT_EQ(TextOf(object, "title"), "c");
}
} // namespace
