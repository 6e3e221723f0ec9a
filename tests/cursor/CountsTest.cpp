/**
 * @file
 * References: what a cursor holds, and that a chain gives back everything that it was given.
 */

#include <functional>
#include <utility>
#include <vector>

#include "CursorTest.h"
#include "ORXISpecAttribute.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRStandaloneInstruments.h"

namespace
{
using VYRStandalone::ReferenceCount;

class Counts : public CursorTest
{
protected:
    void SetUp() override
    {
        CursorTest::SetUp();
        m_inlet = AddZone("Zone.1", "Inlet");
        m_wall = AddZone("Zone.2", "", "CursorWall");
        Append(m_part, "related", m_inlet);
        Put(m_part, "peer", m_part);
        m_material = ORXISpecObject_var::Adopt(AccessOf(m_part)->GetSpecObject(KeyOf(m_part, "material"), 0));
        m_choice = Create("VYRCfdChoice", "Choice.1");
        m_assembly = Create("CursorAssembly", "Assembly.1");
        m_son = Create("CursorZone", "Son.1");
        Append(m_assembly, "SonsList", m_son);
        const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(m_part->AddAttribute("added", tk_boolean, 0));
        m_addedKey = KeyOf(m_part, "added");
        ASSERT_FALSE(!m_addedKey);
    }

    std::vector<unsigned int> All() const
    {
        std::vector<unsigned int> counts;
        for (const ORXISpecObject_var& object : {m_part, m_inlet, m_wall, m_material, m_choice, m_assembly, m_son})
            counts.push_back(ReferenceCount(object));
        // Keys of declared attributes are not counted.
        counts.push_back(ReferenceCount(m_addedKey));
        counts.push_back(static_cast<unsigned int>(VYRStandalone::LiveComponents()));
        return counts;
    }

    /// The action leaves every count as it was, also when it is done a thousand times.
    void ExpectBalanced(const char* iWhat, const std::function<void()>& iAction)
    {
        iAction(); // what is made on first use, such as a generated key, is made now
        const std::vector<unsigned int> before = All();
        for (int round = 0; round < 1000; ++round)
            iAction();
        EXPECT_EQ(All(), before) << iWhat;
        Reported();
    }

    ORXISpecObject_var m_inlet;
    ORXISpecObject_var m_wall;
    ORXISpecObject_var m_material;
    ORXISpecObject_var m_choice;
    ORXISpecObject_var m_assembly;
    ORXISpecObject_var m_son;
    ORXISpecAttrKey_var m_addedKey;
};

TEST_F(Counts, ACursor_HoldsItsObjectOnce)
{
    const unsigned int before = ReferenceCount(m_part);
    {
        const VYRCfdObjectAccess cursor{ORXBaseUnknown_var(m_part)};
        EXPECT_EQ(ReferenceCount(m_part), before + 1);
        const VYRCfdObjectAccess copy(cursor);
        EXPECT_EQ(ReferenceCount(m_part), before + 2);
        VYRCfdObjectAccess assigned;
        assigned = copy;
        EXPECT_EQ(ReferenceCount(m_part), before + 3);
        assigned = copy;
        EXPECT_EQ(ReferenceCount(m_part), before + 3);
        const VYRCfdObjectAccess& same = assigned;
        assigned = same;
        EXPECT_EQ(ReferenceCount(m_part), before + 3);
        assigned = ORXBaseUnknown_var();
        EXPECT_EQ(ReferenceCount(m_part), before + 2);
    }
    EXPECT_EQ(ReferenceCount(m_part), before);
}

TEST_F(Counts, AnAttributeCursor_HoldsItsObjectOnceAndAMortalKeyOnce)
{
    const unsigned int before = ReferenceCount(m_part);
    {
        const VYRCfdObjectAccess title = At("title");
        EXPECT_EQ(ReferenceCount(m_part), before + 1);
    }
    const ORXISpecAttrKey_var key = KeyOf(m_part, "added");
    const unsigned int keyBefore = ReferenceCount(key);
    const unsigned int partBefore = ReferenceCount(m_part);
    {
        const VYRCfdObjectAccess added = Part().Get(key.Pointer(), 0);
        EXPECT_EQ(ReferenceCount(key), keyBefore + 1);
        const VYRCfdObjectAccess copy(added);
        EXPECT_EQ(ReferenceCount(key), keyBefore + 2);
    }
    EXPECT_EQ(ReferenceCount(key), keyBefore);
    EXPECT_EQ(ReferenceCount(m_part), partBefore);
}

TEST_F(Counts, Handles_AreNewReferencesAndTheBorrowedPointerIsNone)
{
    VYRCfdObjectAccess cursor = Part();
    const unsigned int before = ReferenceCount(m_part);
    {
        const ORXBaseUnknown_var self = cursor.Self();
        EXPECT_EQ(ReferenceCount(m_part), before + 1);
        const ORXBaseUnknown_var converted = cursor.operator ORXBaseUnknown_var();
        EXPECT_EQ(ReferenceCount(m_part), before + 2);
        const ORXISpecAttrAccess_var access = cursor.Access();
        EXPECT_EQ(ReferenceCount(m_part), before + 3);
        EXPECT_NE(cursor.operator ORXBaseUnknown*(), nullptr);
        EXPECT_EQ(ReferenceCount(m_part), before + 3);
    }
    EXPECT_EQ(ReferenceCount(m_part), before);
}

TEST_F(Counts, AThousandNavigations_LeaveEveryCountAsItWas)
{
    const ORXISpecAttrKey_var zones = KeyOf(m_part, "zones");
    const std::pair<const char*, std::function<void()>> navigations[] = {
        {"attribute by name", [&] { Part()["title"]; }},
        {"object by name", [&] { Part()["material"]["density"].GetParent().GetParent(); }},
        {"reference by name", [&] { Part()["peer"]["peer"]["title"]; }},
        {"by key", [&] { Part().Get(zones.Pointer(), 1); }},
        {"by the key of an added attribute", [&] { Part()[m_addedKey.Pointer()]; }},
        {"added attribute by name", [&] { Part()["added"]; }},
        {"added attribute by name and index", [&] { Part().Get("added", 0); }},
        {"added attribute by name, Ref", [&] { Part().Ref("added"); }},
        {"added attribute by path", [&] { Part().GetByPath("peer/added"); }},
        {"beyond the end", [&] { Part().Get(zones.Pointer(), 9); }},
        {"by name and index", [&] { Part().Get("zones", 2); }},
        {"display name", [&] { Part()["zones"]["Inlet"]; }},
        {"internal name", [&] { Part()["zones"]["Zone.2"]; }},
        {"type", [&] { Part()["zones"]["CursorWall"]; }},
        {"position", [&] { Part()["zones"]["2"]; }},
        {"nothing in the list", [&] { Part()["zones"]["no such"]; }},
        {"index", [&] { Part()["zones"][2]; }},
        {"index out of bounds", [&] { Part()["zones"][3]; }},
        {"son", [&] { Cursor(m_assembly)["Son.1"]; }},
        {"no attribute", [&] { Part()["no such"]; }},
        {"choice", [&] { Cursor(m_choice)["no such"]; }},
        {"key function", [&] { Cursor(m_choice)[VYRCFDBASE(Choice, value)]; }},
        {"key function, Ref", [&] { Cursor(m_choice).Ref(VYRCFDBASE(Choice, Data)); }},
        {"Ref", [&] { Part().Ref("material").Ref("peer"); }},
        {"Ref of nothing", [&] { Part().Ref("no such"); }},
        {"path", [&] { Part().GetByPath("peer/zones/Inlet/area"); }},
        {"path that fails", [&] { Part().GetByPath("zones/no such/area"); }},
        {"parent at the top", [&] { Part().GetParent(); }},
        {"texts", [&] { Cursor(m_inlet).GetName(), Cursor(m_inlet).GetID(), Cursor(m_inlet).GetType(); }},
        {"comparison", [&] { static_cast<void>(Part()["title"] == Part()["note"]); }},
        {"condition", [&] { Part().ApplyCondition("relaxation<1"); }},
        {"condition that does not hold", [&] { Part().ApplyCondition("iterations<1"); }},
    };
    for (const auto& [what, action] : navigations)
        ExpectBalanced(what, action);
}

TEST_F(Counts, AThousandReadsAndWrites_LeaveEveryCountAsItWas)
{
    const std::pair<const char*, std::function<void()>> operations[] = {
        {"string",
         [&] {
             ORXUnicodeString value;
             At("title").GetString(value);
             At("title").SetString(value);
         }},
        {"plain string",
         [&] {
             ORXUnicodeString value;
             At("title").GetPlainString(value);
             At("title").SetPlainString(value);
         }},
        {"integer",
         [&] {
             int value = 0;
             At("scheme").GetInteger(value);
             At("scheme").SetInteger(value);
         }},
        {"real",
         [&] {
             double value = 0.0;
             At("relaxation").GetDouble(value);
             At("relaxation").SetDouble(value);
         }},
        {"boolean",
         [&] {
             bool value = false;
             Part()["added"].GetBoolean(value);
             Part()["added"].SetBoolean(!value);
         }},
        {"entries",
         [&] {
             ORXUnicodeString value;
             At("monitors").GetString(value, 2);
             At("monitors").SetString(value, 2);
             At("monitors").GetString(value, 9);
         }},
        {"failures",
         [&] {
             double value = 0.0;
             Part().GetDouble(value);
             At("zones").GetDouble(value);
             Part()["no such"].GetDouble(value);
         }},
        {"tests", [&] { At("scheme").IsEnum(), At("title").IsDouble(), Part().IsInteger(), At("zones").IsList(); }},
        {"parameter", [&] { At("title").GetParm()->GetValue(); }},
        {"lists",
         [&] {
             std::vector<VYRCfdObjectAccess> objects;
             At("zones").List(objects);
             At("zones").SetList(objects);
             objects.clear();
         }},
        {"object", [&] { Part().Ref("peer").SetObject(Cursor(m_part), 0); }},
    };
    for (const auto& [what, action] : operations)
        ExpectBalanced(what, action);
}

TEST_F(Counts, AnEmptyEntry_LeavesNothingBehindWhenItIsFatal)
{
    EmptyEntry(m_part, "zones", 2);
    const std::vector<unsigned int> before = All();
    for (int round = 0; round < 100; ++round)
        EXPECT_THROW(Part()["zones"]["no such"], VYRStandalone::NullPointerError);
    EXPECT_EQ(All(), before);
}

TEST_F(Counts, AnObjectThatOnlyACursorHolds_LivesOn)
{
    VYRCfdObjectAccess cursor = Part()["title"];
    m_part = NULL_var;
    m_addedKey = NULL_var;
    m_model.Close();
    ORXUnicodeString text;
    EXPECT_EQ(cursor.GetPlainString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("cavity"));
    const int alive = VYRStandalone::LiveComponents();
    cursor = VYRCfdObjectAccess();
    EXPECT_LT(VYRStandalone::LiveComponents(), alive);
}
} // namespace
