/**
 * @file
 * Free-standing parameters.
 */

#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"

namespace
{
class VolatileParms : public ListeningTest
{
protected:
    ORXICkeParm_var MakeParm(const char* iOfAttribute) const
    {
        return m_factory->CreateParm(ParmOf(m_object, iOfAttribute)->GetType(), "tempName");
    }
    static std::string TextOfParm(const ORXICkeParm_var& iParm)
    {
        const ORXIValue_var value = iParm->GetValue();
        return value->IsValuated() != 0 ? Narrow(value->AsString()) : "(none)";
    }

    const ORXISpecObject_var m_object = Make("ContractListening", "A");
    const ORXICkeParmFactory_var m_factory = ORXCkeGlobalFunctions::GetVolatileFactory();
};

TEST_F(VolatileParms, OfNoType_AreNull)
{
    EXPECT_TRUE(!m_factory->CreateParm(NULL_var, "tempName"));
}

TEST_F(VolatileParms, AreOneEachAndDieWithTheirLastReference)
{
    const int before = HostUnderTest::LiveComponents();
    {
        const ORXICkeParm_var first = MakeParm("ratio");
        const ORXICkeParm_var second = MakeParm("ratio");
        EXPECT_FALSE(first == second) << "a name is no identity";
        EXPECT_EQ(HostUnderTest::LiveComponents(), before + 2);
        EXPECT_EQ(CountOf(first), 1u);
        EXPECT_TRUE(ORXICkeParm_var::Cast(first) == first);
        EXPECT_TRUE(!ORXISpecObject_var::Cast(first));
        first->Valuate(1.0);
        EXPECT_EQ(TextOfParm(second), "(none)");
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}

TEST_F(VolatileParms, HaveTheirTypeAndNoValueAtFirst)
{
    for (const char* name : {"ratio", "count", "on", "mode", "title"})
    {
        const ORXICkeParm_var parm = MakeParm(name);
        EXPECT_EQ(TextOfParm(parm), "(none)") << name;
        EXPECT_TRUE(parm->GetType() == ParmOf(m_object, name)->GetType()) << name;
        EXPECT_TRUE(!parm->GetManipulator()) << name;
    }
}

TEST_F(VolatileParms, TakeAndRefuseAsAttributesDoAndTellNobody)
{
    const ORXICkeParm_var mode = MakeParm("mode");
    mode->Valuate(ORXUnicodeString("nothing"));
    mode->Valuate(3);
    mode->Valuate(1.0);
    mode->Valuate(ORXCke::True);
    EXPECT_EQ(TextOfParm(mode), "(none)");
    mode->Valuate(ORXUnicodeString("high"));
    EXPECT_EQ(TextOfParm(mode), "high");
    mode->Valuate(1);
    EXPECT_EQ(TextOfParm(mode), "low");
    const ORXICkeParm_var on = MakeParm("on");
    on->Valuate(ORXCke::False);
    EXPECT_EQ(TextOfParm(on), "false");
    on->Valuate(ORXUnicodeString("TRUE"));
    EXPECT_EQ(TextOfParm(on), "true");
    const ORXICkeParm_var ratio = MakeParm("ratio");
    ratio->ValuateFromString("2.5");
    EXPECT_EQ(TextOfParm(ratio), "2.5");
    ratio->Valuate(3);
    EXPECT_EQ(TextOfParm(ratio), "3");
    const ORXICkeParm_var count = MakeParm("count");
    count->ValuateFromString("4");
    count->Valuate(4.0);
    EXPECT_EQ(TextOfParm(count), "(none)");
    count->Valuate(ORXUnicodeString("12abc"));
    EXPECT_EQ(TextOfParm(count), "12");
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(VolatileParms, GiveSnapshots)
{
    const ORXICkeParm_var parm = MakeParm("mode");
    parm->Valuate(2);
    const ORXIValue_var held = parm->GetValue();
    parm->Valuate(1);
    EXPECT_EQ(Narrow(held->AsString()), "high");
    EXPECT_EQ(TextOfParm(parm), "low");
    ParmOf(m_object, "mode")->ValuateFromValue(held);
    EXPECT_EQ(TextOf(m_object, "mode"), "high");
}

TEST_F(VolatileParms, ValuateFromValue_CopiesEmptiesAndPassesOverNull)
{
    const ORXICkeParm_var parm = MakeParm("count");
    parm->ValuateFromValue(ParmOf(m_object, "count")->GetValue());
    EXPECT_EQ(TextOfParm(parm), "3");
    parm->ValuateFromValue(NULL_var);
    EXPECT_EQ(TextOfParm(parm), "3");
    parm->ValuateFromValue(ParmOf(m_object, "ratio")->GetValue());
    EXPECT_EQ(TextOfParm(parm), "3");
    parm->ValuateFromValue(ParmOf(m_object, "on")->GetValue());
    EXPECT_EQ(TextOfParm(parm), "(none)");
}

TEST_F(VolatileParms, ValuesOfThem_OutliveThem)
{
    const ORXICkeType_var type = ParmOf(Make("ContractPlain", "A"), "title")->GetType();
    ORXICkeParm_var parm = ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(type, "tempName");
    parm->Valuate(ORXUnicodeString("a text that is longer than what is held without the heap"));
    const ORXICkeInst_var value = parm->GetValue();
    parm = NULL_var;
    EXPECT_EQ(Narrow(value->AsString()), "a text that is longer than what is held without the heap");
    const ORXIValue_var cast = value;
    EXPECT_TRUE(cast == value);
}

TEST_F(VolatileParms, HaveManipulatorsOfTheirOwn)
{
    const ORXICkeParm_var parm = MakeParm("title");
    const ORXICkeManipulator_var made = parm->CreateManipulator();
    ASSERT_FALSE(!made);
    EXPECT_TRUE(parm->GetManipulator() == made);
    EXPECT_TRUE(!ParmOf(m_object, "title")->GetManipulator());
}
} // namespace
