/**
 * @file
 * Values: conversions, snapshots, how long they live.
 */

#include <limits>
#include <ostream>

#include "ContractTest.h"

namespace
{
using Values = ContractTest;

TEST_F(Values, UnsetValue_ReadsAsNothing)
{
    const ORXIValue_var value = ParmOf(Make("ContractPlain", "A"), "pace")->GetValue();
    EXPECT_EQ(value->IsValuated(), 0);
    EXPECT_EQ(value->AsInteger(), 0);
    EXPECT_EQ(value->AsReal(), 0.0);
    EXPECT_EQ(Narrow(value->AsString()), "");
    EXPECT_FALSE(value->AsBoolean());
    EXPECT_FALSE(value->IsTrue());
}

TEST_F(Values, OfUnsetParametersOfEveryKind_ReadAsNothing)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXIValue_var unset = ParmOf(object, "on")->GetValue();
    for (const char* name : {"ratio", "count", "on", "mode", "title"})
    {
        ParmOf(object, name)->ValuateFromValue(unset);
        const ORXIValue_var value = ParmOf(object, name)->GetValue();
        ASSERT_FALSE(!value) << name;
        EXPECT_EQ(value->IsValuated(), 0) << name;
        EXPECT_EQ(value->AsInteger(), 0) << name;
        EXPECT_EQ(value->AsReal(), 0.0) << name;
        EXPECT_TRUE(value->AsString().IsEmpty()) << name;
        EXPECT_FALSE(value->AsBoolean()) << name;
        EXPECT_FALSE(value->IsTrue()) << name;
    }
}

struct RealTextCase
{
    double real;
    const char* text;
};

class RealTexts : public ContractTest, public testing::WithParamInterface<RealTextCase>
{
};

TEST_P(RealTexts, AreTheShortestThatReadBackTheSame)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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

TEST_F(Values, AsBoolean_OfABoolean)
{
    const ORXICkeParm_var on = ParmOf(Make("ContractPlain", "A"), "on");
    on->Valuate(ORXCke::False);
    EXPECT_NE(on->GetValue()->IsValuated(), 0) << "false is a value";
    EXPECT_FALSE(on->GetValue()->AsBoolean());
    EXPECT_FALSE(on->GetValue()->IsTrue());
    EXPECT_EQ(Narrow(on->GetValue()->AsString()), "false");
    on->Valuate(ORXCke::True);
    EXPECT_TRUE(on->GetValue()->AsBoolean());
    EXPECT_EQ(Narrow(on->GetValue()->AsString()), "true");
}

TEST_F(Values, IsTrue_IsFalseForEveryOtherKind)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    ParmOf(object, "ratio")->Valuate(1.0);
    ParmOf(object, "count")->Valuate(1);
    ParmOf(object, "title")->Valuate(ORXUnicodeString("true"));
    for (const char* name : {"ratio", "count", "mode", "title"})
        EXPECT_FALSE(ParmOf(object, name)->GetValue()->IsTrue()) << name;
}

TEST_F(Values, EmptyText_IsAValue)
{
    const ORXICkeParm_var title = ParmOf(Make("ContractPlain", "A"), "title");
    title->Valuate(ORXUnicodeString());
    EXPECT_NE(title->GetValue()->IsValuated(), 0);
    EXPECT_TRUE(title->GetValue()->AsString().IsEmpty());
}

TEST_F(Values, Snapshot_IsNotChangedByLaterWrites)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
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

TEST_F(Values, HeldValues_OutliveTheirObject)
{
    ORXIValue_var ofSlot;
    ORXIValue_var ofCell;
    const int before = HostUnderTest::LiveComponents();
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "A");
        ofSlot = ParmOf(object, "ratio")->GetValue();
        ParmOf(object, "ratio")->Valuate(1.0);
        ofCell = ParmOf(object, "ratio")->GetValue();
    }
    EXPECT_EQ(ofSlot->AsReal(), 0.5);
    EXPECT_EQ(ofCell->AsReal(), 1.0);
    EXPECT_EQ(HostUnderTest::LiveComponents(), before + 2);
    ofSlot = NULL_var;
    ofCell = NULL_var;
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}

TEST_F(Values, AreOneUnderBothNames)
{
    const ORXIValue_var value = ParmOf(Make("ContractPlain", "A"), "ratio")->GetValue();
    const ORXICkeInst_var inst = value;
    EXPECT_EQ(inst->AsReal(), 0.5);
    EXPECT_TRUE(inst == value);
    EXPECT_TRUE(ORXIValue_var(inst) == value);
    EXPECT_TRUE(ORXICkeInst_var::Cast(value) == value);
    EXPECT_TRUE(ORXBaseUnknown_var::Cast(value) == value);
    EXPECT_TRUE(!ORXISpecObject_var::Cast(value));
    EXPECT_TRUE(!ORXICkeParm_var::Cast(value));
}

TEST_F(Values, CountTheirOwnReferences)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int ofObject = CountOf(object);
    const ORXIValue_var value = ParmOf(object, "ratio")->GetValue();
    EXPECT_EQ(CountOf(object), ofObject) << "a value does not hold its object";
    const unsigned int before = CountOf(value);
    {
        const ORXICkeInst_var copy = value;
        EXPECT_EQ(CountOf(value), before + 1);
    }
    EXPECT_EQ(CountOf(value), before);
}

TEST_F(Values, HeldThousandfold_AreEachTheirOwnSnapshot)
{
    const ORXICkeParm_var count = ParmOf(Make("ContractPlain", "A"), "count");
    std::vector<ORXIValue_var> held;
    for (int i = 0; i < 1000; ++i)
    {
        count->Valuate(i);
        held.push_back(count->GetValue());
    }
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(held[static_cast<std::size_t>(i)]->AsInteger(), i);
}
} // namespace
