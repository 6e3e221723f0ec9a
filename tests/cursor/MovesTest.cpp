/**
 * @file
 * The moves from an object to an attribute by key or by attribute name, and the plain strings.
 */

#include "CursorTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class Moves : public CursorTest
{
protected:
    void SetUp() override
    {
        CursorTest::SetUp();
        m_inlet = AddZone("Zone.1");
        m_outlet = AddZone("Zone.2");
        m_wall = AddZone("Zone.3", "", "CursorWall");
    }

    ORXISpecAttrKey* Key(const char* iName) { return (m_held = KeyOf(m_part, iName)).Pointer(); }

    ORXISpecObject_var m_inlet;
    ORXISpecObject_var m_outlet;
    ORXISpecObject_var m_wall;
    ORXISpecAttrKey_var m_held;
};

/// A move to an attribute, by key and by its name, which answer alike.
struct MoveCase
{
    const char* attribute;
    int index;
    /// "object" and "attribute" for where the cursor stands; otherwise the error text.
    const char* answer;
};

constexpr const char* Attribute = "attribute";

constexpr MoveCase Cases[] = {
    // A scalar value: the cursor stays at the attribute.
    {"relaxation", 0, Attribute},
    {"iterations", 0, Attribute},
    {"steady", 0, Attribute},
    {"scheme", 0, Attribute},
    {"title", 0, Attribute},
    {"title", -1, Attribute},
    {"title", 1, "title not a list"},
    {"title", 2, "title not a list"},
    {"rate%s%n", 1, "rate%s%n not a list"},
    // An object value is followed, an empty one is an error.
    {"solver", 0, "Null initialization c"},
    {"peer", 0, "Null initialization c"},
    {"material", 1, "material not a list"},
    {"peer", 1, "peer not a list"},
    // A list: index 0 is the list itself, and so is a negative one.
    {"zones", 0, Attribute},
    {"zones", -1, Attribute},
    {"zones", -5, Attribute},
    {"related", 0, Attribute},
    {"monitors", 0, Attribute},
    {"levels", -1, Attribute},
    // Only objects can be stepped into.
    {"monitors", 1, "monitors not an object"},
    {"levels", 1, "levels not an object"},
    {"counts", 99, "counts not an object"},
    {"codes%d", 1, "codes%d not an object"},
    // No test of the bounds: the host has nothing there.
    {"zones", 4, "Null initialization c"},
    {"zones", 5, "Null initialization c"},
    {"related", 1, "Null initialization c"},
};

TEST_F(Moves, ByKeyAndByAttributeName_AnswerAlike)
{
    for (const MoveCase& row : Cases)
    {
        SCOPED_TRACE(std::string(row.attribute) + ", " + std::to_string(row.index));
        const VYRCfdObjectAccess byKey = Part().Get(Key(row.attribute), row.index);
        const VYRCfdObjectAccess byName = Part().Get(row.attribute, row.index);
        if (row.answer == Attribute)
        {
            EXPECT_TRUE(StandsAt(byKey, m_part, row.attribute));
            EXPECT_TRUE(StandsAt(byName, m_part, row.attribute));
        }
        else
        {
            EXPECT_TRUE(IsError(byKey, row.answer));
            EXPECT_TRUE(IsError(byName, row.answer));
        }
    }
}

TEST_F(Moves, ToAnObjectValue_StandsAtTheObject)
{
    const ORXISpecObject_var material = ORXISpecObject_var::Adopt(AccessOf(m_part)->GetSpecObject(Key("material"), 0));
    ASSERT_FALSE(!material);
    Put(m_part, "peer", m_inlet);
    for (const int index : {0, -1})
    {
        EXPECT_TRUE(StandsAt(Part().Get(Key("material"), index), material));
        EXPECT_TRUE(StandsAt(Part().Get("material", index), material));
        EXPECT_TRUE(StandsAt(Part().Get(Key("peer"), index), m_inlet));
    }
    EXPECT_TRUE(StandsAt(Part()[Key("material")], material));
}

TEST_F(Moves, ToAnEntryOfAListOfObjects_CountsFromOne)
{
    EXPECT_TRUE(StandsAt(Part().Get(Key("zones"), 1), m_inlet));
    EXPECT_TRUE(StandsAt(Part().Get("zones", 2), m_outlet));
    EXPECT_TRUE(StandsAt(Part().Get("zones", 3), m_wall));
    Append(m_part, "related", m_outlet);
    EXPECT_TRUE(StandsAt(Part().Get("related", 1), m_outlet));
}

TEST_F(Moves, ToAnEmptyEntry_IsNullInitialization)
{
    EmptyEntry(m_part, "zones", 2);
    EXPECT_TRUE(IsError(Part().Get("zones", 2), "Null initialization c"));
    EXPECT_TRUE(StandsAt(Part().Get("zones", 3), m_wall)) << "the entry keeps its place";
}

TEST_F(Moves, ByANullKey_IsNullKey)
{
    ORXISpecAttrKey* const none = nullptr;
    EXPECT_TRUE(IsError(Part().Get(none, 0), "Null key"));
    EXPECT_TRUE(IsError(Part().Get(none, 1), "Null key"));
    EXPECT_TRUE(IsError(Part()[none], "Null key"));
    EXPECT_TRUE(IsError(Part().Ref(none), "Null key"));
}

TEST_F(Moves, ByAKeyFunctionThatGivesNone_IsNullKey)
{
    const VYRCfdKeyFunction none = [](ORXISpecAttrAccess*) -> ORXISpecAttrKey* { return nullptr; };
    EXPECT_TRUE(IsError(Part().Get(none, 0), "Null key"));
    EXPECT_TRUE(IsError(Part()[none], "Null key"));
    EXPECT_TRUE(IsError(Part().Ref(none), "Null key"));
}

/// Set by the key function below, which has no other way to tell.
ORXISpecAttrAccess* asked = nullptr;

TEST_F(Moves, ByAKeyFunction_AsksItWithTheCursorsOwnObject)
{
    static ORXISpecAttrKey_var key;
    key = KeyOf(m_part, "zones");
    const VYRCfdKeyFunction function = [](ORXISpecAttrAccess* iAccess) {
        asked = iAccess;
        return key.Pointer();
    };
    asked = nullptr;
    EXPECT_TRUE(StandsAt(Part().Get(function, 2), m_outlet));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(asked, m_part));
    EXPECT_TRUE(StandsAt(Part().Get(function, 0), m_part, "zones"));
    EXPECT_TRUE(StandsAt(Part()[function], m_part, "zones"));

    asked = nullptr;
    EXPECT_TRUE(IsError(Broken()[function], BrokenText));
    EXPECT_TRUE(IsError(Empty()[function], "Null object"));
    EXPECT_EQ(asked, nullptr) << "a cursor without an object asks nobody";
    key = NULL_var;
}

TEST_F(Moves, ByAGeneratedKey_ReachTheAttributesOfAChoice)
{
    const ORXISpecObject_var choice = Create("VYRCfdChoice", "Choice.1");
    EXPECT_TRUE(StandsAt(Cursor(choice)[VYRCFDBASE(Choice, value)], choice, "value"));
    EXPECT_TRUE(StandsAt(Cursor(choice).Get(VYRCFDBASE(Choice, choices), 0), choice, "choices"));
    EXPECT_TRUE(IsError(Cursor(choice).Get(VYRCFDBASE(Choice, choices), 1), "choices not an object"));
    EXPECT_TRUE(IsError(Cursor(choice).Get(VYRCFDBASE(Choice, value), 1), "value not a list"));
}

TEST_F(Moves, ByAnUnknownAttributeName_NameIt)
{
    EXPECT_TRUE(IsError(Part().Get("no such", 0), "No attribute no such"));
    EXPECT_TRUE(IsError(Part().Get("", 0), "No attribute "));
    EXPECT_TRUE(IsError(Part().Get("Title", 0), "No attribute Title")) << "names are exact";
}

/// The form with an index takes an attribute's name and nothing else.
TEST_F(Moves, ByAttributeNameWithIndex_KnowNoOtherMeaningOfAName)
{
    const ORXISpecObject_var assembly = Create("CursorAssembly", "Assembly.1");
    const ORXISpecObject_var son = Create("CursorZone", "Son.1");
    Append(assembly, "SonsList", son);
    EXPECT_TRUE(StandsAt(Cursor(assembly).Get("Son.1"), son));
    EXPECT_TRUE(IsError(Cursor(assembly).Get("Son.1", 0), "No attribute Son.1"));
    EXPECT_TRUE(IsError(At("zones").Get("Zone.1", 0), "No attribute Zone.1"));
}

// A key leads from the object, wherever on it the cursor stands.
TEST_F(Moves, OnAnAttributeCursor_GoToTheSiblingAttribute)
{
    const VYRCfdObjectAccess title = At("title");
    EXPECT_TRUE(StandsAt(title.Get(Key("note"), 0), m_part, "note"));
    EXPECT_TRUE(StandsAt(title[Key("relaxation")], m_part, "relaxation"));
    EXPECT_TRUE(StandsAt(title.Get("zones", 0), m_part, "zones"));
    EXPECT_TRUE(StandsAt(title.Get("zones", 1), m_inlet));
    EXPECT_TRUE(StandsAt(At("zones").Ref(Key("material")), m_part, "material"));
    EXPECT_TRUE(StandsAt(At("zones").Ref("title"), m_part, "title"));
    EXPECT_TRUE(StandsAt(title, m_part, "title")) << "the cursor itself stays";
}

TEST_F(Moves, Ref_StaysAtTheAttribute)
{
    for (const char* attribute : {"relaxation", "title", "scheme", "material", "solver", "peer"})
    {
        EXPECT_TRUE(StandsAt(Part().Ref(attribute), m_part, attribute));
        EXPECT_TRUE(StandsAt(Part().Ref(Key(attribute)), m_part, attribute));
    }
    const ORXISpecObject_var choice = Create("VYRCfdChoice", "Choice.1");
    EXPECT_TRUE(StandsAt(Cursor(choice).Ref(VYRCFDBASE(Choice, Data)), choice, "Data"));
}

TEST_F(Moves, RefAndBrackets_PartAtAnObjectValue)
{
    const ORXISpecObject_var material = ORXISpecObject_var::Adopt(AccessOf(m_part)->GetSpecObject(Key("material"), 0));
    EXPECT_TRUE(StandsAt(Part()[Key("material")], material));
    EXPECT_TRUE(StandsAt(Part().Ref(Key("material")), m_part, "material"));
    EXPECT_TRUE(ORXBaseUnknown_var::equal_to(Part().Ref(Key("material")).Self(), m_part));
}

TEST_F(Moves, Ref_OfAList_IsRefused)
{
    EXPECT_TRUE(IsError(Part().Ref("zones"), "zones is a list"));
    EXPECT_TRUE(IsError(Part().Ref(Key("monitors")), "monitors is a list"));
    EXPECT_TRUE(IsError(Part().Ref("codes%d"), "codes%d is a list"));
    const ORXISpecObject_var choice = Create("VYRCfdChoice", "Choice.1");
    EXPECT_TRUE(IsError(Cursor(choice).Ref(VYRCFDBASE(Choice, choices)), "choices is a list"));
}

// Unlike the other moves by name.
TEST_F(Moves, Ref_OfAnUnknownName_IsNullKey)
{
    EXPECT_TRUE(IsError(Part().Ref("no such"), "Null key"));
    EXPECT_TRUE(IsError(Part().Ref(""), "Null key"));
}

// ---- plain strings --------------------------------------------------------------------------------------------------

class PlainStrings : public CursorTest
{
};

TEST_F(PlainStrings, AreReadAndWritten)
{
    ORXUnicodeString text;
    EXPECT_EQ(At("title").GetPlainString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("cavity"));
    EXPECT_EQ(At("title").SetPlainString("100%s \xC3\xA9"), S_OK);
    EXPECT_EQ(At("title").GetPlainString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("100%s \xC3\xA9"));
    EXPECT_EQ(At("title").SetPlainString(""), S_OK);
    EXPECT_EQ(At("title").GetPlainString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString());
}

TEST_F(PlainStrings, OfAnUnsetString_AreEmpty)
{
    ORXUnicodeString text("before");
    EXPECT_EQ(At("note").GetPlainString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString());
}

TEST_F(PlainStrings, OnAnObjectCursor_ReportTheMissingKey)
{
    ORXUnicodeString text("before");
    EXPECT_EQ(Part().GetPlainString(text), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey", In("GetPlainString"))}));
    EXPECT_EQ(Part().SetPlainString("x"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("_spKey", In("SetPlainString"))}));
    EXPECT_EQ(text, ORXUnicodeString("before"));
}

// The reader makes an error of it, the writer an assertion.
TEST_F(PlainStrings, OfAnythingButAString_AreAnErrorToReadAndAnAssertionToWrite)
{
    for (const char* attribute : {"relaxation", "iterations", "steady", "scheme", "levels", "monitors", "zones"})
    {
        ORXUnicodeString text("before");
        EXPECT_EQ(At(attribute).GetPlainString(text), E_FAIL);
        EXPECT_EQ(text, ORXUnicodeString("before"));
        EXPECT_EQ(Reported(), (Records{Error("Not a string", In("GetPlainString"))})) << attribute;
        EXPECT_EQ(At(attribute).SetPlainString("1"), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Assertion("_spKey->GetType() == tk_string", In("SetPlainString"))}))
            << attribute;
    }
}

TEST_F(PlainStrings, NeedNoParameter)
{
    MakeFail("GetParm", "title");
    ORXUnicodeString text;
    EXPECT_EQ(At("title").GetPlainString(text), S_OK);
    EXPECT_EQ(At("title").SetPlainString("x"), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 0);
}

TEST_F(PlainStrings, StatusOfTheHostsWrite_IsHandedOnWithoutAReport)
{
    MakeFail("SetString", "title", E_NOTIMPL);
    EXPECT_EQ(At("title").SetPlainString("x"), E_NOTIMPL);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    ORXUnicodeString text;
    EXPECT_EQ(At("title").GetPlainString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("cavity"));
}
} // namespace
