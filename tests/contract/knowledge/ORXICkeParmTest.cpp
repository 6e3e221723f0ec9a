/**
 * @file
 * Parameters that stand for attributes: where there is one, what it takes and what it refuses.
 */

#include <ostream>

#include "ContractTest.h"

namespace
{
using Parms = ListeningTest;

TEST_F(Parms, AreThereForScalarValuesOnly)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const char* attribute : {"reals", "names", "part", "parts", "ref", "refs"})
        EXPECT_TRUE(!ParmOf(object, attribute)) << attribute;
    Add(object, "x", tk_double);
    Add(object, "y", tk_specobject);
    EXPECT_FALSE(!ParmOf(object, "x"));
    EXPECT_TRUE(!ParmOf(object, "y"));
}

TEST_F(Parms, OfNothing_AreNull)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    EXPECT_TRUE(!ORXCke_GetParm(AccessOf(object), nullptr, 1));
    EXPECT_TRUE(!ORXCke_GetParm(nullptr, KeyOf(object, "ratio"), 1));
    EXPECT_TRUE(!ORXCke_GetParm(nullptr, nullptr, 1));
    EXPECT_TRUE(!ORXCke_GetParm(AccessOf(object), KeyOf(Make("ContractOther", "B"), "ratio"), 1));
}

TEST_F(Parms, AreNoFacetsOfTheirObject)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXICkeParm_var parm = ParmOf(object, "ratio");
    EXPECT_TRUE(!ORXISpecObject_var(parm));
    EXPECT_EQ(parm->IsEqual(object.Pointer()), 0);
    EXPECT_EQ(parm->IsEqual(ParmOf(object, "ratio").Pointer()), 1);
    EXPECT_EQ(parm->IsEqual(ParmOf(object, "count").Pointer()), 0);
}

TEST_F(Parms, HoldTheirObject)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    {
        const ORXICkeParm_var parm = ParmOf(object, "ratio");
        EXPECT_EQ(CountOf(object), before + 1);
        const ORXICkeParm_var again = ParmOf(object, "ratio");
        EXPECT_TRUE(again == parm);
        EXPECT_EQ(CountOf(object), before + 2);
    }
    EXPECT_EQ(CountOf(object), before);
    ORXICkeParm_var alone;
    {
        const HostUnderTest::Model model;
        alone = ParmOf(MakeIn(model, "ContractPlain", "B"), "ratio");
    }
    alone->Valuate(4.0);
    EXPECT_EQ(alone->GetValue()->AsReal(), 4.0);
}

TEST_F(Parms, AndAttributeAccess_AreTwoRoadsToOneValue)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    ParmOf(object, "ratio")->Valuate(2.5);
    ParmOf(object, "count")->Valuate(6);
    ParmOf(object, "on")->Valuate(ORXCke::True);
    ParmOf(object, "mode")->Valuate(2);
    ParmOf(object, "title")->Valuate(ORXUnicodeString("t"));
    EXPECT_EQ(access->GetDouble(KeyOf(object, "ratio")), 2.5);
    EXPECT_EQ(access->GetInteger(KeyOf(object, "count")), 6);
    EXPECT_EQ(access->GetBoolean(KeyOf(object, "on")), ORXTrue);
    EXPECT_EQ(access->GetInteger(KeyOf(object, "mode")), 2);
    EXPECT_EQ(Narrow(access->GetString(KeyOf(object, "title"))), "t");
    access->SetDouble(KeyOf(object, "ratio"), 3.5);
    EXPECT_EQ(ParmOf(object, "ratio")->GetValue()->AsReal(), 3.5);
    ParmOf(object, "ratio")->ValuateFromValue(ParmOf(Make("ContractPlain", "B"), "on")->GetValue());
    EXPECT_EQ(access->GetDouble(KeyOf(object, "ratio")), 0.0) << "an unset value reads as nothing";
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

class TextReadings : public ContractTest, public testing::WithParamInterface<TextReading>
{
};

TEST_P(TextReadings, ValuateReadsByKind)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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

TEST_F(Parms, ValuateFromString_ReadsRealsOnly)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const char* attribute : {"ratio", "count", "on", "mode", "title"})
        ParmOf(object, attribute)->ValuateFromString("1");
    EXPECT_EQ(TextOf(object, "ratio"), "1");
    EXPECT_EQ(TextOf(object, "count"), "3");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
}

TEST_F(Parms, Valuate_TakesAnIntegerForARealAndForAnEnumeration)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const char* attribute : {"ratio", "count", "on", "mode", "title"})
        ParmOf(object, attribute)->Valuate(2);
    EXPECT_EQ(TextOf(object, "ratio"), "2");
    EXPECT_EQ(TextOf(object, "count"), "2");
    EXPECT_EQ(TextOf(object, "mode"), "high");
    EXPECT_EQ(TextOf(object, "on"), "(none)");
    EXPECT_EQ(TextOf(object, "title"), "(none)");
}

TEST_F(Parms, Valuate_OfWrongKindsChangesNothing)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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

TEST_F(Parms, Valuate_TakesIntegersToTheirEnds)
{
    const ORXICkeParm_var count = ParmOf(Make("ContractPlain", "A"), "count");
    for (const int value : {2147483647, -2147483647 - 1, 0, -1})
    {
        count->Valuate(value);
        EXPECT_EQ(count->GetValue()->AsInteger(), value);
        count->Valuate(ORXUnicodeString(std::to_string(value).c_str()));
        EXPECT_EQ(Narrow(count->GetValue()->AsString()), std::to_string(value));
    }
    count->Valuate(ORXUnicodeString("2147483648"));
    EXPECT_EQ(count->GetValue()->AsInteger(), -1) << "out of range is no number";
}

TEST_F(Parms, Valuate_OfAStringKeepsEveryByte)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    ORXUnicodeString all("a\0b", 3);
    for (const std::string& character : CharactersOfEveryPlane())
        all.Append(character.c_str());
    ParmOf(object, "title")->Valuate(all);
    EXPECT_EQ(ParmOf(object, "title")->GetValue()->AsString(), all);
    EXPECT_EQ(ParmOf(object, "title")->GetValue()->AsString().GetLengthInChar(), 3 + 34);
}

TEST_F(Parms, ValuateFromValue_OfNullDoesNothingAndOfUnsetEmpties)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var other = Make("ContractOther", "B");
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

class Copyings : public ContractTest, public testing::WithParamInterface<Copying>
{
};

TEST_P(Copyings, ValuateFromValueTakesTheSameKindAndNumbers)
{
    const ORXISpecObject_var source = Make("ContractPlain", "A");
    ParmOf(source, "ratio")->Valuate(1.5);
    ParmOf(source, "count")->Valuate(2);
    ParmOf(source, "on")->Valuate(ORXCke::True);
    ParmOf(source, "mode")->Valuate(2);
    ParmOf(source, "title")->Valuate(ORXUnicodeString("low"));
    const ORXISpecObject_var target = Make("ContractPlain", "B");
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

TEST_F(Parms, RefusedValues_TellNobody)
{
    const ORXISpecObject_var object = Make("ContractListening", "A");
    const ORXISpecObject_var source = Make("ContractPlain", "S");
    for (const char* text : {"abc", "", "1 2", "1 m"})
    {
        ParmOf(object, "ratio")->Valuate(ORXUnicodeString(text));
        ParmOf(object, "ratio")->ValuateFromString(text);
    }
    ParmOf(object, "ratio")->Valuate(ORXCke::True);
    ParmOf(object, "ratio")->ValuateFromValue(ParmOf(source, "mode")->GetValue());
    ParmOf(object, "ratio")->ValuateFromValue(NULL_var);
    ParmOf(object, "count")->Valuate(1.5);
    ParmOf(object, "count")->ValuateFromString("1");
    ParmOf(object, "mode")->Valuate(0);
    ParmOf(object, "mode")->Valuate(3);
    ParmOf(object, "mode")->Valuate(ORXUnicodeString("middle"));
    ParmOf(object, "on")->Valuate(ORXUnicodeString("yes"));
    ParmOf(object, "on")->Valuate(1);
    ParmOf(object, "title")->Valuate(1.5);
    EXPECT_EQ(Told(), Lines{});
    EXPECT_EQ(TextOf(object, "ratio") + TextOf(object, "count") + TextOf(object, "mode"), "0.53low");
}

/// A value that is not the host's.
class OwnValue : public ORXIValue
{
public:
    explicit OwnValue(int iValuated) : m_valuated(iValuated) {}

    int IsValuated() override { return m_valuated; }
    int AsInteger() override { return 2; }
    double AsReal() override { return 2.5; }
    ORXUnicodeString AsString() override { return "text"; }
    ORXCke::Boolean AsBoolean() override { return ORXCke::True; }
    bool IsTrue() override { return true; }

private:
    int m_valuated;
};

TEST_F(Parms, ValuateFromValue_OfSomebodyElsesValue_ReadsWhatIsWanted)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXIValue_var value = ORXIValue_var::Adopt(new OwnValue(1));
    for (const char* name : {"ratio", "count", "on", "mode", "title"})
        ParmOf(object, name)->ValuateFromValue(value);
    EXPECT_EQ(TextOf(object, "ratio"), "2.5");
    EXPECT_EQ(TextOf(object, "count"), "2");
    EXPECT_EQ(TextOf(object, "on"), "true");
    EXPECT_EQ(TextOf(object, "mode"), "high");
    EXPECT_EQ(TextOf(object, "title"), "text");
    EXPECT_EQ(CountOf(value), 1u) << "it is copied, not kept";
    ParmOf(object, "ratio")->ValuateFromValue(ORXIValue_var::Adopt(new OwnValue(0)));
    EXPECT_EQ(TextOf(object, "ratio"), "(none)");
}
} // namespace
