/**
 * @file
 * A model that is saved and loaded again is the same in memory, whatever it holds.
 */

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ExactDump.h"
#include "ModelDump.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXTypeCode.h"
#include "RoundTrip.h"
#include "TemporaryFolder.h"
#include "TestCatalog.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::Model;

class RoundTrips : public testing::Test
{
protected:
    RoundTrips() { TestCatalog::Declare(); }

    ORXISpecObject_var Create(const char* iType, const ORXUnicodeString& iName = "O")
    {
        return m_model.Create(iType, iName);
    }

    Model m_model;
};

TEST_F(RoundTrips, ExactDump_TellsWhatANameDoesNot)
{
    const ORXISpecObject_var first = Create("Everything");
    Create("Part");
    const ORXISpecObject_var last = Create("Part");
    WriteObjectAt(first, "other", last);
    const std::string dump = ExactDump(m_model);
    EXPECT_NE(dump.find("#0 \"Everything\" \"O\" owner null startup [Everything]\n"
                        "  \"real\" 7/0 = unset\n"),
              std::string::npos)
        << dump;
    EXPECT_NE(dump.find("  \"other\" 23/0 = #3\n"), std::string::npos) << "of the two of one name the second: " << dump;
    WriteText(first, "string", "a\n\"");
    WriteReal(first, "real", 0.1);
    EXPECT_NE(ExactDump(m_model).find("\"string\" 18/0 = \"a\\x0A\\x22\"\n"), std::string::npos);
    EXPECT_NE(ExactDump(m_model).find("\"real\" 7/0 = 0x1.999999999999ap-4\n"), std::string::npos);
}

TEST_F(RoundTrips, ValuesOfEveryKind_UnsetEmptyAndWritten)
{
    const ORXISpecObject_var object = Create("Rich");
    ExpectRoundTrip(m_model);
    WriteReal(object, "real", -0.0);
    WriteInteger(object, "integer", std::numeric_limits<int>::min());
    WriteBoolean(object, "boolean", false);
    WriteInteger(object, "enumeration", 2);
    WriteText(object, "string", "");
    WriteReal(object, "length", 0.1 + 0.2);
    WriteReal(object, "pressure", 101325.0);
    ExpectRoundTrip(m_model);
    for (const char* name : {"real", "integer", "boolean", "enumeration", "string", "preset", "length", "pressure"})
        Empty(object, name);
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, RealsWithUnits_AreKeptInSiUnits)
{
    const Model model = Model::Parse(TestCatalog::Model(R"({"type": "Rich", "name": "R", "values": {
        "length": "3 km", "lengths": ["1 in", 2, "-5 um"], "pressure": "1 bar"}})"),
                                     "test");
    EXPECT_EQ(DumpOf(model, "length"), "R.length = 3000 m\n");
    EXPECT_EQ(DumpOf(model, "pressure"), "R.pressure = 1e+05 Pa\n");
    const std::string text = model.Text();
    EXPECT_NE(text.find("\"lengths\": [0.0254, 2.0, -5e-06],\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"length\": 3000.0,\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"pressure\": 1e+05\n"), std::string::npos) << text;
    ExpectRoundTrip(model);
}

TEST_F(RoundTrips, OptionalAttributes_AreThereOnlyWhereTheyHaveBeenAdded)
{
    const ORXISpecObject_var bare = Create("Rich", "bare");
    const ORXISpecObject_var full = Create("Rich", "full");
    ASSERT_TRUE(Add(full, "mayReal", tk_double, 1));
    ASSERT_TRUE(Add(full, "mayLength", tk_double));
    ASSERT_TRUE(Add(full, "mayInteger", tk_integer));
    ASSERT_TRUE(Add(full, "mayBoolean", tk_boolean));
    ASSERT_TRUE(Add(full, "mayEnumeration", tk_enum));
    ASSERT_TRUE(Add(full, "mayString", tk_string));
    ASSERT_TRUE(Add(full, "mayReference", tk_specobject));
    ASSERT_TRUE(Add(full, "mayStrings", tk_list));
    ASSERT_TRUE(Add(full, "mayOthers", tk_list));
    ExpectRoundTrip(m_model);
    WriteReal(full, "mayLength", 2.5);
    WriteInteger(full, "mayInteger", 0);
    WriteBoolean(full, "mayBoolean", true);
    WriteInteger(full, "mayEnumeration", 1);
    Empty(full, "mayReal");
    WriteObjectAt(full, "mayReference", bare);
    for (const ORXISpecObject_var& each : {bare, ORXISpecObject_var(), full, bare})
        Append(full, "mayOthers", each);
    ASSERT_TRUE(Add(full, "own", tk_string));
    ExpectRoundTrip(m_model);

    const Model again = Model::Parse(m_model.Text(), "saved");
    const ORXISpecAttrAccess_var access = again.Find("bare");
    EXPECT_EQ(access->HasAttribute(KeyOf(again.Find("bare"), "mayReal")), ORXFalse);
    EXPECT_EQ(access->GetDouble(KeyOf(again.Find("bare"), "mayReal")), 0.0);
}

TEST_F(RoundTrips, AddedAttributesOfEveryKind_KeepOrderFlagAndValue)
{
    const ORXISpecObject_var object = Create("Part");
    int flag = -2;
    for (const char* state : {"unset", "written"})
        for (const int code : {tk_string, tk_double, tk_specobject, tk_boolean, tk_component, tk_integer, tk_enum})
            ASSERT_TRUE(Add(object, (state + std::to_string(code)).c_str(), code, flag++));
    WriteReal(object, "written7", std::numeric_limits<double>::denorm_min());
    WriteBoolean(object, "written8", false);
    WriteText(object, "written18", "");
    WriteInteger(object, "written28", -1);
    const ORXISpecObject_var component = Create("Everything", "inside the added");
    WriteObjectAt(object, "written26", component);
    ASSERT_TRUE(Add(component, "deeper", tk_component));
    WriteObjectAt(component, "deeper", VYRStandalone::MakeTableColumn());
    WriteObjectAt(object, "written23", ObjectAt(component, "deeper"));
    WriteObjectAt(component, "other", object);
    ExpectRoundTrip(m_model);
    const std::string text = m_model.Text();
    EXPECT_LT(text.find("\"unset18\""), text.find("\"unset7\"")) << "in the order in which they were added";
    EXPECT_NE(text.find("\"flag\": -2,"), std::string::npos) << text;
    EXPECT_NE(text.find("\"flag\": 11,"), std::string::npos) << text;
}

TEST_F(RoundTrips, AddedEnumerations_KeepTheirTexts)
{
    const Model model = Model::Parse(TestCatalog::Model(R"({"type": "Part", "name": "P", "added": {
        "grade": {"kind": "enumeration", "values": ["fine", "coarse"], "value": "coarse"},
        "none": {"kind": "enumeration", "values": ["fine"]}}})"),
                                     "test");
    EXPECT_EQ(DumpOf(model, "grade"), "P.grade (added) = coarse\n");
    ExpectRoundTrip(model);
}

TEST_F(RoundTrips, NamesOfAddedAttributes_MayHoldAnything)
{
    const ORXISpecObject_var object = Create("Part");
    for (const char* name :
         {"a b", "a/b", "~", "size/extra_isset", "\"", "\\", "\xC3\xA4\xF0\x9F\x8C\x8A", "ref", "\n"})
        ASSERT_TRUE(Add(object, name, tk_string)) << name;
    ASSERT_TRUE(Add(object, ORXUnicodeString("z\0ero", 5), tk_string));
    EXPECT_FALSE(Add(object, "", tk_string));
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, ListsOfEverything_WithEmptyEntries)
{
    // No interface of the host makes a list of numbers longer, a document does.
    m_model = Model::Parse(TestCatalog::Model(R"({"type": "Rich", "name": "R", "values": {
        "reals": [0, 1e-300, -0.0], "lengths": [1, 2, 3], "integers": [7, -7, 0], "booleans": [true, true, false],
        "enumerations": ["low", "low", "high"]}})"),
                           "test");
    ExpectRoundTrip(m_model);
    const ORXISpecObject_var object = m_model.Find("R");
    const ORXISpecAttrAccess_var access = object;
    ORXListValORXUnicodeString texts;
    for (const char* text : {"", "b", "", "b", "a, c"})
        texts.Append(text);
    EXPECT_EQ(access->SetStringList(KeyOf(object, "strings"), texts), S_OK);
    const auto fill = [&](const char* iName, auto&& iSet) {
        const ORXISpecAttrKey_var key = KeyOf(object, iName);
        for (int i = 1; i <= 3; ++i)
            EXPECT_EQ(iSet(key, i), S_OK) << iName;
    };
    fill("reals", [&](ORXISpecAttrKey* iKey, int i) { return access->SetDouble(iKey, -0.1 * i, i); });
    fill("lengths", [&](ORXISpecAttrKey* iKey, int i) { return access->SetDouble(iKey, 0.001 * i, i); });
    fill("integers", [&](ORXISpecAttrKey* iKey, int i) { return access->SetInteger(iKey, -i, i); });
    fill("booleans", [&](ORXISpecAttrKey* iKey, int i) { return access->SetBoolean(iKey, i == 2 ? 1 : 0, i); });
    fill("enumerations", [&](ORXISpecAttrKey* iKey, int i) { return access->SetInteger(iKey, 1 + i % 2, i); });
    for (int i = 0; i < 2; ++i)
    {
        Append(object, "others", NULL_var);
        Append(object, "others", object);
        Append(object, "parts", NULL_var);
        Append(object, "parts", VYRStandalone::MakeTableColumn());
        Append(object, "parts", Create("SubPart", "same name"));
    }
    ExpectRoundTrip(m_model);
    for (const char* list : {"reals", "lengths", "integers", "booleans", "enumerations", "strings", "others", "parts"})
        EXPECT_EQ(access->RemoveAll(KeyOf(object, list)), S_OK);
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, TopLevelObjects_KeepTheirOrder)
{
    for (const char* name : {"c", "a", "", "b", "a"})
        Create("Part", name);
    WriteObjectAt(Create("Part", "owner"), "inside", m_model.Find("b"));
    const Model again = Model::Parse(m_model.Text(), "saved");
    std::vector<std::string> names;
    for (const ORXISpecObject_var& object : again.Objects())
        names.emplace_back(object->GetName().View());
    EXPECT_EQ(names, (std::vector<std::string>{"c", "a", "", "a", "owner"}));
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, References_InEveryForm)
{
    const ORXISpecObject_var object = Create("Rich", "from");
    const ORXISpecObject_var target = Create("Part", "to");
    const ORXISpecObject_var column = VYRStandalone::MakeTableColumn();
    WriteObjectAt(target, "inside", column);
    const std::vector<ORXISpecObject_var> targets{object, target, column, ObjectAt(object, "part"), NULL_var};
    for (const ORXISpecObject_var& each : targets)
    {
        WriteObjectAt(object, "other", each);
        Append(object, "others", each);
        Append(object, "others", each);
        ExpectRoundTrip(m_model);
    }
    // What looks like a number or an identifier in a name does not stand in the way of numbers.
    VYRStandalone::SetIdentifier(target, "1");
    VYRStandalone::SetAlias(column, "2");
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, AliasesAndIdentifiers_OnObjectsOfEveryPlace)
{
    const ORXISpecObject_var object = Create("Everything");
    WriteObjectAt(object, "anything", VYRStandalone::MakeTableColumn());
    Append(object, "parts", Create("Part"));
    for (const ORXISpecObject_var& each :
         {object, ObjectAt(object, "part"), ObjectAt(object, "anything"), ObjectAt(object, "parts", 1)})
    {
        VYRStandalone::SetAlias(each, "the same");
        ExpectRoundTrip(m_model);
        VYRStandalone::SetIdentifier(each, ORXUnicodeString("\xF0\x9F\x8C\x8A\0\n\"", 7));
        ExpectRoundTrip(m_model);
        VYRStandalone::SetAlias(each, "");
        ExpectRoundTrip(m_model);
    }
}

TEST_F(RoundTrips, TableColumns_KeepRowsBitByBit)
{
    const ORXISpecObject_var object = Create("Everything");
    const ORXISpecObject_var component = VYRStandalone::MakeTableColumn();
    WriteObjectAt(object, "anything", component);
    ExpectRoundTrip(m_model);
    const ORXISimBCDataTableColumn_var column = component;
    int row = 0;
    for (const double value : {-0.0, 0.1 + 0.2, 5e-324, -std::numeric_limits<double>::max(), 1e22, 9007199254740993.0})
        EXPECT_EQ(column->SetValue(++row, value), S_OK);
    ASSERT_TRUE(Add(component, "heading", tk_string));
    WriteText(component, "heading", "T");
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, Components_ThatCameWithTheirOwnerAreReplacedRenamedOrTakenOut)
{
    const ORXISpecObject_var object = Create("Everything", "kept");
    WriteReal(ObjectAt(object, "part"), "size", 9.0);
    Empty(ObjectAt(object, "part"), "label");
    WriteObjectAt(Create("Everything", "replaced"), "part", Create("SubPart", "part"));
    WriteObjectAt(Create("Everything", "column"), "part", VYRStandalone::MakeTableColumn());
    WriteObjectAt(Create("Everything", "none"), "part", NULL_var);
    const ORXISpecObject_var deep = Create("Part", "deep");
    WriteObjectAt(Create("Everything", "own"), "anything", deep);
    WriteObjectAt(deep, "inside", Create("Everything", "deeper"));
    WriteObjectAt(ObjectAt(ObjectAt(deep, "inside"), "part"), "inside", Create("Rich", "deepest"));
    ExpectRoundTrip(m_model);
}

/// The document tells what stands in a place, and not whether it was there from the beginning: so one of the same type
/// is laid over the one that came with the owner, and follows the owner's start-up from then on.
TEST_F(RoundTrips, AComponentPutInPlaceOfOneOfItsType_HasTheOwnersStartupAfterwards)
{
    const ORXISpecObject_var object = Create("Everything");
    WriteObjectAt(object, "part", Create("Part", "part"));
    const auto startupOf = [](const Model& iModel) {
        const ORXISpecObject_var part = ObjectAt(iModel.Find("O"), "part");
        return VYRStandalone::PathOf(ORXISpecObject_var::Adopt(part->GetStartup()));
    };
    EXPECT_EQ(startupOf(m_model), "[Part]");
    const Model again = Model::Parse(m_model.Text(), "saved");
    EXPECT_EQ(startupOf(again), "[Everything]/part");
    EXPECT_EQ(Dump(again), Dump(m_model)) << "all else is the same";
    ExpectRoundTrip(again);
}

TEST_F(RoundTrips, AChoiceWithData_FlagsAndRecords)
{
    const ORXISpecObject_var choice = Create("VYRCfdChoice", "Choice");
    ExpectRoundTrip(m_model);
    const ORXISpecAttrAccess_var access = choice;
    ORXListValORXUnicodeString choices;
    choices.Append("none");
    choices.Append("part");
    EXPECT_EQ(access->SetStringList(KeyOf(choice, "choices"), choices), S_OK);
    WriteText(choice, "value", "part");
    WriteObjectAt(choice, "Data", Create("Part", "Data"));
    const ORXISpecObject_var management = ObjectAt(choice, "defaultManagement");
    ASSERT_NE(management, NULL_var);
    ASSERT_TRUE(Add(management, "value_isset", tk_boolean));
    ASSERT_TRUE(Add(management, "value_isauto", tk_boolean));
    WriteBoolean(management, "value_isset", true);
    for (const char* path : {"value", "Data/size", "value"})
    {
        const ORXISpecObject_var record = Create("VYRCfdConfigItem", "ConfigItem");
        WriteText(record, "path", path);
        Append(management, "configuration", record);
    }
    Append(management, "configuration", NULL_var);
    Create("VYRCfdConfigItem", "ConfigItem");
    ExpectRoundTrip(m_model);
}

TEST_F(RoundTrips, ASavedModel_DoesNotChangeWithTheDefaultsOfItsTypes)
{
    // All that a type may preset is taken away or changed: the loaded model must not take it up again.
    const ORXISpecObject_var object = Create("Rich");
    const ORXISpecAttrAccess_var access = object;
    Empty(object, "preset");
    Empty(object, "length");
    EXPECT_EQ(access->RemoveAll(KeyOf(object, "reals")), S_OK);
    EXPECT_EQ(access->RemoveAll(KeyOf(object, "lengths")), S_OK);
    Empty(ObjectAt(object, "part"), "size");
    Empty(ObjectAt(object, "part"), "label");
    for (const char* name : {"mayReal", "mayString"})
    {
        ASSERT_TRUE(Add(object, name, name == std::string("mayReal") ? tk_double : tk_string));
        Empty(object, name);
    }
    ASSERT_TRUE(Add(object, "mayStrings", tk_list));
    EXPECT_EQ(access->RemoveAll(KeyOf(object, "mayStrings")), S_OK);
    ExpectRoundTrip(m_model);
    const Model again = Model::Parse(m_model.Text(), "saved");
    for (const char* name : {"preset", "length", "mayReal", "mayString"})
        EXPECT_NE(DumpOf(again, name).find(" = (unset)\n"), std::string::npos) << name;
    for (const char* name : {"reals", "lengths", "mayStrings"})
        EXPECT_NE(DumpOf(again, name).find(" has 0\n"), std::string::npos) << name;
}

TEST_F(RoundTrips, SavingTheSameModelFromFile_GivesTheSameBytes)
{
    const TemporaryFolder folder;
    const ORXISpecObject_var object = Create("Rich");
    WriteObjectAt(object, "other", ObjectAt(object, "part"));
    VYRStandalone::SetAlias(object, "\xC3\xA4");
    m_model.Save(folder.Path("one.json"));
    const Model loaded = Model::Load(folder.Path("one.json"));
    EXPECT_EQ(ExactDump(loaded), ExactDump(m_model));
    loaded.Save(folder.Path("two.json"));
    EXPECT_EQ(folder.Read("two.json"), folder.Read("one.json"));
}
} // namespace
