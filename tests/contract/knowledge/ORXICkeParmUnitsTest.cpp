/**
 * @file
 * Parameters of quantities: values in SI, texts with units in and out.
 */

#include <limits>
#include <ostream>

#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"

namespace
{
class Units : public ListeningTest
{
protected:
    double ValueOf(const char* iName) const { return ParmOf(m_object, iName)->GetValue()->AsReal(); }

    const ORXISpecObject_var m_object = Make("ContractMeasured", "M");
};

TEST_F(Units, Defaults_AreKeptInSi)
{
    EXPECT_DOUBLE_EQ(ValueOf("length"), 0.005);
    EXPECT_DOUBLE_EQ(ValueOf("depth"), 2.0);
    EXPECT_DOUBLE_EQ(ValueOf("pressure"), 101325.0);
    EXPECT_DOUBLE_EQ(AccessOf(m_object)->GetDouble(KeyOf(m_object, "length")), 0.005);
    EXPECT_DOUBLE_EQ(AccessOf(m_object)->GetDouble(KeyOf(m_object, "lengths"), 1), 0.001);
    EXPECT_DOUBLE_EQ(AccessOf(m_object)->GetDouble(KeyOf(m_object, "lengths"), 2), 2.0);
    EXPECT_EQ(TextOf(m_object, "span"), "(none)");
    EXPECT_TRUE(ParmOf(m_object, "span")->GetValue()->AsString().IsEmpty()) << "nothing has no unit";
}

TEST_F(Units, AsString_HasTheSiUnit)
{
    EXPECT_EQ(TextOf(m_object, "length"), "0.005 m");
    EXPECT_EQ(TextOf(m_object, "depth"), "2 m");
    EXPECT_EQ(TextOf(m_object, "pressure"), "101325 Pa");
    ParmOf(m_object, "temperature")->Valuate(300.0);
    EXPECT_EQ(TextOf(m_object, "temperature"), "300 K");
    ParmOf(m_object, "angle")->Valuate(0.5);
    EXPECT_EQ(TextOf(m_object, "angle"), "0.5 rad");
    ParmOf(m_object, "share")->Valuate(0.25);
    EXPECT_EQ(TextOf(m_object, "share"), "0.25") << "a share of something is a plain number";
    EXPECT_EQ(TextOf(m_object, "ratio"), "0.5");
}

struct UnitText
{
    const char* attribute;
    const char* text;
    double value;
};

std::ostream& operator<<(std::ostream& ioStream, const UnitText& iText)
{
    return ioStream << iText.attribute << " from \"" << iText.text << '"';
}

class UnitTexts : public Units, public testing::WithParamInterface<UnitText>
{
};

TEST_P(UnitTexts, AreReadIntoSi_ByValuateAndByValuateFromString)
{
    const ORXICkeParm_var parm = ParmOf(m_object, GetParam().attribute);
    parm->Valuate(ORXUnicodeString(GetParam().text));
    EXPECT_DOUBLE_EQ(ValueOf(GetParam().attribute), GetParam().value);
    EXPECT_EQ(Told().size(), 1U);
    parm->Valuate(-1.0);
    parm->ValuateFromString(GetParam().text);
    EXPECT_DOUBLE_EQ(ValueOf(GetParam().attribute), GetParam().value);
    EXPECT_EQ(Told().size(), 2U);
    // What it then says of itself reads back the same.
    const ORXUnicodeString said = parm->GetValue()->AsString();
    const double value = ValueOf(GetParam().attribute);
    parm->Valuate(-1.0);
    parm->Valuate(said);
    EXPECT_EQ(ValueOf(GetParam().attribute), value) << Narrow(said);
}

INSTANTIATE_TEST_SUITE_P(
    Knowledge, UnitTexts,
    testing::Values(UnitText{"length", "5 mm", 0.005}, UnitText{"length", "5mm", 0.005},
                    UnitText{"length", " 5  mm ", 0.005}, UnitText{"length", "7", 7.0},
                    UnitText{"length", "-2.5e2 cm", -2.5}, UnitText{"length", "1 inch", 0.0254},
                    UnitText{"length", "2 km", 2000.0}, UnitText{"length", "0.005 m", 0.005},
                    UnitText{"length", "3 metres", 3.0}, UnitText{"span", "1 km", 1000.0}, UnitText{"span", "1", 1.0},
                    UnitText{"pressure", "1 atm", 101325.0}, UnitText{"pressure", "2 bar", 200000.0},
                    UnitText{"pressure", "1 kPa", 1000.0}, UnitText{"pressure", "5", 5.0},
                    UnitText{"pressure", "3 N/m2", 3.0}, UnitText{"pressure", "3 N.m-2", 3.0},
                    UnitText{"temperature", "20 degC", 293.15}, UnitText{"temperature", "0 degC", 273.15},
                    UnitText{"temperature", "-40 degF", 233.15}, UnitText{"temperature", "20 celsius", 293.15},
                    UnitText{"temperature", "300 K", 300.0}, UnitText{"angle", "180 degree", 3.141592653589793},
                    UnitText{"angle", "1 rad", 1.0}, UnitText{"share", "25 %", 0.25},
                    UnitText{"share", "25 percent", 0.25}, UnitText{"share", "0.25", 0.25}));

class RefusedUnitTexts : public Units, public testing::WithParamInterface<UnitText>
{
};

TEST_P(RefusedUnitTexts, ChangeNothingAndTellNobody)
{
    const ORXICkeParm_var parm = ParmOf(m_object, GetParam().attribute);
    parm->Valuate(GetParam().value);
    Told();
    parm->Valuate(ORXUnicodeString(GetParam().text));
    parm->ValuateFromString(GetParam().text);
    EXPECT_EQ(ValueOf(GetParam().attribute), GetParam().value);
    EXPECT_EQ(Told(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(
    Knowledge, RefusedUnitTexts,
    testing::Values(UnitText{"length", "5 Pa", 1.0}, UnitText{"length", "5 s", 1.0}, UnitText{"length", "5 m2", 1.0},
                    UnitText{"length", "5 2 m", 1.0}, UnitText{"length", "5 2", 1.0}, UnitText{"length", "5m 2m", 1.0},
                    UnitText{"length", "mm", 1.0}, UnitText{"length", "m 5", 1.0}, UnitText{"length", "", 1.0},
                    UnitText{"length", " ", 1.0}, UnitText{"length", "five m", 1.0},
                    UnitText{"length", "5 florps", 1.0}, UnitText{"length", "5 MM", 1.0},
                    UnitText{"length", "5 +m", 1.0}, UnitText{"length", "5,5 m", 1.0}, UnitText{"length", "inf m", 1.0},
                    UnitText{"length", "1e308 km", 1.0}, UnitText{"length", "5 degC", 1.0},
                    UnitText{"pressure", "5 m", 2.0}, UnitText{"pressure", "5 N", 2.0},
                    UnitText{"temperature", "5 m", 3.0}, UnitText{"angle", "5 m", 1.0}, UnitText{"share", "5 m", 0.5},
                    UnitText{"ratio", "5 m", 0.5}, UnitText{"ratio", "5 mm", 0.5},
                    UnitText{"length", "5 seconds since 2000-01-01", 1.0}));

TEST_F(Units, NumbersAreSi_ByEveryRoad)
{
    ParmOf(m_object, "length")->Valuate(3.0);
    EXPECT_EQ(TextOf(m_object, "length"), "3 m");
    ParmOf(m_object, "length")->Valuate(4);
    EXPECT_EQ(TextOf(m_object, "length"), "4 m");
    EXPECT_EQ(AccessOf(m_object)->SetDouble(KeyOf(m_object, "length"), 5.5), S_OK);
    EXPECT_EQ(TextOf(m_object, "length"), "5.5 m");
    EXPECT_EQ(AccessOf(m_object)->SetDouble(KeyOf(m_object, "lengths"), 6.5, 2), S_OK);
    EXPECT_EQ(AccessOf(m_object)->GetDouble(KeyOf(m_object, "lengths"), 2), 6.5);
    EXPECT_EQ(Told(), (Lines{"M.length=3 m", "M.length=4 m", "M.length=5.5 m", "M.lengths="}));
}

TEST_F(Units, ValueOfAQuantity_IsConvertedAsEveryReal)
{
    ParmOf(m_object, "length")->Valuate(ORXUnicodeString("2750 mm"));
    const ORXIValue_var value = ParmOf(m_object, "length")->GetValue();
    EXPECT_EQ(value->AsReal(), 2.75);
    EXPECT_EQ(value->AsInteger(), 2);
    EXPECT_FALSE(value->IsTrue());
}

struct QuantityCopying
{
    const char* from;
    const char* to;
    /// Whether the value is taken.
    bool isTaken;
};

std::ostream& operator<<(std::ostream& ioStream, const QuantityCopying& iCopying)
{
    return ioStream << iCopying.from << " to " << iCopying.to;
}

class QuantityCopyings : public Units, public testing::WithParamInterface<QuantityCopying>
{
};

TEST_P(QuantityCopyings, ValuateFromValue_TakesWhatMeasuresTheSame)
{
    const ORXISpecObject_var source = Make("ContractMeasured", "S");
    for (const char* name : {"length", "span", "depth", "pressure", "temperature", "ratio", "share"})
        ParmOf(source, name)->Valuate(7.0);
    ParmOf(source, "count")->Valuate(7);
    ParmOf(source, "title")->Valuate(ORXUnicodeString("7"));
    ParmOf(m_object, GetParam().to)->Valuate(1.0);
    Told();
    ParmOf(m_object, GetParam().to)->ValuateFromValue(ParmOf(source, GetParam().from)->GetValue());
    EXPECT_EQ(ValueOf(GetParam().to), GetParam().isTaken ? 7.0 : 1.0);
    EXPECT_EQ(Told().size(), GetParam().isTaken ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Knowledge, QuantityCopyings,
    testing::Values(QuantityCopying{"length", "length", true}, QuantityCopying{"length", "span", true},
                    QuantityCopying{"span", "depth", true}, QuantityCopying{"length", "pressure", false},
                    QuantityCopying{"pressure", "temperature", false}, QuantityCopying{"ratio", "length", true},
                    QuantityCopying{"length", "ratio", true}, QuantityCopying{"count", "length", true},
                    QuantityCopying{"mode", "length", false}, QuantityCopying{"title", "length", false}));

TEST_F(Units, ValuateFromValue_OfAnUnsetQuantity_Empties)
{
    ParmOf(m_object, "length")->ValuateFromValue(ParmOf(m_object, "span")->GetValue());
    EXPECT_EQ(TextOf(m_object, "length"), "(none)");
    EXPECT_EQ(Told(), Lines{"M.length=(none)"});
}

TEST_F(Units, VolatileParameterOfAQuantity_ReadsUnits)
{
    const ORXICkeParm_var parm =
        ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(ParmOf(m_object, "length")->GetType(), "tempName");
    EXPECT_EQ(parm->GetValue()->IsValuated(), 0);
    for (const char* text : {"5 Pa", "5 2 m", "x"})
        parm->Valuate(ORXUnicodeString(text));
    EXPECT_EQ(parm->GetValue()->IsValuated(), 0);
    parm->Valuate(ORXUnicodeString("5 mm"));
    EXPECT_DOUBLE_EQ(parm->GetValue()->AsReal(), 0.005);
    EXPECT_EQ(Narrow(parm->GetValue()->AsString()), "0.005 m");
    parm->ValuateFromString("6 cm");
    EXPECT_DOUBLE_EQ(parm->GetValue()->AsReal(), 0.06);
    EXPECT_EQ(Told(), Lines{});
    ParmOf(m_object, "depth")->ValuateFromValue(parm->GetValue());
    EXPECT_EQ(TextOf(m_object, "depth"), "0.06 m");
    ParmOf(m_object, "pressure")->ValuateFromValue(parm->GetValue());
    EXPECT_EQ(TextOf(m_object, "pressure"), "101325 Pa") << "a length is no pressure";
}
} // namespace
