/**
 * @file
 * Several operations in one. A host may leave them out, and may decline each; what it does not decline has to come to
 * what the single operations come to.
 */

#include "ORXSpecAttrShortcuts.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "ContractTest.h"
#include "ForeignKey.h"

namespace
{
/// Where a step has led, with its references.
struct Place
{
    bool isGiven = false;
    ORXISpecAttrAccess_var object;
    ORXISpecAttrKey_var key;
};

class Shortcuts : public ListeningTest
{
protected:
    void SetUp() override
    {
        m_shortcuts = ORXGetSpecAttrShortcuts != nullptr ? ORXGetSpecAttrShortcuts() : nullptr;
        if (m_shortcuts == nullptr)
            GTEST_SKIP() << "this host has no shortcuts";
    }

    static Place Taken(bool iIsGiven, const ORXSpecAttrPlace& iPlace)
    {
        return {iIsGiven, ORXISpecAttrAccess_var::Adopt(iPlace.object), ORXISpecAttrKey_var::Adopt(iPlace.key)};
    }

    Place ByName(const ORXISpecObject_var& iObject, const char* iName) const
    {
        ORXSpecAttrPlace place;
        const bool isGiven = m_shortcuts->Step(AccessOf(iObject), iName, std::strlen(iName), place);
        return Taken(isGiven, place);
    }

    Place ByKey(const ORXISpecObject_var& iObject, ORXISpecAttrKey* iKey) const
    {
        ORXSpecAttrPlace place;
        const bool isGiven = m_shortcuts->Step(AccessOf(iObject), iKey, place);
        return Taken(isGiven, place);
    }

    /// What the single operations come to is the measure; declined may be all.
    void ExpectRight(const Place& iPlace, const ORXISpecObject_var& iObject, const char* iName) const
    {
        if (!iPlace.isGiven)
        {
            EXPECT_TRUE(!iPlace.object && !iPlace.key) << iName << ": left alone";
            return;
        }
        const ORXISpecAttrKey_var key = KeyOf(iObject, iName);
        ASSERT_FALSE(!key) << iName;
        const bool isObject = key->GetType() == tk_component || key->GetType() == tk_specobject;
        if (isObject)
        {
            EXPECT_TRUE(!iPlace.key) << iName;
            EXPECT_TRUE(ORXSameComponent(iPlace.object, ObjectOf(iObject, iName))) << iName;
            EXPECT_TRUE(!!ObjectOf(iObject, iName)) << iName << ": an empty attribute is declined";
        }
        else
        {
            ASSERT_FALSE(!iPlace.key) << iName;
            EXPECT_EQ(iPlace.key->IsEqual(key), 1) << iName;
            EXPECT_TRUE(ORXSameComponent(iPlace.object, iObject)) << iName;
        }
        const auto facet = ORXISpecAttrAccess_var::Cast(iPlace.object->GetImpl(0));
        EXPECT_EQ(iPlace.object.Pointer(), facet.Pointer()) << iName << ": the facet that the cast gives";
    }

    ORXSpecAttrShortcuts* m_shortcuts = nullptr;
};

constexpr const char* Names[] = {"ratio", "count", "on",      "mode", "pace",   "title", "reals",    "counts",
                                 "flags", "modes", "names",   "part", "loose",  "parts", "ref",      "refs",
                                 "size",  "extra", "nothing", "rati", "ratio ", "",      "part/size"};

TEST_F(Shortcuts, Step_ByNameAndByKey_LeadsWhereTheSingleOperationsLead)
{
    const ORXISpecObject_var object = Make("ContractDerived", "A");
    Set(object, "ref", Make("ContractPlain", "B"));
    for (const char* const name : Names)
    {
        ExpectRight(ByName(object, name), object, name);
        if (const ORXISpecAttrKey_var key = KeyOf(object, name))
            ExpectRight(ByKey(object, key), object, name);
    }
}

TEST_F(Shortcuts, Step_IsGivenForPlainAttributes)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const char* const name : {"ratio", "reals", "part", "parts"})
    {
        EXPECT_TRUE(ByName(object, name).isGiven) << name;
        EXPECT_TRUE(ByKey(object, KeyOf(object, name)).isGiven) << name;
    }
}

TEST_F(Shortcuts, Step_TakesTheNameUpToItsLength)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    ORXSpecAttrPlace place;
    ASSERT_TRUE(m_shortcuts->Step(AccessOf(object), "part/size", 4, place));
    EXPECT_TRUE(ORXSameComponent(Taken(true, place).object, ObjectOf(object, "part")));
}

TEST_F(Shortcuts, Step_OnEmptyAttributes_IsDeclined)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    for (const char* const name : {"loose", "ref"})
    {
        EXPECT_FALSE(ByName(object, name).isGiven) << name;
        EXPECT_FALSE(ByKey(object, KeyOf(object, name)).isGiven) << name;
    }
}

TEST_F(Shortcuts, Step_OfAttributesThatOneObjectHas_IsRightOrDeclined)
{
    const ORXISpecObject_var added = Make("ContractPlain", "A");
    Add(added, "own", tk_double);
    const ORXISpecObject_var without = Make("ContractPlain", "B");
    const ORXISpecObject_var optional = Make("ContractOptional", "C");
    const ORXISpecAttrKey_var own = KeyOf(added, "own");
    const ORXISpecAttrKey_var notAdded = KeyOf(optional, "oref");
    ExpectRight(ByName(added, "own"), added, "own");
    ExpectRight(ByKey(added, own), added, "own");
    EXPECT_FALSE(ByKey(without, own).isGiven);
    EXPECT_FALSE(ByName(optional, "oref").isGiven);
    EXPECT_FALSE(!!notAdded && ByKey(optional, notAdded).isGiven);
    double read = 7.0;
    EXPECT_FALSE(m_shortcuts->ReadReal(AccessOf(optional), KeyOf(optional, "oreal"), read));
    EXPECT_FALSE(m_shortcuts->WriteReal(AccessOf(optional), KeyOf(optional, "oreal"), 1.0));
    EXPECT_EQ(read, 7.0);
    Add(optional, "oref", tk_specobject);
    Set(optional, "oref", without);
    ExpectRight(ByName(optional, "oref"), optional, "oref");
}

TEST_F(Shortcuts, Step_ByKeysOfOtherTypesAndOtherHosts_IsDeclined)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var other = Make("ContractOther", "B");
    const ORXISpecAttrKey_var foreign = ORXISpecAttrKey_var::Adopt(new ForeignKey);
    EXPECT_FALSE(ByKey(object, KeyOf(other, "ratio")).isGiven);
    EXPECT_FALSE(ByKey(object, foreign).isGiven);
}

TEST_F(Shortcuts, Step_GivesOneReference)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecObject_var part = ObjectOf(object, "part");
    const unsigned int onObject = CountOf(object);
    const unsigned int onPart = CountOf(part);
    {
        const Place attribute = ByName(object, "ratio");
        EXPECT_EQ(CountOf(object), onObject + 1);
        const Place held = ByKey(object, KeyOf(object, "part"));
        EXPECT_EQ(CountOf(part), onPart + 1);
    }
    EXPECT_EQ(CountOf(object), onObject);
    EXPECT_EQ(CountOf(part), onPart);
}

TEST_F(Shortcuts, ReadReal_GivesWhatTheParameterHolds)
{
    const ORXISpecObject_var object = Make("ContractMeasured", "A");
    for (const double number : {-1.25, 0.0, 1e300, std::numeric_limits<double>::infinity()})
    {
        ParmOf(object, "length")->Valuate(number);
        double read = 7.0;
        ASSERT_TRUE(m_shortcuts->ReadReal(AccessOf(object), KeyOf(object, "length"), read));
        EXPECT_EQ(read, number);
    }
    ParmOf(object, "length")->Valuate(std::nan(""));
    double read = 7.0;
    ASSERT_TRUE(m_shortcuts->ReadReal(AccessOf(object), KeyOf(object, "length"), read));
    EXPECT_TRUE(std::isnan(read));
}

TEST_F(Shortcuts, RealsOfWhatIsNone_AreDeclinedAndLeaveAllAlone)
{
    const ORXISpecObject_var object = Make("ContractMeasured", "A");
    const ORXISpecAttrAccess_var access = AccessOf(object);
    for (const char* const name : {"count", "on", "mode", "title", "reals", "names", "part", "refs"})
    {
        double read = 7.0;
        EXPECT_FALSE(m_shortcuts->ReadReal(access, KeyOf(object, name), read)) << name;
        EXPECT_EQ(read, 7.0) << name;
        EXPECT_FALSE(m_shortcuts->WriteReal(access, KeyOf(object, name), 1.0)) << name;
    }
    EXPECT_EQ(TextOf(object, "count"), "3");
    EXPECT_EQ(Told(), Lines());
}

TEST_F(Shortcuts, ReadReal_OfAnUnsetAttribute_IsDeclined)
{
    const ORXISpecObject_var object = Make("ContractMeasured", "A");
    double read = 7.0;
    EXPECT_FALSE(m_shortcuts->ReadReal(AccessOf(object), KeyOf(object, "span"), read));
    EXPECT_EQ(read, 7.0);
}

TEST_F(Shortcuts, Reals_ByKeysOfOtherTypesAndOtherHosts_AreDeclined)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrKey_var other = KeyOf(Make("ContractOther", "B"), "ratio");
    const ORXISpecAttrKey_var foreign = ORXISpecAttrKey_var::Adopt(new ForeignKey);
    for (const ORXISpecAttrKey_var& key : {other, foreign})
    {
        double read = 7.0;
        EXPECT_FALSE(m_shortcuts->ReadReal(AccessOf(object), key, read));
        EXPECT_FALSE(m_shortcuts->WriteReal(AccessOf(object), key, 1.0));
    }
    EXPECT_EQ(TextOf(object, "ratio"), "0.5");
}

TEST_F(Shortcuts, WriteReal_WritesAndTellsOnce_AsAParameterDoes)
{
    const ORXISpecObject_var object = Make("ContractMeasured", "A");
    Told();
    ASSERT_TRUE(m_shortcuts->WriteReal(AccessOf(object), KeyOf(object, "span"), 2.5));
    const Lines written = Told();
    const std::string text = TextOf(object, "span");
    ParmOf(object, "span")->Valuate(2.5);
    EXPECT_EQ(written, Told());
    EXPECT_EQ(written.size(), 1U);
    EXPECT_EQ(text, TextOf(object, "span"));
}

TEST_F(Shortcuts, WriteReal_LeavesAValueThatSomebodyHoldsAsItWas)
{
    const ORXISpecObject_var object = Make("ContractMeasured", "A");
    const ORXIValue_var before = ParmOf(object, "length")->GetValue();
    const double number = before->AsReal();
    ASSERT_TRUE(m_shortcuts->WriteReal(AccessOf(object), KeyOf(object, "length"), number + 1));
    EXPECT_EQ(before->AsReal(), number);
    EXPECT_EQ(ParmOf(object, "length")->GetValue()->AsReal(), number + 1);
}

TEST_F(Shortcuts, AreTheSameOnEachCall)
{
    EXPECT_EQ(ORXGetSpecAttrShortcuts(), m_shortcuts);
}
} // namespace
