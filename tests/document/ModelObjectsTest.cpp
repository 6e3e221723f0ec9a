/**
 * @file
 * Objects in model documents: components, references, names, added attributes.
 */

#include <string>

#include <gtest/gtest.h>

#include "ModelDump.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXISpecAttrAccess.h"
#include "ORXISpecAttribute.h"
#include "TestCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::Model;

class ModelObjects : public testing::Test
{
protected:
    ModelObjects() { TestCatalog::Declare(); }

    static Model Parse(const std::string& iObjects) { return Model::Parse(TestCatalog::Model(iObjects), "test"); }

    /// The same model after saving and loading, which must be the same twice.
    static void ExpectRoundTrip(const Model& iModel)
    {
        const std::string text = iModel.Text();
        const Model again = Model::Parse(text, "saved");
        EXPECT_EQ(Dump(again), Dump(iModel)) << text;
        EXPECT_EQ(again.Text(), text);
    }

    static ORXISpecAttrKey_var Key(const ORXISpecObject_var& iObject, const char* iName)
    {
        const ORXISpecAttrAccess_var access = iObject;
        return ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName));
    }

    static ORXISpecObject_var ValueOf(const ORXISpecObject_var& iObject, const char* iName, int iIndex = 0)
    {
        const ORXISpecAttrAccess_var access = iObject;
        return ORXISpecObject_var::Adopt(access->GetSpecObject(Key(iObject, iName), iIndex));
    }

    static void Set(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue)
    {
        const ORXISpecAttrAccess_var access = iObject;
        EXPECT_EQ(access->SetSpecObject(Key(iObject, iName), iValue), S_OK);
    }
};

TEST_F(ModelObjects, Save_WritesEveryAttribute)
{
    const Model model = Parse(R"({"type": "SubPart", "name": "P", "alias": "the part", "identifier": "P-1"})");
    EXPECT_EQ(model.Text(), R"({
  "model": 1,
  "catalogs": ["DocumentTest"],
  "objects": [
    {
      "type": "SubPart",
      "name": "P",
      "alias": "the part",
      "identifier": "P-1",
      "values": {
        "size": 2.5,
        "label": null,
        "inside": null,
        "extra": 3
      }
    }
  ]
}
)");
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, EmptyModel_IsSavedAndLoaded)
{
    EXPECT_EQ(Model().Text(), "{\n  \"model\": 1,\n  \"catalogs\": [],\n  \"objects\": []\n}\n");
    ExpectRoundTrip(Model());
    ExpectRoundTrip(Parse(""));
}

TEST_F(ModelObjects, Catalogs_AreThoseNamedAndThoseUsed)
{
    Model made;
    made.Create("Part", "P");
    EXPECT_NE(made.Text().find("\"catalogs\": [\"DocumentTest\"]"), std::string::npos);
    const Model named = Model::Parse(R"({"model": 1, "catalogs": ["VYRCfdBase"], "objects": [
        {"type": "Part", "name": "P"}]})",
                                     "test");
    EXPECT_NE(named.Text().find("\"catalogs\": [\"VYRCfdBase\", \"DocumentTest\"]"), std::string::npos);
    ExpectRoundTrip(named);
}

TEST_F(ModelObjects, Component_OfTheSameType_IsLaidOverTheOneThatCameWithTheOwner)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E", "values": {"part": {"values": {"size": 7}}}})");
    EXPECT_EQ(DumpOf(model, "part"), "E.part -> E/part\n"
                                     "E/part [Part] name=part owner=E\n"
                                     "E/part.size = 7\n"
                                     "E/part.label = of the owner\n"
                                     "E/part.inside -> (null)\n");
    ExpectRoundTrip(model);
    // Its start-up is the component of the owner's start-up, as for one that was not in the document.
    const ORXISpecObject_var part = ValueOf(model.Find("E"), "part");
    const ORXISpecObject_var startup = ORXISpecObject_var::Adopt(part->GetStartup());
    EXPECT_EQ(VYRStandalone::PathOf(startup), "[Everything]/part");
}

TEST_F(ModelObjects, Component_WithAnotherName_KeepsTheStartupOfTheOneThatCameWithTheOwner)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E", "values": {"part": {"name": "other"}}})");
    const ORXISpecObject_var part = ValueOf(model.Find("E"), "part");
    EXPECT_STREQ(part->GetName(), "other");
    EXPECT_EQ(VYRStandalone::PathOf(ORXISpecObject_var::Adopt(part->GetStartup())), "[Everything]/part");
    EXPECT_NE(DumpOf(model, "part").find("label = of the owner"), std::string::npos);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, Component_OfAnotherType_TakesThePlace)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E",
                                  "values": {"part": {"type": "SubPart", "values": {"size": 7}}}})");
    EXPECT_EQ(DumpOf(model, "part"), "E.part -> E/part\n"
                                     "E/part [SubPart] name=part owner=E\n"
                                     "E/part.size = 7\n"
                                     "E/part.label = (unset)\n"
                                     "E/part.inside -> (null)\n"
                                     "E/part.extra = 3\n");
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, Component_Null_IsNone)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E", "values": {"part": null}})");
    EXPECT_EQ(DumpOf(model, "part"), "E.part -> (null)\n");
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, ComponentsInsideComponents_AreKept)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E", "values": {
        "anything": {"type": "Part", "name": "outer", "alias": "Outer", "values": {
            "inside": {"type": "Everything", "values": {"part": {"values": {"label": "deep"}}}}}}}})");
    EXPECT_NE(Dump(model).find("E/anything/inside/part.label = deep\n"), std::string::npos) << Dump(model);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, ListOfComponents_KeepsOrderAndEmptyEntries)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E", "values": {"parts": [
        {"type": "Part", "name": "b"}, null, {"type": "SubPart", "name": "a"}, {"column": [1.5, 2.5]}]}})");
    const ORXISpecObject_var object = model.Find("E");
    EXPECT_STREQ(ValueOf(object, "parts", 1)->GetName(), "b");
    EXPECT_EQ(ValueOf(object, "parts", 2), NULL_var);
    EXPECT_STREQ(ValueOf(object, "parts", 3)->GetType(), "SubPart");
    EXPECT_EQ(ORXISpecObject_var::Adopt(ValueOf(object, "parts", 3)->GetOwner()), object);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, ComponentThatStandsTwiceInItsList_IsReferredToTheSecondTime)
{
    const Model model = Parse(R"({"type": "Everything", "name": "E", "values": {"parts": [
        {"ref": 4}, {"type": "Part", "name": "p", "id": 4}, {"ref": 4}]}})");
    const ORXISpecObject_var object = model.Find("E");
    EXPECT_EQ(ValueOf(object, "parts", 1), ValueOf(object, "parts", 2));
    EXPECT_EQ(ValueOf(object, "parts", 3), ValueOf(object, "parts", 2));
    EXPECT_EQ(ORXISpecObject_var::Adopt(ValueOf(object, "parts", 1)->GetOwner()), object);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, Column_IsAComponentOfItsOwnKind)
{
    for (const char* rows : {"[]", "[1.5, -2, 1e10]"})
    {
        const Model model = Parse(std::string(R"({"type": "Everything", "name": "E", "values": {
            "anything": {"column": )") +
                                  rows + R"(, "id": 1}, "other": {"ref": 1}}})");
        const ORXISimBCDataTableColumn_var column = ValueOf(model.Find("E"), "anything");
        ASSERT_NE(column, NULL_var);
        EXPECT_EQ(column->GetRowCount(), std::string(rows) == "[]" ? 0 : 3);
        EXPECT_EQ(ValueOf(model.Find("E"), "other"), ValueOf(model.Find("E"), "anything"));
        ExpectRoundTrip(model);
    }
}

TEST_F(ModelObjects, References_ById_ReachAnyObject)
{
    const Model model = Parse(R"(
        {"type": "Everything", "name": "E", "id": 10, "values": {
            "other": {"ref": 30}, "others": [{"ref": 20}, null, {"ref": 10}, {"ref": 20}],
            "part": {"id": 30}}},
        {"type": "Part", "name": "P", "id": 20})");
    const ORXISpecObject_var object = model.Find("E");
    EXPECT_EQ(ValueOf(object, "other"), ValueOf(object, "part"));
    EXPECT_EQ(ValueOf(object, "others", 1), model.Find("P"));
    EXPECT_EQ(ValueOf(object, "others", 2), NULL_var);
    EXPECT_EQ(ValueOf(object, "others", 3), object);
    EXPECT_EQ(ValueOf(object, "others", 4), model.Find("P"));
    ExpectRoundTrip(model);
    // Ids are counted in the order of the document.
    EXPECT_NE(model.Text().find("\"others\": [\n          {\n            \"ref\": 3\n          },\n          null"),
              std::string::npos)
        << model.Text();
}

TEST_F(ModelObjects, References_ByIdentifierOrName_ReachTheOnlyObjectThatBearsIt)
{
    const Model model = Parse(R"(
        {"type": "Everything", "name": "E", "identifier": "E-1", "values": {
            "others": [{"ref": "P"}, {"ref": "P-1"}, {"ref": "E-1"}, {"ref": "part"}, {"ref": "both"}]}},
        {"type": "Part", "name": "P", "identifier": "P-1"},
        {"type": "Part", "name": "both", "identifier": "both"})");
    const ORXISpecObject_var object = model.Find("E");
    EXPECT_EQ(ValueOf(object, "others", 1), model.Find("P"));
    EXPECT_EQ(ValueOf(object, "others", 2), model.Find("P"));
    EXPECT_EQ(ValueOf(object, "others", 3), object);
    EXPECT_EQ(ValueOf(object, "others", 4), ValueOf(object, "part"));
    EXPECT_EQ(ValueOf(object, "others", 5), model.Find("both"));
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, AddedAttributes_AreKeptWithTheirKindsAndValues)
{
    const Model model = Parse(R"(
        {"type": "Part", "name": "P", "id": 5, "added": {
            "size_isset": {"kind": "boolean", "value": true},
            "size_isauto": {"kind": "boolean"},
            "count": {"kind": "integer", "value": 3},
            "factor": {"kind": "real", "value": 1, "flag": 1},
            "note": {"kind": "string", "value": ""},
            "unset/name": {"kind": "string", "value": null}}})");
    const std::string dump = Dump(model);
    EXPECT_EQ(dump.substr(dump.find("P.size_isset")), "P.size_isset (added) = true\n"
                                                      "P.size_isauto (added) = (unset)\n"
                                                      "P.count (added) = 3\n"
                                                      "P.factor (added) = 1\n"
                                                      "P.note (added) = \n"
                                                      "P.unset/name (added) = (unset)\n");
    EXPECT_NE(model.Text().find("\"flag\": 1"), std::string::npos);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, FlagsThatWereAddedInMemory_AreSaved)
{
    Model model;
    const ORXISpecObject_var part = model.Create("Part", "P");
    const ORXISpecAttribute_var set = ORXISpecAttribute_var::Adopt(part->AddAttribute("size_isset", tk_boolean, 1));
    EXPECT_EQ(set->SetBoolean(1, 0), S_OK);
    const ORXISpecAttribute_var unset = ORXISpecAttribute_var::Adopt(part->AddAttribute("label_isset", tk_boolean, 1));
    ASSERT_NE(unset, NULL_var);
    EXPECT_NE(Dump(model).find("P.size_isset (added) = true\nP.label_isset (added) = (unset)\n"), std::string::npos);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, NamesTheUserGave_AreKept)
{
    Model model;
    const ORXISpecObject_var part = model.Create("Part", "P");
    VYRStandalone::SetAlias(part, "\xC3\xA4\xE6\xB0\xB4");
    VYRStandalone::SetIdentifier(part, "id/1");
    model.Create("Part", "");
    model.Create("Part", "P");
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, ARecordThatNothingRefersTo_StaysInTheModel)
{
    Model model;
    model.Create("VYRCfdConfigItem", "ConfigItem");
    model.Create("VYRCfdConfigItem", "ConfigItem");
    const Model again = Model::Parse(model.Text(), "saved");
    EXPECT_EQ(again.Objects().size(), 2U);
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, Loading_TellsNobodyAndWritesNothing)
{
    VYRStandalone::CallRecorder recorder;
    const Model model = Parse(R"({"type": "VYRCfdChoice", "name": "C", "values": {
        "value": "a", "choices": ["a", "b"], "defaultManagement": {
            "values": {"configuration": [{"ref": 2}]},
            "added": {"value_isset": {"kind": "boolean", "value": true}}}}},
        {"type": "VYRCfdConfigItem", "name": "ConfigItem", "id": 2, "values": {"path": "value", "default": "a"}})");
    EXPECT_EQ(recorder.Take(), std::vector<std::string>{});
    ExpectRoundTrip(model);
}

TEST_F(ModelObjects, ADefaultOfTheType_IsNotTakenUpByASavedModel)
{
    // What was unset when the model was saved stays unset, whatever the type's start-up holds by then.
    Model model;
    const ORXISpecObject_var object = model.Create("Everything", "E");
    const ORXISpecAttrAccess_var access = object;
    EXPECT_EQ(access->RemoveAll(Key(object, "reals")), S_OK);
    Set(object, "part", NULL_var);
    const Model again = Model::Parse(model.Text(), "saved");
    EXPECT_EQ(DumpOf(again, "reals"), "E.reals has 0\n");
    EXPECT_EQ(DumpOf(again, "part"), "E.part -> (null)\n");
}

TEST_F(ModelObjects, ReferencesInACircle_LetGoWhenTheModelGoes)
{
    {
        const Model model = Parse(R"(
            {"type": "Everything", "name": "A", "id": 1, "values": {"other": {"ref": 2}, "others": [{"ref": 1}]}},
            {"type": "Everything", "name": "B", "id": 2, "values": {"other": {"ref": 1}}})");
        EXPECT_GT(VYRStandalone::LiveComponents(), 0);
    }
    EXPECT_EQ(VYRStandalone::LiveComponents(), 0);
}
} // namespace
