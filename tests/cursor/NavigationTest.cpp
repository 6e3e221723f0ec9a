/**
 * @file
 * The meanings of a name, the steps into a list and up to the parent, and what a cursor tells of where it stands.
 */

#include <vector>

#include "CursorTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRStandaloneInstruments.h"

namespace
{
// ---- a name on an object --------------------------------------------------------------------------------------------

class NamesOnObjects : public CursorTest
{
protected:
    ORXISpecObject_var MakeChoice(const char* iValue)
    {
        const ORXISpecObject_var choice = Create("VYRCfdChoice", "Choice.1");
        const ORXISpecAttrAccess_var access = AccessOf(choice);
        ORXListValORXUnicodeString choices;
        ORXListValORXUnicodeString startups;
        for (const char* text : {"laminar", "kOmega", "value"})
        {
            choices.Append(text);
            startups.Append("CursorMaterial");
        }
        EXPECT_EQ(access->SetStringList(KeyOf(choice, "choices"), choices), S_OK);
        EXPECT_EQ(access->SetStringList(KeyOf(choice, "Startups"), startups), S_OK);
        EXPECT_EQ(access->SetString(KeyOf(choice, "value"), iValue, 0), S_OK);
        return choice;
    }
};

TEST_F(NamesOnObjects, AnAttribute_IsReached)
{
    EXPECT_TRUE(StandsAt(Part().Get("title"), m_part, "title"));
    EXPECT_TRUE(StandsAt(Part()["title"], m_part, "title"));
    EXPECT_TRUE(StandsAt(Part()["zones"], m_part, "zones"));
    EXPECT_TRUE(IsError(Part()["solver"], "Null initialization c"));
    EXPECT_EQ(Part()["material"].GetType(), ORXUnicodeString("CursorMaterial"));
    double density = 0.0;
    EXPECT_EQ(Part()["material"]["density"].GetDouble(density), S_OK);
    EXPECT_EQ(density, 1.2);
}

TEST_F(NamesOnObjects, WithoutAMeaning_AreNamedInTheError)
{
    EXPECT_TRUE(IsError(Part()["no such"], "No attribute no such"));
    EXPECT_TRUE(IsError(Part()[""], "No attribute "));
    EXPECT_TRUE(IsError(Part()["1"], "No attribute 1"));
}

TEST_F(NamesOnObjects, ASon_IsFoundByEveryMeaningOfANameInAList)
{
    const ORXISpecObject_var assembly = Create("CursorAssembly", "Assembly.1");
    const ORXISpecObject_var first = Create("CursorZone", "Son.1");
    const ORXISpecObject_var second = Create("CursorWall", "Son.2");
    VYRStandalone::SetAlias(second, "Bottom");
    Append(assembly, "SonsList", first);
    Append(assembly, "SonsList", second);
    EXPECT_TRUE(StandsAt(Cursor(assembly)["Bottom"], second));
    EXPECT_TRUE(StandsAt(Cursor(assembly)["Son.1"], first));
    EXPECT_TRUE(StandsAt(Cursor(assembly)["CursorWall"], second));
    EXPECT_TRUE(StandsAt(Cursor(assembly)["1"], first));
    EXPECT_TRUE(IsError(Cursor(assembly)["no such"], "No matching object to no such"));
}

TEST_F(NamesOnObjects, AnAttribute_WinsOverASonOfThatName)
{
    const ORXISpecObject_var assembly = Create("CursorAssembly", "Assembly.1");
    Append(assembly, "SonsList", Create("CursorZone", "own"));
    EXPECT_TRUE(StandsAt(Cursor(assembly)["own"], assembly, "own"));
}

TEST_F(NamesOnObjects, WithAnEmptyListOfSons_AreSoughtThere)
{
    const ORXISpecObject_var assembly = Create("CursorAssembly", "Assembly.1");
    EXPECT_TRUE(IsError(Cursor(assembly)["x"], "No matching object to x"));
}

TEST_F(NamesOnObjects, SonsListItself_IsAnAttributeLikeAnyOther)
{
    const ORXISpecObject_var assembly = Create("CursorAssembly", "Assembly.1");
    EXPECT_TRUE(StandsAt(Cursor(assembly)["SonsList"], assembly, "SonsList"));
    EXPECT_TRUE(IsError(Part()["SonsList"], "No attribute SonsList"));
}

TEST_F(NamesOnObjects, WithSonsThatAreNoList_FailAsOnAnyScalar)
{
    EXPECT_TRUE(IsError(Cursor(Create("CursorOddAssembly", "Odd.1"))["x"], "Get by name on a non-list"));
}

// The key exists, but the object does not carry the list.
TEST_F(NamesOnObjects, WithSonsThatTheObjectDoesNotCarry_FindNoAttribute)
{
    const ORXISpecObject_var assembly = Create("CursorAssembly", "Assembly.1");
    Append(assembly, "SonsList", Create("CursorZone", "Son.1"));
    MakeFail("HasAttribute", "SonsList");
    EXPECT_TRUE(IsError(Cursor(assembly)["Son.1"], "No attribute Son.1"));
}

TEST_F(NamesOnObjects, CurrentValueOfAChoice_LeadsToItsData)
{
    const ORXISpecObject_var choice = MakeChoice("kOmega");
    const ORXISpecObject_var data = Create("CursorMaterial", "Data.1");
    Put(choice, "Data", data);
    EXPECT_TRUE(StandsAt(Cursor(choice)["kOmega"], data));
    double density = 0.0;
    EXPECT_EQ(Cursor(choice).GetByPath("kOmega/density").GetDouble(density), S_OK);
    EXPECT_EQ(density, 1.2);
    EXPECT_TRUE(IsError(Cursor(choice)["laminar"], "No attribute laminar")) << "another value is no meaning";
}

TEST_F(NamesOnObjects, CurrentValueOfAChoiceWithoutData_IsNullInitialization)
{
    const ORXISpecObject_var choice = MakeChoice("kOmega");
    Put(choice, "Data", ORXISpecObject_var());
    EXPECT_TRUE(IsError(Cursor(choice)["kOmega"], "Null initialization c"));
}

TEST_F(NamesOnObjects, AnAttributeOfAChoice_WinsOverItsCurrentValue)
{
    const ORXISpecObject_var choice = MakeChoice("value");
    EXPECT_TRUE(StandsAt(Cursor(choice)["value"], choice, "value"));
}

TEST_F(NamesOnObjects, AChoiceWithoutAReadableValue_SearchesOn)
{
    const ORXISpecObject_var choice = MakeChoice("kOmega");
    Put(choice, "Data", Create("CursorMaterial", "Data.1"));
    for (const char* fault : {"GetParm", "GetValue"})
    {
        MakeFail(fault, "value");
        EXPECT_TRUE(IsError(Cursor(choice)["kOmega"], "No attribute kOmega")) << fault;
        EXPECT_GT(VYRStandalone::FaultsHit(), 0) << fault;
        VYRStandalone::ClearFaults();
    }
    EXPECT_FALSE(Cursor(choice)["kOmega"].HasError());
}

// ---- a name in a list -----------------------------------------------------------------------------------------------

class NamesInLists : public CursorTest
{
protected:
    VYRCfdObjectAccess Zones() const { return At("zones"); }
};

/// An entry of the list: its type, internal name and display name.
struct Entry
{
    const char* type;
    const char* name;
    const char* alias;
};

struct NameCase
{
    const char* what;
    std::vector<Entry> entries;
    const char* asked;
    /// Position of the answer; 0 for none.
    int answer;
};

const NameCase NameCases[] = {
    {"a display name", {{"CursorZone", "Zone.1", "Inlet"}, {"CursorZone", "Zone.2", "Outlet"}}, "Outlet", 2},
    {"an internal name", {{"CursorZone", "Zone.1", "Inlet"}, {"CursorZone", "Zone.2", "Outlet"}}, "Zone.2", 2},
    {"a type", {{"CursorZone", "Zone.1", "Inlet"}, {"CursorWall", "Wall.1", ""}}, "CursorWall", 2},
    {"a position", {{"CursorZone", "Zone.1", ""}, {"CursorZone", "Zone.2", ""}}, "2", 2},
    {"a type and then a display name", {{"CursorWall", "A", ""}, {"CursorZone", "B", "CursorWall"}}, "CursorWall", 2},
    {"a type and then an internal name", {{"CursorWall", "A", ""}, {"CursorZone", "CursorWall", ""}}, "CursorWall", 2},
    {"an internal name and then a display name", {{"CursorZone", "X", ""}, {"CursorZone", "B", "X"}}, "X", 2},
    {"an internal name and then a type", {{"CursorZone", "CursorWall", ""}, {"CursorWall", "B", ""}}, "CursorWall", 1},
    {"two display names", {{"CursorZone", "A", "X"}, {"CursorZone", "B", "X"}}, "X", 1},
    {"two internal names", {{"CursorZone", "X", ""}, {"CursorZone", "X", ""}}, "X", 1},
    {"two of a type", {{"CursorZone", "A", ""}, {"CursorZone", "B", ""}}, "CursorZone", 1},
    {"a type that only a base has", {{"CursorWall", "A", ""}}, "CursorZone", 0},
    {"a display name of digits", {{"CursorZone", "A", ""}, {"CursorZone", "B", ""}, {"CursorZone", "C", "2"}}, "2", 3},
    {"an internal name of digits", {{"CursorZone", "A", ""}, {"CursorZone", "B", ""}, {"CursorZone", "2", ""}}, "2", 3},
    {"the last position", {{"CursorZone", "A", ""}, {"CursorZone", "B", ""}}, "2", 2},
    {"position 0", {{"CursorZone", "A", ""}}, "0", 0},
    {"a negative position", {{"CursorZone", "A", ""}}, "-1", 0},
    {"one behind the last", {{"CursorZone", "A", ""}, {"CursorZone", "B", ""}}, "3", 0},
    {"a number that is none", {{"CursorZone", "A", ""}}, "99999999999", 0},
    {"another case", {{"CursorZone", "A", "Inlet"}}, "inlet", 0},
    {"nothing in an empty list", {}, "1", 0},
    // An object without a display name answers the empty text with it.
    {"the empty text", {{"CursorZone", "A", "Inlet"}, {"CursorZone", "B", ""}}, "", 2},
};

TEST_F(NamesInLists, HaveTheirMeaningsInAFixedOrder)
{
    int number = 0;
    for (const NameCase& row : NameCases)
    {
        const ORXISpecObject_var part = Create("CursorPart", ("Part." + std::to_string(++number)).c_str());
        std::vector<ORXISpecObject_var> zones;
        for (const Entry& entry : row.entries)
        {
            zones.push_back(Create(entry.type, entry.name));
            if (*entry.alias != '\0')
                VYRStandalone::SetAlias(zones.back(), entry.alias);
            Append(part, "zones", zones.back());
        }
        const VYRCfdObjectAccess answer = Cursor(part)["zones"][row.asked];
        if (row.answer > 0)
            EXPECT_TRUE(StandsAt(answer, zones[static_cast<std::size_t>(row.answer) - 1])) << row.what;
        else
            EXPECT_TRUE(IsError(answer, std::string("No matching object to ") + row.asked)) << row.what;
    }
}

TEST_F(NamesInLists, AListOfReferences_IsSearchedAlike)
{
    const ORXISpecObject_var zone = Create("CursorZone", "Zone.1");
    Append(m_part, "related", zone);
    EXPECT_TRUE(StandsAt(Part()["related"]["Zone.1"], zone));
    EXPECT_TRUE(StandsAt(Part()["related"]["1"], zone));
}

TEST_F(NamesInLists, AnIdentifier_IsNoMeaningOfAName)
{
    const ORXISpecObject_var zone = AddZone("Zone.1", "Inlet");
    VYRStandalone::SetIdentifier(zone, "Z-1");
    EXPECT_TRUE(IsError(Zones()["Z-1"], "No matching object to Z-1"));
    EXPECT_EQ(Zones()["Inlet"].GetID(), ORXUnicodeString("Z-1"));
}

TEST_F(NamesInLists, AnEmptyEntry_IsFatal)
{
    AddZone("Zone.1", "Inlet");
    AddZone("Zone.2", "Outlet");
    EmptyEntry(m_part, "zones", 1);
    EXPECT_THROW(Zones()["Outlet"], VYRStandalone::NullPointerError);
    EXPECT_THROW(Zones()["1"], VYRStandalone::NullPointerError);
    EXPECT_THROW(Zones()["no such"], VYRStandalone::NullPointerError);
}

TEST_F(NamesInLists, AnEmptyEntryBehindTheDisplayName_IsNotReached)
{
    const ORXISpecObject_var inlet = AddZone("Zone.1", "Inlet");
    AddZone("Zone.2", "Outlet");
    EmptyEntry(m_part, "zones", 2);
    EXPECT_TRUE(StandsAt(Zones()["Inlet"], inlet));
    EXPECT_THROW(Zones()["Zone.1"], VYRStandalone::NullPointerError) << "an internal name does not end the search";
}

// The name of nothing is empty as well.
TEST_F(NamesInLists, TheEmptyTextOnAnEmptyEntry_IsNotFatal)
{
    AddZone("Zone.1", "Inlet");
    AddZone("Zone.2", "Outlet");
    EmptyEntry(m_part, "zones", 2);
    EXPECT_TRUE(IsError(Zones()[""], "Null initialization c"));
}

TEST_F(NamesInLists, OnAScalarAttribute_AreRefused)
{
    for (const char* attribute : {"title", "relaxation", "iterations", "steady", "scheme"})
    {
        EXPECT_TRUE(IsError(At(attribute)["x"], "Get by name on a non-list"));
        EXPECT_TRUE(IsError(At(attribute)["title"], "Get by name on a non-list"));
    }
    EXPECT_TRUE(IsError(Part().Ref("material")["density"], "Get by name on a non-list"));
}

// No blank stands between the name and the text.
TEST_F(NamesInLists, OnAListOfValues_AreRefusedWithTheKeysName)
{
    for (const std::string attribute : {"monitors", "levels", "counts", "switches", "schemes", "codes%d"})
    {
        EXPECT_TRUE(IsError(At(attribute.c_str())["1"], attribute + "Not a list of objects"));
        EXPECT_TRUE(IsError(At(attribute.c_str())[1], attribute + "Not a list of objects"));
    }
}

// ---- a number in a list ---------------------------------------------------------------------------------------------

class Positions : public CursorTest
{
};

TEST_F(Positions, CountFromOneToTheSize)
{
    const ORXISpecObject_var first = AddZone("Zone.1");
    const ORXISpecObject_var second = AddZone("Zone.2");
    const ORXISpecObject_var third = AddZone("Zone.3");
    EXPECT_TRUE(StandsAt(At("zones")[1], first));
    EXPECT_TRUE(StandsAt(At("zones")[2], second));
    EXPECT_TRUE(StandsAt(At("zones").Get(3), third));
    for (const int outside : {0, -1, 4, 5, 2147483647})
        EXPECT_TRUE(IsError(At("zones").Get(outside), "Index out of bounds")) << outside;
}

// The move by key asks the host, this one looks at the size.
TEST_F(Positions, BeyondTheEnd_AnswerOtherThanTheMoveByKey)
{
    for (const char* name : {"Zone.1", "Zone.2", "Zone.3"})
        AddZone(name);
    EXPECT_TRUE(IsError(At("zones").Get(5), "Index out of bounds"));
    EXPECT_TRUE(IsError(Part().Get(KeyOf(m_part, "zones").Pointer(), 5), "Null initialization c"));
}

TEST_F(Positions, OfAnEmptyEntry_AreNullInitialization)
{
    AddZone("Zone.1");
    const ORXISpecObject_var second = AddZone("Zone.2");
    EmptyEntry(m_part, "zones", 1);
    EXPECT_TRUE(IsError(At("zones")[1], "Null initialization c"));
    EXPECT_TRUE(StandsAt(At("zones")[2], second));
}

TEST_F(Positions, OnAnObjectOrAScalar_AreRefused)
{
    EXPECT_TRUE(IsError(Part()[1], "Object is not a list"));
    EXPECT_TRUE(IsError(Part().Get(0), "Object is not a list"));
    EXPECT_TRUE(IsError(At("title")[1], "Get by index on a non-list"));
    EXPECT_TRUE(IsError(Part().Ref("material")[1], "Get by index on a non-list"));
}

// ---- up, and what stands here ---------------------------------------------------------------------------------------

class Places : public CursorTest
{
};

TEST_F(Places, ParentOfAnAttribute_IsItsObject)
{
    EXPECT_TRUE(StandsAt(At("title").GetParent(), m_part));
    EXPECT_TRUE(StandsAt(At("zones").GetParent(), m_part));
    EXPECT_TRUE(StandsAt(Part().Ref("material").GetParent(), m_part));
}

TEST_F(Places, ParentOfAnObject_IsItsOwner)
{
    const ORXISpecObject_var zone = AddZone("Zone.1");
    EXPECT_TRUE(StandsAt(Cursor(zone).GetParent(), m_part));
    EXPECT_TRUE(StandsAt(Cursor(zone)["area"].GetParent().GetParent(), m_part));
    EXPECT_TRUE(StandsAt(Part()["material"].GetParent(), m_part));
}

TEST_F(Places, ParentAtTheTop_IsNullInitialization)
{
    EXPECT_TRUE(IsError(Part().GetParent(), "Null initialization c"));
    const ORXISpecObject_var referred = Create("CursorZone", "Zone.1");
    Put(m_part, "peer", referred);
    EXPECT_TRUE(IsError(Cursor(referred).GetParent(), "Null initialization c")) << "a reference owns nothing";
}

TEST_F(Places, Name_IsThatOfTheAttributeOrTheDisplayNameOfTheObject)
{
    EXPECT_EQ(At("title").GetName(), ORXUnicodeString("title"));
    EXPECT_EQ(At("rate%s%n").GetName(), ORXUnicodeString("rate%s%n"));
    EXPECT_EQ(Part().GetName(), ORXUnicodeString()) << "the internal name is no display name";
    VYRStandalone::SetAlias(m_part, "Main part");
    EXPECT_EQ(Part().GetName(), ORXUnicodeString("Main part"));
    EXPECT_EQ(At("title").GetName(), ORXUnicodeString("title"));
}

TEST_F(Places, Identifier_IsTheObjectsAlsoAtAnAttribute)
{
    EXPECT_EQ(Part().GetID(), ORXUnicodeString());
    EXPECT_EQ(At("title").GetID(), ORXUnicodeString());
    VYRStandalone::SetIdentifier(m_part, "P-1");
    EXPECT_EQ(Part().GetID(), ORXUnicodeString("P-1"));
    EXPECT_EQ(At("title").GetID(), ORXUnicodeString("P-1"));
}

TEST_F(Places, Type_IsThatOfTheObjectAndSaysNothingOfAnAttribute)
{
    const VYRCfdObjectAccess wall = Cursor(Create("CursorWall", "Wall.1"));
    EXPECT_EQ(wall.GetType(), ORXUnicodeString("CursorWall"));
    EXPECT_TRUE(wall.IsSubTypeOf("CursorWall"));
    EXPECT_TRUE(wall.IsSubTypeOf("CursorZone"));
    EXPECT_FALSE(wall.IsSubTypeOf("CursorPart"));
    EXPECT_FALSE(wall.IsSubTypeOf(""));
    EXPECT_EQ(wall["area"].GetType(), ORXUnicodeString());
    EXPECT_FALSE(wall["area"].IsSubTypeOf("CursorWall"));
    EXPECT_FALSE(wall["area"].IsSubTypeOf("Real"));
}
} // namespace
